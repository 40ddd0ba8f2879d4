// A repeating timer of the program's one thread. It only keeps its state; whoever owns the loop
// (the window system in the program, the virtual clock in tests) drives it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>

#include "platform/clock.h"
#include "platform/event.h"

namespace zepril {

class Timer {
 public:
  // A timer that was held comes back no earlier than this after its start, so that what the
  // operator does is shown and done with first ...
  static constexpr double kSoonestSeconds = 1.0;
  // ... and is not put off further by the next hold when it is late by this much.
  static constexpr double kLatestSeconds = 3.0;

  explicit Timer(int interval_ms) : interval_ms_(interval_ms), next_ms_(interval_ms) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  // By which clock `Hold` keeps the moment at which the timer is due. Without one it is `Stop`.
  void FollowClock(const Clock& clock) { clock_ = &clock; }

  // Enables the timer and restarts its count with a new interval.
  void Arm(int interval_ms) {
    interval_ms_ = interval_ms < 1 ? 1 : interval_ms;
    late_since_.reset();
    Start(interval_ms_);
  }
  // Enables a stopped timer with the interval it has; one that runs keeps its count. One that was
  // held fires at the moment at which it was due, or a second from now where that is past or
  // nearer.
  void Enable() {
    if (enabled_) return;
    if (!held_due_) return Arm(interval_ms_);
    Start(MillisecondsToHeldDue());
  }
  void Stop() {
    enabled_ = false;
    held_due_.reset();
    late_since_.reset();
    Restarted();
  }
  // Stands still for the length of a redraw or of what a click does.
  void Hold() {
    if (!enabled_) return;
    const std::optional<double> due = clock_ != nullptr ? std::optional(due_) : std::nullopt;
    enabled_ = false;
    held_due_ = due;
    Restarted();
  }
  // Held, and the moment at which it was due is past.
  bool IsOverdue() const { return held_due_ && *held_due_ < clock_->MonotonicSeconds(); }
  // A new interval restarts the count of a running timer and leaves a stopped one stopped.
  void SetInterval(int interval_ms) {
    interval_ms_ = interval_ms < 1 ? 1 : interval_ms;
    held_due_.reset();
    late_since_.reset();
    NextIn(interval_ms_);
    Restarted();
  }

  // The owner of the loop tells so when it fires, before `Elapsed`: the next time comes after the
  // whole interval.
  void Fired() {
    const bool another = next_ms_ != interval_ms_;
    late_since_.reset();
    NextIn(interval_ms_);
    if (another) Restarted();
  }

  bool Enabled() const { return enabled_; }
  int IntervalMs() const { return interval_ms_; }
  // From the last start of the count to the next firing.
  int NextMs() const { return next_ms_; }
  // Rises whenever the count starts anew or the timer stops.
  std::uint64_t Generation() const { return generation_; }

  // What happens when the interval has passed.
  Event<> Elapsed;
  // Told to the owner of the loop after each change.
  Event<> Changed;

 private:
  void Start(int next_ms) {
    enabled_ = true;
    held_due_.reset();
    NextIn(next_ms);
    Restarted();
  }

  void NextIn(int next_ms) {
    next_ms_ = next_ms;
    if (clock_ != nullptr) due_ = clock_->MonotonicSeconds() + next_ms / 1000.0;
  }

  int MillisecondsToHeldDue() {
    const double now = clock_->MonotonicSeconds();
    double wait = *held_due_ - now;
    if (wait < kSoonestSeconds) {
      late_since_ = late_since_.value_or(now);
      wait = now - *late_since_ < kLatestSeconds ? kSoonestSeconds : 0.0;
    }
    return std::max(static_cast<int>(wait * 1000.0 + 0.5), 1);
  }

  void Restarted() {
    ++generation_;
    if (Changed) Changed();
  }

  int interval_ms_;
  int next_ms_;
  bool enabled_ = false;
  std::uint64_t generation_ = 0;

  const Clock* clock_ = nullptr;
  double due_ = 0.0;                  // monotonic seconds, of a running timer
  std::optional<double> held_due_;    // of one that is held
  std::optional<double> late_since_;  // when a start put it off for the first time
};

// A timer for whoever owns the loop.
struct DrivenTimer {
  Timer* Subject;
  bool Pumped;  // also fires while control is handed over inside a routine
};

}  // namespace zepril
