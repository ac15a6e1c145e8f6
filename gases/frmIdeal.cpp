#include "gases/frmIdeal.h"

namespace orv {

namespace {

// The working line always shows this value of R, whatever its box holds.
constexpr Expr kLineR = 0.083;

constexpr std::string_view kHelp =
    "The ideal gas equation combines four factors (pressure, temperature, volume,# moles) plus R into one equation. "
    "The value of R depends upon the units used to measure the four factors. Usually, it is .082. Knowing three of "
    "the factors, you can determine the other. You can also determine the molecular mass of a gas and its density. ";

constexpr std::string_view kQuantityTip = "Be sure to enter the requested quantity.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Select one of the following", .rect = {20, 8, 520, 60}},
    {.kind = Kind::Option, .name = "opt1", .caption = "Pressure", .rect = {16, 28, 110, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt2", .caption = "Volume", .rect = {138, 28, 110, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt3", .caption = "# of Moles", .rect = {260, 28, 110, 24}, .container = "Frame1"},
    {.kind = Kind::Option, .name = "opt4", .caption = "Temperature", .rect = {382, 28, 120, 24}, .container = "Frame1"},
    {.kind = Kind::Label, .name = "Label2", .caption = "Ideal Gas Constant (R)", .rect = {20, 82, 250, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .caption = ".083", .rect = {20, 106, 250, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label3", .rect = {290, 82, 250, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {290, 106, 250, 26},
     .toolTip = kQuantityTip,
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .rect = {20, 144, 250, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {20, 168, 250, 26},
     .toolTip = kQuantityTip,
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .rect = {290, 144, 250, 22}},
    {.kind = Kind::TextBox,
     .name = "Text4",
     .rect = {290, 168, 250, 26},
     .toolTip = kQuantityTip,
     .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label6", .rect = {20, 214, 250, 22}, .flags = kRightAlign},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {290, 210, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .rect = {448, 214, 92, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {20, 250, 520, 26}, .flags = kDisabled},
    OkButton({20, 294, 80, 30}),
    ClearButton({108, 294, 80, 30}),
    CancelButton({196, 294, 80, 30}),
    PrintButton({284, 294, 80, 30}),
    HelpButton({508, 296, 32, 26}),
};

}  // namespace

frmIdeal::frmIdeal(Program& program)
    : CalculatorScreen(program, {"frmIdeal", "Ideal Gas Law", 560, 340}, kControls, {"frmGasLaws", "Text2", kHelp}) {
  Bind("Form", Ev::Load, &frmIdeal::Form_Load);
  Bind("cmdOk", Ev::Click, &frmIdeal::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmIdeal::cmdClear_Click);
  Bind("opt1", Ev::Click, &frmIdeal::opt1_Click);
  Bind("opt2", Ev::Click, &frmIdeal::opt2_Click);
  Bind("opt3", Ev::Click, &frmIdeal::opt3_Click);
  Bind("opt4", Ev::Click, &frmIdeal::opt4_Click);
  Bind("Label7", Ev::Click, &frmIdeal::Label7_Click);
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
  EnterRunsOk("Text4");
}

void frmIdeal::Form_Load() {
  EmptyBoxes({"Text2", "Text3", "Text4", "Text5"});
  ctl("opt1").SetEnabled(true);
  ctl("opt2").SetEnabled(true);
  ctl("opt3").SetEnabled(true);
  ctl("opt4").SetEnabled(true);
  // Selecting the first mode runs its routine, which fills the prompts.
  ctl("opt1").SetValue(true);
  DisableOkAndPrint();
}

void frmIdeal::SetMode(std::string_view upperRight, std::string_view lowerLeft, std::string_view lowerRight,
                       std::string_view result, std::string_view unit) {
  ctl("Label3").SetCaption(std::string(upperRight));
  ctl("Label4").SetCaption(std::string(lowerLeft));
  ctl("Label5").SetCaption(std::string(lowerRight));
  ctl("Label6").SetCaption(std::string(result));
  ctl("Label7").SetCaption(std::string(unit));
  for (const char* option : {"opt1", "opt2", "opt3", "opt4"}) ctl(option).SetEnabled(true);
}

// The modes rewrite the prompts only; boxes and answer stay as they are.
void frmIdeal::opt1_Click() {
  SetMode("Enter the volume in liters.", "Enter the number of moles.", "Enter the temperature in K.",
          " The final pressure is ", "atmospheres");
}

void frmIdeal::opt2_Click() {
  SetMode("Pressure in atmospheres.", "Enter the number of moles.", "Enter the temperature in K.",
          " The final volume is ", "Liters");
}

void frmIdeal::opt3_Click() {
  SetMode("Enter the volume in liters.", "Pressure in atmospheres.", "Enter the temperature in K.",
          " The final number of moles is ", "");
}

void frmIdeal::opt4_Click() {
  SetMode("Enter the volume in liters.", "Enter the number of moles.", "Pressure in atmospheres.",
          " The final temperature is ", "Kelvin");
}

void frmIdeal::Label7_Click() {
  for (const char* option : {"opt1", "opt2", "opt3", "opt4"}) ctl(option).SetEnabled(true);
}

void frmIdeal::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const bool pressure = ctl("opt1").Value();
    if (!pressure && !ctl("opt2").Value() && !ctl("opt3").Value() && !ctl("opt4").Value()) {
      MsgBox("You must select one of the options.", Icon::None, kTitle);
      return;
    }
    if (ctl("Text2").Text().empty() || ctl("Text3").Text().empty() || ctl("Text4").Text().empty()) {
      MsgBox("You must enter data into all the boxes.", Icon::None, kTitle);
      ctl("Text2").SetFocus();
      return;
    }
    // Only the pressure is calculated; the other modes read nothing.
    if (!pressure) return;
    const Single v = CSng(ctl("Text2").Text());
    const Single n = CSng(ctl("Text3").Text());
    const Single t = CSng(ctl("Text4").Text());
    const Single r = CSng(ctl("Text1").Text());
    const Single p = (r * (n * t)) / v;
    ctl("Text5").SetText(FormatNumber(p, 3));
    ctl("Text6").SetText("(" + Str(n) + " * " + Str(t) + " * " + Str(Double(kLineR)) + ") / " + Str(v));
  });
}

void frmIdeal::cmdClear_Click() {
  EmptyBoxes({"Text2", "Text3", "Text4", "Text5", "Text6"});
  ctl("opt1").SetValue(true);
  for (const char* option : {"opt1", "opt2", "opt3", "opt4"}) ctl(option).SetEnabled(true);
}

}  // namespace orv
