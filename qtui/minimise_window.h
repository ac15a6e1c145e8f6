#pragma once
// Minimising the window of another process, where the platform allows it.

#include <QtGlobal>

namespace orv::qt {

// On X11, waits (without blocking, for up to ten seconds) for a top-level
// window whose _NET_WM_PID is `pid`, and asks the window manager to minimise
// it as soon as it is mapped. Elsewhere this does nothing.
void MinimiseWindowOf(qint64 pid);

}  // namespace orv::qt
