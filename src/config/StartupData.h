#pragma once
// The startup data file tarnix121.dat: the fixed contest data that is not in
// the code. It holds the multiplier lists of the domestic contests, the map
// coordinates of the multiplier windows, the element strings of the CW
// characters and the default frequency of each BandIndex. It is read once at
// start-up, after the settings, and the program cannot run without it.
//
// The file is plain text read line by line. A trimmed line that is exactly
// one of the section names below starts that section; every other line
// outside a section is skipped, so the file may carry notes between sections.
// A section is read positionally: exactly its number of items, with the
// field-by-field rules of the text input. Items are separated by a comma or a
// line end; blanks, tabs and empty lines before an item are skipped; an item
// in double quotes keeps its blanks and commas and must be followed by a
// separator; an unquoted item runs to the next separator, without trailing
// blanks. Then the reader looks for a section name again. Nothing checks that
// the items of a section end where the section's lines end: a section one
// item short takes the next section's name as its last item, and that next
// section is then never seen. The file must be exact.
//
// The multiplier lists are kept here as the file gives them; the tables of
// the rules are filled from them each time a log is opened
// (rules/MultiplierTables.h).
//
// All lists count from 1, as the rows and places of the tables do; element 0
// is unused.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Bands.h"

namespace tarnix {

inline constexpr int MultListPlaces = 196;
// The three parts of MultList: CQP states and provinces, California
// counties, Sweepstakes sections.
inline constexpr int CQPStatePlace = 1;
inline constexpr int CQPCountyPlace = 59;
inline constexpr int SSSectionPlace = 117;

inline constexpr int CQPMultRows = 58;
inline constexpr int SSSectionRows = 80;
inline constexpr int SprintMultRows = 72;
inline constexpr int PAQPMultRows = 67;
inline constexpr int NEQPMultRows = 67;
inline constexpr int NAQPMultRows = 72;
inline constexpr int TenMultRows = 65;
inline constexpr int ARRLMultRows = 63;
// The CQP map also serves Sprint and NAQP, so it has as many places as their
// lists.
inline constexpr int CQPMapPlaces = 72;
inline constexpr int CWCharacterCount = 42;

// The characters the CW sender knows, in the order of [CW Characters]: the
// last two are the word space and the short pause "*".
inline constexpr std::string_view CWAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890,./? *";
static_assert(CWAlphabet.size() == CWCharacterCount);

// One place of [ARRL USVEMultOrder]: the number read for the place, which is
// the row's position in the state and province grid, and the place itself.
struct ARRLOrderEntry {
  int16_t Order = 0;
  int16_t Place = 0;
  bool operator==(const ARRLOrderEntry&) const = default;
};

template <int N>
using TextList = std::array<std::string, N + 1>;
template <int N>
using Int16List = std::array<int16_t, N + 1>;

struct StartupData {
  TextList<MultListPlaces> MultList;     // loading area of the CQP and SS tables
  TextList<SSSectionRows> SSShortForms;  // two characters per section, stored in the log
  TextList<SprintMultRows> SprintMults;  // column 1 of SprintTable
  TextList<PAQPMultRows> PAQPMults;      // column 1 of PAQPTable
  TextList<NEQPMultRows> NEQPMults;      // column 3 of NEQPTable: the fixed eight-character texts
  TextList<NAQPMultRows> NAQPMults;      // column 1 of NAQPTable
  TextList<TenMultRows> TenMults;        // column 1 of TenTable
  TextList<ARRLMultRows> ARRLMults;      // column 1 of ARRLTable

  // Map spots of the multiplier window, in twips.
  Int16List<CQPMapPlaces> CQPMapX, CQPMapY;
  Int16List<SSSectionRows> SSMapX, SSMapY;
  Int16List<TenMultRows> TenMapX, TenMapY;
  Int16List<ARRLMultRows> ARRLMapX, ARRLMapY;
  std::array<ARRLOrderEntry, ARRLMultRows + 1> ARRLOrder{};

  // Element strings of the characters of CWAlphabet, in its order: "1" a
  // dit, "3" a dash, "0" a word space, "2" a short pause.
  TextList<CWCharacterCount> CWCharacters;

  // Default frequency in kHz by BandIndex. Start-up gives both radios this
  // list as their last frequency on each BandIndex.
  std::array<int32_t, BandIndexCount + 1> BandFrequencies{};

  bool operator==(const StartupData&) const = default;
};

// The message the operator sees, with the critical icon, when the file is
// missing, unreadable or damaged; the program then ends.
inline constexpr std::string_view StartupFileMessage =
    "Can't find or read startup file tarnix121.dat, and can't proceed without it. Make sure it is in the same "
    "drive/directory used to start program.";

struct StartupDataResult {
  bool Ok = false;
  std::string Error;   // StartupFileMessage when the read failed, else empty
  std::string Detail;  // for the developer: the file, the line and what was wrong there
};

// Reads the file at path into data. On failure data is left exactly as it
// was. A section the file lacks leaves its list as it was.
StartupDataResult ReadStartupFile(const std::string& path, StartupData& data);

// The same over the file's text; fileName names the file in the detail.
StartupDataResult ParseStartupData(std::string_view text, const std::string& fileName, StartupData& data);

}  // namespace tarnix
