#include "energy/frmEnergyChange.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "When an object gains heat energy, the energy must have been lost by some other object. Also when an object "
    "loses heat energy, it must be gained by another object. There has to be conservation of heat energy. The heat "
    "gained or lost depends upon the mass of the object, the change in temperature, and the specific heat.  ";

constexpr ControlSpec kControls[] = {
    {Kind::Label, "Label1", "Enter the mass in grams.", {20, 22, 280, 22}},
    {Kind::TextBox, "Text1", "", {304, 18, 160, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label2", "Temperature change in degrees Celcius.", {20, 58, 280, 22}},
    {Kind::TextBox, "Text2", "", {304, 54, 160, 26}, {}, {}, -1, 0, &kFilterMinusPoint},
    {Kind::Label, "Label3", "Enter the specific heat.", {20, 94, 280, 22}},
    {Kind::TextBox,
     "Text3",
     "",
     {304, 90, 160, 26},
     "Use the chart below or one found in a textbook.",
     {},
     -1,
     0,
     &kFilterPoint},
    {Kind::Label, "Label4", "The heat energy change is: ", {20, 138, 280, 22}},
    {Kind::TextBox, "Text4", "", {304, 134, 160, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label5", "Joules", {472, 138, 68, 22}},
    {Kind::TextBox, "Text5", "", {20, 172, 520, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {20, 216, 80, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 216, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {196, 216, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {284, 216, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {508, 218, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

frmEnergyChange::frmEnergyChange(Program& program)
    : CalculatorScreen(program, {"frmEnergyChange", "Heat Energy Change", 560, 262}, kControls,
                       {"frmEnergy", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmEnergyChange::Form_Load);
  Bind("cmdOk", Ev::Click, &frmEnergyChange::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmEnergyChange::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
}

void frmEnergyChange::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5"});
  DisableOkAndPrint();
}

void frmEnergyChange::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const std::string& text1 = ctl("Text1").Text();
    const std::string& text2 = ctl("Text2").Text();
    const std::string& text3 = ctl("Text3").Text();
    if (text1.empty() || text2.empty() || text3.empty()) {
      MsgBox("You must enter valid data into all required boxes.", Icon::None, kTitle);
      return;
    }
    // Only the mass has to be positive; a falling temperature gives a
    // negative heat change.
    if (CSng(text1) <= 0) {
      MsgBox("You must enter a positive amount.", Icon::None, kTitle);
      return;
    }
    const Single mass = CSng(text1);
    const Single change = CSng(text2);
    const Single specificHeat = CSng(text3);
    const Single heat = mass * change * specificHeat;
    ctl("Text4").SetText(FormatNumber(heat, 3));
    ctl("Text5").SetText(Str(mass) + " * " + Str(change) + " * " + Str(specificHeat));
  });
}

void frmEnergyChange::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
