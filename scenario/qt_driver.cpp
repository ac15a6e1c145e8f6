#include "scenario/qt_driver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <cstdlib>

#include "qtui/chart_widget.h"
#include "qtui/picture_widget.h"
#include "qtui/qt_keys.h"
#include "qtui/qt_services.h"
#include "qtui/qt_view.h"
#include "qtui/rich_text_widget.h"
#include "qtui/tree_widget.h"
#include "scenario/steps.h"
#include "tests/support/fake_services.h"

namespace orv::scenario {

namespace {

// Real message boxes: each is read as the user sees it, recorded, then
// dismissed. The fatal error's box is shown too, but only its words are kept.
class ShownMessages : public MessageService {
 public:
  explicit ShownMessages(test::FakeMessages& record) : record_(record) {
    real_.hook = [this](QMessageBox& box) {
      if (!fatal_) record_.boxes.push_back({box.text().toStdString(), IconOf(box), box.windowTitle().toStdString()});
      QTimer::singleShot(0, &box, [&box] { box.done(QMessageBox::Ok); });
    };
  }
  void Show(std::string_view text, Icon icon, std::string_view title) override { real_.Show(text, icon, title); }
  void ShowFatal(std::string_view words) override {
    record_.fatal = std::string(words);
    fatal_ = true;
    real_.ShowFatal(words);
    fatal_ = false;
  }
  void Beep() override {
    ++record_.beeps;
    real_.Beep();
  }

 private:
  static Icon IconOf(const QMessageBox& box) {
    static const std::pair<QMessageBox::Icon, Icon> kIcons[] = {{QMessageBox::Information, Icon::Information},
                                                                {QMessageBox::Warning, Icon::Exclamation},
                                                                {QMessageBox::Critical, Icon::Critical}};
    for (const auto& [shown, icon] : kIcons) {
      if (box.icon() == shown) return icon;
    }
    return Icon::None;
  }

  test::FakeMessages& record_;
  qt::QtMessages real_;
  bool fatal_ = false;
};

// The window's image is grabbed as the printer would get it.
class GrabbingPrinter : public PrintService {
 public:
  GrabbingPrinter(test::FakePrinter& record, qt::QtView& view) : record_(record), view_(view) {}
  void PrintImage(Form& form) override {
    if (record_.available && qt::GrabForm(view_, form).isNull()) {
      record_.printed.push_back("(no image of " + form.name() + ")");
      return;
    }
    record_.PrintImage(form);
  }

