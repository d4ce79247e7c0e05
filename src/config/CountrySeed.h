#pragma once
// The country file and the master call file of a new program folder, taken
// from the hamradio-files package when the folder has none.
//
// The package's cty.dat lists tens of thousands of whole calls ("=" entries)
// beside the prefixes, more than the prefix table holds. The copy written
// here keeps every country header and every prefix entry, with its zone
// overrides, and leaves out the "=" entries.

#include <optional>
#include <string>
#include <string_view>

namespace tarnix {

// Where the hamradio-files package puts cty.dat and MASTER.SCP.
inline constexpr std::string_view HamradioFilesDir = "/usr/share/hamradio-files/";

// fullText, a country file, without its "=" entries. Each country's kept
// entries are written again on lines of their own, ended by "," while the
// list goes on and by ";" at its end; a country left with no entry keeps its
// header alone. Comment and empty lines are dropped; one comment line on top
// says where the file comes from. Lines end in LF.
std::string MakeSeedCountryFile(const std::string& fullText);

// Writes cty.dat (from cty.dat, filtered) and master.scp (a copy of
// MASTER.SCP) into appPath from sourceDir, each only when appPath has no file
// of that name: an operator's own file is never replaced. Returns the
// problems met, one line each, or nothing when all went well.
std::optional<std::string> SeedCountryFile(const std::string& appPath,
                                           std::string_view sourceDir = HamradioFilesDir);

}  // namespace tarnix
