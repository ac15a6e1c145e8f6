// Orvanta: starts the program with the Qt front end.

#include <QApplication>

#include "app/desktop.h"
#include "app/registry.h"
#include "qtui/qt_program.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Orvanta");
  orv::app::PresentToDesktop();
  QApplication::setQuitOnLastWindowClosed(false);

  orv::qt::QtProgram orvanta(orv::AllScreens());
  return orvanta.Run();
}
