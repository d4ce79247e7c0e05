#include "KeyMap.h"

namespace tarnix {
namespace {

int CodeOf(int qtKey) {
  switch (qtKey) {
    case Qt::Key_Return:
    case Qt::Key_Enter: return KeyEnter;
    case Qt::Key_Space: return KeySpace;
    case Qt::Key_Backspace: return KeyBackspace;
    case Qt::Key_Tab: return KeyTab;
    case Qt::Key_Escape: return KeyEscape;
    case Qt::Key_CapsLock: return KeyCapsLock;
    case Qt::Key_PageUp: return KeyPageUp;
    case Qt::Key_PageDown: return KeyPageDown;
    case Qt::Key_Home: return KeyHome;
    case Qt::Key_End: return KeyEnd;
    case Qt::Key_Left: return KeyLeft;
    case Qt::Key_Up: return KeyUp;
    case Qt::Key_Right: return KeyRight;
    case Qt::Key_Down: return KeyDown;
    case Qt::Key_Insert: return KeyInsert;
    case Qt::Key_Delete: return KeyDelete;
    case Qt::Key_Apostrophe: return KeyApostrophe;
    default: break;
  }
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F12) return KeyF1 + (qtKey - Qt::Key_F1);
  if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return KeyA + (qtKey - Qt::Key_A);
  return 0;
}

}  // namespace

std::optional<NamedKey> FormKeyOf(int qtKey, Qt::KeyboardModifiers modifiers) {
  int code = CodeOf(qtKey);
  if (code == 0) return std::nullopt;
  int shift = (modifiers & Qt::ShiftModifier ? ShiftMask : 0) | (modifiers & Qt::ControlModifier ? CtrlMask : 0) |
              (modifiers & Qt::AltModifier ? AltMask : 0);
  return NamedKey{code, shift};
}

}  // namespace tarnix
