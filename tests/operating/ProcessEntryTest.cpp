// The logging step on Enter: the record's fields, time and date, the call's
// length, the age test, the log's bound, the operating time, and the replay
// of a loaded log into the same counters.

#include <filesystem>

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

using ProcessEntryTest = LoggerTest;

TEST_F(ProcessEntryTest, GenericQsoTakesEveryField) {
  run.NewLog(Generic);
  for (char ch : std::string("k3zz.z?")) form.InData_KeyPress(CallBox, ch);
  EXPECT_EQ(form.InData[CallBox].Text, "K3ZZ.Z?");
  form.InData_Change(ExchangeBox, "  john in ohio, rig 100w ", 3);
  EXPECT_TRUE(form.InData_KeyDown(ExchangeBox, KeyEnter, 0));

  ASSERT_EQ(ctx.Log.QSOCount, 2);
  const QsoRecord& r = Qso(1);
  EXPECT_EQ(r.QNumber, 1);
  EXPECT_EQ(r.QCall.Str() + "|" + r.QRcvText.Str() + "|" + r.QMult.Str() + "|" + r.QRadio.Str() + "|" + r.QFreq.Str(),
            "K3ZZZ     |JOHN IN OH|IO, R|1 |0         ");
  EXPECT_EQ(r.QRcvNumber * 10000 + r.QBand, 3);
  EXPECT_EQ(r.QTime, 1405);
  EXPECT_EQ(r.QDate, 31226);
  EXPECT_EQ(run.Boxes(), "_|");
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  2    (20m CW)");
  EXPECT_TRUE(desk.Boxes.Shown.empty());

  // A call put in by the view's editing in lower case is logged upper-cased.
  run.Enter("  w1aw ", "", ScriptedLogger::Input::Pasted);
  EXPECT_EQ(Qso(2).QCall.Str() + std::to_string(Qso(2).QNumber), "W1AW      2");

  // Notes are split after ten characters.
  struct Row { const char* exchange; const char* fields; };
  int n = 3;
  for (const Row& row : {Row{"", "          |     "}, Row{"abcdefghij", "ABCDEFGHIJ|     "},
                         Row{"abcdefghijk", "ABCDEFGHIJ|K    "}, Row{"abcdefghijklmno", "ABCDEFGHIJ|KLMNO"},
                         Row{"abcdefghijklmnop", "ABCDEFGHIJ|KLMNO"}}) {
    run.Enter("K3ZZZ", row.exchange);
    EXPECT_EQ(Qso(n).QRcvText.Str() + "|" + Qso(n).QMult.Str(), row.fields) << row.exchange;
    ++n;
  }
}

TEST_F(ProcessEntryTest, TimeAndDateFollowTheCorrection) {
  run.NewLog(Generic);
  struct Row { const char* name; LocalDateTime clock; const char* correction; const char* gmt; int16_t time, date; };
  const Row rows[] = {{"no correction", {2009, 12, 31, 23, 59, 0}, "", "", 2359, 32319},
                      {"+5 into the next year", {2009, 12, 31, 22, 30, 0}, "5", "", 330, -21010},
                      {"-8 back a day", {2010, 1, 1, 3, 15, 0}, "-8", "", 1915, 32319},
                      {"GMT clock ignores it", {2010, 1, 1, 3, 15, 0}, "-8", "True", 315, -21010},
                      {"+1 to hour 23", {2026, 11, 22, 22, 0, 0}, "1", "", 2300, 31226},
                      {"+1 to hour 24", {2026, 11, 22, 23, 0, 0}, "1", "", 0, 31236},
                      {"-1 to hour 0", {2012, 3, 1, 1, 5, 0}, "-1", "", 5, -23012},
                      {"-1 to hour -1", {2012, 3, 1, 0, 5, 0}, "-1", "", 2305, -22292}};
  int n = 1;
  for (const Row& row : rows) {
    ctx.Config.TimeCorrection = row.correction;
    ctx.Config.IsGMTFlag = row.gmt;
    desk.Time.Set(row.clock);
    run.Enter("K3ZZZ", "");
    EXPECT_EQ(Qso(n).QTime, row.time) << row.name;
    EXPECT_EQ(Qso(n).QDate, row.date) << row.name;
    ++n;
  }
}

