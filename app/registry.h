#pragma once
#include "shell/program.h"

namespace orv {

// Every screen that is built, and the start-up routine.
const ScreenRegistry& AllScreens();

}  // namespace orv
