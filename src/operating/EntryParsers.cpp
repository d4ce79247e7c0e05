// The entry form's side of the exchange parsers (rules/Parsers.h): the
// parser's box and selection, the call it corrects or takes apart, the
// received fields in the record, and the CQWW zone put in the exchange box.

#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

// Step 6 of the logging: runs the contest's parser on the two boxes. A
// refusal sets ExchangeError with the selection for the exchange box, or,
// when the selection is in the call box, selects it there itself and sets
// ParserReopenedBox. On success ParsedCall is the call the QSO is logged
// under: WPX and CQWW without the number or zone typed on its end, SS the
// corrected call.
void LogForm::RunExchangeParser() {
  ExchangeError = false;
  ErrorSelStart = ErrorSelLength = 0;
  const ContestState& contest = Ctx.Contest;
  const int c = contest.ContestIndex;
  TextBox& callBox = InData[CallBox];
  TextBox& exchangeBox = InData[ExchangeBox];

  ParseResult r = ParseExchange(callBox.Text, exchangeBox.Text, contest, Ctx.Tables, Ctx.Data, Received);
  if (c == Cqp || c == Paqp || c == Neqp) CountyLine = Received.CountyLine;
  if (!r.Title.empty()) Tell(r.Message, r.Title, MsgIcon::Critical);

  if (r.Error && r.SelectInCall) {
    callBox.SelStart = r.SelStart;
    callBox.SelLength = r.SelLength;
    SetFocus(CallBox);
    ParserReopenedBox = true;
    return;
  }
  if (r.Error) {
    ExchangeError = true;
    ErrorSelStart = r.SelStart;
    ErrorSelLength = r.SelLength;
    return;
  }
  if (!r.Title.empty()) {
    // ARRL 10's serial out of range: shown and selected, and logged anyway.
    exchangeBox.SelStart = r.SelStart;
    exchangeBox.SelLength = r.SelLength;
    SetFocus(ExchangeBox);
  }

  if (r.ExchangeText) exchangeBox.Text = *r.ExchangeText;
  if (c == Wpx) ParsedCall = Received.WPXCall;
  if (c == Cqww) ParsedCall = Received.CQWWCall;
  if (!r.CorrectedCall.empty()) {
    callBox.Text = r.CorrectedCall;
    ParsedCall = r.CorrectedCall;
    DupeCheck(ParsedCall);
    if (IsDupe) {
      callBox.ForeColor = ColourRed;
      ShowDupe();
    }
  }
}

// Step 12: the received number and text of the record, by contest. NEQP
// leaves the number as the record held it; Generic's text is stored with
// the record (StoreEntry); the multiplier field is the scoring's but for SS,
// whose precedence, check and section's short form are joined here.
void LogForm::TakeReceivedFields() {
  QsoRecord& r = EntryRecord;
  const ReceivedFields& f = Received;
  auto number = [](double value) { return static_cast<int16_t>(RoundEven(value)); };
  switch (Ctx.Contest.ContestIndex) {
    case ArrlDx:
      r.QRcvNumber = Ctx.Contest.IsUSVEStation ? f.ARRLPower : 0;
      break;
    case Cqp:
    case Paqp:
      r.QRcvNumber = f.CQPNumber;
      break;
    case Cqww:
      r.QRcvNumber = number(Val(f.CQWWZone));
      break;
    case Sprint:
      r.QRcvNumber = f.SprintNumber;
      r.QRcvText.Set(f.SprintName);
      break;
    case Sweepstakes:
      r.QRcvNumber = f.SSNumber;
      r.QMult.Set(f.SSPrecedence + f.SSCheck + f.SSShortForm);
      break;
    case Wpx:
      r.QRcvNumber = number(Val(f.WPXNumber));
      break;
    case AllAsian:
      r.QRcvNumber = number(Val(InData[ExchangeBox].Text));
      break;
    case Naqp:
      r.QRcvNumber = 0;
      r.QRcvText.Set(f.NAQPName);
      break;
    case Ten:
      r.QRcvNumber = f.TenNumber;
      break;
    case CwOpen:
      r.QRcvNumber = f.CWONumber;
      r.QRcvText.Set(f.CWOName);
      break;
    case Generic:
      r.QRcvNumber = 0;
      break;
    default:  // NEQP
      break;
  }
}

// CQWW: the exchange box gets a blank and the zone of the call, with the
// caret in front, so that a zone typed in front of the blank wins. The other
// contests are filled from InstaMatch.
void LogForm::PrefillExchange() {
  if (Ctx.Contest.ContestIndex != Cqww) return;
  TextBox& exchange = InData[ExchangeBox];
  exchange.Text = CQWWZonePrefill(Ctx.Countries, Ctx.Contest, UCase(Trim(InData[CallBox].Text)));
  exchange.SelStart = 0;
  exchange.SelLength = 0;
}

}  // namespace tarnix
