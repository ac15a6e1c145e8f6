// Every registered screen as assistive technology sees it through Qt: each
// control a user works with has a name, option buttons are radio buttons,
// text entries are named or labelled, and each window is a named window.
// Also the focus ring: a keyboard user sees which button has the focus.

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QRadioButton>
#include <string>
#include <vector>

#include "qtui/qt_program.h"
#include "qtui/qt_view.h"
#include "shell/accessible.h"
#include "shell/chart.h"
#include "tests/qt/qt_run.h"

namespace orv::qt {
namespace {

using test::QtRun;

bool NeedsName(QAccessible::Role role) {
  switch (role) {
    case QAccessible::PushButton:
    case QAccessible::EditableText:
    case QAccessible::RadioButton:
    case QAccessible::CheckBox:
    case QAccessible::List:
    case QAccessible::ListItem:
    case QAccessible::Tree:
    case QAccessible::TreeItem:
    case QAccessible::MenuItem: return true;
    default: return false;
  }
}

struct Findings {
  int controls = 0;
  int options = 0;
  std::vector<std::string> problems;
};

// Walks what a screen reader walks, from the window down.
void Walk(QAccessibleInterface* node, const std::string& where, Findings& out) {
  if (node == nullptr || !node->isValid()) return;
  const QAccessible::Role role = node->role();
  const QAccessible::State state = node->state();
  const std::string name = node->text(QAccessible::Name).trimmed().toStdString();
  QWidget* widget = qobject_cast<QWidget*>(node->object());
  const std::string what = where + " " + (widget != nullptr ? widget->objectName().toStdString() : std::string("?"));
  if (widget != nullptr && qobject_cast<QRadioButton*>(widget) != nullptr) {
    ++out.options;
    if (role != QAccessible::RadioButton) out.problems.push_back(what + ": an option button with another role");
  }
  if (NeedsName(role) && !state.invisible) {
    ++out.controls;
    if (name.empty()) out.problems.push_back(what + ": no name (role " + std::to_string(role) + ")");
    if (role == QAccessible::EditableText && name.empty() && node->relations(QAccessible::Label).isEmpty()) {
      out.problems.push_back(what + ": an entry neither named nor labelled");
    }
  }
  for (int i = 0; i < node->childCount(); ++i) Walk(node->child(i), where, out);
}

TEST(QtAccessibility, EveryScreenIsNamedAndHasTheRightRoles) {
  QtRun run;
  Findings all;
  int screens = 0;
  for (const std::string& name : test::ScreenNames()) {
    Form* form = run.Show(name);
    ASSERT_NE(form, nullptr) << name;
    QWidget* window = run.view.Window(*form);
    ASSERT_NE(window, nullptr) << name;
    QAccessibleInterface* top = QAccessible::queryAccessibleInterface(window);
    ASSERT_NE(top, nullptr) << name;
    const QAccessible::Role role = top->role();
    EXPECT_TRUE(role == QAccessible::Window || role == QAccessible::Dialog) << name << " has role " << role;
    EXPECT_FALSE(top->text(QAccessible::Name).trimmed().isEmpty()) << name << " has no name";
    Walk(top, name, all);
    ++screens;
    if (name != "frmMain") run.Unload(name);
  }
  for (const std::string& p : all.problems) ADD_FAILURE() << p;
  EXPECT_GT(screens, 60);
  EXPECT_GT(all.controls, 700);
  EXPECT_GT(all.options, 60);
}

// The names themselves are worked out, and checked, below the view; here the
// box's prompt must reach Qt as its label relation, and a rewritten prompt
// must reach the name Qt reads out.
TEST(QtAccessibility, BoxesAreLabelledByTheirPromptsAndFollowThem) {
  QtRun run;
  Form& form = run.Open("frmCharlesLaw");
  QAccessibleInterface* box = QAccessible::queryAccessibleInterface(run.view.Widget(form.ctl("txtFinalEntry")));
  ASSERT_NE(box, nullptr);
  const auto labels = box->relations(QAccessible::Label);
  ASSERT_EQ(labels.size(), 1);
  EXPECT_EQ(labels.first().first->object(), run.view.Widget(form.ctl("Label3")));
  run.program.UserClick(form.ctl("opt2"));
  EXPECT_EQ(box->text(QAccessible::Name).toStdString(), AccessibleName(form.ctl("txtFinalEntry")));
  EXPECT_TRUE(QAccessible::queryAccessibleInterface(run.view.Widget(form.ctl("opt2")))->state().checked);
}

TEST(QtAccessibility, PicturesAndChartsSayWhatTheyShow) {
  QtRun run;
  Form& atoms = run.Open("frmBuildAtoms");
  run.program.UserClick(atoms.ctl("cmdProton"));
  QAccessibleInterface* picture = QAccessible::queryAccessibleInterface(run.view.Widget(atoms.ctl("Picture1")));
  ASSERT_NE(picture, nullptr);
  EXPECT_EQ(picture->role(), QAccessible::Graphic);
  EXPECT_EQ(picture->text(QAccessible::Name).toStdString(), "Atom");
  EXPECT_EQ(picture->text(QAccessible::Description).toStdString(), AccessibleDescription(atoms.ctl("Picture1")));

  Form& chart = run.Open("frmPTable2");
  QAccessibleInterface* graph = QAccessible::queryAccessibleInterface(run.view.Widget(chart.ctl("MSChart1")));
  ASSERT_NE(graph, nullptr);
  EXPECT_EQ(graph->role(), QAccessible::Chart);
  EXPECT_FALSE(chart.ctl("MSChart1").chart().content().title.empty());
  EXPECT_EQ(graph->text(QAccessible::Name).toStdString(), chart.ctl("MSChart1").chart().content().title);

  Form& periodic = run.Open("frmPeriodic");
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(run.view.Window(periodic));
  EXPECT_EQ(window->text(QAccessible::Name).toStdString(), "Orvanta");
}

// The focus ring: the window's image changes when the focus moves from one
// button to its neighbour, and the ring is drawn in the highlight colour just
// outside the focused button.
TEST(QtAccessibility, TheFocusedButtonIsMarked) {
  QtRun run;
  Form& form = run.Open("frmCharlesLaw");
  QWidget* window = run.view.Window(form);
  window->activateWindow();
  QApplication::setActiveWindow(window);
  auto grabWithFocus = [&](const char* name) {
    run.program.UserFocus(form.ctl(name));
    QCoreApplication::processEvents();
    return GrabForm(run.view, form);
  };
  const QImage onClear = grabWithFocus("cmdClear");
  const QImage onCancel = grabWithFocus("cmdCancel");
  ASSERT_FALSE(onClear.isNull());
  EXPECT_NE(onClear, onCancel);
  QWidget* cancel = run.view.Widget(form.ctl("cmdCancel"));
  const QPoint corner = cancel->mapTo(window, QPoint(0, cancel->height() / 2)) - QPoint(1, 0);
  const qreal ratio = onCancel.devicePixelRatio();
  const QColor ring = onCancel.pixelColor((QPointF(corner) * ratio).toPoint());
  EXPECT_EQ(ring, cancel->palette().color(QPalette::Active, QPalette::Highlight));
  EXPECT_NE(onClear.pixelColor((QPointF(corner) * ratio).toPoint()), ring);
}

}  // namespace
}  // namespace orv::qt
