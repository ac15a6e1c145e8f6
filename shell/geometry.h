#pragma once
// Where a control stands on its screen, whatever frame holds it. No toolkit
// code lives here.

#include "shell/controls.h"

namespace orv {

// The control's rectangle relative to the screen's client area: its own
// rectangle moved by those of the frames that hold it.
Rect FormRect(const Control& control);

// Centre of a rectangle, doubled so that it stays a whole number.
inline int CentreX2(const Rect& r) { return 2 * r.x + r.w; }
inline int CentreY2(const Rect& r) { return 2 * r.y + r.h; }

}  // namespace orv
