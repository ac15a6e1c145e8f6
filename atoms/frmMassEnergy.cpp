#include "atoms/frmMassEnergy.h"

#include <utility>

namespace orv {

namespace {

constexpr Rect Prompt(int row) { return {16, 54 + row * 36, 236, 22}; }
constexpr Rect Box(int row) { return {256, 50 + row * 36, 168, 26}; }

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label,
     .name = "Label6",
     .caption = "Enter the following data from a balanced equation.",
     .rect = {16, 16, 408, 22},
     .flags = kBold},
    {.kind = Kind::Label, .name = "Label1", .caption = "Coefficient for material in question", .rect = Prompt(0)},
    {.kind = Kind::TextBox, .name = "Text1", .rect = Box(0), .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label2", .caption = "Grams of material", .rect = Prompt(1)},
    {.kind = Kind::TextBox, .name = "Text2", .rect = Box(1), .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label3", .caption = "Molecular weight of material", .rect = Prompt(2)},
    {.kind = Kind::TextBox, .name = "Text3", .rect = Box(2), .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label4", .caption = "kJ gained / released", .rect = Prompt(3)},
    {.kind = Kind::TextBox, .name = "Text4", .rect = Box(3), .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label5", .caption = "The heat energy is ", .rect = Prompt(4)},
    {.kind = Kind::TextBox, .name = "Text5", .rect = Box(4), .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {16, 236, 408, 26}, .flags = kDisabled},
    {.kind = Kind::Label,
     .name = "Label7",
     .caption = "This value is negative if energy is given off.",
     .rect = {16, 268, 408, 22}},

    OkButton({16, 306, 84, 30}, kOkTip),
    ClearButton({108, 306, 84, 30}),
    CancelButton({200, 306, 84, 30}),
    PrintButton({292, 306, 84, 30}),
    HelpButton({392, 308, 32, 26}),
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

void frmMassEnergy::Form_Load() { EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"}); }

void frmMassEnergy::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6"});
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
