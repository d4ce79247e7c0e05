// Every contest's exchange parser through ParseExchange, with the call and
// the record fields an accepted exchange gives (LoggedCall,
// TakeReceivedFields): what each refuses, with its box and the part it
// selects, and what a QSO keeps. The tables are the shipped data file's, as
// a started program loads them for the contest chosen.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/Text.h"
#include "operating/ScriptedLogger.h"
#include "rules/Parsers.h"

namespace tarnix {
namespace {

struct Row {
  const char* call;
  const char* exchange;
  const char* outcome;  // the box, "title|text|", then "logged" or the part selected: "exchange 3+0", "call 4+5"
  const char* stored;   // of a logged QSO: "call|received number|received text", SS adding "|multiplier"
};

class ParseExchangeTest : public ::testing::Test {
 protected:
  // The data file as a start reads it, once for all the tests.
  static const StartupData& Data() {
    static TempFolder home;
    static ScriptedLogger program(home.Path, ScriptedLogger::Start::Program);
    EXPECT_TRUE(program.Started);
    return program.Ctx.Data;
  }

  ContestState contest;
  std::unique_ptr<MultiplierTables> tables = std::make_unique<MultiplierTables>();
  ReceivedFields fields;  // kept from row to row, as the form keeps them
  QsoRecord record;       // likewise

