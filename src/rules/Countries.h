#pragma once
// Country and prefix resolver: which country, CQ zone and continent a call
// belongs to, its WPX prefix, the US or Canadian zone of a North American
// call, and the beam heading from the station.
//
// The country list is cty.dat, an outside party's file, read once at
// start-up into two fixed tables: CountryTable (rows 1..350 in file order,
// row 0 blank for "no country") and PrefixTable (up to 10000 entries of the
// form pattern "*" row, e.g. "AA0(4)[7]*184"). An entry keeps the file's
// decoration: "=" for a whole call only, "(n)" a CQ zone override, "[n]" an
// ITU zone override (ignored).
//
// FindCountry gives the longest pattern that starts the call, the first in
// file order among equally long ones, unless a pattern equals the whole call.
// The lookup works on PrefixIndex, a hash of the patterns built from
// PrefixTable by the reader; the answers are those of a plain scan of the
// entries in file order.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "config/Settings.h"
#include "core/Contest.h"
#include "rules/ContestCounters.h"

namespace tarnix {

inline constexpr int MaxPrefixEntries = 10000;

struct CountryRecord {
  std::string Name;       // trimmed, at most 25 characters
  float Latitude = 0;     // degrees, north positive
  float Longitude = 0;    // degrees, east positive (the file holds west positive)
  std::string Heading;    // cached beam heading as text; empty until first shown
  std::string Zone;       // CQ zone: the two characters before the field's colon, e.g. " 5" or "14"
  std::string Prefix;     // primary prefix, upper case, at most 5 characters; "*" first: some awards only
  std::string Continent;  // "AF", "AS", "EU", "NA", "OC" or "SA"
};

// One pattern's first entries in file order: in every contest, and in ARRL
// DX, where the entries of "*" countries do not count. 0 when there is none.
struct PrefixSlot {
  int16_t First = 0;
  int16_t FirstForArrlDx = 0;
};

// An entry taken apart once, at load time, as the lookup reads it.
struct PrefixEntry {
  std::string Pattern;    // without decoration
  int16_t Row = 0;
  int16_t Zone = 0;       // CQ zone override, 0 when none
  bool ExactOnly = false; // "=": the whole call only
};

// Hash of patterns that is searched with a piece of a call as it stands.
struct PatternHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};
using PatternMap = std::unordered_map<std::string, PrefixSlot, PatternHash, std::equal_to<>>;

struct PrefixIndex {
  // Entry numbers are those of PrefixTable, from 1.
  std::array<PrefixEntry, MaxPrefixEntries + 1> Entries{};
  // Every pattern, as a whole call.
  PatternMap Whole;
  // Patterns without "=", as the start of a longer call.
  PatternMap Start;
  std::size_t LongestStart = 0;
};

// The tables and the state of the lookups. Owned by the caller (it is large:
// keep it on the heap); filled by ReadCountryFile, constant afterwards but
// for the heading cache and LookupZone.
struct CountryData {
  std::array<CountryRecord, MaxCountries + 1> CountryTable{};
  int CountryCount = 0;
  // Entries 1..PrefixCount; entry 0 is unused.
  std::array<std::string, MaxPrefixEntries + 1> PrefixTable{};
  int PrefixCount = 0;
  // Rows whose Prefix is "K", "VE", "KH6", "KL"; set only after a complete read.
  int16_t CountryRowK = 0;
  int16_t CountryRowVE = 0;
  int16_t CountryRowKH6 = 0;
  int16_t CountryRowKL = 0;
  // The CQ zone override of the entry of the last FindCountry; 0 when none.
  int16_t LookupZone = 0;
  PrefixIndex Index;
};

// The message of a failed read, for a message box with the exclamation icon.
// Not fatal: the program goes on with what was read.
inline constexpr std::string_view CountryFileMessage =
    "Can't find or read country file cty.dat.  This is not a fatal error unless you are using a contest "
    "that requires it.  Make sure it is in the same drive/directory used to start program.";

struct CountryFileResult {
  bool Ok = false;
  std::string Message;  // CountryFileMessage when not Ok
  std::string Detail;   // what went wrong and where, for a log or a console
};

// Reads the country file at path into data (cleared first). On a failure
// what was read so far stays, searchable, and the CountryRow values stay 0.
CountryFileResult ReadCountryFile(const std::string& path, CountryData& data);

// The same over the file's text; fileName names the file in Detail.
CountryFileResult ReadCountryText(std::string_view text, const std::string& fileName, CountryData& data);

// Rebuilds data.Index from PrefixTable and the rows' Prefix. The reader does
// this; a caller that fills the tables by hand must do it before a lookup.
void BuildPrefixIndex(CountryData& data);

// The country row of call (0 when nothing matches); sets data.LookupZone.
// A call holding "/" that is not listed whole is replaced by its WPX prefix
// and looked up once more: the caller sees the changed text. Calls are
// compared as given: pass them in upper case.
int16_t FindCountry(CountryData& data, const ContestState& contest, std::string& call);

// The WPX prefix of a call: "K3ZZZ" "K3", "K3ZZZ/KH6" "KH6", "W6XYZ/3" "W3",
// "ABCD" "AB0".
std::string GetWPXPrefix(std::string_view call);

// The CQ zone of a US or Canadian call by its first digit, 0 for any other.
int16_t GetNAZone(std::string_view call);

enum class NAClass { None, USA, Canada, OtherNA };

// Where a WPX prefix lies for the points of a North American station. None
// is everything outside North America (Hawaii among it).
NAClass ClassifyNAPrefix(std::string_view prefix);

// "USA", "Canada", "OtherNA" or "None".
std::string_view NAClassText(NAClass value);

// Great-circle bearing from the station to the row's point, 0 to 360; 999
// when out of range (a row outside the table among it).
int16_t GetHeading(const CountryData& data, const Settings& settings, int row);

// "Name: " + Name cut and padded to 21 + "Hdg: " + heading. The heading comes
// from the row's cache unless that is empty or 0; then it is computed and
// stored in the cache.
std::string NameHeadingLine(CountryData& data, const Settings& settings, int row);

}  // namespace tarnix
