#include "core/Contest.h"

#include <stdexcept>

#include "core/Bands.h"
#include "core/Text.h"


namespace tarnix {
namespace {

constexpr std::array<ContestInfo, ContestCount + 1> kContests = {{
    {},
    {.ListText = "ARRL DX Contest", .HeaderCode = "ARL", .TitleName = "ARRL DX",
     .SpaceToggles = true, .BlankInCall = true, .RepeatCommand = true,
     .MultsFollowBand = true, .MultsFollowCountry = Stations::UsVe},
    {.ListText = "CQP -- NCCC California QSO Party ", .HeaderCode = "CQP", .TitleName = "CQP",
     .MixedMode = true, .RefillsCountyLine = true},
    {.ListText = "CQWW DX Contest", .HeaderCode = "WW ", .TitleName = "CQWW DX",
     .RepeatCommand = true, .ZoneFromCall = true, .TakesWpxPrefix = true,
     .MultsFollowCountry = Stations::All},
    {.ListText = "Sprint -- NCJ NA Sprint", .HeaderCode = "SP ", .TitleName = "Sprint "},
    {.ListText = "SS -- ARRL Sweepstakes", .HeaderCode = "SS9", .TitleName = "SS ",
     .OffTimeLimit = 30, .DupeOnAnyBand = true},
    {.ListText = "WPX -- CQ Prefix Contest", .HeaderCode = "WPX", .TitleName = "WPX",
     .OffTimeLimit = 60, .SpaceToggles = true, .BlankInCall = true, .TakesWpxPrefix = true},
    {.ListText = "AA -- JARL All Asian Contest", .HeaderCode = "AA ", .TitleName = "AA ",
     .SpaceToggles = true, .BlankInCall = true, .AgeExchange = true, .TakesWpxPrefix = true},
    {.ListText = "PAQP -- Pennsylvania QSO Party", .HeaderCode = "PAQ", .TitleName = "PAQP",
     .MixedMode = true},
    {.ListText = "NAQP -- North American QSO Party", .HeaderCode = "NA ", .TitleName = "NAQP",
     .OffTimeLimit = 30, .RepeatCommand = true, .MultsFollowBand = true},
    {.ListText = "ARRL 10 Meter Contest", .HeaderCode = "TEN", .TitleName = "ARRL 10m",
     .MixedMode = true, .SpaceToggles = true, .BlankInCall = true, .StatsFollowRadio = true},
    {.ListText = "NEQP -- New England QSO Party", .HeaderCode = "NEQ", .TitleName = "NEQP",
     .MixedMode = true, .SpaceToggles = true, .BlankInCall = true},
    {.ListText = "[GENERIC] -- Generic Logging", .HeaderCode = "GEN", .TitleName = "Generic Log",
     .MixedMode = true, .NotesExchange = true, .MultsFollowCountry = Stations::All},
    {.ListText = "CWO -- CW Ops CW Open", .HeaderCode = "CWO", .TitleName = "CWO",
     .CWOnly = true, .BlankInCall = true},
}};

}  // namespace

const ContestInfo& ContestTable(int contestIndex) {
  if (contestIndex < 1 || contestIndex > ContestCount) throw std::out_of_range("Subscript out of range");
  return kContests[static_cast<std::size_t>(contestIndex)];
}

const ContestInfo& TraitsOf(int contestIndex) {
  bool known = contestIndex >= 1 && contestIndex <= ContestCount;
  return kContests[known ? static_cast<std::size_t>(contestIndex) : 0];
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

bool IsMixedModeContest(int c) { return TraitsOf(c).MixedMode; }

int16_t OffTimeLimitFor(int c) { return TraitsOf(c).OffTimeLimit; }

void SetModesOfNewLog(ContestState& s) {
  const ContestInfo& traits = TraitsOf(s.ContestIndex);
  if (traits.MixedMode) s.ModeEnabled[1] = s.ModeEnabled[2] = true;
  if (traits.CWOnly) {
    s.ModeEnabled[1] = false;
    s.ModeEnabled[2] = true;
  }
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
