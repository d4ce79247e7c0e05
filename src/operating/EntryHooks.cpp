// The entry form's calls into subsystems that are still to be written.
//
// Each hook is the one place its subsystem will be called from; until then it
// does nothing, so a QSO passes through with the fields those rules would set
// left as they stand. Each comment says what the hook is for.

#include <cstdio>

#include "core/Bands.h"
#include "core/Text.h"
#include "operating/LogForm.h"
#include "rules/Countries.h"

namespace tarnix {

// The senders and the radios: each hook notes its request in Requests, which
// is all that happens until CW, voice and rig control are written. The list
// keeps the last hundred, so that a long contest does not grow it forever.
void LogForm::NoteRequest(std::string request) {
  if (Requests.size() >= 100) Requests.erase(Requests.begin());
  Requests.push_back(std::move(request));
}

// Sends stored message 1..9 (F1..F7, F11, F12) by CW or voice; dual for the
// dual CQ.
void LogForm::SendMessageKey(int message, bool dual) {
  NoteRequest("SendMessageKey " + std::to_string(message) + (dual ? " dual" : ""));
}
// Sends row 1..12 of the CW message table by itself (10 and 11: the
// exchange messages of Insert; 12: the message for a dupe).
void LogForm::SendMessageRow(int row) { NoteRequest("SendMessageRow " + std::to_string(row)); }
// Sends a text as CW at once (F8, the keyboard CW box).
void LogForm::SendCW(const std::string& text) { NoteRequest("SendCW " + text); }
// Insert on phone: the call and the exchange spoken from recorded pieces, by
// the four boxes beside the speed label and DVKCallExchMode.
void LogForm::SendCallAndExchange(const std::string& call) {
  std::string parts;
  for (const CheckBox* box : {&CheckCall, &CheckExchange, &CheckGreeting, &CheckThanks})
    if (box->Value) parts += " " + box->Caption;
  NoteRequest("SendCallAndExchange " + call + parts + " (" + DVKSpeedLabel.Caption + ")");
}
// Tunes a radio; with changeBand the band of the frequency becomes the log's.
void LogForm::SetRadioFrequency(int radio, bool changeBand, float kHz) {
  char text[64];
  std::snprintf(text, sizeof text, "SetRadioFrequency %d %s%g", radio, changeBand ? "band " : "",
                static_cast<double>(kHz));
  NoteRequest(text);
}
// Sets a radio's mode to that of a BandIndex.
void LogForm::SetRadioMode(int radio, int bandIndex) {
  NoteRequest("SetRadioMode " + std::to_string(radio) + (IsCWBand(bandIndex) ? " CW" : " SSB"));
}
// Asks a radio for its mode, for the STO memory.
void LogForm::ReadRadioMode(int radio) { NoteRequest("ReadRadioMode " + std::to_string(radio)); }
// Ctrl-F9: the two radios exchange frequency and mode.
void LogForm::SwapRadioFrequencies() { NoteRequest("SwapRadioFrequencies"); }
// The power command of the active radio.
void LogForm::SendPowerCommand(const std::string& parameter) {
  NoteRequest("SendPowerCommand " + std::to_string(Ctx.Radio.ActiveRadio) + " " + parameter);
}
// The F9 line, which switches the station's audio and keying to Radio 2.
void LogForm::SetF9Line(bool on) { NoteRequest(on ? "SetF9Line on" : "SetF9Line off"); }
// The Winkeyer is told its speed source (PC, pot or both).
void LogForm::SetWinkeySpeedSource() {
  lblCWWK.Visible = lblSpeedWK.Visible = true;
  ColourSpeedLabels();
  NoteRequest("SetWinkeySpeedSource " + std::to_string(Ctx.Keying.WinkeySpeedMode));
}

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

// Closes the Winkeyer port at exit.
void LogForm::CloseWinkey() {}

}  // namespace tarnix