TEST_F(ProcessEntryTest, CallLengthAndEmptyCall) {
  run.NewLog(Generic);
  run.Enter("VE3ABCDEFG", "");
  EXPECT_TRUE(desk.Boxes.Shown.empty());
  desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::No};
  run.Enter("VE3ABCDEFGH", "");
  EXPECT_EQ(Qso(1).QCall.Str() + "|" + Qso(2).QCall.Str(), "VE3ABCDEFG|VE3ABCDEFG");
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(LastBox(), "Only 10 characters allowed for Callsign.  Truncate entry to VE3ABCDEFG?|Entry Too Long");
  EXPECT_EQ(desk.Boxes.Shown[0].Buttons, MsgButtons::YesNo);

  // No, an empty call and a blank call: nothing logged, the call box focused.
  for (const char* call : {"VE3ABCDEFGH", "", "   "}) {
    run.Enter(call, "notes", ScriptedLogger::Input::Pasted);
    EXPECT_EQ(ctx.Log.QSOCount, 3) << call;
    EXPECT_EQ(form.FocusedBox, CallBox) << call;
  }
  EXPECT_EQ(desk.Boxes.Shown.size(), 2u);
}

TEST_F(ProcessEntryTest, AllAsianAgeMustBeZeroToNinetyNine) {
  run.NewLog(AllAsian);
  struct Row { const char* exchange; bool logged; int16_t age; };
  const Row rows[] = {{"", false, 0},   {"45", true, 45},  {"AB", true, 0},  {"00", true, 0},
                      {"99", true, 99}, {"100", false, 0}, {"-1", false, 0}, {"  ", false, 0}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.exchange);
    int before = ctx.Log.QSOCount;
    std::size_t boxes = desk.Boxes.Shown.size();
    run.Enter("JA1ZZZ", row.exchange);
    if (row.logged) {
      EXPECT_EQ(ctx.Log.QSOCount, before + 1);
      EXPECT_EQ(Qso(before).QRcvNumber, row.age);
      EXPECT_EQ(desk.Boxes.Shown.size(), boxes);
      continue;
    }
    EXPECT_EQ(ctx.Log.QSOCount, before);
    ASSERT_EQ(desk.Boxes.Shown.size(), boxes + 1);
    EXPECT_EQ(LastBox(), "Enter two-digit age between 00 and 99.|Must Enter Received Age");
    const TextBox& exchange = form.InData[ExchangeBox];
    EXPECT_EQ(form.FocusedBox, ExchangeBox);
    EXPECT_EQ(exchange.Text, row.exchange);
    EXPECT_EQ(exchange.SelStart * 100 + exchange.SelLength, static_cast<int>(exchange.Text.size()));
  }
}

TEST_F(ProcessEntryTest, TheLogHoldsEightThousandQsos) {
  run.NewLog(Generic);
  ctx.Log.QSOCount = 8000;
  std::filesystem::resize_file(form.Document.FileName, 8000 * QsoRecordSize);  // the file of 7999 QSOs
  run.Enter("K3ZZZ", "");
  EXPECT_TRUE(desk.Boxes.Shown.empty());
  EXPECT_EQ(ctx.Log.QSOCount, 8001);
  EXPECT_EQ(Call(8000), "K3ZZZ");

  run.Enter("W1AW", "");
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Text, "Subscript out of range");
  EXPECT_EQ(ctx.Log.QSOCount * 10 + ctx.Log.CallIndexCount, 80011);
}

// A gap between QSOs of the contest's off-time limit is operating time; a
// minute more is not. The replay of the log counts the same.
TEST_F(ProcessEntryTest, OperatingTimeCountsGapsUpToTheOffTimeLimit) {
  struct Row { int contest; const char* exchange; int limit; };
  for (const Row& row : {Row{Generic, "", 15}, Row{Cqww, "5", 15}, Row{Naqp, "BOB CA", 30}, Row{Wpx, "1", 60}}) {
    SCOPED_TRACE(row.contest);
    NewLog(row.contest);
    desk.Time.Set({2026, 11, 22, 12, 0, 0});
    run.Enter("K1AA", row.exchange);
    desk.Time.Set({2026, 11, 22, 12, row.limit, 0});
    run.Enter("K2BB", row.exchange);
    EXPECT_EQ(ctx.Log.OperatingMinutes, static_cast<float>(row.limit));
    desk.Time.Set({2026, 11, 22, 12 + (2 * row.limit + 1) / 60, (2 * row.limit + 1) % 60, 0});
    run.Enter("K3CC", row.exchange);
    ASSERT_EQ(ctx.Log.QSOCount, 4);
    EXPECT_EQ(ctx.Log.QsoMinute.At(3) - ctx.Log.QsoMinute.At(2), row.limit + 1);
    EXPECT_EQ(ctx.Log.OperatingMinutes, static_cast<float>(row.limit));
    ResetLog(ctx.Log);
    form.ReplayLog(4);
    EXPECT_EQ(ctx.Log.OperatingMinutes, static_cast<float>(row.limit));
  }
}

