// The Qt view on a small screen holding a control of every kind: each kind
// has an adapter that builds its widget, every property of the model reaches
// the widget, and a change of one property leaves what the others show as it
// was.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTest>
#include <set>
#include <string>
#include <vector>

#include "qtui/chart_widget.h"
#include "qtui/control_adapter.h"
#include "qtui/picture_widget.h"
#include "qtui/qt_view.h"
#include "qtui/rich_text_widget.h"
#include "qtui/tree_widget.h"
#include "shell/chart.h"
#include "shell/picture.h"
#include "shell/screen_frame.h"
#include "shell/tree.h"
#include "tests/qt/qt_run.h"

namespace orv::qt {
namespace {

constexpr ControlSpec kControls[] = {
    {Kind::Menu, "mnuFile", "&File"},
    {Kind::Menu, "mnuExit", "E&xit", {}, {}, "mnuFile"},
    {Kind::TextBox, "Text1", "12", {10, 10, 100, 20}},
    {Kind::Label, "Label1", "Mass", {10, 40, 100, 20}},
    {Kind::Button, "cmdOk", "Ok", {10, 70, 80, 25}, {}, {}, -1, kDefault},
    {Kind::Button, "cmdClear", "Clear", {100, 70, 80, 25}},
    {Kind::Frame, "Frame1", "Units", {200, 10, 150, 90}},
    {Kind::Option, "optGrams", "grams", {10, 20, 100, 20}, {}, "Frame1"},
    {Kind::Option, "optKilograms", "kilograms", {10, 50, 100, 20}, {}, "Frame1"},
    {Kind::CheckBox, "chkRound", "Round", {10, 100, 100, 20}},
    {Kind::ListBox, "List1", "", {10, 130, 150, 80}},
    {Kind::Image, "Image1", "", {200, 110, 64, 64}},
    {Kind::RichText, "Rich1", "", {10, 220, 150, 60}, {}, {}, -1, kMultiLine},
    {Kind::Picture, "Picture1", "", {200, 180, 80, 80}},
    {Kind::Chart, "Chart1", "", {300, 180, 150, 100}},
    {Kind::Tree, "Tree1", "", {170, 290, 150, 80}},
};

class frmAll : public Form {
 public:
  explicit frmAll(Program& p) : Form(p, {"frmAll", "All", 480, 380}, kControls) {
    for (const char* name : {"cmdOk", "Label1", "Frame1", "Image1", "chkRound", "mnuExit"}) {
      On(name, Ev::Click, [this, name](EventArgs&) { clicks.push_back(name); });
    }
  }
  std::vector<std::string> clicks;
};

const ScreenRegistry& Registry() {
  static const ScreenRegistry r = [] {
    ScreenRegistry reg;
    reg.main = [](Program& p) { p.Show("frmAll"); };
    reg.Add<frmAll>("frmAll");
    return reg;
  }();
  return r;
}

class QtViewTest : public ::testing::Test {
 protected:
  Control& C(const char* name) { return form_->ctl(name); }
  template <class W>
  W* Shown(const char* name) {
    return dynamic_cast<W*>(view_.Widget(C(name)));
  }
  QAction* Action(const char* name) { return view_.Window(*form_)->findChild<QAction*>(QString::fromLatin1(name)); }

