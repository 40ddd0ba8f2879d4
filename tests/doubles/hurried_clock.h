// The program's time, some times faster than the world's: a wait of 1 s takes 50 ms at a factor of
// 20. For programs that are played against real devices.
//
// Its timers fire between waits, in the order in which they fall due, as on the virtual clock: each
// at its second of the program's time or, on a computer that is busy, as soon as that is past.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "core/timer.h"
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
  std::int64_t FileTimeNs() const override { return world_.FileTimeNs(); }

  void Wait(double seconds) override {
    Waited += seconds;
    // The shortest waits are too short for the world's clock to end in time.
    const double end = MonotonicSeconds() + seconds;
    do {
      world_.Wait(std::max(end - MonotonicSeconds(), 0.0) / factor_);
    } while (MonotonicSeconds() < end);
  }
  // Pumped timers fire in here too.
  void WaitPumping(double seconds) override {
    Waited += seconds;
    ServeUntil(MonotonicSeconds() + seconds, true);
  }
  void HandOver() override { world_.HandOver(); }
  std::int64_t LoopsPerSecond() override { return world_.LoopsPerSecond(); }

  // A timer of the program; `pumped` ones also fire while control is handed over inside a routine.
  void Drive(const DrivenTimer& timer) {
    driven_.push_back(
        std::make_unique<Driven>(Driven{timer.Subject, timer.Pumped, MonotonicSeconds()}));
    Driven& driven = *driven_.back();
    timer.Subject->Changed = [this, &driven] { driven.Since = MonotonicSeconds(); };
  }
  void ForgetTimers() {
    for (const auto& driven : driven_)
      driven->Subject->Changed = nullptr;
    driven_.clear();
  }
  // Lets the program run: whatever falls due within these seconds of its time has fired afterwards.
  void Run(double seconds) { ServeUntil(MonotonicSeconds() + seconds, false); }

  // All that the program has asked to wait, in its own seconds. Unlike the time gone by it does not
  // depend on what else the computer does.
  double Waited = 0.0;

 private:
  struct Driven {
    Timer* Subject;
    bool Pumped;
    double Since;
    double Due() const { return Since + Subject->NextMs() / 1000.0; }
  };

  Driven* NextTimer(bool pumped_only) {
    Driven* next = nullptr;
    for (const auto& timer : driven_) {
      if (!timer->Subject->Enabled() || (pumped_only && !timer->Pumped)) continue;
      if (next == nullptr || timer->Due() < next->Due()) next = timer.get();
    }
    return next;
  }

  void ServeUntil(double end, bool pumping) {
    for (;;) {
      Driven* next = NextTimer(pumping);
      const double until = next != nullptr ? std::min(end, next->Due()) : end;
      const double left = until - MonotonicSeconds();
      if (left > 0.0) {
        pumping ? world_.WaitPumping(left / factor_) : world_.Wait(left / factor_);
      } else if (next != nullptr && next->Due() <= end) {
        next->Since = MonotonicSeconds();
        next->Subject->Fired();
        if (next->Subject->Elapsed) next->Subject->Elapsed();
      } else {
        return;
      }
    }
  }

  Clock& world_;
  double factor_;
  double begin_;
  double begin_of_day_;
  std::int64_t begin_of_clock_;
  std::vector<std::unique_ptr<Driven>> driven_;
};

}  // namespace zepril
