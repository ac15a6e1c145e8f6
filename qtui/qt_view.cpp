#include "qtui/qt_view.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "qtui/chart_widget.h"
#include "qtui/picture_widget.h"
#include "qtui/rich_text_widget.h"
#include "qtui/tree_widget.h"
#include "shell/picture.h"
#include "shell/text.h"

namespace orv::qt {

namespace {

QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }
std::string S(const QString& s) { return s.toStdString(); }

const char* kControlProperty = "orvControl";
const char* kFormProperty = "orvForm";

// Option buttons and check boxes show the model's value only: a click tells
// the runtime, which decides the new state.
class ModelRadio : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

 protected:
  void nextCheckState() override {}
};

class ModelCheck : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  void nextCheckState() override {}
};

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

 private:
  QtView& view_;
  Form& form_;
};

// The program's emblem: a nucleus with three electron orbits.
class Emblem : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QPointF c(width() / 2.0, height() / 2.0);
    const double r = std::min(width(), height()) / 2.0 - 4;
    QRadialGradient glow(c, r);
    glow.setColorAt(0, QColor(225, 238, 252));
    glow.setColorAt(1, QColor(225, 238, 252, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(glow);
    p.drawEllipse(c, r, r);
    QPen orbit(QColor(30, 90, 160), std::max(1.5, r / 40));
    p.setPen(orbit);
    p.setBrush(Qt::NoBrush);
    for (int k = 0; k < 3; ++k) {
      p.save();
      p.translate(c);
      p.rotate(60.0 * k);
      p.drawEllipse(QPointF(0, 0), r * 0.92, r * 0.34);
      p.restore();
    }
    QRadialGradient nucleus(c - QPointF(r * 0.05, r * 0.05), r * 0.2);
    nucleus.setColorAt(0, QColor(255, 190, 120));
    nucleus.setColorAt(1, QColor(200, 70, 30));
    p.setPen(Qt::NoPen);
    p.setBrush(nucleus);
    p.drawEllipse(c, r * 0.16, r * 0.16);
    p.setBrush(QColor(40, 120, 200));
    for (int k = 0; k < 3; ++k) {
      const double a = (60.0 * k + 25.0) * 3.14159265358979 / 180.0;
      p.save();
      p.translate(c);
      p.rotate(60.0 * k);
      p.drawEllipse(QPointF(r * 0.92 * std::cos(a), r * 0.34 * std::sin(a)), r * 0.055, r * 0.055);
      p.restore();
    }
  }
};

// The runtime's key code of a Qt key, and the character it produces.
Key ToKey(const QKeyEvent& e) {
  Key k;
  const int q = e.key();
  const Qt::KeyboardModifiers m = e.modifiers();
  if (m & Qt::ShiftModifier) k.shift |= kShiftMask;
  if (m & Qt::ControlModifier) k.shift |= kCtrlMask;
  if (m & Qt::AltModifier) k.shift |= kAltMask;
  switch (q) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      k.code = kKeyReturn;
      k.ascii = 13;
      return k;
    case Qt::Key_Escape:
      k.code = kKeyEscape;
      k.ascii = 27;
      return k;
    case Qt::Key_Backspace:
      k.code = kKeyBack;
      k.ascii = 8;
      return k;
    case Qt::Key_Tab: k.code = kKeyTab; return k;
    case Qt::Key_Backtab:
      k.code = kKeyTab;
      k.shift |= kShiftMask;
      return k;
    case Qt::Key_Delete: k.code = kKeyDelete; return k;
    case Qt::Key_Left: k.code = kKeyLeft; return k;
    case Qt::Key_Right: k.code = kKeyRight; return k;
    case Qt::Key_Up: k.code = kKeyUp; return k;
    case Qt::Key_Down: k.code = kKeyDown; return k;
    case Qt::Key_Home: k.code = kKeyHome; return k;
    case Qt::Key_End: k.code = kKeyEnd; return k;
    default: break;
  }
  if (q >= Qt::Key_F1 && q <= Qt::Key_F24) {
    k.code = kKeyF1 + (q - Qt::Key_F1);
    return k;
  }
  const QString text = e.text();
  if (!text.isEmpty() && text.at(0).unicode() != 127) k.ascii = text.at(0).unicode();
  k.code = (q >= Qt::Key_A && q <= Qt::Key_Z) ? q : KeyCodeOfChar(k.ascii);
  return k;
}