  test::QtRun run_{Registry(), "/nonexistent"};
  qt::QtView& view_ = run_.view;
  Form* form_ = run_.program.Find("frmAll");
};

TEST_F(QtViewTest, EveryKindIsShownByTheWidgetOfItsAdapter) {
  const struct {
    const char* control;
    const char* widgetClass;
  } kCases[] = {
      {"Text1", "QLineEdit"},
      {"Label1", "QLabel"},
      {"cmdOk", "QPushButton"},
      {"optGrams", "QRadioButton"},
      {"chkRound", "QCheckBox"},
      {"Frame1", "QGroupBox"},
      {"List1", "QListWidget"},
      {"Image1", "QWidget"},
      {"Rich1", "QTextEdit"},
      {"Picture1", "orv::qt::PictureWidget"},
      {"Chart1", "orv::qt::ChartWidget"},
      {"Tree1", "QTreeWidget"},
  };
  std::set<Kind> kinds;
  for (const auto& c : kCases) {
    QWidget* w = view_.Widget(C(c.control));
    ASSERT_NE(w, nullptr) << c.control;
    EXPECT_TRUE(w->inherits(c.widgetClass)) << c.control << " is a " << w->metaObject()->className();
    EXPECT_EQ(w->objectName(), QString::fromLatin1(c.control));
    EXPECT_EQ(view_.ControlOf(w), &C(c.control));
    kinds.insert(C(c.control).kind());
  }
  // A menu entry is an action of the window, not a widget.
  EXPECT_EQ(view_.Widget(C("mnuExit")), nullptr);
  ASSERT_NE(Action("mnuExit"), nullptr);
  EXPECT_EQ(view_.ControlOf(Action("mnuExit")), &C("mnuExit"));
  kinds.insert(Kind::Menu);
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(Kind::Tree) + 1) << "a kind is missing from this screen";
  // Controls of a frame stand in the frame.
  EXPECT_EQ(view_.Widget(C("optGrams"))->parentWidget(), view_.Widget(C("Frame1")));
}

TEST_F(QtViewTest, TheDesignTextReachesEveryKindOnLoading) {
  EXPECT_EQ(Shown<QLineEdit>("Text1")->text(), "12");
  EXPECT_EQ(Shown<QLabel>("Label1")->text(), "Mass");
  EXPECT_EQ(Shown<QPushButton>("cmdOk")->text(), "Ok");
  EXPECT_TRUE(Shown<QPushButton>("cmdOk")->isDefault());
  EXPECT_EQ(Shown<QRadioButton>("optGrams")->text(), "grams");
  EXPECT_EQ(Shown<QCheckBox>("chkRound")->text(), "Round");
  EXPECT_EQ(Shown<QGroupBox>("Frame1")->title(), "Units");
  EXPECT_EQ(Action("mnuExit")->text(), "E&xit");
  EXPECT_EQ(Action("mnuFile")->text(), "&File");
}

TEST_F(QtViewTest, EachPropertyOfTheModelReachesTheWidget) {
  C("Text1").SetText("3.5");
  EXPECT_EQ(Shown<QLineEdit>("Text1")->text(), "3.5");
  C("Text1").SetSelection(1, 2);
  EXPECT_EQ(Shown<QLineEdit>("Text1")->selectionStart(), 1);
  EXPECT_EQ(Shown<QLineEdit>("Text1")->selectedText(), ".5");
  C("Label1").SetCaption("Volume");
  EXPECT_EQ(Shown<QLabel>("Label1")->text(), "Volume");
  C("Frame1").SetCaption("Scale");
  EXPECT_EQ(Shown<QGroupBox>("Frame1")->title(), "Scale");

  C("cmdClear").SetDefault(true);
  EXPECT_TRUE(Shown<QPushButton>("cmdClear")->isDefault());
  EXPECT_FALSE(Shown<QPushButton>("cmdOk")->isDefault());
  C("optGrams").SetValue(true);
  C("optKilograms").SetValue(true);
  EXPECT_FALSE(Shown<QRadioButton>("optGrams")->isChecked());
  EXPECT_TRUE(Shown<QRadioButton>("optKilograms")->isChecked());
  C("chkRound").SetValue(true);
  EXPECT_TRUE(Shown<QCheckBox>("chkRound")->isChecked());

  C("List1").AddItem("first");
  C("List1").AddItem("second");
  C("List1").SetListIndex(1);
  EXPECT_EQ(Shown<QListWidget>("List1")->count(), 2);
  EXPECT_EQ(Shown<QListWidget>("List1")->currentRow(), 1);
  C("List1").Clear();
  EXPECT_EQ(Shown<QListWidget>("List1")->count(), 0);
  EXPECT_EQ(Shown<QListWidget>("List1")->currentRow(), -1);

  C("Rich1").SetText("H2O");
  EXPECT_EQ(Shown<RichTextWidget>("Rich1")->toPlainText(), "H2O");
  C("Picture1").picture().Circle(0.5, 0.5, 0.1);
  EXPECT_EQ(Shown<PictureWidget>("Picture1")->Items().size(), 1u);
  C("Chart1").chart().SetTitle("Radii");
  EXPECT_EQ(Shown<ChartWidget>("Chart1")->Content().title, "Radii");
  C("Tree1").tree().Add("root", "Contents");
  EXPECT_NE(Shown<TreeWidget>("Tree1")->ItemOf("root"), nullptr);

  C("mnuExit").SetCaption("Quit");
  C("mnuExit").SetEnabled(false);
  C("mnuFile").SetVisible(false);
  EXPECT_EQ(Action("mnuExit")->text(), "Quit");
  EXPECT_FALSE(Action("mnuExit")->isEnabled());
  EXPECT_FALSE(Action("mnuFile")->isVisible());
}

TEST_F(QtViewTest, EnabledVisibleToolTipAndColoursReachEveryWidgetAlike) {
  for (const char* name : {"Text1", "Label1", "cmdOk", "Frame1", "List1", "Rich1", "Chart1", "Tree1"}) {
    SCOPED_TRACE(name);
    QWidget* w = view_.Widget(C(name));
    C(name).SetToolTip("tip");
    EXPECT_EQ(w->toolTip(), "tip");
    C(name).SetEnabled(false);
    EXPECT_FALSE(w->isEnabled());
    C(name).SetVisible(false);
    EXPECT_TRUE(w->isHidden());
    C(name).SetVisible(true);
    EXPECT_FALSE(w->isHidden());
  }
  // A button's colours are its face and caption; a label's its ground and text.
  C("cmdOk").SetBackColor(0xE0E0E0);
  C("Label1").SetForeColor(0x800000);
  EXPECT_EQ(view_.Widget(C("cmdOk"))->palette().color(QPalette::Button), QColor(0xE0, 0xE0, 0xE0));
  EXPECT_EQ(view_.Widget(C("Label1"))->palette().color(QPalette::WindowText), QColor(0x80, 0, 0));
  // Without a colour of its own the label's text is the style's again (a
  // disabled label may keep a palette that only makes its dimmed text readable).
  C("Label1").SetForeColor(kNoColor);
  EXPECT_EQ(view_.Widget(C("Label1"))->palette().color(QPalette::Active, QPalette::WindowText),
            QApplication::palette().color(QPalette::Active, QPalette::WindowText));
}

TEST_F(QtViewTest, ARichTextPageKeepsItsScrollingWhenAnotherPropertyChanges) {
  std::string text;
  for (int i = 0; i < 60; ++i) text += "line " + std::to_string(i) + "\n";
  C("Rich1").SetText(text);
  auto* rich = Shown<RichTextWidget>("Rich1");
  view_.Window(*form_)->show();
  QScrollBar* bar = rich->verticalScrollBar();
  ASSERT_GT(bar->maximum(), 0);
  bar->setValue(bar->maximum());  // the reader scrolled down; the caret stays at the top
  C("Rich1").SetToolTip("Help");
  C("Rich1").SetBackColor(0xFFFFE0);
  C("Rich1").SetEnabled(false);
  EXPECT_EQ(bar->value(), bar->maximum());
  // A new text brings its caret, at the start, into sight.
  C("Rich1").SetText("new\n" + text);
  EXPECT_EQ(bar->value(), 0);
}

TEST_F(QtViewTest, ATextBoxKeepsItsSelectionWhenAnotherPropertyChanges) {
  auto* edit = Shown<QLineEdit>("Text1");
  {
    const QSignalBlocker quiet(edit);  // a selection the model has not been told of yet
    edit->setSelection(0, 1);
  }
  C("Text1").SetToolTip("grams");
  C("Text1").SetForeColor(0x0000FF);
  C("Text1").SetEnabled(false);
  EXPECT_EQ(edit->selectedText(), "1");
  C("Text1").SetText("34");
  EXPECT_FALSE(edit->hasSelectedText());
  EXPECT_EQ(edit->cursorPosition(), 0);
}

TEST_F(QtViewTest, AListKeepsItsRowsWhenOnlyTheSelectionChanges) {
  C("List1").AddItem("a");
  C("List1").AddItem("b");
  auto* list = Shown<QListWidget>("List1");
  QListWidgetItem* first = list->item(0);
  C("List1").SetListIndex(1);
  C("List1").SetToolTip("rows");
  EXPECT_EQ(list->item(0), first);
  C("List1").AddItem("c");
  EXPECT_EQ(list->count(), 3);
  EXPECT_EQ(list->currentRow(), 1);
}

TEST_F(QtViewTest, ClicksOnTheWidgetsReachTheRuntime) {
  view_.Window(*form_)->show();
  Shown<QPushButton>("cmdOk")->click();
  Shown<QCheckBox>("chkRound")->click();
  Action("mnuExit")->trigger();
  // Labels, frames and the emblem have no clicked signal: a release is the click.
  for (const char* name : {"Label1", "Frame1", "Image1"}) {
    QWidget* w = view_.Widget(C(name));
    QTest::mouseClick(w, Qt::LeftButton, {}, QPoint(5, 5));
  }
  EXPECT_EQ(static_cast<frmAll*>(form_)->clicks,
            (std::vector<std::string>{"cmdOk", "chkRound", "mnuExit", "Label1", "Frame1", "Image1"}));
  // The model decides a check box's state.
  EXPECT_TRUE(C("chkRound").Value());
  EXPECT_TRUE(Shown<QCheckBox>("chkRound")->isChecked());
}

}  // namespace
}  // namespace orv::qt
