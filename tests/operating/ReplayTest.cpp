// Replay of a loaded log rebuilds the same counters the logging step kept.

#include <gtest/gtest.h>

#include "core/ChCoForm.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

struct ReplayFixture : ::testing::Test {
  ScriptedPlatform Desk;
  TempFolder Home;
  std::unique_ptr<Context> Ctx = MakeContext(Home.Path);
  RecordingStation Station;
  LogForm Form{*Ctx, Desk.View, Station.View};

  void SetUp() override {
    Desk.Time.Set({2026, 11, 22, 23, 50, 0});
    QueueContestChoice(Desk.Forms, Generic);
    Form.mnuFileNewLog_Click();
  }

  void Log(const std::string& call, const std::string& notes) {
    Form.InData_Change(CallBox, call, static_cast<int>(call.size()));
    Form.SetFocus(ExchangeBox);
    Form.InData_Change(ExchangeBox, notes, static_cast<int>(notes.size()));
    Form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  }
};

TEST_F(ReplayFixture, ReplayGivesTheCountersOfLiveLogging) {
  Log("K3ZZZ", "599 PA");
  Desk.Time.Advance(4 * 60 * 1000);  // 23:54
  Log("W1AW", "599 CT");
  Ctx->Contest.BandIndex = 4;         // 40m CW
  Desk.Time.Advance(9 * 60 * 1000);  // 00:03 next day
  Log("K3ZZZ", "AGAIN");
  Desk.Time.Advance(20 * 60 * 1000);  // 00:23: a 20-minute gap is off time
  Log("N5DX", "");

  const LogStore live = Ctx->Log;
  ASSERT_EQ(live.QSOCount, 5);
  EXPECT_EQ(live.ContestDay, 2);
  EXPECT_EQ(live.QsoMinute.At(3), 1440 + 3);
  EXPECT_FLOAT_EQ(live.OperatingMinutes, 4 + 9);
  EXPECT_EQ(live.RunOnBand, 0);  // the gap on 40m was off time

  ResetLog(Ctx->Log);
  Form.ReplayLog(5);
  const LogStore& replayed = Ctx->Log;
  EXPECT_EQ(replayed.QSOCount, 5);
  EXPECT_EQ(replayed.BandQSOs, live.BandQSOs);
  EXPECT_EQ(replayed.CallIndexCount, 4);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(replayed.CallIndex.At(i).Text(), live.CallIndex.At(i).Text()) << i;
  EXPECT_EQ(replayed.CallIndex.At(1).Text(), "K3ZZZ03");
  EXPECT_EQ(replayed.CallIndex.At(2).Text(), "K3ZZZ04");
  for (int n = 1; n <= 4; ++n) {
    EXPECT_EQ(replayed.QsoMinute.At(n), live.QsoMinute.At(n)) << n;
    EXPECT_EQ(replayed.CallSum.At(n - 1), live.CallSum.At(n - 1)) << n;
    EXPECT_EQ(replayed.CallText.At(n - 1), live.CallText.At(n - 1)) << n;
  }
  EXPECT_EQ(replayed.ContestDay, 2);
  EXPECT_FLOAT_EQ(replayed.OperatingMinutes, live.OperatingMinutes);
}

TEST_F(ReplayFixture, VoidedQsoKeepsItsPlaceButCountsForNothing) {
  Log("K3ZZZ", "");
  Log("W1AW", "");
  Log("N5DX", "");
  // The editor voids QSO 2; lower case is still a void.
  Ctx->Log.LogRecords.At(2).QCall.Set("void");
  ResetLog(Ctx->Log);
  Form.ReplayLog(4);

  EXPECT_EQ(Ctx->Log.QSOCount, 4);
  EXPECT_EQ(Ctx->Log.BandQSOs[3], 2);
  EXPECT_EQ(Ctx->Log.CallIndexCount, 3);
  EXPECT_EQ(Ctx->Log.CallText.At(1), "void");
  EXPECT_EQ(Ctx->Log.LogRecords.At(3).QNumber, 3);
}

TEST_F(ReplayFixture, BandOutOfRangeIsCountedOnSixteen) {
  Log("K3ZZZ", "");
  Log("W1AW", "");
  Ctx->Log.LogRecords.At(1).QBand = 0;
  Ctx->Log.LogRecords.At(2).QBand = 25;
  ResetLog(Ctx->Log);
  Form.ReplayLog(3);

  EXPECT_EQ(Ctx->Log.LogRecords.At(1).QBand, 16);
  EXPECT_EQ(Ctx->Log.LogRecords.At(2).QBand, 16);
  EXPECT_EQ(Ctx->Log.BandQSOs[16], 2);
  EXPECT_EQ(Ctx->Log.BandQSOs[3], 0);
}

TEST_F(ReplayFixture, KilledLastEntryComesBackOnReplay) {
  Log("K3ZZZ", "");
  Log("W1AW", "");
  Log("N5DX", "");
  Desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::Yes};
  Form.mnuEditKillLastEntry_Click();
  Form.mnuEditKillLastEntry_Click();
  ASSERT_EQ(Ctx->Log.QSOCount, 2);
  Log("G4BUO", "");
  // The new QSO took number 2; the third record is untouched behind it.
  EXPECT_EQ(Ctx->Log.LogRecords.At(2).QCall.Trimmed(), "G4BUO");
  EXPECT_EQ(Ctx->Log.LogRecords.At(2).QNumber, 2);
  EXPECT_EQ(Ctx->Log.LogRecords.At(3).QCall.Trimmed(), "N5DX");

  // A load that finds all four records (the file keeps the third) brings it back.
  ResetLog(Ctx->Log);
  Form.ReplayLog(4);
  EXPECT_EQ(Ctx->Log.BandQSOs[3], 3);
  EXPECT_EQ(Ctx->Log.CallText.At(2), "N5DX");
}

}  // namespace
}  // namespace tarnix
