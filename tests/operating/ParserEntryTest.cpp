// The exchange parsers as the operator meets them on the entry form: what each
// contest's parser refuses, with its box and the selection it leaves, and
// what a logged QSO keeps of the exchange. The program starts for real, so the
// multiplier tables come from the shipped data file.

#include <gtest/gtest.h>

#include "core/Text.h"

#include <memory>
#include <string>
#include <vector>

#include "core/ChCoForm.h"
#include "operating/LogForm.h"
#include "operating/Startup.h"
#include "platform/Scripted.h"
#include "operating/StartedFormTest.h"

namespace tarnix {
namespace {

struct Row {
  const char* call;
  const char* exchange;
  const char* outcome;  // the boxes shown, "title|text|", then "logged" or where the focus and selection are
  const char* stored;   // of a logged QSO: "call|received number|received text", SS adding "|multiplier"
};

class ParserEntryTest : public StartedFormTest {
 protected:

  void SetUp() override {
    ASSERT_TRUE(started);
    desk.Time.Set({2026, 11, 7, 21, 5, 0});
  }
  // location and qth are the buttons of the contest form, -1 for its default.
  void NewLog(int contest, int location = -1, int qth = -1) {
    if (ctx->Log.LogState != LogStateKind::None) desk.Boxes.Answers.push_back(MsgAnswer::No);  // not saved
    ContestChoice choice;
    choice.ContestIndex = contest;
    choice.LocationButton = location;
    choice.QthButton = qth;
    QueueContestChoice(desk.Forms, choice);
    form.mnuFileNewLog_Click();
  }

  // The call typed, the exchange box entered, the exchange typed, Enter.
  std::string Enter(const std::string& call, const std::string& exchange) {
    const int before = ctx->Log.QSOCount;
    const std::size_t boxes = desk.Boxes.Shown.size();
    form.SetFocus(CallBox);
    form.InData_Change(CallBox, call, static_cast<int>(call.size()));
    form.SetFocus(ExchangeBox);
    form.InData_Change(ExchangeBox, exchange, static_cast<int>(exchange.size()));
    form.InData_KeyDown(ExchangeBox, KeyEnter, 0);

    std::string outcome;
    for (std::size_t i = boxes; i < desk.Boxes.Shown.size(); ++i) {
      EXPECT_EQ(desk.Boxes.Shown[i].Icon, MsgIcon::Critical);
      outcome += desk.Boxes.Shown[i].Title + "|" + desk.Boxes.Shown[i].Text + "|";
    }
    if (ctx->Log.QSOCount > before) return outcome + "logged";
    // A refused entry leaves both boxes as typed.
    EXPECT_EQ(form.InData[CallBox].Text + "|" + form.InData[ExchangeBox].Text, call + "|" + exchange);
    const TextBox& box = form.InData[static_cast<std::size_t>(form.FocusedBox)];
    return outcome + (form.FocusedBox == CallBox ? "call " : "exchange ") + std::to_string(box.SelStart) + "+" +
           std::to_string(box.SelLength);
  }
  std::string Stored(int n) {
    const QsoRecord& r = ctx->Log.LogRecords.At(n);
    std::string s = r.QCall.Trimmed() + "|" + std::to_string(r.QRcvNumber) + "|" + r.QRcvText.Trimmed();
    return ctx->Contest.ContestIndex == Sweepstakes ? s + "|" + r.QMult.Trimmed() : s;
  }
  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.call) + " / " + row.exchange);
      std::string outcome = Enter(row.call, row.exchange);
      EXPECT_EQ(outcome, row.outcome);
      if (outcome.ends_with("logged")) {
        EXPECT_EQ(Stored(ctx->Log.QSOCount - 1), row.stored);
      }
    }
  }
};

