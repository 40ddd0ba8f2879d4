// Keeps a decoded record: in the list of all stations and its logs, in the history of the followed
// station; alarms and the open panel of a record follow it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "core/controls.h"
#include "core/state/alarms.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "core/station_record.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "reception/all_stations_store.h"
#include "reception/distance_alarm.h"
#include "reception/followed_history.h"
#include "reception/record_browser.h"
#include "reception/resting_logs.h"
#include "reception/station_logs.h"

namespace zepril {

// What a frame has led to, rising in importance.
enum class FrameLevel {
  Nothing = 0,
  MoniAll = 1,  // stored among all stations
  Moni1 = 2,    // a position of the followed station
  Emergency = 3,
};

class RecordKeeper {
 public:
  struct Sections {
    const IdentityState& Identity;
    StoresState& Stores;
    const MapViewState& Map;
    AlarmState& Alarms;
  };
  struct Partners {
    FollowedHistory& History;
    RecordBrowser& Browser;
    DistanceAlarm& Distance;
    Label& Notice;  // tells of logs that can't be written
  };

  RecordKeeper(Sections sections, Partners partners, const Clock& clock, Files& files);
  RecordKeeper(const RecordKeeper&) = delete;
  RecordKeeper& operator=(const RecordKeeper&) = delete;

  // Raw text as it came, when logs are on. False when its log can't be written.
  bool LogRaw(std::string_view collected);
  // Fills the alarm fields and appends the block of the emergency log.
  void RaiseEmergency(const StationRecord& record,
                      std::string_view position_label = StationLogs::kHeardPosition);
  // Appends the block alone: what is shown stays.
  void LogEmergency(const StationRecord& record, std::string_view position_label);
  // The list of all stations holds the same packet, and as an emergency.
  bool HoldsEmergency(const StationRecord& record) const;
  // Stores `record` unless it is a repeat; what that has led to. Nothing (no level) when the list
  // is full to its capacity, or at the first failure to write a file in this run.
  std::optional<FrameLevel> Store(const StationRecord& record);

  // Many records at once, as a page of the internet brings them: logs, history and the open panel
  // follow at its end, and of files that can't be written a notice tells.
  void BeginPage();
  // As `Store`; the history takes only what is later than its newest position.
  std::optional<FrameLevel> StoreLine(const StationRecord& record);
  // Without a test for repeats, and among all stations alone. False when the list is full.
  bool StoreStation(const StationRecord& record);
  void EndPage();

  // Since the program began.
  std::int64_t Stored() const { return stored_; }
  std::int64_t Repeats() const { return repeats_; }

 private:
  bool AddToList(const StationRecord& record);

  StoresState& stores_;
  const MapViewState& map_;
  AlarmState& alarms_;
  FollowedHistory& history_;
  RecordBrowser& browser_;
  DistanceAlarm& distance_;
  AllStationsStore all_stations_;
  StationLogs logs_;
  RestingLogs resting_logs_;
  std::vector<StationRecord> page_;        // of the page under way, not yet in the logs
  bool selected_came_ = false;             // the page has told of the selected station
  std::optional<StationRecord> selected_;  // of all stations, when the page began
  std::uint64_t reordered_ = 0;            // of the list at that time
  std::int64_t stored_ = 0;
  std::int64_t repeats_ = 0;
};

}  // namespace zepril
