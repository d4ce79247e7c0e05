// Words typed into the call box and entered: the commands, what each sets,
// and the texts that look like commands but are calls and get logged.

#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

using EntryTextCommandsTest = KeyboardTest;

TEST_F(EntryTextCommandsTest, RepeatPutsTheLastQsoBackInArrlDxCqwwAndNaqp) {
  struct Row { const char* name; int contest, qth; const char* call; const char* exchange; const char* word;
               const char* boxes; };
  const Row rows[] = {
      {"ARRL DX, US station: the power", ArrlDx, 0, "DL1ABC", "kw", "R", "DL1ABC|1000_"},
      {"ARRL DX, DX station: the state", ArrlDx, 1, "K3ZZZ", "pa", "rpt", "K3ZZZ|PA_"},
      {"CQWW: the zone", Cqww, -1, "K3ZZZ", "4", "R", "K3ZZZ|4_"},
      {"NAQP: name and state", Naqp, -1, "K3ZZZ", "alan pa", "RPT", "K3ZZZ|ALAN PA_"},
      {"NAQP: name and DX country", Naqp, -1, "DL1ABC", "hans dl", "R", "DL1ABC|HANS DL_"},
  };
  for (const Row& row : rows) {
    NewLog(row.contest, false, row.qth);
    run.Enter(row.call, row.exchange);
    ASSERT_EQ(ctx.Log.QSOCount, 2) << row.name;
    Command(row.word);
    EXPECT_EQ(run.Boxes(), row.boxes) << row.name;
    EXPECT_EQ(ctx.Log.QSOCount, 2) << row.name;
    run.Key("Enter");  // logged again, as a new QSO
    EXPECT_EQ(ctx.Log.QSOCount, 3) << row.name;
    EXPECT_EQ(Call(2), row.call) << row.name;
  }
}

TEST_F(EntryTextCommandsTest, RepeatElsewhereOrOnAnEmptyLogIsACall) {
  NewLog(Wpx);
  run.Enter("R", "1");
  run.Enter("RPT", "2");
  EXPECT_EQ(Call(1) + " " + Call(2), "R RPT");

  NewLog(ArrlDx, false, 0);  // nothing to repeat yet
  run.Enter("R", "100");
  EXPECT_EQ(Call(1), "R");
}

TEST_F(EntryTextCommandsTest, AFrequencyTunesThePolledRadio) {
  NewLog(Generic);
  for (const char* text : {"14025", "1800", "7150.5", "147999", "18100", "10125"}) Command(text);
  EXPECT_EQ(ctx.Log.QSOCount, 1);
  EXPECT_TRUE(station.Requests.empty());  // no radio is polled
  ctx.Radio.RadioRunning[1] = true;
  for (const char* text : {"14025", "7150.5", "21300"}) Command(text);
  EXPECT_EQ(station.TakeRequests(), (Lines{"SetRadioFrequency 1 band 14025", "SetRadioFrequency 1 band 7150.5",
                                   "SetRadioFrequency 1 band 21300"}));
  EXPECT_EQ(run.Boxes(), "_|");

  // Below 1800, from 148000, between the bands and 17m phone in a mixed log
  // are calls.
  for (const char* text : {"1799", "148000", "5000", "18150", "14025X"}) Command(text);
  EXPECT_EQ(Call(1) + " " + Call(2) + " " + Call(3) + " " + Call(4) + " " + Call(5),
            "1799 148000 5000 18150 14025X");
  EXPECT_TRUE(station.Requests.empty());
}

TEST_F(EntryTextCommandsTest, TimingMethodAndItsDisplay) {
  NewLog(Generic);
  std::string methods;
  for (const char* text : {"TM1", "tm2", "TM3", "TM4"}) {
    Command(text);
    methods += ctx.Config.TimingMethod + " ";
  }
  EXPECT_EQ(methods, "Math VBTimer Winmm QueryPerf ");
  form.NeedPfxLabel.Caption = "Country Ck";
  Command("TMSHOW");
  EXPECT_TRUE(ctx.Keying.ShowTiming);
  EXPECT_EQ(form.NeedPfxLabel.Caption, "");
  Command("tmshow");
  EXPECT_FALSE(ctx.Keying.ShowTiming);
  EXPECT_EQ(run.Boxes(), "_|");
  Command("TM5");
  EXPECT_EQ(Call(1), "TM5");
}

