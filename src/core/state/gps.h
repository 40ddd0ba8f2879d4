// The NMEA source, the position it gives, and what is kept of the way.
#pragma once

#include <cstddef>
#include <string>

namespace zepril {

struct GpsState {
  static constexpr std::size_t kLongestBuffer = 3000;

  std::string NmeaSource;  // a serial port, with the word SAVE behind it or not, or a file
  std::string NmeaBaud = "4800";
  std::string NmeaBuffer;     // what came last, at most kLongestBuffer characters
  std::string NmeaDevice;     // lasting name of the port that was chosen for this run; may be empty
  bool SetsClock = false;     // the operator lets the GPS set the computer's clock
  int GpsFixValid = 0;        // a position was taken in this tick
  int GpsFixValidBefore = 0;  // in the tick before
  int GpsTimeValid = 0;
  int ClockSetFromGps = 0;
  double GpsNorthKm = 0.0;
  double GpsEastKm = 0.0;
  std::string GpsNorthText;  // 9 characters of a position in km, or empty
  std::string GpsEastText;
  double LastManualMapMove = -1e9;  // monotonic seconds; long ago

  std::string LastTrackMinute;  // HH:MM of the last point written
  bool NavigationOn = false;    // the way is kept for the navigation program
  bool PositionUsed = false;    // a position was taken in this run
};

}  // namespace zepril
