#include "formulas/formula_module.h"

#include "shell/screen_frame.h"

namespace orv {

namespace {

using data::ElementsTable;

// The water of a hydrate weighs this much, whatever the table says of H and O.
constexpr double kWaterWeight = 18.013;

bool IsDigit(std::string_view c) { return c.size() == 1 && c[0] >= '0' && c[0] <= '9'; }
int DigitValue(std::string_view c) { return c[0] - '0'; }

// Whether a character is its own capital form: everything but the small
// letters.
bool IsOwnCapital(std::string_view c) { return !(c.size() == 1 && c[0] >= 'a' && c[0] <= 'z'); }

// The scanners' own error trap: a run-time error shows its words in a message
// box and ends the body.
template <class Fn>
void Trapped(MessageService& messages, Fn&& body) {
  try {
    body();
  } catch (const RuntimeError& e) {
    messages.Show(e.words(), Icon::Information, kTitle);
  }
}

// The character at a position from 1 on; past the end it is the empty text.
// Position 0 is an invalid argument, as it is to Mid.
std::string CharAt(std::string_view s, int position) {
  if (position < 1) Raise(ErrorCode::InvalidProcedureCall);
  return Mid(s, position, 1);
}

// Two digits behind a position as their two-digit value, else one digit as
// its value, else nothing (-1).
int DigitsBehind(std::string_view s, int position) {
  const std::string first = CharAt(s, position + 1);
  const std::string second = CharAt(s, position + 2);
  if (IsDigit(first) && IsDigit(second)) return 10 * DigitValue(first) + DigitValue(second);
  if (IsDigit(first)) return DigitValue(first);
  return -1;
}

// Cuts the leading coefficient, one or two digits, off the molecule and
// returns it; 1 when there is none.
Integer CutCoefficient(std::string& molecule) {
  const std::string first = CharAt(molecule, 1);
  const std::string second = CharAt(molecule, 2);
  if (IsDigit(first) && IsDigit(second)) {
    molecule = Mid(molecule, 3);
    return Expr(10 * DigitValue(first) + DigitValue(second));
  }
  if (IsDigit(first)) {
    molecule = Mid(molecule, 2);
    return Expr(DigitValue(first));
  }
  return Expr(1);
}

// A symbol starts at a position: the character and, when the next one is a
// small letter, that one too.
std::string SymbolAt(std::string_view s, int position) {
  const std::string c = CharAt(s, position);
  const std::string next = CharAt(s, position + 1);
  if (!next.empty() && !IsOwnCapital(next)) return c + next;
  return c;
}

}  // namespace

// --- the stack ---

void FormulaModule::PushWeight() {
  ++StackTop;
  WeightStack.resize(static_cast<std::size_t>(StackTop.value()));
  WeightStack.back() = PushValue;
}

void FormulaModule::PopWeight() {
  if (StackTop.value() <= 0) Raise(ErrorCode::SubscriptOutOfRange);
  PopValue = WeightStack[static_cast<std::size_t>(StackTop.value() - 1)];
  --StackTop;
  if (StackTop.value() > 0) WeightStack.resize(static_cast<std::size_t>(StackTop.value()));
}

void FormulaModule::ClearWeights() {
  StackTop = Expr(0);
  WeightStack.clear();
}

bool FormulaModule::WeightsEmpty() const { return StackTop.value() <= 0; }

void FormulaModule::SumWeights() {
  FormulaTotal = Expr(0);
  do {
    PopWeight();
    FormulaTotal = FormulaTotal + CDbl(PopValue);
  } while (!WeightsEmpty());
}

// --- the weight scanner ---

void FormulaModule::ScanWeights(MessageService& messages, data::DataStore& store, int L, std::string& HydrateCount,
                                const GroupWeight& Weight) {
  int i = 1;
  while (i <= Len(FormulaText)) {
    const std::string c = CharAt(FormulaText, i);
    if (IsDigit(c)) {
      ApplySubscript(i);
    } else if (c == ".") {
      // Everything behind the point is water; only its count is read.
      const std::string first = CharAt(FormulaText, i + 1);
      const std::string second = CharAt(FormulaText, i + 2);
      if (IsDigit(first) && IsDigit(second)) {
        HydrateCount = first + second;
      } else if (IsDigit(first)) {
        HydrateCount = first;
      } else {
        HydrateCount = "1";
      }
      PushValue = Double(CDbl(HydrateCount) * kWaterWeight).value();
      PushWeight();
      i = L;
    } else if (c == "(") {
      i = PushGroup(i, Weight);
    } else if (c.size() == 1 && c[0] >= 'A' && c[0] <= 'Z') {
      PushValue = AtomicWeightOf(messages, store, SymbolAt(FormulaText, i)).value();
      PushWeight();
    }
    if (i == L) break;
    ++i;
  }
  SumWeights();
}

// The digit at position i: a subscript multiplies the last item only; of
// three digits in a row the pairs overlap.
void FormulaModule::ApplySubscript(int i) {
  const std::string next = CharAt(FormulaText, i + 1);
  int value = -1;
  if (IsDigit(next)) {
    value = 10 * DigitValue(CharAt(FormulaText, i)) + DigitValue(next);
  } else if (!IsDigit(CharAt(FormulaText, i - 1))) {
    value = DigitValue(CharAt(FormulaText, i));
  }
  if (value >= 0) {
    PopWeight();
    PushValue = Double(CDbl(PopValue) * value).value();
    PushWeight();
  }
}

// The bracket at position i: a group is looked up whole, by the first pair of
// brackets of the formula, wherever this one stands. Returns the position the
// walk goes on from: behind the group's multiplier, or still at the bracket
// when it has none.
int FormulaModule::PushGroup(int i, const GroupWeight& Weight) {
  const int open = InStr(FormulaText, "(");
  const int close = InStr(FormulaText, ")");
  const int length = close - open - 1;
  if (length < 0) Raise(ErrorCode::InvalidProcedureCall);
  const std::string group = Mid(FormulaText, i + 1, length);
  const std::string first = CharAt(FormulaText, close + 1);
  const std::string second = CharAt(FormulaText, close + 2);
  const int multiplier = IsDigit(first) ? DigitValue(first) : 1;
  Single weight;
  Weight(group, weight);
  PushValue = static_cast<double>(Single(weight * multiplier).value());
  PushWeight();
  if (IsDigit(first) && IsDigit(second)) return close + 2;
  if (IsDigit(first)) return close + 1;
  return i;
}

// --- the atom counter ---

std::string FormulaModule::SideSymbol(int r) const { return Str(SideAtoms[static_cast<std::size_t>(r - 1)][0]); }

void FormulaModule::ParseSide(MessageService& messages, data::DataStore& store, const std::string& Side) {
  Trapped(messages, [&] {
    for (auto& row : SideAtoms) row = {Variant(""), Variant("")};
    std::array<std::string, 4> molecules;
    for (Integer& count : SideCounts) count = Expr(0);
    SideText = Side;

    // Up to four molecules, split at the plus signs; more leave the side
    // empty.
    int pluses = 0;
    for (char ch : SideText) pluses += ch == '+' ? 1 : 0;
    if (pluses > 3) return;
    std::size_t from = 0;
    for (std::string& molecule : molecules) {
      if (from > SideText.size()) break;
      const std::size_t plus = std::min(SideText.find('+', from), SideText.size());
      molecule = StripSeparators(std::string_view(SideText).substr(from, plus - from));
      from = plus + 1;
    }

    // The distinct symbols, in order of first appearance, six at most. The
    // walk is made six times; a repeat finds nothing new.
    const int n = Len(SideText);
    for (int pass = 1; pass <= kSideRows; ++pass) {
      for (int i = 1; i <= n; ++i) {
        const std::string c = CharAt(SideText, i);
        if (IsDigit(c) || !IsOwnCapital(c)) continue;
        const std::string symbol = SymbolAt(SideText, i);
        for (AtomRow = Expr(1); AtomRow.value() <= kSideRows; ++AtomRow) {
          Variant& cell = SideAtoms[static_cast<std::size_t>(AtomRow.value() - 1)][0];
          if (Str(cell) == symbol) break;
          if (Str(cell).empty()) {
            if (symbol != " " && symbol != "+" && IsElement(messages, store, symbol)) cell = symbol;
            break;
          }
        }
      }
    }

    for (const std::string& molecule : molecules) {
      if (molecule.empty()) continue;
      CountAtoms(messages, molecule);
      for (std::size_t k = 0; k < SideCounts.size(); ++k) SideCounts[k] += MoleculeCounts[k];
    }
  });
}

void FormulaModule::CountAtoms(MessageService& messages, const std::string& Molecule) {
  Trapped(messages, [&] {
    for (AtomRow = Expr(1); AtomRow.value() <= kSideRows; ++AtomRow) {
      const int k = AtomRow.value();
      Integer& count = MoleculeCounts[static_cast<std::size_t>(k - 1)];
      RunningCount = Expr(0);
      Integer groupMultiplier = Expr(1);
      Integer hydrateMultiplier = Expr(1);
      bool inGroup = false;
      bool inHydrate = false;
      count = Expr(0);

      std::string molecule = StripSeparators(Molecule);
      const Integer coefficient = CutCoefficient(molecule);

      // A one-letter symbol also matches the first letter of a two-letter one.
      const std::string symbol = SideSymbol(k);
      const int extra = Len(symbol) - 1;
      const int n = Len(molecule);
      for (int i = 1; i <= n; ++i) {
        if (Mid(molecule, i, 2) == symbol || CharAt(molecule, i) == symbol) {
          const int last = i + extra;
          const bool atEnd = last >= n;
          const int behind = DigitsBehind(molecule, last);
          if (inGroup && !atEnd) {
            RunningCount += Expr(behind >= 0 ? behind : 1) * groupMultiplier;
          } else if (inHydrate) {
            const std::string digit = CharAt(molecule, last + 1);
            RunningCount +=
                atEnd || !IsDigit(digit) ? Expr(hydrateMultiplier) : Expr(DigitValue(digit)) * hydrateMultiplier;
          } else if (atEnd) {
            RunningCount += Expr(1);
          } else {
            RunningCount += Expr(behind >= 0 ? behind : 1);
          }
          count = RunningCount * coefficient;
        }
        const std::string c = CharAt(molecule, i);
        if (c == ".") {
          inHydrate = true;
          if (const int digits = DigitsBehind(molecule, i); digits >= 0) hydrateMultiplier = Expr(digits);
        } else if (c == "(") {
          inGroup = true;
          if (const int digits = DigitsBehind(molecule, InStr(molecule, ")")); digits >= 0) {
            groupMultiplier = Expr(digits);
          }
        } else if (c == ")") {
          inGroup = false;
        }
      }
    }
  });
}

// --- element look-ups ---

Double AtomicWeightOf(MessageService& messages, data::DataStore& store, const std::string& Symbol) {
  Double weight;
  Trapped(messages, [&] {
    for (int r = ElementsTable::kFirstRow; r <= ElementsTable::kLastRow; ++r) {
      if (Str(store.Elements.At(r, ElementsTable::kSymbolColumn)) == Symbol) {
        weight = CDbl(store.Elements.At(r, ElementsTable::kWeightColumn));
        return;
      }
    }
  });
  return weight;
}

bool IsElement(MessageService& messages, data::DataStore& store, const std::string& Symbol) {
  bool found = false;
  Trapped(messages, [&] {
    data::FillElementSymbols(store);
    for (int r = ElementsTable::kFirstRow; r <= ElementsTable::kLastRow; ++r) {
      if (Str(store.Elements.At(r, ElementsTable::kSymbolColumn)) == Symbol) {
        found = true;
        return;
      }
    }
  });
  return found;
}

std::string StripSeparators(std::string_view Text) {
  std::string out;
  for (char ch : Text) {
    if (ch != ' ' && ch != '+') out += ch;
  }
  return out;
}

}  // namespace orv