TEST_F(ProcessEntryTest, ReplayGivesTheCountersOfLiveLogging) {
  desk.Time.Set({2026, 11, 22, 23, 50, 0});
  run.NewLog(Generic);
  run.Enter("K3ZZZ", "599 PA");
  desk.Time.Advance(4 * 60 * 1000);  // 23:54
  run.Enter("W1AW", "599 CT");
  ctx.Contest.BandIndex = 4;          // 40m CW
  desk.Time.Advance(9 * 60 * 1000);  // 00:03 next day
  run.Enter("K3ZZZ", "AGAIN");
  desk.Time.Advance(20 * 60 * 1000);  // 00:23: a 20-minute gap is off time
  run.Enter("N5DX", "");

  const LogStore live = ctx.Log;
  ASSERT_EQ(live.QSOCount, 5);
  EXPECT_EQ(live.ContestDay, 2);
  EXPECT_EQ(live.QsoMinute.At(3), 1440 + 3);
  EXPECT_FLOAT_EQ(live.OperatingMinutes, 4 + 9);
  EXPECT_EQ(live.RunOnBand, 0);  // the gap on 40m was off time

  ResetLog(ctx.Log);
  form.ReplayLog(5);
  const LogStore& replayed = ctx.Log;
  EXPECT_EQ(replayed.QSOCount, 5);
  EXPECT_EQ(replayed.BandQSOs, live.BandQSOs);
  EXPECT_EQ(replayed.CallIndexCount, 4);
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(replayed.CallIndex.At(i).Text(), live.CallIndex.At(i).Text()) << i;
  EXPECT_EQ(std::string(replayed.CallIndex.At(1).Text()) + "|" + std::string(replayed.CallIndex.At(2).Text()), "K3ZZZ03|K3ZZZ04");
  for (int n = 1; n <= 4; ++n) {
    EXPECT_EQ(replayed.QsoMinute.At(n), live.QsoMinute.At(n)) << n;
    EXPECT_EQ(replayed.CallSum.At(n - 1), live.CallSum.At(n - 1)) << n;
    EXPECT_EQ(replayed.CallText.At(n - 1), live.CallText.At(n - 1)) << n;
  }
  EXPECT_EQ(replayed.ContestDay, 2);
  EXPECT_FLOAT_EQ(replayed.OperatingMinutes, live.OperatingMinutes);
}

TEST_F(ProcessEntryTest, ReplayCountsAVoidForNothingAndABadBandOnSixteen) {
  run.NewLog(Generic);
  for (const char* call : {"K3ZZZ", "W1AW", "N5DX", "G4BUO"}) run.Enter(call, "");
  // The editor voids QSO 2; lower case is still a void.
  ctx.Log.LogRecords.At(2).QCall.Set("void");
  ctx.Log.LogRecords.At(3).QBand = 0;
  ctx.Log.LogRecords.At(4).QBand = 25;
  ResetLog(ctx.Log);
  form.ReplayLog(5);

  EXPECT_EQ(ctx.Log.QSOCount, 5);
  EXPECT_EQ(ctx.Log.CallIndexCount, 4);
  EXPECT_EQ(ctx.Log.CallText.At(1), "void");
  EXPECT_EQ(Qso(3).QNumber, 3);
  EXPECT_EQ(Qso(3).QBand * 100 + Qso(4).QBand, 1616);
  EXPECT_EQ(ctx.Log.BandQSOs[3] * 100 + ctx.Log.BandQSOs[16], 102);
}

}  // namespace
}  // namespace tarnix
