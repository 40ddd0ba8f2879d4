// Time that costs nothing: a wait moves the clock on at once and is recorded; timers and scheduled
// events fire in order. A year of operation is simulated in minutes.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/timer.h"
#include "platform/clock.h"
#include "platform/loop.h"

namespace zepril {

class VirtualClock final : public Clock, public Loop {
 public:
  explicit VirtualClock(LocalTime start = {2024, 1, 15, 12, 34, 0}) : start_(SecondsOf(start)) {}

  LocalTime Now() const override { return TimeOfSeconds(start_ + Whole()); }
  double SecondsSinceMidnight() const override {
    const std::int64_t seconds = start_ + Whole();
    return static_cast<double>(((seconds % 86400) + 86400) % 86400) +
           (elapsed_ - static_cast<double>(Whole()));
  }
  double MonotonicSeconds() const override { return elapsed_; }
  std::int64_t FileTimeNs() const override {
    return start_ * 1'000'000'000 + static_cast<std::int64_t>(elapsed_ * 1e9);
  }

  // Timers stand still in a plain wait; scheduled events (sockets, serial lines) arrive.
  void Wait(double seconds) override {
    if (OnWait) OnWait(seconds, false);
    RunEventsUntil(elapsed_ + seconds, false);
  }
  void WaitPumping(double seconds) override {
    if (OnWait) OnWait(seconds, true);
    RunEventsUntil(elapsed_ + seconds, true);
  }
  void HandOver() override {
    ++HandOvers;
    if (events_.empty()) {
      elapsed_ += 0.001;
      return;
    }
    RunEventsUntil(events_.begin()->first, true);
  }
  std::int64_t LoopsPerSecond() override { return Loops; }
  bool EndAsked() const override { return EndIsAsked; }
  void NoticePresses() override {
    if (OnNotice) OnNotice();
  }

  // Jumps to another wall clock time; the monotonic clock goes on.
  void SetNow(LocalTime now) { start_ = SecondsOf(now) - Whole(); }

  // Something from outside that happens `seconds` from now.
  void Schedule(double seconds, std::function<void()> event) {
    events_.emplace(elapsed_ + seconds, std::move(event));
  }

  // A timer of the program; `pumped` ones also fire while control is handed over inside a routine.
  void Drive(Timer& timer, bool pumped) { Drive({&timer, pumped}); }
  void Drive(const DrivenTimer& timer) {
    driven_.push_back({timer.Subject, timer.Pumped, timer.Subject->Generation(), elapsed_});
  }

  void ForgetTimers() { driven_.clear(); }

  void RunStep(const std::function<void()>& step) override { step(); }
  using Loop::RunStep;
  void Post(std::function<void()> work) override { posted_.push_back(std::move(work)); }

  // Lets the program run: timers fire as they fall due, events arrive.
  void Run(double seconds) {
    const double end = elapsed_ + seconds;
    for (;;) {
      RunPosted();
      Follow();
      Driven* next = NextTimer(false);
      const double timer_due = next ? next->Due() : end + 1.0;
      const double event_due = events_.empty() ? end + 1.0 : events_.begin()->first;
      if (timer_due > end && event_due > end) break;
      if (event_due <= timer_due) {
        FireEvent();
      } else {
        FireTimer(*next);
      }
    }
    elapsed_ = end;
  }

  std::function<void(double seconds, bool pumping)> OnWait;
  std::function<void()> OnNotice;
  std::int64_t Loops = 3'000'000;
  int HandOvers = 0;
  bool EndIsAsked = false;

 private:
  struct Driven {
    Timer* Subject;
    bool Pumped;
    std::uint64_t Generation;
    double Since;
    double Due() const { return Since + Subject->NextMs() / 1000.0; }
  };

  std::int64_t Whole() const { return static_cast<std::int64_t>(elapsed_); }

  void Follow() {
    for (Driven& timer : driven_) {
      if (timer.Generation == timer.Subject->Generation()) continue;
      timer.Generation = timer.Subject->Generation();
      timer.Since = elapsed_;
    }
  }

  Driven* NextTimer(bool pumped_only) {
    Driven* next = nullptr;
    for (Driven& timer : driven_) {
      if (!timer.Subject->Enabled() || (pumped_only && !timer.Pumped)) continue;
      if (next == nullptr || timer.Due() < next->Due()) next = &timer;
    }
    return next;
  }

  void FireTimer(Driven& timer) {
    if (timer.Due() > elapsed_) elapsed_ = timer.Due();
    timer.Since = elapsed_;
    timer.Subject->Fired();
    if (timer.Subject->Elapsed) timer.Subject->Elapsed();
  }

  void RunPosted() {
    while (!posted_.empty()) {
      const std::function<void()> work = posted_.front();
      posted_.pop_front();
      work();
    }
  }

  void FireEvent() {
    const auto first = events_.begin();
    const std::function<void()> event = first->second;
    if (first->first > elapsed_) elapsed_ = first->first;
    events_.erase(first);
    event();
  }

  void RunEventsUntil(double end, bool pumping) {
    for (;;) {
      Follow();
      Driven* next = pumping ? NextTimer(true) : nullptr;
      const double timer_due = next ? next->Due() : end + 1.0;
      const double event_due = events_.empty() ? end + 1.0 : events_.begin()->first;
      if (timer_due > end && event_due > end) break;
      if (event_due <= timer_due) {
        FireEvent();
      } else {
        FireTimer(*next);
      }
    }
    if (end > elapsed_) elapsed_ = end;
  }

  std::int64_t start_;
  double elapsed_ = 0.0;
  std::multimap<double, std::function<void()>> events_;
  std::vector<Driven> driven_;
  std::deque<std::function<void()>> posted_;
};

}  // namespace zepril