QFont FontFor(const Control& c, const QFont& base) {
  QFont f = (c.flags() & kFixedPitch) != 0 ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : base;
  if ((c.flags() & kBold) != 0) f.setBold(true);
  if ((c.flags() & kLarge) != 0) f.setPointSizeF(f.pointSizeF() * 1.6);
  if ((c.flags() & kSmall) != 0) f.setPointSizeF(f.pointSizeF() * 0.85);
  return f;
}

Qt::Alignment AlignFor(const Control& c) {
  if ((c.flags() & kCenter) != 0) return Qt::AlignCenter;
  if ((c.flags() & kRightAlign) != 0) return Qt::AlignRight | Qt::AlignVCenter;
  return Qt::AlignLeft | Qt::AlignVCenter;
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

QWidget* QtView::Widget(const Control& control) const {
  auto it = forms_.find(&control.form());
  if (it == forms_.end()) return nullptr;
  auto w = it->second.widgets.find(&control);
  return w == it->second.widgets.end() ? nullptr : w->second.data();
}

Control* QtView::ControlOf(const QObject* widget) const {
  if (widget == nullptr) return nullptr;
  return static_cast<Control*>(widget->property(kControlProperty).value<void*>());
}

Form* QtView::FormOf(const QObject* window) const {
  if (window == nullptr) return nullptr;
  return static_cast<Form*>(window->property(kFormProperty).value<void*>());
}

QWidget* QtView::Build(Form& form, FormWidgets& fw) {
  auto* window = new FormWindow(*this, form);
  window->setObjectName(Q(form.name()));
  window->setProperty(kFormProperty, QVariant::fromValue(static_cast<void*>(&form)));
  window->setWindowTitle(Q(form.Caption()));
  window->setAttribute(Qt::WA_DeleteOnClose, false);
  if ((form.style() & kFormSplash) != 0) {
    window->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    window->setFocusPolicy(Qt::StrongFocus);
  } else {
    window->setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint | Qt::MSWindowsFixedSizeDialogHint);
  }
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->setSizeConstraint(QLayout::SetFixedSize);

  QMenuBar* menuBar = nullptr;
  std::map<std::string, QMenu*> menus;
  auto* content = new QWidget(window);
  content->setFixedSize(form.width(), form.height());
  std::map<std::string, QWidget*> containers;

  for (const auto& owned : form.controls()) {
    Control& c = *owned;
    QWidget* parent = content;
    if (!c.container().empty() && containers.count(c.container()) != 0) parent = containers[c.container()];
    QWidget* w = nullptr;
    switch (c.kind()) {
      case Kind::Menu: {
        if (menuBar == nullptr) menuBar = new QMenuBar(window);
        QAction* action = nullptr;
        bool hasChildren = false;
        for (const auto& other : form.controls()) hasChildren |= other->container() == c.name();
        if (c.container().empty() && hasChildren) {
          QMenu* menu = menuBar->addMenu(Q(c.Caption()));
          menu->setObjectName(Q(c.name()));
          menus[c.name()] = menu;
          action = menu->menuAction();
        } else {
          QMenu* owner = c.container().empty() ? nullptr : menus[c.container()];
          action = owner != nullptr ? owner->addAction(Q(c.Caption())) : menuBar->addAction(Q(c.Caption()));
          if (!c.shortcut().empty()) action->setShortcut(QKeySequence(Q(c.shortcut())));
          Control* target = &c;
          QObject::connect(action, &QAction::triggered, this, [this, target] { Clicked(*target); });
        }
        action->setObjectName(Q(c.name()));
        action->setProperty(kControlProperty, QVariant::fromValue(static_cast<void*>(&c)));
        continue;
      }
      case Kind::TextBox: {
        auto* edit = new QLineEdit(parent);
        Control* target = &c;
        QObject::connect(edit, &QLineEdit::textEdited, this, [this, target](const QString& t) { Edited(*target, t); });
        QObject::connect(edit, &QLineEdit::cursorPositionChanged, this, [this, target, edit](int, int) {
          if (syncing_ || program_ == nullptr) return;
          const int start = edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
          const int length = edit->hasSelectedText() ? static_cast<int>(edit->selectedText().size()) : 0;
          program_->UserCaret(*target, start, length);
        });
        w = edit;
        break;
      }
      case Kind::Label: {
        auto* label = new QLabel(parent);
        // Labels of several lines wrap and start at the top.
        const bool lines = c.rect().h > 30;
        label->setWordWrap(lines);
        label->setAlignment(lines ? (AlignFor(c) & Qt::AlignHorizontal_Mask) | Qt::AlignTop : AlignFor(c));
        if ((c.flags() & kBorder) != 0) label->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        label->installEventFilter(this);
        w = label;
        break;
      }
      case Kind::Button: {
        auto* button = new QPushButton(parent);
        button->setAutoDefault(false);
        Control* target = &c;
        QObject::connect(button, &QPushButton::clicked, this, [this, target] { Clicked(*target); });
        w = button;
        break;
      }
      case Kind::Option: {
        auto* radio = new ModelRadio(parent);
        radio->setAutoExclusive(false);
        Control* target = &c;
        QObject::connect(radio, &QAbstractButton::clicked, this, [this, target] { Clicked(*target); });
        w = radio;
        break;
      }
      case Kind::CheckBox: {
        auto* check = new ModelCheck(parent);
        Control* target = &c;
        QObject::connect(check, &QAbstractButton::clicked, this, [this, target] { Clicked(*target); });
        w = check;
        break;
      }
      case Kind::Frame: {
        auto* frame = new QGroupBox(parent);
        frame->installEventFilter(this);
        containers[c.name()] = frame;
        w = frame;
        break;
      }
      case Kind::ListBox: {
        auto* list = new QListWidget(parent);
        Control* target = &c;
        QObject::connect(list, &QListWidget::currentRowChanged, this, [this, target](int row) {
          if (!syncing_) RowSelected(*target, row);
        });
        w = list;
        break;
      }
      case Kind::Picture: {
        w = new PictureWidget(parent);
        break;
      }
      case Kind::Chart: {
        w = new ChartWidget(parent);
        break;
      }
      case Kind::Tree: {
        auto* tree = new TreeWidget(parent, c);
        // The tree's own signals run the runtime's node actions; none once
        // its screen has gone.
        tree->onInput = [this, tree](const std::function<void()>& input) {
          if (syncing_ || program_ == nullptr || ControlOf(tree) == nullptr) return;
          input();
          AfterInput();
        };
        w = tree;
        break;
      }
      case Kind::RichText: {
        // Keys come through the runtime like a text box's; what the widget
        // reports itself is a paste or drop, and the caret.
        auto* rich = new RichTextWidget(parent);
        Control* target = &c;
        rich->onEdited = [this, target](const QString& t) { Edited(*target, t); };
        rich->resync = [this, rich] {
          if (Control* control = ControlOf(rich)) rich->ShowControl(*control);
        };
        rich->onCaret = [this, target](int start, int length) {
          if (!syncing_ && program_ != nullptr) program_->UserCaret(*target, start, length);
        };
        w = rich;
        break;
      }
      case Kind::Image: {
        auto* image = new Emblem(parent);
        image->installEventFilter(this);
        w = image;
        break;
      }
      default: {
        auto* blank = new QWidget(parent);
        w = blank;
        break;
      }
    }
    w->setObjectName(Q(c.key()));
    w->setProperty(kControlProperty, QVariant::fromValue(static_cast<void*>(&c)));
    w->setGeometry(c.rect().x, c.rect().y, c.rect().w, c.rect().h);
    w->setFont(FontFor(c, QApplication::font()));
    w->installEventFilter(this);
    fw.widgets[&c] = w;
  }
  if (menuBar != nullptr) layout->setMenuBar(menuBar);
  layout->addWidget(content);
  window->installEventFilter(this);
  return window;
}

