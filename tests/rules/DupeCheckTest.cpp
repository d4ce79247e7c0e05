// The dupe rules on a log as the logging step leaves it: each contest's rule
// by band and mode, portable forms and uncertain copy, the dupe line and the
// worked-before grid.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/Contest.h"
#include "core/Text.h"
#include "rules/DupeCheck.h"

namespace tarnix {
namespace {

// QSOs on bands, with the call arrays and the portable table the scan reads.
struct Logged {
  std::unique_ptr<LogStore> Log = std::make_unique<LogStore>();
  PortableTable Portables;

  void Add(const std::string& call, int band) {
    const int n = Log->QSOCount++;
    QsoRecord& r = Log->LogRecords.At(n);
    r.QCall.Set(call);
    r.QBand = static_cast<int16_t>(band);
    r.QNumber = static_cast<int16_t>(n);
    Log->CallSum.At(n - 1) = CharSum(call);
    Log->CallText.At(n - 1) = call;
    if (call.find('/') != std::string::npos) AddPortableCall(Portables, call);
  }
  DupeResult Scan(int contest, int band, const std::string& call) {
    DupeResult r;
    ScanForDupes(*Log, Portables, contest, band, call, r);
    return r;
  }
};

TEST(DupeCheck, EachContestsRuleByBandAndMode) {
  struct Row { const char* name; int contest; std::vector<int> logBands; int checkBand; bool onBand, dupe; int dupeQso; };
  const Row rows[] = {
      {"CQWW same band", Cqww, {3}, 3, true, true, 1},
      {"CQWW other band", Cqww, {3}, 4, false, false, 0},
      {"WPX other band", Wpx, {3}, 5, false, false, 0},
      {"ARRL DX same band", ArrlDx, {4}, 4, true, true, 1},
      {"Sprint other band", Sprint, {3}, 5, false, false, 0},
      {"NAQP same band", Naqp, {4}, 4, true, true, 1},
      {"CQP 20m CW then 20m SSB", Cqp, {3}, 11, false, false, 0},
      {"CQP 20m SSB twice", Cqp, {11}, 11, true, true, 1},
      {"PAQP 40m CW then 40m SSB", Paqp, {4}, 12, false, false, 0},
      {"ARRL 10 CW then SSB", Ten, {1}, 9, false, false, 0},
      {"Generic 30m CW", Generic, {23}, 23, true, true, 1},
      {"SS 80m and 40m, then 20m: the last", Sweepstakes, {5, 4}, 3, false, true, 2},
  };
  for (const Row& row : rows) {
    Logged log;
    for (int band : row.logBands) log.Add("K3ZZZ", band);
    DupeResult r = log.Scan(row.contest, row.checkBand, "K3ZZZ");
    EXPECT_TRUE(r.FoundInLog) << row.name;
    EXPECT_EQ(r.FoundOnBand, row.onBand) << row.name;
    EXPECT_EQ(r.IsDupe, row.dupe) << row.name;
    EXPECT_EQ(r.DupeQSO, row.dupeQso) << row.name;
  }
}

TEST(DupeCheck, PortableFormsUncertainCopyAndEqualSums) {
  Logged log;
  log.Add("K3ZZZ", 3);
  log.Add("W1AW/P", 3);
  for (const char* call : {"K3ZZZ/P", "W1AW"}) {
    DupeResult r = log.Scan(Cqww, 4, call);
    EXPECT_TRUE(r.FoundInLog && r.PortableMatch && !r.IsDupe) << call;
  }
  EXPECT_EQ(PortableNoteText("K3ZZZ/P", "K3ZZZ"), "This station is also in the log\nas a nonportable:  K3ZZZ");
  EXPECT_EQ(PortableNoteText("W1AW", "W1AW/P"), "This station is also in the log\nas a portable:  W1AW/P");
  for (const char* call : {"K3ZZZ/P", "W1AW", "K3.ZZ?Z", "W1A?W"}) EXPECT_TRUE(log.Scan(Cqww, 3, call).IsDupe) << call;
  // KZ3ZZ has the character sum of K3ZZZ, and is not K3ZZZ.
  EXPECT_EQ(CharSum("KZ3ZZ"), CharSum("K3ZZZ"));
  EXPECT_FALSE(log.Scan(Cqww, 3, "KZ3ZZ").FoundInLog);
}

TEST(DupeCheck, DupeLineDateTimeAndTailByContest) {
  struct Row { int contest; int16_t date, time, rcv, number; const char* line; };
  for (const Row& row : {Row{Cqww, 1155, 5, 14, 7, "DUPE - 1/15/95  0005Z  My #7"},
                         Row{ArrlDx, 11155, 2359, 0, 12, "DUPE - 11/15/95  2359Z  My #12"},
                         Row{Wpx, 21155, 1200, 314, 1001, "DUPE - 01/15/05  1200Z  His #314  My #1001"},
                         Row{Sweepstakes, 31226, 30, 1, 2, "DUPE - 11/22/06  0030Z  His #1  My #2"},
                         Row{CwOpen, -21155, 100, 9, 10, "DUPE - 01/15/15  0100Z  His #9  My #10"}}) {
    QsoRecord q;
    q.QDate = row.date;
    q.QTime = row.time;
    q.QRcvNumber = row.rcv;
    q.QNumber = row.number;
    EXPECT_EQ(DupeLineText(row.contest, q), row.line);
  }
}

// The grid as the form shows it: the mode caption, then each cell in use.
std::string Grid(int contest, int band, const std::vector<std::pair<int, int>>& numbers) {
  std::array<int16_t, BandIndexCount + 1> bands{};
  for (auto [bandIndex, qso] : numbers) bands[static_cast<std::size_t>(bandIndex)] = static_cast<int16_t>(qso);
  WorkedGrid grid = BuildWorkedGrid(contest, band, bands);
  if (!grid.Shown) return "";
  std::string all = grid.ModeCaption + "|";
  for (int i = 1; i <= 8; ++i)
    if (grid.Cells[static_cast<std::size_t>(i)].BandRow != 0) all += grid.Cells[static_cast<std::size_t>(i)].Text + "|";
  return all;
}

TEST(DupeCheck, WorkedGridByContest) {
  EXPECT_EQ(Grid(Cqww, 3, {{3, 1}, {5, 2}}), " CW:|10m\n  --|15m\n  --|20m\n 1|40m\n  --|80m\n 2|160\n  --|");
  EXPECT_EQ(Grid(Cqww, 3, {{3, 3}, {5, 2}}), " CW:|10m\n  --|15m\n  --|20m\n 3|40m\n  --|80m\n 2|160\n  --|");
  EXPECT_EQ(Grid(Cqp, 11, {{3, 1}, {11, 2}}),
            " CW:\nSSB:|10m\n  --\n  --|15m\n  --\n  --|20m\n 1\n 2|40m\n  --\n  --|80m\n  --\n  --|"
            "160\n  --\n  --|6m \n  --\n  --|2m \n  --\n  --|");
  // Generic: only the bands worked, in band order.
  EXPECT_EQ(Grid(Generic, 3, {{23, 1}, {12, 2}}), " CW:\nSSB:|40m\n  --\n 2|30m\n 1\n  --|");
  EXPECT_EQ(Grid(Sweepstakes, 3, {{5, 1}, {4, 2}}), "");  // SS has no grid
}

}  // namespace
}  // namespace tarnix
