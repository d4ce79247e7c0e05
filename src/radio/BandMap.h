#pragma once
// The band map of the radios: which BandIndex a frequency lies on.

#include <array>

namespace tarnix {

// The BandIndex of a typed frequency in kHz, or 0 outside every band.
// modeEnabled is the contest's ModeEnabled ([1] phone, [2] CW): a CW-only
// log takes the CW index, a phone-only log the SSB index, and a log with
// both modes the CW index up to the top of the band's CW sub-band and the
// SSB index above it. On 17m a log with both modes follows only the CW
// sub-band: above it the result is 0.
int BandFromFrequency(double kHz, const std::array<bool, 3>& modeEnabled);

}  // namespace tarnix
