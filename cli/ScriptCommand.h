#pragma once
// tarnix-cli script FILE: the main form driven by a keystroke script, one
// action a line:
//   type TEXT        the characters into the focused box, as keys
//   key NAME         a key by name with its modifiers: Enter, F9, Ctrl+Down,
//                    Alt+M, Apostrophe, Insert, Backspace, Left...
//   answer A         Yes, No, Cancel, OK, Abort, Retry or Ignore for the next
//                    message box
//   clock YYYY-MM-DD HH:MM   the computer clock
//   show             the form's state
// Blank lines and lines starting with "#" are skipped. Message boxes print as
// "MSGBOX <title>|<text>" when shown, what the form asked of the senders and
// radios as "REQUEST <text>" after the line that asked.

#include <iosfwd>

#include "Commands.h"

namespace tarnix::cli {

// script FILE [--log LOG.TNX] | [--contest N [--mode cw|phone] [--qth ...]]
// [--clock "YYYY-MM-DD HH:MM"]. With --log the QSOs go to that log; else a
// throw-away log of contest N (Generic without --contest) is used. Returns 0,
// 1 when the log does not open, 2 on a usage error or a bad script line
// (named on err with its line number).
int Script(const Args& args, std::ostream& out, std::ostream& err);

}  // namespace tarnix::cli
