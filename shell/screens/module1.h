#pragma once
// Start-up: shows the main screen and the splash above it, then opens the
// database beside the executable.

#include "shell/program.h"

namespace orv {

// The program's start-up routine.
void Main(Program& program);

// Opens the database read-only; on failure shows why and returns false.
bool OpenDataStore(Program& program);

}  // namespace orv
