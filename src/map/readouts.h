// The three position read-outs: map centre, cursor, monitored station.
//
// Each has two caption lines and a display system of its own, stepped by a click on a caption:
//   0 UTM of the map   "UTMcen 6600.000" / "33! 15  400.000"
//   1 geographic       "GLLcen 59:31.58" / "JO69OM 13:13.93"
//   2 Gauss-Krueger    "GK cen 6601.506" / "  | 12 4569.842"
//   3 UTM by position  "UTMcen 6600.000" / "33| 15  400.000"
//   4 RT 90            "RNNcen 6603.500" / "RNEcen 1354.407"
// "!" tells that the zone is the map's, "|" that it is the one of the position.
#pragma once

#include <string>

#include "core/controls/readout_controls.h"
#include "core/state/followed_station.h"
#include "core/state/map_view.h"
#include "core/station_store.h"
#include "map/coordinate_values.h"

namespace zepril {

enum class DisplayMode {
  MapUtm = 0,
  Geographic = 1,
  GaussKrueger = 2,
  UtmByPosition = 3,
  Rt90 = 4
};
inline constexpr int kDisplayModes = 5;

enum class Readout { Centre, Cursor, Monitor };

class Readouts {
 public:
  Readouts(MapViewState& view, const FollowedStationState& followed, const StationStore& history,
           ReadoutControls& controls);

  CoordinateValues& Values() { return values_; }

  void CentreReadout();
  // The cursor at pixel (x, y) of the map.
  void CursorReadout(double x, double y);
  void CursorReadout() { CursorReadout(view_.CursorX, view_.CursorY); }
  // The captions and the station line: distance, direction, speed, path.
  void MonitorReadout();

  // A click on a caption: the next display system, and the read-out anew. Outside the European area
  // (map meridian -30 to 60) Gauss-Krueger and RT 90 are passed over.
  void StepDisplayMode(Readout readout);

 private:
  struct Captions {
    std::string Upper;
    std::string Lower;
  };
  Captions CaptionsOf(Readout readout, int mode, const std::string& north_text,
                      const std::string& east_text) const;
  int& ModeOf(Readout readout);
  void ShowPoint(Readout readout, double north_km, double east_km, Label& upper, Label& lower);

  MapViewState& view_;
  const FollowedStationState& followed_;
  const StationStore& history_;
  ReadoutControls& controls_;
  CoordinateValues values_;
};

// Speed of a station in km/h as text, from its stored positions: from the newest record back to the
// first that is at least 3 minutes older, or the oldest. Empty when less than a minute lies
// between.
std::string StationSpeedText(const StationStore& history);

// "DIST:       km   DIR:     °   SPEED:     km/h   VIA:" with the values in their places.
std::string StationLine(double distance_km, double bearing_deg, const std::string& speed,
                        const std::string& via);

}  // namespace zepril
