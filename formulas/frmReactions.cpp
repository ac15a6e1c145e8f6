#include "formulas/frmReactions.h"

#include <string>

#include "data/store.h"
#include "formulas/formula_module.h"
#include "shell/rich_text.h"

namespace orv {

namespace {

constexpr std::string_view kScreenTitle = "Reactions";
constexpr Form::Trap kReactionsTrap{"", Icon::None, kScreenTitle};
constexpr int kRows = FormulaModule::kSideRows;

// One row of a column: the symbol's label and the count's box.
constexpr ControlSpec SymbolLabel(std::string_view frame, std::string_view name, int k) {
  return {.kind = Kind::Label,
          .name = name,
          .rect = {16, 30 + k * 33, 54, 24},
          .container = frame,
          .index = k,
          .flags = kCenter | kBold};
}
constexpr ControlSpec CountBox(std::string_view frame, std::string_view name, int k) {
  return {.kind = Kind::TextBox,
          .name = name,
          .rect = {76, 28 + k * 33, 78, 26},
          .container = frame,
          .index = k,
          .flags = kDisabled | kRightAlign};
}

// clang-format off
constexpr ControlSpec kControls[] = {
    {.kind = Kind::Label, .name = "Label1", .caption = "Enter a chemical reaction to balance", .rect = {20, 14, 400, 22}},
    {.kind = Kind::Label, .name = "Label4", .caption = "Ex.  CO2 + H2O => C6H12O6 + O2", .rect = {20, 38, 400, 22}},
    {.kind = Kind::RichText, .name = "RichTextBox1", .rect = {20, 64, 672, 30}, .toolTip = "Be careful to enter the equation as in the example above using the = sign and the > sign."},
    {.kind = Kind::Frame, .name = "fraFrame1", .caption = "Atoms on the left", .rect = {20, 108, 170, 236}},
    SymbolLabel("fraFrame1", "Label2", 0), CountBox("fraFrame1", "Text1", 0),
    SymbolLabel("fraFrame1", "Label2", 1), CountBox("fraFrame1", "Text1", 1),
    SymbolLabel("fraFrame1", "Label2", 2), CountBox("fraFrame1", "Text1", 2),
    SymbolLabel("fraFrame1", "Label2", 3), CountBox("fraFrame1", "Text1", 3),
    SymbolLabel("fraFrame1", "Label2", 4), CountBox("fraFrame1", "Text1", 4),
    SymbolLabel("fraFrame1", "Label2", 5), CountBox("fraFrame1", "Text1", 5),
    {.kind = Kind::Frame, .name = "fraFrame2", .caption = "Atoms on the right", .rect = {204, 108, 170, 236}},
    SymbolLabel("fraFrame2", "Label3", 0), CountBox("fraFrame2", "Text2", 0),
    SymbolLabel("fraFrame2", "Label3", 1), CountBox("fraFrame2", "Text2", 1),
    SymbolLabel("fraFrame2", "Label3", 2), CountBox("fraFrame2", "Text2", 2),
    SymbolLabel("fraFrame2", "Label3", 3), CountBox("fraFrame2", "Text2", 3),
    SymbolLabel("fraFrame2", "Label3", 4), CountBox("fraFrame2", "Text2", 4),
    SymbolLabel("fraFrame2", "Label3", 5), CountBox("fraFrame2", "Text2", 5),
    // The hints: read-only boxes, filled by Form_Load.
    {.kind = Kind::Label, .name = "txtReactions2", .rect = {392, 116, 300, 30}, .flags = kBorder},
    {.kind = Kind::Label, .name = "txtReactions3", .rect = {392, 154, 300, 30}, .flags = kBorder},
    {.kind = Kind::Label, .name = "txtReactions4", .rect = {392, 192, 300, 30}, .flags = kBorder},
    {.kind = Kind::Label, .name = "txtReactions5", .rect = {392, 230, 300, 30}, .flags = kBorder},
    {.kind = Kind::Label, .name = "txtReactions6", .rect = {392, 268, 300, 30}, .flags = kBorder},
    OkButton({20, 362, 80, 30}, kOkTip),
    ClearButton({108, 362, 80, 30}),
    CancelButton({196, 362, 80, 30}),
    PrintButton({284, 362, 80, 30}),
    HelpButton({660, 364, 32, 26}),
};
// clang-format on

constexpr std::string_view kHelp =
    "Balancing an equation requires counting how many of each type of atom there is on each side of the equal "
    "sign. If the number of each type of atom is not the same, then you must add the proper coefficient to the "
    "begining of the correct molecule.  Add a coefficient to the begining of a molecule and press Ok. Check the "
    "counts of atoms and if the numbers are not equal change the coefficient of that molecule or another molecule. "
    "Many times it is a matter of trial and error. ";

FormulaModule& Formulas(Program& program) { return program.Module<FormulaModule>(); }

// The signs of an equation, which the box takes as they are.
bool IsEquationSign(int c) {
  return c > 0 && c < 128 && std::string_view("=>()+. ").find(static_cast<char>(c)) != std::string_view::npos;
}

}  // namespace

frmReactions::frmReactions(Program& program)
    : CalculatorScreen(program, {"frmReactions", "Chemical Reactions", 712, 406}, kControls,
                       {"frmReactionChoice", "RichTextBox1", kHelp}) {
  Bind("Form", Ev::Load, &frmReactions::Form_Load);
  Bind("RichTextBox1", Ev::KeyPress, &frmReactions::RichTextBox1_KeyPress);
  Bind("RichTextBox1", Ev::KeyUp, &frmReactions::RichTextBox1_KeyUp);
  Bind("cmdOk", Ev::Click, &frmReactions::cmdOk_Click);
  Bind("cmdClear", Ev::Click, &frmReactions::cmdClear_Click);
}

void frmReactions::Form_Load() {
  ctl("txtReactions2").SetText("1.  Make sure all molecules are written correctly.");
  ctl("txtReactions3").SetText("2.  Correct reactants and products?");
  ctl("txtReactions4").SetText("3.  Change only the coefficients!");
  ctl("txtReactions5").SetText("4.  Do not change subscripts!");
  ctl("txtReactions6").SetText("5.  Do not change molecular formula!");
  DisableOkAndPrint();
}

// Digits and letters stand on the line and are collected; the signs of an
// equation pass; anything else, Backspace too, is dropped without a sound.
void frmReactions::RichTextBox1_KeyPress(int& KeyAscii) {
  const bool digit = KeyAscii >= '0' && KeyAscii <= '9';
  const bool letter = (KeyAscii >= 'A' && KeyAscii <= 'Z') || (KeyAscii >= 'a' && KeyAscii <= 'z');
  if (digit || letter) {
    ctl("RichTextBox1").SetSelCharOffset(RichText::kOnLine);
    Formulas(program()).FormulaText += Chr(KeyAscii);
  } else if (KeyAscii == kKeyReturn) {
    cmdOk_Click();
  } else if (!IsEquationSign(KeyAscii)) {
    KeyAscii = 0;
  }
}

void frmReactions::RichTextBox1_KeyUp(int& /*KeyCode*/, int /*Shift*/) {
  ctl("RichTextBox1").SetSelCharOffset(RichText::kOnLine);
}

void frmReactions::ShowSide(std::string_view symbols, std::string_view counts) {
  FormulaModule& m = Formulas(program());
  int index = 0;
  for (int r = 1; r <= kRows; ++r) {
    const std::string symbol = m.SideSymbol(r);
    if (symbol.empty()) continue;
    ctl(symbols, index).SetCaption(symbol);
    ctl(counts, index).SetText(Str(m.SideCounts[static_cast<std::size_t>(r - 1)]));
    ++index;
  }
}

void frmReactions::cmdOk_Click() {
  FormulaModule& m = Formulas(program());
  Trapped(kReactionsTrap, [&] {
    Control& box = ctl("RichTextBox1");
    const std::string text = box.Text();
    if (text.empty()) {
      MsgBox("You must enter a formula.", Icon::None, kScreenTitle);
      box.SetFocus();
      return;
    }
    if (InStr(text, "=") == 0 || InStr(text, ">") == 0) {
      MsgBox("You must use the = and > symbols.", Icon::Information, "Invalid symbol in equation.");
      cmdClear_Click();
      return;
    }
    // The character behind "=" is skipped unseen: ">" must follow at once.
    const int p = InStr(text, "=");
    m.ParseSide(program().messages(), Store(program()), Left(text, p - 1));
    ShowSide("Label2", "Text1");
    m.ParseSide(program().messages(), Store(program()), Mid(text, p + 2));
    ShowSide("Label3", "Text2");

    // The left column's total, which nothing uses.
    Integer total;
    for (int k = 0; k < kRows; ++k) {
      const std::string& count = ctl("Text1", k).Text();
      if (!count.empty()) total += CInt(count);
    }
  });
}

void frmReactions::cmdClear_Click() {
  for (int k = 0; k < kRows; ++k) {
    ctl("Text1", k).SetText("");
    ctl("Text2", k).SetText("");
    ctl("Label2", k).SetCaption("");
    ctl("Label3", k).SetCaption("");
  }
  ctl("RichTextBox1").SetText("");
  ctl("RichTextBox1").SetFocus();
}

}  // namespace orv
