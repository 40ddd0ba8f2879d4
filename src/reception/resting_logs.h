// The logs of all stations, which rest while they can't be written: a full disk must not keep the
// program from receiving.
//
// The first failure of a run is one of the receive pass, which recovers from it. From then on a
// notice tells which file it is and why, and every ten minutes writing is tried again.
#pragma once

#include <span>
#include <string_view>

#include "core/file_notice.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "reception/station_logs.h"

namespace zepril {

class RestingLogs {
 public:
  static constexpr double kRestSeconds = 600.0;

  // `file_failed`: of the run, kept for all its files.
  RestingLogs(StationLogs& logs, const Files& files, const Clock& clock, Label& notice,
              bool& file_failed)
      : logs_(logs), files_(files), clock_(clock), notice_(notice), file_failed_(file_failed) {}

  // As those of `StationLogs`; false only at the first failure of a file in the run.
  bool AppendRaw(std::string_view collected);
  bool AppendRecords(std::span<const StationRecord> records);

 private:
  enum class Kind { None, Raw, Records };

  bool IsResting() const;
  bool Written(Kind kind, bool written);

  StationLogs& logs_;
  const Files& files_;
  const Clock& clock_;
  FileNotice notice_;
  Kind failing_ = Kind::None;
  double try_again_ = 0.0;  // monotonic seconds
  bool& file_failed_;
};

}  // namespace zepril