 private:
  test::FakePrinter& record_;
  qt::QtView& view_;
};

class QtDriver : public Driver {
 public:
  explicit QtDriver(test::FakeServices& fakes) : messages_(fakes.messages), printer_(fakes.printer, view_) {
    view_.onEnded = [] {};
  }
  ~QtDriver() override {
    // The program is gone; its windows' deferred deletions run before the view goes.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  View* view() override { return &view_; }
  MessageService& messages() override { return messages_; }
  PrintService& printer() override { return printer_; }
  ClipboardService& clipboard() override { return clipboard_; }
  void Attach(Program& program) override {
    program_ = &program;
    view_.SetProgram(&program);
  }
  void Settle() override { QCoreApplication::processEvents(); }

  void Click(Control& c, bool twice) override;
  void ClickNode(Control& c, const std::string& key, bool twice) override;
  void Focus(Control& c) override;
  void PressKey(Form& form, Control* focus, const Key& key) override;
  void Paste(Control& c, const std::string& text) override;
  void Select(Control& c, int row) override;
  void Close(Form& form) override {
    view_.Window(form)->close();
    Settle();
  }
  void Snapshot(Form& form, const std::string& file) override {
    if (!qt::GrabForm(view_, form).save(QString::fromStdString(file))) Fail("cannot save " + file);
  }

  std::string Text(Control& c) override;
  bool Enabled(Control& c) override { return c.kind() != Kind::Menu ? W(c)->isEnabled() : c.Enabled(); }
  bool Visible(Control& c) override {
    if (c.kind() == Kind::Menu) return c.Visible();
    QWidget* w = W(c);
    return w->isVisibleTo(w->window());
  }
  bool Checked(Control& c) override {
    // A list box counts as selected while a row stands highlighted as the
    // current one.
    if (c.kind() == Kind::ListBox) {
      auto* list = qobject_cast<QListWidget*>(W(c));
      return list != nullptr && (list->currentRow() != -1 || !list->selectedItems().isEmpty());
    }
    auto* b = qobject_cast<QAbstractButton*>(W(c));
    if (b == nullptr) Fail(c.key() + " has no check state");
    return b->isChecked();
  }
  bool Focused(Control& c) override {
    QWidget* w = W(c);
    return w->window()->focusWidget() == w && c.HasFocus();
  }
  std::string ToolTip(Control& c) override {
    return c.kind() != Kind::Menu ? W(c)->toolTip().toStdString() : c.ToolTip();
  }
  int Colour(Control& c, bool back) override;
  std::vector<std::string> Rows(Control& c) override;
  std::vector<PictureItem> Drawing(Control& c) override {
    auto* picture = qobject_cast<qt::PictureWidget*>(W(c));
    if (picture == nullptr) Fail(c.key() + " has no drawing surface");
    return picture->Items();
  }
  const ChartContent& Chart(Control& c) override {
    auto* widget = qobject_cast<qt::ChartWidget*>(W(c));
    if (widget == nullptr) Fail("no chart widget for " + c.key());
    return widget->Content();
  }
  std::vector<int> Offsets(Control& c) override {
    auto* rich = dynamic_cast<qt::RichTextWidget*>(W(c));
    if (rich == nullptr) Fail("no rich text widget for " + c.key());
    return rich->ShownOffsets();
  }
  ShownNodes Nodes(Control& c) override;
  bool WindowVisible(Form& form) override { return Window(form)->isVisible(); }
  std::string Caption(Form& form) override { return Window(form)->windowTitle().toStdString(); }

 private:
  QWidget* W(const Control& c) {
    QWidget* w = view_.Widget(c);
    if (w == nullptr && c.kind() != Kind::Menu) Fail("no widget for " + c.key());
    return w;
  }
  QWidget* Window(const Form& form) {
    QWidget* window = view_.Window(form);
    if (window == nullptr) Fail(form.name() + " has no window");
    return window;
  }
  QAction* MenuAction(const Control& c) {
    QWidget* window = view_.Window(c.form());
    return window != nullptr ? window->findChild<QAction*>(QString::fromStdString(c.name())) : nullptr;
  }
  qt::TreeWidget* Tree(const Control& c) {
    auto* tree = dynamic_cast<qt::TreeWidget*>(W(c));
    if (tree == nullptr) Fail("no tree widget for " + c.key());
    return tree;
  }

  // Declared first: the services below refer to the view.
  qt::QtView view_;
  ShownMessages messages_;
  GrabbingPrinter printer_;
  qt::QtClipboard clipboard_;
  Program* program_ = nullptr;
};

void QtDriver::Focus(Control& c) {
  // As a user does: the window is activated only when it isn't active; a box
  // is focused by a click into it, a list by the keyboard (a click on a list
  // would choose a row).
  QWidget* w = W(c);
  QWidget* window = w->window();
  if (QApplication::activeWindow() != window) {
    window->activateWindow();
    QApplication::setActiveWindow(window);
  }
  w->setFocus(c.kind() == Kind::ListBox ? Qt::TabFocusReason : Qt::MouseFocusReason);
  Settle();
  if (c.form().Loaded() && !c.HasFocus() && c.TakesInput()) program_->UserFocus(c);
}

void QtDriver::Click(Control& c, bool twice) {
  if (c.kind() == Kind::Menu) {
    QAction* action = MenuAction(c);
    if (action == nullptr) Fail("no menu entry " + c.name());
    action->trigger();
  } else {
    // Option buttons and check boxes answer clicks on their mark and caption
    // only; click on the mark.
    QWidget* w = W(c);
    const QPoint at =
        (c.kind() == Kind::Option || c.kind() == Kind::CheckBox) ? QPoint(8, w->height() / 2) : w->rect().center();
    if (twice) {
      QTest::mouseDClick(w, Qt::LeftButton, {}, at);
    } else {
      QTest::mouseClick(w, Qt::LeftButton, {}, at);
    }
  }
  Settle();
}

void QtDriver::ClickNode(Control& c, const std::string& key, bool twice) {
  qt::TreeWidget* tree = Tree(c);
  QTreeWidgetItem* item = tree->ItemOf(key);
  if (!qt::TreeWidget::Shown(item)) Fail(c.key() + " does not show the node " + Quote(key));
  tree->scrollToItem(item);
  Settle();
  const QPoint at = tree->visualItemRect(item).center();
  // A double click is a click, then the second press that the toolkit
  // reports as the double click.
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, at);
  if (twice) QTest::mouseDClick(tree->viewport(), Qt::LeftButton, {}, at);
  Settle();
}

void QtDriver::PressKey(Form& form, Control* focus, const Key& k) {
  QWidget* target = focus != nullptr ? view_.Widget(*focus) : view_.Window(form);
  if (target == nullptr) Fail("nothing to type into");
  Qt::KeyboardModifiers mods;
  if (k.shift & kShiftMask) mods |= Qt::ShiftModifier;
  if (k.shift & kCtrlMask) mods |= Qt::ControlModifier;
  // Named keys are sent as keys, characters as the text they type.
  const std::string_view name = NameOfKey(k);
  if (!name.empty()) {
    QTest::keyClick(target, qt::QtKeyOf(name), mods);
  } else {
    // Qt's key for a character is its capital's code (Key_Period is '.').
    const QString ch(QChar(k.ascii));
    const int key = (k.shift & kCtrlMask) ? k.code : ch.toUpper().at(0).unicode();
    QTest::sendKeyEvent(QTest::Press, target, static_cast<Qt::Key>(key), ch, mods);
    QTest::sendKeyEvent(QTest::Release, target, static_cast<Qt::Key>(key), ch, mods);
  }
  Settle();
}

void QtDriver::Paste(Control& c, const std::string& text) {
  Focus(c);
  // As the context menu's Paste does over the whole text.
  QApplication::clipboard()->setText(QString::fromStdString(text));
  if (auto* rich = qobject_cast<QTextEdit*>(W(c))) {
    rich->selectAll();
    rich->paste();
    Settle();
    return;
  }
  auto* edit = qobject_cast<QLineEdit*>(W(c));
  if (edit == nullptr) Fail(c.key() + " is no text box");
  edit->selectAll();
  edit->paste();
  Settle();
}

void QtDriver::Select(Control& c, int row) {
  auto* list = qobject_cast<QListWidget*>(W(c));
  if (list == nullptr) Fail(c.key() + " is no list box");
  list->setCurrentRow(row);
  Settle();
}

std::string QtDriver::Text(Control& c) {
  if (c.kind() == Kind::Menu) {
    QAction* a = MenuAction(c);
    return a != nullptr ? a->text().toStdString() : "";
  }
  QWidget* w = W(c);
  if (auto* e = qobject_cast<QLineEdit*>(w)) return e->text().toStdString();
  if (auto* r = qobject_cast<QTextEdit*>(w)) return r->toPlainText().toStdString();
  if (auto* m = qobject_cast<QPlainTextEdit*>(w)) return m->toPlainText().toStdString();
  if (auto* l = qobject_cast<QLabel*>(w)) return l->text().toStdString();
  if (auto* b = qobject_cast<QAbstractButton*>(w)) return b->text().toStdString();
  if (auto* g = qobject_cast<QGroupBox*>(w)) return g->title().toStdString();
  return c.Text();
}

int QtDriver::Colour(Control& c, bool back) {
  if (c.kind() == Kind::Menu) return back ? c.BackColor() : c.ForeColor();
  // The role the widget's own palette sets; none where it keeps the style's.
  QWidget* w = W(c);
  const bool button = qobject_cast<QAbstractButton*>(w) != nullptr;
  const QPalette::ColorRole role =
      back ? (button ? QPalette::Button : QPalette::Window) : (button ? QPalette::ButtonText : QPalette::WindowText);
  const bool set = w->testAttribute(Qt::WA_SetPalette) && w->palette().isBrushSet(QPalette::Active, role);
  return set ? static_cast<int>(w->palette().color(QPalette::Active, role).rgb() & 0xFFFFFFu) : kNoColor;
}

std::vector<std::string> QtDriver::Rows(Control& c) {
  auto* list = qobject_cast<QListWidget*>(W(c));
  if (list == nullptr) Fail(c.key() + " is no list box");
  std::vector<std::string> rows;
  for (int i = 0; i < list->count(); ++i) rows.push_back(list->item(i)->text().toStdString());
  return rows;
}

ShownNodes QtDriver::Nodes(Control& c) {
  qt::TreeWidget* tree = Tree(c);
  ShownNodes nodes;
  for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it) {
    nodes[qt::TreeWidget::KeyOf(*it)] = {(*it)->text(0).toStdString(), (*it)->isExpanded(),
                                         tree->currentItem() == *it && (*it)->isSelected()};
  }
  return nodes;
}

// The offscreen platform cannot raise windows or resize them for real, and
// says so on every screen shown; those lines are no news to a test run.
void QuietHandler(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  if (message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"))) return;
  qt_message_output(type, context, message);
}

}  // namespace

QtSession::QtSession(int& argc, char** argv) {
  if (std::getenv("DISPLAY") == nullptr && std::getenv("WAYLAND_DISPLAY") == nullptr &&
      std::getenv("QT_QPA_PLATFORM") == nullptr) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  }
  qInstallMessageHandler(QuietHandler);
  app_ = std::make_unique<QApplication>(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
}

QtSession::~QtSession() = default;

std::unique_ptr<Driver> MakeQtDriver(test::FakeServices& fakes) { return std::make_unique<QtDriver>(fakes); }

}  // namespace orv::scenario
