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
    {.kind = Kind::Frame,
     .name = "Frame1",
     .caption = "Select one of the following",
     .rect = {20, 8, 520, 60},
     .toolTip = "Chose what you want to find."},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Find final temperature",
     .rect = {16, 28, 230, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Find final volume",
     .rect = {268, 28, 230, 24},
     .container = "Frame1"},
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter initial temperature in degrees Kelvin",
     .rect = {20, 90, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "txtInitialTemperature",
     .rect = {324, 86, 150, 26},
     .toolTip = kKelvinTip,
     .filter = &kFilterMinusPoint},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Enter the initial volume in liters.",
     .rect = {20, 126, 300, 22}},
    {.kind = Kind::TextBox, .name = "txtInitialVolume", .rect = {324, 122, 150, 26}, .filter = &kCharlesVolumeFilter},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter a final volume.", .rect = {20, 162, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "txtFinalEntry",
     .rect = {324, 158, 150, 26},
     .toolTip = "Enter a valid number.",
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label4", .caption = "The final temperature is ", .rect = {20, 198, 300, 22}},
    {.kind = Kind::TextBox, .name = "txtFinalAnswer", .rect = {324, 194, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .caption = "Kelvin", .rect = {482, 198, 70, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {20, 236, 520, 26}, .flags = kDisabled},
    OkButton({20, 280, 80, 30}, "Press to calculate the answer."),
    {.kind = Kind::Button,
     .name = "cmdClear",
     .caption = "Clear",
     .rect = {108, 280, 80, 30},
     .toolTip = "Clear the entries and start over."},
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {196, 280, 80, 30},
     .toolTip = kCancelTip,
     .flags = kCancel},
    PrintButton({284, 280, 80, 30}),
    HelpButton({508, 282, 32, 26}),
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
