#include "energy/frmEnergyChange.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "When an object gains heat energy, the energy must have been lost by some other object. Also when an object "
    "loses heat energy, it must be gained by another object. There has to be conservation of heat energy. The heat "
    "gained or lost depends upon the mass of the object, the change in temperature, and the specific heat.  ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter the mass in grams.", .rect = {20, 22, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {304, 18, 160, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label2",
     .caption = "Temperature change in degrees Celcius.",
     .rect = {20, 58, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {304, 54, 160, 26}, .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter the specific heat.", .rect = {20, 94, 280, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {304, 90, 160, 26},
     .toolTip = "Use the chart below or one found in a textbook.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "The heat energy change is: ", .rect = {20, 138, 280, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {304, 134, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label5", .caption = "Joules", .rect = {472, 138, 68, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {20, 172, 520, 26}, .flags = kDisabled},
    OkButton({20, 216, 80, 30}, kOkTip),
    ClearButton({108, 216, 80, 30}),
    CancelButton({196, 216, 80, 30}),
    PrintButton({284, 216, 80, 30}),
    HelpButton({508, 218, 32, 26}),
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
