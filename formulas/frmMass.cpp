#include "formulas/frmMass.h"

#include <string>

namespace orv {

namespace {

// The coefficient boxes take digits only.
constexpr KeyFilter kFilterDigits{"", kTitle};

// clang-format off
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter data from a BALANCED equation in all boxes except the gram entry you wish to find.", .rect = {20, 14, 648, 22}},
    {.kind = Kind::Label, .name = "Label15", .caption = "Coefficient for the reactant.", .rect = {20, 52, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text14", .rect = {236, 48, 96, 26}, .toolTip = "Enter the coefficient of one of the reactant molecules.", .filter = &kFilterDigits},
    {.kind = Kind::Label, .name = "Label2", .caption = "Grams of the reactant", .rect = {20, 88, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {236, 84, 96, 26}, .toolTip = "Enter a valid number unless you wish to find this value.", .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label3", .caption = "Molecular weight of the reactant", .rect = {20, 124, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text6", .rect = {236, 120, 96, 26}, .toolTip = "Enter the molecular weight of the reactant molecule.", .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label18", .caption = "Coefficient for the product.", .rect = {356, 52, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text17", .rect = {572, 48, 96, 26}, .toolTip = "Enter the coefficient of the other molecule.", .filter = &kFilterDigits},
    {.kind = Kind::Label, .name = "Label4", .caption = "Grams of the product", .rect = {356, 88, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text4", .rect = {572, 84, 96, 26}, .toolTip = "Enter a valid number if other gram entry is empty or leave empty if you wish to find this value.", .filter = &kFilterSignsPointE},
    {.kind = Kind::Label, .name = "Label5", .caption = "Molecular weight of the product", .rect = {356, 124, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text9", .rect = {572, 120, 96, 26}, .toolTip = "Enter the molecular weight of the other molecule.", .filter = &kFilterPoint},
    {.kind = Kind::Label, .name = "Label14", .caption = "The result is ", .rect = {20, 172, 210, 22}},
    {.kind = Kind::TextBox, .name = "Text13", .rect = {236, 168, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label22", .caption = "grams", .rect = {404, 172, 80, 22}},
    {.kind = Kind::TextBox, .name = "Text2", .rect = {20, 206, 648, 26}, .flags = kDisabled},
    OkButton({20, 252, 80, 30}, kOkTip),
    ClearButton({108, 252, 80, 30}),
    CancelButton({196, 252, 80, 30}),
    PrintButton({284, 252, 80, 30}),
    HelpButton({636, 254, 32, 26}),
};
// clang-format on

constexpr std::string_view kHelp =
    "Once an equation is balanced, you can determine a couple of important quantities. For example, you can find "
    "out how many grams of a substance are required to produce a certain quantity of another substance. You can "
    "determine how many grams of a substance are produced from a specific amount of a reactant.  ";

constexpr std::string_view kInputBoxes[] = {"Text14", "Text1", "Text6", "Text17", "Text4", "Text9"};

}  // namespace

frmMass::frmMass(Program& program)
    : CalculatorScreen(program, {"frmMass", "Mass - Mass Relationships", 688, 300}, kControls,
                       {"frmReactionChoice", "Text14", kHelp}) {
  Bind("Form", Ev::Load, &frmMass::Form_Load);
  Bind("cmdOk", Ev::Click, &frmMass::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmMass::cmdClear_Click);
  for (std::string_view box : kInputBoxes) EnterRunsOk(box);
}

void frmMass::ClearBoxes() {
  ctl("Text1").SetEnabled(true);
  ctl("Text4").SetEnabled(true);
  EmptyBoxes({"Text1", "Text2", "Text4", "Text6", "Text9", "Text13", "Text14", "Text17"});
}

void frmMass::Form_Load() {
  ClearBoxes();
  ctl("Label14").SetCaption("The result is ");
  ctl("Label22").SetCaption("grams");
  DisableOkAndPrint();
}

void frmMass::cmdClear_Click() {
  ClearBoxes();
  ctl("Text14").SetFocus();
}

// The tests compare text in character order. A text that begins with the
// point is left to the second test, which is there for it.
bool frmMass::WeightPasses(const Control& box) {
  const std::string& text = box.Text();
  if (text.empty() || (text <= "0" && Left(text, 1) != ".")) {
    MsgBox("You must enter a valid number for molecular weight.", Icon::None, kTitle);
    return false;
  }
  if (text < "1" && Left(text, 1) != "0") {
    MsgBox("You must enter a 0 in front of the decimal point for numbers less than 1", Icon::Information, kTitle);
    return false;
  }
  return true;
}

void frmMass::cmdOk_Click() {
  Trapped(kTrapDataEntry, [&] {
    Control& Text1 = ctl("Text1");
    Control& Text4 = ctl("Text4");
    Control& Text6 = ctl("Text6");
    Control& Text9 = ctl("Text9");
    Control& Text14 = ctl("Text14");
    Control& Text17 = ctl("Text17");

    Single grams;
    if (!Text1.Text().empty()) {
      grams = CSng(Text1.Text());
    } else if (!Text4.Text().empty()) {
      grams = CSng(Text4.Text());
    }
    if (Text14.Text() == "0" || Text14.Text().empty()) Text14.SetText("1");
    if (Text17.Text() == "0" || Text17.Text().empty()) Text17.SetText("1");
    if (!Text1.Text().empty() && !Text4.Text().empty()) {
      MsgBox("You must leave one of the gram boxes empty.", Icon::None, kTitle);
      return;
    }
    if (Text1.Text().empty() && Text4.Text().empty()) {
      MsgBox("You must enter data in one of the gram boxes.", Icon::None, kTitle);
      return;
    }
    if (!WeightPasses(Text6) || !WeightPasses(Text9)) return;

    const Double reactantWeight = CDbl(Text6.Text());
    const Double productWeight = CDbl(Text9.Text());
    const Double reactantCoefficient = CDbl(Text14.Text());
    const Double productCoefficient = CDbl(Text17.Text());
    Single result;
    std::string working;
    if (Text4.Text().empty()) {
      const Double ratio = productCoefficient / reactantCoefficient;
      const Double moles = grams / reactantWeight;
      const Double product = moles * ratio;
      result = Single(Double(product * productWeight));
      working = "(" + Text1.Text() + " / " + Text6.Text() + ") * (" + Text17.Text() + " / " + Text14.Text() + ") * " +
                Text9.Text();
    } else {
      const Double ratio = reactantCoefficient / productCoefficient;
      const Double moles = grams / productWeight;
      const Double product = moles * ratio;
      result = Single(Double(product * reactantWeight));
      working = "(" + Text4.Text() + " / " + Text9.Text() + ") * (" + Text14.Text() + " / " + Text17.Text() + ") * " +
                Text6.Text();
    }
    ctl("Text13").SetText(FormatNumber(result, 3));
    ctl("Text2").SetText(working);
    ctl("Label14").SetCaption("The result is ");
    ctl("Label22").SetCaption("grams");
  });
}

}  // namespace orv
