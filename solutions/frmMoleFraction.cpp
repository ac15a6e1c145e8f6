#include "solutions/frmMoleFraction.h"

namespace orv {

namespace {

constexpr std::string_view kHelp =
    " Another way to express solution concentration is through the mole fraction.  The Mole Fraction is the moles of "
    "solute divided by the sum of the moles of solute and moles of solvent.   In a solution, the total of the mole "
    "fractions must equal 1.";

constexpr std::string_view kQuantity = "You must enter a valid quantity.";
constexpr std::string_view kWeight = "You must enter a valid molecular weight.";

// No box has a Change or KeyDown handler: the buttons are enabled from the
// start and Enter only presses the default button.
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "Enter the mass and molecular weight for the solute and the solvent.",
     .rect = {16, 12, 448, 22}},
    {.kind = Kind::Label, .name = "Label1", .caption = "Mass of solute", .rect = {16, 48, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {264, 44, 200, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label2", .caption = "Molecular weight of solute", .rect = {16, 84, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {264, 80, 200, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Mass of solvent", .rect = {16, 120, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text3", .rect = {264, 116, 200, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "Molecular weight of solvent", .rect = {16, 156, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {264, 152, 200, 26}, .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label6", .caption = "Mole Fraction", .rect = {16, 200, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {264, 196, 200, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label7", .caption = "Mole Percent", .rect = {16, 236, 244, 22}},
    {.kind = Kind::TextBox, .name = "Text7", .rect = {264, 232, 200, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {16, 272, 448, 26}, .flags = kDisabled},
    OkButton({16, 316, 80, 30}, kOkTip),
    ClearButton({104, 316, 80, 30}),
    CancelButton({192, 316, 80, 30}),
    PrintButton({280, 316, 80, 30}),
    HelpButton({432, 318, 32, 26}),
};

}  // namespace

// No parent: Cancel only unloads the screen.
frmMoleFraction::frmMoleFraction(Program& program)
    : CalculatorScreen(program, {"frmMoleFraction", "Mole Fraction / Percent", 480, 362}, kControls, {"", "", kHelp}) {
  Bind("Form", Ev::Load, &frmMoleFraction::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMoleFraction::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMoleFraction::cmdClear_Click);
}

void frmMoleFraction::Form_Load() { EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}); }

void frmMoleFraction::cmdOk_Click() {
  Trapped(kTrapWordsInfo, [&] {
    if (ctl("Text1").Text().empty()) {
      MsgBox(kQuantity, Icon::Information, kTitle);
      return;
    }
    if (ctl("Text2").Text().empty()) {
      MsgBox(kWeight, Icon::Information, kTitle);
      return;
    }
    if (ctl("Text3").Text().empty()) {
      MsgBox(kQuantity, Icon::Information, kTitle);
      return;
    }
    if (ctl("Text4").Text().empty()) {
      MsgBox(kWeight, Icon::Information, kTitle);
      return;
    }
    const Single soluteMass = CSng(ctl("Text1").Text());
    const Single soluteWeight = CSng(ctl("Text2").Text());
    const Single solventMass = CSng(ctl("Text3").Text());
    const Single solventWeight = CSng(ctl("Text4").Text());
    const Single soluteMoles = soluteMass / soluteWeight;
    const Single solventMoles = solventMass / solventWeight;
    const Single fraction = soluteMoles / (solventMoles + soluteMoles);
    ctl("Text6").SetText(FormatNumber(fraction, 3));
    const Single percent = fraction * 100;
    ctl("Text7").SetText(FormatNumber(percent, 3));
    ctl("Text5").SetText(Str(soluteMoles) + " /  (" + Str(soluteMoles) + " + " + Str(solventMoles) + ")");
  });
}

void frmMoleFraction::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
