// Starting the program: everything main() does before the first screen, in
// one place, so that the start-up benchmark measures exactly what a user
// waits for.
#pragma once

#include <QApplication>

namespace orv::app {

class Launch {
 public:
  // Makes the application object and presents the program to the desktop.
  Launch(int& argc, char** argv);
  // Starts the program at its first screen and runs it to the end.
  int Run();

 private:
  QApplication app_;
};

}  // namespace orv::app
