#pragma once
// The thirteen contests and the contest-level state every rule reads.
//
// ContestIndex numbers the contests as all branches use them:
//  1 ARRL DX, 2 CQP, 3 CQWW DX, 4 NA Sprint, 5 Sweepstakes, 6 WPX,
//  7 JARL All Asian, 8 PAQP, 9 NAQP, 10 ARRL 10 Meter, 11 NEQP, 12 Generic,
//  13 CW Open.
// ContestState changes only when a log is created or opened (BandEnabled
// and the current band also while operating).

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarnix {

inline constexpr int ContestCount = 13;

enum Contest : int16_t {
  ArrlDx = 1, Cqp = 2, Cqww = 3, Sprint = 4, Sweepstakes = 5, Wpx = 6, AllAsian = 7,
  Paqp = 8, Naqp = 9, Ten = 10, Neqp = 11, Generic = 12, CwOpen = 13
};

struct ContestInfo {
  std::string_view ListText;      // text in the contest list of ChCoForm
  std::string_view HeaderCode;    // three characters at the start of the log header
  std::string_view TitleName;     // name in the title line
};

// Row 1..13 of the catalogue.
const ContestInfo& ContestTable(int contestIndex);

// The contest of a log header's code: only its first two letters count.
// Returns 0 for a code that names no contest.
int ContestFromHeaderCode(std::string_view code);

struct ContestState {
  int16_t ContestIndex = 0;
  // ModeEnabled[1] phone, [2] CW; mixed logs have both.
  std::array<bool, 3> ModeEnabled{};
  bool IsUSVEStation = false;     // ARRL DX: the station is in USA or Canada
  bool InState = false;           // CQP, PAQP, NEQP: inside the party's area
  bool StationInUSA = false;      // CQWW, WPX
  bool StationInCanada = false;   // CQWW, WPX
  std::string StationContinent;   // CQWW, WPX when neither flag is set
  int16_t CWOStartHour = 0;       // CW Open: 1200, 2000 or 400
  int16_t SSYear = 0;             // Sweepstakes: 97, 96 or 95
  // BandEnabled[row] for the band rows 1..12; row 12 is never set.
  std::array<bool, 13> BandEnabled{};
  int16_t OffTimeLimit = 15;      // minutes of gap still counted as operating
  int16_t BandIndex = 0;          // the current band and mode
};

// Contests whose logs hold both modes.
bool IsMixedModeContest(int contestIndex);

// Longest gap between QSOs that still counts as operating time.
int16_t OffTimeLimitFor(int contestIndex);

// Which call list the super check partial loads: "ALL", "US" or "DX".
std::string SCPSelectionFor(const ContestState& state);

// The BandIndex an empty log starts on.
int16_t StartBandFor(const ContestState& state);

// BandEnabled as set again at every load of a log.
void SetDefaultBands(ContestState& state);

// The caption over the exchange box.
std::string ExchangeCaptionFor(const ContestState& state);

// The places that draw the title line, each with its own list of contests
// whose mode is left out.
enum class TitleContext { LoadLog, NewLog, SaveAs };

// "Log: " name " - - Contest: " contest name and " CW" or " SSB".
std::string TitleLine(const std::string& fileName, const ContestState& state, TitleContext where);

}  // namespace tarnix
