#include "operating/RecordingStation.h"

#include <cstdio>

#include "config/Settings.h"
#include "core/Bands.h"

namespace tarnix {

// The list keeps the last hundred, so that a long contest does not grow it
// forever.
void RecordingStation::Note(std::string request) {
  if (Requests.size() >= 100) Requests.erase(Requests.begin());
  Requests.push_back(std::move(request));
}

std::vector<std::string> RecordingStation::TakeRequests() {
  std::vector<std::string> taken;
  taken.swap(Requests);
  return taken;
}

void RecordingStation::SendMessageKey(int message, bool dual) {
  Note("SendMessageKey " + std::to_string(message) + (dual ? " dual" : ""));
}

void RecordingStation::SendMessageRow(int row) { Note("SendMessageRow " + std::to_string(row)); }

void RecordingStation::SendCW(const std::string& text) { Note("SendCW " + text); }

void RecordingStation::SendCallAndExchange(const std::string& call, const SpokenPieces& pieces) {
  std::string line = "SendCallAndExchange " + call;
  if (pieces.Call) line += " Call";
  if (pieces.Exchange) line += " Exchange";
  if (pieces.Greeting) line += " Greeting";
  if (pieces.Thanks) line += " Thanks";
  Note(line + " (" + DvkCallExchModeName(pieces.Mode) + ")");
}

void RecordingStation::SetWinkeySpeedSource(int mode) { Note("SetWinkeySpeedSource " + std::to_string(mode)); }

void RecordingStation::SetRadioFrequency(int radio, bool changeBand, float kHz) {
  char text[64];
  std::snprintf(text, sizeof text, "SetRadioFrequency %d %s%g", radio, changeBand ? "band " : "",
                static_cast<double>(kHz));
  Note(text);
}

void RecordingStation::SetRadioMode(int radio, int bandIndex) {
  Note("SetRadioMode " + std::to_string(radio) + (IsCWBand(bandIndex) ? " CW" : " SSB"));
}

void RecordingStation::ReadRadioMode(int radio) { Note("ReadRadioMode " + std::to_string(radio)); }

void RecordingStation::SwapRadioFrequencies() { Note("SwapRadioFrequencies"); }

void RecordingStation::SendPowerCommand(int radio, const std::string& parameter) {
  Note("SendPowerCommand " + std::to_string(radio) + " " + parameter);
}

void RecordingStation::SetF9Line(bool on) { Note(on ? "SetF9Line on" : "SetF9Line off"); }

}  // namespace tarnix