  // The contest as the contest form chooses it, and its tables.
  void Choose(ContestChoice choice) {
    contest = {};
    record = {};
    bool cancelled = false;
    ChCoForm chooser(contest, cancelled);
    ASSERT_TRUE(MakeChoice(chooser, choice));
    LoadMultiplierTables(Data(), contest.ContestIndex, contest.InState, *tables);
  }
  std::string Parse(const std::string& call, const std::string& exchange) {
    ParseResult r = ParseExchange(call, exchange, contest, *tables, Data(), fields);
    std::string outcome = r.Title.empty() ? "" : r.Title + "|" + r.Message + "|";
    if (r.Error)
      return outcome + (r.SelectInCall ? "call " : "exchange ") + std::to_string(r.SelStart) + "+" +
             std::to_string(r.SelLength);
    std::string logged = r.CorrectedCall.empty() ? LoggedCall(contest.ContestIndex, fields, Trim(call)) : r.CorrectedCall;
    record.QCall.Set(UCase(RemoveChars(logged, ".?")));
    TakeReceivedFields(contest.ContestIndex, contest.IsUSVEStation, fields, r.ExchangeText.value_or(exchange), record);
    return outcome + "logged";
  }
  void Check(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
      SCOPED_TRACE(std::string(row.call) + " / " + row.exchange);
      std::string outcome = Parse(row.call, row.exchange);
      EXPECT_EQ(outcome, row.outcome);
      if (!outcome.ends_with("logged")) continue;
      std::string stored = record.QCall.Trimmed() + "|" + std::to_string(record.QRcvNumber) + "|" + record.QRcvText.Trimmed();
      EXPECT_EQ(contest.ContestIndex == Sweepstakes ? stored + "|" + record.QMult.Trimmed() : stored, row.stored);
    }
  }
};

TEST_F(ParseExchangeTest, CaliforniaPennsylvaniaAndNewEnglandNumberAndCounty) {
  Choose({Cqp});  // out of state: the county is tested
  Check({{"K6AW", "123", "Exchange Error|Multiplier is Invalid.|exchange 3+0", ""},
       {"K6AW", "12345 ALA", "Exchange Error|Multiplier is Invalid.|exchange 4+5", ""},
       {"K6AW", "  12 xyz/", "Exchange Error|Multiplier is Invalid.|exchange 5+3", ""},
       {"K6AW", "ALA", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""},
       {"K6AW", "", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""},
       {"K6AW", "1 ALA", "logged", "K6AW|1|"}});

  Choose({Cqp, -1, 0});  // in California: any text passes
  Check({{"K6AW", "12 XYZ", "logged", "K6AW|12|"},
       {"K6AW", "TX", "Exchange Error|Exchange must begin with a number|exchange 0+0", ""}});

  Choose({Paqp});
  Check({{"K3ZZZ", "12 all", "logged", "K3ZZZ|12|"},
       {"W3AB", "7 ALLEG", "logged", "W3AB|7|"},
       {"N3CD", "8 CAMB", "logged", "N3CD|8|"},
       {"N3CD", "12 XX", "Exchange Error|Multiplier is Invalid.|exchange 3+2", ""}});

  // NEQP sends no number: the record keeps the one it held.
  Choose({Neqp});
  record.QRcvNumber = 14;
  Check({{"W1AW", "MIDCT", "logged", "W1AW|14|"},
       {"K1AB", "fai", "logged", "K1AB|14|"},
       {"K1CD", "midctx", "logged", "K1CD|14|"},
       {"K1CD", "12 FAI", "Exchange Error|Multiplier is Invalid.|exchange 1+5", ""},
       {"K1CD", "MID", "Exchange Error|Multiplier is Invalid.|exchange 0+3", ""}});
}

TEST_F(ParseExchangeTest, SprintAndCwOpenNumberAndName) {
  Choose({Sprint});
  Check({{"K3ZZZ", "12 alan ca", "logged", "K3ZZZ|12|ALAN"},
       {"W1AW", "5 JOECA", "logged", "W1AW|5|JOE"},
       {"N5DX", "1234ALEXANDERSON CA", "logged", "N5DX|1234|ALEXANDERS"},
       {"W1XX", "ALAN 12 CA", "Exchange Error|Exchange must begin with a number|exchange 0+1", ""},
       {"W1XX", "12 AB", "Exchange Error|Incomplete Exchange|exchange 5+0", ""},
       {"W1XX", "  12 AB", "Exchange Error|Incomplete Exchange|exchange 7+0", ""},
       {"W1XX", "", "Exchange Error|Incomplete Exchange|exchange 0+0", ""}});

  Choose({CwOpen});
  Check({{"K3ZZZ", "5 joe", "logged", "K3ZZZ|5|JOE"},
       {"W1AW", "123 599 JOE", "logged", "W1AW|123|JOE"},
       {"N5DX", "1 JOHN SMITH", "logged", "N5DX|1|SMITH"},
       {"W1XX", "JOE 5", "Exchange Error|Exchange must begin with a number|exchange 0+1", ""},
       {"W1XX", "123", "Exchange Error|Incomplete Exchange|exchange 3+0", ""}});
}

TEST_F(ParseExchangeTest, SweepstakesWithOrWithoutBlanksAndACorrectedCall) {
  Choose({Sweepstakes});
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
  // A call between precedence and check is the call logged.
  Check({{"W1AW", "2 A K3ZZZ 59 EB", "logged", "K3ZZZ|2||A59EB"}, {"W1AW", "3 A N5DX 60 SCV", "logged", "N5DX|3||A60CV"},
         {"W1AW", "4 A K3Z 61 SCV", "logged", "W1AW|4||A61CV"},  // under four characters: no call
       {"W2AB", "5 A K3ZZZ/4 62 SCV", "logged", "K3ZZZ/4|5||A62CV"},
       // The section is tested first: a bad one leaves the call alone.
       {"W2CD", "123 A K3ZZZ 58 CA", "Exchange Error|Multiplier is Invalid.|exchange 15+2", ""}});
}

TEST_F(ParseExchangeTest, WpxSerialAndCqwwZoneInTheExchangeOrOnTheCall) {
  Choose({Wpx});
  Check({{"K3ZZZ123", "", "logged", "K3ZZZ|123|"},
         {"K3Z1", "", "logged", "K3Z|1|"},
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

  Choose({Cqww});
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

TEST_F(ParseExchangeTest, NaqpNameAndMultiplierAsTyped) {
  Choose({Naqp});
  Check({{"K3ZZZ", "alan ca", "logged", "K3ZZZ|0|ALAN"},
       {"W1AW", "jean-luc qc.", "logged", "W1AW|0|JEAN-LUC"},
       {"N5DX", "BARTHOLOMEW TX", "logged", "N5DX|0|BARTHOLOME"},
       {"W1XX", "", "Exchange Error|No Exchange|exchange 0+0", ""},
       {"W1XX", "ALAN", "Exchange Error|Incomplete Exchange|exchange 0+0", ""},
       {"W1XX", "ALAN J CA", "Exchange Error|Exchange Error|exchange 0+0", ""}});
}

TEST_F(ParseExchangeTest, ArrlDxPowerOrStateByWhereTheStationIs) {
  Choose({ArrlDx});  // US/VE: the power
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

  Choose({ArrlDx, -1, -1, 1});  // DX: the state or province
  Check({{"K3ZZZ", "pa", "logged", "K3ZZZ|0|"},
       {"VE3ABC", "ON.", "logged", "VE3ABC|0|"},
       {"N5DX", "C4", "Exchange Error|Enter a valid State or Province abbreviation.|exchange 0+2", ""},
       {"N5DX", "AK",
       "Exchange Error|W/VE Multiplier is Invalid.  Use only the abbreviations in the Multiplier table."
       "|exchange 0+0",
       ""}});
}

TEST_F(ParseExchangeTest, TenMeterSerialOutOfRangeIsShownAndLoggedAnyway) {
  constexpr const char* OutOfRange = "Invalid Serial Number|Number must be between 1 and 9999.|logged";
  Choose({Ten});
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
