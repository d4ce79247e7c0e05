#pragma once
// Key codes and modifier bits as the entry boxes' key handlers receive them.
// A view maps its toolkit's keys onto these by name; the names are those the
// operator knows from the keyboard ("F9", "PageUp", "Apostrophe").

#include <optional>
#include <string_view>

namespace tarnix {

enum KeyCode : int {
  KeyBackspace = 8, KeyTab = 9, KeyEnter = 13, KeyCapsLock = 20, KeyEscape = 27, KeySpace = 32,
  KeyPageUp = 33, KeyPageDown = 34, KeyEnd = 35, KeyHome = 36,
  KeyLeft = 37, KeyUp = 38, KeyRight = 39, KeyDown = 40,
  KeyInsert = 45, KeyDelete = 46,
  // Letters have the code of their capital.
  KeyA = 65, KeyM = 77, KeyR = 82, KeyW = 87, KeyX = 88, KeyZ = 90,
  KeyF1 = 112, KeyF2, KeyF3, KeyF4, KeyF5, KeyF6, KeyF7, KeyF8, KeyF9, KeyF10, KeyF11, KeyF12,
  KeyApostrophe = 222
};

// Modifier bits of the shift argument.
inline constexpr int ShiftMask = 1;
inline constexpr int CtrlMask = 2;
inline constexpr int AltMask = 4;

// A key with its modifiers, as "Ctrl+Down" names it.
struct NamedKey {
  int Code = 0;
  int Shift = 0;
};

// The key a name gives: "Enter", "F9", "Ctrl+Down", "Alt+M", "Shift+F1"...
// Names and modifiers are matched without regard to case; a single letter or
// digit names its own key. Nothing for a name no key has.
std::optional<NamedKey> KeyByName(std::string_view name);

}  // namespace tarnix
