#pragma once
// RadioControl: what the entry form asks of the two radios.
//
// Radio 1 and 2 are the roles of Radio(1..2) in the settings; each is one
// family's byte protocol on its serial port. A command goes out and returns
// at once: answers come back in the port's receive event and update
// RadioState, never a caller that waits. A radio that is not running takes
// no command; the callers test RadioRunning first where that matters.

#include <string>

namespace tarnix {

class RadioControl {
 public:
  virtual ~RadioControl() = default;

  // Tunes a radio to kHz; with changeBand the band of the frequency becomes
  // the log's.
  virtual void SetRadioFrequency(int radio, bool changeBand, float kHz) = 0;
  // Sets a radio's mode to that of a BandIndex (CW or SSB).
  virtual void SetRadioMode(int radio, int bandIndex) = 0;
  // Asks a radio for its mode (the STO memory keeps it).
  virtual void ReadRadioMode(int radio) = 0;
  // Ctrl-F9: the two radios exchange frequency and mode.
  virtual void SwapRadioFrequencies() = 0;
  // The power command of a radio, with its parameter text.
  virtual void SendPowerCommand(int radio, const std::string& parameter) = 0;
  // The F9 line, which switches the station's audio and keying to radio 2.
  virtual void SetF9Line(bool on) = 0;
};

}  // namespace tarnix
