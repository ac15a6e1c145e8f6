#include "solutions/frmAcids.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "A pH value is an indication of whether a substance is acidic or basic. If the value is low (0-6), it is "
    "considered to be an acid. 7 is neutral. Values greater than 7 are referred to as basic. To determine the pH of "
    "a substance, you must have the concentration of hydronium ions (H3O+) or hydroxide ions (OH-). If you have the "
    "pH, you can determine the concentration of the hydronium ions and hydroxide ions.  The equations for pH is the "
    "-Log(Hydronium Ion Concentration).";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame,
     .name = "Frame1",
     .caption = "Select one of the following options",
     .rect = {16, 8, 448, 142},
     .toolTip = "Select which option you want and press Ok."},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Calculate pH from H3O+  ion concentration",
     .rect = {16, 24, 420, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Calculate pOH from OH-  ion concentration",
     .rect = {16, 52, 420, 24},
     .toolTip = "Make sure the concentration is that of OH- ions.",
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt3",
     .caption = "Determine H3O+  ion concentration from pH",
     .rect = {16, 80, 420, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt4",
     .caption = "Determine OH-  ion concentration from pOH",
     .rect = {16, 108, 420, 24},
     .toolTip = "Make sure you enter pOH and not pH.",
     .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label1", .rect = {16, 170, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {264, 166, 200, 26}, .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label2", .rect = {16, 206, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {264, 202, 200, 26},
     .toolTip = "This is your answer.",
     .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {16, 242, 448, 26}, .flags = kDisabled},
    OkButton({16, 286, 80, 30}, kOkTip),
    ClearButton({104, 286, 80, 30}),
    CancelButton({192, 286, 80, 30}),
    PrintButton({280, 286, 80, 30}),
    HelpButton({432, 288, 32, 26}),
};

}  // namespace

// Cancel brings the main screen back to the front.
frmAcids::frmAcids(Program& program)
    : CalculatorScreen(program, {"frmAcids", "Acids / Bases", 480, 332}, kControls, {"frmMain", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmAcids::Form_Load);
  Bind("cmdOk", Ev::Click, &frmAcids::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmAcids::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmAcids::opt1_Click);
  Bind("opt2", Ev::Click, &frmAcids::opt2_Click);
  Bind("opt3", Ev::Click, &frmAcids::opt3_Click);
  Bind("opt4", Ev::Click, &frmAcids::opt4_Click);
  EnterRunsOk("Text1");
}

void frmAcids::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3"});
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmAcids::SetCaptions(std::string_view prompt, std::string_view result) {
  ctl("Label1").SetCaption(std::string(prompt));
  ctl("Label2").SetCaption(std::string(result));
}

// The first option also runs while the screen loads, so it leaves the focus.
void frmAcids::opt1_Click() { SetCaptions("Enter the H3O+ ion concentration", " The pH is "); }

void frmAcids::opt2_Click() {
  SetCaptions("Enter the OH-  ion concentration", " The pOH is ");
  ctl("Text1").SetFocus();
}

void frmAcids::opt3_Click() {
  SetCaptions("Enter the pH", " The H3O+  concentration is ");
  ctl("Text1").SetFocus();
}

void frmAcids::opt4_Click() {
  SetCaptions("Enter the pOH", " The OH-  concentration is ");
  ctl("Text1").SetFocus();
}

void frmAcids::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const std::string& text = ctl("Text1").Text();
    if (text.empty()) {
      MsgBox("You must enter valid data.", Icon::None, "Acids");
      cmdClear_Click();
      return;
    }
    if (CSng(text) < 0 || CSng(text) > 14) {
      MsgBox("You must enter a number between 0 and 14.", Icon::Information, kTitle);
      return;
    }
    if (ctl("opt1").Value()) {
      const Double x = CDbl(text);
      const Double pH = -Log(x) / Log(10);
      ctl("Text2").SetText(FormatNumber(pH, 3));
      ctl("Text3").SetText("-Log(" + text + ") / Log(10)");
    } else if (ctl("opt2").Value()) {
      const Double x = CDbl(text);
      const Double q = -Log(x) / Log(10);
      const Double pOH = 14.0 - q;
      ctl("Text2").SetText(FormatNumber(pOH, 3));
      ctl("Text3").SetText("14 - (-Log(" + text + ") / Log(10)");
    }
    // The two ways back to a concentration have no calculation.
  });
}

void frmAcids::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
