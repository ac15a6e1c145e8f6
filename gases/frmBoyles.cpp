#include "gases/frmBoyles.h"

namespace orv {

namespace {

// The upper box has no exception for Enter: while cmdOk is grey, Enter there
// is refused like any other key.
constexpr KeyFilter kUpperBoxFilter{"+.E", kTitle, KeyFilter::kRefusal, false};

constexpr std::string_view kHelp =
    "Boyle's law extablishes an inverse relationship between pressure and volume. The pressure is exerted on the "
    "gas. The higher the pressure, the lower the volume. The lower the pressure, the higher the volume. Imagine "
    "applying an external force to a container. The more pressure you apply, the smaller the volume of the "
    "container. ";

constexpr std::string_view kUnitsTip = "Millimeters for pressure or liters for volume.";

constexpr std::string_view kCancelTip = "Close the screen and return to the Gas Laws screen.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame,
     .name = "Frame1",
     .caption = "Select one of the following",
     .rect = {20, 8, 500, 60},
     .toolTip = "Choose what you want to find."},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Find final pressure",
     .rect = {16, 28, 220, 24},
     .toolTip = "SChose which option you want to find.",
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Find final volume",
     .rect = {258, 28, 220, 24},
     .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter an initial volume in liters", .rect = {20, 90, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "txtInitialVolume",
     .rect = {304, 86, 150, 26},
     .toolTip = kUnitsTip,
     .filter = &kUpperBoxFilter},
    {.kind = Kind::Label,
     .name = "Label4",
     .caption = "Enter an initial pressure in mm Hg",
     .rect = {20, 126, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "txtInitialPressure",
     .rect = {304, 122, 150, 26},
     .toolTip = kUnitsTip,
     .filter = &kFilterPlusPointE},
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter a final volume in liters", .rect = {20, 162, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "txtFinalEntry",
     .rect = {304, 158, 150, 26},
     .toolTip = kUnitsTip,
     .filter = &kFilterPlusPointE},
    {.kind = Kind::Label, .name = "Label2", .caption = "The final pressure is ", .rect = {20, 198, 280, 22}},
    {.kind = Kind::TextBox, .name = "txtFinalAnswer", .rect = {304, 194, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .rect = {462, 198, 60, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {20, 236, 500, 26}, .flags = kDisabled},
    OkButton({20, 280, 80, 30}, kOkTip),
    {.kind = Kind::Button,
     .name = "cmdClear",
     .caption = "Clear",
     .rect = {108, 280, 80, 30},
     .toolTip = "Clear the boxes and start over."},
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {196, 280, 80, 30},
     .toolTip = kCancelTip,
     .flags = kCancel},
    PrintButton({284, 280, 80, 30}),
    HelpButton({488, 282, 32, 26}),
};

}  // namespace

frmBoyles::frmBoyles(Program& program)
    : CalculatorScreen(program, {"frmBoyles", "Boyle's Law", 540, 326}, kControls,
                       {"frmGasLaws", "txtInitialVolume", kHelp}) {
  Bind("Form", Ev::Load, &frmBoyles::Form_Load);
  Bind("cmdOk", Ev::Click, &frmBoyles::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmBoyles::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmBoyles::opt1_Click);
  Bind("opt2", Ev::Click, &frmBoyles::opt2_Click);
  // This screen's Print button has no routine: pressing it does nothing.
  On("cmdPrint", Ev::Click, [](EventArgs&) {});
  // No box has an Enter routine: Enter reaches cmdOk as the default button.
}

void frmBoyles::SetPrompts(std::string_view upper, std::string_view lower, std::string_view final,
                           std::string_view result) {
  ctl("Label3").SetCaption(std::string(upper));
  ctl("Label4").SetCaption(std::string(lower));
  ctl("Label1").SetCaption(std::string(final));
  ctl("Label2").SetCaption(std::string(result));
}

void frmBoyles::Form_Load() {
  EmptyBoxes({"txtInitialVolume", "txtInitialPressure", "txtFinalEntry", "txtFinalAnswer", "Text1"});
  ctl("opt1").SetEnabled(true);
  ctl("opt2").SetEnabled(true);
  ctl("Label3").SetCaption("");
  ctl("Label4").SetCaption("");
  // These prompts are overwritten at once by the first mode's routine.
  SetPrompts("Enter an initial volume in liters (>1)", "Enter an initial pressure in mm Hg",
             "Enter a final volume in liters (>1)", "The final pressure is ");
  ctl("Label5").SetCaption("");
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

// The modes rewrite the prompts only; boxes, answer and unit stay.
void frmBoyles::opt1_Click() {
  SetPrompts("Enter an initial volume in liters", "Enter an initial pressure in mm Hg",
             "Enter a final volume in liters", "The final pressure is ");
}

void frmBoyles::opt2_Click() {
  SetPrompts("Enter an initial pressure in mm Hg.", "Enter an initial volume in liters",
             "Enter a final pressure in mm Hg", "The final volume is ");
  ctl("txtInitialVolume").SetFocus();
}

void frmBoyles::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    if (ctl("txtInitialVolume").Text().empty() || ctl("txtInitialPressure").Text().empty() ||
        ctl("txtFinalEntry").Text().empty()) {
      MsgBox("You must enter valid data into all required data boxes.", Icon::None, kTitle);
      return;
    }
    const bool findPressure = ctl("opt1").Value();
    const bool findVolume = ctl("opt2").Value();
    if (!findPressure && !findVolume) {
      MsgBox("You must select one of the options.", Icon::None, kTitle);
      return;
    }
    // Both modes read the three boxes in the same order; in the second the
    // upper box holds the pressure and the lower one the volume.
    const Single upper = CSng(ctl("txtInitialVolume").Text());
    const Single lower = CSng(ctl("txtInitialPressure").Text());
    const Single finalEntry = CSng(ctl("txtFinalEntry").Text());
    // Only the final pressure is calculated.
    if (!findPressure) return;
    const Single v1 = upper;
    const Single p1 = lower;
    const Single v2 = finalEntry;
    // A growing and a shrinking volume take the same path.
    const Single p2 = (v1 / v2) * p1;
    ctl("txtFinalAnswer").SetText(FormatNumber(p2, 3));
    ctl("Label5").SetCaption("mm Hg");
    ctl("Text1").SetText(Str(p1) + " * (" + Str(v1) + " / " + Str(v2) + " )");
  });
}

// The prompts follow the mode selected when Clear is pressed; in the first
// mode they stay in their short form, as selecting it again runs nothing.
void frmBoyles::cmdClear_Click() {
  const bool findVolume = ctl("opt2").Value();
  EmptyBoxes({"txtInitialPressure", "txtInitialVolume", "Text1", "txtFinalEntry", "txtFinalAnswer"});
  ctl("opt1").SetEnabled(true);
  ctl("opt2").SetEnabled(true);
  ctl("Label5").SetCaption("");
  if (findVolume) {
    SetPrompts("Enter an initial pressure.", "Enter an initial volume", "Enter a final pressure",
               "The final volume is ");
  } else {
    SetPrompts("Enter an initial volume.", "Enter an initial pressure", "Enter a final volume",
               "The final pressure is ");
  }
  ctl("opt1").SetValue(true);
  ctl("txtInitialVolume").SetFocus();
}

}  // namespace orv
