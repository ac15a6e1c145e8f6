#include "qtui/qt_keys.h"

#include <QKeyEvent>

namespace orv::qt {

namespace {

struct QtName {
  Qt::Key qt;
  std::string_view name;
};

// The first entry of a name is the key sent for it.
constexpr QtName kQtNames[] = {
    {Qt::Key_Return, "Enter"},  {Qt::Key_Enter, "Enter"}, {Qt::Key_Escape, "Esc"}, {Qt::Key_Backspace, "Backspace"},
    {Qt::Key_Delete, "Delete"}, {Qt::Key_F1, "F1"},       {Qt::Key_Tab, "Tab"},    {Qt::Key_Backtab, "Shift+Tab"},
    {Qt::Key_Left, "Left"},     {Qt::Key_Right, "Right"}, {Qt::Key_Up, "Up"},      {Qt::Key_Down, "Down"},
    {Qt::Key_Home, "Home"},     {Qt::Key_End, "End"},
};

}  // namespace

Qt::Key QtKeyOf(std::string_view name) {
  for (const QtName& n : kQtNames) {
    if (n.name == name) return n.qt;
  }
  return Qt::Key_unknown;
}

std::optional<Key> NamedKeyOfQt(int qtKey) {
  for (const QtName& n : kQtNames) {
    if (n.qt == qtKey) return KeyNamed(n.name);
  }
  return std::nullopt;
}

Key ToKey(const QKeyEvent& e) {
  Key k;
  const int q = e.key();
  if (const std::optional<Key> named = NamedKeyOfQt(q)) {
    k = *named;
  } else if (q >= Qt::Key_F1 && q <= Qt::Key_F24) {
    k.code = kKeyF1 + (q - Qt::Key_F1);
  } else {
    const QString text = e.text();
    if (!text.isEmpty() && text.at(0).unicode() != 127) k.ascii = text.at(0).unicode();
    k.code = (q >= Qt::Key_A && q <= Qt::Key_Z) ? q : KeyCodeOfChar(k.ascii);
  }
  const Qt::KeyboardModifiers m = e.modifiers();
  if (m & Qt::ShiftModifier) k.shift |= kShiftMask;
  if (m & Qt::ControlModifier) k.shift |= kCtrlMask;
  if (m & Qt::AltModifier) k.shift |= kAltMask;
  return k;
}

}  // namespace orv::qt
