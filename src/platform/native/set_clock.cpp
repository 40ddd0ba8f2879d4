// Asks the system to set its clock, unless the program runs as the administrator.
#include "platform/native/set_clock.h"

#include <unistd.h>

#include <ctime>

namespace zepril {

bool MaySetClock(unsigned effective_user) {
  constexpr unsigned kAdministrator = 0;
  return effective_user != kAdministrator;
}

bool SetClock(const LocalTime& time) {
  if (!MaySetClock(::geteuid())) return false;
  std::tm local{};
  local.tm_year = time.Year - 1900;
  local.tm_mon = time.Month - 1;
  local.tm_mday = time.Day;
  local.tm_hour = time.Hour;
  local.tm_min = time.Minute;
  local.tm_sec = time.Second;
  local.tm_isdst = -1;  // the system's zone knows
  timespec moment{};
  moment.tv_sec = std::mktime(&local);
  return moment.tv_sec != -1 && ::clock_settime(CLOCK_REALTIME, &moment) == 0;
}

}  // namespace zepril
