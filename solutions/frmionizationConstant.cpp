#include "solutions/frmionizationConstant.h"

#include <utility>

namespace orv {

namespace {

constexpr std::string_view kHelp =
    "When an ionic molecule dissolves in water, its ions separate into solution. The ionization constant is  the "
    "concentration of the products raised to their coefficients divided by the concentrations of the reactants "
    "raised to their coefficients.  The larger the ionization constant, the more of the ions that are produced "
    "before equilibrium is reached. ";

constexpr std::string_view kMolesTip = "Moles per liter.";
constexpr std::string_view kIntegerTip = "Enter an integer from a balanced equation.";

// The captions are written when the screen loads.
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label8", .rect = {16, 12, 448, 22}, .flags = kBold},
    {.kind = Kind::Label, .name = "Label1", .rect = {16, 48, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text1",
     .rect = {284, 44, 180, 26},
     .toolTip = kMolesTip,
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label5", .rect = {16, 84, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text6",
     .rect = {284, 80, 180, 26},
     .toolTip = kIntegerTip,
     .filter = &kFilterMinusPointE},
    {.kind = Kind::Label, .name = "Label2", .rect = {16, 120, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text2",
     .rect = {284, 116, 180, 26},
     .toolTip = kMolesTip,
     .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label6", .rect = {16, 156, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text7",
     .rect = {284, 152, 180, 26},
     .toolTip = kIntegerTip,
     .filter = &kFilterMinusPointE},
    {.kind = Kind::Label, .name = "Label3", .rect = {16, 192, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text3",
     .rect = {284, 188, 180, 26},
     .toolTip = kMolesTip,
     .filter = &kFilterMinusPointE},
    {.kind = Kind::Label, .name = "Label7", .rect = {16, 228, 264, 22}},
    {.kind = Kind::TextBox,
     .name = "Text8",
     .rect = {284, 224, 180, 26},
     .toolTip = kIntegerTip,
     .filter = &kFilterMinusPointE},
    {.kind = Kind::Label, .name = "Label4", .rect = {16, 268, 264, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {284, 264, 180, 26}, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "Text5", .rect = {16, 300, 448, 26}, .flags = kDisabled},
    OkButton({16, 344, 80, 30}, kOkTip),
    ClearButton({104, 344, 80, 30}),
    CancelButton({192, 344, 80, 30}),
    PrintButton({280, 344, 80, 30}),
    HelpButton({432, 346, 32, 26}),
};

constexpr std::pair<const char*, std::string_view> kCaptions[] = {
    {"Label8", "Enter all of the following data from a balanced equation."},
    {"Label1", "Enter the concentration of the reactant."},
    {"Label5", "Enter the coefficient of the reactant."},
    {"Label2", "Enter the concentration of product 1."},
    {"Label6", "Enter the coefficient of product 1."},
    {"Label3", "Enter the concentration of product 2."},
    {"Label7", "Enter the coefficient of product 2."},
    {"Label4", "The ionization constant is "},
};

// The order in which the boxes are tested.
constexpr const char* kInputs[] = {"Text1", "Text6", "Text2", "Text7", "Text3", "Text8"};

}  // namespace

frmionizationConstant::frmionizationConstant(Program& program)
    : CalculatorScreen(program, {"frmionizationConstant", "Ionization Constant", 480, 390}, kControls,
                       {"frmSolutions", "Text2", kHelp}) {
  Bind("Form", Ev::Load, &frmionizationConstant::Form_Load);
  Bind("cmdOk", Ev::Click, &frmionizationConstant::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmionizationConstant::cmdClear_Click);
  // The coefficient boxes have no Enter handler.
  EnterRunsOk("Text1");
  EnterRunsOk("Text2");
  EnterRunsOk("Text3");
}

void frmionizationConstant::Form_Load() {
  for (const auto& [label, caption] : kCaptions) ctl(label).SetCaption(std::string(caption));
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8"});
  DisableOkAndPrint();
}

void frmionizationConstant::cmdOk_Click() {
  Trapped(kTrapDataEntryCaps, [&] {
    for (const char* box : kInputs) {
      if (ctl(box).Text().empty()) {
        MsgBox("You must enter a valid number.", Icon::Information, kTitle);
        return;
      }
    }
    const std::string& reactant = ctl("Text1").Text();
    const std::string& reactantCoef = ctl("Text6").Text();
    const std::string& product1 = ctl("Text2").Text();
    const std::string& product1Coef = ctl("Text7").Text();
    const std::string& product2 = ctl("Text3").Text();
    const std::string& product2Coef = ctl("Text8").Text();
    const Single r = CSng(reactant);
    const Single n = CSng(reactantCoef);
    const Single p1 = CSng(product1);
    const Single m1 = CSng(product1Coef);
    const Single p2 = CSng(product2);
    const Single m2 = CSng(product2Coef);
    // What has dissociated: the reactant less the first product.
    const Single denominator = Pow(r, n) - Pow(p1, m1);
    const Single numerator = Pow(p2, m2) * Pow(p1, m1);
    const Single k = numerator / denominator;
    ctl("Text4").SetText(Format(k, "Scientific"));
    // The line is written from the boxes as typed, in its own shape.
    ctl("Text5").SetText("(" + product1 + " ^ " + product1Coef + " * " + product2 + " ^ " + product2Coef + ") / " +
                         "(" + reactant + " - " + product1 + " ^ " + reactantCoef + ")");
  });
}

void frmionizationConstant::cmdClear_Click() {
  EmptyBoxes({"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7", "Text8"});
  ctl("Text1").SetFocus();
}

}  // namespace orv
