#pragma once
// Start-up of the program state from the program folder.

#include <string>

#include "operating/Context.h"

namespace tarnix {

// The settings file in the program folder.
std::string SettingsPath(const Context& ctx);

// Seeds the program folder with the shipped files it lacks and reads the
// settings file. Returns an error text, or an empty text when all went well.
std::string LoadProgramFolder(Context& ctx);

}  // namespace tarnix
