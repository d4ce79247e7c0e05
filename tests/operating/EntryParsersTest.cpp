// The parser's side of the entry form: a refused exchange's box and the part
// selected, in the exchange box or the call box, with both boxes left as
// typed; a warning that still logs; the call a parser takes apart or
// corrects; the CQP county line; and the CQWW zone put in on leaving the
// call box. The rows of every parser are in tests/rules/ParseExchangeTest.

#include "core/Text.h"
#include "operating/LoggerTest.h"

namespace tarnix {
namespace {

class EntryParsersTest : public StartedTest {
 protected:
  // The QSO entered: the boxes shown ("title|text|" with the critical icon),
  // then "logged" or where the focus and the selection are.
  std::string Enter(const std::string& call, const std::string& exchange) {
    const int before = ctx.Log.QSOCount;
    const std::size_t boxes = desk.Boxes.Shown.size();
    run.Enter(call, exchange);
    std::string outcome;
    for (std::size_t i = boxes; i < desk.Boxes.Shown.size(); ++i) {
      EXPECT_EQ(desk.Boxes.Shown[i].Icon, MsgIcon::Critical);
      outcome += desk.Boxes.Shown[i].Title + "|" + desk.Boxes.Shown[i].Text + "|";
    }
    if (ctx.Log.QSOCount > before) return outcome + "logged";
    EXPECT_EQ(form.InData[CallBox].Text + "|" + form.InData[ExchangeBox].Text, call + "|" + exchange);
    const TextBox& box = form.InData[static_cast<std::size_t>(form.FocusedBox)];
    return outcome + (form.FocusedBox == CallBox ? "call " : "exchange ") + std::to_string(box.SelStart) + "+" +
           std::to_string(box.SelLength);
  }
  std::string Stored(int n) { return Call(n) + "|" + std::to_string(Qso(n).QRcvNumber) + "|" + Qso(n).QMult.Trimmed(); }
};

TEST_F(EntryParsersTest, ARefusalSelectsThePartToCorrectAndAWarningLogs) {
  NewLog(Cqp);
  EXPECT_EQ(Enter("K6AW", "  12 xyz/"), "Exchange Error|Multiplier is Invalid.|exchange 5+3");
  EXPECT_EQ(Enter("K6AW", ""), "Exchange Error|Exchange must begin with a number|exchange 0+0");
  NewLog(Wpx);
  EXPECT_EQ(Enter("N5DX10000", ""), "Invalid Entry|Number must be between 1 and 9999.|call 4+5");
  EXPECT_EQ(Enter("K3ZZZ123", ""), "logged");
  EXPECT_EQ(Stored(1), "K3ZZZ|123|K3");  // the prefix of the call without the serial
  NewLog(Ten);
  EXPECT_EQ(Enter("DL1ABC", "123"), "logged");
  EXPECT_EQ(Enter("F5XYZ", "0"), "Invalid Serial Number|Number must be between 1 and 9999.|logged");
  EXPECT_EQ(Stored(2), "F5XYZ|123|F");  // the serial of the QSO before
  EXPECT_EQ(run.Boxes(), "_|");
}

TEST_F(EntryParsersTest, NewEnglandKeepsTheNumberTheRecordHeld) {
  NewLog(Cqww);
  Enter("DL1ABC", "14");
  NewLog(Neqp);
  EXPECT_EQ(Enter("W1AW", "MIDCT"), "logged");
  EXPECT_EQ(Stored(1), "W1AW|14|4");  // the zone of the CQWW QSO before
}

TEST_F(EntryParsersTest, CaliforniaCountyLineKeepsCallAndNumberForTheNextCounty) {
  NewLog(Cqp);
  EXPECT_EQ(Enter("K6AW", "56 sdg/"), "logged");
  EXPECT_EQ(run.Boxes(), "K6AW|56_");
  run.Type(" org");
  run.Key("Enter");
  EXPECT_EQ(Stored(1) + " " + Stored(2), "K6AW|56|37 K6AW|56|30");
  EXPECT_EQ(run.Boxes(), "_|");
}

TEST_F(EntryParsersTest, SweepstakesCallBetweenPrecedenceAndCheckCorrectsTheCall) {
  NewLog(Sweepstakes);
  Enter("K3ZZZ", "1 A 58 EB");
  EXPECT_EQ(form.lblDupe.Caption, "");
  // Corrected to a call already worked: a dupe, shown and logged with 0 points.
  EXPECT_EQ(Enter("W1AW", "2 A K3ZZZ 59 EB"), "logged");
  EXPECT_EQ(Stored(2), "K3ZZZ|2|A59EB");
  EXPECT_EQ(Qso(2).QPoints.Str(), "0");
  EXPECT_TRUE(run.Dupes().IsDupe);
  EXPECT_EQ(form.lblDupe.Caption.substr(0, 7), "DUPE - ");
  EXPECT_EQ(Enter("W1AW", "3 A N5DX 60 SCV"), "logged");
  EXPECT_FALSE(run.Dupes().IsDupe);
  // The section is tested first: a bad one leaves the call alone.
  EXPECT_EQ(Enter("W2CD", "123 A K3ZZZ 58 CA"), "Exchange Error|Multiplier is Invalid.|exchange 15+2");
}

TEST_F(EntryParsersTest, CqwwZoneIsFilledInWhenTheCallBoxIsLeft) {
  NewLog(Cqww);
  struct Fill { const char* call; const char* zone; };
  // A zone the country file gives the prefix (W6(3), VE3(4)) as it stands;
  // else the NA zone of the call area, two digits (K3); else the country's.
  for (Fill f : {Fill{"K3ZZZ", " 05"}, Fill{"W6XX", " 3"}, Fill{"VE3EJ", " 4"}, Fill{"DL1ABC", " 14"},
                 Fill{"JA1XYZ", " 25"}}) {
    run.CheckCall(f.call);
    EXPECT_EQ(form.InData[ExchangeBox].Text, f.zone) << f.call;
    run.Key("Enter");
    EXPECT_EQ(Qso(ctx.Log.QSOCount - 1).QRcvNumber, static_cast<int16_t>(Val(f.zone))) << f.call;
  }
  // A zone the operator typed before leaving the call box stays.
  run.Put(CallBox, "OH2BH");
  run.Put(ExchangeBox, "15");
  form.SetFocus(ExchangeBox);
  EXPECT_EQ(form.InData[ExchangeBox].Text, "15");
}

}  // namespace
}  // namespace tarnix
