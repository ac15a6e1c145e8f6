#include "gases/frmGasDensity.h"

namespace orv {

namespace {

// R of the arithmetic and of the working line; the box of R shows another
// value and is never read.
constexpr Expr kR = 0.082;

constexpr std::string_view kHelp =
    "The density of a gas can be determined by using a variation of the ideal gas equation in combination with the "
    "regular density formula. The mass of the gas is replaced by Pressure times Molecular Weight. The volume is "
    "replaced by R times Temperature.";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter the following data for gas density",
     .rect = {20, 12, 480, 22},
     .flags = kBold},
    {.kind = Kind::Label, .name = "Label2", .caption = "Enter the molecular weight", .rect = {20, 50, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {304, 46, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter the pressure in atmospheres", .rect = {20, 86, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {304, 82, 150, 26},
     .toolTip = "Divide mm of Hg by 760.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "Ideal Gas constant (R)", .rect = {20, 122, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .caption = ".083", .rect = {304, 118, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "Enter the temperature in degrees K",
     .rect = {20, 158, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "Text4",
     .rect = {304, 154, 150, 26},
     .toolTip = "Kelvin is Celcius + 273",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label6", .caption = "The density of the gas is ", .rect = {20, 194, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {304, 190, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = "g / L", .rect = {460, 194, 60, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {20, 230, 500, 26}, .flags = kDisabled},
    OkButton({20, 274, 80, 30}),
    ClearButton({108, 274, 80, 30}),
    CancelButton({196, 274, 80, 30}),
    PrintButton({284, 274, 80, 30}),
    HelpButton({488, 276, 32, 26}),
};

}  // namespace

frmGasDensity::frmGasDensity(Program& program)
    : CalculatorScreen(program, {"frmGasDensity", "Gas Density", 540, 320}, kControls, {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmGasDensity::Form_Load);
  Bind("cmdOk", Ev::Click, &frmGasDensity::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmGasDensity::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  // The Enter routine sits on the box of R, not on the temperature box.
  EnterRunsOk("Text3");
}

void frmGasDensity::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text4", "Text5", "Text6"});
  DisableOkAndPrint();
}

void frmGasDensity::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const std::string& weightText = ctl("Text1").Text();
    const std::string& pressureText = ctl("Text2").Text();
    const std::string& temperatureText = ctl("Text4").Text();
    if (weightText.empty() || pressureText.empty() || temperatureText.empty()) {
      MsgBox("You must enter data into all the boxes.", Icon::None, kTitle);
      ctl("Text1").SetFocus();
      return;
    }
    // A text test, and the temperature is not in it.
    if (weightText == "0" || pressureText == "0") {
      MsgBox("You must enter valid data into all the boxes.", Icon::None, kTitle);
      ctl("Text1").SetFocus();
      return;
    }
    const Single w = CSng(weightText);
    const Single p = CSng(pressureText);
    const Single t = CSng(temperatureText);
    const Double wp = w * p;
    const Single d = wp / (t * kR);
    ctl("Text5").SetText(FormatNumber(d, 3));
    ctl("Text6").SetText("(" + Str(w) + " * " + Str(p) + ") / (" + Str(Double(kR)) + " * " + Str(t) + ")");
  });
}

void frmGasDensity::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text4", "Text5", "Text6"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
