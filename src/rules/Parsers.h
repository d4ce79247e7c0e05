#pragma once
// Exchange parsers: the exchange box's text split into a contest's received
// fields and checked before a QSO is logged, one parser per contest family.
//
// A parser reads the text as typed and either leaves the received fields in
// ReceivedFields or reports one error: the box text, its title and the part
// of the box to select so that the operator types over the wrong part. The
// rules show no boxes; the entry form does (operating/EntryParsers.cpp).
//
// Three character sets recur. A character's class is its place in the set:
// "ABCDEFGHIJKLMNOPQRSTUVWXYZ 1234567890" (letters 1 to 26, the blank 27,
// digits from 28), the same without the blank, and that with "/". A parser
// drops what is outside its set. Selections count in the box as typed: a
// character the parser dropped or trimmed does not shift them.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "config/StartupData.h"
#include "core/Contest.h"
#include "core/QsoRecord.h"
#include "rules/Countries.h"
#include "rules/MultiplierTables.h"

namespace tarnix {

// The fields the parsers leave for the logging step. They hold the last parse
// and are not cleared between QSOs: a refused parse leaves the fields it did
// not reach as they were.
struct ReceivedFields {
  bool CountyLine = false;    // CQP, PAQP, NEQP: the exchange ended in "/"
  int16_t CQPNumber = 0;      // CQP, PAQP, NEQP
  std::string CQPMult;
  int16_t SprintNumber = 0;
  std::string SprintMult, SprintName;
  int16_t SSNumber = 0;
  std::string SSPrecedence, SSCheck, SSSection;
  std::string SSShortForm;    // the two characters the log keeps for the section
  std::string NAQPMult, NAQPName;
  int16_t CWONumber = 0;
  std::string CWOName;
  int16_t TenNumber = 0;
  std::string TenMult;
  // ARRL DX from a US or Canadian station: the power the parser accepted
  // (1000 for "KW", "K" and "0").
  int16_t ARRLPower = 0;
  // WPX and CQWW: the call with a number or zone typed on its end taken off,
  // and the number or zone as text.
  std::string WPXCall, WPXNumber;
  std::string CQWWCall, CQWWZone;
};

struct ParseResult {
  bool Error = false;  // the entry is refused
  // A box to show, with the critical icon, when Title is not empty. Every
  // error has one; ARRL 10's serial out of range shows one without refusing.
  std::string Message, Title;
  // The part to select: in the exchange box, or in the call box when
  // SelectInCall is set (WPX digits typed on the end of the call).
  int SelStart = 0, SelLength = 0;
  bool SelectInCall = false;
  // ARRL DX: the exchange box's new text ("KW" becomes "1000").
  std::optional<std::string> ExchangeText;
  // Sweepstakes: a call typed between precedence and check that differs from
  // the call box; empty when there is none.
  std::string CorrectedCall;
};

inline constexpr std::string_view ExchangeErrorTitle = "Exchange Error";

// CQP, PAQP and NEQP: number (NEQP has none), then county or section; a
// trailing "/" marks a county-line QSO. CQP tests the county only for a
// station out of state.
ParseResult NumberMultParse(std::string_view exchange, const ContestState& contest, const MultiplierTables& tables,
                            ReceivedFields& fields);
// Sprint: number, name, state or province.
ParseResult SprintParse(std::string_view exchange, ReceivedFields& fields);
// Sweepstakes: number, precedence, check, section, blanks optional, with a
// corrected call allowed between precedence and check. call is the call box.
ParseResult SSParse(std::string_view exchange, std::string_view call, const MultiplierTables& tables,
                    const StartupData& data, ReceivedFields& fields);
// WPX: the serial, in the exchange or typed on the end of the call.
ParseResult WPXParse(std::string_view call, std::string_view exchange, ReceivedFields& fields);
// CQWW: the zone, in the exchange or typed on the end of the call.
ParseResult CQWWParse(std::string_view call, std::string_view exchange, ReceivedFields& fields);
// NAQP: name and multiplier.
ParseResult NAQPParse(std::string_view exchange, ReceivedFields& fields);
// ARRL DX: power from a US or Canadian station's view, state or province
// from a DX station's.
ParseResult ARRLParse(std::string_view exchange, const ContestState& contest, const MultiplierTables& tables,
                      ReceivedFields& fields);
// ARRL 10 Meter: a DX station's serial, or a state or province.
ParseResult TenParse(std::string_view exchange, const MultiplierTables& tables, ReceivedFields& fields);
// CW Open: number, then name.
ParseResult CWOParse(std::string_view exchange, ReceivedFields& fields);

// The parser of the contest on the two boxes as typed. All Asian (whose age
// test belongs to the logging step) and Generic have none and pass.
ParseResult ParseExchange(std::string_view call, std::string_view exchange, const ContestState& contest,
                          const MultiplierTables& tables, const StartupData& data, ReceivedFields& fields);

// The call a QSO is logged under after an accepted parse: WPX and CQWW
// without the number or zone typed on its end, every other contest the call
// as typed.
std::string LoggedCall(int contestIndex, const ReceivedFields& fields, const std::string& typed);

// The received number and text of the record from an accepted parse, by
// contest. NEQP leaves the number as the record held it; Generic's notes
// are stored by the logging step; the multiplier field is the scoring's but
// for SS, whose precedence, check and section's short form are joined here.
// All Asian's age is the exchange box's number.
void TakeReceivedFields(int contestIndex, bool usveStation, const ReceivedFields& fields, std::string_view exchange,
                        QsoRecord& record);

// The exchange of a logged QSO as the repeat command puts it back in the
// box: ARRL DX the power (from the US or Canada) or the state, CQWW the
// zone, NAQP the name and the multiplier (its table text, or the stored
// text of a DX station).
std::string RepeatedExchange(const ContestState& contest, const MultiplierTables& tables, const QsoRecord& last);

// What CQWW puts in the exchange box once the call is known: a blank, then
// the zone. The zone is the cty.dat override of the call's entry, else the
// US or Canadian zone by call area as two digits, else the country's zone
// field; row 0 leaves the blank alone. The operator types the zone heard in
// front of the blank; the parser then reads the first word only.
std::string CQWWZonePrefill(CountryData& countries, const ContestState& contest, std::string_view call);

}  // namespace tarnix
