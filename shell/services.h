#pragma once
// What the runtime needs from the platform, behind small interfaces: message
// boxes, printing a screen's image, starting the desktop calculator, and a
// view that mirrors the model. The Qt layer implements them for the program;
// the scenario runner has its own recording versions.

#include <string>
#include <string_view>

namespace orv {

class Form;
class Control;

enum class Icon { None, Information, Exclamation, Critical };

enum class Prop;

class MessageService {
 public:
  virtual ~MessageService() = default;
  // Modal: returns when the user has dismissed the box.
  virtual void Show(std::string_view text, Icon icon, std::string_view title) = 0;
  // The box of an untrapped run-time error, shown just before the end.
  virtual void ShowFatal(std::string_view words) = 0;
  // The system beep.
  virtual void Beep() {}
};

class PrintService {
 public:
  virtual ~PrintService() = default;
  // Prints the screen's image on the default printer, no dialog. Raises the
  // run-time error "Printer error" when there is no printer.
  virtual void PrintImage(Form& form) = 0;
};

class LaunchService {
 public:
  virtual ~LaunchService() = default;
  // Starts a desktop calculator, detached. Raises "File not found" when the
  // machine has none.
  virtual void LaunchCalculator() = 0;
};

// The desktop's clipboard, for Ctrl+C, Ctrl+X and Ctrl+V in a text box.
class ClipboardService {
 public:
  virtual ~ClipboardService() = default;
  virtual std::string Text() const = 0;
  virtual void SetText(std::string_view text) = 0;
};

// Mirrors the model into a toolkit. Every call comes after the model has
// changed; a view never calls back into the model from these.
class View {
 public:
  virtual ~View() = default;
  virtual void FormLoaded(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void FormShown(Form& form) = 0;  // shown and brought forward
  virtual void FormHidden(Form& form) = 0;
  virtual void FormCaptionChanged(Form& form) = 0;
  virtual void ControlChanged(Control& control, Prop what) = 0;
  virtual void FocusChanged(Form& form, Control* control) = 0;
};

}  // namespace orv
