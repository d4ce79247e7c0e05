#pragma once
// Key codes and modifier bits as the entry boxes' key handlers receive them.
// A view maps its toolkit's keys onto these by name.

namespace tarnix {

enum KeyCode : int {
  KeyBackspace = 8, KeyTab = 9, KeyEnter = 13, KeyEscape = 27, KeySpace = 32,
  KeyPageUp = 33, KeyPageDown = 34, KeyLeft = 37, KeyUp = 38, KeyRight = 39, KeyDown = 40,
  KeyInsert = 45, KeyDelete = 46, KeyApostrophe = 222,
  KeyF1 = 112, KeyF2, KeyF3, KeyF4, KeyF5, KeyF6, KeyF7, KeyF8, KeyF9, KeyF10, KeyF11, KeyF12
};

// Modifier bits of the shift argument.
inline constexpr int ShiftMask = 1;
inline constexpr int CtrlMask = 2;
inline constexpr int AltMask = 4;

}  // namespace tarnix
