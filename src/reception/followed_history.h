// The position history of the followed station (`MONI 1`) and its file.
//
// The file holds one record a line, right-trimmed, oldest first, and is written whole at each new
// position: a new file replaces the old one, so that a power cut loses nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/actions/settings_actions.h"
#include "core/main_window_controls.h"
#include "core/state/followed_station.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "platform/files.h"
#include "reception/distance_alarm.h"

namespace zepril {

// Most records that are read from a history file.
inline constexpr int kMostHistoryLines = 9998;

class FollowedHistory {
 public:
  FollowedHistory(const IdentityState& identity, StoresState& stores,
                  FollowedStationState& followed, MapViewState& map, const GpsState& gps,
                  Moni1Controls& moni1, MapControls& map_controls, DistanceAlarm& alarm,
                  Files& files, SettingsActions& settings);

  // True when `call` is the followed station, without regard to case.
  bool IsFollowed(std::string_view call) const;

  // A new position (a `MONI ALL` record of the followed station). False when the file can't be
  // written.
  bool Enter(const StationRecord& record);

  // At the start of the program: path and history of `Moni1Call`. What lies before a gap of more
  // than 30 days goes, after the file as it was has been kept beside it under the ending ".BAK"; so
  // is a file with lines that are no records.
  void LoadAtStart();

  // The operator follows another station: its history is loaded and completed from the list of all
  // stations, and the call stored in the configuration.
  void ChangeStation(const std::string& call);

  // Writes the list and reads it back, as after a cut by the operator. False when that failed.
  bool WriteAndReadBack();

  // The monitor values from the newest record; an empty history clears them.
  void RefreshMonitorValues();

 private:
  struct LoadedHistory {
    std::vector<StationRecord> Records;
    bool LinesLeftOut = false;
  };

  LoadedHistory Read();
  bool WriteFile() const;
  bool KeepCopy() const;
  void Thin();
  void HoldCount();
  void FollowOnMap();
  void AppendFromAllStations();
  bool IsEmptyInternetRecord(const StationRecord& record) const;

  const IdentityState& identity_;
  StoresState& stores_;
  FollowedStationState& followed_;
  MapViewState& map_;
  const GpsState& gps_;
  Moni1Controls& moni1_;
  MapControls& map_controls_;
  DistanceAlarm& alarm_;
  Files& files_;
  SettingsActions& settings_;
  bool unread_ = false;  // the file is there and can't be read
};

// The lines of a history file: right-trimmed records with CR LF.
std::string HistoryText(const std::vector<StationRecord>& records);

}  // namespace zepril