void QtView::FormLoaded(Form& form) {
  FormWidgets& fw = forms_[&form];
  fw.window = Build(form, fw);
  for (const auto& c : form.controls()) Sync(*c);
  // Centre each screen; later screens step a little down and right so that
  // the one behind stays in sight.
  fw.window->adjustSize();
  if (QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect area = screen->availableGeometry();
    QPoint centre = area.center() - QPoint(fw.window->width() / 2, fw.window->height() / 2);
    if ((form.style() & (kFormMain | kFormSplash)) == 0) centre += QPoint(40, 30);
    fw.window->move(centre);
  }
}

void QtView::FormUnloaded(Form& form) {
  auto it = forms_.find(&form);
  if (it == forms_.end()) return;
  // Events still queued for these widgets must not reach the screen's model.
  for (auto& [control, widget] : it->second.widgets) {
    if (!widget.isNull()) widget->setProperty(kControlProperty, QVariant());
  }
  if (QWidget* w = it->second.window.data()) {
    w->setProperty(kFormProperty, QVariant());
    for (QAction* a : w->findChildren<QAction*>()) {
      a->setProperty(kControlProperty, QVariant());
      a->disconnect(this);
    }
    for (auto& [control, widget] : it->second.widgets) {
      if (!widget.isNull()) widget->disconnect(this);
    }
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

void QtView::ControlChanged(Control& control, Prop /*what*/) { Sync(control); }

void QtView::FocusChanged(Form& /*form*/, Control* control) {
  if (control == nullptr) return;
  QWidget* w = Widget(*control);
  if (w != nullptr && !w->hasFocus()) {
    syncing_ = true;
    w->setFocus(Qt::OtherFocusReason);
    syncing_ = false;
  }
}

void QtView::Sync(Control& c) {
  if (c.kind() == Kind::Menu) {
    auto it = forms_.find(&c.form());
    if (it == forms_.end() || it->second.window.isNull()) return;
    for (QAction* a : it->second.window->findChildren<QAction*>(Q(c.name()))) {
      a->setText(Q(c.Caption()));
      a->setEnabled(c.Enabled());
      a->setVisible(c.Visible());
    }
    return;
  }
  QWidget* w = Widget(c);
  if (w == nullptr) return;
  syncing_ = true;
  const QSignalBlocker block(w);
  w->setEnabled(c.Enabled());
  w->setVisible(c.Visible());
  w->setToolTip(Q(c.ToolTip()));
  // Colours the screen set: a button's face and caption, a label's ground
  // and text. A control without any keeps the style's palette.
  if (c.BackColor() != kNoColor || c.ForeColor() != kNoColor) {
    const bool button = qobject_cast<QAbstractButton*>(w) != nullptr;
    QPalette palette;  // only the roles set here; the rest as inherited
    if (c.BackColor() != kNoColor) {
      palette.setColor(button ? QPalette::Button : QPalette::Window, QColor::fromRgb(QRgb(c.BackColor())));
      w->setAutoFillBackground(!button);
    }
    if (c.ForeColor() != kNoColor) {
      palette.setColor(button ? QPalette::ButtonText : QPalette::WindowText, QColor::fromRgb(QRgb(c.ForeColor())));
    }
    w->setPalette(palette);
  } else if (w->testAttribute(Qt::WA_SetPalette)) {
    w->setPalette(QPalette());
    w->setAutoFillBackground(false);
  }
  const QString text = Q(c.Text());
  if (auto* rich = dynamic_cast<RichTextWidget*>(w)) rich->ShowControl(c);
  if (auto* tree = dynamic_cast<TreeWidget*>(w)) tree->Show(c.tree());
  if (auto* edit = qobject_cast<QLineEdit*>(w)) {
    if (edit->text() != text) edit->setText(text);
    if (c.SelLength() > 0) {
      edit->setSelection(c.SelStart(), c.SelLength());
    } else {
      edit->setCursorPosition(c.SelStart());
    }
    edit->setAlignment(AlignFor(c));
  } else if (auto* label = qobject_cast<QLabel*>(w)) {
    label->setText(text);
  } else if (auto* button = qobject_cast<QPushButton*>(w)) {
    button->setText(text);
    button->setDefault(c.IsDefault());
  } else if (auto* check = qobject_cast<QAbstractButton*>(w)) {
    check->setText(text);
    check->setChecked(c.Value());
  } else if (auto* frame = qobject_cast<QGroupBox*>(w)) {
    frame->setTitle(text);
  } else if (auto* list = qobject_cast<QListWidget*>(w)) {
    QStringList rows;
    for (const std::string& row : c.Items()) rows << Q(row);
    QStringList shown;
    for (int i = 0; i < list->count(); ++i) shown << list->item(i)->text();
    if (rows != shown) {
      list->clear();
      list->addItems(rows);
      // Like a list box of the old desktops, show whole rows only: the list
      // gives up the part of its height that would show half a row.
      if (list->count() > 0) {
        const int row = list->sizeHintForRow(0);
        const int frame = 2 * list->frameWidth();
        const int rowsShown = std::max(1, (c.rect().h - frame) / std::max(row, 1));
        list->setFixedHeight(std::min(c.rect().h, rowsShown * row + frame));
      }
    }
    list->setCurrentRow(c.ListIndex());
  } else if (auto* picture = qobject_cast<PictureWidget*>(w)) {
    picture->Show(c.picture());
  } else if (auto* chart = qobject_cast<ChartWidget*>(w)) {
    chart->Show(c.chart());
  }
  syncing_ = false;
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
  program_->UserEdit(control, S(text));
  AfterInput();
}

void QtView::RowSelected(Control& control, int row) {
  if (program_ == nullptr) return;
  program_->UserSelectRow(control, row);
  AfterInput();
}

void QtView::CloseRequested(Form& form) {
  if (program_ == nullptr) return;
  program_->UserClose(form);
  AfterInput();
}

bool QtView::eventFilter(QObject* watched, QEvent* event) {
  if (program_ == nullptr) return false;
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      Control* control = ControlOf(watched);
      Form* form = control != nullptr ? &control->form() : FormOf(watched);
      if (form == nullptr) return false;
      // A key that a control passed on to its window is not a second key.
      if (control == nullptr && QApplication::focusWidget() != nullptr && QApplication::focusWidget() != watched &&
          ControlOf(QApplication::focusWidget()) != nullptr) {
        return false;
      }
      const bool taken = program_->UserKey(*form, control, ToKey(*key));
      AfterInput();
      return taken;
    }
    case QEvent::FocusIn: {
      Control* control = ControlOf(watched);
      if (control != nullptr && !syncing_ && control->form().ActiveControl() != control) {
        program_->UserFocus(*control);
        AfterInput();
      }
      return false;
    }
    case QEvent::MouseButtonRelease: {
      if (!qobject_cast<QLabel*>(watched) && !qobject_cast<QGroupBox*>(watched) &&
          dynamic_cast<Emblem*>(watched) == nullptr) {
        return false;
      }
      Control* control = ControlOf(watched);
      if (control == nullptr) return false;
      Clicked(*control);
      return true;  // the click is the label's, not its frame's too
    }
    case QEvent::MouseButtonDblClick: {
      Control* control = ControlOf(watched);
      if (control == nullptr || qobject_cast<QLineEdit*>(watched) != nullptr) return false;
      DoubleClicked(*control);
      return true;
    }
    default: return false;
  }
}

