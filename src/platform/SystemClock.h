#pragma once
// The computer's own clock, through the standard library.

#include "platform/Platform.h"

namespace tarnix {

// The local date and time now.
LocalDateTime SystemLocalTime();

class SystemClock : public Clock {
 public:
  LocalDateTime Now() const override { return SystemLocalTime(); }
  int64_t Milliseconds() const override;
};

}  // namespace tarnix
