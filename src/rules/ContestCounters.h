#pragma once
// Per-contest counters and worked arrays that the scoring rules keep beside
// the log store (rules/Scoring.h). Reset with the log; rebuilt by replay when
// a log is opened, so that they always equal what logging the QSOs one by one
// gave.
//
// Every array has the fixed bound the rules give it; an access outside it is
// a program fault and throws std::out_of_range ("Subscript out of range"),
// which the logging step reports like the log's own bounds.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/Bands.h"
#include "core/LogStore.h"

namespace tarnix {

inline constexpr int MaxCountries = 350;
inline constexpr int MaxZones = 40;
// All Asian: prefixes kept per band; the 151st of a band is not stored.
inline constexpr int PrefixRowsPerBand = 150;
// WPX prefixes and CW Open calls: at most one new entry per QSO.
inline constexpr int MaxListEntries = MaxQsos;

// A table of Rows by BandIndex 1..24, rows and bands from 1.
template <typename T, int Rows>
class BandGrid {
 public:
  T& At(int row, int band) { return Cells[Slot(row, band)]; }
  const T& At(int row, int band) const { return Cells[Slot(row, band)]; }
  void Fill(const T& value) { Cells.fill(value); }

 private:
  static std::size_t Slot(int row, int band) {
    if (row < 1 || row > Rows || band < 1 || band > BandIndexCount) ThrowSubscript();
    return static_cast<std::size_t>((row - 1) * BandIndexCount + (band - 1));
  }
  std::array<T, static_cast<std::size_t>(Rows * BandIndexCount)> Cells{};
};

// A text of at most ten characters, kept as plain bytes so that an insert
// shifts a list with one memory move.
struct ListEntry {
  uint8_t Length = 0;
  std::array<char, 10> Bytes{};

  ListEntry() = default;
  // Texts are calls and prefixes, ten characters at most; more are cut.
  explicit ListEntry(std::string_view text);
  std::string_view Text() const { return {Bytes.data(), Length}; }
};

// A sorted list of short texts, entries 1..Count, searched by bisection.
struct SortedList {
  FixedTable<ListEntry, 1, MaxListEntries> Entries;
  int16_t Count = 0;
};

// The place of text in list: found tells whether it is there; otherwise place
// is where it belongs.
struct ListPlace {
  bool Found = false;
  int Place = 1;
};
ListPlace FindInList(const SortedList& list, std::string_view text);

// Adds text unless it is there; true when it was added. Adding beyond
// MaxListEntries is a bound fault.
bool AddToList(SortedList& list, std::string_view text);

struct ContestCounters {
  // QSOs per country row and BandIndex (ARRL DX from the US or Canada, CQWW,
  // ARRL 10, Generic); 0 means not yet worked there.
  BandGrid<int16_t, MaxCountries> CountryBandCount;
  // CQWW: QSOs per zone and BandIndex.
  BandGrid<int16_t, MaxZones> ZoneBandCount;
  // All Asian: the prefixes of each band, rows from 1; an empty text ends a
  // band's list.
  BandGrid<std::string, PrefixRowsPerBand> PrefixTable150;
  // WPX: the prefixes worked, in any mode (WPXPrefixCount is its Count).
  SortedList WPXPrefixList;
  // CW Open: the distinct calls (CWOCallCount is its Count).
  SortedList CWOCallList;
  // Generic: QSOs per country row, by mode.
  std::array<int16_t, MaxCountries + 1> CWCountryCount{};
  std::array<int16_t, MaxCountries + 1> SSBCountryCount{};
  // Per BandIndex 1..24 (element 0 unused): CQWW and Generic countries, CQWW
  // zones, and the average points of a QSO where the contest keeps it.
  std::array<int16_t, BandIndexCount + 1> BandCountries{};
  std::array<int16_t, BandIndexCount + 1> BandZones{};
  std::array<float, BandIndexCount + 1> BandAvgPoints{};
  // ARRL 10: states and provinces by mode.
  int16_t TenCWMults = 0;
  int16_t TenSSBMults = 0;
  // QSOs by mode, as the points tell it (CQP, PAQP, ARRL 10, NEQP, Generic).
  int16_t CWQSOs = 0;
  int16_t PhoneQSOs = 0;
  // WPX: QSOs within the station's own continent, or its own country from
  // the US or Canada.
  int16_t SameContinentQSOs = 0;
};

void ResetCounters(ContestCounters& counters);

// Rows with at least one QSO.
int CountriesWorked(const std::array<int16_t, MaxCountries + 1>& countByRow);

}  // namespace tarnix
