#pragma once
// Band rows and the combined band-and-mode number BandIndex.
//
// A QSO carries one BandIndex from 1 to 24 that says band and mode at once:
// 1..8 CW on rows 1..8, 9..20 SSB on rows 1..12, 21..24 CW on rows 9..12.
// So "is CW" is 1..8 or 21..24, never BandIndex < 9 alone.

#include <cstdint>
#include <string>

namespace tarnix {

inline constexpr int BandRowCount = 12;    // 10m .. 30m and one blank row
inline constexpr int BandIndexCount = 24;

// Three-character band text of a row 1..12 ("10m", "160", "6m ", "   ").
const std::string& BandName(int row);
// Three-character band text used in output files ("10 ", "160", "6m ").
const std::string& BandShort(int row);

// The band row of a BandIndex 1..24.
int BandRow(int bandIndex);
bool IsCWBand(int bandIndex);
// BandIndex of a band row 1..11 on CW and on SSB.
int BandIndexCW(int row);
int BandIndexSSB(int row);

}  // namespace tarnix
