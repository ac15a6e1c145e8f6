#include "solutions/frmMolarity.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "Determining the concentration of a solution is an important chemical function. Materials must be of a certain "
    "concentration in order to react properly. Molarity refers to the number of moles per liter of solvent. Molality "
    "is the number of moles per kilogram of solvent. Knowing these allows you to prepare a solution correctly.";

// Enter is refused by the filter of both boxes; their KeyDown has run cmdOk
// before the refusal comes.
constexpr KeyFilter kMolarityFilter{".", kTitle, KeyFilter::kRefusal, false};

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {16, 8, 448, 56}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Molarity", .rect = {16, 24, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Molality", .rect = {200, 24, 140, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .caption = "Enter the moles of solute", .rect = {16, 84, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {264, 80, 200, 26},
     .toolTip = "Enter a number of moles.",
     .filter = &kMolarityFilter},
    {.kind = Kind::Label, .name = "Label3", .rect = {16, 120, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {264, 116, 200, 26},
     .toolTip = "Enter liters or kilograms.",
     .filter = &kMolarityFilter},
    {.kind = Kind::Label, .name = "Label4", .rect = {16, 160, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {264, 156, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .rect = {432, 160, 32, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {16, 196, 448, 26}, .flags = kDisabled},
    OkButton({16, 240, 80, 30}, kOkTip),
    ClearButton({104, 240, 80, 30}),
    CancelButton({192, 240, 80, 30}),
    PrintButton({280, 240, 80, 30}),
    HelpButton({432, 242, 32, 26}),
};

}  // namespace

frmMolarity::frmMolarity(Program& program)
    : CalculatorScreen(program, {"frmMolarity", "Molarity / Molality", 480, 286}, kControls,
                       {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmMolarity::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMolarity::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMolarity::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmMolarity::opt1_Click);
  Bind("opt2", Ev::Click, &frmMolarity::opt2_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
}

void frmMolarity::Form_Load() {
  HideForm("frmSolutions");
  UnloadForm("frmSolutions");
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmMolarity::SetCaptions(std::string_view amount, std::string_view result, std::string_view unit) {
  ctl("Label3").SetCaption(std::string(amount));
  ctl("Label4").SetCaption(std::string(result));
  ctl("Label5").SetCaption(std::string(unit));
}

void frmMolarity::opt1_Click() { SetCaptions("Enters the liters of solution.", "The molarity is ", "M"); }

void frmMolarity::opt2_Click() { SetCaptions("Enters the kilograms of solvent.", "The molality is ", "m"); }

void frmMolarity::cmdOk_Click() {
  Trapped(kTrapDataEntry, [&] {
    if (!ctl("opt1").Value() && !ctl("opt2").Value()) {
      MsgBox("You must select one of the options.", Icon::None, kTitle);
      return;
    }
    const std::string& moles = ctl("Text1").Text();
    const std::string& amount = ctl("Text2").Text();
    if (moles == "0" || moles.empty() || amount == "0" || amount.empty()) {
      MsgBox("You must enter valid data into both boxes.", Icon::None, kTitle);
      ctl("Text1").SetFocus();
      return;
    }
    // Molality has its captions but no calculation.
    if (ctl("opt1").Value()) {
      const Double x = CDbl(moles) / CDbl(amount);
      ctl("Text3").SetText(FormatNumber(x, 3));
      ctl("Text4").SetText(moles + " / " + amount);
    }
  });
}

void frmMolarity::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
