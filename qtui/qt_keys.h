#pragma once
// Qt's keys for the runtime's named keys (shell/keys.h), both ways: for
// translating real key events and for sending a named key to a widget.

#include <Qt>
#include <optional>
#include <string_view>

#include "shell/keys.h"
#include "shell/program.h"

class QKeyEvent;

namespace orv::qt {

// The Qt key that presses the named key, or Qt::Key_unknown.
Qt::Key QtKeyOf(std::string_view name);

// The runtime's key for a Qt key that has a name; Return and the keypad's
// Enter are both Enter.
std::optional<Key> NamedKeyOfQt(int qtKey);

// The runtime's key code of a key the user pressed in a Qt widget, its Shift,
// Ctrl and Alt, and the character it produces.
Key ToKey(const QKeyEvent& e);

}  // namespace orv::qt
