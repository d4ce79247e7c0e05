#pragma once
// The program folder, AppPath: where the settings, data files, the temporary
// log and the kill and recovery files live. A new folder is seeded with the
// files the program ships (the stock settings file among them), so that a
// first run finds what start-up reads.

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarnix {

// $TARNIX_HOME when set, else $XDG_DATA_HOME/tarnix, else
// ~/.local/share/tarnix; always with a trailing "/". The folder is created
// when missing.
std::string ResolveAppPath();

// The files the program ships, by name, found in ShippedDataDir().
inline constexpr std::array<std::string_view, 2> ShippedDataFiles = {"tarnix125.ini", "tarnix121.dat"};

// $TARNIX_DATA when set, else the data folder fixed at build time.
std::string ShippedDataDir();

// Copies each shipped file from dataDir into appPath where appPath lacks it.
// A file already there is the operator's and is never replaced. Returns the
// problems met, one line each, or nothing when all went well.
std::optional<std::string> SeedProgramFolder(const std::string& appPath, const std::string& dataDir);

}  // namespace tarnix
