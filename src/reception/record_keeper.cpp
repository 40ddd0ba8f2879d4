// The stores and logs in the order in which a record goes into them.
#include "reception/record_keeper.h"

#include <algorithm>

#include "core/text_fields.h"
#include "reception/emergency_report.h"

namespace zepril {

RecordKeeper::RecordKeeper(Sections sections, Partners partners, const Clock& clock, Files& files)
    : stores_(sections.Stores),
      map_(sections.Map),
      alarms_(sections.Alarms),
      history_(partners.History),
      browser_(partners.Browser),
      distance_(partners.Distance),
      all_stations_(sections.Stores.MoniAllRecords),
      logs_(sections.Identity, files),
      resting_logs_(logs_, files, clock, partners.Notice, sections.Stores.FileFailed) {}

bool RecordKeeper::LogRaw(std::string_view collected) {
  return stores_.LogsOn != 1 || resting_logs_.AppendRaw(collected);
}

void RecordKeeper::RaiseEmergency(const StationRecord& record, std::string_view position_label) {
  FillEmergency(record, map_, logs_.LogPath("_ALARM_.TXT"), alarms_);
  logs_.AppendEmergency(alarms_, position_label);
}

void RecordKeeper::LogEmergency(const StationRecord& record, std::string_view position_label) {
  AlarmState alarm;
  FillEmergency(record, map_, logs_.LogPath("_ALARM_.TXT"), alarm);
  logs_.AppendEmergency(alarm, position_label);
}

bool RecordKeeper::HoldsEmergency(const StationRecord& record) const {
  const std::vector<StationRecord>& all = stores_.MoniAllRecords.All();
  return std::any_of(all.begin(), all.end(), [&record](const StationRecord& stored) {
    return stored.EmergencyMark() == '!' && IsSamePacket(stored, record);
  });
}

std::optional<FrameLevel> RecordKeeper::Store(const StationRecord& record) {
  // Into the list of all stations, unless it is there already.
  if (all_stations_.IsRepeat(record)) {
    ++repeats_;
    return FrameLevel::Nothing;
  }
  if (!all_stations_.Append(record)) return std::nullopt;
  ++stored_;
  if (stores_.LogsOn == 1 && !resting_logs_.AppendRecords({&record, 1})) return std::nullopt;
  all_stations_.KeepLimit();
  distance_.TestAllStations(record);

  // Into the history of the followed station.
  FrameLevel level = FrameLevel::MoniAll;
  if (history_.IsFollowed(record.Call())) {
    if (!history_.Enter(record)) return std::nullopt;
    level = FrameLevel::Moni1;
  }
  if (record.EmergencyMark() == '!') level = FrameLevel::Emergency;
  browser_.MoveToNewest(record.Call());
  return level;
}

void RecordKeeper::BeginPage() {
  page_.clear();
  selected_came_ = false;
  selected_ = browser_.SelectedOfAll();
  reordered_ = stores_.MoniAllRecords.Reordered();
}

std::optional<FrameLevel> RecordKeeper::StoreLine(const StationRecord& record) {
  if (all_stations_.IsRepeat(record)) {
    ++repeats_;
    return FrameLevel::Nothing;
  }
  if (!AddToList(record)) return std::nullopt;
  distance_.TestAllStations(record);
  FrameLevel level = FrameLevel::MoniAll;
  if (history_.IsFollowed(record.Call()) && history_.IsLater(record)) {
    history_.Add(record);
    level = FrameLevel::Moni1;
  }
  return record.EmergencyMark() == '!' ? FrameLevel::Emergency : level;
}

bool RecordKeeper::StoreStation(const StationRecord& record) {
  return AddToList(record);
}

bool RecordKeeper::AddToList(const StationRecord& record) {
  if (!all_stations_.Append(record)) return false;
  ++stored_;
  if (stores_.LogsOn == 1) page_.push_back(record);
  all_stations_.KeepLimit();
  selected_came_ = selected_came_ || EqualFolded(record.Call(), Trim(stores_.SelectedStationCall));
  return true;
}

void RecordKeeper::EndPage() {
  if (!page_.empty()) resting_logs_.AppendRecords(page_);
  page_.clear();
  history_.Keep();
  if (selected_came_) return browser_.MoveToNewest(stores_.SelectedStationCall);
  const bool was_cut = stores_.MoniAllRecords.Reordered() != reordered_;
  if (selected_ && was_cut) browser_.FindAgain(*selected_);
}

}  // namespace zepril
