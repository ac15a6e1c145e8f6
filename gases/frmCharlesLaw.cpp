#include "gases/frmCharlesLaw.h"

namespace orv {

namespace {

// The volume box refuses its keys under its own title.
constexpr KeyFilter kCharlesVolumeFilter{"+.E", "Charles"};

constexpr std::string_view kHelp =
    "Charles's Law establishes a direct relationship between the temperature and the volume of a gas. The higher "
    "the temperature the higher the volume. The lower the temperature, the lower the volume. ";

constexpr std::string_view kKelvinTip = "Kelvin is Celcius + 273.";

constexpr std::string_view kCancelTip = "Close the screen and return to the Gas Laws screen.";

constexpr ControlSpec kControls[] = {
    {Kind::Frame, "Frame1", "Select one of the following", {20, 8, 520, 60}, "Chose what you want to find."},
    {Kind::Option, "opt1", "Find final temperature", {16, 28, 230, 24}, {}, "Frame1"},
    {Kind::Option, "opt2", "Find final volume", {268, 28, 230, 24}, {}, "Frame1"},
    {Kind::Label, "Label1", "Enter initial temperature in degrees Kelvin", {20, 90, 300, 22}},
    {Kind::TextBox, "txtInitialTemperature", "", {324, 86, 150, 26}, kKelvinTip, {}, -1, 0, &kFilterMinusPoint},
    {Kind::Label, "Label2", "Enter the initial volume in liters.", {20, 126, 300, 22}},
    {Kind::TextBox, "txtInitialVolume", "", {324, 122, 150, 26}, {}, {}, -1, 0, &kCharlesVolumeFilter},
    {Kind::Label, "Label3", "Enter a final volume.", {20, 162, 300, 22}},
    {Kind::TextBox, "txtFinalEntry", "", {324, 158, 150, 26}, "Enter a valid number.", {}, -1, 0, &kFilterSignsPointE},
    {Kind::Label, "Label4", "The final temperature is ", {20, 198, 300, 22}},
    {Kind::TextBox, "txtFinalAnswer", "", {324, 194, 150, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label5", "Kelvin", {482, 198, 70, 22}},
    {Kind::TextBox, "Text1", "", {20, 236, 520, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 280, 80, 30}, "Press to calculate the answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 280, 80, 30}, "Clear the entries and start over."},
    {Kind::Button, "cmdCancel", "Cancel", {196, 280, 80, 30}, kCancelTip, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 280, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {508, 282, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

frmCharlesLaw::frmCharlesLaw(Program& program)
    : CalculatorScreen(program, {"frmCharlesLaw", "Charles's Law", 560, 326}, kControls,
                       {"frmGasLaws", "txtInitialTemperature", kHelp}) {
  Bind("Form", Ev::Load, &frmCharlesLaw::Form_Load);
  Bind("cmdOk", Ev::Click, &frmCharlesLaw::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmCharlesLaw::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmCharlesLaw::opt1_Click);
  Bind("opt2", Ev::Click, &frmCharlesLaw::opt2_Click);
  // No box has an Enter routine: Enter reaches cmdOk as the default button.
}

void frmCharlesLaw::Form_Load() {
  EmptyBoxes({"txtInitialTemperature", "txtInitialVolume", "txtFinalEntry", "txtFinalAnswer", "Text1"});
  ctl("opt1").SetEnabled(true);
  ctl("opt2").SetEnabled(true);
  ctl("Label3").SetCaption("");
  ctl("Label4").SetCaption("");
  // Selecting the first mode runs its routine, which fills the prompts.
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

// The modes rewrite the prompts only; boxes and answer stay as they are.
void frmCharlesLaw::opt1_Click() {
  ctl("Label3").SetCaption("Enter a final volume.");
  ctl("Label4").SetCaption("The final temperature is ");
  ctl("Label5").SetCaption("Kelvin");
}

void frmCharlesLaw::opt2_Click() {
  ctl("Label3").SetCaption("Enter a final temperature in degrees Kelvin.");
  ctl("Label4").SetCaption("The final volume is ");
  ctl("Label5").SetCaption("Liters");
}

void frmCharlesLaw::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    if (ctl("txtInitialVolume").Text().empty() || ctl("txtInitialTemperature").Text().empty()) {
      MsgBox("You must enter valid data into all data boxes.", Icon::None, kTitle);
      return;
    }
    const bool findTemperature = ctl("opt1").Value();
    const bool findVolume = ctl("opt2").Value();
    if (!findTemperature && !findVolume) {
      MsgBox("You must select one of the options.", Icon::None, kTitle);
      return;
    }
    if (ctl("txtFinalEntry").Text().empty()) {
      MsgBox("You must enter data into the final entry box.", Icon::None, kTitle);
      return;
    }
    // Both modes read the three boxes in the same order; the third is the
    // final volume or the final temperature.
    const Single t1 = CSng(ctl("txtInitialTemperature").Text());
    const Single v1 = CSng(ctl("txtInitialVolume").Text());
    const Single finalEntry = CSng(ctl("txtFinalEntry").Text());
    // Only the final temperature is calculated.
    if (!findTemperature) return;
    // A growing and a shrinking volume take the same path.
    const Single v2 = finalEntry;
    const Single t2 = (v2 / v1) * t1;
    ctl("txtFinalAnswer").SetText(FormatNumber(t2, 3));
    ctl("Text1").SetText(Str(t1) + " * " + "(" + Str(v2) + " / " + Str(v1) + ")");
  });
}

void frmCharlesLaw::cmdClear_Click() {
  EmptyBoxes({"txtInitialTemperature", "txtInitialVolume", "txtFinalEntry", "txtFinalAnswer", "Text1"});
  ctl("opt1").SetEnabled(true);
  ctl("opt2").SetEnabled(true);
  ctl("Label3").SetCaption("Enter a final volume.");
  ctl("Label4").SetCaption("The final temperature is ");
  ctl("opt1").SetValue(true);
  ctl("txtInitialTemperature").SetFocus();
}

}  // namespace orv