TEST_F(ParserEntryTest, CaliforniaPennsylvaniaAndNewEnglandNumberAndCounty) {
  NewLog(Cqp);  // out of state: the county is tested
  Check({{"K6AW", "123", "Exchange Error|Multiplier is Invalid.|exchange 3+0", ""},
         {"K6AW", "12345 ALA", "Exchange Error|Multiplier is Invalid.|exchange 4+5", ""},
         {"K6AW", "  12 xyz/", "Exchange Error|Multiplier is Invalid.|exchange 5+3", ""},
         {"K6AW", "ALA", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""},
         {"K6AW", "", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""},
         {"K6AW", "1 ALA", "logged", "K6AW|1|"}});

  NewLog(Cqp, 0);  // in California: any text passes
  Check({{"K6AW", "12 XYZ", "logged", "K6AW|12|"},
         {"K6AW", "TX", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""}});

  NewLog(Paqp);
  Check({{"K3ZZZ", "12 all", "logged", "K3ZZZ|12|"},
         {"W3AB", "7 ALLEG", "logged", "W3AB|7|"},
         {"N3CD", "8 CAMB", "logged", "N3CD|8|"},
         {"N3CD", "12 XX", "Exchange Error|Multiplier is Invalid.|exchange 3+2", ""}});

  // NEQP sends no number, and the record keeps the received number it held:
  // here the zone of the CQWW QSO before.
  NewLog(Cqww);
  Enter("DL1ABC", "14");
  NewLog(Neqp);
  Check({{"W1AW", "MIDCT", "logged", "W1AW|14|"},
         {"K1AB", "fai", "logged", "K1AB|14|"},
         {"K1CD", "midctx", "logged", "K1CD|14|"},
         {"K1CD", "12 FAI", "Exchange Error|Multiplier is Invalid.|exchange 1+5", ""},
         {"K1CD", "MID", "Exchange Error|Multiplier is Invalid.|exchange 0+3", ""}});
}

TEST_F(ParserEntryTest, CaliforniaCountyLineKeepsCallAndNumberForTheNextCounty) {
  NewLog(Cqp);
  EXPECT_EQ(Enter("K6AW", "56 sdg/"), "logged");
  EXPECT_EQ(form.InData[CallBox].Text + "|" + form.InData[ExchangeBox].Text, "K6AW|56");
  EXPECT_EQ(form.FocusedBox, ExchangeBox);
  EXPECT_EQ(form.InData[ExchangeBox].SelStart, 2);
  for (char ch : std::string(" org")) form.InData_KeyPress(ExchangeBox, ch);
  form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
  EXPECT_EQ(Stored(1) + " " + Stored(2), "K6AW|56| K6AW|56|");
  EXPECT_EQ(form.InData[CallBox].Text + form.InData[ExchangeBox].Text, "");
}

TEST_F(ParserEntryTest, SprintAndCwOpenNumberAndName) {
  NewLog(Sprint);
  Check({{"K3ZZZ", "12 alan ca", "logged", "K3ZZZ|12|ALAN"},
         {"W1AW", "5 JOECA", "logged", "W1AW|5|JOE"},
         {"N5DX", "1234ALEXANDERSON CA", "logged", "N5DX|1234|ALEXANDERS"},
         {"W1XX", "ALAN 12 CA", "Exchange Error|Exchange must begin with a number|exchange 0+1", ""},
         {"W1XX", "12 AB", "Exchange Error|Incomplete Exchange|exchange 5+0", ""},
         {"W1XX", "  12 AB", "Exchange Error|Incomplete Exchange|exchange 7+0", ""},
         {"W1XX", "", "Exchange Error|Incomplete Exchange|exchange 0+0", ""}});

  NewLog(CwOpen);
  Check({{"K3ZZZ", "5 joe", "logged", "K3ZZZ|5|JOE"},
         {"W1AW", "123 599 JOE", "logged", "W1AW|123|JOE"},
         {"N5DX", "1 JOHN SMITH", "logged", "N5DX|1|SMITH"},
         {"W1XX", "JOE 5", "Exchange Error|Exchange must begin with a number|exchange 0+1", ""},
         {"W1XX", "123", "Exchange Error|Incomplete Exchange|exchange 3+0", ""}});
}

