// Random use of every built screen: clicks, keys and pastes in any order.
// The program may end on an untrapped error where a screen's own rules say
// so, but it must never crash, and its screens must stay consistent.

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "tests/unit/screen_run.h"

namespace orv {
namespace {

// The keys a student might press, digits most of all.
const Key kKeys[] = {
    {'1', '1', 0},       {'2', '2', 0},
    {'5', '5', 0},       {'0', '0', 0},
    {190, '.', 0},       {'E', 'E', 1},
    {'E', 'e', 0},       {189, '-', 0},
    {187, '+', 0},       {'C', 'C', 1},
    {'L', 'l', 0},       {'H', 'H', 1},
    {'O', 'O', 1},       {'9', '(', 1},
    {'0', ')', 1},       {kKeyBack, 8, 0},
    {kKeyReturn, 13, 0}, {kKeyDelete, 0, 0},
    {kKeyLeft, 0, 0},    {kKeyTab, 0, 0},
    {kKeyEscape, 27, 0}, {'V', kCtrlV, kCtrlMask},
};
const char* const kPastes[] = {
    "", "0", "0.0", "1E", "-5", "1.2.3", "1E39", "123456789", "2Mn(NO3)2.10H2O", "CO2 + H2O => C6H12O6 + O2", "abc"};

// Runs one program until it ends or has taken `steps` actions; returns the
// actions taken.
int RunMonkey(unsigned seed, bool withDatabase, int steps) {
  SCOPED_TRACE("seed " + std::to_string(seed));
  test::ScreenRun run("", withDatabase ? ORVANTA_BIN_DIR : "");
  Program& program = run.program;
  std::mt19937 rng(seed);
  auto pick = [&rng](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n - 1)(rng); };

  std::vector<std::string> names;
  for (const auto& [name, factory] : AllScreens().screens) names.push_back(name);

  int step = 0;
  for (; step < steps && !program.Ended(); ++step) {
    if (pick(12) == 0) {
      const std::string name = names[pick(names.size())];
      program.UserAction([&] { program.Show(name); });
      continue;
    }
    Form* form = program.Front();
    EXPECT_NE(form, nullptr) << "no screen in front at step " << step;
    if (form == nullptr) return step;
    const auto& controls = form->controls();
    Control& c = *controls[pick(controls.size())];
    switch (pick(4)) {
      case 0: program.UserClick(c); break;
      case 1: program.UserKey(*form, form->ActiveControl(), kKeys[pick(std::size(kKeys))]); break;
      case 2:
        if (c.kind() == Kind::TextBox || c.kind() == Kind::RichText)
          program.UserEdit(c, kPastes[pick(std::size(kPastes))]);
        break;
      default:
        if (c.kind() == Kind::ListBox && c.ListCount() > 0) {
          program.UserSelectRow(c, static_cast<int>(pick(static_cast<std::size_t>(c.ListCount()))));
        } else {
          program.UserKey(*form, &c, kKeys[pick(std::size(kKeys))]);
        }
        break;
    }
    if (!program.Ended()) {
      for (Form* f : program.LoadedForms()) EXPECT_TRUE(f->Loaded());
    }
  }
  if (program.Ended()) {
    EXPECT_TRUE(program.LoadedForms().empty());
    if (program.EndedOnError()) {
      EXPECT_EQ(run.messages.fatal, program.EndWords());
    }
  }
  return step;
}

// Many screens end the program on a stray letter, as they should; fresh runs
// follow until enough actions have been taken in all.
void Monkey(bool withDatabase, unsigned firstSeed, int total) {
  int taken = 0;
  for (unsigned seed = firstSeed; taken < total; ++seed) taken += RunMonkey(seed, withDatabase, 400);
}

TEST(Monkey, RandomUseNeverCrashesWithTheDatabase) { Monkey(true, 1, 20000); }

TEST(Monkey, RandomUseNeverCrashesWithoutTheDatabase) { Monkey(false, 5000, 5000); }

}  // namespace
}  // namespace orv
