#include "gases/frmMolecularWeight.h"

namespace orv {

namespace {

// R of the arithmetic and of the working line; the box of R is only shown.
constexpr Expr kR = 0.083;

constexpr std::string_view kHelp = "The molecular mass of a gas can be determined by using the ideal gas equation.  ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label1",
     .caption = "Enter the following data to calculate molecular mass.",
     .rect = {20, 12, 480, 22},
     .flags = kBold},
    {.kind = Kind::Label, .name = "Label8", .caption = "Enter the pressure in atmospheres.", .rect = {20, 50, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {304, 46, 150, 26}, .filter = &kFilterPointE},
    {.kind = Kind::Label, .name = "Label4", .caption = "Enter the mass in grams", .rect = {20, 86, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {304, 82, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter the volume in liters", .rect = {20, 122, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {304, 118, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "Enter the temperature in degrees K",
     .rect = {20, 158, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "Text4",
     .rect = {304, 154, 150, 26},
     .toolTip = "Kelvin is Celcius + 273.",
     .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label2", .caption = "Ideal Gas Constant (R)", .rect = {20, 194, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .caption = ".083", .rect = {304, 190, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label6", .caption = "The molecular mass is ", .rect = {20, 230, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {304, 226, 150, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = " g/mol", .rect = {460, 230, 60, 22}},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {20, 266, 500, 26}, .flags = kDisabled},
    OkButton({20, 310, 80, 30}),
    ClearButton({108, 310, 80, 30}),
    CancelButton({196, 310, 80, 30}),
    PrintButton({284, 310, 80, 30}),
    HelpButton({488, 312, 32, 26}),
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
