// The two formula scanners on their own, over the real database: the weight
// scanner with its stack, and the atom counter with its element look-up.

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/registry.h"
#include "data/engine.h"
#include "data/store.h"
#include "formulas/formula_module.h"
#include "shell/program.h"
#include "shell/rich_text.h"
#include "shell/screens/module1.h"
#include "shell/text.h"
#include "tests/unit/screen_run.h"

namespace orv {
namespace {

using test::Box;
using test::Boxes;

const Box kNoObject{"Object variable or With block variable not set", Icon::Information, "Orvanta"};

// The messages the scanners' own traps show, and the data store open on the
// real database.
class FormulaTest : public ::testing::Test {
 protected:
  void SetUp() override {
    test::OpenRealDatabase(store);
    data::FillElements(store);
  }

  // Scans as the molecular weight screen does, L being the length of the
  // box's text (by default the formula's), with groups from the real table.
  std::optional<ErrorCode> Scan(const std::string& formula, int L = 0, GroupWeight weight = {}) {
    if (!weight) {
      weight = [this](const std::string& substance, Single& result) {
        looked.push_back(substance);
        if (const auto w = data::FindMolecularWeight(store, substance)) result = Single(CDbl(*w));
      };
    }
    m.ClearWeights();
    m.FormulaText = formula;
    try {
      m.ScanWeights(messages, store, L != 0 ? L : Len(formula), hydrateCount, weight);
    } catch (const RuntimeError& e) {
      return e.code();
    }
    return std::nullopt;
  }

  // The side's rows as the reactions screen lists them: "C1 O3 H2".
  std::string Side(const std::string& side, data::DataStore* from = nullptr) {
    m.ParseSide(messages, from != nullptr ? *from : store, side);
    std::string out;
    for (int r = 1; r <= FormulaModule::kSideRows; ++r) {
      if (m.SideSymbol(r).empty()) continue;
      out += (out.empty() ? "" : " ") + m.SideSymbol(r) + Str(m.SideCounts[static_cast<std::size_t>(r - 1)]);
    }
    return out;
  }

