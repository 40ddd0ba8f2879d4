// Distance and emergency alarms.
#pragma once

#include <string>

namespace zepril {

struct AlarmState {
  int AlarmDistanceKm = 10;  // at least 1
  int MoniAllAlarmOn = 0;

  std::string AlarmCall;  // station in emergency; empty: none
  std::string AlarmTime;  // YYYY-MM-DD hh:mm
  std::string AlarmLat;
  std::string AlarmLon;
  std::string AlarmNorth;
  std::string AlarmEast;
  std::string AlarmInfo;
  std::string AlarmFile;
  double AlarmClosedAt = 0.0;  // monotonic seconds
};

}  // namespace zepril