// --- services ---

void QtMessages::Show(std::string_view text, Icon icon, std::string_view title) {
  static const QMessageBox::Icon kIcons[] = {QMessageBox::NoIcon, QMessageBox::Information, QMessageBox::Warning,
                                             QMessageBox::Critical};
  QMessageBox box(kIcons[static_cast<int>(icon)], Q(title), Q(text), QMessageBox::Ok, QApplication::activeWindow());
  box.setObjectName("msgbox");
  if (hook) hook(box);
  box.exec();
}

void QtMessages::ShowFatal(std::string_view words) { Show(words, Icon::Critical, "Orvanta"); }

void QtMessages::Beep() { QApplication::beep(); }

std::string QtClipboard::Text() const { return S(QGuiApplication::clipboard()->text()); }

void QtClipboard::SetText(std::string_view text) { QGuiApplication::clipboard()->setText(Q(text)); }

QtProgram::QtProgram(const ScreenRegistry& registry)
    : program(registry, {&messages, &printer, &launcher, &view, &clipboard},
              QCoreApplication::applicationDirPath().toStdString()) {
  view.SetProgram(&program);
}

int QtProgram::Run() {
  program.Start();
  if (program.Ended()) return program.EndedOnError() ? 1 : 0;
  return QApplication::exec();
}

