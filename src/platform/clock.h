// Time as the program sees it: the wall clock, elapsed time, and waiting.
#pragma once

#include <cstdint>

namespace zepril {

struct LocalTime {
  int Year = 2000;
  int Month = 1;   // 1 to 12
  int Day = 1;     // 1 to 31
  int Hour = 0;    // 0 to 23
  int Minute = 0;  // 0 to 59
  int Second = 0;  // 0 to 59
};

class Clock {
 public:
  virtual ~Clock() = default;

  virtual LocalTime Now() const = 0;
  // The timer value: seconds since local midnight, with fractions; falls back to 0 at midnight.
  virtual double SecondsSinceMidnight() const = 0;
  // Seconds that never go back, from an arbitrary start.
  virtual double MonotonicSeconds() const = 0;
  // Now in the measure of files' stamps: nanoseconds of the system's epoch.
  virtual std::int64_t FileTimeNs() const = 0;

  // Waits. Sockets and serial ports fill their buffers meanwhile; no timer and no user event fires.
  virtual void Wait(double seconds) = 0;
  // The same, with control handed to the window system: user events and `Timer2` run.
  virtual void WaitPumping(double seconds) = 0;
  // Hands control to the window system once.
  virtual void HandOver() = 0;

  // The operator or the system wants the program to end: whoever waits for another machine gives
  // up.
  virtual bool EndAsked() const { return false; }

  // What the operator has pressed meanwhile is noted at its control (`PressWaits`). It acts behind
  // the step, as ever; who goes on with what it is to end looks before each piece.
  virtual void NoticePresses() {}

  // Passes of an empty loop that the computer makes in one second, measured briefly and scaled.
  virtual std::int64_t LoopsPerSecond() = 0;
};

// Days since 1970-01-01 of a date of the Gregorian calendar. Months and days outside their ranges
// roll over (day 0 is the last day of the month before).
std::int64_t DaysOfDate(int year, int month, int day);
// Whole minutes since 1970-01-01 00:00, seconds cut; hours and minutes may roll over too.
std::int64_t MinutesOf(const LocalTime& time);
std::int64_t SecondsOf(const LocalTime& time);
// The time `seconds` after 1970-01-01 00:00 of the same calendar.
LocalTime TimeOfSeconds(std::int64_t seconds);

}  // namespace zepril
