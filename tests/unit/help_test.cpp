// The tree view's nodes, and the help browser over the help files that lie
// beside the executables.

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "screen_run.h"
#include "shell/tree.h"

namespace orv {
namespace {

std::vector<std::string> ChildKeys(const Tree& t, std::string_view parent) {
  std::vector<std::string> out;
  for (const TreeNode* n : t.Children(parent)) out.push_back(n->key);
  return out;
}

TEST(Tree, NodesGoWhereTheirRelationshipSays) {
  Tree t;
  t.Add("r Root", "Root");
  t.Add("r Root", TreeRelation::Child, "b", "B");
  t.Add("r Root", TreeRelation::Child, "d", "D");
  t.Add("b", TreeRelation::First, "a", "A");
  t.Add("b", TreeRelation::Next, "c", "C");
  t.Add("a", TreeRelation::Last, "e", "E");
  t.Add("a", TreeRelation::Previous, "first", "First");
  t.Add("c", TreeRelation::Child, "c1", "C1");
  EXPECT_EQ(ChildKeys(t, "r Root"), (std::vector<std::string>{"first", "a", "b", "c", "d", "e"}));
  EXPECT_EQ(ChildKeys(t, "c"), (std::vector<std::string>{"c1"}));
  EXPECT_EQ(ChildKeys(t, ""), (std::vector<std::string>{"r Root"}));
  EXPECT_EQ(t.Find("c1")->parentKey, "c");
}

TEST(Tree, KeysMustBeUniqueNamesAndRelativesMustExist) {
  Tree t;
  t.Add("r Root", "Root");
  const std::function<void()> bad[] = {
      [&] { t.Add("r Root", "Again"); },
      [&] { t.Add("r Root", TreeRelation::Child, "r Root", "Again"); },
      [&] { t.Add("r Root", TreeRelation::Child, "42", "A number"); },
      [&] { t.Add("r Root", TreeRelation::Child, "", "No key"); },
      [&] { t.Add("nowhere", TreeRelation::Child, "x", "Orphan"); },
      [&] { t.Select("nowhere"); },
  };
  for (const auto& fn : bad) EXPECT_EQ(test::Raised(fn), "Invalid procedure call or argument");
  EXPECT_EQ(t.Count(), 1);
  t.Add("r Root", TreeRelation::Child, "s 42", "Prefixed number");
  EXPECT_EQ(t.Count(), 2);
}

TEST(Tree, ShownUnderOpenBranchesAndTheSelectedPicture) {
  Tree t;
  int changes = 0;
  t.onChange = [&] { ++changes; };
  t.SetImageList({"closed", "open"});
  t.Add("r", "Root", 1, 2);
  t.Add("r", TreeRelation::Child, "s", "Head", 1, 0);
  t.Add("s", TreeRelation::Child, "t", "Topic");
  t.Add("r", TreeRelation::Child, "x", "Bad index", 3, 2);
  EXPECT_TRUE(t.Shown("r"));
  EXPECT_FALSE(t.Shown("s"));
  t.SetExpanded("s", true);
  EXPECT_FALSE(t.Shown("t"));
  t.SetExpanded("r", true);
  EXPECT_TRUE(t.Shown("t"));
  t.SetExpanded("r", false);
  EXPECT_FALSE(t.Shown("t"));
  EXPECT_TRUE(t.Find("s")->expanded);

  EXPECT_EQ(t.PictureOf(*t.Find("r")), "closed");
  t.Select("r");
  EXPECT_EQ(t.PictureOf(*t.Find("r")), "open");
  t.Select("s");
  EXPECT_EQ(t.PictureOf(*t.Find("r")), "closed");
  EXPECT_EQ(t.PictureOf(*t.Find("s")), "closed");  // no selected picture of its own
  EXPECT_EQ(t.PictureOf(*t.Find("x")), "");
  t.Select("");
  EXPECT_EQ(t.SelectedItem(), nullptr);
  const int before = changes;
  t.Select("");
  t.SetExpanded("r", false);
  EXPECT_EQ(changes, before);  // no change, no news
}

// --- the help browser ---

struct HelpRun : test::ScreenRun {
  explicit HelpRun(const std::string& folder = ORVANTA_BIN_DIR) : ScreenRun("", folder), help(Show("frmHelp")) {}
  Control& tree() const { return help->ctl("TreeView1"); }
  Control& rtb() const { return help->ctl("RTB1"); }
  Form* help;
};

TEST(Help, EveryTopicOpensAFileOfItsOwnAndOnlyTheBareHeadsOpenNone) {
  HelpRun run;
  ASSERT_NE(run.help, nullptr);
  const Tree& tree = run.tree().tree();
  ASSERT_EQ(tree.Count(), 54);
  // Open every branch first, so that every node can be reached.
  for (const TreeNode& n : tree.Nodes()) {
    if (!tree.Children(n.key).empty()) run.tree().tree().SetExpanded(n.key, true);
  }
  std::set<std::string> texts;
  std::vector<std::string> bare;
  for (const TreeNode& n : tree.Nodes()) {
    run.program.UserAction([&] { run.rtb().SetText(""); });
    const bool wasOpen = n.expanded;
    UserDblClickNode(run.tree(), n.key);
    EXPECT_TRUE(run.messages.boxes.empty()) << n.text << ": " << run.messages.boxes.front();
    run.messages.boxes.clear();
    EXPECT_EQ(tree.SelectedItem(), &n);
    EXPECT_EQ(n.expanded, tree.Children(n.key).empty() ? wasOpen : !wasOpen) << n.text;
    if (run.rtb().Text().empty()) {
      bare.push_back(n.text);
    } else {
      texts.insert(run.rtb().Text());
    }
  }
  EXPECT_EQ(bare, (std::vector<std::string>{"Orvanta", "Tables", "Reactions", "Solutions", "Gases", "Energy"}));
  EXPECT_EQ(texts.size(), 48u);  // no two topics share a file
  EXPECT_FALSE(run.program.Ended());
}

TEST(Help, AMissingFileIsReportedAndTheTextStays) {
  HelpRun run("/nonexistent");
  ASSERT_NE(run.help, nullptr);
  run.program.UserEdit(run.rtb(), "my notes");
  run.tree().tree().SetExpanded("r Orvanta", true);
  UserDblClickNode(run.tree(), "s Introduction");
  EXPECT_EQ(run.messages.boxes, (test::Boxes{{"File not found", Icon::Information, "Orvanta"}}));
  EXPECT_EQ(run.rtb().Text(), "my notes");
  EXPECT_FALSE(run.program.Ended());
  EXPECT_TRUE(run.help->Visible());
}

TEST(Help, PrintingWithoutAPrinterOrDoubleClickingNoNodeEndsTheProgram) {
  for (const bool print : {true, false}) {
    HelpRun run;
    run.printer.available = false;
    if (print) {
      run.program.UserClick(run.help->ctl("cmdPrint"));
    } else {
      run.program.UserDblClick(run.tree());
    }
    EXPECT_TRUE(run.program.Ended());
    EXPECT_EQ(run.messages.fatal, print ? "Printer error" : "Object variable or With block variable not set");
  }
}

}  // namespace
}  // namespace orv
