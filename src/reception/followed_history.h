// The position history of the followed station (`MONI 1`), kept in its file with each new position.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "platform/files.h"
#include "reception/distance_alarm.h"
#include "reception/history_file.h"

namespace zepril {

class FollowedHistory {
 public:
  FollowedHistory(const IdentityState& identity, StoresState& stores,
                  FollowedStationState& followed, MapViewState& map, const GpsState& gps,
                  Moni1Controls& moni1, MapControls& map_controls, DistanceAlarm& alarm,
                  Files& files, SettingsActions& settings, Label& file_notice);

  // True when `call` is the followed station, without regard to case.
  bool IsFollowed(std::string_view call) const;

  // A new position (a `MONI ALL` record of the followed station). False at the first failure to
  // write the file in this run; a notice tells of that one and of later ones.
  bool Enter(const StationRecord& record);
  // The same in two steps, for many positions at once: each goes into the list, then all of them
  // into the file. Thinning, panel, alarm and map follow the last one.
  void Add(const StationRecord& record);
  bool Keep();
  // Later than the newest position of the history, by the minute.
  bool IsLater(const StationRecord& record) const;

  // At the start of the program: path and history of `Moni1Call`. What lies before a gap of more
  // than 30 days goes, but the file as it was stays beside it; where it can't, nothing goes.
  void LoadAtStart();

  // The operator follows another station: its history is loaded and completed from the list of all
  // stations, and the call stored in the configuration.
  void ChangeStation(const std::string& call);

  // Writes the list and reads it back, as after a cut by the operator. False when that failed: then
  // the list is what the file holds, as before the cut.
  bool WriteAndReadBack();

 private:
  bool WriteFile(std::string_view entered);
  void Thin();
  void HoldCount();
  void FollowOnMap();
  std::string AppendFromAllStations();
  bool IsEmptyInternetRecord(const StationRecord& record) const;

  const IdentityState& identity_;
  StoresState& stores_;
  FollowedStationState& followed_;
  MapViewState& map_;
  const GpsState& gps_;
  Moni1Controls& moni1_;
  MapControls& map_controls_;
  DistanceAlarm& alarm_;
  HistoryFile file_;
  SettingsActions& settings_;
  std::vector<StationRecord> added_;  // and not yet in the file
};

}  // namespace zepril
