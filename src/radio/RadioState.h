#pragma once
// What the entry form knows of the two radios: which is active, the band of
// each, whether each is being polled, and the last frequency of each radio on
// each BandIndex.

#include <array>
#include <cstdint>

#include "core/Bands.h"

namespace tarnix {

struct RadioState {
  int16_t ActiveRadio = 1;
  int16_t RadioBand1 = 0;
  int16_t RadioBand2 = 0;
  // RadioRunning[1], [2]: polling of that radio is running.
  std::array<bool, 3> RadioRunning{};
  // LastFreqByBand[radio][BandIndex], in kHz.
  std::array<std::array<float, BandIndexCount + 1>, 3> LastFreqByBand{};
};

}  // namespace tarnix