  test::FakeMessages messages;
  data::DataStore store;
  FormulaModule m;
  std::string hydrateCount = "0";
  std::vector<std::string> looked;
};

TEST_F(FormulaTest, WeightScannerAddsUpFormulas) {
  const double H = 1.008, C = 12.011, O = 15.999, S = 32.06, Cl = 35.45, Na = 22.990, Ca = 40.078;
  const double Mn = 54.938, Co = 58.933, Cu = 63.546, water = 18.013;
  // Groups are weighed as 32-bit floats.
  const double NO3 = static_cast<float>(62.004), OH = static_cast<float>(17.007);
  const struct {
    const char* formula;
    int L;
    double total;
  } cases[] = {
      {"H2O", 0, 2 * H + O},
      {"CO", 0, C + O},
      {"Co", 0, Co},
      {"hCl", 0, Cl},            // a small letter alone is skipped
      {"Qq", 0, 0},              // an unknown symbol
      {"H123", 0, H * 12 * 23},  // overlapping digit pairs
      {"Ca(OH)2", 0, Ca + 2 * OH},
      {"Mn(NO3)2.10H2O", 15, Mn + 2 * NO3 + 10 * water},  // typed as 2Mn(NO3)2.10H2O
      {"CuSO4.5H2O", 0, Cu + S + 4 * O + 5 * water},
      {"CuSO4.5XY", 0, Cu + S + 4 * O + 5 * water},  // nothing behind the count is read
      {"CuSO4.H2O", 0, Cu + S + 4 * O + water},
      {"Na(OH)", 0, Na + OH + O + H},  // no digit behind: the group's letters count again
      {"(OH)12", 0, OH},               // one digit of the multiplier is used
      {"(Xy)2", 0, 0},                 // a group missing from the table
      {"H2O", 2, 2 * H},               // a box shorter than the formula ends the walk early
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.formula);
    ASSERT_EQ(Scan(c.formula, c.L), std::nullopt);
    EXPECT_NEAR(m.FormulaTotal.value(), c.total, 1e-9);
  }
  EXPECT_TRUE(messages.boxes.empty());
  // A second group is read from its own place with the first pair's length.
  looked.clear();
  ASSERT_EQ(Scan("(OH)(SO4)"), std::nullopt);
  EXPECT_EQ(looked, (std::vector<std::string>{"OH", "SO"}));
}

TEST_F(FormulaTest, WeightScannerFailures) {
  const std::pair<const char*, ErrorCode> cases[] = {
      {"2O", ErrorCode::InvalidProcedureCall},    // a lone digit first reads position 0
      {"22", ErrorCode::SubscriptOutOfRange},     // a digit with nothing on the stack
      {"xy", ErrorCode::SubscriptOutOfRange},     // nothing to add up: the sum pops first
      {"(2", ErrorCode::InvalidProcedureCall},    // "(" without ")"
      {"H)2(", ErrorCode::InvalidProcedureCall},  // ")" before "("
  };
  for (const auto& [formula, error] : cases) EXPECT_EQ(Scan(formula), error) << formula;
}

TEST_F(FormulaTest, SecondGroupBehindAGroupWithDigitNeverEnds) {
  int lookups = 0;
  const GroupWeight fast = [&lookups](const std::string&, Single& result) {
    ++lookups;
    result = Single(1.0);
  };
  EXPECT_EQ(Scan("(NH4)2(SO4)3", 0, fast), ErrorCode::Overflow);
  EXPECT_EQ(m.StackTop.value(), 32767);
  EXPECT_EQ(lookups, 32768);  // the last look-up's push overflows
  EXPECT_EQ(Scan("(NH4)(SO4)3", 0, fast), std::nullopt);
}

// On the screen the endless group looks the group up in MolecularWeights at
// every turn, some 32768 times; the query goes to the file once, the rest is
// answered from memory, and the press ends at once.
TEST(FormulaScreens, TheEndlessGroupEndsAtOnceWithTheDataEntryMessage) {
  test::RealRun run;
  Program& program = run.program;
  Form& form = run.Open("frmWeights");
  for (char c : std::string("(OH)2(SO4)")) program.UserKey(form, &form.ctl("RichTextBox1"), Key{c, c, 0});
  const std::size_t before = Store(program).gDatabase->FileQueries();
  const auto start = std::chrono::steady_clock::now();
  program.UserKey(form, &form.ctl("RichTextBox1"), Key{kKeyReturn, '\r', 0});
  const auto elapsed = std::chrono::steady_clock::now() - start;
  EXPECT_EQ(run.messages.boxes, (Boxes{{"Data entry error", Icon::None, "Orvanta"}}));
  EXPECT_LE(Store(program).gDatabase->FileQueries(), before + 1);
  EXPECT_EQ(Store(program).gSql, "SELECT * FROM MolecularWeights");
  EXPECT_FALSE(data::CurrentRecordset(Store(program)).IsOpen());
  // Generous, for builds with sanitizers; a release build takes some milliseconds.
  EXPECT_LT(std::chrono::duration<double>(elapsed).count(), 2.0);
}

TEST_F(FormulaTest, AtomCounterCountsEachSide) {
  const std::pair<const char*, const char*> cases[] = {
      {"CO2 + H2O ", "C1 O3 H2"},
      {" C6H12O6 + O2", "C6 H12 O8"},
      // Symbols are read with two letters; a one-letter symbol counts the
      // first letter of a two-letter one all the same.
      {"NaCl + CO2", "Na1 Cl1 C2 O2"},
      {"Ca(OH)2", "Ca1 O2 H2"},
      {"2H2O", "H4 O2"},
      {"12H2O", "H24 O12"},
      {"CuSO4.5H2O", "Cu1 S1 O9 H10"},
      {"(NH4)2(SO4)3", "N2 H8 S2 O8"},  // every group takes the multiplier of the first
      {"H2 + O2 + N2 + C", "H2 O2 N2 C1"},
      {"H2 + O2 + N2 + C + S", ""},                 // a fifth molecule empties the side
      {"NaKMgCaFeCuZn", "Na1 K1 Mg1 Ca1 Fe1 Cu1"},  // a seventh atom is left out
      {"Xx2 + H2", "H2"},
      {"co2", ""},
  };
  for (const auto& [side, listed] : cases) EXPECT_EQ(Side(side), listed) << side;
  EXPECT_TRUE(messages.boxes.empty());
}

TEST_F(FormulaTest, AtomCounterOverflowsInItsOwnTraps) {
  // In one molecule CountAtoms keeps the last count that fitted; two that fit
  // apiece overflow the side's sum.
  for (const char* side : {"99H99H99H99H99", "99H99H99H99 + 99H99H99H99"}) {
    messages.boxes.clear();
    EXPECT_EQ(Side(side), "H29403") << side;
    EXPECT_EQ(messages.boxes, (Boxes{{"Overflow", Icon::Information, "Orvanta"}})) << side;
  }
}

TEST_F(FormulaTest, ElementSymbolsAreReadAgainOnEveryTest) {
  store.Elements.At(1, 0) = "Zz";
  EXPECT_TRUE(IsElement(messages, store, "H"));
  EXPECT_TRUE(IsElement(messages, store, "Mt"));  // the 109th row
  // Without the database every test of the six walks shows the engine's words.
  data::DataStore none;
  EXPECT_EQ(Side("H2", &none), "");
  EXPECT_EQ(messages.boxes, Boxes(6, kNoObject));
}

TEST(FormulaScreens, WeightsWithoutTheDatabaseWeighNothing) {
  test::ScreenRun run("");
  Form& form = run.Open("frmWeights");
  // Form_Load's trap shows the words once and skips the rest: the buttons stay ready.
  EXPECT_EQ(run.messages.boxes, Boxes{kNoObject});
  EXPECT_TRUE(form.ctl("cmdOk").Enabled());
  run.messages.boxes.clear();
  for (char c : std::string("Ca(OH)2")) run.program.UserKey(form, &form.ctl("RichTextBox1"), Key{c, c, 0});
  run.program.UserClick(form.ctl("cmdOk"));
  EXPECT_EQ(form.ctl("txtWeights2").Text(), "0.000");
  EXPECT_EQ(form.ctl("Text1").Text(), "0");
  EXPECT_EQ(run.messages.boxes, Boxes{kNoObject});  // the group's look-up has a trap of its own
}

// The edits that typing in the formula box doesn't make: a selection typed
// over, Backspace, a change away from the caret, everything deleted. New
// characters take the typing offset, 50.
TEST(RichText, OffsetsFollowEdits) {
  const struct {
    const char* after;
    int selStart;
    int selLength;
    std::vector<int> expected;
  } cases[] = {{"HxO", 1, 1, {0, 50, 0}}, {"HO", 2, 0, {0, 0}}, {"H2SO", 0, 0, {0, -50, 50, 0}}, {"", 0, 3, {}}};
  for (const auto& c : cases) {
    RichText rich;
    rich.Reset(3);
    rich.SetOffset(1, 1, RichText::kLowered);
    rich.SetOffset(0, 0, RichText::kRaised);
    rich.Follow("H2O", c.after, c.selStart, c.selLength);
    EXPECT_EQ(rich.Offsets(), c.expected) << c.after;
  }
}

// Characters of several bytes count as one each; an edit that the caret
// doesn't explain keeps the offsets of what both texts share at their ends.
TEST(RichText, OffsetsFollowEditsOfCharactersOfSeveralBytes) {
  const struct {
    const char* before;
    const char* after;
    int selStart, selLength;
    std::vector<int> expected;
  } cases[] = {
      {"a\u00e9b", "a\u00e9xb", 2, 0, {-50, 0, 50, 0}},       // typed behind the two-byte character
      {"a\u00e9b", "ab", 2, 0, {-50, 0}},                     // Backspace removes it whole
      {"a\u00e9b", "a\u00e8b", 0, 0, {-50, 50, 0}},           // same first byte, another character
      {"\U0001d49cxy", "\U0001d49cy", 0, 0, {-50, 0}},        // four bytes, then a change away from the caret
      {"x\u20acy", "x\u20ac\u20acy", 0, 0, {-50, 0, 50, 0}},  // the second of two equal characters is new
  };
  for (const auto& c : cases) {
    RichText rich;
    rich.Reset(CharCount(c.before));
    rich.SetOffset(0, 1, RichText::kLowered);
    rich.SetOffset(0, 0, RichText::kRaised);
    rich.Follow(c.before, c.after, c.selStart, c.selLength);
    EXPECT_EQ(rich.Offsets(), c.expected) << c.after;
  }
}

// Following a key typed into a long text costs about as much as the text's
// length, not its square: a thousand keys into 1 MB take well under a second
// even with sanitizers (before, one key into 200 KB took half a minute).
TEST(RichText, KeysTypedIntoALongTextAreFollowedQuickly) {
  std::string text;
  while (text.size() < (1u << 20)) text += "Help text line for a long topic, \u00e9t\u00e9. ";
  RichText rich;
  rich.Reset(CharCount(text));
  const auto start = std::chrono::steady_clock::now();
  for (int k = 0; k < 20; ++k) {
    std::string after = text;
    after.insert(ByteOffset(text, 1000 + k), "x");
    rich.Follow(text, after, 1000 + k, 0);
    text = std::move(after);
  }
  EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count(), 2.0);
  EXPECT_EQ(static_cast<int>(rich.Offsets().size()), CharCount(text));
}

}  // namespace
}  // namespace orv
