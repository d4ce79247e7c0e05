#pragma once
// Start-up of the program state, in its order: the program folder and its
// files, the settings, the radios' defaults, the contest data. The main form
// is shown by the front end after this, and then offers recovery.

#include <string>

#include "operating/Context.h"
#include "platform/Platform.h"

namespace tarnix {

// The settings file in the program folder.
std::string SettingsPath(const Context& ctx);

// Seeds the program folder with the shipped files it lacks and reads the
// settings file. Returns an error text, or an empty text when all went well.
std::string LoadProgramFolder(Context& ctx);

// Each radio takes the serial settings of the model row its name names; a
// name found in no row keeps what the settings file gave it.
void CopyRadioDefaults(Settings& settings);

// Everything before the main form shows. A file the program cannot run
// without ends the start: its critical message is shown and false returned.
bool StartProgram(Context& ctx, Platform& desk);

}  // namespace tarnix
