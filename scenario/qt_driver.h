#pragma once
// The Qt driver: real mouse clicks and key events into the widgets, and what
// the widgets show. Needs a QApplication.

#include <memory>

#include "scenario/driver.h"

namespace orv::scenario {

std::unique_ptr<Driver> MakeQtDriver(test::FakeServices& fakes);

}  // namespace orv::scenario
