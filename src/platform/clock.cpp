// Calendar arithmetic: days, minutes and seconds of a date, and back.
#include "platform/clock.h"

namespace zepril {
namespace {

constexpr std::int64_t FloorDiv(std::int64_t a, std::int64_t b) {
  return a / b - (a % b != 0 && (a < 0) != (b < 0) ? 1 : 0);
}

}  // namespace

std::int64_t DaysOfDate(int year, int month, int day) {
  // Months roll into years first; the year then begins in March, so that the leap day is its last.
  const std::int64_t months = static_cast<std::int64_t>(year) * 12 + month - 1;
  const std::int64_t y = FloorDiv(months, 12);
  const std::int64_t m = months - y * 12;  // 0 to 11
  const std::int64_t from_march = (m + 10) % 12;
  const std::int64_t march_year = m < 2 ? y - 1 : y;
  const std::int64_t leap_days =
      FloorDiv(march_year, 4) - FloorDiv(march_year, 100) + FloorDiv(march_year, 400);
  constexpr std::int64_t kDaysTo1970 = 719468;
  return march_year * 365 + leap_days + (from_march * 153 + 2) / 5 + day - 1 - kDaysTo1970;
}

std::int64_t MinutesOf(const LocalTime& time) {
  return DaysOfDate(time.Year, time.Month, time.Day) * 1440 + time.Hour * 60LL + time.Minute;
}

std::int64_t SecondsOf(const LocalTime& time) {
  return MinutesOf(time) * 60 + time.Second;
}

LocalTime TimeOfSeconds(std::int64_t seconds) {
  const std::int64_t days = FloorDiv(seconds, 86400);
  const auto rest = static_cast<int>(seconds - days * 86400);
  LocalTime time;
  time.Hour = rest / 3600;
  time.Minute = rest / 60 % 60;
  time.Second = rest % 60;
  // The year is near days / 365.2425; step to the one that holds the day.
  auto year = static_cast<int>(1970 + FloorDiv(days * 10000, 3652425));
  while (DaysOfDate(year + 1, 1, 1) <= days)
    ++year;
  while (DaysOfDate(year, 1, 1) > days)
    --year;
  int month = 1;
  while (month < 12 && DaysOfDate(year, month + 1, 1) <= days)
    ++month;
  time.Year = year;
  time.Month = month;
  time.Day = static_cast<int>(days - DaysOfDate(year, month, 1)) + 1;
  return time;
}

}  // namespace zepril