TEST_F(EntryTextCommandsTest, RepeatIntervalBySecondsTenthsOrHundredths) {
  NewLog(Generic);
  ctx.Config.RepeatIntervalSSB = 1000;
  struct Row { const char* text; int cw; };
  for (const Row& row : {Row{"INT5", 5000}, Row{"INT50", 5000}, Row{"INT500", 5000}, Row{"INT1", 1000},
                         Row{"INT8", 8000}, Row{"INT10", 1000}, Row{"INT15", 1500}, Row{"INT80", 8000},
                         Row{"INT100", 1000}, Row{"int275", 2750}, Row{"INT800", 8000}}) {
    Command(row.text);
    EXPECT_EQ(ctx.Config.RepeatIntervalCW, row.cw) << row.text;
  }
  EXPECT_EQ(ctx.Config.RepeatIntervalSSB, 1000);
  ctx.Contest.BandIndex = 11;  // 20m phone
  Command("INT25");
  ctx.Contest.BandIndex = 21;  // 12m CW lies above 8: the phone interval
  Command("INT3");
  EXPECT_EQ(ctx.Config.RepeatIntervalSSB, 3000);
  EXPECT_EQ(ctx.Config.RepeatIntervalCW, 8000);
  EXPECT_EQ(ctx.Log.QSOCount, 1);

  // Any other number, or none, leaves the text to be a call.
  for (const char* text : {"INT9", "INT0", "INT", "INT85", "INT900", "INT9000"}) Command(text);
  EXPECT_EQ(Call(1) + " " + Call(2) + " " + Call(3) + " " + Call(4) + " " + Call(5) + " " + Call(6),
            "INT9 INT0 INT INT85 INT900 INT9000");
}

TEST_F(EntryTextCommandsTest, TuSetsTheFollowUpRotation) {
  NewLog(Generic);
  station.LastMsgCallCorrect = true;
  ctx.Config.LogandSendF5Enabled = true;
  for (const char* text : {"TU3", "tu9", "TU0", "TU1"}) {
    Command(text);
    EXPECT_EQ(run.Boxes(), "_|") << text;
  }
  // TU1, and TU0 after TU3: every QSO ends in F5. TU12 and TUX are calls.
  run.Enter("K1AA", "599");
  Command("TU3");
  Command("TU0");
  Command("TU12");
  Command("TUX");
  EXPECT_EQ(Call(2) + " " + Call(3), "TU12 TUX");
  EXPECT_EQ(station.TakeRequests(), (Lines{"SendMessageKey 5", "SendMessageKey 5", "SendMessageKey 5"}));

  // TU3: three QSOs end in F6, F6, F5.
  Command("TU3");
  for (const char* call : {"K3ZZZ", "W1AW", "N5DX", "VE3EJ"}) run.Enter(call, "599");
  EXPECT_EQ(station.TakeRequests(), (Lines{"SendMessageKey 6", "SendMessageKey 6", "SendMessageKey 5", "SendMessageKey 6"}));
}

TEST_F(EntryTextCommandsTest, StoreRecallAndPower) {
  NewLog(Cqww);
  form.NeedPfxLabel.Caption = "Country Ck";
  for (const char* text : {"STO", "RCL", "PWR"}) Command(text);  // no radio polled: nothing stored or asked
  EXPECT_TRUE(station.Requests.empty());
  EXPECT_EQ(form.NeedPfxLabel.Caption + run.Boxes(), "_|");
  EXPECT_EQ(ctx.Log.QSOCount, 1);

  ctx.Radio.RadioRunning = {false, true, true};
  ctx.Radio.LastFreqByBand[1][3] = 14025.5f;
  Command("sto");  // radio 1 on 20m at 14025.5
  run.Key("F9");
  run.Key("Ctrl+Down");  // radio 2 goes to its last 40m frequency, the start-up's
  EXPECT_EQ(ctx.Radio.ActiveRadio, 2);
  Command("RCL");
  EXPECT_EQ(ctx.Radio.ActiveRadio * 100 + ctx.Contest.BandIndex, 103);
  EXPECT_EQ(form.ActiveRadioLabel.Caption, "Radio1");
  Command("PWR");
  EXPECT_EQ(station.TakeRequests(), (Lines{"ReadRadioMode 1", "SetRadioFrequency 2 7025", "SetRadioFrequency 1 14025.5",
                                   "SetRadioMode 1 CW", "SendPowerCommand 1 110"}));
  EXPECT_EQ(run.Boxes(), "_|");
}

}  // namespace
}  // namespace tarnix
