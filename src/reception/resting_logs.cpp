// Tries a log again after its rest, and tells when it can't be written.
#include "reception/resting_logs.h"

#include <utility>

#include "core/texts/file_troubles.h"
#include "core/texts/notices.h"

namespace zepril {

bool RestingLogs::AppendRaw(std::string_view collected) {
  return IsResting() || Written(Kind::Raw, logs_.AppendRaw(collected));
}

bool RestingLogs::AppendRecords(std::span<const StationRecord> records) {
  return IsResting() || Written(Kind::Records, logs_.AppendRecords(records));
}

bool RestingLogs::IsResting() const {
  return failing_ != Kind::None && clock_.MonotonicSeconds() < try_again_;
}

bool RestingLogs::Written(Kind kind, bool written) {
  if (written) {
    // Only the log that failed tells that all is well again.
    if (failing_ != kind) return true;
    failing_ = Kind::None;
    notice_.Withdraw();
    return true;
  }
  failing_ = kind;
  try_again_ = clock_.MonotonicSeconds() + kRestSeconds;
  notice_.Tell(notices::kLogsRest.With({logs_.FailedPath(), WordsOf(files_.Trouble())}));
  return std::exchange(file_failed_, true);
}

}  // namespace zepril