TEST_F(ParserEntryTest, SweepstakesWithOrWithoutBlanks) {
  NewLog(Sweepstakes);
  Check({{"K3ZZZ", "123A58EB", "logged", "K3ZZZ|123||A58EB"},
         {"W1AW", "123 a 58 eb", "logged", "W1AW|123||A58EB"},
         {"N5DX", "12 B 59 LAX", "logged", "N5DX|12||B59LX"},
         {"K6AW", "1Q00QUE", "logged", "K6AW|1||Q00QC"},
         {"K0AB", "2 A 59 EB/", "logged", "K0AB|2||A59EB"},  // a "/" at the end is dropped
         // CA is no Sweepstakes section: both forms fail on it alike.
         {"W1XX", "123A58CA", "Exchange Error|Multiplier is Invalid.|exchange 6+2", ""},
         {"W1XX", "123 A 58 CA", "Exchange Error|Multiplier is Invalid.|exchange 9+2", ""},
         {"W1XX", "A 58 EB", "Exchange Error|Exchange must begin with a number|exchange 0+1", ""},
         {"W1XX", "123", "Exchange Error|Incomplete Exchange|exchange 3+0", ""},
         {"W1XX", "123 X 58 EB", "Exchange Error|Precedence Error -- Must be A, B, M, Q, S, or U|exchange 4+1", ""},
         {"W1XX", "12345 A 58 EB", "Exchange Error|Precedence Error -- Must be A, B, M, Q, S, or U|exchange 4+1", ""},
         {"W1XX", "123 A 8EB", "Exchange Error|Multiplier or Check Error|exchange 9+0", ""},
         {"W1XX", "123 A 58 E", "Exchange Error|Multiplier or Check Error|exchange 10+0", ""},
         {"W1XX", "123 A 589E", "Exchange Error|Multiplier error|exchange 9+1", ""},
         {"W1XX", "1 A 5 EMA", "Exchange Error|Check error|exchange 6+3", ""},
         {"W1XX", "1 A X5 EMA", "Exchange Error|Check Error|exchange 4+1", ""}});
}

TEST_F(ParserEntryTest, SweepstakesCallBetweenPrecedenceAndCheckCorrectsTheCall) {
  NewLog(Sweepstakes);
  Enter("K3ZZZ", "1 A 58 EB");
  EXPECT_EQ(form.lblDupe.Caption, "");
  // Corrected to a call already worked: a dupe, shown and logged with 0 points.
  EXPECT_EQ(Enter("W1AW", "2 A K3ZZZ 59 EB"), "logged");
  EXPECT_EQ(Stored(2), "K3ZZZ|2||A59EB");
  EXPECT_EQ(ctx->Log.LogRecords.At(2).QPoints.Str(), "0");
  EXPECT_TRUE(form.DupeScan().IsDupe);
  EXPECT_EQ(form.lblDupe.Caption.substr(0, 7), "DUPE - ");

  EXPECT_EQ(Enter("W1AW", "3 A N5DX 60 SCV"), "logged");
  EXPECT_EQ(Stored(3), "N5DX|3||A60CV");
  EXPECT_FALSE(form.DupeScan().IsDupe);

  Check({{"W1AW", "4 A K3Z 61 SCV", "logged", "W1AW|4||A61CV"},  // under four characters: no call
         {"W2AB", "5 A K3ZZZ/4 62 SCV", "logged", "K3ZZZ/4|5||A62CV"},
         // The section is tested first: a bad one leaves the call alone.
         {"W2CD", "123 A K3ZZZ 58 CA", "Exchange Error|Multiplier is Invalid.|exchange 15+2", ""}});
}

