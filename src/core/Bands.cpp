#include "core/Bands.h"

#include <array>
#include <stdexcept>

namespace tarnix {
namespace {

const std::array<std::string, BandRowCount + 1> kBandName = {
    "", "10m", "15m", "20m", "40m", "80m", "160", "6m ", "2m ", "12m", "17m", "30m", "   "};
const std::array<std::string, BandRowCount + 1> kBandShort = {
    "", "10 ", "15 ", "20 ", "40 ", "80 ", "160", "6m ", "2m ", "12 ", "17 ", "30 ", "   "};

}  // namespace

const std::string& BandName(int row) { return kBandName.at(static_cast<std::size_t>(row)); }
const std::string& BandShort(int row) { return kBandShort.at(static_cast<std::size_t>(row)); }

int BandRow(int bandIndex) {
  if (bandIndex >= 1 && bandIndex <= 8) return bandIndex;
  if (bandIndex >= 9 && bandIndex <= 20) return bandIndex - 8;
  if (bandIndex >= 21 && bandIndex <= 24) return bandIndex - 12;
  throw std::out_of_range("Subscript out of range");
}

bool IsCWBand(int bandIndex) {
  return (bandIndex >= 1 && bandIndex <= 8) || (bandIndex >= 21 && bandIndex <= 24);
}

int BandIndexCW(int row) { return row <= 8 ? row : row + 12; }
int BandIndexSSB(int row) { return row + 8; }

}  // namespace tarnix
