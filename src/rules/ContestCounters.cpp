#include "rules/ContestCounters.h"

#include <algorithm>

namespace tarnix {

void ResetCounters(ContestCounters& counters) { counters = ContestCounters{}; }

int CountriesWorked(const std::array<int16_t, MaxCountries + 1>& countByRow) {
  return static_cast<int>(std::count_if(countByRow.begin() + 1, countByRow.end(), [](int16_t n) { return n > 0; }));
}

}  // namespace tarnix