TEST_F(ParserEntryTest, WpxSerialInTheExchangeOrOnTheCall) {
  NewLog(Wpx);
  EXPECT_EQ(Enter("K3ZZZ123", ""), "logged");
  EXPECT_EQ(ctx->Log.LogRecords.At(1).QMult.Trimmed(), "K3");  // the prefix is taken from the call without the serial
  Check({{"K3Z1", "", "logged", "K3Z|1|"},
         {"W1AX", "1", "logged", "W1AX|1|"},
         {"W1AY", "9999", "logged", "W1AY|9999|"},
         {"N5DX9999", "", "logged", "N5DX|9999|"},
         {"VE3ABC/4", "15", "logged", "VE3ABC/4|15|"},
         {"W1AW", "0", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+1", ""},
         {"W1AW", "10000", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+5", ""},
         // Out of range on the call: its digits are selected there.
         {"N5DX10000", "", "Invalid Entry|Number must be between 1 and 9999.|call 4+5", ""},
         {" K3ZZZ0 ", "", "Invalid Entry|Number must be between 1 and 9999.|call 6+1", ""},
         {"K3ZZZ", "", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+0", ""},
         {"K3ZZZ/4", "", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+0", ""},
         {"K31", "", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+0", ""},
         {"AB123", "", "Invalid Entry|Number must be between 1 and 9999.|exchange 0+0", ""}});
}

TEST_F(ParserEntryTest, CqwwZoneInTheExchangeOrOnTheCall) {
  NewLog(Cqww);
  Check({{"K3ZZZ14", "", "logged", "K3ZZZ|14|"},
         {"K3Z4", "", "logged", "K3Z|4|"},
         {"W3ABC/4", "5", "logged", "W3ABC/4|5|"},
         {"DL3ABC", "1", "logged", "DL3ABC|1|"},
         {"DL4ABC", "40", "logged", "DL4ABC|40|"},
         {"DL6ABC", "14 05", "logged", "DL6ABC|14|"},  // typed in front of the pre-filled zone
         {"DL8ABC", " 05", "logged", "DL8ABC|5|"},
         {"K3ZZZ/4", "", "Invalid Zone|Enter zone between 1 and 40.|exchange 0+0", ""},
         {"K31", "", "Invalid Zone|Enter zone between 1 and 40.|exchange 0+0", ""},
         {"DL2ABC", "0", "Invalid Zone|Enter zone between 1 and 40.|exchange 0+1", ""},
         {"DL5ABC", "41", "Invalid Zone|Enter zone between 1 and 40.|exchange 0+2", ""},
         {"DL7ABC", "599 14", "Invalid Zone|Enter zone between 1 and 40.|exchange 0+6", ""}});
}

TEST_F(ParserEntryTest, CqwwZoneIsFilledInWhenTheCallBoxIsLeft) {
  NewLog(Cqww);
  struct Fill { const char* call; const char* zone; };
  // A zone the country file gives the prefix (W6(3), VE3(4)) as it stands;
  // else the NA zone of the call area, two digits (K3); else the country's.
  for (Fill f : {Fill{"K3ZZZ", " 05"}, Fill{"W6XX", " 3"}, Fill{"VE3EJ", " 4"}, Fill{"DL1ABC", " 14"},
                 Fill{"JA1XYZ", " 25"}}) {
    form.SetFocus(CallBox);
    form.InData_Change(CallBox, f.call, 5);
    form.InData_Change(ExchangeBox, "", 0);
    form.SetFocus(ExchangeBox);
    EXPECT_EQ(form.InData[ExchangeBox].Text, f.zone) << f.call;
    form.InData_KeyDown(ExchangeBox, KeyEnter, 0);
    EXPECT_EQ(ctx->Log.LogRecords.At(ctx->Log.QSOCount - 1).QRcvNumber, static_cast<int16_t>(Val(f.zone))) << f.call;
  }
  // A zone the operator typed before leaving the call box stays.
  form.InData_Change(CallBox, "OH2BH", 5);
  form.InData_Change(ExchangeBox, "15", 2);
  form.SetFocus(ExchangeBox);
  EXPECT_EQ(form.InData[ExchangeBox].Text, "15");
}

TEST_F(ParserEntryTest, NaqpNameAndMultiplierAsTyped) {
  NewLog(Naqp);
  Check({{"K3ZZZ", "alan ca", "logged", "K3ZZZ|0|ALAN"},
         {"W1AW", "jean-luc qc.", "logged", "W1AW|0|JEAN-LUC"},
         {"N5DX", "BARTHOLOMEW TX", "logged", "N5DX|0|BARTHOLOME"},
         {"W1XX", "", "Exchange Error|No Exchange|exchange 0+0", ""},
         {"W1XX", "ALAN", "Exchange Error|Incomplete Exchange|exchange 0+0", ""},
         {"W1XX", "ALAN J CA", "Exchange Error|Exchange Error|exchange 0+0", ""}});
}

TEST_F(ParserEntryTest, ArrlDxPowerOrStateByWhereTheStationIs) {
  NewLog(ArrlDx);  // US/VE: the power
  Check({{"DL1ABC", "100", "logged", "DL1ABC|100|"},
         {"DL2ABC", "kw", "logged", "DL2ABC|1000|"},
         {"DL4ABC", "0", "logged", "DL4ABC|1000|"},
         {"DL5ABC", "1", "logged", "DL5ABC|1|"},
         {"DL6ABC", "1500", "logged", "DL6ABC|1500|"},
         {"DL7ABC", "10000", "logged", "DL7ABC|1000|"},  // only four digits count
         {"DL9ABC", "1501", "Exchange Error|Power must be between 1 and 1500.|exchange 0+4", ""},
         {"DL9ABC", "00", "Exchange Error|Power must be between 1 and 1500.|exchange 0+2", ""},
         {"DL9ABC", "100W", "Exchange Error|Enter a power between 1 and 1500.|exchange 0+4", ""},
         {"DL9ABC", "", "Exchange Error|No Exchange|exchange 0+0", ""}});

  NewLog(ArrlDx, -1, 1);  // DX: the state or province
  Check({{"K3ZZZ", "pa", "logged", "K3ZZZ|0|"},
         {"VE3ABC", "ON.", "logged", "VE3ABC|0|"},
         {"N5DX", "C4", "Exchange Error|Enter a valid State or Province abbreviation.|exchange 0+2", ""},
         {"N5DX", "AK",
          "Exchange Error|W/VE Multiplier is Invalid.  Use only the abbreviations in the Multiplier table."
          "|exchange 0+0",
          ""}});
}

TEST_F(ParserEntryTest, TenMeterSerialOutOfRangeIsShownAndLoggedAnyway) {
  NewLog(Ten);
  constexpr const char* OutOfRange = "Invalid Serial Number|Number must be between 1 and 9999.|logged";
  Check({{"DL1ABC", "123", "logged", "DL1ABC|123|"},
         {"F5XYZ", "0", OutOfRange, "F5XYZ|123|"},  // the serial of the QSO before
         {"SP9ABC", "1", "logged", "SP9ABC|1|"},
         {"OH2BH", "9999", "logged", "OH2BH|9999|"},
         {"G4BUO", "10000", "logged", "G4BUO|1000|"},
         {"EA5XX", "00001", OutOfRange, "EA5XX|1000|"},
         {"K3ZZZ", "ca", "logged", "K3ZZZ|0|"},
         {"VE3ABC", "On", "logged", "VE3ABC|0|"},
         {"W1XX", "C4", "Exchange Error||exchange 0+0", ""},
         {"W1XX", "XX", "Exchange Error|W/VE Multiplier is Invalid.|exchange 0+0", ""},
         {"W1XX", "", "Exchange Error|No Exchange|exchange 0+0", ""}});
}

}  // namespace
}  // namespace tarnix
