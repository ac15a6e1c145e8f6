#include "app/launch.h"

#include "app/desktop.h"
#include "app/registry.h"
#include "qtui/qt_program.h"

namespace orv::app {

Launch::Launch(int& argc, char** argv) : app_(argc, argv) {
  QApplication::setApplicationName("Orvanta");
  PresentToDesktop();
  QApplication::setQuitOnLastWindowClosed(false);
}

int Launch::Run() {
  qt::QtProgram orvanta(AllScreens());
  return orvanta.Run();
}

}  // namespace orv::app
