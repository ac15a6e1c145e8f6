// Orvanta: starts the program with the Qt front end.

#include <QApplication>
#include <QIcon>

#include "app/registry.h"
#include "qtui/qt_view.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Orvanta");
  QApplication::setQuitOnLastWindowClosed(false);

  orv::qt::QtView view;
  orv::qt::QtMessages messages;
  orv::qt::QtPrinter printer(view);
  orv::qt::QtLauncher launcher;
  orv::Program program(orv::AllScreens(), {&messages, &printer, &launcher, &view},
                       QCoreApplication::applicationDirPath().toStdString());
  view.SetProgram(&program);
  program.Start();
  if (program.Ended()) return program.EndedOnError() ? 1 : 0;
  return QApplication::exec();
}
