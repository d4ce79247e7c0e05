// The entry form's side of the exchange parsers (rules/Parsers.h): the
// parser's box and selection, the call it corrects or takes apart, and the
// CQWW zone put in the exchange box.

#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

// Step 6 of the logging: runs the contest's parser on the two boxes, typed
// being the call box as typed. Returns the call the QSO is logged under, or
// nothing when the entry is refused: the part to correct is then selected,
// in the exchange box (which gets the focus without its focus steps) or in
// the call box.
std::optional<std::string> LogForm::RunExchangeParser(const std::string& typed) {
  if (Traits().AgeExchange) return CheckAge() ? std::optional(typed) : std::nullopt;
  TextBox& callBox = InData[CallBox];
  TextBox& exchangeBox = InData[ExchangeBox];

  ParseResult r = ParseExchange(callBox.Text, exchangeBox.Text, Ctx.Contest, Ctx.Tables, Ctx.Data, Received);
  if (!r.Title.empty()) Tell(r.Message, r.Title, MsgIcon::Critical);
  TextBox& selected = r.SelectInCall ? callBox : exchangeBox;
  if (r.Error || !r.Title.empty()) {
    // ARRL 10's serial out of range is shown and selected, and logged anyway.
    selected.SelStart = r.SelStart;
    selected.SelLength = r.SelLength;
    MoveFocus(r.SelectInCall ? CallBox : ExchangeBox, !r.Error);
  }
  if (r.Error) return std::nullopt;

  if (r.ExchangeText) exchangeBox.Text = *r.ExchangeText;
  if (r.CorrectedCall.empty()) return LoggedCall(Ctx.Contest.ContestIndex, Received, typed);
  callBox.Text = r.CorrectedCall;
  if (DupeCheck(r.CorrectedCall).IsDupe) {
    callBox.ForeColor = ColourRed;
    ShowDupe();
  }
  return r.CorrectedCall;
}

// CQWW: the exchange box gets a blank and the zone of the call, with the
// caret in front, so that a zone typed in front of the blank wins. The other
// contests are filled from InstaMatch.
void LogForm::PrefillExchange() {
  if (!Traits().ZoneFromCall) return;
  TextBox& exchange = InData[ExchangeBox];
  exchange.Text = CQWWZonePrefill(Ctx.Countries, Ctx.Contest, UCase(Trim(InData[CallBox].Text)));
  exchange.SelStart = 0;
  exchange.SelLength = 0;
}

}  // namespace tarnix
