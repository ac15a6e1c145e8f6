#include "atoms/frmMassEnergy.h"

#include <utility>

namespace orv {

namespace {

constexpr Rect Prompt(int row) { return {16, 54 + row * 36, 236, 22}; }
constexpr Rect Box(int row) { return {256, 50 + row * 36, 168, 26}; }

constexpr ControlSpec kControls[] = {
    {Kind::Label, "Label6", "Enter the following data from a balanced equation.", {16, 16, 408, 22}, {}, {}, -1, kBold},
    {Kind::Label, "Label1", "Coefficient for material in question", Prompt(0)},
    {Kind::TextBox, "Text1", "", Box(0), {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label2", "Grams of material", Prompt(1)},
    {Kind::TextBox, "Text2", "", Box(1), {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label3", "Molecular weight of material", Prompt(2)},
    {Kind::TextBox, "Text3", "", Box(2), {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label4", "kJ gained / released", Prompt(3)},
    {Kind::TextBox, "Text4", "", Box(3), {}, {}, -1, 0, &kFilterPoint},
    {Kind::Label, "Label5", "The heat energy is ", Prompt(4)},
    {Kind::TextBox, "Text5", "", Box(4), {}, {}, -1, kDisabled},
    {Kind::TextBox, "Text6", "", {16, 236, 408, 26}, {}, {}, -1, kDisabled},
    {Kind::Label, "Label7", "This value is negative if energy is given off.", {16, 268, 408, 22}},

    {Kind::Button, "cmdOk", "Ok", {16, 306, 84, 30}, "Press to calculate your answer.", {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {108, 306, 84, 30}},
    {Kind::Button, "cmdCancel", "Cancel", {200, 306, 84, 30}, {}, {}, -1, kCancel},
    {Kind::Button, "cmdPrint", "Print", {292, 306, 84, 30}},
    {Kind::Button, "cmdHelp", "?", {392, 308, 32, 26}, "Press for help", {}, -1, kSmall},
};

constexpr std::string_view kHelp =
    "When moles of two substances react together, heat is either gained or lost. Which of the two happens  depends "
    "upon the substances reacting. If the product is more stable by releasing energy then that is  what will "
    "happen. If stability is greater when energy is absorbed that is also what will happen.  From  the data tables, "
    "you need to determine the heat of formation of the reactants and the heat of formation of the products. The "
    "difference between the two is what you enter for the kJ added or released. This quantity  is for a mole of "
    "the substance in question. Your problem usually deals with amounts other than moles.  ";

}  // namespace

frmMassEnergy::frmMassEnergy(Program& program)
    : CalculatorScreen(program, {"frmMassEnergy", "Mass - Energy", 440, 352}, kControls, {"frmMoleChoice", "", kHelp}) {
  Bind("Form", Ev::Load, &frmMassEnergy::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMassEnergy::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMassEnergy::cmdClear_Click);
}

void frmMassEnergy::Form_Load() {
  for (int i = 1; i <= 6; ++i) ctl("Text" + std::to_string(i)).SetText("");
}

void frmMassEnergy::cmdClear_Click() {
  for (int i = 1; i <= 6; ++i) ctl("Text" + std::to_string(i)).SetText("");
  ctl("Text1").SetFocus();
}

void frmMassEnergy::cmdOk_Click() {
  Trapped(kTrapWordsCritical, [&] {
    const std::pair<std::string_view, std::string_view> kRequired[] = {
        {"Text1", "You must enter a valid coefficient."},
        {"Text2", "You must enter a valid number of grams."},
        {"Text3", "You must enter a valid molecular weight."},
        {"Text4", "You must enter a valid amount of energy."}};
    for (const auto& [box, message] : kRequired) {
      if (ctl(box).Text().empty()) {
        MsgBox(message, Icon::Information, kTitle);
        return;
      }
    }
    const Integer c = CInt(ctl("Text1").Text());
    const Single g = CSng(ctl("Text2").Text());
    const Single m = CSng(ctl("Text3").Text());
    const Single k = CSng(ctl("Text4").Text());
    const Single energy = Expr(g) / m * k / Single(c);
    ctl("Text5").SetText(FormatNumber(energy, 3));
    ctl("Text6").SetText(Str(g) + " / " + Str(m) + " * " + Str(k) + " / " + Str(c));
  });
}

}  // namespace orv
