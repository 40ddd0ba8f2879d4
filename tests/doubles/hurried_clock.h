// The program's time, some times faster than the world's: a wait of 1 s takes 50 ms at a factor of
// 20. For programs that are played against real devices. Timers are not driven.
#pragma once

#include "platform/clock.h"

namespace zepril {

class HurriedClock final : public Clock {
 public:
  HurriedClock(Clock& world, double factor)
      : world_(world),
        factor_(factor),
        begin_(world.MonotonicSeconds()),
        begin_of_day_(world.SecondsSinceMidnight()),
        begin_of_clock_(SecondsOf(world.Now())) {}

  LocalTime Now() const override {
    return TimeOfSeconds(begin_of_clock_ + static_cast<std::int64_t>(MonotonicSeconds()));
  }
  double SecondsSinceMidnight() const override {
    constexpr double kDay = 86400.0;
    const double seconds = begin_of_day_ + MonotonicSeconds();
    return seconds - kDay * static_cast<double>(static_cast<std::int64_t>(seconds / kDay));
  }
  double MonotonicSeconds() const override {
    return (world_.MonotonicSeconds() - begin_) * factor_;
  }

  void Wait(double seconds) override {
    Waited += seconds;
    world_.Wait(seconds / factor_);
  }
  void WaitPumping(double seconds) override {
    Waited += seconds;
    world_.WaitPumping(seconds / factor_);
  }
  void HandOver() override { world_.HandOver(); }
  std::int64_t LoopsPerSecond() override { return world_.LoopsPerSecond(); }

  // All that the program has asked to wait, in its own seconds. Unlike the time gone by it does not
  // depend on what else the computer does.
  double Waited = 0.0;

 private:
  Clock& world_;
  double factor_;
  double begin_;
  double begin_of_day_;
  std::int64_t begin_of_clock_;
};

}  // namespace zepril
