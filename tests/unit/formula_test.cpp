// The two formula scanners on their own: the weight scanner with its stack,
// and the atom counter with its element look-up, over the real database.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/registry.h"
#include "data/engine.h"
#include "data/store.h"
#include "formulas/formula_module.h"
#include "shell/form.h"
#include "shell/program.h"
#include "shell/rich_text.h"

namespace orv {
namespace {

const std::string kDatabasePath = std::string(ORVANTA_BIN_DIR) + "/" + std::string(data::kDatabaseFileName);

std::optional<ErrorCode> ErrorOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.code();
  }
  return std::nullopt;
}

struct Box {
  std::string text;
  Icon icon;
  std::string title;
};

class RecordingMessages : public MessageService {
 public:
  void Show(std::string_view text, Icon icon, std::string_view title) override {
    boxes.push_back({std::string(text), icon, std::string(title)});
  }
  void ShowFatal(std::string_view) override {}
  std::vector<Box> boxes;
};

class NoPrinter : public PrintService {
 public:
  void PrintImage(Form&) override { Raise(ErrorCode::PrinterError); }
};

class NoLauncher : public LaunchService {
 public:
  void LaunchCalculator() override { Raise(ErrorCode::FileNotFound); }
};

// A program with one bare screen, which the scanners' own traps show their
// messages on, and the data store open on the real database.
class FormulaTest : public ::testing::Test {
 protected:
  void SetUp() override {
    store.gWorkspace = &data::DefaultWorkspace();
    store.gDatabase = store.gWorkspace->OpenDatabase(kDatabasePath);
    data::FillElements(store);
  }

  // The molecular weight screen's group look-up, over the real table.
  GroupWeight TableWeight() {
    return [this](const std::string& substance, Single& result) {
      looked.push_back(substance);
      if (const auto weight = data::FindMolecularWeight(store, substance)) result = Single(CDbl(*weight));
    };
  }

  // Scans a formula as the screen does: L is the length of the box's text.
  std::optional<ErrorCode> Scan(const std::string& formula, int L, const GroupWeight& weight) {
    m.ClearWeights();
    m.FormulaText = formula;
    return ErrorOf([&] { m.ScanWeights(form, store, L, hydrateCount, weight); });
  }

  // The side's symbols and counts as the reactions screen lists them.
  std::map<std::string, int> Side(const std::string& side) {
    m.ParseSide(form, store, side);
    std::map<std::string, int> out;
    for (int r = 1; r <= FormulaModule::kSideRows; ++r) {
      if (!m.SideSymbol(r).empty()) out[m.SideSymbol(r)] = m.SideCounts[static_cast<std::size_t>(r - 1)].value();
    }
    return out;
  }
  std::vector<std::string> Symbols() {
    std::vector<std::string> out;
    for (int r = 1; r <= FormulaModule::kSideRows; ++r) out.push_back(m.SideSymbol(r));
    return out;
  }

  ScreenRegistry registry;
  RecordingMessages messages;
  NoPrinter printer;
  NoLauncher launcher;
  Program program{registry, {&messages, &printer, &launcher, nullptr}, ORVANTA_BIN_DIR};
  Form form{program, {"frmTest", "Test", 100, 100}, {}};
  data::DataStore store;
  FormulaModule m;
  std::string hydrateCount = "0";
  std::vector<std::string> looked;
};

// --- the stack ---

TEST_F(FormulaTest, StackPopsInReverseAndRefusesAnEmptyPop) {
  m.ClearWeights();
  EXPECT_TRUE(m.WeightsEmpty());
  EXPECT_EQ(ErrorOf([&] { m.PopWeight(); }), ErrorCode::SubscriptOutOfRange);
  for (double v : {1.5, 2.5, 4.0}) {
    m.PushValue = v;
    m.PushWeight();
  }
  EXPECT_EQ(m.StackTop.value(), 3);
  m.PopWeight();
  EXPECT_EQ(m.PopValue, Variant(4.0));
  m.SumWeights();
  EXPECT_DOUBLE_EQ(m.FormulaTotal.value(), 4.0);
  EXPECT_TRUE(m.WeightsEmpty());
  EXPECT_EQ(ErrorOf([&] { m.SumWeights(); }), ErrorCode::SubscriptOutOfRange);
}

// --- the weight scanner ---

struct WeightCase {
  const char* formula;
  int L;  // length of the box's text; 0: that of the formula
  double total;
};

