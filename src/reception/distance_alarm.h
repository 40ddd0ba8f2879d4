// The distance alarm: a station has come nearer to the operator than a set distance.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/alarms.h"
#include "core/state/followed_station.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/station_record.h"
#include "core/texts/text.h"

namespace zepril {

// Distance in km from the operator's position, in the plane of the map grid.
double PlaneDistanceKm(const StationRecord& record, const MapViewState& map);

class DistanceAlarm {
 public:
  // Sets the click of the panel, which closes it.
  DistanceAlarm(const AlarmState& alarm, const IdentityState& identity,
                const FollowedStationState& followed, const MapViewState& map,
                StatusControls& status, WindowControls& window);
  DistanceAlarm(const DistanceAlarm&) = delete;
  DistanceAlarm& operator=(const DistanceAlarm&) = delete;

  // Alarm over all stations: when it and the station labels are on, the station's class is on, the
  // station is neither the followed one nor the own, and nearer than the limit.
  void TestAllStations(const StationRecord& record);
  // Alarm of the followed station, when it is on.
  void TestFollowed(const StationRecord& record);

 private:
  bool IsOwnCall(std::string_view call) const;
  std::array<Control*, 2> Panel();
  void Show(Text words, const StationRecord& record, double distance_km);

  const AlarmState& alarm_;
  const IdentityState& identity_;
  const FollowedStationState& followed_;
  const MapViewState& map_;
  StatusControls& status_;
  WindowControls& window_;
};

// "20YY-MM-DD HH:MM" of a record.
std::string RecordTimeText(const StationRecord& record);

}  // namespace zepril
