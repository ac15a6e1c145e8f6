#include "qtui/qt_keys.h"

#include <QKeyEvent>

namespace orv::qt {

Key ToKey(const QKeyEvent& e) {
  Key k;
  const int q = e.key();
  const Qt::KeyboardModifiers m = e.modifiers();
  if (m & Qt::ShiftModifier) k.shift |= kShiftMask;
  if (m & Qt::ControlModifier) k.shift |= kCtrlMask;
  if (m & Qt::AltModifier) k.shift |= kAltMask;
  switch (q) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      k.code = kKeyReturn;
      k.ascii = 13;
      return k;
    case Qt::Key_Escape:
      k.code = kKeyEscape;
      k.ascii = 27;
      return k;
    case Qt::Key_Backspace:
      k.code = kKeyBack;
      k.ascii = 8;
      return k;
    case Qt::Key_Tab: k.code = kKeyTab; return k;
    case Qt::Key_Backtab:
      k.code = kKeyTab;
      k.shift |= kShiftMask;
      return k;
    case Qt::Key_Delete: k.code = kKeyDelete; return k;
    case Qt::Key_Left: k.code = kKeyLeft; return k;
    case Qt::Key_Right: k.code = kKeyRight; return k;
    case Qt::Key_Up: k.code = kKeyUp; return k;
    case Qt::Key_Down: k.code = kKeyDown; return k;
    case Qt::Key_Home: k.code = kKeyHome; return k;
    case Qt::Key_End: k.code = kKeyEnd; return k;
    default: break;
  }
  if (q >= Qt::Key_F1 && q <= Qt::Key_F24) {
    k.code = kKeyF1 + (q - Qt::Key_F1);
    return k;
  }
  const QString text = e.text();
  if (!text.isEmpty() && text.at(0).unicode() != 127) k.ascii = text.at(0).unicode();
  k.code = (q >= Qt::Key_A && q <= Qt::Key_Z) ? q : KeyCodeOfChar(k.ascii);
  return k;
}

}  // namespace orv::qt
