// The screens' control tables and bindings, checked when each screen is
// built: a routine bound to a control the table lacks, a box emptied that is
// not there, or a table whose rows contradict each other fails here rather
// than on the day a user presses the button.

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "app/registry.h"
#include "shell/program.h"

namespace orv {
namespace {

class QuietMessages : public MessageService {
 public:
  void Show(std::string_view, Icon, std::string_view) override {}
  void ShowFatal(std::string_view) override {}
};

// Building a screen binds its routines; a name its table does not declare
// aborts there, naming the screen and the control.
TEST(ScreenTables, EveryScreenBuildsAndItsRowsAgree) {
  QuietMessages messages;
  Program program(AllScreens(), {.messages = &messages}, "/nonexistent");
  ASSERT_FALSE(AllScreens().screens.empty());
  for (const auto& [name, factory] : AllScreens().screens) {
    SCOPED_TRACE(name);
    const std::unique_ptr<Form> form = factory(program);
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->name(), name);
    EXPECT_FALSE(form->controls().empty());

    std::set<std::string> keys;
    int defaults = 0;
    int cancels = 0;
    for (const auto& c : form->controls()) {
      EXPECT_TRUE(keys.insert(c->key()).second) << c->key() << " is declared twice";
      if (!c->container().empty()) {
        EXPECT_NE(form->find(c->container()), nullptr) << c->key() << " sits in undeclared " << c->container();
      }
      if (c->kind() != Kind::TextBox) {
        EXPECT_EQ(c->filter(), nullptr) << c->key() << " has a key filter";
      }
      defaults += c->IsDefault() ? 1 : 0;
      cancels += c->IsCancel() ? 1 : 0;
    }
    EXPECT_LE(defaults, 1);
    EXPECT_LE(cancels, 1);
  }
}

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
  QuietMessages messages;
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
