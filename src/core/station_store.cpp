// Sets, appends, erases and counts records, and what the computer's speed allows of them.
#include "core/station_store.h"

#include <algorithm>
#include <utility>

namespace zepril {

void StationStore::Set(int index, const StationRecord& record) {
  records_[static_cast<std::size_t>(index - 1)] = record;
  ++revision_;
  ++reordered_;
}

bool StationStore::Append(const StationRecord& record) {
  if (Count() >= capacity_) return false;
  records_.push_back(record);
  ++revision_;
  return true;
}

void StationStore::Erase(int first, int last) {
  first = std::max(first, 1);
  last = std::min(last, Count());
  if (first > last) return;
  records_.erase(records_.begin() + (first - 1), records_.begin() + last);
  ++revision_;
  ++reordered_;
}

void StationStore::Clear() {
  records_.clear();
  ++revision_;
  ++reordered_;
}

void StationStore::Assign(std::vector<StationRecord> records) {
  records_ = std::move(records);
  if (Count() > capacity_) records_.resize(static_cast<std::size_t>(capacity_));
  ++revision_;
  ++reordered_;
}

StoreLimits LimitsOfSpeed(std::int64_t loops_per_second) {
  constexpr std::int64_t kHighestCount = 3'000'000;
  constexpr std::int64_t kLoopsPerRecord = 4500;
  constexpr int kLowestLimit = 50;
  const auto measured = static_cast<int>(
      std::clamp<std::int64_t>(loops_per_second, 0, kHighestCount) / kLoopsPerRecord);
  const int all = std::max(measured, kLowestLimit);
  return {all, all * 5};
}

}  // namespace zepril
