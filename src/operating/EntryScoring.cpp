// The entry form's side of the scoring rules (rules/Scoring.h): the points
// and multiplier steps of a QSO being logged, and the labels that tell what
// a call or exchange is worth before it is logged.

#include "core/Text.h"
#include "operating/LogForm.h"

namespace tarnix {

ScoringState LogForm::Scoring() {
  return {Ctx.Contest, Ctx.Data, Ctx.Countries, Ctx.Tables, Ctx.Counters, Ctx.Log};
}

// Step 12 after QPoints of a dupe and QNumber: the points of a QSO that is
// not a dupe, then the multiplier step, which runs for a dupe as well.
MultOutcome LogForm::ScoreEntry(bool dupe, const std::string& prefix) {
  ScoringState s = Scoring();
  if (!dupe) ScorePoints(s, EntryRecord, prefix, Received.CountyLine);
  return ScoreMultiplier(s, EntryRecord, Received, prefix, InData[ExchangeBox].Text);
}

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
