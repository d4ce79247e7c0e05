#pragma once
// What a text box of the entry form does itself with a key the form leaves
// to it (LogForm::PressKey returned false): the editing and caret keys, on
// the focused entry box. A window's own text boxes do this for the app; the
// headless front ends (tarnix-cli script, the fuzz harnesses) call this.

#include "operating/LogForm.h"

namespace tarnix {

// Backspace, Delete, Left, Right, Home and End on the focused call or
// exchange box; any other key, or another focus, changes nothing.
void EditFocusedBox(LogForm& form, int keyCode);

}  // namespace tarnix
