#include "gases/frmGayLussac.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "If you have a fixed volume of a gas, the pressure exerted by that gas is directly related to the  Kelvin "
    "temperature. The higher the temperature, the more energy the molecules have and the greater the pressure they "
    "apply to the walls of the container. This causes an increase in pressure. Likewise, a decrease in temperature "
    "will cause the molecules to have less energy and strike the sides of the container with less force causing a "
    "decrease in pressure. ";

constexpr std::string_view kPressure = "Enter the initial pressure in atmospheres.";
constexpr std::string_view kTemperature = "Enter the initial temperature in Kelvin.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 460, 60}},
    {.kind = Kind::Option,
     .name = "opt1",
     .caption = "Find pressure",
     .rect = {16, 28, 180, 24},
     .container = "Frame1"},
    {.kind = Kind::Option,
     .name = "opt2",
     .caption = "Find temperature",
     .rect = {230, 28, 200, 24},
     .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .rect = {20, 90, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {330, 86, 150, 26},
     .toolTip = "Enter the number of atmosphere the gas is presently under.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .rect = {20, 126, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {330, 122, 150, 26},
     .toolTip = "Kelvin is Celcius + 273.",
     .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 162, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {330, 158, 150, 26},
     .toolTip = "Enter a temperature in degrees Kelvin.",
     .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label5", .rect = {20, 198, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {330, 194, 106, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .rect = {442, 198, 40, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {20, 232, 460, 26}, .flags = kDisabled},
    OkButton({20, 276, 80, 30}, "Calculate the final pressure."),
    {.kind = Kind::Button,
     .name = "cmdClear",
     .caption = "Clear",
     .rect = {108, 276, 80, 30},
     .toolTip = "Clear all boxes and start over."},
    {.kind = Kind::Button,
     .name = "cmdCancel",
     .caption = "Cancel",
     .rect = {196, 276, 80, 30},
     .toolTip = "Close screen and return to Gas Laws screen.",
     .flags = kCancel},
    PrintButton({284, 276, 80, 30}),
    HelpButton({448, 278, 32, 26}),
};

}  // namespace

frmGayLussac::frmGayLussac(Program& program)
    : CalculatorScreen(program, {"frmGayLussac", "Gay-Lussac's Law", 500, 322}, kControls,
                       {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmGayLussac::Form_Load);
  Bind("cmdOk", Ev::Click, &frmGayLussac::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmGayLussac::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmGayLussac::opt1_Click);
  Bind("opt2", Ev::Click, &frmGayLussac::opt2_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
}

void frmGayLussac::SetCaptions(std::string_view box1, std::string_view box2, std::string_view box3,
                               std::string_view result, std::string_view unit) {
  ctl("Label2").SetCaption(std::string(box1));
  ctl("Label3").SetCaption(std::string(box2));
  ctl("Label4").SetCaption(std::string(box3));
  ctl("Label5").SetCaption(std::string(result));
  ctl("Label6").SetCaption(std::string(unit));
}

void frmGayLussac::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5"});
  SetCaptions(kPressure, kTemperature, "Enter the final temperature in Kelvin.", "The final pressure is ", "Atm.");
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

// The options swap the prompts of the first two boxes; the boxes keep their text.
void frmGayLussac::opt1_Click() {
  SetCaptions(kPressure, kTemperature, "Enter the final temperature in Kelvin.", "The final pressure is ", "Atm.");
}

void frmGayLussac::opt2_Click() {
  SetCaptions(kTemperature, kPressure, "Enter the final pressure in atmospheres.", "The final temperature is ", "K.");
  ctl("Text1").SetFocus();
}

void frmGayLussac::cmdOk_Click() {
  Trapped(kTrapDataEntryCapsPoint, [&] {
    const std::string& box1 = ctl("Text1").Text();
    const std::string& box2 = ctl("Text2").Text();
    const std::string& box3 = ctl("Text3").Text();
    if (box1.empty() || box1 == "0") {
      MsgBox("You must enter a valid number in box one.", Icon::Information, kTitle);
      return;
    }
    if (box2.empty() || box2 == "0") {
      MsgBox("You must enter a valid number in box two.", Icon::Information, kTitle);
      return;
    }
    // A final temperature of "0" is allowed.
    if (box3.empty()) {
      MsgBox("You must enter a valid number in box three.", Icon::Information, kTitle);
      return;
    }
    const bool findPressure = ctl("opt1").Value();
    Single t1;
    Single t2;
    Single p1;
    if (findPressure) {
      t1 = CSng(box2);
      t2 = CSng(box3);
      p1 = CSng(box1);
    }
    if (ctl("opt2").Value()) {
      // Read for their checks alone: the temperature mode has no formula.
      CSng(box1);
      CSng(box2);
      CSng(box3);
    }
    if (!findPressure) return;
    const Single p2 = t2 / t1 * p1;
    ctl("Text4").SetText(FormatNumber(p2, 3));
    ctl("Text5").SetText(Str(p1) + " * (" + Str(t2) + " / " + Str(t1) + ")");
  });
}

// The captions come back only through opt1's routine, which runs when opt2
// was selected.
void frmGayLussac::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5"});
  ctl("opt1").SetValue(true);
  ctl("Text1").SetFocus();
}

}  // namespace orv
