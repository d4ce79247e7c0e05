#include <gtest/gtest.h>

#include "radio/BandMap.h"

namespace tarnix {
namespace {

TEST(BandFromFrequency, BandEdgesAndTheCWSubBandByTheLogsModes) {
  constexpr std::array<bool, 3> Cw{false, false, true}, Phone{false, true, false}, Both{false, true, true};
  struct Row { double kHz; int cw, phone, both; };
  const Row rows[] = {
      {1799.9, 0, 0, 0},    {1800, 6, 14, 6},      {1849.999, 6, 14, 6},   {1850, 6, 14, 14},
      {2000, 6, 14, 14},    {2000.1, 0, 0, 0},     {3749.999, 5, 13, 5},   {3750, 5, 13, 13},
      {7049.999, 4, 12, 4}, {7050, 4, 12, 12},     {7300.5, 0, 0, 0},      {10125, 23, 23, 23},
      {10150, 23, 23, 23},  {14099.999, 3, 11, 3}, {14100, 3, 11, 11},     {18109.998, 22, 18, 22},
      {18110, 22, 18, 0},   {18168, 22, 18, 0},    {21099.998, 2, 10, 2},  {21099.999, 2, 10, 10},
      {24922.998, 21, 17, 21}, {24923, 21, 17, 17}, {28099.998, 1, 9, 1}, {28100, 1, 9, 9},
      {29700, 1, 9, 9},     {50500, 7, 15, 7},     {50500.1, 7, 15, 15},  {144500, 8, 16, 8},
      {147999, 8, 16, 16},  {148000, 8, 16, 16},   {5000, 0, 0, 0},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(BandFromFrequency(row.kHz, Cw), row.cw) << row.kHz;
    EXPECT_EQ(BandFromFrequency(row.kHz, Phone), row.phone) << row.kHz;
    EXPECT_EQ(BandFromFrequency(row.kHz, Both), row.both) << row.kHz;
  }
}

}  // namespace
}  // namespace tarnix
