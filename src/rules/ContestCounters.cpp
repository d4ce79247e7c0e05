#include "rules/ContestCounters.h"

#include <algorithm>

namespace tarnix {

ListEntry::ListEntry(std::string_view text) : Length(static_cast<uint8_t>(std::min<std::size_t>(text.size(), 10))) {
  std::copy_n(text.begin(), Length, Bytes.begin());
}

ListPlace FindInList(const SortedList& list, std::string_view text) {
  int lo = 1, hi = list.Count;
  while (lo <= hi) {
    int mid = (lo + hi) / 2;
    std::string_view entry = list.Entries.At(mid).Text();
    if (entry == text) return {true, mid};
    if (entry < text) lo = mid + 1;
    else hi = mid - 1;
  }
  return {false, lo};
}

bool AddToList(SortedList& list, std::string_view text) {
  ListPlace at = FindInList(list, text);
  if (at.Found) return false;
  list.Entries.At(list.Count + 1);  // the bound: a full list cannot grow
  list.Entries.ShiftUp(at.Place, list.Count);
  list.Entries.At(at.Place) = ListEntry(text);
  ++list.Count;
  return true;
}

// In place: the counters are large, and a log is opened often enough.
void ResetCounters(ContestCounters& c) {
  c.CountryBandCount.Fill(0);
  c.ZoneBandCount.Fill(0);
  c.PrefixTable150.Fill(std::string());
  for (SortedList* list : {&c.WPXPrefixList, &c.CWOCallList}) {
    list->Entries.Fill(ListEntry());
    list->Count = 0;
  }
  c.CWCountryCount.fill(0);
  c.SSBCountryCount.fill(0);
  c.BandCountries.fill(0);
  c.BandZones.fill(0);
  c.BandAvgPoints.fill(0);
  c.TenCWMults = c.TenSSBMults = 0;
  c.CWQSOs = c.PhoneQSOs = c.SameContinentQSOs = 0;
}

int CountriesWorked(const std::array<int16_t, MaxCountries + 1>& countByRow) {
  return static_cast<int>(std::count_if(countByRow.begin() + 1, countByRow.end(), [](int16_t n) { return n > 0; }));
}

}  // namespace tarnix
