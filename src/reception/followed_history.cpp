// Enters positions, thins, writes and reloads the history, and changes the station.
#include "reception/followed_history.h"

#include <utility>

#include "core/centre_follow.h"
#include "core/history_thinning.h"
#include "core/text_fields.h"
#include "reception/newest_values.h"
#include "reception/record_builder.h"
#include "reception/station_logs.h"

namespace zepril {

FollowedHistory::FollowedHistory(const IdentityState& identity, StoresState& stores,
                                 FollowedStationState& followed, MapViewState& map,
                                 const GpsState& gps, Moni1Controls& moni1,
                                 MapControls& map_controls, DistanceAlarm& alarm, Files& files,
                                 SettingsActions& settings, Label& file_notice)
    : identity_(identity),
      stores_(stores),
      followed_(followed),
      map_(map),
      gps_(gps),
      moni1_(moni1),
      map_controls_(map_controls),
      alarm_(alarm),
      file_(followed.Moni1LogPath, files, file_notice, stores.FileFailed),
      settings_(settings) {}

bool FollowedHistory::IsFollowed(std::string_view call) const {
  return !call.empty() && EqualFolded(call, Trim(followed_.Moni1Call));
}

bool FollowedHistory::Enter(const StationRecord& record) {
  Add(record);
  return Keep();
}

void FollowedHistory::Add(const StationRecord& record) {
  StationStore& history = stores_.Moni1Records;
  const StationRecord entry = HistoryRecord(record);

  // The same place and text as last time: only date and time are renewed, so that a station that
  // stands still does not fill its history.
  const int count = history.Count();
  if (count > 0 && history.At(count).Columns(13, 120) == entry.Columns(13, 120)) {
    history.Set(count, entry);
  } else {
    history.Append(entry);
  }
  added_.push_back(entry);
  HoldCount();
}

bool FollowedHistory::Keep() {
  const std::vector<StationRecord> added = std::exchange(added_, {});
  if (added.empty()) return true;
  Thin();
  if (!WriteFile(HistoryText(added))) return false;
  TakeNewestValues(stores_.Moni1Records, followed_);
  alarm_.TestFollowed(added.back());
  FollowOnMap();
  return true;
}

bool FollowedHistory::IsLater(const StationRecord& record) const {
  const StationStore& history = stores_.Moni1Records;
  return history.Count() == 0 || record.DateAndTime() > history.At(history.Count()).DateAndTime();
}

// A full history loses its oldest thousand at once.
void FollowedHistory::HoldCount() {
  constexpr int kDroppedAtOnce = 1000;
  if (stores_.Moni1Records.Count() > kMostHistoryLines) {
    stores_.Moni1Records.Erase(1, kDroppedAtOnce);
  }
}

// Thins a history that has outgrown its limit by a tenth down to eight tenths of it. What goes at a
// gap, or with a file that holds more than is read, stays in a copy of the file; without one
// nothing goes.
void FollowedHistory::Thin() {
  constexpr int kMostGapDays = 20;
  StationStore& history = stores_.Moni1Records;
  if (followed_.Moni1ThinningOn != 1 || history.Count() * 10 <= history.Limit * 11) return;
  std::vector<StationRecord> records = history.All();
  const bool cut = CutAtGap(records, kMostGapDays);
  KeepReadable(records, kMostHistoryLines);
  ThinByDistance(records, history.Limit * 0.8);
  if ((cut || file_.HoldsMore()) && !file_.Shorten(records)) return;
  history.Assign(std::move(records));
}

// Without a GPS fix the map follows the station again, also after the operator has moved it.
void FollowedHistory::FollowOnMap() {
  if (gps_.GpsFixValid != 1 && gps_.GpsFixValidBefore != 1) {
    FollowWith(map_, map_controls_, Following::Station);
  }
  map_.MapDrawn = false;
}

// A station without a name has no file; its history is empty and valid.
bool FollowedHistory::WriteFile(std::string_view entered) {
  return Trim(followed_.Moni1Call).empty() || file_.Write(stores_.Moni1Records.All(), entered);
}

void FollowedHistory::LoadAtStart() {
  constexpr int kMostGapDays = 30;
  followed_.Moni1LogPath = HistoryPath(identity_, followed_.Moni1Call);
  stores_.Moni1Records.Clear();
  if (!Trim(followed_.Moni1Call).empty()) {
    std::vector<StationRecord> records = file_.Load();
    std::vector<StationRecord> kept = records;
    if (CutAtGap(kept, kMostGapDays) && file_.Shorten(kept)) {
      records = file_.Load();
    }
    stores_.Moni1Records.Assign(std::move(records));
  }
  TakeNewestValues(stores_.Moni1Records, followed_);
}

void FollowedHistory::ChangeStation(const std::string& call) {
  followed_.Moni1Call = call;
  followed_.Moni1LogPath = HistoryPath(identity_, call);
  stores_.Moni1Records.Clear();
  if (!Trim(call).empty()) {
    stores_.Moni1Records.Assign(file_.Load());
    WriteFile(AppendFromAllStations());
  }
  TakeNewestValues(stores_.Moni1Records, followed_);
  settings_.ReplaceConfigLine("CALL", call);
}

// Everything heard of the station since its newest record, and the lines of that.
std::string FollowedHistory::AppendFromAllStations() {
  std::string entered;
  StationStore& history = stores_.Moni1Records;
  const std::string newest(history.Count() > 0 ? history.At(history.Count()).DateAndTime()
                                               : std::string_view{});
  const StationStore& all = stores_.MoniAllRecords;
  for (int index = 1; index <= all.Count(); ++index) {
    const StationRecord& record = all.At(index);
    if (!IsFollowed(record.Call()) || record.DateAndTime() <= newest) continue;
    if (IsEmptyInternetRecord(record)) continue;
    history.Append(HistoryRecord(record));
    entered += HistoryText({HistoryRecord(record)});
    HoldCount();
  }
  return entered;
}

// While the station's internet record is being collected, records of the area query without a text
// would stand in its way.
bool FollowedHistory::IsEmptyInternetRecord(const StationRecord& record) const {
  const char source = record.Columns(91, 91).front();
  return moni1_.Check22.Value == 1 && record.Info().empty() && source >= 'a' && source <= 'z';
}

bool FollowedHistory::WriteAndReadBack() {
  if (Trim(followed_.Moni1Call).empty()) return true;
  const std::vector<StationRecord>& records = stores_.Moni1Records.All();
  const bool written = file_.HoldsMore() ? file_.Shorten(records) : file_.Rewrite(records);
  stores_.Moni1Records.Assign(file_.Load());
  TakeNewestValues(stores_.Moni1Records, followed_);
  return written;
}

}  // namespace zepril
