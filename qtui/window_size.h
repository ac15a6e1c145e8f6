#pragma once
// Windows that grow with the desktop font and open on the screen. The
// control tables give each control's place in logical pixels for the design
// font; a larger desktop font scales the whole design by the same factor, as
// far as the screen's available area allows.

#include <QPoint>
#include <QPointer>
#include <QRect>
#include <map>

#include "shell/controls.h"
#include "shell/form.h"

class QWidget;

namespace orv::qt {

// Called once for each new window, after its controls' widgets are made:
// sizes the client area and places every control at the scale of the
// desktop font, and remembers that scale on the window.
void ScaleToFont(const Form& form, QWidget& window, QWidget& content,
                 const std::map<const Control*, QPointer<QObject>>& shown);

// A control's design rectangle at the scale of its window.
QRect DesignGeometry(const Control& control, const QWidget& widget);

// Moves a window to `wanted` (its frame's top left corner), or as near as keeps the
// whole window, title bar included, within the screen's available area.
void PlaceOnScreen(QWidget& window, QPoint wanted);

}  // namespace orv::qt
