#pragma once
// The settings file tarnix125.ini: read once at start-up, rewritten whole
// whenever a caller changes a setting (there is no dirty flag).
//
// The file looks like a sectioned key file but is not one: [Preferences] and
// its like are read by key, the CW message, display and window sections by
// line position, and the radio model sections by key with a row counter that
// the RTSHigh key of each group advances. There is no comment syntax. Lines
// end in CR LF.
//
// Reading never throws and never leaves the settings half filled: on a
// missing file, a row or set number beyond the format's bounds, a key in a
// profile section above 4 or a number that does not fit its 16-bit variable,
// the settings are left as they were and the result carries a message naming
// the file and line. Writing builds the whole text first and replaces the
// file only when all of it is on disk.

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "config/Settings.h"

namespace tarnix {

struct SettingsResult {
  bool Ok = false;
  std::string Error;  // what went wrong, for the start-up's message box
  // A blank profile name was replaced by "Custom Profile n": the caller must
  // write the file at once so that the names stick.
  bool ProfilesRenamed = false;
};

// Reads the file at path into settings. appPath is the program folder with
// its trailing "/", which an empty OpenFilePath becomes.
SettingsResult ReadSettings(const std::string& path, Settings& settings, const std::string& appPath);

// The same over the file's text; fileName names it in messages.
SettingsResult ParseSettings(std::string_view text, const std::string& fileName, Settings& settings,
                             const std::string& appPath);

// The live place of a remembered window, in twips.
struct WindowGeometry {
  int Left = 0;
  int Top = 0;
  int Height = 0;
  int Width = 0;
};

// What a write that keeps the window layout needs: the place of the eight
// windows ([1]..[8]: LogForm, ViewMult, QSOStats, ViewMac, Audio, CACTY,
// ViewZnCty, Partial) and the contest whose set receives them.
struct WindowCapture {
  int ContestIndex = 0;
  std::array<WindowGeometry, WindowRows + 1> Windows{};
};

// Stores the captured geometry into the current contest's window rows.
// When that set's row 8 is not named "PARTIAL", row 8 of every set is reset
// to the partial window's stock place instead. Values beyond the 16-bit range
// are held at its ends; a contest index outside 1..13 captures nothing.
void CaptureWindows(Settings& settings, const WindowCapture& capture);

// The complete file text the writer produces.
std::string SettingsText(const Settings& settings);

// Writes the file; the error text when it could not be written.
std::optional<std::string> WriteSettings(const std::string& path, const Settings& settings);
// The write of a window close: CaptureWindows, then the write.
std::optional<std::string> WriteSettings(const std::string& path, Settings& settings, const WindowCapture& capture);

// Splits "key = value" at the first "=", trimming both parts. A line without
// "=" changes neither, and returns false.
bool SplitKeyValue(std::string_view line, std::string& key, std::string& value);

}  // namespace tarnix
