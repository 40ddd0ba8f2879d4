// A repeating timer of the program's one thread. It only keeps its state; whoever owns the loop
// (the window system in the program, the virtual clock in tests) drives it.
#pragma once

#include <cstdint>
#include <functional>

namespace zepril {

class Timer {
 public:
  explicit Timer(int interval_ms) : interval_ms_(interval_ms) {}
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  // Enables the timer and restarts its count with a new interval.
  void Arm(int interval_ms) {
    interval_ms_ = interval_ms < 1 ? 1 : interval_ms;
    enabled_ = true;
    Restarted();
  }
  // Enables a stopped timer with the interval it has; one that runs keeps its count.
  void Enable() {
    if (!enabled_) Arm(interval_ms_);
  }
  void Stop() {
    enabled_ = false;
    Restarted();
  }
  // A new interval restarts the count of a running timer and leaves a stopped one stopped.
  void SetInterval(int interval_ms) {
    interval_ms_ = interval_ms < 1 ? 1 : interval_ms;
    Restarted();
  }

  bool Enabled() const { return enabled_; }
  int IntervalMs() const { return interval_ms_; }
  // Rises whenever the count starts anew or the timer stops.
  std::uint64_t Generation() const { return generation_; }

  // What happens when the interval has passed.
  std::function<void()> Elapsed;
  // Told to the owner of the loop after each change.
  std::function<void()> Changed;

 private:
  void Restarted() {
    ++generation_;
    if (Changed) Changed();
  }

  int interval_ms_;
  bool enabled_ = false;
  std::uint64_t generation_ = 0;
};

}  // namespace zepril
