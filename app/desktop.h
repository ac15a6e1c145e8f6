// How the program presents itself to the desktop: the name of its desktop
// entry, so that the desktop matches the windows with the menu entry, and the
// atom emblem as the icon of every window.
#pragma once

#include <QIcon>

namespace orv::app {

// The installed desktop entry is this name with ".desktop" appended.
inline constexpr const char* kDesktopFileName = "example.halveron.Orvanta";

// The emblem's pixel sizes built into the program as the window icon. Every
// window hands each size to the window manager when it is made, so the
// largest, which only a launcher shows, stays with the desktop entry's icons.
inline constexpr int kIconSizes[] = {16, 22, 24, 32, 48, 64, 128};

// The emblem in every built-in size.
QIcon ApplicationIcon();

// Names the desktop entry to Qt and sets the window icon of the whole
// program. Needs the QApplication to exist.
void PresentToDesktop();

}  // namespace orv::app
