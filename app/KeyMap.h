#pragma once
// The keyboard of the window by name: which of the entry form's keys a Qt
// key event is. Keys the form has no name for (most characters) come to it
// as typed characters instead.

#include <Qt>

#include <optional>

#include "operating/Keys.h"

namespace tarnix {

// The form's key and modifier bits for a Qt key and its modifiers; nothing
// for a key the form does not name. Letters are named, so that Ctrl-X or
// Alt-M reach the form; the keypad modifier is no modifier of the form's.
std::optional<NamedKey> FormKeyOf(int qtKey, Qt::KeyboardModifiers modifiers);

}  // namespace tarnix
