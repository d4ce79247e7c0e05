#include "rules/DupeCheck.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

#include "core/Contest.h"
#include "core/QDate.h"
#include "core/Text.h"

namespace tarnix {
namespace {

// Contests whose log holds one mode: the grid shows only that mode's line.
bool SingleModeGrid(int contest) { return OneOf(contest, {ArrlDx, Cqww, Wpx, AllAsian, Naqp, CwOpen, Sprint}); }

// Contests whose mode caption names both modes, one a line.
bool TwoModeCaption(int contest) { return OneOf(contest, {Cqp, Paqp, Ten, Generic, Neqp}); }

// A grid line: the QSO number, or "  --" when the band has none.
std::string GridNumber(int16_t qso) { return qso != 0 ? NumberText(qso) : std::string("  --"); }

// The band rows 1..11 a Generic log has QSOs on, in row order, at most eight.
// Row 12 is the blank row no QSO is ever on.
int GenericRows(const std::array<int16_t, BandIndexCount + 1>& numbers, std::array<int, 9>& rows) {
  int used = 0;
  for (int row = 1; row <= BandRowCount - 1 && used < 8; ++row) {
    if (numbers.at(static_cast<std::size_t>(BandIndexCW(row))) != 0 ||
        numbers.at(static_cast<std::size_t>(BandIndexSSB(row))) != 0)
      rows[static_cast<std::size_t>(++used)] = row;
  }
  return used;
}

}  // namespace

void ResetPortables(PortableTable& table) { table.PortableCount = 0; }

std::string LongerPart(std::string_view call) {
  std::size_t slash = call.find('/');
  if (slash == std::string_view::npos) return std::string(call);
  std::string_view before = call.substr(0, slash);
  std::string_view behind = call.substr(slash + 1);
  return std::string(before.size() < behind.size() ? behind : before);
}

void AddPortableCall(PortableTable& table, const std::string& call) {
  for (int row = 1; row <= table.PortableCount; ++row)
    if (table.Rows.At(row).Call == call) return;
  PortableRow& row = table.Rows.At(table.PortableCount + 1);
  row.Call = call;
  row.LongPart = LongerPart(call);
  ++table.PortableCount;
}

void ScanForDupes(LogStore& log, const PortableTable& portables, int contest, int bandIndex, std::string_view typed,
                  DupeResult& r) {
  r.Call = RemoveChars(typed, ".?");
  r.Alt.clear();
  r.PortableMatch = false;
  bool hasAlt = false;
  if (r.Call.find('/') != std::string::npos) {
    r.Alt = LongerPart(r.Call);
    hasAlt = true;
  } else {
    for (int row = 1; row <= portables.PortableCount; ++row) {
      const PortableRow& p = portables.Rows.At(row);
      if (p.LongPart != r.Call) continue;
      r.Alt = p.Call;
      r.PortableMatch = hasAlt = true;
      break;
    }
  }

  r.BandNumbers.fill(0);
  r.FoundInLog = r.FoundOnBand = r.IsDupe = false;
  r.LastQSO = 0;

  // The 16-bit character sums are compared first: only a QSO whose sum
  // equals one of them has its call read.
  const int16_t callSum = CharSum(r.Call);
  const int16_t altSum = hasAlt ? CharSum(r.Alt) : callSum;
  for (int i = 1; i < log.QSOCount; ++i) {
    int16_t sum = log.CallSum.At(i - 1);
    if (sum != callSum && sum != altSum) continue;
    const QsoRecord& qso = LoggedRecord(log, i);
    std::string_view logged(qso.QCall.Bytes.data(), qso.QCall.Bytes.size());
    while (!logged.empty() && logged.back() == ' ') logged.remove_suffix(1);
    if (logged != r.Call) {
      if (!hasAlt || logged != r.Alt) continue;
      r.PortableMatch = true;
    }
    r.FoundInLog = true;
    r.LastQSO = static_cast<int16_t>(i);
    if (qso.QBand == bandIndex) {
      r.FoundOnBand = true;
      r.DupeQSO = static_cast<int16_t>(i);
    }
    if (contest == Sweepstakes) r.DupeQSO = static_cast<int16_t>(i);
    r.BandNumbers.at(static_cast<std::size_t>(qso.QBand)) = qso.QNumber;
  }
  if (!r.FoundInLog) return;
  // A station counts once in the whole of Sweepstakes; elsewhere once per
  // BandIndex, so CW and SSB on one band are separate QSOs.
  r.IsDupe = contest == Sweepstakes || r.FoundOnBand;
}

std::string DupeDateText(int16_t qdate) {
  const std::string d = std::to_string(std::abs(static_cast<int>(qdate)));
  const std::size_t n = d.size();
  std::string text;
  char decade = '9';
  if (n == 4) {
    text += d[0];
  } else if (n == 5 && d[0] == '1') {
    text += d[0];
    text += d[1];
  } else if (n == 5 && (d[0] == '2' || d[0] == '3')) {
    text += d[0] == '2' ? '0' : '1';
    text += d[1];
    decade = qdate < 0 ? '1' : '0';
  } else {
    return {};  // no date the coding gives
  }
  for (char c : {'/', d[n - 3], d[n - 2], '/', decade, d[n - 1]}) text += c;
  return text;
}

std::string DupeLineText(int contest, const QsoRecord& qso) {
  std::string line = "DUPE - " + DupeDateText(qso.QDate) + "  " + QTimeText(qso.QTime);
  if (OneOf(contest, {Cqp, Sprint, Sweepstakes, Wpx, Paqp, CwOpen}))
    return line + "Z  His #" + std::to_string(qso.QRcvNumber) + "  My #" + std::to_string(qso.QNumber);
  return line + "Z  My #" + std::to_string(qso.QNumber);
}

WorkedGrid BuildWorkedGrid(int contest, int bandIndex, const std::array<int16_t, BandIndexCount + 1>& numbers) {
  WorkedGrid grid;
  if (contest == Sweepstakes) return grid;
  grid.Shown = true;
  const bool cw = IsCWBand(bandIndex);
  grid.ModeCaption = TwoModeCaption(contest) ? " CW:\nSSB:" : cw ? " CW:" : "SSB:";

  std::array<int, 9> rows{};
  int used = 0;
  if (contest == Generic) {
    used = GenericRows(numbers, rows);
  } else {
    int first = 1, last = 6;
    if (contest == Sprint) first = 3, last = 5;
    else if (contest == Cqp || contest == Paqp) last = 8;
    else if (contest == Ten) last = 1;
    for (int row = first; row <= last; ++row) rows[static_cast<std::size_t>(++used)] = row;
  }

  for (int cell = 1; cell <= used; ++cell) {
    int row = rows[static_cast<std::size_t>(cell)];
    int16_t cwQso = numbers.at(static_cast<std::size_t>(BandIndexCW(row)));
    int16_t ssbQso = numbers.at(static_cast<std::size_t>(BandIndexSSB(row)));
    GridCell& c = grid.Cells[static_cast<std::size_t>(cell)];
    c.BandRow = row;
    c.Text = BandName(row) + "\n";
    if (SingleModeGrid(contest)) c.Text += GridNumber(cw ? cwQso : ssbQso);
    else c.Text += GridNumber(cwQso) + "\n" + GridNumber(ssbQso);
  }
  return grid;
}

CallMatches MatchLoggedCalls(LogStore& log, int contest, int bandIndex, std::string_view partial) {
  // The search gives a place among the entries of the call, which stand
  // together, or where the calls beginning with partial start; starting two
  // ahead of it takes in the entries of the same call before that place.
  int place = IndexFindCall(log, partial, true);
  int first = std::max(1, place - 2);
  int last = std::min(first + 100, static_cast<int>(log.CallIndexCount));
  std::string thisList, otherList;
  for (int i = first; i <= last; ++i) {
    const CallIndexEntry& entry = log.CallIndex.At(i);
    std::string_view call = entry.Call();
    if (call.substr(0, partial.size()) != partial) continue;
    std::string_view digits = entry.Text().substr(call.size());
    int band = static_cast<int>(Val(digits));
    (band == bandIndex ? thisList : otherList) += std::string(call) + " ";
  }

  std::string thisLabel = "This band: ", otherLabel = "Other bands: ";
  if (OneOf(contest, {Cqp, Paqp, Neqp, Generic})) thisLabel = "This bd/md: ", otherLabel = "Other bd/mds: ";
  else if (contest == Ten) thisLabel = "This mode: ", otherLabel = "Other mode: ";
  CallMatches m;
  if (!thisList.empty()) m.ThisList = thisLabel + thisList;
  if (!otherList.empty()) m.OtherList = otherLabel + otherList;
  return m;
}

std::string PortableNoteText(std::string_view call, std::string_view alt) {
  std::string form = call.find('/') != std::string_view::npos ? "as a nonportable:  " : "as a portable:  ";
  return "This station is also in the log\n" + form + std::string(alt);
}

}  // namespace tarnix
