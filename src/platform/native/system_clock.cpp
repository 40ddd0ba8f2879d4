// Reads the system's clocks, sleeps, and counts loops for 5 ms.
#include "platform/native/system_clock.h"

#include <ctime>

#include <atomic>
#include <chrono>
#include <thread>

namespace zepril {
namespace {

tm LocalParts(std::time_t seconds) {
  tm parts{};
  ::localtime_r(&seconds, &parts);
  return parts;
}

}  // namespace

LocalTime SystemClock::Now() const {
  const tm parts = LocalParts(std::time(nullptr));
  LocalTime now;
  now.Year = parts.tm_year + 1900;
  now.Month = parts.tm_mon + 1;
  now.Day = parts.tm_mday;
  now.Hour = parts.tm_hour;
  now.Minute = parts.tm_min;
  now.Second = parts.tm_sec > 59 ? 59 : parts.tm_sec;
  return now;
}

double SystemClock::SecondsSinceMidnight() const {
  const auto now = std::chrono::system_clock::now();
  const std::time_t whole = std::chrono::system_clock::to_time_t(now);
  const std::chrono::duration<double> fraction =
      now - std::chrono::system_clock::from_time_t(whole);
  const tm parts = LocalParts(whole);
  return parts.tm_hour * 3600.0 + parts.tm_min * 60.0 + parts.tm_sec + fraction.count();
}

double SystemClock::MonotonicSeconds() const {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

std::int64_t SystemClock::FileTimeNs() const {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

void SystemClock::Wait(double seconds) {
  if (seconds > 0.0) std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

std::int64_t SystemClock::LoopsPerSecond() {
  constexpr double kMeasureSeconds = 0.005;
  constexpr std::int64_t kHighestCount = 2'000'000'000;
  const double start = MonotonicSeconds();
  std::int64_t loops = 0;
  double elapsed = 0.0;
  while (elapsed < kMeasureSeconds) {
    // Atomic, so that the compiler does not take the empty loop away.
    for (std::atomic<int> turn = 0; turn.load(std::memory_order_relaxed) < 1000;) {
      turn.store(turn.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
    }
    loops += 1000;
    elapsed = MonotonicSeconds() - start;
  }
  const double per_second = static_cast<double>(loops) / elapsed;
  return per_second > static_cast<double>(kHighestCount) ? kHighestCount
                                                         : static_cast<std::int64_t>(per_second);
}

}  // namespace zepril
