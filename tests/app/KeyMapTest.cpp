// The keys of the window by name: which key of the entry form each Qt key
// event is.

#include <gtest/gtest.h>

#include "KeyMap.h"

namespace tarnix {
namespace {

TEST(FormKeyOf, QtKeysAndModifiersByName) {
  struct Row { const char* name; int qtKey; Qt::KeyboardModifiers modifiers; int code, shift; };
  const Row rows[] = {
      {"Return", Qt::Key_Return, {}, KeyEnter, 0},
      {"keypad Enter", Qt::Key_Enter, Qt::KeypadModifier, KeyEnter, 0},
      {"Shift+Enter", Qt::Key_Return, Qt::ShiftModifier, KeyEnter, ShiftMask},
      {"F1", Qt::Key_F1, {}, KeyF1, 0},
      {"Shift+F12", Qt::Key_F12, Qt::ShiftModifier, KeyF12, ShiftMask},
      {"Ctrl+F9", Qt::Key_F9, Qt::ControlModifier, KeyF9, CtrlMask},
      {"Alt+F9", Qt::Key_F9, Qt::AltModifier, KeyF9, AltMask},
      {"Alt+M", Qt::Key_M, Qt::AltModifier, KeyM, AltMask},
      {"Ctrl+X", Qt::Key_X, Qt::ControlModifier, KeyX, CtrlMask},
      {"Ctrl+Alt+Z", Qt::Key_Z, Qt::ControlModifier | Qt::AltModifier, KeyZ, CtrlMask | AltMask},
      {"Ctrl+Down", Qt::Key_Down, Qt::ControlModifier, KeyDown, CtrlMask},
      {"Alt+Left", Qt::Key_Left, Qt::AltModifier, KeyLeft, AltMask},
      {"Up", Qt::Key_Up, {}, KeyUp, 0},                     {"Page Up", Qt::Key_PageUp, {}, KeyPageUp, 0},
      {"Page Down", Qt::Key_PageDown, {}, KeyPageDown, 0},  {"Insert", Qt::Key_Insert, {}, KeyInsert, 0},
      {"Caps Lock", Qt::Key_CapsLock, {}, KeyCapsLock, 0},  {"apostrophe", Qt::Key_Apostrophe, {}, KeyApostrophe, 0},
      {"Space", Qt::Key_Space, {}, KeySpace, 0},            {"Tab", Qt::Key_Tab, {}, KeyTab, 0},
      {"plain letter", Qt::Key_K, {}, 'K', 0}};
  for (const Row& row : rows) {
    std::optional<NamedKey> key = FormKeyOf(row.qtKey, row.modifiers);
    ASSERT_TRUE(key) << row.name;
    EXPECT_EQ(std::pair(key->Code, key->Shift), std::pair(row.code, row.shift)) << row.name;
  }
  // These arrive as typed characters: the key-press step handles them.
  for (int qtKey : {Qt::Key_BracketRight, Qt::Key_Backslash, Qt::Key_Plus, Qt::Key_Minus, Qt::Key_Exclam,
                    Qt::Key_QuoteDbl, Qt::Key_Slash, Qt::Key_5, Qt::Key_Meta})
    EXPECT_FALSE(FormKeyOf(qtKey, Qt::NoModifier)) << qtKey;
}

}  // namespace
}  // namespace tarnix
