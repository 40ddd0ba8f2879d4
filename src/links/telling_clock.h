// The program's clock for a long conversation: it tells before each wait and cuts long ones so that
// it can tell in between. What it waits is the same, until the program is asked to end.
#pragma once

#include <functional>
#include <utility>

#include "platform/clock.h"

namespace zepril {

class TellingClock final : public Clock {
 public:
  static constexpr double kLongestPiece = 0.25;  // seconds between two tellings

  TellingClock(Clock& clock, std::function<void()> tell) : clock_(clock), tell_(std::move(tell)) {}

  LocalTime Now() const override { return clock_.Now(); }
  double SecondsSinceMidnight() const override { return clock_.SecondsSinceMidnight(); }
  double MonotonicSeconds() const override { return clock_.MonotonicSeconds(); }
  std::int64_t FileTimeNs() const override { return clock_.FileTimeNs(); }
  void Wait(double seconds) override {
    for (; seconds > 2.0 * kLongestPiece; seconds -= kLongestPiece) {
      if (!WaitPiece(kLongestPiece)) return;
    }
    WaitPiece(seconds);
  }
  void WaitPumping(double seconds) override { clock_.WaitPumping(seconds); }
  void HandOver() override { clock_.HandOver(); }
  bool EndAsked() const override { return clock_.EndAsked(); }
  void NoticePresses() override { clock_.NoticePresses(); }
  std::int64_t LoopsPerSecond() override { return clock_.LoopsPerSecond(); }

 private:
  bool WaitPiece(double seconds) {
    if (clock_.EndAsked()) return false;
    tell_();
    clock_.Wait(seconds);
    return true;
  }

  Clock& clock_;
  std::function<void()> tell_;
};

}  // namespace zepril