TEST_F(FormulaTest, WeightScannerAddsUpFormulas) {
  const double H = 1.008, C = 12.011, N = 14.007, O = 15.999, S = 32.06, Cl = 35.45, Na = 22.990, Ca = 40.078;
  const double Mn = 54.938, Co = 58.933, Cu = 63.546, water = 18.013;
  const double NO3 = static_cast<float>(62.004), OH = static_cast<float>(17.007), NH4 = static_cast<float>(18.039);
  const WeightCase cases[] = {
      {"H2O", 0, 2 * H + O},
      {"CO", 0, C + O},
      {"Co", 0, Co},
      {"HCl", 0, H + Cl},
      {"hCl", 0, Cl},  // a small letter alone is skipped
      {"Ca(OH)2", 0, Ca + 2 * OH},
      {"Mn(NO3)2.10H2O", 15, Mn + 2 * NO3 + 10 * water},  // typed as 2Mn(NO3)2.10H2O
      {"H123", 0, H * 12 * 23},                           // overlapping digit pairs
      {"CuSO4.5H2O", 0, Cu + S + 4 * O + 5 * water},
      {"CuSO4.5XY", 0, Cu + S + 4 * O + 5 * water},  // nothing behind the count is read
      {"CuSO4.H2O", 0, Cu + S + 4 * O + water},
      {"X.05", 0, 5 * water},
      {"Na(OH)", 0, Na + OH + O + H},  // no digit behind: the group's letters count again
      {"(OH)12", 0, OH},               // one digit of the multiplier is used
      {"(NH4)", 0, NH4 + N + 4 * H},
      {"(Xy)2", 0, 0},  // a group missing from the table
      {"()", 0, 0},
      {"Qq", 0, 0},       // an unknown symbol
      {"H2O", 2, 2 * H},  // a box shorter than the formula ends the walk early
      {"H2O.5", 6, 2 * H + O + 5 * water},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    const int L = c.L != 0 ? c.L : static_cast<int>(std::string(c.formula).size());
    ASSERT_EQ(Scan(c.formula, L, TableWeight()), std::nullopt);
    EXPECT_NEAR(m.FormulaTotal.value(), c.total, 1e-9);
  }
  EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(FormulaTest, WeightScannerSetsTheHydrateCount) {
  const std::pair<const char*, const char*> cases[] = {
      {"CuSO4.5H2O", "5"}, {"X.10H2O", "10"}, {"X.05", "05"}, {"X.", "1"}, {"X.H2O", "1"}};
  for (const auto& [formula, count] : cases) {
    SCOPED_TRACE(formula);
    hydrateCount = "0";
    ASSERT_EQ(Scan(formula, static_cast<int>(std::string(formula).size()), TableWeight()), std::nullopt);
    EXPECT_EQ(hydrateCount, count);
  }
}

TEST_F(FormulaTest, WeightScannerLooksUpGroupsByTheFirstPairOfBrackets) {
  ASSERT_EQ(Scan("Mn(NO3)2", 8, TableWeight()), std::nullopt);
  EXPECT_EQ(looked, std::vector<std::string>{"NO3"});
  looked.clear();
  // The second group is read from its own place with the first pair's
  // length: "SO", which the table lacks.
  ASSERT_EQ(Scan("(OH)(SO4)", 9, TableWeight()), std::nullopt);
  EXPECT_EQ(looked, (std::vector<std::string>{"OH", "SO"}));
}

struct FailureCase {
  const char* formula;
  ErrorCode error;
};

TEST_F(FormulaTest, WeightScannerFailures) {
  const FailureCase cases[] = {
      {"2O", ErrorCode::InvalidProcedureCall},  // a lone digit first reads position 0
      {"22", ErrorCode::SubscriptOutOfRange},   // a digit with nothing on the stack
      {"", ErrorCode::SubscriptOutOfRange},     // nothing to add up
      {"(2", ErrorCode::InvalidProcedureCall},  // "(" without ")"
      {"Na(OH", ErrorCode::InvalidProcedureCall}, {"H)2(", ErrorCode::InvalidProcedureCall},  // ")" before "("
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    EXPECT_EQ(Scan(c.formula, static_cast<int>(std::string(c.formula).size()), TableWeight()), c.error);
  }
}

TEST_F(FormulaTest, SecondGroupBehindAGroupWithDigitNeverEnds) {
  int lookups = 0;
  const GroupWeight fast = [&lookups](const std::string&, Single& result) {
    ++lookups;
    result = Single(1.0);
  };
  EXPECT_EQ(Scan("(NH4)2(SO4)3", 12, fast), ErrorCode::Overflow);
  EXPECT_EQ(m.StackTop.value(), 32767);
  EXPECT_EQ(lookups, 32768);  // the last look-up's push overflows
  // With no digit behind the first group the walk goes on and ends.
  EXPECT_EQ(Scan("(NH4)(SO4)3", 11, fast), std::nullopt);
}

// --- element look-ups ---

TEST_F(FormulaTest, ElementLookUps) {
  EXPECT_DOUBLE_EQ(AtomicWeightOf(form, store, "H").value(), 1.008);
  EXPECT_DOUBLE_EQ(AtomicWeightOf(form, store, "Cl").value(), 35.45);
  EXPECT_DOUBLE_EQ(AtomicWeightOf(form, store, "h").value(), 0);  // capitals count
  EXPECT_DOUBLE_EQ(AtomicWeightOf(form, store, "Xx").value(), 0);
  EXPECT_TRUE(IsElement(form, store, "C"));
  EXPECT_TRUE(IsElement(form, store, "Mt"));
  EXPECT_FALSE(IsElement(form, store, "cl"));
  for (const char* sign : {"(", ")", ".", "=", ">"}) EXPECT_FALSE(IsElement(form, store, sign)) << sign;
  // The symbols are read again on every test.
  store.Elements.At(1, 0) = "Zz";
  EXPECT_TRUE(IsElement(form, store, "H"));
  EXPECT_EQ(Str(store.Elements.At(1, 0)), "H");
  EXPECT_TRUE(messages.boxes.empty());
  EXPECT_EQ(StripSeparators(" 2H2 + O2 "), "2H2O2");
}

TEST_F(FormulaTest, LookUpsWithoutTheDatabase) {
  data::DataStore none;
  EXPECT_DOUBLE_EQ(AtomicWeightOf(form, none, "H").value(), 0);
  EXPECT_TRUE(messages.boxes.empty());
  EXPECT_FALSE(IsElement(form, none, "H"));
  ASSERT_EQ(messages.boxes.size(), 1u);
  EXPECT_EQ(messages.boxes[0].text, "Object variable or With block variable not set");
  EXPECT_EQ(messages.boxes[0].icon, Icon::Information);
  EXPECT_EQ(messages.boxes[0].title, "Orvanta");
}

// --- the atom counter ---

struct SideCase {
  const char* side;
  std::vector<std::string> symbols;  // in the rows' order
  std::map<std::string, int> counts;
};

TEST_F(FormulaTest, AtomCounterCountsEachSide) {
  const SideCase cases[] = {
      {"CO2 + H2O ", {"C", "O", "H", "", "", ""}, {{"C", 1}, {"O", 3}, {"H", 2}}},
      {" C6H12O6 + O2", {"C", "H", "O", "", "", ""}, {{"C", 6}, {"H", 12}, {"O", 8}}},
      {"NaCl", {"Na", "Cl", "", "", "", ""}, {{"Na", 1}, {"Cl", 1}}},
      // A one-letter symbol also counts the first letter of a two-letter one.
      {"NaCl + CO2", {"Na", "Cl", "C", "O", "", ""}, {{"Na", 1}, {"Cl", 1}, {"C", 2}, {"O", 2}}},
      {"Ca(OH)2", {"Ca", "O", "H", "", "", ""}, {{"Ca", 1}, {"O", 2}, {"H", 2}}},
      {"2H2O", {"H", "O", "", "", "", ""}, {{"H", 4}, {"O", 2}}},
      {"12H2O", {"H", "O", "", "", "", ""}, {{"H", 24}, {"O", 12}}},
      {"CuSO4.5H2O", {"Cu", "S", "O", "H", "", ""}, {{"Cu", 1}, {"S", 1}, {"O", 9}, {"H", 10}}},
      {"CuSO4.H2O", {"Cu", "S", "O", "H", "", ""}, {{"Cu", 1}, {"S", 1}, {"O", 5}, {"H", 2}}},
      // Every group takes the multiplier behind the molecule's first ")".
      {"(NH4)2(SO4)3", {"N", "H", "S", "O", "", ""}, {{"N", 2}, {"H", 8}, {"S", 2}, {"O", 8}}},
      {"H2 + O2 + N2 + C", {"H", "O", "N", "C", "", ""}, {{"H", 2}, {"O", 2}, {"N", 2}, {"C", 1}}},
      // Four plus signs: no molecule at all.
      {"H2 + O2 + N2 + C + S", {"", "", "", "", "", ""}, {}},
      // A seventh kind of atom is left out.
      {"NaKMgCaFeCuZn",
       {"Na", "K", "Mg", "Ca", "Fe", "Cu"},
       {{"Na", 1}, {"K", 1}, {"Mg", 1}, {"Ca", 1}, {"Fe", 1}, {"Cu", 1}}},
      {"Xx2 + H2", {"H", "", "", "", "", ""}, {{"H", 2}}},  // unknown symbols are dropped
      {"co2", {"", "", "", "", "", ""}, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.side);
    const auto counts = Side(c.side);
    EXPECT_EQ(Symbols(), c.symbols);
    EXPECT_EQ(counts, c.counts);
  }
  EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(FormulaTest, AtomCounterOverflowsInItsOwnTraps) {
  // 396 hydrogens times 99 in one molecule: CountAtoms stops at the last
  // count that fitted.
  EXPECT_EQ(Side("99H99H99H99H99"), (std::map<std::string, int>{{"H", 29403}}));
  ASSERT_EQ(messages.boxes.size(), 1u);
  EXPECT_EQ(messages.boxes[0].text, "Overflow");
  EXPECT_EQ(messages.boxes[0].icon, Icon::Information);
  EXPECT_EQ(messages.boxes[0].title, "Orvanta");
  messages.boxes.clear();
  // Two molecules that fit apiece overflow the side's sum.
  EXPECT_EQ(Side("99H99H99H99 + 99H99H99H99"), (std::map<std::string, int>{{"H", 29403}}));
  ASSERT_EQ(messages.boxes.size(), 1u);
  EXPECT_EQ(messages.boxes[0].text, "Overflow");
}

TEST_F(FormulaTest, AtomCounterWithoutTheDatabaseListsNothing) {
  data::DataStore none;
  m.ParseSide(form, none, "H2");
  EXPECT_EQ(Symbols(), std::vector<std::string>(6, ""));
  // Every symbol test on every one of the six walks shows the engine's words.
  EXPECT_EQ(messages.boxes.size(), 6u);
}

// --- the molecular weight screen without its database ---

TEST(FormulaScreens, WeightsWithoutTheDatabaseWeighNothing) {
  RecordingMessages messages;
  NoPrinter printer;
  NoLauncher launcher;
  Program program(AllScreens(), {&messages, &printer, &launcher, nullptr}, "/nonexistent");
  program.UserAction([&] { program.Show("frmWeights"); });
  Form* form = program.Find("frmWeights");
  ASSERT_NE(form, nullptr);
  // Form_Load's trap shows the words once and skips the rest: the buttons stay ready.
  ASSERT_EQ(messages.boxes.size(), 1u);
  EXPECT_EQ(messages.boxes[0].text, "Object variable or With block variable not set");
  EXPECT_EQ(messages.boxes[0].icon, Icon::Information);
  EXPECT_TRUE(form->ctl("cmdOk").Enabled());
  messages.boxes.clear();

  Control& box = form->ctl("RichTextBox1");
  for (char c : std::string("Ca(OH)2")) program.UserKey(*form, &box, Key{c, c, 0});
  program.UserClick(form->ctl("cmdOk"));
  EXPECT_EQ(form->ctl("txtWeights2").Text(), "0.000");
  EXPECT_EQ(form->ctl("Text1").Text(), "0");
  // The group's look-up has its own trap, with the same words.
  ASSERT_EQ(messages.boxes.size(), 1u);
  EXPECT_EQ(messages.boxes[0].text, "Object variable or With block variable not set");
  EXPECT_FALSE(program.Ended());
}

// --- the rich text box's offsets ---

struct EditCase {
  const char* before;
  std::vector<int> offsets;  // of the text before
  const char* after;
  int selStart;  // the caret before the edit
  int selLength;
  std::vector<int> expected;  // new characters take the typing offset, 50
};

TEST(RichText, OffsetsFollowEdits) {
  const std::vector<int> h2o = {0, -50, 0};
  const EditCase cases[] = {
      {"H2O", h2o, "H2O2", 3, 0, {0, -50, 0, 50}},   // typed at the end
      {"H2O", h2o, "H22O", 2, 0, {0, -50, 50, 0}},   // typed in the middle
      {"H2O", h2o, "HxO", 1, 1, {0, 50, 0}},         // typed over a selection
      {"H22", h2o, "H2", 1, 0, {0, 0}},              // Delete behind the caret
      {"H2O", h2o, "HO", 2, 0, {0, 0}},              // Backspace before the caret
      {"H2O", h2o, "NaCl", 0, 0, {50, 50, 50, 50}},  // replaced as a whole
      {"H2O", h2o, "H2SO", 0, 0, {0, -50, 50, 0}},   // a change away from the caret
      {"H2O", h2o, "", 0, 3, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.before) + " -> " + c.after);
    RichText rich;
    rich.Reset(static_cast<int>(c.offsets.size()));
    for (int i = 0; i < static_cast<int>(c.offsets.size()); ++i)
      rich.SetOffset(i, 1, c.offsets[static_cast<std::size_t>(i)]);
    rich.SetOffset(0, 0, RichText::kRaised);
    rich.Follow(c.before, c.after, c.selStart, c.selLength);
    EXPECT_EQ(rich.Offsets(), c.expected);
  }
}

}  // namespace
}  // namespace orv
