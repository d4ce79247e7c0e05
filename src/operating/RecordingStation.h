#pragma once
// RecordingStation: a sender and radio control that only write down what
// they are asked, one line a request ("SendMessageKey 5", "SendCW K3ZZZ",
// "SetRadioFrequency 1 band 14025"), oldest first, the last hundred.
//
// The command-line front end prints these lines, the tests read them, and
// the window runs on one until the keyers and the radios are connected.

#include <string>
#include <vector>

#include "operating/Station.h"

namespace tarnix {

class RecordingStation final : public Sender, public RadioControl {
 public:
  RecordingStation() = default;
  RecordingStation(const RecordingStation&) = delete;
  RecordingStation& operator=(const RecordingStation&) = delete;

  void SendMessageKey(int message, bool dual) override;
  void SendMessageRow(int row) override;
  void SendCW(const std::string& text) override;
  void SendCallAndExchange(const std::string& call, const SpokenPieces& pieces) override;
  void SetWinkeySpeedSource(int mode) override;
  void CloseWinkey() override {}

  void SetRadioFrequency(int radio, bool changeBand, float kHz) override;
  void SetRadioMode(int radio, int bandIndex) override;
  void ReadRadioMode(int radio) override;
  void SwapRadioFrequencies() override;
  void SendPowerCommand(int radio, const std::string& parameter) override;
  void SetF9Line(bool on) override;

  // The requests taken since the last call, oldest first.
  std::vector<std::string> TakeRequests();

  std::vector<std::string> Requests;
  Station View{*this, *this};

 private:
  void Note(std::string request);
};

}  // namespace tarnix
