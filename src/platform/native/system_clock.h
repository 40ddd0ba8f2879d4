// The computer's clock. It keeps the time and waits in plain sleep; a loop that must serve sockets
// while it waits derives from it.
#pragma once

#include "platform/clock.h"

namespace zepril {

class SystemClock : public Clock {
 public:
  LocalTime Now() const override;
  double SecondsSinceMidnight() const override;
  double MonotonicSeconds() const override;
  std::int64_t FileTimeNs() const override;
  void Wait(double seconds) override;
  void WaitPumping(double seconds) override { Wait(seconds); }
  void HandOver() override {}
  // Counts for 5 ms and scales to a second.
  std::int64_t LoopsPerSecond() override;
};

}  // namespace zepril
