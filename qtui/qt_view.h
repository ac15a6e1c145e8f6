#pragma once
// The one Qt layer for every screen: builds a window from a screen's control
// table, mirrors every change of the model into the widgets, and feeds the
// user's real keys and clicks into the runtime. It decides nothing itself.

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>

#include "shell/program.h"

class QMessageBox;

namespace orv::qt {

class QtView : public QObject, public View {
  Q_OBJECT

 public:
  QtView();
  ~QtView() override;

  void SetProgram(Program* program) { program_ = program; }
  Program* program() const { return program_; }

  // The window of a loaded screen, and a control's widget.
  QWidget* Window(const Form& form) const;
  QWidget* Widget(const Control& control) const;
  // The control a widget shows, if any.
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

  // Input from the widgets.
  void Clicked(Control& control);
  void DoubleClicked(Control& control);
  void Edited(Control& control, const QString& text);
  void RowSelected(Control& control, int row);
  void CloseRequested(Form& form);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct FormWidgets {
    QPointer<QWidget> window;
    std::map<const Control*, QPointer<QWidget>> widgets;
  };
  void Sync(Control& control);
  void AfterInput();
  QWidget* Build(Form& form, FormWidgets& fw);

  Program* program_ = nullptr;
  std::map<const Form*, FormWidgets> forms_;
  bool syncing_ = false;
};

// Message boxes with QMessageBox and the four icons. A hook, when set, sees
// each box just before it runs (the scenario runner reads and dismisses it).
class QtMessages : public MessageService {
 public:
  void Show(std::string_view text, Icon icon, std::string_view title) override;
  void ShowFatal(std::string_view words) override;
  void Beep() override;
  std::function<void(QMessageBox&)> hook;
};

// The screen's image on the default printer, no dialog.
class QtPrinter : public PrintService {
 public:
  explicit QtPrinter(QtView& view) : view_(view) {}
  void PrintImage(Form& form) override;

 private:
  QtView& view_;
};

// The first desktop calculator found on the PATH, started detached.
class QtLauncher : public LaunchService {
 public:
  void LaunchCalculator() override;
};

// The desktop's clipboard.
class QtClipboard : public ClipboardService {
 public:
  std::string Text() const override;
  void SetText(std::string_view text) override;
};

// The program with the Qt front end and the platform's services, finding its
// data beside the executable.
struct QtProgram {
  explicit QtProgram(const ScreenRegistry& registry);
  // Runs the start-up routine, then the event loop; the program's exit code.
  int Run();

  QtView view;
  QtMessages messages;
  QtPrinter printer{view};
  QtLauncher launcher;
  QtClipboard clipboard;
  Program program;
};

// A window's image as it stands, for printing and for tests.
QImage GrabForm(QtView& view, Form& form);

}  // namespace orv::qt
