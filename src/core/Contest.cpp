#include "core/Contest.h"

#include <stdexcept>

#include "core/Bands.h"
#include "core/Text.h"


namespace tarnix {
namespace {

const std::array<ContestInfo, ContestCount + 1> kContests = {{
    {"", "", ""},
    {"ARRL DX Contest", "ARL", "ARRL DX"},
    {"CQP -- NCCC California QSO Party ", "CQP", "CQP"},
    {"CQWW DX Contest", "WW ", "CQWW DX"},
    {"Sprint -- NCJ NA Sprint", "SP ", "Sprint "},
    {"SS -- ARRL Sweepstakes", "SS9", "SS "},
    {"WPX -- CQ Prefix Contest", "WPX", "WPX"},
    {"AA -- JARL All Asian Contest", "AA ", "AA "},
    {"PAQP -- Pennsylvania QSO Party", "PAQ", "PAQP"},
    {"NAQP -- North American QSO Party", "NA ", "NAQP"},
    {"ARRL 10 Meter Contest", "TEN", "ARRL 10m"},
    {"NEQP -- New England QSO Party", "NEQ", "NEQP"},
    {"[GENERIC] -- Generic Logging", "GEN", "Generic Log"},
    {"CWO -- CW Ops CW Open", "CWO", "CWO"},
}};

}  // namespace

const ContestInfo& ContestTable(int contestIndex) {
  if (contestIndex < 1 || contestIndex > ContestCount) throw std::out_of_range("Subscript out of range");
  return kContests[static_cast<std::size_t>(contestIndex)];
}

int ContestFromHeaderCode(std::string_view code) {
  static const std::pair<std::string_view, int> kCodes[] = {
      {"AR", ArrlDx}, {"CQ", Cqp}, {"CW", CwOpen}, {"GE", Generic}, {"PA", Paqp},
      {"NE", Neqp},   {"NA", Naqp}, {"TE", Ten},   {"WW", Cqww},    {"SP", Sprint},
      {"WP", Wpx},    {"SS", Sweepstakes}, {"AA", AllAsian}};
  std::string_view two = code.substr(0, 2);
  for (const auto& [letters, index] : kCodes)
    if (letters == two) return index;
  return 0;
}

bool IsMixedModeContest(int c) { return OneOf(c, {Cqp, Paqp, Ten, Neqp, Generic}); }

int16_t OffTimeLimitFor(int c) {
  if (c == Sweepstakes || c == Naqp) return 30;
  if (c == Wpx) return 60;
  return 15;
}

std::string SCPSelectionFor(const ContestState& s) {
  if (s.ContestIndex == ArrlDx) return s.IsUSVEStation ? "DX" : "US";
  if (OneOf(s.ContestIndex, {Sprint, Sweepstakes, Paqp, Naqp, Neqp})) return "US";
  return "ALL";
}

int16_t StartBandFor(const ContestState& s) {
  if (s.ContestIndex == Ten) return 1;
  return s.ModeEnabled[2] ? 3 : 11;
}

void SetDefaultBands(ContestState& s) {
  int first = 1, last = 6;
  if (OneOf(s.ContestIndex, {Cqp, Paqp, Neqp})) last = 8;
  else if (s.ContestIndex == Generic) last = 11;
  else if (s.ContestIndex == Ten) last = 1;
  else if (s.ContestIndex == Sprint) first = 3, last = 5;
  for (int row = 1; row <= BandRowCount; ++row) s.BandEnabled[row] = row >= first && row <= last;
}

std::string ExchangeCaptionFor(const ContestState& s) {
  switch (s.ContestIndex) {
    case ArrlDx: return s.IsUSVEStation ? "Power" : "St/Prov";
    case Cqww: return "  Zone";
    case AllAsian: return "   Age";
    case Ten: return " Exch";
    case Neqp: return "County";
    case Generic: return " Notes";
    default: return "Exchange";  // WPX keeps the form's own caption
  }
}

std::string TitleLine(const std::string& fileName, const ContestState& s, TitleContext where) {
  int c = s.ContestIndex;
  std::string name(ContestTable(c).TitleName);
  bool leaveOutMode = false;
  switch (where) {
    case TitleContext::LoadLog: leaveOutMode = OneOf(c, {Cqp, Paqp, Ten, Generic}); break;
    case TitleContext::NewLog: leaveOutMode = OneOf(c, {Cqp, Paqp, Ten, Neqp, Generic}); break;
    case TitleContext::SaveAs:
      leaveOutMode = OneOf(c, {Ten, Neqp, Generic});
      // Save As has its own list of names: "[Generic]", "NA " for NAQP, and
      // no entry for the CW Open.
      if (c == Generic) name = "[Generic]";
      if (c == Naqp) name = "NA ";
      if (c == CwOpen) name.clear();
      break;
  }
  std::string line = "Log: " + (fileName.empty() ? std::string("[Unnamed]") : fileName) +
                     " - - Contest: " + name;
  if (!leaveOutMode) line += s.ModeEnabled[2] ? " CW" : " SSB";
  return line;
}

}  // namespace tarnix
