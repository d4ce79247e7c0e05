#pragma once
// The program folder, AppPath: where the settings, data files, the temporary
// log and the kill and recovery files live.

#include <string>

namespace tarnix {

// $TARNIX_HOME when set, else $XDG_DATA_HOME/tarnix, else
// ~/.local/share/tarnix; always with a trailing "/". The folder is created
// when missing.
std::string ResolveAppPath();

}  // namespace tarnix
