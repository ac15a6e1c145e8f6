// The rules a screen's routines meet, on a small screen of its own: boxes
// emptied in order, and a routine bound to a control the table lacks, or a
// box emptied that is not there, aborting rather than failing on the day a
// user presses the button.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "shell/program.h"
#include "tests/support/fake_services.h"

namespace orv {
namespace {

constexpr ControlSpec kControls[] = {
    {.kind = Kind::TextBox, .name = "Text1"},
    {.kind = Kind::TextBox, .name = "Text2"},
    {.kind = Kind::TextBox, .name = "Text3"},
    {.kind = Kind::Label, .name = "Label1", .index = 0},
    {.kind = Kind::Label, .name = "Label1", .index = 1},
};

// Logs each box's Change with the text it holds then.
class frmBoxes : public Form {
 public:
  explicit frmBoxes(Program& p) : Form(p, {"frmBoxes", "Boxes", 100, 100}, kControls) {
    for (const char* box : {"Text1", "Text2", "Text3"}) {
      On(box, Ev::Change, [this, box](EventArgs&) { log.push_back(std::string(box) + "=" + ctl(box).Text()); });
    }
  }
  void BindTo(std::string_view control) {
    On(control, Ev::Click, [](EventArgs&) {});
  }
  std::vector<std::string> log;
};

class ScreenRulesTest : public ::testing::Test {
 protected:
  test::FakeMessages messages;
  ScreenRegistry registry;
  Program program{registry, {.messages = &messages}, "/nonexistent"};
  frmBoxes form{program};
};

TEST_F(ScreenRulesTest, EmptyBoxesEmptiesInTheGivenOrderRaisingChangeForEachThatHeldText) {
  form.ctl("Text1").SetText("1");
  form.ctl("Text2").SetText("2");
  form.ctl("Text3").SetText("3");
  form.log.clear();
  form.EmptyBoxes({"Text3", "Text1", "Text2"});
  EXPECT_EQ(form.log, (std::vector<std::string>{"Text3=", "Text1=", "Text2="}));

  // An empty box raises nothing; the table form of the call keeps its order too.
  form.ctl("Text2").SetText("x");
  form.log.clear();
  constexpr std::string_view kBoxes[] = {"Text2", "Text1"};
  form.EmptyBoxes(kBoxes);
  EXPECT_EQ(form.log, (std::vector<std::string>{"Text2="}));
}

TEST_F(ScreenRulesTest, BindingTheScreenOrADeclaredControlIsAccepted) {
  for (std::string_view name : {"Form", "Text1", "Label1"}) form.BindTo(name);
  EXPECT_TRUE(form.HasHandler("Label1", Ev::Click));
}

using ScreenRulesDeathTest = ScreenRulesTest;

TEST_F(ScreenRulesDeathTest, NamingAnUndeclaredControlAborts) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const std::pair<std::string_view, std::string_view> cases[] = {
      {"Text4", "frmBoxes binds Text4, a control it does not declare"},
      {"text1", "frmBoxes binds text1, a control it does not declare"},  // capitals count
      {"", "frmBoxes binds , a control it does not declare"},
  };
  for (const auto& [name, words] : cases) EXPECT_DEATH(form.BindTo(name), words.data()) << name;
  EXPECT_DEATH(form.ctl("Text9"), "frmBoxes has no control Text9");
  EXPECT_DEATH(form.ctl("Label1"), "frmBoxes has no control Label1\\(-1\\)");  // an array needs its index
  EXPECT_DEATH(form.EmptyBoxes({"Text1", "Txet2"}), "frmBoxes has no control Txet2");
}

}  // namespace
}  // namespace orv
