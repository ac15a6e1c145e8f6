#include "qtui/qt_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "qtui/accessibility.h"
#include "qtui/control_adapter.h"
#include "qtui/focus_frame.h"
#include "qtui/header_label.h"
#include "qtui/qt_keys.h"
#include "qtui/theme.h"
#include "qtui/window_size.h"

namespace orv::qt {

namespace {

const char* kControlProperty = "orvControl";
const char* kFormProperty = "orvForm";

// The window of a screen: closing it asks the runtime, which may end the
// program or unload the screen.
class FormWindow : public QWidget {
 public:
  FormWindow(QtView& view, Form& form) : view_(view), form_(form) {}

 protected:
  void closeEvent(QCloseEvent* e) override {
    e->ignore();
    view_.CloseRequested(form_);
  }
  // The window itself draws nothing that shows the keyboard focus, so gaining
  // or losing it (the splash takes the keys itself) repaints nothing; QWidget
  // would repaint the whole window with every control on it.
  void focusInEvent(QFocusEvent*) override {}
  void focusOutEvent(QFocusEvent*) override {}

 private:
  QtView& view_;
  Form& form_;
};

// A screen's window: a fixed size, a title bar with the usual buttons or,
// for the splash screen, no frame at all.
FormWindow* MakeWindow(QtView& view, Form& form) {
  auto* window = new FormWindow(view, form);
  window->setObjectName(Q(form.name()));
  window->setProperty(kFormProperty, QVariant::fromValue(static_cast<void*>(&form)));
  window->setWindowTitle(Q(form.Caption()));
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  if ((form.style() & kFormSplash) != 0) {
    // An ordinary frameless window: shown after the main screen it stands
    // above it, and any screen shown later comes in front of it (a splash
    // window type or a stay-on-top hint would keep it above them all).
    window->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    window->setFocusPolicy(Qt::StrongFocus);
  } else {
    window->setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
  }
  return window;
}

// Centres a window on the screen, wholly within its available area; screens
// after the first step a little down and right so that the one behind stays
// in sight.
void PlaceNewWindow(QWidget* window, const Form& form) {
  window->adjustSize();
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect area = screen->availableGeometry();
    QPoint centre = area.center() - QPoint(window->width() / 2, window->height() / 2);
    if ((form.style() & (kFormMain | kFormSplash)) == 0) centre += QPoint(40, 30);
    PlaceOnScreen(*window, centre);
  }
}

}  // namespace

QtView::QtView() = default;
QtView::~QtView() {
  for (auto& [form, fw] : forms_) delete fw.window.data();
}

QWidget* QtView::Window(const Form& form) const {
  auto it = forms_.find(&form);
  return it == forms_.end() ? nullptr : it->second.window.data();
}

QObject* QtView::Shown(const Control& control) const {
  auto it = forms_.find(&control.form());
  if (it == forms_.end()) return nullptr;
  auto w = it->second.shown.find(&control);
  return w == it->second.shown.end() ? nullptr : w->second.data();
}

QWidget* QtView::Widget(const Control& control) const { return qobject_cast<QWidget*>(Shown(control)); }

Control* QtView::ControlOf(const QObject* widget) const {
  if (widget == nullptr) return nullptr;
  return static_cast<Control*>(widget->property(kControlProperty).value<void*>());
}

Form* QtView::FormOf(const QObject* window) const {
  if (window == nullptr) return nullptr;
  return static_cast<Form*>(window->property(kFormProperty).value<void*>());
}

// Each control's adapter creates its widget; the view places it, gives it
// the control's font and watches its keys, focus and double clicks.
QWidget* QtView::Build(Form& form, FormWidgets& fw) {
  FormWindow* window = MakeWindow(*this, form);
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  auto* content = new QWidget(window);
  content->setFixedSize(form.width(), form.height());

  BuildContext context{*this, form, window};
  for (const auto& owned : form.controls()) {
    Control& c = *owned;
    auto frame = context.containers.find(c.container());
    context.parent = c.container().empty() || frame == context.containers.end() ? content : frame->second;
    QObject* shown = AdapterFor(c.kind()).Create(c, context);
    shown->setProperty(kControlProperty, QVariant::fromValue(static_cast<void*>(&c)));
    fw.shown[&c] = shown;
    if (auto* w = qobject_cast<QWidget*>(shown)) {
      w->setObjectName(Q(c.key()));
      w->setGeometry(c.rect().x, c.rect().y, c.rect().w, c.rect().h);
      w->setFont(FontFor(c, QApplication::font()));
      w->installEventFilter(this);
    }
  }
  // A header label paints its words over the columns of the list it heads.
  for (auto& [control, shown] : fw.shown) {
    auto* header = qobject_cast<HeaderLabel*>(shown);
    Control* list = header != nullptr ? form.find(control->HeaderOf()) : nullptr;
    if (list != nullptr) header->SetColumns(qobject_cast<QListWidget*>(fw.shown[list]), control->HeaderColumns());
  }
  ApplyFormGround(*window, form);
  ScaleToFont(form, *window, *content, fw.shown);
  if (QMenuBar* bar = context.ExistingMenuBar()) layout->setMenuBar(bar);
  layout->addWidget(content);
  window->installEventFilter(this);
  return window;
}

