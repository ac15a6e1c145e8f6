#include "gases/frmMolecularWeight.h"

namespace orv {

namespace {

// R of the arithmetic and of the working line; the box of R is only shown.
constexpr Expr kR = 0.083;

constexpr std::string_view kHelp = "The molecular mass of a gas can be determined by using the ideal gas equation.  ";

constexpr ControlSpec kControls[] = {
    {Kind::Label,
     "Label1",
     "Enter the following data to calculate molecular mass.",
     {20, 12, 480, 22},
     {},
     {},
     -1,
     kBold},
    {Kind::Label, "Label8", "Enter the pressure in atmospheres.", {20, 50, 280, 22}},
    {Kind::TextBox, "Text6", "", {304, 46, 150, 26}, {}, {}, -1, 0, &kFilterPointE},
    {Kind::Label, "Label4", "Enter the mass in grams", {20, 86, 280, 22}},
    {Kind::TextBox, "Text3", "", {304, 82, 150, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "Enter the volume in liters", {20, 122, 280, 22}},
    {Kind::TextBox, "Text2", "", {304, 118, 150, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label5", "Enter the temperature in degrees K", {20, 158, 280, 22}},
    {Kind::TextBox, "Text4", "", {304, 154, 150, 26}, "Kelvin is Celcius + 273.", {}, -1, 0, &kFilterMinusPoint},
    {Kind::Label, "Label2", "Ideal Gas Constant (R)", {20, 194, 280, 22}},
    {Kind::TextBox, "Text1", ".083", {304, 190, 150, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label6", "The molecular mass is ", {20, 230, 280, 22}},
    {Kind::TextBox, "Text5", "", {304, 226, 150, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label7", " g/mol", {460, 230, 60, 22}},
    {Kind::TextBox, "Text7", "", {20, 266, 500, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 310, 80, 30}, {}, {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 310, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 310, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 310, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {488, 312, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

frmMolecularWeight::frmMolecularWeight(Program& program)
    : CalculatorScreen(program, {"frmMolecularWeight", "Molecular Mass", 540, 356}, kControls,
                       {"frmGasLaws", "Text6", kHelp}) {
  Bind("Form", Ev::Load, &frmMolecularWeight::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMolecularWeight::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMolecularWeight::cmdClear_Click);
  EnterRunsOk("Text6");
  EnterRunsOk("Text3");
  EnterRunsOk("Text2");
  EnterRunsOk("Text4");
}

void frmMolecularWeight::Form_Load() {
  EmptyBoxes({"Text6", "Text3", "Text2", "Text4", "Text7"});
  DisableOkAndPrint();
}

void frmMolecularWeight::cmdOk_Click() {
  Trapped(kTrapDataEntryCaps, [&] {
    const std::string& pressureText = ctl("Text6").Text();
    const std::string& massText = ctl("Text3").Text();
    const std::string& volumeText = ctl("Text2").Text();
    const std::string& temperatureText = ctl("Text4").Text();
    if (pressureText.empty() || massText.empty() || volumeText.empty() || temperatureText.empty()) {
      MsgBox("You must enter data into all the boxes.", Icon::None, kTitle);
      return;
    }
    // A text test: "0.0" and "00" pass it.
    if (pressureText == "0" || massText == "0" || volumeText == "0" || temperatureText == "0") {
      MsgBox("You must enter valid data into all the boxes.", Icon::None, kTitle);
      return;
    }
    const Single p = CSng(pressureText);
    const Single m = CSng(massText);
    const Single v = CSng(volumeText);
    const Single t = CSng(temperatureText);
    const Double pv = v * p;
    const Single mass = m / (pv / (t * kR));
    ctl("Text5").SetText(FormatNumber(mass, 3));
    ctl("Text7").SetText(Str(m) + "/ ((" + Str(p) + " * " + Str(v) + ") / (" + Str(Double(kR)) + " * " + Str(t) + "))");
  });
}

// The answer box keeps the last answer.
void frmMolecularWeight::cmdClear_Click() { EmptyBoxes({"Text6", "Text3", "Text2", "Text4", "Text7"}); }

}  // namespace orv
