#pragma once
// The station preferences, named by their keys in the settings file.
//
// The program has no table of defaults in code: a key absent from the file
// leaves its variable in the zero state (False, 0, empty). Only the repeat
// intervals are preset.

#include <cstdint>
#include <string>

namespace tarnix {

struct Settings {
  std::string YourCall;
  bool CWActivated = false;
  bool DupeSendMsgFlag = false;
  bool CWCallCorrectEnabled = false;
  int16_t RepeatIntervalCW = 1000;
  int16_t RepeatIntervalSSB = 1000;
  std::string TimeCorrection;    // hours added to the PC clock
  std::string IsGMTFlag;         // "True" when the PC clock runs on GMT
  bool SendF1Enabled = false;    // Enter on an empty call box sends F1
  bool LogandSendF5Enabled = false;
  bool LogandSendF6Enabled = false;
  std::string SCPSelection;      // "ALL", "US" or "DX"
};

}  // namespace tarnix
