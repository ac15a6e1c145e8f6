// The scenario runner's own parts: the named keys, the parser that reads a
// file's lines into steps, and the headless runner's verdicts on small
// scenarios, failing ones above all: an expectation that cannot fail would
// let every scenario file pass.

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "scenario/runner.h"
#include "scenario/steps.h"
#include "shell/keys.h"

namespace orv::scenario {
namespace {

bool Same(const Key& a, const Key& b) { return a.code == b.code && a.ascii == b.ascii && a.shift == b.shift; }

TEST(NamedKeys, EachNameStandsForOneKeyBothWays) {
  std::set<std::string_view> names;
  for (const NamedKey& n : NamedKeys()) {
    EXPECT_TRUE(names.insert(n.name).second) << n.name;
    const std::optional<Key> key = KeyNamed(n.name);
    ASSERT_TRUE(key.has_value()) << n.name;
    EXPECT_TRUE(Same(*key, n.key)) << n.name;
    EXPECT_EQ(NameOfKey(n.key), n.name);
  }
  EXPECT_TRUE(Same(*KeyNamed("Shift+Tab"), Key{kKeyTab, 0, kShiftMask}));
  EXPECT_TRUE(Same(*KeyNamed("Ctrl+V"), Key{'V', kCtrlV, kCtrlMask}));
  for (const char* unknown : {"enter", "F2", "Ctrl+v", "Ctrl+1", "Ctrl+", ""})
    EXPECT_FALSE(KeyNamed(unknown)) << unknown;
}

// A typed character must never pass for a named key: the Qt driver would
// send it as that key instead of as its text.
TEST(NamedKeys, NoTypedCharacterHasAName) {
  for (int c = 32; c < 127; ++c) {
    const Key key{KeyCodeOfChar(c), c, (c >= 'A' && c <= 'Z') ? kShiftMask : 0};
    EXPECT_EQ(NameOfKey(key), "") << static_cast<char>(c);
  }
  EXPECT_EQ(NameOfKey(*KeyNamed("Ctrl+C")), "");
}

std::string Failure(const std::function<void()>& f) {
  try {
    f();
  } catch (const scenario::Failure& failure) {
    return failure.reason;
  }
  return "";
}

TEST(ScenarioParser, SplitsWordsAndQuotedStrings) {
  const struct {
    const char* line;
    std::vector<std::string> words;  // quoted ones in brackets
  } cases[] = {
      {"expect F.C \"a b\"", {"expect", "F.C", "[a b]"}},
      {"  type\tF.C  \"x\\\"y\\\\z\\n\\r\" ", {"type", "F.C", "[x\"y\\z\n\r]"}},
      {"expect msgbox \"t\" title=\"A B\"", {"expect", "msgbox", "[t]", "[title=A B]"}},
      {"x \"\"", {"x", "[]"}},
  };
  for (const auto& c : cases) {
    std::vector<std::string> words;
    for (const Token& t : Tokenize(c.line)) words.push_back(t.quoted ? "[" + t.text + "]" : t.text);
    EXPECT_EQ(words, c.words) << c.line;
  }
  EXPECT_EQ(Failure([] { Tokenize("type F.C \"abc"); }), "unterminated string");
}

TEST(ScenarioParser, TypedTextBecomesKeys) {
  const std::vector<Key> keys = ParseKeys("aB.{Enter}{Ctrl+V}{Shift+Tab}");
  const Key wanted[] = {{'A', 'a', 0},       {'B', 'B', kShiftMask}, {190, '.', 0},
                        {kKeyReturn, 13, 0}, {'V', 22, kCtrlMask},   {kKeyTab, 0, kShiftMask}};
  ASSERT_EQ(keys.size(), std::size(wanted));
  for (std::size_t i = 0; i < keys.size(); ++i) EXPECT_TRUE(Same(keys[i], wanted[i])) << i;
  EXPECT_EQ(Failure([] { ParseKeys("{Nope}"); }), "unknown key {Nope}");
  EXPECT_EQ(Failure([] { ParseKeys("1{Enter"); }), "unterminated key name");
}

TEST(ScenarioParser, LinesBecomeSteps) {
  EXPECT_FALSE(ParseStep(""));
  EXPECT_FALSE(ParseStep("   # a comment"));

  const auto start = std::get<step::Start>(*ParseStep("start nodb nocalculator"));
  EXPECT_FALSE(start.database);
  EXPECT_TRUE(start.printer);
  EXPECT_FALSE(start.calculator);

  const auto click = std::get<step::Click>(*ParseStep("dblclick frmA.Text1(3) 2"));
  EXPECT_EQ(click.target.form, "frmA");
  EXPECT_EQ(click.target.control, "Text1");
  EXPECT_EQ(click.target.index, 3);
  EXPECT_TRUE(click.twice);
  EXPECT_EQ(click.times, 2);

  const auto node = std::get<step::ClickNode>(*ParseStep("click frmHelp.Tree1 \"k7\""));
  EXPECT_EQ(node.key, "k7");
  EXPECT_FALSE(node.twice);

  EXPECT_EQ(std::get<step::Type>(*ParseStep("type frmA.Text1 \"12\"")).keys.size(), 2u);
  EXPECT_EQ(std::get<step::Select>(*ParseStep("select frmA.List1 -1")).row, -1);

  const auto expect = std::get<step::Expect>(*ParseStep("expect frmA.Chart1 point 2 \"[x] 1\""));
  EXPECT_EQ(expect.subject, "frmA.Chart1");
  ASSERT_EQ(expect.words.size(), 3u);
  EXPECT_TRUE(expect.words[2].quoted);
}

TEST(ScenarioParser, RefusesMalformedLines) {
  const struct {
    const char* line;
    const char* reason;
  } cases[] = {
      {"start fast", "unknown start modifier fast"},
      {"show", "show FORM"},
      {"type frmA.Text1 12", "type FORM.CTRL \"text\""},
      {"paste frmA \"x\"", "expected FORM.CTRL, got 'frmA'"},
      {"click frmA.cmdOk 1 2", "click FORM.CTRL [N]"},
      {"expect", "expect what?"},
      {"wave frmA", "unknown step 'wave'"},
  };
  for (const auto& c : cases) EXPECT_EQ(Failure([&] { ParseStep(c.line); }), c.reason) << c.line;
}

// Small scenarios on the real program, headless: the line a failing one
// stops at and the words it gives.
TEST(ScenarioRunner, PassesAndFailsWhereTheProgramSaysSo) {
  const std::string sigfig = "start\nshow frmSigfig\ntype frmSigfig.txtSigfig1 \"1.50{Enter}\"\n";
  const std::string unprinted = "start noprinter\nshow frmSigfig\ntype frmSigfig.txtSigfig1 \"1.50{Enter}\"\n";
  const std::string refused = "type frmSigfig.txtSigfig1 \"{Ctrl+X}\"\n";
  const struct {
    std::string text;
    int line;            // 0 when it passes
    const char* reason;  // part of the failure's words
  } cases[] = {
      {sigfig + "expect frmSigfig.txtSigfig2 \"3\"", 0, ""},
      {sigfig + "expect frmSigfig.txtSigfig2 \"4\"", 4, "shows \"3\", expected \"4\""},
      {sigfig + "expect frmSigfig.cmdOk disabled", 4, "is not disabled"},
      {sigfig + "expect frmSigfig.txtSigfig2 sparkly", 4, "unknown expectation 'sparkly'"},
      {sigfig + "expect frmSigfig caption \"Significant Figures\"\nexpect frmTitration unloaded", 0, ""},
      {sigfig + "expect frmSigfig caption \"Sig\"", 4, "has the caption"},
      {sigfig + "expect frmTitration loaded", 4, "frmTitration is not loaded"},
      {sigfig + refused + "expect msgbox \"You must enter a valid numerical expression\" icon=none", 0, ""},
      {sigfig + refused + "expect msgbox \"You must enter a valid numerical expression\" icon=critical", 5,
       "icon is none"},
      {sigfig + refused + "click frmSigfig.cmdClear", 5, "message box not expected"},
      {sigfig + refused, 4, "message box not expected"},
      {sigfig + "click frmSigfig.cmdPrint\nexpect printed frmSigfig", 0, ""},
      {sigfig + "click frmSigfig.cmdPrint\nexpect printed frmMain", 5, "frmSigfig was printed"},
      {sigfig + "expect printed frmSigfig", 4, "nothing was printed"},
      {sigfig + "expect beeps 1", 4, "0 beeps, expected 1"},
      {sigfig + "expect launched calculator", 4, "no calculator was launched"},
      {unprinted + "click frmSigfig.cmdPrint", 4, "the program ended: \"Printer error\""},
      {unprinted + "click frmSigfig.cmdPrint\nexpect ended \"Printer error\"\nnonsense", 0, ""},
      {unprinted + "click frmSigfig.cmdPrint\nexpect ended", 5, "ended on \"Printer error\""},
      {sigfig + "expect ended", 4, "the program has not ended"},
      {"show frmSigfig", 1, "the file must begin with start"},
      {"start\nstart", 2, "start given twice"},
  };
  Options options;
  options.exeDir = ORVANTA_BIN_DIR;
  for (const auto& c : cases) {
    std::istringstream in(c.text);
    const Result r = RunScenario(in, options);
    EXPECT_EQ(r.passed, c.line == 0) << c.text << "\n" << r.reason;
    if (c.line == 0) continue;
    EXPECT_EQ(r.line, c.line) << c.text;
    EXPECT_NE(r.reason.find(c.reason), std::string::npos) << c.text << "\n" << r.reason;
  }
}

}  // namespace
}  // namespace orv::scenario
