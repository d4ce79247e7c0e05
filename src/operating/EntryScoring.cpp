// The entry form's side of the scoring rules (rules/Scoring.h): the points
// and multiplier steps of a QSO being logged or replayed, the tally of its
// points, the CW Open's list of calls, and the labels that tell what a call
// or exchange is worth before it is logged.

#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

ScoringState LogForm::Scoring() {
  return {Ctx.Contest, Ctx.Data, Ctx.Countries, Ctx.Tables, Ctx.Counters, Ctx.Log};
}

// Step 12 after QPoints of a dupe and QNumber: the points of a QSO that is
// not a dupe, then the multiplier step, which runs for a dupe as well.
void LogForm::ScoreEntry() {
  ScoringState s = Scoring();
  if (!IsDupe) ScorePoints(s, EntryRecord, CurrentPrefix, CountyLine);
  MultOutcome outcome = ScoreMultiplier(s, EntryRecord, Received, CurrentPrefix, InData[ExchangeBox].Text);
  NewMult = outcome.NewMult;
  NewMultRow = outcome.NewMultRow;
}

void LogForm::ScoreReplayed(int n) {
  ScoringState s = Scoring();
  MultOutcome outcome = ReplayQso(s, LoggedRecord(Ctx.Log, n));
  NewMult = outcome.NewMult;
  NewMultRow = outcome.NewMultRow;
}

void LogForm::CountContestPoints(const QsoRecord& qso) {
  ScoringState s = Scoring();
  TallyPoints(s, qso);
}

// CW Open: the distinct calls, whose count is the multiplier count.
void LogForm::AddWorkedCall(const std::string& call) { AddToList(Ctx.Counters.CWOCallList, call); }

void LogForm::ShowNeededOn() {
  std::optional<std::string> caption = NeededOnText(Scoring(), InData[ExchangeBox].Text);
  LabelNeededOn.Visible = caption.has_value();
  LabelNeededOn.Caption = caption.value_or("");
}

void LogForm::ShowWorkedOrNeeded() {
  ScoringState s = Scoring();
  WorkedLabels labels = WorkedOrNeeded(s, InData[CallBox].Text);
  NeedPfxLabel.Visible = labels.Shown;
  NeedPfxLabel.Caption = labels.Text;
  // Red and blue are colours 12 and 9 of the 16-colour table.
  NeedPfxLabel.ForeColor = labels.Needed ? ColourRed : ColourBlue;
  LblWpxCountry.Visible = labels.CountryShown;
  LblWpxCountry.Caption = labels.Country;
}

}  // namespace tarnix