void QtView::FormLoaded(Form& form) {
  FormWidgets& fw = forms_[&form];
  fw.window = Build(form, fw);
  syncing_ = true;
  for (const auto& c : form.controls()) {
    QObject* shown = fw.shown[c.get()];
    const QSignalBlocker block(qobject_cast<QWidget*>(shown));
    SyncAll(AdapterFor(c->kind()), *c, shown);
    if (auto* w = qobject_cast<QWidget*>(shown)) MakeReadable(*w, *c);
  }
  syncing_ = false;
  MakeAccessible(fw.window, form, [this](const Control& c) { return Widget(c); });
  ShowKeyboardFocus(fw.window);
  PlaceNewWindow(fw.window, form);
}

void QtView::FormUnloaded(Form& form) {
  auto it = forms_.find(&form);
  if (it == forms_.end()) return;
  // Events still queued for these widgets must not reach the screen's model.
  for (auto& [control, shown] : it->second.shown) {
    if (!shown.isNull()) {
      shown->setProperty(kControlProperty, QVariant());
      shown->disconnect(this);
    }
  }
  if (QWidget* w = it->second.window.data()) {
    w->setProperty(kFormProperty, QVariant());
    w->hide();
    w->removeEventFilter(this);
    w->deleteLater();
  }
  forms_.erase(it);
}

void QtView::FormShown(Form& form) {
  QWidget* w = Window(form);
  if (w == nullptr) return;
  w->show();
  w->raise();
  w->activateWindow();
  if (Control* active = form.ActiveControl()) {
    if (QWidget* cw = Widget(*active)) cw->setFocus();
  } else if ((form.style() & kFormSplash) != 0) {
    w->setFocus();
  }
}

void QtView::FormHidden(Form& form) {
  if (QWidget* w = Window(form)) w->hide();
}

void QtView::FormCaptionChanged(Form& form) {
  if (QWidget* w = Window(form)) w->setWindowTitle(Q(form.Caption()));
}

void QtView::ControlChanged(Control& control, Prop what) {
  QObject* shown = Shown(control);
  if (shown == nullptr) return;
  syncing_ = true;
  const QSignalBlocker block(qobject_cast<QWidget*>(shown));  // a menu entry's action keeps its signals
  AdapterFor(control.kind()).Sync(control, shown, what);
  if (auto* w = qobject_cast<QWidget*>(shown)) MakeReadable(*w, control);
  syncing_ = false;
}

void QtView::FocusChanged(Form& /*form*/, Control* control) {
  if (control == nullptr) return;
  QWidget* w = Widget(*control);
  if (w != nullptr && !w->hasFocus()) {
    syncing_ = true;
    w->setFocus(Qt::OtherFocusReason);
    syncing_ = false;
  }
}

void QtView::AfterInput() {
  if (program_ == nullptr || !program_->Ended()) return;
  if (onEnded) {
    onEnded();
  } else {
    QCoreApplication::exit(program_->EndedOnError() ? 1 : 0);
  }
}

void QtView::Clicked(Control& control) {
  if (syncing_ || program_ == nullptr) return;
  program_->UserClick(control);
  AfterInput();
}

void QtView::DoubleClicked(Control& control) {
  if (program_ == nullptr) return;
  program_->UserDblClick(control);
  AfterInput();
}

void QtView::Edited(Control& control, const QString& text) {
  if (syncing_ || program_ == nullptr) return;
  program_->UserEdit(control, text.toStdString());
  AfterInput();
}

void QtView::RowSelected(Control& control, int row) {
  if (program_ == nullptr) return;
  program_->UserSelectRow(control, row);
  AfterInput();
}

void QtView::CaretMoved(Control& control, int start, int length) {
  if (syncing_ || program_ == nullptr) return;
  program_->UserCaret(control, start, length);
}

void QtView::CloseRequested(Form& form) {
  if (program_ == nullptr) return;
  program_->UserClose(form);
  AfterInput();
}

void QtView::RunInput(const std::function<void()>& input) {
  if (syncing_ || program_ == nullptr) return;
  input();
  AfterInput();
}

bool QtView::KeyPressed(QObject* watched, QKeyEvent& key) {
  Control* control = ControlOf(watched);
  Form* form = control != nullptr ? &control->form() : FormOf(watched);
  if (form == nullptr) return false;
  // A key that a control passed on to its window is not a second key.
  if (control == nullptr && QApplication::focusWidget() != nullptr && QApplication::focusWidget() != watched &&
      ControlOf(QApplication::focusWidget()) != nullptr) {
    return false;
  }
  const bool taken = program_->UserKey(*form, control, ToKey(key));
  AfterInput();
  return taken;
}

// Keys, focus and double clicks, alike for every widget; a kind's own input
// comes from the signals its adapter connects.
bool QtView::eventFilter(QObject* watched, QEvent* event) {
  if (program_ == nullptr) return false;
  switch (event->type()) {
    case QEvent::KeyPress: return KeyPressed(watched, *static_cast<QKeyEvent*>(event));
    case QEvent::FocusIn: {
      Control* control = ControlOf(watched);
      if (control != nullptr && !syncing_ && control->form().ActiveControl() != control) {
        program_->UserFocus(*control);
        AfterInput();
      }
      return false;
    }
    case QEvent::MouseButtonDblClick: {
      Control* control = ControlOf(watched);
      if (control == nullptr || !AdapterFor(control->kind()).TakesDoubleClick()) return false;
      DoubleClicked(*control);
      return true;
    }
    default: return false;
  }
}

QImage GrabForm(QtView& view, Form& form) {
  QWidget* w = view.Window(form);
  if (w == nullptr) return {};
  return w->grab().toImage();
}

}  // namespace orv::qt
