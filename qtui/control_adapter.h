#pragma once
// How the Qt view shows one kind of control. Each kind has one adapter
// (qtui/adapters/), and everything the view does for that kind lives there:
// the widget it creates, how each property of the model reaches the widget,
// and which of the widget's signals become the user's input.

#include <QFont>
#include <QString>
#include <map>
#include <string>
#include <string_view>

#include "shell/controls.h"

class QMenu;
class QMenuBar;
class QObject;
class QWidget;

namespace orv::qt {

class QtView;

inline QString Q(std::string_view s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }

// What an adapter sees while the view builds one screen's window.
struct BuildContext {
  BuildContext(QtView& v, Form& f, QWidget* w) : view(v), form(f), window(w) {}

  QtView& view;
  Form& form;
  QWidget* window;
  // The widget the control goes in: the screen's client area, or the frame
  // that holds it.
  QWidget* parent = nullptr;
  // Frames by name, for the controls they hold.
  std::map<std::string, QWidget*> containers;
  // The window's menu bar, made on first use, and its menus by name.
  QMenuBar* MenuBar();
  QMenuBar* ExistingMenuBar() const { return menuBar_; }
  std::map<std::string, QMenu*> menus;

 private:
  QMenuBar* menuBar_ = nullptr;
};

class ControlAdapter {
 public:
  virtual ~ControlAdapter() = default;

  // Creates what shows the control: a widget, placed by the view, or an
  // object of the window's own (a menu entry's action). Connects the signals
  // that carry the user's input to the view.
  virtual QObject* Create(Control& c, BuildContext& context) const = 0;

  // Mirrors one property of the model into what shows the control, leaving
  // the others as they are. Runs with the widget's signals blocked.
  virtual void Sync(const Control& c, QObject* shown, Prop what) const;

  // Whether a double click on the widget itself is the control's DblClick
  // (a text box keeps it for selecting a word).
  virtual bool TakesDoubleClick() const { return true; }

 protected:
  // Enabled, visible, tool tip and colours, which every widget shows alike;
  // false for the properties it leaves to the adapter.
  static bool SyncCommon(const Control& c, QWidget* w, Prop what);
};

// The adapter of a kind of control.
const ControlAdapter& AdapterFor(Kind kind);

// Every property in the order a newly built widget takes them on.
void SyncAll(const ControlAdapter& adapter, const Control& c, QObject* shown);

// Turns a mouse release on a widget without a clicked signal of its own (a
// label, a frame, the emblem) into the control's Click.
void ClickOnRelease(QtView& view, QWidget* w);

// The font and the alignment the control's design flags ask for.
QFont FontFor(const Control& c, const QFont& base);
Qt::Alignment AlignFor(const Control& c);

}  // namespace orv::qt
