#pragma once
// The formula scanners and their module-level state.
//
// The weight scanner walks the formula typed on the molecular weight screen
// and adds up its weight on a stack of numbers. The atom counter takes one
// side of an equation apart and counts each kind of atom. Both walk the text
// by character position and build no tree: what they accept, miss or count
// twice follows from that walk and is the program's behaviour.

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "data/store.h"
#include "shell/numbers.h"
#include "shell/variant.h"

namespace orv {

class MessageService;

// The weight of a group such as "SO4" from the table of molecular weights:
// the molecular weight screen's Weight. Leaves Result as it is when the table
// has no such row.
using GroupWeight = std::function<void(const std::string& Substance, Single& Result)>;

struct FormulaModule {
  static constexpr int kSideRows = 6;

  // The weight scanner's stack: entry k (from 1) at WeightStack[k - 1].
  std::vector<Variant> WeightStack;
  Integer StackTop;
  Variant PushValue;
  Variant PopValue;

  // The formula as the molecular weight screen collected it, without its
  // leading coefficient, and the coefficient's digits ("0" for none).
  std::string FormulaText;
  std::string FormulaCoefficient = "0";
  Double FormulaTotal;

  // The atom counter: row r (from 1) of each table at [r - 1]. Column 0 of
  // SideAtoms holds the distinct symbols of the side in order of first
  // appearance; column 1 is emptied with it and never used.
  std::array<std::array<Variant, 2>, kSideRows> SideAtoms;
  std::array<Integer, kSideRows> MoleculeCounts;
  std::array<Integer, kSideRows> SideCounts;
  Integer AtomRow;
  Integer RunningCount;
  std::string SideText;

  // The stack. PushWeight pushes PushValue ("Overflow" beyond 32767 entries);
  // PopWeight pops into PopValue ("Subscript out of range" when empty).
  void PushWeight();
  void PopWeight();
  void ClearWeights();
  bool WeightsEmpty() const;
  // Pops every entry into FormulaTotal; popping comes first, so that an empty
  // stack raises "Subscript out of range".
  void SumWeights();

  // The weight scanner over FormulaText, ending with SumWeights. L is the
  // length of the formula box's text; HydrateCount is the screen's count of
  // waters, which a point sets. Run-time errors go to the caller.
  void ScanWeights(MessageService& messages, data::DataStore& store, int L, std::string& HydrateCount,
                   const GroupWeight& Weight);
  // Its steps at a digit and at an opening bracket of FormulaText (from 1).
  void ApplySubscript(int i);
  int PushGroup(int i, const GroupWeight& Weight);

  // The atom counter: fills SideAtoms and SideCounts for one side of an
  // equation (own error trap). The routines with their own trap show the
  // words of a run-time error that ends them in a message box.
  void ParseSide(MessageService& messages, data::DataStore& store, const std::string& Side);
  // Counts each symbol of SideAtoms in one molecule into MoleculeCounts (own
  // error trap).
  void CountAtoms(MessageService& messages, const std::string& Molecule);

  // The symbol of row r (from 1) of SideAtoms, "" when the row is empty.
  std::string SideSymbol(int r) const;
};

// The atomic weight of the symbol from Elements (capitals count), 0 when no
// row holds it. Own error trap.
Double AtomicWeightOf(MessageService& messages, data::DataStore& store, const std::string& Symbol);

// Whether the symbol is an element's: reloads the symbols of Elements from
// the database first. Own error trap; an error gives false.
bool IsElement(MessageService& messages, data::DataStore& store, const std::string& Symbol);

// The text without its blanks and "+" signs.
std::string StripSeparators(std::string_view Text);

}  // namespace orv
