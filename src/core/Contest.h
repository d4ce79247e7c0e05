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

// Which stations a fact of a contest holds for.
enum class Stations : uint8_t { None, All, UsVe };

// A contest's row of the catalogue: its names, and the facts that the entry
// form and the views follow. A rule change of this kind is a change of one
// row in Contest.cpp.
struct ContestInfo {
  std::string_view ListText;      // text in the contest list of ChCoForm
  std::string_view HeaderCode;    // three characters at the start of the log header
  std::string_view TitleName;     // name in the title line

  // The log.
  bool MixedMode = false;         // logs hold both modes; the others one, chosen for a new log
  bool CWOnly = false;            // CW whatever was chosen
  int16_t OffTimeLimit = 15;      // longest gap between QSOs still counted as operating, minutes

  // The entry boxes.
  bool SpaceToggles = false;      // Space toggles between the boxes; else it moves on from
                                  // the call box and is a blank in the exchange
  bool BlankInCall = false;       // the call box takes a typed blank
  bool RepeatCommand = false;     // "R" or "RPT" in the call box brings the last QSO back
  bool AgeExchange = false;       // no parser: the exchange is an age of 0 to 99
  bool NotesExchange = false;     // the exchange is free notes, kept as typed
  bool ZoneFromCall = false;      // leaving the call box puts the call's zone in the exchange
  bool TakesWpxPrefix = false;    // the logged call's WPX prefix goes to the scoring
  bool RefillsCountyLine = false; // a county-line QSO is followed by its call and number again
  bool DupeOnAnyBand = false;     // a station counts once in the whole contest

  // The views.
  bool MultsFollowBand = false;   // the multiplier window follows a change of band or radio
  Stations MultsFollowCountry = Stations::None;  // ...and is drawn clear when the entry is wiped
  bool StatsFollowRadio = false;  // the statistics are drawn again when the radios swap
};

// Row 1..13 of the catalogue.
const ContestInfo& ContestTable(int contestIndex);

// The row of a contest, or an empty row (no names, every fact off, the
// 15-minute off-time) for an index outside 1..13, such as no log open.
const ContestInfo& TraitsOf(int contestIndex);

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

// The modes of a new log once the contest is chosen: both in a mixed-mode
// contest, CW alone in a CW-only one, else the one chosen.
void SetModesOfNewLog(ContestState& state);

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
