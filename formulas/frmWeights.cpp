#include "formulas/frmWeights.h"

#include "data/store.h"
#include "formulas/formula_module.h"
#include "shell/rich_text.h"

namespace orv {

namespace {

constexpr int kCompositionBoxes = 6;

// clang-format off
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "lblWeights1", .caption = "Enter Formula", .rect = {20, 22, 220, 22}},
    {.kind = Kind::RichText, .name = "RichTextBox1", .rect = {244, 16, 256, 30}, .toolTip = "Here is an example of an entry: 2Mn(NO3)2.10H20"},
    {.kind = Kind::Label, .name = "lblWeights2", .caption = "The weight is", .rect = {20, 62, 220, 22}},
    {.kind = Kind::TextBox, .name = "txtWeights2", .rect = {244, 58, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label1", .caption = "One mole of the substance weighs ", .rect = {20, 98, 220, 22}},
    {.kind = Kind::TextBox, .name = "Text1", .rect = {244, 94, 160, 26}, .flags = kDisabled},
    {.kind = Kind::Label, .name = "Label2", .caption = "grams", .rect = {412, 98, 88, 22}},
    {.kind = Kind::CheckBox, .name = "chk1", .caption = "Check if you want % composition (6 elements  maximum)", .rect = {20, 136, 480, 24}},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {20, 166, 72, 26}, .index = 0, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {100, 166, 72, 26}, .index = 1, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {180, 166, 72, 26}, .index = 2, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {260, 166, 72, 26}, .index = 3, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {340, 166, 72, 26}, .index = 4, .flags = kDisabled},
    {.kind = Kind::TextBox, .name = "txtComposition", .rect = {420, 166, 80, 26}, .index = 5, .flags = kDisabled},
    {.kind = Kind::CheckBox, .name = "chk2", .caption = "Check for % Hydrate", .rect = {20, 206, 220, 24}},
    {.kind = Kind::TextBox, .name = "txtHydrate", .rect = {244, 204, 160, 26}, .flags = kDisabled},
    OkButton({20, 252, 80, 30}, kOkTip),
    ClearButton({108, 252, 80, 30}),
    {.kind = Kind::Button, .name = "cmdCancel", .caption = "Cancel", .rect = {196, 252, 80, 30}},
    PrintButton({284, 252, 80, 30}),
    HelpButton({468, 254, 32, 26}),
};
// clang-format on

constexpr std::string_view kHelp =
    "The molecular weight, as the name implies, is the weight of the molecule. To determine the weight of the "
    "molecule,  you must add together the weights of all the atoms in that molecule. The first step is to determine "
    "the number of each kind of atom. That sometimes can be a little confusing. Once  you have the total weight of "
    "the molecule and the number of each type of atom, you can determine the percentage composition of the "
    "molecule. It will tell you what percent of the molecule is made up by each type of atom. If the molecule "
    "contains H2O, you can determine that as well. This is the percent hydrate. It will tell you what percent of "
    "the molecule is made up of H2O.";

FormulaModule& Formulas(Program& program) { return program.Module<FormulaModule>(); }

bool IsLetter(int c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// The weight as shown, read back as a number: without its group separators.
Double ReadBack(std::string_view shown) {
  std::string plain;
  for (char ch : shown) {
    if (ch != ',') plain += ch;
  }
  return CDbl(plain);
}

}  // namespace

frmWeights::frmWeights(Program& program)
    : CalculatorScreen(program, {"frmWeights", "Molecular Weights", 520, 300}, kControls,
                       {"frmWeightChoice", "RichTextBox1", kHelp}) {
  Bind("Form", Ev::Load, &frmWeights::Form_Load);
  Bind("RichTextBox1", Ev::KeyDown, &frmWeights::RichTextBox1_KeyDown);
  Bind("RichTextBox1", Ev::KeyPress, &frmWeights::RichTextBox1_KeyPress);
  Bind("RichTextBox1", Ev::KeyUp, &frmWeights::RichTextBox1_KeyUp);
  Bind("cmdOk", Ev::Click, &frmWeights::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmWeights::cmdClear_Click);
  Bind("cmdCancel", Ev::Click, &frmWeights::cmdCancel_Click);
}

void frmWeights::ResetTypingState() {
  InCoefficient = true;
  AfterElement = true;
  InHydrate = false;
}

// What loading and Clear both empty; Clear empties one box more, which it
// names, between the result and the formula.
void frmWeights::EmptyScreen(std::string_view alsoEmpty) {
  FormulaModule& m = Formulas(program());
  EmptyBoxes({"RichTextBox1", "txtWeights2"});
  if (!alsoEmpty.empty()) ctl(alsoEmpty).SetText("");
  m.FormulaText = "";
  ctl("chk1").SetValue(false);
  ctl("chk2").SetValue(false);
  for (int k = 0; k < kCompositionBoxes; ++k) ctl("txtComposition", k).SetText("");
  ctl("txtHydrate").SetText("");
  ResetTypingState();
  HydrateCount = "0";
  m.FormulaCoefficient = "0";
  m.ClearWeights();
}

void frmWeights::Form_Load() {
  Trapped(kTrapWordsInfo, [&] {
    EmptyScreen({});
    data::FillElements(Store(program()));
    DisableOkAndPrint();
  });
}

// Digits before the first letter or bracket are the coefficient, digits
// behind an element are lowered, a point is raised and starts the water of a
// hydrate. Everything else is refused with a beep.
void frmWeights::RichTextBox1_KeyPress(int& KeyAscii) {
  FormulaModule& m = Formulas(program());
  Control& box = ctl("RichTextBox1");
  const bool digit = KeyAscii >= '0' && KeyAscii <= '9';
  const std::string c = Chr(KeyAscii);
  if (digit && InCoefficient) {
    box.SetSelCharOffset(RichText::kOnLine);
    m.FormulaCoefficient += c;
  } else if (digit && InHydrate) {
    box.SetSelCharOffset(AfterElement ? RichText::kLowered : RichText::kOnLine);
    HydrateCount += c;
    m.FormulaText += c;
  } else if (digit) {
    box.SetSelCharOffset(RichText::kLowered);
    m.FormulaText += c;
  } else if (IsLetter(KeyAscii)) {
    AfterElement = true;
    InCoefficient = false;
    box.SetSelCharOffset(RichText::kOnLine);
    m.FormulaText += c;
  } else if (KeyAscii == '.') {
    InHydrate = true;
    AfterElement = false;
    box.SetSelCharOffset(RichText::kRaised);
    m.FormulaText += c;
  } else if (KeyAscii == '(' || KeyAscii == ')') {
    InCoefficient = false;
    InHydrate = false;
    box.SetSelCharOffset(RichText::kOnLine);
    m.FormulaText += c;
  } else {
    KeyAscii = 0;
    Beep();
  }
}

// Backspace takes the last character off the collected formula only: its
// KeyPress is refused, so the box keeps showing it.
void frmWeights::RichTextBox1_KeyDown(int& KeyCode, int /*Shift*/) {
  FormulaModule& m = Formulas(program());
  if (KeyCode == kKeyBack) {
    if (!m.FormulaText.empty()) m.FormulaText = Left(m.FormulaText, Len(m.FormulaText) - 1);
  } else if (KeyCode == kKeyReturn) {
    cmdOk_Click();
  }
}

void frmWeights::RichTextBox1_KeyUp(int& /*KeyCode*/, int /*Shift*/) {
  ctl("RichTextBox1").SetSelCharOffset(RichText::kOnLine);
}

void frmWeights::Weight(const std::string& Substance, Single& Result) {
  Trapped(kTrapWordsInfo, [&] {
    if (const auto weight = data::FindMolecularWeight(Store(program()), Substance)) Result = Single(CDbl(*weight));
  });
}

void frmWeights::cmdOk_Click() {
  FormulaModule& m = Formulas(program());
  Trapped(kTrapDataEntry, [&] {
    Control& box = ctl("RichTextBox1");
    const int L = Len(box.Text());
    m.ClearWeights();
    if (box.Text().empty()) {
      MsgBox("You must enter data into the Enter Formula box.", Icon::None, kTitle);
      box.SetFocus();
      return;
    }
    if (ctl("chk1").Value() && box.Text().empty()) {
      MsgBox("A formula must be entered before % composition can be determined.", Icon::None, kTitle);
      ctl("chk1").SetValue(false);
      cmdClear_Click();
      box.SetFocus();
      return;
    }
    if (ctl("chk2").Value() && box.Text().empty()) {
      MsgBox("A formula must be entered before % hydrate can be determined.", Icon::None, kTitle);
      ctl("chk2").SetValue(false);
      cmdClear_Click();
      box.SetFocus();
      return;
    }
    if (L == 1) {
      box.SetText("");
      MsgBox("Formula must be larger than 1 character.", Icon::None, kTitle);
      cmdClear_Click();
      return;
    }

    m.ScanWeights(program().messages(), Store(program()), L, HydrateCount,
                  [this](const std::string& Substance, Single& Result) { Weight(Substance, Result); });
    if (CDbl(m.FormulaCoefficient).value() == 0) m.FormulaCoefficient = "1";

    // The weight is rounded to three decimals before the coefficient
    // multiplies it.
    const std::string W = FormatNumber(m.FormulaTotal, 3);
    const Double coefficient = CDbl(m.FormulaCoefficient);
    const Double P = ReadBack(W) * coefficient;
    if (coefficient < 2) {
      ctl("txtWeights2").SetText(W);
    } else {
      ctl("txtWeights2").SetText(Str(P));
    }
    ctl("Text1").SetText(Str(P));

    // Percent composition and percent hydrate are asked for but never
    // worked out: the check boxes are read and that is all.
    [[maybe_unused]] const bool composition = ctl("chk1").Value();
    [[maybe_unused]] const bool hydrate = ctl("chk2").Value();
    m.ClearWeights();
  });
}

void frmWeights::cmdClear_Click() {
  EmptyScreen("Text1");
  ctl("RichTextBox1").SetFocus();
}

void frmWeights::cmdCancel_Click() {
  Formulas(program()).ClearWeights();
  Unload();
  ShowForm("frmWeightChoice");
}

}  // namespace orv