QImage GrabForm(QtView& view, Form& form) {
  QWidget* w = view.Window(form);
  if (w == nullptr) return {};
  return w->grab().toImage();
}

void QtPrinter::PrintImage(Form& form) {
  const QPrinterInfo info = QPrinterInfo::defaultPrinter();
  if (info.isNull()) Raise(ErrorCode::PrinterError);
  const QImage image = GrabForm(view_, form);
  QPrinter printer(info, QPrinter::HighResolution);
  QPainter painter;
  if (!painter.begin(&printer)) Raise(ErrorCode::PrinterError);
  const QRect page = painter.viewport();
  QSize size = image.size();
  size.scale(page.size(), Qt::KeepAspectRatio);
  painter.setViewport(page.x(), page.y(), size.width(), size.height());
  painter.setWindow(image.rect());
  painter.drawImage(0, 0, image);
  painter.end();
}

void QtLauncher::LaunchCalculator() {
  static const char* const kCalculators[] = {"gnome-calculator", "kcalc",        "mate-calc",   "galculator",
                                             "qalculate-gtk",    "qalculate-qt", "speedcrunch", "xcalc"};
  for (const char* name : kCalculators) {
    const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
    if (!path.isEmpty() && QProcess::startDetached(path, {})) return;
  }
  Raise(ErrorCode::FileNotFound);
}

}  // namespace orv::qt
