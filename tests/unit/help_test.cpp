// The tree view's nodes, and the help browser over the help files that lie
// beside the executables.

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "app/registry.h"
#include "shell/program.h"
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
  EXPECT_EQ(t.Count(), 8);
}

TEST(Tree, KeysMustBeUniqueNamesAndRelativesMustExist) {
  Tree t;
  t.Add("r Root", "Root");
  auto fails = [](auto&& fn) {
    try {
      fn();
    } catch (const RuntimeError& e) {
      return e.code() == ErrorCode::InvalidProcedureCall;
    }
    return false;
  };
  EXPECT_TRUE(fails([&] { t.Add("r Root", "Again"); }));
  EXPECT_TRUE(fails([&] { t.Add("r Root", TreeRelation::Child, "r Root", "Again"); }));
  EXPECT_TRUE(fails([&] { t.Add("r Root", TreeRelation::Child, "42", "A number"); }));
  EXPECT_TRUE(fails([&] { t.Add("r Root", TreeRelation::Child, "", "No key"); }));
  EXPECT_TRUE(fails([&] { t.Add("nowhere", TreeRelation::Child, "x", "Orphan"); }));
  EXPECT_TRUE(fails([&] { t.Select("nowhere"); }));
  EXPECT_EQ(t.Count(), 1);
  t.Add("r Root", TreeRelation::Child, "s 42", "Prefixed number");
  EXPECT_EQ(t.Count(), 2);
}

TEST(Tree, ANodeShowsWhenEveryBranchAboveIsOpen) {
  Tree t;
  t.Add("r", "Root");
  t.Add("r", TreeRelation::Child, "s", "Head");
  t.Add("s", TreeRelation::Child, "t", "Topic");
  EXPECT_TRUE(t.Shown("r"));
  EXPECT_FALSE(t.Shown("s"));
  t.SetExpanded("s", true);
  EXPECT_FALSE(t.Shown("t"));
  t.SetExpanded("r", true);
  EXPECT_TRUE(t.Shown("t"));
  t.SetExpanded("r", false);
  EXPECT_FALSE(t.Shown("t"));
  EXPECT_TRUE(t.Find("s")->expanded);
}

TEST(Tree, TheSelectedNodeShowsItsSelectedPicture) {
  Tree t;
  int changes = 0;
  t.onChange = [&] { ++changes; };
  t.SetImageList({"closed", "open"});
  t.Add("r", "Root", 1, 2);
  t.Add("r", TreeRelation::Child, "s", "Head", 1, 0);
  t.Add("r", TreeRelation::Child, "x", "Bad index", 3, 2);
  EXPECT_EQ(t.PictureOf(*t.Find("r")), "closed");
  t.Select("r");
  EXPECT_EQ(t.SelectedItem()->key, "r");
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

class Messages : public MessageService {
 public:
  void Show(std::string_view text, Icon icon, std::string_view title) override {
    boxes.push_back(std::string(title) + "|" + std::to_string(static_cast<int>(icon)) + "|" + std::string(text));
  }
  void ShowFatal(std::string_view words) override { fatal = std::string(words); }
  std::vector<std::string> boxes;
  std::string fatal;
};
class Printer : public PrintService {
 public:
  explicit Printer(bool available) : available_(available) {}
  void PrintImage(Form& form) override {
    if (!available_) Raise(ErrorCode::PrinterError);
    printed.push_back(form.name());
  }
  std::vector<std::string> printed;

 private:
  bool available_;
};
class Launcher : public LaunchService {
 public:
  void LaunchCalculator() override {}
};

struct HelpRun {
  explicit HelpRun(const std::string& dir, bool printer = true)
      : printer(printer), program(AllScreens(), {&messages, &this->printer, &launcher, nullptr}, dir) {
    program.Start();
    messages.boxes.clear();  // the start-up's own messages
    program.UserAction([&] { program.Show("frmHelp"); });
    help = program.Find("frmHelp");
  }
  Control& tree() const { return help->ctl("TreeView1"); }
  Control& rtb() const { return help->ctl("RTB1"); }

  Messages messages;
  Printer printer;
  Launcher launcher;
  Program program;
  Form* help = nullptr;
};

std::string FileText(const std::string& name) {
  std::ifstream in(std::string(ORVANTA_BIN_DIR) + "/" + name, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

TEST(Help, EveryTopicOpensAFileOfItsOwnAndOnlyTheBareHeadsOpenNone) {
  HelpRun run(ORVANTA_BIN_DIR);
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

TEST(Help, TopicsAreFoundByTheirVisibleText) {
  HelpRun run(ORVANTA_BIN_DIR);
  run.tree().tree().SetExpanded("r Orvanta", true);
  run.tree().tree().SetExpanded("s Gases", true);
  UserDblClickNode(run.tree(), "s Molecular Weight");  // shown as "Molecular  Weight"
  EXPECT_EQ(run.rtb().Text(), FileText("MolecularWeight.txt"));
  UserDblClickNode(run.tree(), "s Moles");
  EXPECT_EQ(run.rtb().Text(), FileText("Moles.txt"));
  EXPECT_TRUE(run.tree().tree().Find("s Moles")->expanded);
  EXPECT_TRUE(run.messages.boxes.empty());
}

TEST(Help, AMissingFileIsReportedAndTheTextStays) {
  HelpRun run("/nonexistent");
  ASSERT_NE(run.help, nullptr);
  run.program.UserEdit(run.rtb(), "my notes");
  run.tree().tree().SetExpanded("r Orvanta", true);
  UserDblClickNode(run.tree(), "s Introduction");
  EXPECT_EQ(run.messages.boxes, (std::vector<std::string>{"Orvanta|1|File not found"}));
  EXPECT_EQ(run.rtb().Text(), "my notes");
  EXPECT_FALSE(run.program.Ended());
  EXPECT_TRUE(run.help->Visible());
}

TEST(Help, ClearCancelAndPrint) {
  HelpRun run(ORVANTA_BIN_DIR);
  run.tree().tree().SetExpanded("r Orvanta", true);
  UserDblClickNode(run.tree(), "s Using");
  ASSERT_FALSE(run.rtb().Text().empty());
  run.program.UserClick(run.help->ctl("cmdPrint"));
  EXPECT_EQ(run.printer.printed, (std::vector<std::string>{"frmHelp"}));
  run.program.UserClick(run.help->ctl("cmdClear"));
  EXPECT_EQ(run.rtb().Text(), "");
  EXPECT_EQ(run.tree().tree().SelectedItem()->key, "s Using");
  EXPECT_TRUE(run.tree().tree().Find("r Orvanta")->expanded);
  run.program.UserClick(run.help->ctl("cmdCancel"));
  EXPECT_EQ(run.program.Find("frmHelp"), nullptr);
  EXPECT_FALSE(run.program.Ended());
}

TEST(Help, PrintingWithoutAPrinterEndsTheProgram) {
  HelpRun run(ORVANTA_BIN_DIR, false);
  run.program.UserClick(run.help->ctl("cmdPrint"));
  EXPECT_TRUE(run.program.Ended());
  EXPECT_EQ(run.messages.fatal, "Printer error");
}

TEST(Help, ADoubleClickWithNoNodeSelectedEndsTheProgram) {
  HelpRun run(ORVANTA_BIN_DIR);
  run.program.UserDblClick(run.tree());
  EXPECT_TRUE(run.program.Ended());
  EXPECT_EQ(run.messages.fatal, "Object variable or With block variable not set");
}

}  // namespace
}  // namespace orv
