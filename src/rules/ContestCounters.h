#pragma once
// Per-contest counters that the scoring rules keep beside the log store.
// Reset with the log; rebuilt by replay when a log is opened.

#include <array>
#include <cstdint>

namespace tarnix {

inline constexpr int MaxCountries = 350;

struct ContestCounters {
  // Generic: QSOs per country row, by mode.
  std::array<int16_t, MaxCountries + 1> CWCountryCount{};
  std::array<int16_t, MaxCountries + 1> SSBCountryCount{};
};

void ResetCounters(ContestCounters& counters);

// Rows with at least one QSO.
int CountriesWorked(const std::array<int16_t, MaxCountries + 1>& countByRow);

}  // namespace tarnix
