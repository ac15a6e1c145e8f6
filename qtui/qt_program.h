#pragma once
// The program with the Qt front end and the platform's services, finding its
// data beside the executable.

#include "qtui/qt_services.h"
#include "qtui/qt_view.h"
#include "shell/program.h"

namespace orv::qt {

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

}  // namespace orv::qt
