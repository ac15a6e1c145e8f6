#pragma once
// The platform's services for the runtime: message boxes, the printer, the
// desktop calculator and the clipboard.

#include <functional>
#include <string>
#include <string_view>

#include "shell/services.h"

class QMessageBox;

namespace orv::qt {

class QtView;

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

}  // namespace orv::qt
