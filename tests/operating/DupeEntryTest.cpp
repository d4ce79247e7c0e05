// The dupe check as the operator meets it on the entry form: each contest's
// rule, portable calls, the dupe line, the worked-before grid, the match
// lists while typing, and Insert on a dupe.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/ChCoForm.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "operating/StartedFormTest.h"
#include "operating/Startup.h"
#include "platform/Scripted.h"
#include "rules/DupeCheck.h"

namespace tarnix {
namespace {

class DupeEntryTest : public StartedFormTest {
 protected:
  // A new log over the one open, which is not kept.
  void NewLog(int contest, bool phone = false) {
    ASSERT_TRUE(started);
    if (ctx->Log.LogState != LogStateKind::None)
      desk.Boxes.Answers.push_back(ctx->Log.LogState == LogStateKind::Named ? MsgAnswer::Yes : MsgAnswer::No);
    QueueContestChoice(desk.Forms, contest, phone);
    form.mnuFileNewLog_Click();
    desk.Time.Set({2026, 11, 22, 14, 5, 0});
    desk.Boxes.Shown.clear();
  }
  void Band(int band) { ctx->Contest.BandIndex = static_cast<int16_t>(band); }
  void Type(const std::string& call) {
    form.SetFocus(CallBox);
    form.InData_Change(CallBox, "", 0);
    for (char ch : call) form.InData_KeyPress(CallBox, ch);
  }
  // The call typed and the exchange box entered: the focus step's check.
  void Check(const std::string& call) {
    Type(call);
    form.SetFocus(ExchangeBox);
  }
  void Log(const std::string& call, const std::string& exchange) {
    Check(call);
    form.InData_Change(ExchangeBox, exchange, static_cast<int>(exchange.size()));
    form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  }
  std::string Grid() {
    std::string all = form.Modelabel.Visible ? form.Modelabel.Caption + "|" : "";
    for (int i = 1; i <= 8; ++i)
      if (form.PrevQSO[static_cast<std::size_t>(i)].Visible) all += form.PrevQSO[static_cast<std::size_t>(i)].Caption + "|";
    return all;
  }
};

TEST_F(DupeEntryTest, EachContestsRuleByBandAndMode) {
  struct Row {
    const char* name;
    int contest;
    const char* exchange;
    std::vector<int> logBands;
    int checkBand;
    bool onBand, dupe;
    int dupeQso;
  };
  const Row rows[] = {
      {"CQWW same band", Cqww, "5", {3}, 3, true, true, 1},
      {"CQWW other band", Cqww, "5", {3}, 4, false, false, 0},
      {"WPX other band", Wpx, "1", {3}, 5, false, false, 0},
      {"ARRL DX same band", ArrlDx, "", {4}, 4, true, true, 1},
      {"Sprint other band", Sprint, "1 BOB CA", {3}, 5, false, false, 0},
      {"NAQP same band", Naqp, "BOB CA", {4}, 4, true, true, 1},
      {"CQP 20m CW then 20m SSB", Cqp, "1 ALAM", {3}, 11, false, false, 0},
      {"CQP 20m SSB twice", Cqp, "1 ALAM", {11}, 11, true, true, 1},
      {"PAQP 40m CW then 40m SSB", Paqp, "1 ALL", {4}, 12, false, false, 0},
      {"ARRL 10 CW then SSB", Ten, "CA", {1}, 9, false, false, 0},
      {"Generic 30m CW", Generic, "", {23}, 23, true, true, 1},
      {"SS 80m and 40m, then 20m: the last", Sweepstakes, "1 A 58 SCV", {5, 4}, 3, false, true, 2},
  };
  for (const Row& row : rows) {
    NewLog(row.contest);
    std::string exchange = row.exchange;
    if (row.contest == ArrlDx) exchange = ctx->Contest.IsUSVEStation ? "100" : "CA";
    for (int band : row.logBands) {
      Band(band);
      Log("K3ZZZ", exchange);
    }
    ASSERT_EQ(ctx->Log.QSOCount, static_cast<int>(row.logBands.size()) + 1) << row.name;
    Band(row.checkBand);
    Check("K3ZZZ");
    EXPECT_TRUE(form.DupeScan().FoundInLog) << row.name;
    EXPECT_EQ(form.DupeScan().FoundOnBand, row.onBand) << row.name;
    EXPECT_EQ(form.DupeScan().IsDupe, row.dupe) << row.name;
    if (row.dupe) {
      EXPECT_EQ(form.DupeScan().DupeQSO, row.dupeQso) << row.name;
    }
  }
  EXPECT_EQ(Grid(), "");  // SS, the last row, has no grid
}

TEST_F(DupeEntryTest, PortableCallsUncertainCopyAndEqualSums) {
  NewLog(Cqww);
  Log("K3ZZZ", "5");
  Log("W1AW/P", "5");
  Band(4);
  for (const char* call : {"K3ZZZ/P", "W1AW"}) {
    Check(call);
    EXPECT_TRUE(form.DupeScan().FoundInLog && form.DupeScan().PortableMatch && !form.DupeScan().IsDupe) << call;
  }
  ASSERT_EQ(desk.Boxes.Shown.size(), 2u);
  EXPECT_EQ(desk.Boxes.Shown[0].Title, "Portable Station?");
  EXPECT_EQ(desk.Boxes.Shown[0].Icon, MsgIcon::Information);
  EXPECT_EQ(desk.Boxes.Shown[0].Text, "This station is also in the log\nas a nonportable:  K3ZZZ");
  EXPECT_EQ(desk.Boxes.Shown[1].Text, "This station is also in the log\nas a portable:  W1AW/P");

  // On the band of the other form: a dupe, and nothing is asked.
  Band(3);
  for (const char* call : {"K3ZZZ/P", "W1AW", "K3.ZZ?Z", "W1A?W"}) {
    Check(call);
    EXPECT_TRUE(form.DupeScan().IsDupe) << call;
  }
  EXPECT_EQ(desk.Boxes.Shown.size(), 2u);
  // KZ3ZZ has the character sum of K3ZZZ, and is not K3ZZZ.
  Check("KZ3ZZ");
  EXPECT_EQ(ctx->Log.CallSum.At(0), CharSum("KZ3ZZ"));
  EXPECT_FALSE(form.DupeScan().FoundInLog);

  // The portable table goes with its log, and a load rebuilds it.
  desk.Files.Names.push_back(home.Path + "ww.TNX");
  form.mnuFileSave_Click();
  NewLog(Cqww);
  Check("W1AW");
  EXPECT_FALSE(form.DupeScan().PortableMatch);
  desk.Boxes.Answers.push_back(MsgAnswer::No);  // the new log is not kept
  desk.Files.Names.push_back(home.Path + "ww.TNX");
  form.mnuFileOpenLog_Click();
  Check("W1AW");
  EXPECT_TRUE(form.DupeScan().IsDupe && form.DupeScan().PortableMatch);
}

TEST_F(DupeEntryTest, DupeLineGridRedCallAndZeroPoints) {
  NewLog(Cqww);
  Log("K3ZZZ", "5");
  Band(5);
  Log("K3ZZZ", "5");
  ctx->Radio.RadioBand2 = 5;
  Band(3);
  Check("K3ZZZ");
  EXPECT_EQ(form.lblDupe.Caption, "DUPE - 11/22/06  1405Z  My #1");
  EXPECT_TRUE(form.lblDupe.Visible && !form.lblCallsign.Visible && !form.lblExchange.Visible);
  EXPECT_EQ(form.InData[CallBox].ForeColor, 255);
  EXPECT_EQ(Grid(), " CW:|10m\n  --|15m\n  --|20m\n 1|40m\n  --|80m\n 2|160\n  --|");
  EXPECT_EQ(form.PrevQSO[3].ForeColor, ColourBlue);  // radio 1
  EXPECT_EQ(form.PrevQSO[5].ForeColor, ColourRed);   // radio 2
  EXPECT_EQ(form.PrevQSO[4].ForeColor, ColourBlack);

  form.InData_Change(ExchangeBox, "5", 1);
  form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  ASSERT_EQ(ctx->Log.QSOCount, 4);
  EXPECT_EQ(ctx->Log.LogRecords.At(3).QPoints.Str(), "0");
  Check("K3ZZZ");
  EXPECT_EQ(form.lblDupe.Caption, "DUPE - 11/22/06  1405Z  My #3");
  EXPECT_EQ(form.PrevQSO[3].Caption, "20m\n 3");

  NewLog(Cqp);
  Log("K6AW", "1 ALAM");
  Band(11);
  Log("K6AW", "1 ALAM");
  Check("K6AW");
  EXPECT_EQ(Grid(), " CW:\nSSB:|10m\n  --\n  --|15m\n  --\n  --|20m\n 1\n 2|40m\n  --\n  --|80m\n  --\n  --|"
                    "160\n  --\n  --|6m \n  --\n  --|2m \n  --\n  --|");
  NewLog(Generic);  // only the bands worked, in band order
  Band(23);
  Log("K6AW", "");
  Band(12);
  Log("K6AW", "");
  Check("K6AW");
  EXPECT_EQ(Grid(), " CW:\nSSB:|40m\n  --\n 2|30m\n 1\n  --|");
}

TEST_F(DupeEntryTest, MatchListsWhileTyping) {
  NewLog(Generic);
  Log("K3ZZZ", "");
  Band(5);
  for (const char* call : {"K3ZZA", "K3ZZZ", "W1AW"}) Log(call, "");
  Band(3);
  Type("K3Z");
  EXPECT_EQ(form.CallMatchLabel1.Caption + "|" + form.CallMatchLabel2.Caption,
            "This bd/md: K3ZZZ |Other bd/mds: K3ZZA K3ZZZ ");
  EXPECT_TRUE(form.CallMatchLabel1.Visible && form.CallMatchLabel2.Visible);
  EXPECT_EQ(form.CallMatchLabel2.ForeColor, ColourBlack);
  form.InData_Change(CallBox, "W", 1);  // Backspaces
  EXPECT_EQ(form.CallMatchLabel1.Caption + "|" + form.CallMatchLabel2.Caption, "|Other bd/mds: W1AW ");
  form.InData_Change(CallBox, "", 0);
  EXPECT_EQ(form.CallMatchLabel1.Caption + form.CallMatchLabel2.Caption, "");

  NewLog(Sweepstakes);
  Log("K3ZZZ", "1 A 58 SCV");
  Band(4);
  Type("K3");
  EXPECT_EQ(form.CallMatchLabel2.Caption, "Other bands: K3ZZZ ");
  EXPECT_EQ(form.CallMatchLabel2.ForeColor, ColourRed);
}

TEST_F(DupeEntryTest, InsertOnADupeClearsTheEntryOnlyOnCw) {
  struct Row { const char* name; bool phone, flag; const char* call; bool cleared; };
  for (const Row& row : {Row{"CW dupe", false, true, "K3ZZZ", true}, Row{"CW not a dupe", false, true, "W1AW", false},
                         Row{"flag off", false, false, "K3ZZZ", false}, Row{"phone", true, true, "K3ZZZ", false}}) {
    NewLog(Cqww, row.phone);
    ctx->Config.DupeSendMsgFlag = row.flag;
    Log("K3ZZZ", "5");
    Type(row.call);
    form.InData_KeyDown(CallBox, KeyInsert, 0);
    EXPECT_EQ(form.InData[CallBox].Text.empty(), row.cleared) << row.name;
  }
}

TEST_F(DupeEntryTest, The81stPortableCallIsRefusedByTheTablesBound) {
  NewLog(Generic);
  for (int i = 0; i < PortableRows; ++i) Log("K" + std::to_string(i) + "ZZ/P", "");
  ASSERT_EQ(ctx->Portables.PortableCount, PortableRows);
  Log("K3ZZZ/M", "");
  EXPECT_EQ(ctx->Log.QSOCount, PortableRows + 1);
  ASSERT_FALSE(desk.Boxes.Shown.empty());
  EXPECT_EQ(desk.Boxes.Shown.back().Text, "Subscript out of range");
}

TEST(DupeLineText, DateTimeAndTailByContest) {
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

}  // namespace
}  // namespace tarnix
