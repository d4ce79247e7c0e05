#include "radio/BandMap.h"

namespace tarnix {
namespace {

struct BandLimits {
  double Lower, Upper;
  int CWIndex, SSBIndex;
  double TopOfCW;  // the highest CW frequency; the band's top where all of it is CW
};

// In the order the frequency is compared.
constexpr std::array<BandLimits, 11> kBands = {{
    {1800, 2000, 6, 14, 1849.999},
    {3500, 4000, 5, 13, 3749.999},
    {7000, 7300, 4, 12, 7049.999},
    {10100, 10150, 23, 23, 10150},
    {14000, 14350, 3, 11, 14099.999},
    {18068, 18168, 22, 18, 18109.998},
    {21000, 21450, 2, 10, 21099.998},
    {24890, 24990, 21, 17, 24922.998},
    {28000, 29700, 1, 9, 28099.998},
    {50000, 54000, 7, 15, 50500},
    {144000, 148000, 8, 16, 144500},
}};

}  // namespace

int BandFromFrequency(double kHz, const std::array<bool, 3>& modeEnabled) {
  bool phone = modeEnabled[1], cw = modeEnabled[2];
  for (const BandLimits& band : kBands) {
    if (kHz < band.Lower || kHz > band.Upper) continue;
    if (cw && !phone) return band.CWIndex;
    if (phone && !cw) return band.SSBIndex;
    if (kHz <= band.TopOfCW) return band.CWIndex;
    return band.CWIndex == 22 ? 0 : band.SSBIndex;
  }
  return 0;
}

}  // namespace tarnix
