#include "gases/frmRaoults.h"

#include "data/store.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "When you add a solute to a solvent like water, you affect the rate at which the water molecules can evaporate. "
    "The solute molecules block part of the surface area through which the solvent molecules can leave. Knowing the  "
    "mole fraction of the solvent and the vapor pressure of the solvent at a particular  temperature, you can "
    "calculate the new vapor pressure of the solvent. ";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label2", .caption = "Enter the temperature in Celsius.", .rect = {20, 20, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {330, 16, 150, 26}, .filter = &kFilterMinusPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Enter the mass of solute in grams.", .rect = {20, 56, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {330, 52, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label4",
     .caption = "Enter the molecular weight of the solute.",
     .rect = {20, 92, 300, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {330, 88, 150, 26},
     .toolTip = "Enter a valid number.",
     .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "Enter the mass of the solvent in grams.",
     .rect = {20, 128, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {330, 124, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label,
     .name = "Label6",
     .caption = "Enter the molecular weight of the solvent.",
     .rect = {20, 164, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {330, 160, 150, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label7", .caption = "The vapor pressure is ", .rect = {20, 204, 300, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {330, 200, 150, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {20, 238, 460, 26}, .flags = kDisabled},
    OkButton({20, 282, 80, 30}),
    ClearButton({108, 282, 80, 30}),
    CancelButton({196, 282, 80, 30}),
    PrintButton({284, 282, 80, 30}),
    HelpButton({448, 284, 32, 26}),
};

constexpr std::string_view kBoxes[] = {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"};

}  // namespace

frmRaoults::frmRaoults(Program& program)
    : CalculatorScreen(program, {"frmRaoults", "Raoult's Law", 500, 328}, kControls, {"frmGasLaws", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmRaoults::Form_Load);
  Bind("cmdOk", Ev::Click, &frmRaoults::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmRaoults::cmdClear_Click);
  for (const char* box : {"Text1", "Text2", "Text3", "Text4", "Text5"}) EnterRunsOk(box);
}

void frmRaoults::Form_Load() {
  EmptyBoxes(kBoxes);
  DisableOkAndPrint();
}

void frmRaoults::cmdOk_Click() {
  Trapped(kTrapErrorInDataEntry, [&] {
    // Each box in turn: first its presence, then a positive value.
    struct Check {
      const char* box;
      std::string_view missing;
      bool positive;
    };
    constexpr Check kChecks[] = {
        {"Text1", "You must enter a temperature.", false},
        {"Text2", "You must enter a mass for solutes.", true},
        {"Text3", "You must enter the molecular weight of the solute.", true},
        {"Text4", "You must enter the mass of the solvent.", true},
        {"Text5", "You must enter the molecular weight of the solvent.", true},
    };
    for (const Check& check : kChecks) {
      const std::string& text = ctl(check.box).Text();
      if (text.empty()) {
        MsgBox(check.missing, Icon::Information, kTitle);
        return;
      }
      if (check.positive && CSng(text) <= 0) {
        MsgBox("You must enter a positive number.", Icon::Information, kTitle);
        return;
      }
    }
    const Single solute = CDbl(ctl("Text2").Text()) / CDbl(ctl("Text3").Text());
    const Single solvent = CDbl(ctl("Text4").Text()) / CDbl(ctl("Text5").Text());
    // The vapor pressure of the solvent at the temperature as typed; no row
    // leaves it at zero.
    Single pure;
    if (const auto found = data::FindVaporPressureByText(Store(program()), ctl("Text1").Text())) {
      pure = Expr(CDbl(*found));
    }
    const Single total = solvent + solute;
    const Single fraction = solvent / total;
    const Single pressure = pure * fraction;
    ctl("Text6").SetText(FormatNumber(pressure, 3));
    ctl("Text7").SetText(Str(pure) + " * " + Str(solvent) + " / " + "(" + Str(solute) + " + " + Str(solvent) + ")");
  });
}

void frmRaoults::cmdClear_Click() {
  EmptyBoxes(kBoxes);
  ctl("Text1").SetFocus();
}

}  // namespace orv
