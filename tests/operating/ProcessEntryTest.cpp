#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "core/ChCoForm.h"
#include "operating/LogForm.h"
#include "operating/RecordingStation.h"
#include "platform/Scripted.h"

namespace tarnix {
namespace {

class ProcessEntryTest : public ::testing::Test {
 protected:
  TempFolder home;
  std::unique_ptr<Context> ctx = MakeContext(home.Path);
  ScriptedPlatform desk;
  RecordingStation station;
  LogForm form{*ctx, desk.View, station.View};

  void NewLog(int contest) {
    QueueContestChoice(desk.Forms, contest);
    form.mnuFileNewLog_Click();
    desk.Time.Set({2026, 11, 22, 14, 5, 0});
  }
  void Enter(const std::string& call, const std::string& exchange) {
    form.InData_Change(CallBox, call, static_cast<int>(call.size()));
    form.InData_Change(ExchangeBox, exchange, static_cast<int>(exchange.size()));
    form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  }
  const QsoRecord& Qso(int n) { return ctx->Log.LogRecords.At(n); }
};

TEST_F(ProcessEntryTest, GenericQsoTakesEveryField) {
  NewLog(Generic);
  for (char ch : std::string("k3zz.z?")) form.InData_KeyPress(CallBox, ch);
  EXPECT_EQ(form.InData[CallBox].Text, "K3ZZ.Z?");
  form.InData_Change(ExchangeBox, "  john in ohio, rig 100w ", 3);
  EXPECT_TRUE(form.InData_KeyDown(ExchangeBox, KeyEnter, 0));

  ASSERT_EQ(ctx->Log.QSOCount, 2);
  const QsoRecord& r = Qso(1);
  EXPECT_EQ(r.QNumber, 1);
  EXPECT_EQ(r.QCall.Str() + "|" + r.QRcvText.Str() + "|" + r.QMult.Str() + "|" + r.QRadio.Str() + "|" + r.QFreq.Str(),
            "K3ZZZ     |JOHN IN OH|IO, R|1 |0         ");
  EXPECT_EQ(r.QRcvNumber, 0);
  EXPECT_EQ(r.QBand, 3);
  EXPECT_EQ(r.QTime, 1405);
  EXPECT_EQ(r.QDate, 31226);
  EXPECT_EQ(form.InData[CallBox].Text + form.InData[ExchangeBox].Text, "");
  EXPECT_EQ(form.FocusedBox, CallBox);
  EXPECT_EQ(form.QSONrLabel.Caption, "QSO Nr  2    (20m CW)");
  EXPECT_TRUE(desk.Boxes.Shown.empty());

  // A call put in by the view's editing in lower case is logged upper-cased.
  Enter("  w1aw ", "");
  EXPECT_EQ(Qso(2).QCall.Str(), "W1AW      ");
  EXPECT_EQ(Qso(2).QNumber, 2);
}

TEST_F(ProcessEntryTest, GenericNotesSplitAfterTenCharacters) {
  NewLog(Generic);
  struct Row { const char* exchange; const char* fields; };
  const Row rows[] = {{"", "          |     "},
                      {"abcdefghij", "ABCDEFGHIJ|     "},
                      {"abcdefghijk", "ABCDEFGHIJ|K    "},
                      {"abcdefghijklmno", "ABCDEFGHIJ|KLMNO"},
                      {"abcdefghijklmnop", "ABCDEFGHIJ|KLMNO"}};
  int n = 1;
  for (const Row& row : rows) {
    Enter("K3ZZZ", row.exchange);
    EXPECT_EQ(Qso(n).QRcvText.Str() + "|" + Qso(n).QMult.Str(), row.fields) << row.exchange;
    ++n;
  }
}

TEST_F(ProcessEntryTest, TimeAndDateFollowTheCorrection) {
  NewLog(Generic);
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
    ctx->Config.TimeCorrection = row.correction;
    ctx->Config.IsGMTFlag = row.gmt;
    desk.Time.Set(row.clock);
    Enter("K3ZZZ", "");
    EXPECT_EQ(Qso(n).QTime, row.time) << row.name;
    EXPECT_EQ(Qso(n).QDate, row.date) << row.name;
    ++n;
  }
}

TEST_F(ProcessEntryTest, CallLengthAndEmptyCall) {
  NewLog(Generic);
  Enter("VE3ABCDEFG", "");
  EXPECT_TRUE(desk.Boxes.Shown.empty());
  desk.Boxes.Answers = {MsgAnswer::Yes, MsgAnswer::No};
  Enter("VE3ABCDEFGH", "");
  EXPECT_EQ(Qso(1).QCall.Str() + "|" + Qso(2).QCall.Str(), "VE3ABCDEFG|VE3ABCDEFG");
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Text, "Only 10 characters allowed for Callsign.  Truncate entry to VE3ABCDEFG?");
  EXPECT_EQ(desk.Boxes.Shown[0].Title, "Entry Too Long");
  EXPECT_EQ(desk.Boxes.Shown[0].Buttons, MsgButtons::YesNo);

