#pragma once
// The Qt driver: real mouse clicks and key events into the widgets, and what
// the widgets show.

#include <memory>

#include "scenario/driver.h"

class QApplication;

namespace orv::scenario {

// The toolkit for the Qt driver, for as long as it lives: offscreen when
// there is no display, quiet about what the offscreen platform cannot do.
class QtSession {
 public:
  QtSession(int& argc, char** argv);
  ~QtSession();
  QtSession(const QtSession&) = delete;
  QtSession& operator=(const QtSession&) = delete;

 private:
  std::unique_ptr<QApplication> app_;
};

// Needs a QtSession.
std::unique_ptr<Driver> MakeQtDriver(test::FakeServices& fakes);

}  // namespace orv::scenario
