// Calls from the entry form into the views and the call assistance that are
// still to be written.
//
// Each is the one place its subsystem will be called from, in the order the
// logging calls it; until then it does nothing. Each comment says what it
// is for.

#include "operating/LogForm.h"

namespace tarnix {

// Splits the time since the previous QSO over bands and modes.
void LogForm::SplitQSOTime(int) {}

// Views: multiplier windows, statistics, the log viewer, the partial window.
void LogForm::RedrawMultipliers() {}
void LogForm::UpdateStats() {}
void LogForm::ShowNewMult(const MultOutcome&) {}
void LogForm::UpdateLogDisplay() {}
void LogForm::ClearPartialWindow() {}
void LogForm::CloseViewWindows() {}
void LogForm::CloseMessageWindows() {}
void LogForm::ClearCallAssist() {}

// The InstaMatch lookup of the exchange box's focus step.
void LogForm::LookUpInstaMatch() {}

// The QSO editor on QSO n: returns true when the QSO was changed.
bool LogForm::EditQso(int) { return false; }

}  // namespace tarnix