  // No, an empty call and a blank call: nothing logged, the call box focused.
  for (const char* call : {"VE3ABCDEFGH", "", "   "}) {
    form.SetFocus(ExchangeBox);
    Enter(call, "notes");
    EXPECT_EQ(ctx->Log.QSOCount, 3) << call;
    EXPECT_EQ(form.FocusedBox, CallBox) << call;
  }
  EXPECT_EQ(desk.Boxes.Shown.size(), 2u);
}

TEST_F(ProcessEntryTest, AllAsianAgeMustBeZeroToNinetyNine) {
  NewLog(AllAsian);
  struct Row { const char* exchange; bool logged; int16_t age; };
  const Row rows[] = {{"", false, 0},   {"45", true, 45},  {"AB", true, 0},  {"00", true, 0},
                      {"99", true, 99}, {"100", false, 0}, {"-1", false, 0}, {"  ", false, 0}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.exchange);
    int before = ctx->Log.QSOCount;
    std::size_t boxes = desk.Boxes.Shown.size();
    form.SetFocus(CallBox);
    Enter("JA1ZZZ", row.exchange);
    if (row.logged) {
      EXPECT_EQ(ctx->Log.QSOCount, before + 1);
      EXPECT_EQ(Qso(before).QRcvNumber, row.age);
      EXPECT_EQ(desk.Boxes.Shown.size(), boxes);
      continue;
    }
    EXPECT_EQ(ctx->Log.QSOCount, before);
    ASSERT_EQ(desk.Boxes.Shown.size(), boxes + 1);
    EXPECT_EQ(desk.Boxes.Shown.back().Text, "Enter two-digit age between 00 and 99.");
    EXPECT_EQ(desk.Boxes.Shown.back().Title, "Must Enter Received Age");
    const TextBox& exchange = form.InData[ExchangeBox];
    EXPECT_EQ(form.FocusedBox, ExchangeBox);
    EXPECT_EQ(exchange.Text, row.exchange);
    EXPECT_EQ(exchange.SelStart, 0);
    EXPECT_EQ(exchange.SelLength, static_cast<int>(exchange.Text.size()));
  }
}

TEST_F(ProcessEntryTest, TheLogHoldsEightThousandQsos) {
  NewLog(Generic);
  ctx->Log.QSOCount = 8000;
  std::filesystem::resize_file(form.Document.FileName, 8000 * QsoRecordSize);  // the file of 7999 QSOs
  Enter("K3ZZZ", "");
  EXPECT_TRUE(desk.Boxes.Shown.empty());
  EXPECT_EQ(ctx->Log.QSOCount, 8001);
  EXPECT_EQ(Qso(8000).QCall.Trimmed(), "K3ZZZ");

  Enter("W1AW", "");
  ASSERT_EQ(desk.Boxes.Shown.size(), 1u);
  EXPECT_EQ(desk.Boxes.Shown[0].Text, "Subscript out of range");
  EXPECT_EQ(ctx->Log.QSOCount, 8001);
  EXPECT_EQ(ctx->Log.CallIndexCount, 1);
}

}  // namespace
}  // namespace tarnix
