#include "solutions/frmEquilibriumConstant.h"

namespace orv {

namespace {

// This screen speaks under its own title, in its messages and its trap.
constexpr std::string_view kScreenTitle = "Equilibrium constant.";

constexpr std::string_view kHelp =
    "The equilibrium  constant shows the extent to which the reactants are converted into products. If the constant "
    "is equal to 1, then the reaction is at equilibrium and the amount of reactants being formed is the same as the "
    "amount of products being formed. A large value means that most of the reactants are being converted into "
    "products. A small value means that only a small amount of reactant is being converted into a product. ";

constexpr KeyFilter kCoefficientFilter{"", kScreenTitle};
constexpr KeyFilter kConcentrationFilter{"+-.E", kScreenTitle};
constexpr Form::Trap kTrapMissing{"Missing data.", Icon::None, kScreenTitle};

constexpr std::string_view kCoefficientTip = "Be sure to enter all coefficients even if they are 1's.";
constexpr std::string_view kMolarityTip = "Enter the molarity.";
constexpr std::string_view kConcentrationMissing =
    "You must enter valid numeric data into the reactant concentration box";

constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .rect = {16, 10, 560, 40}},
    {.kind = Kind::Frame, .name = "Frame1", .caption = "Reactants (maximum of 2)", .rect = {16, 58, 276, 164}},
    {.kind = Kind::Label,
     .name = "Label3",
     .caption = "1st coefficient",
     .rect = {12, 30, 160, 22},
     .container = "Frame1"},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {176, 26, 88, 26},
     .toolTip = kCoefficientTip,
     .container = "Frame1",
     .filter = &kCoefficientFilter},
    {.kind = Kind::Label,
     .name = "Label6",
     .caption = "1st concentration (M)",
     .rect = {12, 62, 160, 22},
     .container = "Frame1"},
    {.kind = Kind::TextBox,
     .name = "Text5",
     .rect = {176, 58, 88, 26},
     .toolTip = kMolarityTip,
     .container = "Frame1",
     .filter = &kConcentrationFilter},
    {.kind = Kind::Label,
     .name = "Label4",
     .caption = "2nd Coefficient",
     .rect = {12, 94, 160, 22},
     .container = "Frame1"},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {176, 90, 88, 26},
     .toolTip = kCoefficientTip,
     .container = "Frame1",
     .filter = &kCoefficientFilter},
    {.kind = Kind::Label,
     .name = "Label5",
     .caption = "2nd Concentration (M)",
     .rect = {12, 126, 160, 22},
     .container = "Frame1"},
    {.kind = Kind::TextBox,
     .name = "Text4",
     .rect = {176, 122, 88, 26},
     .toolTip = kMolarityTip,
     .container = "Frame1",
     .filter = &kConcentrationFilter},
    {.kind = Kind::Frame, .name = "Frame2", .caption = "Products (maximum of 2)", .rect = {300, 58, 276, 164}},
    {.kind = Kind::Label,
     .name = "Label9",
     .caption = "1st coefficient",
     .rect = {12, 30, 160, 22},
     .container = "Frame2"},
    {.kind = Kind::TextBox,
     .name = "Text8",
     .rect = {176, 26, 88, 26},
     .toolTip = kCoefficientTip,
     .container = "Frame2",
     .filter = &kCoefficientFilter},
    {.kind = Kind::Label,
     .name = "Label12",
     .caption = "1st concentration (M)",
     .rect = {12, 62, 160, 22},
     .container = "Frame2"},
    {.kind = Kind::TextBox,
     .name = "Text11",
     .rect = {176, 58, 88, 26},
     .toolTip = kMolarityTip,
     .container = "Frame2",
     .filter = &kConcentrationFilter},
    {.kind = Kind::Label,
     .name = "Label10",
     .caption = "2nd coefficient",
     .rect = {12, 94, 160, 22},
     .container = "Frame2"},
    {.kind = Kind::TextBox,
     .name = "Text9",
     .rect = {176, 90, 88, 26},
     .toolTip = kCoefficientTip,
     .container = "Frame2",
     .filter = &kCoefficientFilter},
    {.kind = Kind::Label,
     .name = "Label13",
     .caption = "2nd concentration (M)",
     .rect = {12, 126, 160, 22},
     .container = "Frame2"},
    {.kind = Kind::TextBox,
     .name = "Text12",
     .rect = {176, 122, 88, 26},
     .toolTip = kMolarityTip,
     .container = "Frame2",
     .filter = &kConcentrationFilter},
    {.kind = Kind::Label, .name = "Label2", .caption = "The equilibrium constant is ", .rect = {16, 242, 220, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {240, 238, 200, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text14", .rect = {16, 274, 560, 26}, .flags = kDisabled},
    OkButton({16, 318, 80, 30}, kOkTip),
    ClearButton({104, 318, 80, 30}),
    CancelButton({192, 318, 80, 30}),
    PrintButton({280, 318, 80, 30}),
    HelpButton({544, 320, 32, 26}),
};

constexpr std::string_view kInputs[] = {"Text2", "Text5", "Text3", "Text4", "Text8", "Text11", "Text9", "Text12"};

// A coefficient that is empty or compares at or below "0" as text becomes 1.
void DefaultCoefficient(Control& box) {
  if (box.Text() <= "0" || box.Text().empty()) box.SetText("1");
}

// A second term that is empty counts as 0.
Single ReadOptional(const Control& box) { return box.Text().empty() ? Single(0) : CSng(box.Text()); }

}  // namespace

frmEquilibriumConstant::frmEquilibriumConstant(Program& program)
    : CalculatorScreen(program, {"frmEquilibriumConstant", "Equilibrium Constant", 592, 364}, kControls,
                       {"frmSolutions", "Text1", kHelp}) {
  Bind("Form", Ev::Load, &frmEquilibriumConstant::Form_Load);
  Bind("cmdOk", Ev::Click, &frmEquilibriumConstant::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmEquilibriumConstant::cmdClear_Click);
  // The result box is the designated box; the first concentration enables
  // the buttons as well.
  Bind("Text5", Ev::Change, &frmEquilibriumConstant::Designated_Change);
  for (std::string_view box : kInputs) EnterRunsOk(box);
}

void frmEquilibriumConstant::Form_Load() {
  ctl("Label1").SetCaption(
      "Enter the coefficients and concentrations for each\r\n"
      "reactant and product from a BALANCED equation.");
  EmptyBoxes(kInputs);
  EmptyBoxes({"Text1", "Text14"});
  DisableOkAndPrint();
}

// The messages don't end the routine: each test speaks and the next runs. A
// number that is still missing ends it in the trap.
void frmEquilibriumConstant::cmdOk_Click() {
  Trapped(kTrapMissing, [&] {
    Control& coef1 = ctl("Text2");
    Control& conc1 = ctl("Text5");
    Control& coef2 = ctl("Text3");
    Control& conc2 = ctl("Text4");
    Control& prodCoef1 = ctl("Text8");
    Control& prodConc1 = ctl("Text11");
    Control& prodCoef2 = ctl("Text9");
    Control& prodConc2 = ctl("Text12");

    DefaultCoefficient(coef1);
    if (coef1.Text().empty() && conc1.Text().empty()) {
      MsgBox("You must enter valid numeric data into the reactant boxes.", Icon::None, kScreenTitle);
    }
    if (!coef1.Text().empty() && conc1.Text().empty()) MsgBox(kConcentrationMissing, Icon::None, kScreenTitle);
    if (!coef2.Text().empty() && conc2.Text().empty()) MsgBox(kConcentrationMissing, Icon::None, kScreenTitle);
    DefaultCoefficient(prodCoef1);
    if (prodCoef1.Text().empty() || prodConc1.Text().empty()) {
      MsgBox("You must enter valid numeric data into at least 1 product box", Icon::None, kScreenTitle);
    }
    if (!prodCoef1.Text().empty() && prodConc1.Text().empty()) {
      MsgBox(kConcentrationMissing, Icon::None, kScreenTitle);
    }

    const Single a1 = CSng(coef1.Text());
    const Single r1 = CSng(conc1.Text());
    const Single b1 = CSng(prodCoef1.Text());
    const Single p1 = CSng(prodConc1.Text());
    const Single a2 = ReadOptional(coef2);
    const Single r2 = ReadOptional(conc2);
    const Single b2 = ReadOptional(prodCoef2);
    const Single p2 = ReadOptional(prodConc2);

    const Single denominator = coef2.Text().empty() ? Single(Pow(r1, a1)) : Single(Pow(r2, a2) * Pow(r1, a1));
    const Single numerator = prodCoef2.Text().empty() ? Single(Pow(p1, b1)) : Single(Pow(p2, b2) * Pow(p1, b1));
    const Single k = numerator / denominator;
    ctl("Text1").SetText(Format(k, "Scientific"));
    ctl("Text14").SetText(Str(numerator) + " / " + Str(denominator));
  });
}

void frmEquilibriumConstant::cmdClear_Click() {
  EmptyBoxes(kInputs);
  EmptyBoxes({"Text1", "Text14"});
  ctl("Text2").SetFocus();
}

}  // namespace orv
