#pragma once
// The runtime's key for a key the user pressed in a Qt widget.

#include "shell/program.h"

class QKeyEvent;

namespace orv::qt {

// The runtime's key code of a Qt key, its Shift, Ctrl and Alt, and the
// character it produces.
Key ToKey(const QKeyEvent& e);

}  // namespace orv::qt
