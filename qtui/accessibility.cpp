#include "qtui/accessibility.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <map>

#include "shell/accessible.h"

namespace orv::qt {

namespace {

QString Q(const std::string& s) { return QString::fromStdString(s); }

// Marks on the widgets this file looks after: the screen of a window, and the
// control of a picture, chart or image.
const char* kWindowForm = "orvAccessibleForm";
const char* kShownControl = "orvAccessibleControl";

// A window's screen and a widget's control live as long as the window is on
// screen: a screen is hidden before it is unloaded, so a hidden widget tells
// nothing of its model.
Form* FormOf(const QWidget* window) {
  if (window == nullptr || !window->isVisible()) return nullptr;
  return static_cast<Form*>(window->property(kWindowForm).value<void*>());
}

const Control* ControlOf(const QWidget* widget) {
  if (widget == nullptr || !widget->isVisible()) return nullptr;
  return static_cast<const Control*>(widget->property(kShownControl).value<void*>());
}

// A screen's window is a window, named by its caption or the program's name.
class WindowAccessible : public QAccessibleWidget {
 public:
  explicit WindowAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::Window) {}

  QString text(QAccessible::Text t) const override {
    if (t != QAccessible::Name) return QAccessibleWidget::text(t);
    if (const Form* form = FormOf(widget())) return Q(WindowName(*form));
    const QString title = widget()->windowTitle().trimmed();
    return title.isEmpty() ? QString::fromUtf8(kProgramName.data(), kProgramName.size()) : title;
  }
};

// An option button is a radio button, whichever buttons the runtime groups
// with it; a press goes through the widget's own click.
class OptionAccessible : public QAccessibleWidget {
 public:
  explicit OptionAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::RadioButton) {}

  QString text(QAccessible::Text t) const override {
    if (t != QAccessible::Name) return QAccessibleWidget::text(t);
    // Not the frame's title, which Qt would take for a button in a frame.
    if (!widget()->accessibleName().isEmpty()) return widget()->accessibleName();
    return Q(WithoutMnemonic(button()->text().toStdString()));
  }
  QAccessible::State state() const override {
    QAccessible::State s = QAccessibleWidget::state();
    s.checkable = true;
    s.checked = button()->isChecked();
    return s;
  }
  QStringList actionNames() const override {
    QStringList names{pressAction()};
    names += QAccessibleWidget::actionNames();
    return names;
  }
  void doAction(const QString& action) override {
    if (action == pressAction() || action == toggleAction()) {
      if (widget()->isEnabled()) button()->click();
      return;
    }
    QAccessibleWidget::doAction(action);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QAbstractButton* button() const { return static_cast<QAbstractButton*>(widget()); }
};

// A picture, chart or image: a graphic whose name and description come from
// what its control shows now.
class ShownAccessible : public QAccessibleWidget {
 public:
  ShownAccessible(QWidget* w, QAccessible::Role role) : QAccessibleWidget(w, role) {}

  QString text(QAccessible::Text t) const override {
    const Control* c = ControlOf(widget());
    if (c != nullptr && t == QAccessible::Name) return Q(AccessibleName(*c));
    if (c != nullptr && t == QAccessible::Description) {
      const std::string description = AccessibleDescription(*c);
      if (!description.empty()) return Q(description);
    }
    return QAccessibleWidget::text(t);
  }
};

QAccessibleInterface* Factory(const QString& className, QObject* object) {
  auto* w = qobject_cast<QWidget*>(object);
  if (w == nullptr) return nullptr;
  if (w->isWindow() && w->property(kWindowForm).isValid()) return new WindowAccessible(w);
  if (className == QLatin1String("QRadioButton")) return new OptionAccessible(w);
  if (w->property(kShownControl).isValid()) {
    const auto* c = static_cast<const Control*>(w->property(kShownControl).value<void*>());
    return new ShownAccessible(w, c->kind() == Kind::Chart ? QAccessible::Chart : QAccessible::Graphic);
  }
  return nullptr;
}

// Keeps the names that Qt cannot work out itself (a list's caption, a box
// with no label, a button called by its tool tip) in step with the screen:
// set again whenever the control is shown or gains the focus.
class NameKeeper : public QObject {
 public:
  using QObject::QObject;

  // `buddy`, when given, names the widget itself whenever it has words.
  void Keep(QWidget* w, const Control& c, QLabel* buddy = nullptr) {
    named_[w] = {&c, buddy};
    w->installEventFilter(this);
    Apply(w);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // Only a widget on screen is sure to have its control still.
    if (event->type() == QEvent::Show || event->type() == QEvent::FocusIn) Apply(static_cast<QWidget*>(watched));
    return false;
  }

 private:
  void Apply(QWidget* w) {
    auto it = named_.find(w);
    if (it == named_.end()) return;
    const auto& [control, buddy] = it->second;
    const QString name = Q(AccessibleName(*control));
    const bool byBuddy = !buddy.isNull() && buddy->buddy() == w && !buddy->text().trimmed().isEmpty();
    const QString own = byBuddy ? QString() : name;
    if (w->accessibleName() != own) w->setAccessibleName(own);
  }

  struct Named {
    const Control* control;
    QPointer<QLabel> buddy;
  };
  std::map<const QWidget*, Named> named_;
};

}  // namespace

void MakeAccessible(QWidget* window, Form& form, const std::function<QWidget*(const Control&)>& widgetOf) {
  static const bool installed = [] {
    QAccessible::installFactory(&Factory);
    return true;
  }();
  (void)installed;
  window->setProperty(kWindowForm, QVariant::fromValue(static_cast<void*>(&form)));
  auto* keeper = new NameKeeper(window);
  for (const auto& owned : form.controls()) {
    const Control& c = *owned;
    QWidget* w = widgetOf(c);
    if (w == nullptr) continue;
    switch (c.kind()) {
      case Kind::TextBox:
      case Kind::RichText: {
        // The prompt is the box's buddy: Qt names the box by the label's
        // current text and tells that the label labels it.
        const Control* prompt = PromptLabel(c);
        auto* label = prompt != nullptr ? qobject_cast<QLabel*>(widgetOf(*prompt)) : nullptr;
        // While that label is blank the box keeps a name of its own.
        if (label != nullptr && label->parentWidget() == w->parentWidget()) label->setBuddy(w);
        keeper->Keep(w, c, label);
        break;
      }
      case Kind::ListBox:
      case Kind::Tree: keeper->Keep(w, c); break;
      case Kind::Button:
      case Kind::Option:
      case Kind::CheckBox:
        if (AccessibleName(c) != WithoutMnemonic(c.Caption())) keeper->Keep(w, c);
        break;
      case Kind::Picture:
      case Kind::Chart:
      case Kind::Image:
        w->setProperty(kShownControl, QVariant::fromValue(static_cast<void*>(const_cast<Control*>(&c))));
        break;
      default: break;
    }
  }
}

}  // namespace orv::qt
