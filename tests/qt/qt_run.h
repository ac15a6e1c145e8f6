#pragma once
// One run of the program through the real Qt view, with fake services that
// record what the user would have seen: every screen on the database beside
// the test executables, or a test's own screens in a folder of its choosing.

#include <QApplication>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/registry.h"
#include "qtui/qt_view.h"
#include "shell/program.h"
#include "tests/support/fake_services.h"

namespace orv::test {

class QtRun {
 public:
  // Every screen, with the start-up's events handled.
  QtRun() : QtRun(AllScreens(), ORVANTA_BIN_DIR) { Settle(); }
  // A test's own screens, with the start-up's events left for the test.
  QtRun(const ScreenRegistry& screens, const std::string& folder)
      : owned_(std::make_unique<Program>(
            screens, Program::Services{&fakes.messages, &fakes.printer, &fakes.launcher, &view, &fakes.clipboard},
            folder)) {
    view.SetProgram(&program);
    view.onEnded = [] {};
    program.Start();
  }
  ~QtRun() {
    owned_.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
  QtRun(const QtRun&) = delete;
  QtRun& operator=(const QtRun&) = delete;

  static void Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }
  // Shows a screen as a route would; the screen, when it is loaded after.
  Form* Show(const std::string& name) {
    program.UserAction([&] { program.Show(name); });
    Settle();
    return program.Ended() ? nullptr : program.Find(name);
  }
  // A screen the test needs: one that does not load stops the test.
  Form& Open(const std::string& name) {
    Form* form = Show(name);
    return form != nullptr ? *form : throw std::runtime_error(name + " did not load");
  }
  void Unload(const std::string& name) {
    program.UserAction([&] { program.Unload(name); });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  QWidget* Widget(const Control& c) const { return view.Widget(c); }
  QWidget* W(Form& form, const std::string& control) const { return view.Widget(form.ctl(control)); }
  QWidget* Window(const Form& form) const { return view.Window(form); }

  FakeServices fakes;
  qt::QtView view;

 private:
  std::unique_ptr<Program> owned_;

 public:
  Program& program = *owned_;
};

// The names of every registered screen.
inline std::vector<std::string> ScreenNames() {
  std::vector<std::string> names;
  for (const auto& [name, factory] : AllScreens().screens) names.push_back(name);
  return names;
}

}  // namespace orv::test
