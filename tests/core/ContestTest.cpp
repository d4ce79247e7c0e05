#include <gtest/gtest.h>

#include <set>
#include <string>

#include "core/Contest.h"

namespace tarnix {
namespace {

ContestState StateOf(int contest, bool cw = true) {
  ContestState s;
  s.ContestIndex = static_cast<int16_t>(contest);
  s.ModeEnabled[1] = !cw;
  s.ModeEnabled[2] = cw;
  return s;
}

TEST(Contest, OffTimeLimitCallListStartBandAndDefaultBandsByContest) {
  const int limit[] = {0, 15, 15, 15, 15, 30, 60, 15, 15, 30, 15, 15, 15, 15};
  const char* scp[] = {"", "US", "ALL", "ALL", "US", "US", "ALL", "ALL", "US", "US", "ALL", "US", "ALL", "ALL"};
  // Rows 1..12 enabled by default, as digits.
  const char* bands[] = {"",
                         "111111000000", "111111110000", "111111000000", "001110000000", "111111000000",
                         "111111000000", "111111000000", "111111110000", "111111000000", "100000000000",
                         "111111110000", "111111111110", "111111000000"};
  for (int c = 1; c <= ContestCount; ++c) {
    EXPECT_EQ(OffTimeLimitFor(c), limit[c]) << c;
    EXPECT_EQ(SCPSelectionFor(StateOf(c)), scp[c]) << c;
    EXPECT_EQ(StartBandFor(StateOf(c, true)), c == Ten ? 1 : 3) << c;
    EXPECT_EQ(StartBandFor(StateOf(c, false)), c == Ten ? 1 : 11) << c;
    ContestState s = StateOf(c);
    s.BandEnabled.fill(true);
    SetDefaultBands(s);
    std::string rows;
    for (int row = 1; row <= 12; ++row) rows += s.BandEnabled[row] ? '1' : '0';
    EXPECT_EQ(rows, bands[c]) << c;
  }
  ContestState usve = StateOf(ArrlDx);
  usve.IsUSVEStation = true;
  EXPECT_EQ(SCPSelectionFor(usve), "DX");
  usve.ContestIndex = Sprint;
  EXPECT_EQ(SCPSelectionFor(usve), "US");
}

TEST(Contest, TitleLineLeavesOutTheModeByPlace) {
  struct Place { TitleContext where; std::set<int> noMode; };
  const Place places[] = {{TitleContext::LoadLog, {Cqp, Paqp, Ten, Generic}},
                          {TitleContext::NewLog, {Cqp, Paqp, Ten, Neqp, Generic}},
                          {TitleContext::SaveAs, {Ten, Neqp, Generic}}};
  for (const Place& p : places) {
    for (int c = 1; c <= ContestCount; ++c) {
      if (p.where == TitleContext::SaveAs && (c == Generic || c == Naqp || c == CwOpen)) continue;
      for (bool cw : {true, false}) {
        std::string mode = p.noMode.count(c) ? "" : cw ? " CW" : " SSB";
        EXPECT_EQ(TitleLine("", StateOf(c, cw), p.where),
                  "Log: [Unnamed] - - Contest: " + std::string(ContestTable(c).TitleName) + mode)
            << c << " place " << static_cast<int>(p.where);
      }
    }
  }
  EXPECT_EQ(TitleLine("FD2024.TNX", StateOf(Generic), TitleContext::SaveAs), "Log: FD2024.TNX - - Contest: [Generic]");
  EXPECT_EQ(TitleLine("X.TNX", StateOf(Naqp), TitleContext::SaveAs), "Log: X.TNX - - Contest: NA  CW");
  EXPECT_EQ(TitleLine("X.TNX", StateOf(Naqp, false), TitleContext::SaveAs), "Log: X.TNX - - Contest: NA  SSB");
  EXPECT_EQ(TitleLine("X.TNX", StateOf(CwOpen), TitleContext::SaveAs), "Log: X.TNX - - Contest:  CW");
}

TEST(Contest, HeaderCodeFirstTwoLettersDecide) {
  struct Row { const char* code; int contest; };
  const Row rows[] = {{"ARL", ArrlDx}, {"CQP", Cqp}, {"CWO", CwOpen}, {"GEN", Generic}, {"PAQ", Paqp},
                      {"NEQ", Neqp},   {"NA ", Naqp}, {"TEN", Ten},   {"WW ", Cqww},    {"SP ", Sprint},
                      {"WPX", Wpx},    {"SS9", Sweepstakes}, {"AA ", AllAsian}, {"AR", ArrlDx},
                      {"CQX", Cqp},    {"XX ", 0},   {"A", 0},      {"", 0},          {"WX ", 0}};
  for (const Row& r : rows) EXPECT_EQ(ContestFromHeaderCode(r.code), r.contest) << '"' << r.code << '"';
  // What a new log writes reads back as the same contest.
  for (int c = 1; c <= ContestCount; ++c) EXPECT_EQ(ContestFromHeaderCode(ContestTable(c).HeaderCode), c) << c;
}

}  // namespace
}  // namespace tarnix
