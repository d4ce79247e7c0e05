#pragma once
// The log file: a 26-byte header that says which contest it is, then one
// fixed-length record per QSO. QSO n lies at offset n x R, where R is 60 in
// every log this program creates; the header fills the first 26 bytes of the
// first place. Logs of old versions have 26- or 36-byte records.
//
// This unit knows the bytes: the header, how a header sets the contest state,
// the record length of a log, and the two conversions of old logs. Opening,
// asking and replaying are the main form's (LogForm).

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "core/Contest.h"
#include "core/QsoRecord.h"

namespace tarnix {

inline constexpr std::size_t LogHeaderSize = 26;

struct LogHeader {
  int16_t HdrReserved1 = 0;
  int16_t HdrReserved2 = 0;
  int16_t HdrWide = 1;        // 1: 60-byte records; else an old log
  FixedText<10> HdrReserved3;
  int16_t HdrOldMark = 0;     // above 0: a format this program cannot read
  int16_t HdrReserved4 = 0;
  FixedText<5> HdrContest;    // contest code (3) and suffix (2)
  FixedText<1> HdrQth;        // location digit
  bool operator==(const LogHeader&) const = default;
};

std::array<char, LogHeaderSize> EncodeHeader(const LogHeader& header);
// Bytes missing at the end read as blanks and zeros.
LogHeader DecodeHeader(std::span<const char> bytes);

// The header of a new log of the chosen contest.
LogHeader MakeHeader(const ContestState& state);

// What reading a header found beyond the contest state it set.
struct HeaderReading {
  bool Incompatible = false;          // HdrOldMark above 0: the program ends
  bool UnknownContest = false;        // the code names none of the contests
  bool ConvertWpx = false;            // a WPX log of version 6.5 or earlier
  bool ConvertOldSweepstakes = false; // a Sweepstakes log before 1997
  bool AskCqpLocation = false;        // a CQP log that does not say where
};

// Sets the contest, the station location and the mode from a header, as a
// log is opened. A header whose code names no contest leaves the state alone.
HeaderReading ReadHeader(const LogHeader& header, ContestState& state, bool& wideLog);

// Record length of a log: 60 when wide, else 36 for Sprint, NAQP and
// Generic, 26 for the others.
int RecordLengthOf(bool wideLog, int contestIndex);

// The WPX conversion of an old 26-byte log: the location digit becomes "3"
// if it was "1" (Canada), else "2" (USA), and every blank multiplier field
// gets the WPX prefix of the call.
std::string ConvertWpxLog(const std::string& bytes, const std::function<std::string(const std::string&)>& wpxPrefix);

// The conversion of a Sweepstakes log from before 1997 (26-byte records):
// the header code gets the "9" of the 1997 section list, and each section
// number of the old list (the last two characters of the multiplier field)
// is renumbered for the year's list, ssYear 96 (78 sections) or 95 (77).
std::string ConvertOldSweepstakesLog(const std::string& bytes, int ssYear);

}  // namespace tarnix
