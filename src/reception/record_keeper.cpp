// The stores and logs in the order in which a record goes into them.
#include "reception/record_keeper.h"

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

void RecordKeeper::RaiseEmergency(const StationRecord& record) {
  FillEmergency(record, map_, logs_.LogPath("_ALARM_.TXT"), alarms_);
  logs_.AppendEmergency(alarms_);
}

std::optional<FrameLevel> RecordKeeper::Store(const StationRecord& record) {
  // Into the list of all stations, unless it is there already.
  if (all_stations_.IsRepeat(record)) {
    ++repeats_;
    return FrameLevel::Nothing;
  }
  if (!all_stations_.Append(record)) return std::nullopt;
  ++stored_;
  if (stores_.LogsOn == 1 && !resting_logs_.AppendRecord(record)) return std::nullopt;
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

}  // namespace zepril
