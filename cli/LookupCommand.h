#pragma once
// tarnix-cli lookup CALL...: the country resolver on the command line.

#include <iosfwd>
#include <string>
#include <vector>

namespace tarnix::cli {

// Resolves each call against cty.dat of the program folder (seeded from the
// hamradio-files package when missing) and prints one tab-separated line a
// call: the call as the lookup left it, country row, country name, CQ zone,
// continent, WPX prefix, US/Canadian zone, North American class and heading
// from the station position of the settings. Returns 0, 1 when the country
// file could not be read whole (the lines are still printed from what was
// read), 2 without calls.
int Lookup(const std::vector<std::string>& calls, std::ostream& out, std::ostream& err);

}  // namespace tarnix::cli
