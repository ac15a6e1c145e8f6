#include "qtui/qt_program.h"

#include <QApplication>

namespace orv::qt {

QtProgram::QtProgram(const ScreenRegistry& registry)
    : program(registry, {&messages, &printer, &launcher, &view, &clipboard},
              QCoreApplication::applicationDirPath().toStdString()) {
  view.SetProgram(&program);
}

int QtProgram::Run() {
  program.Start();
  if (program.Ended()) return program.EndedOnError() ? 1 : 0;
  return QApplication::exec();
}

}  // namespace orv::qt
