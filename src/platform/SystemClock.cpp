#include "platform/SystemClock.h"

#include <chrono>
#include <ctime>

namespace tarnix {

LocalDateTime SystemLocalTime() {
  std::time_t t = std::time(nullptr);
  std::tm tm{};
  localtime_r(&t, &tm);
  return {tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday, tm.tm_hour, tm.tm_min, tm.tm_sec};
}

int64_t SystemClock::Milliseconds() const {
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

}  // namespace tarnix
