// What a screen reader is told, worked out from the control tables: every
// control a user reaches on every registered screen has a name, every box
// and list its prompt, and the prompts chosen are the ones a sighted user
// reads beside or above the box. Also the arrow keys among buttons.

#include "shell/accessible.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "shell/arrow_keys.h"
#include "shell/form.h"
#include "tests/unit/screen_run.h"

namespace orv {
namespace {

using Shown = test::RealRun;

// Every registered screen, shown from its route on the real database: its
// rows agree (a name declared once, a container that exists, a key filter only
// on a box, one default and one cancel button at most), and every control a
// user reaches has a name, every input box its prompt.
TEST(EveryScreen, RowsAgreeAndEveryReachableControlIsNamed) {
  Shown run;
  int screens = 0, controls = 0;
  for (const auto& [name, factory] : AllScreens().screens) {
    Form* form = run.Show(name);
    ASSERT_NE(form, nullptr) << name;
    ++screens;
    EXPECT_EQ(form->name(), name);
    EXPECT_FALSE(WindowName(*form).empty()) << name;
    std::set<std::string> keys;
    int defaults = 0, cancels = 0;
    for (const auto& owned : form->controls()) {
      const Control& c = *owned;
      const std::string where = name + "." + c.key();
      EXPECT_TRUE(keys.insert(c.key()).second) << where << " is declared twice";
      EXPECT_TRUE(c.container().empty() || form->find(c.container()) != nullptr) << where << " sits nowhere";
      EXPECT_TRUE(c.kind() == Kind::TextBox || c.filter() == nullptr) << where << " has a key filter";
      defaults += c.IsDefault() ? 1 : 0;
      cancels += c.IsCancel() ? 1 : 0;
      if (!IsInteractive(c.kind()) || !c.Visible()) continue;
      ++controls;
      EXPECT_FALSE(AccessibleName(c).empty()) << where;
      // A box that its own label does not prompt for names itself by its
      // tool tip or as the working line; anything else is a gap.
      if (c.kind() == Kind::TextBox && PromptLabel(c) == nullptr) {
        EXPECT_TRUE(!c.ToolTip().empty() || !c.Enabled() || name == "frmHelp") << where << " has no label";
      }
    }
    EXPECT_LE(defaults, 1) << name;
    EXPECT_LE(cancels, 1) << name;
    if (name != "frmMain") run.program.UserAction([&] { run.program.Unload(name); });
  }
  EXPECT_FALSE(run.program.Ended());
  EXPECT_GT(screens, 60);
  EXPECT_GT(controls, 600);
}

// Boxes and their prompts as the screens lay them out: on the row to the
// left, above, inside a frame, and the boxes that have none.
TEST(AccessibleNames, PromptLabelsFollowTheLayout) {
  struct Case {
    const char* screen;
    const char* box;
    const char* label;  // "" for none
  };
  const Case cases[] = {
      {"frmCharlesLaw", "txtInitialTemperature", "Label1"},  // row, left
      {"frmCharlesLaw", "txtFinalAnswer", "Label4"},         // the result box
      {"frmCharlesLaw", "Text1", ""},                        // working line: the labels above belong to the answer
      {"frmPeriodicData", "Text1", "Label1"},
      {"frmPeriodicData", "Text8", "Label8"},  // right column
      {"frmPeriodicData", "Text14", "Label14"},
      {"fmrMoles", "txtMoles1", "lblMoles1"},
      {"fmrMoles", "lstList1", "lblMoles2"},   // a list under its caption
      {"fmrMoles", "txtMoles3", "lblMoles4"},  // just above
      {"fmrMoles", "Text1", ""},               // below the answer, nothing between counts
      {"frmBuildAtoms", "Text6", "Label6"},
      {"frmFreezing", "Text1", "Label2"},
      {"frmHelp", "TreeView1", ""},
      {"frmWeights", "txtHydrate", "chk2"},  // a check box switches the box on
  };
  Shown run;
  for (const Case& k : cases) {
    SCOPED_TRACE(std::string(k.screen) + "." + k.box);
    Form& form = run.Open(k.screen);
    const Control* label = PromptLabel(form.ctl(k.box));
    EXPECT_EQ(label != nullptr ? label->name() : std::string(), k.label);
  }
}

TEST(AccessibleNames, NamesReadTheCurrentCaptions) {
  Shown run;
  Form& charles = run.Open("frmCharlesLaw");
  // The second option rewrites the prompts; the names follow.
  run.program.UserClick(charles.ctl("opt2"));
  EXPECT_EQ(AccessibleName(charles.ctl("txtFinalEntry")), WithoutMnemonic(charles.ctl("Label3").Caption()));
  EXPECT_EQ(AccessibleName(charles.ctl("txtFinalAnswer")), "The final volume is");
  EXPECT_EQ(AccessibleName(charles.ctl("Text1")), "Calculation");
  // A button whose caption is a sign goes by its tool tip.
  EXPECT_EQ(AccessibleName(charles.ctl("cmdHelp")), "Press for help");
  EXPECT_EQ(AccessibleName(charles.ctl("cmdOk")), "Ok");

  Form& periodic = run.Open("frmPeriodic");
  EXPECT_EQ(WindowName(periodic), "Orvanta");

  // Members of a control array share their prompt, numbered.
  Form& weights = run.Open("frmWeights");
  EXPECT_EQ(AccessibleName(weights.ctl("txtComposition", 2)),
            WithoutMnemonic(weights.ctl("chk1").Caption()) + " 3");  // a screen with no caption
  EXPECT_EQ(WindowName(charles), charles.Caption());
}

TEST(AccessibleNames, TheAtomPictureSaysWhatItDraws) {
  Shown run;
  Form& atoms = run.Open("frmBuildAtoms");
  const Control& picture = atoms.ctl("Picture1");
  EXPECT_EQ(AccessibleName(picture), "Atom");
  EXPECT_EQ(AccessibleDescription(picture), "Protons 0; Neutrons 0; Electrons 0; Energy Levels 0");
  run.program.UserClick(atoms.ctl("cmdProton"));
  run.program.UserClick(atoms.ctl("cmdProton"));
  run.program.UserClick(atoms.ctl("cmdNeutrons"));
  run.program.UserClick(atoms.ctl("cmdEnergyLevel"));
  run.program.UserClick(atoms.ctl("cmdElectrons"));
  EXPECT_EQ(AccessibleDescription(picture),
            "The atom is " + atoms.ctl("Text1").Text() + "; Protons 2; Neutrons 1; Electrons 1; Energy Levels 1");
}

TEST(AccessibleNames, MnemonicsAreNotRead) {
  const std::pair<const char*, const char*> cases[] = {
      {"E&xit", "Exit"}, {"&File", "File"}, {"Mass && Weight", "Mass & Weight"}, {"Plain", "Plain"}, {"&", "&"}};
  for (const auto& [caption, read] : cases) EXPECT_EQ(WithoutMnemonic(caption), read) << caption;
}

// The periodic table by arrow keys: rows and columns of the grid, the gap in
// the first row, and the two series rows below the table.
TEST(ArrowKeys, MoveThroughThePeriodicTable) {
  struct Case {
    const char* from;
    int key;
    const char* to;  // "" for staying put
  };
  // The paths of the periodic table's scenario (H right and down to Lr, Fe
  // down, left and up to Mn, He left to H) are not repeated here. B has no
  // button above it in its column: Up takes the nearest upward. Cancel stands
  // under the last column; nothing stands right of Lr, or left of or above H.
  const Case cases[] = {
      {"cmdH", kKeyDown, "cmdLi"},  {"cmdB", kKeyUp, "cmdHe"},
      {"cmdFe", kKeyLeft, "cmdMn"}, {"cmdLr", kKeyDown, "cmdCancel"},
      {"cmdLr", kKeyRight, ""},     {"cmdH", kKeyLeft, ""},
      {"cmdH", kKeyUp, ""},
  };
  Shown run;
  Form& form = run.Open("frmPeriodic");
  for (const Case& k : cases) {
    SCOPED_TRACE(std::string(k.from) + " key " + std::to_string(k.key));
    const Control* to = ButtonToward(form.ctl(k.from), k.key);
    EXPECT_EQ(to != nullptr ? to->name() : std::string(), k.to);
  }
}

}  // namespace
}  // namespace orv
