// A chronological list of station records, newest last, counted from 1 as the program does.
//
// Both stores are such lists: all stations heard (`MoniAllRecords`) and the position history of the
// followed station (`Moni1Records`). Nothing is keyed by call; a station's place is its last
// record.
#pragma once

#include <cstdint>
#include <vector>

#include "core/station_record.h"

namespace zepril {

class StationStore {
 public:
  // `capacity`: the highest index ever used; Append beyond it is refused.
  explicit StationStore(int capacity) : capacity_(capacity) {}

  int Count() const { return static_cast<int>(records_.size()); }
  // Working limit, measured from the computer's speed at start.
  int Limit = 0;

  // Record `index`, 1 to Count().
  const StationRecord& At(int index) const { return records_[static_cast<std::size_t>(index - 1)]; }
  void Set(int index, const StationRecord& record);
  // False when the list is full; it is then unchanged.
  bool Append(const StationRecord& record);
  // Removes records `first` to `last`; what follows moves up.
  void Erase(int first, int last);
  void Clear();
  void Assign(std::vector<StationRecord> records);  // cut to the capacity

  const std::vector<StationRecord>& All() const { return records_; }
  // Rises with each change: lets a reader keep what it made of the list.
  std::uint64_t Revision() const { return revision_; }
  // Rises with each change that is not an Append: records have moved, changed or gone.
  std::uint64_t Reordered() const { return reordered_; }

 private:
  int capacity_;
  std::vector<StationRecord> records_;
  std::uint64_t revision_ = 0;
  std::uint64_t reordered_ = 0;
};

// Limits of the stores from the number of passes of an empty loop that the computer makes in one
// second: the count, capped at 3,000,000, divided by 4500 and cut, at least 50; the history takes
// five times as many. A slower computer keeps fewer stations.
struct StoreLimits {
  int MoniAllLimit = 50;
  int Moni1Limit = 250;
};
StoreLimits LimitsOfSpeed(std::int64_t loops_per_second);

}  // namespace zepril
