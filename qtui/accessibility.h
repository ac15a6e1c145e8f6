#pragma once
// What a screen reader hears from a screen's window: every control's name
// and role, the labels that prompt for boxes, the window named by its caption.
// The names themselves are worked out toolkit-free (shell/accessible.h);
// this file hands them to Qt's accessibility.

#include <QWidget>
#include <functional>

#include "shell/form.h"

namespace orv::qt {

// Sets up a screen's window once its widgets are built and show the model:
// labels become their boxes' buddies, lists, trees and buttons whose
// captions are signs get names that follow the screen, option buttons read as
// radio buttons, the window as a window, pictures and charts as graphics
// with what they show. `widgetOf` gives a control's widget (nullptr for
// none).
void MakeAccessible(QWidget* window, Form& form, const std::function<QWidget*(const Control&)>& widgetOf);

}  // namespace orv::qt
