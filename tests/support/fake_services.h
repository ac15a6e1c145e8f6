#pragma once
// The platform's services as the tests see them: message boxes, print-outs
// and calculator starts are recorded instead of shown, and the clipboard is a
// string. Shared by the unit tests, the scenario runner and the bench.

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "shell/program.h"

namespace orv::test {

struct Box {
  std::string text;
  Icon icon = Icon::None;
  std::string title;
  bool operator==(const Box&) const = default;
};
using Boxes = std::vector<Box>;

// "none", "information", "exclamation" or "critical".
std::string IconName(Icon icon);
// A box as `"text" icon=NAME title="title"`, for failure messages.
std::ostream& operator<<(std::ostream& out, const Box& box);

class FakeMessages : public MessageService {
 public:
  void Show(std::string_view text, Icon icon, std::string_view title) override;
  void ShowFatal(std::string_view words) override { fatal = std::string(words); }
  void Beep() override { ++beeps; }

  Boxes boxes;        // in the order shown
  std::string fatal;  // the words of the untrapped error the program ended on
  int beeps = 0;
};

// Raises "Printer error" when there is no printer, as the real one does.
class FakePrinter : public PrintService {
 public:
  void PrintImage(Form& form) override;

  bool available = true;
  std::vector<std::string> printed;  // the screens' names
};

// Raises "File not found" when the machine has no calculator.
class FakeLauncher : public LaunchService {
 public:
  void LaunchCalculator() override;

  bool available = true;
  int launched = 0;
};

class FakeClipboard : public ClipboardService {
 public:
  std::string Text() const override { return text; }
  void SetText(std::string_view t) override { text = std::string(t); }

  std::string text;
};

// One of each, for a program with no toolkit.
struct FakeServices {
  Program::Services services() { return {&messages, &printer, &launcher, nullptr, &clipboard}; }

  FakeMessages messages;
  FakePrinter printer;
  FakeLauncher launcher;
  FakeClipboard clipboard;
};

}  // namespace orv::test
