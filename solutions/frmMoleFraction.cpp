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
    {Kind::Label, "Label5", "Enter the mass and molecular weight for the solute and the solvent.", {16, 12, 448, 22}},
    {Kind::Label, "Label1", "Mass of solute", {16, 48, 244, 22}},
    {Kind::TextBox, "Text1", "", {264, 44, 200, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label2", "Molecular weight of solute", {16, 84, 244, 22}},
    {Kind::TextBox, "Text2", "", {264, 80, 200, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "Mass of solvent", {16, 120, 244, 22}},
    {Kind::TextBox, "Text3", "", {264, 116, 200, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label4", "Molecular weight of solvent", {16, 156, 244, 22}},
    {Kind::TextBox, "Text4", "", {264, 152, 200, 26}, {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label6", "Mole Fraction", {16, 200, 244, 22}},
    {Kind::TextBox, "Text6", "", {264, 196, 200, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label7", "Mole Percent", {16, 236, 244, 22}},
    {Kind::TextBox, "Text7", "", {264, 232, 200, 26}, {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text5", "", {16, 272, 448, 26}, {}, {}, -1, kDisabled},
    {Kind::Button, "cmdOk", "Ok", {16, 316, 80, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {104, 316, 80, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {192, 316, 80, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {280, 316, 80, 30}},
    {Kind::Button, "cmdHelp", "?", {432, 318, 32, 26}, "Press for help", {}, -1, kSmall},
};

}  // namespace

// No parent: Cancel only unloads the screen.
frmMoleFraction::frmMoleFraction(Program& program)
    : CalculatorScreen(program, {"frmMoleFraction", "Mole Fraction / Percent", 480, 362}, kControls, {"", "", kHelp}) {
  Bind("Form", Ev::Load, &frmMoleFraction::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMoleFraction::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMoleFraction::cmdClear_Click);
}

void frmMoleFraction::Form_Load() {
  for (const char* box : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) ctl(box).SetText("");
}

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
  for (const char* box : {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"}) ctl(box).SetText("");
  ctl("Text1").SetFocus();
}

}  // namespace orv
