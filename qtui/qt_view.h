#pragma once
// The one Qt layer for every screen: builds a window from a screen's control
// table, mirrors every change of the model into the widgets, and feeds the
// user's real keys and clicks into the runtime. It decides nothing itself.
// What is particular to a kind of control lives in its adapter
// (qtui/control_adapter.h); this is what all kinds share.

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

#include "shell/program.h"

namespace orv::qt {

class QtView : public QObject, public View {
  Q_OBJECT

 public:
  QtView();
  ~QtView() override;

  void SetProgram(Program* program) { program_ = program; }
  Program* program() const { return program_; }

  // The window of a loaded screen, and a control's widget (none for a menu
  // entry, which is an action of its window).
  QWidget* Window(const Form& form) const;
  QWidget* Widget(const Control& control) const;
  // The control a widget or action shows, if any.
  Control* ControlOf(const QObject* widget) const;
  Form* FormOf(const QObject* window) const;

  // Called after every piece of user input; ends the event loop once the
  // program has ended, unless a handler is set.
  std::function<void()> onEnded;

  // View
  void FormLoaded(Form& form) override;
  void FormUnloaded(Form& form) override;
  void FormShown(Form& form) override;
  void FormHidden(Form& form) override;
  void FormCaptionChanged(Form& form) override;
  void ControlChanged(Control& control, Prop what) override;
  void FocusChanged(Form& form, Control* control) override;

  // Input from the widgets. None reaches the runtime while the view itself
  // is changing a widget.
  void Clicked(Control& control);
  void DoubleClicked(Control& control);
  void Edited(Control& control, const QString& text);
  void RowSelected(Control& control, int row);
  void CaretMoved(Control& control, int start, int length);
  void CloseRequested(Form& form);
  // Runs one piece of input a widget carries out itself through the runtime.
  void RunInput(const std::function<void()>& input);
  // Whether the view is mirroring the model into a widget just now.
  bool Syncing() const { return syncing_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct FormWidgets {
    QPointer<QWidget> window;
    // The widget, or the menu entry's action, that shows each control.
    std::map<const Control*, QPointer<QObject>> shown;
  };
  QObject* Shown(const Control& control) const;
  void AfterInput();
  QWidget* Build(Form& form, FormWidgets& fw);
  bool KeyPressed(QObject* watched, QKeyEvent& key);

  Program* program_ = nullptr;
  std::map<const Form*, FormWidgets> forms_;
  bool syncing_ = false;
};

// A window's image as it stands, for printing and for tests.
QImage GrabForm(QtView& view, Form& form);

}  // namespace orv::qt
