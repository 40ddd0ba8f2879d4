// The log files of reception, under LOG in the folder of the map zone. Each is opened, written and
// closed for every entry; lines end with CR LF.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/state/alarms.h"
#include "core/state/identity.h"
#include "core/station_record.h"
#include "platform/files.h"

namespace zepril {

class StationLogs {
 public:
  // What opens the fourth line of a block: of a packet heard, and of one that came by the internet.
  static const std::string_view kHeardPosition;
  static const std::string_view kInternetPosition;

  StationLogs(const IdentityState& identity, Files& files) : identity_(identity), files_(files) {}

  // Collected text of a pass as it came, no line end added. Each returns false when its file can't
  // be written.
  bool AppendRaw(std::string_view collected);
  // New records: of each the short line (columns 1-58, a blank, 90 to the end) to "_LOG_.TXT" and
  // the whole record to "_LOGL_.TXT".
  bool AppendRecords(std::span<const StationRecord> records);
  // The block of seven lines of a station in emergency; `position_label` opens its fourth line.
  bool AppendEmergency(const AlarmState& alarm, std::string_view position_label = kHeardPosition);

  // Path of a file in the LOG folder, as the program writes paths.
  std::string LogPath(std::string_view name) const;

  // The last file that could not be written.
  const std::string& FailedPath() const { return failed_path_; }

 private:
  bool Append(std::string_view name, std::string_view text);

  const IdentityState& identity_;
  Files& files_;
  std::string lines_;
  std::string failed_path_;
};

// Short line of a record, without its line end: 90 characters.
std::string ShortLogLine(const StationRecord& record);

// File of the history of `call` in the LOG folder of the map zone. Characters that a file name
// can't hold, and a leading "_" that would make it one of the program's own logs, become "-".
std::string HistoryPath(const IdentityState& identity, std::string_view call);

}  // namespace zepril
