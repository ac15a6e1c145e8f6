#include "solutions/frmHenrys.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "The amount of a gas that can be dissolved into a liquid depends upon the pressure exerted by the gas. The greater "
    "the pressure, the more of the gas that can be dissolved into the liquid. Carbonated beverages are a good example. "
    "CO2 is forced under pressure into the beverage. The solubility of the gas depends upon the pressure of the gas "
    "and its solubility constant. ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label2", .caption = "Enter the molality per atmosphere", .rect = {16, 20, 244, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {264, 16, 200, 26},
     .toolTip = "Molality is moles per kilogram of solvent.",
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter the pressure in atmospheres", .rect = {16, 56, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {264, 52, 200, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "The solubility is ", .rect = {16, 96, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {264, 92, 200, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {16, 132, 448, 26}, .flags = kDisabled},
    OkButton({16, 176, 80, 30}, kOkTip),
    ClearButton({104, 176, 80, 30}),
    CancelButton({192, 176, 80, 30}),
    PrintButton({280, 176, 80, 30}),
    HelpButton({432, 178, 32, 26}),
};

}  // namespace

frmHenrys::frmHenrys(Program& program)
    : CalculatorScreen(program, {"frmHenrys", "Henry's Law - Calculating Solubility", 480, 222}, kControls,
                       {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmHenrys::Form_Load);
  Bind("cmdOk", Ev::Click, &frmHenrys::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmHenrys::cmdClear_Click);
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
}

void frmHenrys::Form_Load() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  DisableOkAndPrint();
}

void frmHenrys::cmdOk_Click() {
  Trapped(kTrapWords, [&] {
    const std::string& constant = ctl("Text1").Text();
    const std::string& pressure = ctl("Text2").Text();
    if (constant == "0" || constant.empty() || pressure == "0" || pressure.empty()) {
      MsgBox("You must enter valid data into both boxes.", Icon::None, kTitle);
      return;
    }
    const Single k = CSng(constant);
    const Single p = CSng(pressure);
    const Single x = k * p;
    ctl("Text3").SetText(FormatNumber(x, 3));
    ctl("Text4").SetText(Str(k) + " * " + Str(p));
  });
}

void frmHenrys::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
