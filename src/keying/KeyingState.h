#pragma once
// What the keyboard and the CW sender share: the speed, the Winkeyer's state
// and speed source, and the switches the text commands and Ctrl-R toggle.
//
// The sender (keying/Sender.h) reads these as it runs; the flags of a send in
// progress are the sender's own.

#include <cstdint>

namespace tarnix {

// The built-in keyer's speed range, in WPM.
inline constexpr int CWSpeedLowest = 18;
inline constexpr int CWSpeedHighest = 50;

struct KeyingState {
  int16_t CWSpeed = 28;           // WPM; 28 for every log opened afresh
  bool WinkeyOpen = false;        // the external keyer is open
  bool WinkeyOpening = false;     // its open sequence holds the port
  int16_t WinkeySpeedMode = 1;    // 1 PC speed, 2 the keyer's speed pot, 3 both
  bool ShowTiming = false;        // the timing display of TMSHOW
  bool ClearRITEnabled = false;   // Ctrl-R: a TU after a sent call also clears the RIT
};

// The speed after a change of delta WPM within lower..upper: a step that
// reaches or passes a limit stops on it.
inline int16_t LimitedCWSpeed(int speed, int delta, int lower, int upper) {
  if (delta > 0 && speed + delta >= upper) return static_cast<int16_t>(upper);
  if (delta <= 0 && speed + delta <= lower) return static_cast<int16_t>(lower);
  return static_cast<int16_t>(speed + delta);
}

}  // namespace tarnix
