// The entry form's calls into subsystems that are still to be written.
//
// Each hook is the one place its subsystem will be called from; until then it
// does nothing, so a QSO passes through with the fields those rules would set
// left as they stand. Each comment says what the hook is for.

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "rules/Countries.h"

namespace tarnix {

// WPX prefix of the call into CurrentPrefix (WPX, CQWW, All Asian); WPX
// will also update its prefix lists here.
void LogForm::TakePrefix() { CurrentPrefix = GetWPXPrefix(RemoveChars(ParsedCall, ".?")); }
// Splits the time since the previous QSO over bands and modes.
void LogForm::SplitQSOTime(int) {}

// Views: multiplier windows, statistics, the log viewer, the partial window.
void LogForm::RedrawMultipliers() {}
void LogForm::UpdateStats() {}
void LogForm::ShowNewMult() {}
void LogForm::UpdateLogDisplay() {}
void LogForm::ClearPartialWindow() {}
void LogForm::CloseViewWindows() {}
void LogForm::CloseMessageWindows() {}
void LogForm::ClearCallAssist() {}

// The InstaMatch lookup of the exchange box's focus step.
void LogForm::LookUpInstaMatch() {}

// The multiplier tables of the contest, loaded from the data file with their
// worked marks reset, as a log is opened.
void LogForm::ResetMultiplierTables() {
  LoadMultiplierTables(Ctx.Data, Ctx.Contest.ContestIndex, Ctx.Contest.InState, Ctx.Tables);
}
// The WPX prefix of a call, for the conversion of old WPX logs.
std::string LogForm::WpxPrefixOf(const std::string& call) { return GetWPXPrefix(call); }

// The QSO editor on QSO n: returns true when the QSO was changed.
bool LogForm::EditQso(int) { return false; }

}  // namespace tarnix
