// `MONI 1`: the one station that is followed closely, and its last values.
#pragma once

#include <string>

namespace zepril {

struct FollowedStationState {
  std::string Moni1Call = "QX7KB";
  std::string Moni1LogPath;
  int Moni1ThinningOn = 0;
  int Moni1AlarmOn = 1;
  int TrackStyle = 0;  // 0 to 6

  // From the newest record of the history.
  std::string MonitorDate;
  std::string MonitorTime;
  double MonitorNorthKm = 0.0;
  double MonitorEastKm = 0.0;
  std::string MonitorHeardVia;
  std::string MonitorInfo;
  std::string MonitorSymbol;
  std::string MonitorSymbolText;
};

}  // namespace zepril
