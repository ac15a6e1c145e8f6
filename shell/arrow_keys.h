#pragma once
// Arrow keys among a screen's command buttons: from the focused button to the
// nearest one that way. No toolkit code lives here.

#include "shell/controls.h"

namespace orv {

// Whether the key code is one of the four arrow keys.
bool IsArrowKey(int keyCode);

// The button the focus moves to when an arrow key is pressed on `from`: of
// the buttons the user can reach that lie that way, one sharing its row (or
// column) wins, the nearest first; else the nearest by distance, counting a
// step across twice. nullptr when no button lies that way.
Control* ButtonToward(const Control& from, int keyCode);

}  // namespace orv
