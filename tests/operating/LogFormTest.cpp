// The form without and with a log, and the Edit menu's commands on the log.

#include "core/BandMode.h"
#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

using LogFormTest = LoggerTest;

TEST_F(LogFormTest, WithoutALogTheEntryIsClosed) {
  EXPECT_FALSE(form.InData[CallBox].Enabled || form.InData[ExchangeBox].Enabled || form.AddButton.Enabled);
  EXPECT_FALSE(form.mnuEdit.Enabled || form.mnuView.Enabled);
  EXPECT_EQ(form.BackColor, 14737632);
  EXPECT_EQ(form.FocusedBox, NoBox);
  form.InData_Change(CallBox, "K3ZZZ", 5);
  EXPECT_FALSE(form.InData_KeyDown(CallBox, KeyEnter, 0));
  EXPECT_EQ(ctx.Log.QSOCount, 1);

  // Cancelling the contest form leaves it closed.
  desk.Forms.Actions["ChCoForm"].push_back([](FormModel& f) { static_cast<ChCoForm&>(f).CmdCancel_Click(); });
  form.mnuFileNewLog_Click();
  EXPECT_EQ(ctx.Contest.ContestIndex, 0);
  EXPECT_FALSE(form.InData[CallBox].Enabled);
  EXPECT_EQ(form.BackColor, 14737632);
}

TEST_F(LogFormTest, NewLogOpensTheEntry) {
  struct Row { int contest; bool phone; int band; const char* labels; const char* mode; };
  const Row rows[] = {{Generic, false, 3, "QSO Nr  1    (20m CW)| CW Cties: 0|SSB Cties: 0", ""},
                      {AllAsian, true, 11, "QSO Nr  1    (20m SSB)|Score: 0|Mults:  0", " SSB"},
                      {Naqp, false, 3, "QSO Nr  1    (20m CW)|Score: 0|Mults:  0", " CW"}};
  for (const Row& r : rows) {
    SCOPED_TRACE(r.contest);
    run.NewLog(r.contest, r.phone);
    EXPECT_TRUE(form.InData[CallBox].Enabled && form.InData[ExchangeBox].Enabled && form.AddButton.Enabled);
    EXPECT_TRUE(form.mnuEdit.Enabled);
    EXPECT_EQ(form.BackColor, 16777215);
    EXPECT_EQ(form.FocusedBox, CallBox);
    EXPECT_EQ(ctx.Contest.BandIndex, r.band);
    EXPECT_EQ(form.QSONrLabel.Caption + "|" + form.ScoreLabel.Caption + "|" + form.MultsLabel.Caption, r.labels);
    EXPECT_EQ(form.FileIDLabel.Caption,
              "Log: [Unnamed] - - Contest: " + std::string(ContestTable(r.contest).TitleName) + r.mode);
  }
  EXPECT_TRUE(ctx.Contest.ModeEnabled[2]);
}

TEST_F(LogFormTest, EditCommandsOnAnEmptyLogRefuse) {
  run.NewLog(Generic);
  form.mnuEditKillLastEntry_Click();
  EXPECT_EQ(LastBox(), "No Entries in Log, so can't kill last entry.|No Log Entries");
  form.mnuEditKillALLEntries_Click();
  EXPECT_EQ(LastBox(), "No Entries in Log, so can't kill allentries.|No Log Entries");
  form.mnuEditLastEntry_Click();
  EXPECT_EQ(LastBox(), "No Entries in Log, so can't edit last entry.|No Log Entries");
  EXPECT_EQ(ctx.Log.QSOCount, 1);
}

TEST_F(LogFormTest, KillLastLowersTheCountOnlyAndTheNextQsoOverwrites) {
  run.NewLog(Generic);
  for (const char* call : {"K1AA", "K2BB", "K3CC"}) run.Enter(call, "");
  ASSERT_EQ(ctx.Log.QSOCount, 4);
  form.mnuEditKillLastEntry_Click();  // the default answer is No
  EXPECT_EQ(LastBox(), "Kill last log entry?|Confirm kill");
  EXPECT_EQ(desk.Boxes.Shown.back().Buttons, MsgButtons::YesNo);
  EXPECT_EQ(ctx.Log.QSOCount, 4);

  desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::Yes};
  form.SetFocus(ExchangeBox);
  form.mnuEditKillLastEntry_Click();
  form.mnuEditKillLastEntry_Click();
  EXPECT_EQ(ctx.Log.QSOCount, 2);
  EXPECT_EQ(form.FocusedBox, CallBox);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  2    (20m CW)");
  EXPECT_EQ(Call(3), "K3CC");

  run.Enter("K9ZZ", "");
  EXPECT_EQ(ctx.Log.QSOCount, 3);
  EXPECT_EQ(Call(1) + " " + Call(2) + " " + Call(3), "K1AA K9ZZ K3CC");
  EXPECT_EQ(Qso(2).QNumber, 2);

  // A load that finds the third record (the file keeps it) brings it back.
  ResetLog(ctx.Log);
  form.ReplayLog(4);
  EXPECT_EQ(ctx.Log.BandQSOs[3], 3);
  EXPECT_EQ(ctx.Log.CallText.At(2), "K3CC");
}

TEST_F(LogFormTest, KillAllAsksAndEmptiesTheLog) {
  run.NewLog(Generic);
  run.Enter("K1AA", "");
  run.Enter("K2BB", "");
  form.mnuEditKillALLEntries_Click();  // the default answer is No
  EXPECT_EQ(desk.Boxes.Shown.back().Title, "Confirm kill");
  EXPECT_EQ(ctx.Log.QSOCount, 3);
  desk.Boxes.Answers = {MsgAnswer::Yes};
  form.mnuEditKillALLEntries_Click();
  EXPECT_EQ(ctx.Log.QSOCount, 1);
  EXPECT_EQ(ctx.Log.CallIndexCount, 0);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  1    (20m CW)");
}

TEST_F(LogFormTest, SelectBandsRunsTheBandForm) {
  run.NewLog(ArrlDx);
  desk.Forms.Actions["BandMode"].push_back([](FormModel& f) {
    static_cast<BandMode&>(f).BandBox_Click(1);
    static_cast<BandMode&>(f).Command1_Click();
  });
  form.mnuEditSelectBands_Click();
  EXPECT_EQ(desk.Forms.Shown.back(), "BandMode");
  EXPECT_TRUE(!ctx.Contest.BandEnabled[1] && ctx.Contest.BandEnabled[2]);
}

}  // namespace
}  // namespace tarnix
