#pragma once
// The dupe check: whether a call is in the log, on which bands and modes, and
// whether a QSO with it now would be a dupe under the contest's rule; and the
// texts the entry form builds from that: the dupe line, the worked-before
// grid, the lists of logged calls that begin with what is typed so far, and
// the note about a portable form of the call.
//
// These functions read the log store and the contest state and return what
// to show; the form shows it. All run on the user-interface thread.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Bands.h"
#include "core/LogStore.h"
#include "core/QsoRecord.h"

namespace tarnix {

inline constexpr int PortableRows = 80;

// A logged call with "/" and the longer of its two parts, so that the plain
// call typed later finds the portable form in the log.
struct PortableRow {
  std::string Call;      // as logged: "K3ZZZ/P"
  std::string LongPart;  // "K3ZZZ"
};

// The portable calls of the open log, rows 1..PortableCount, in the order
// they were first logged. Rebuilt by the replay when a log is loaded.
struct PortableTable {
  FixedTable<PortableRow, 1, PortableRows> Rows;
  int16_t PortableCount = 0;
};

void ResetPortables(PortableTable& table);

// The part of a call with "/" that stands for the station: the part behind
// the first "/" when the part before it is strictly shorter, otherwise the
// part before it. "K3ZZZ/P" gives "K3ZZZ", "DL/K3ZZZ" gives "K3ZZZ",
// "K3/W1" gives "K3" (equal lengths keep the front).
std::string LongerPart(std::string_view call);

// Adds a logged call with "/" to the table unless it is there already. An
// 81st call throws std::out_of_range ("Subscript out of range"): the table's
// bound is the limit, reported by the logging step like any other bound.
void AddPortableCall(PortableTable& table, const std::string& call);

// What a scan found. The form keeps one of these per call typed.
struct DupeResult {
  bool FoundInLog = false;     // the call or its alternative form is in the log
  bool FoundOnBand = false;    // ... on the current BandIndex
  bool IsDupe = false;         // a QSO now would be a dupe
  bool PortableMatch = false;  // the match came through the alternative form
  // The QSO the dupe line shows. A scan sets it only when it finds the call
  // on the band (in SS, anywhere); otherwise it keeps its last value.
  int16_t DupeQSO = 0;
  int16_t LastQSO = 0;         // the last QSO with the call, any band
  // Per BandIndex 1..24, the QNumber of the last QSO with the call there.
  std::array<int16_t, BandIndexCount + 1> BandNumbers{};
  std::string Call;            // the call scanned for, "." and "?" removed
  std::string Alt;             // its alternative form; empty when it has none
};

// Scans QSOs 1..QSOCount-1 for the call and its alternative form (the longer
// part of a call with "/", or for a plain call the portable call logged with
// it) and applies the contest's rule: in Sweepstakes any earlier QSO makes a
// dupe, elsewhere only one on the same BandIndex, which holds the mode too.
// "." and "?" in the call, marks of uncertain copy, are ignored. Only QSOs
// whose CallSum equals the sum of one of the two forms are compared as text.
void ScanForDupes(LogStore& log, const PortableTable& portables, int contest, int bandIndex, std::string_view call,
                  DupeResult& result);

// The date of a QSO as the dupe line writes it, from the digits of the coded
// date: 1155 gives "1/15/95", 11155 "11/15/95", 21155 "01/15/05", 31226
// "11/22/06", and a negative code (the 2010s) -21155 "01/15/15".
std::string DupeDateText(int16_t qdate);

// "DUPE - ", date, two blanks, HHMM and the contest's tail: "Z  My #" and the
// QSO number, or for CQP, Sprint, SS, WPX, PAQP and the CW Open
// "Z  His #", the number received, "  My #" and the QSO number.
std::string DupeLineText(int contest, const QsoRecord& qso);

// One cell of the worked-before grid: the band name, then the QSO numbers
// for CW and for SSB. BandRow 0 is a cell the contest leaves unused.
struct GridCell {
  int BandRow = 0;
  std::string Text;
};

struct WorkedGrid {
  bool Shown = false;            // SS has no grid
  std::string ModeCaption;       // " CW:", "SSB:" or both on two lines
  std::array<GridCell, 9> Cells;  // 1..8
};

// The grid for the contest from a scan's BandNumbers. bandIndex gives the
// mode of the single-mode contests, which show only the current mode's line.
WorkedGrid BuildWorkedGrid(int contest, int bandIndex, const std::array<int16_t, BandIndexCount + 1>& bandNumbers);

// The logged calls that begin with what is typed, split by whether they were
// worked on the current BandIndex, each list behind the contest's label.
// Empty lists stay empty texts. A call worked three times stands three times.
struct CallMatches {
  std::string ThisList;
  std::string OtherList;
};
CallMatches MatchLoggedCalls(LogStore& log, int contest, int bandIndex, std::string_view partial);

// The note shown when a call is in the log only through its alternative
// form: typed with "/", the plain call was logged; typed plain, a portable
// form was.
inline constexpr std::string_view PortableNoteTitle = "Portable Station?";
std::string PortableNoteText(std::string_view call, std::string_view alt);

}  // namespace tarnix
