#pragma once
// A ring around whichever control of a window has the keyboard focus, drawn
// the same way whatever the style and whether the focus came by key, by mouse
// or from the program, so that a keyboard user always sees where keys go.

#include <QWidget>

namespace orv::qt {

// Gives the window its focus ring; it follows the focus from then on.
void ShowKeyboardFocus(QWidget* window);

}  // namespace orv::qt
