// The NMEA source and the position it gives.
#pragma once

#include <string>

namespace zepril {

struct GpsState {
  std::string NmeaSource;
  std::string NmeaBaud = "4800";
  int GpsFixValid = 0;
  int GpsFixValidBefore = 0;
  int GpsTimeValid = 0;
  int ClockSetFromGps = 0;
  double GpsNorthKm = 0.0;
  double GpsEastKm = 0.0;
};

}  // namespace zepril
