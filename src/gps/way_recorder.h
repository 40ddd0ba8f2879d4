// Tells an outside navigation program the way that is driven, and where it ended.
//
// Its files lie in "C:\MAP\" and the map system's name: `QTHWAY.TXT`, the stretches driven,
// appended to as they are driven; `QTHACT.TXT` and `QTHACTPR.TXT`, the last position, written at
// the end. All trouble with files passes in silence.
#pragma once

#include <string>

#include "core/state/gps.h"
#include "core/state/identity.h"
#include "gps/way_lines.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

// Of the map system `zone`.
std::string NavigationFolder(const std::string& zone);

class WayRecorder {
 public:
  WayRecorder(const IdentityState& identity, GpsState& gps, Files& disk, const Clock& clock);
  WayRecorder(const WayRecorder&) = delete;
  WayRecorder& operator=(const WayRecorder&) = delete;

  // Sets `NavigationOn`: the folder holds a file, and the NMEA source is the number of a port with
  // the word SAVE. To be told when the settings are read.
  void DecideNavigation();
  // In every tick with a position: of a new square the step into it, or a new line.
  void WriteWayPoint();
  // At the end of the program, after a run with a position.
  void EndWay();

 private:
  std::string WayPath() const { return NavigationFolder(identity_.MapZoneName) + "\\QTHWAY.TXT"; }
  bool HoldsAFile() const;
  void AddStep(WaySquare square);
  void EndLine();

  const IdentityState& identity_;
  GpsState& gps_;
  Files& disk_;
  const Clock& clock_;
  WaySquare last_;
  std::string last_key_;
  std::string place_and_time_;  // of the last position
  std::string line_;            // in progress, empty when none is
};

}  // namespace zepril
