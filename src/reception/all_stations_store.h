// The list of all stations heard (`MONI ALL`): what counts as a repeat, and how it is kept short.
//
// The list is what it says: records in the order they came. Beside it stands an index over the
// records' texts, so that a new record is compared with a few others and not with all. The index
// notices when someone else has changed the list and is then made anew.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/station_store.h"

namespace zepril {

class AllStationsStore {
 public:
  explicit AllStationsStore(StationStore& store) : store_(store) {}

  // True when `record` is in the list already: the same text, or the same position key less than 10
  // minutes apart (minutes of the day, no regard to the date) with another heard-via: the same
  // packet over a second digipeater.
  bool IsRepeat(const StationRecord& record);

  // Appends `record`; false when the list is full to its capacity.
  bool Append(const StationRecord& record);

  // Brings an overlong list back to its limit: first every record but the first goes whose position
  // and call stand in a later one; if that is not enough, a quarter of the limit goes from the
  // second record on. The first record stays for ever.
  void KeepLimit();

 private:
  // Records of the same hash, newest first: `Newest[hash]` and `Older[record]` are indexes, 0 none.
  struct Chains {
    std::vector<int> Newest;
    std::vector<int> Older;
  };

  void Refresh();
  void Add(int index);
  void RemoveSuperseded();

  StationStore& store_;
  Chains by_text_;
  Chains by_position_;
  int indexed_ = 0;
  std::uint64_t reordered_ = ~std::uint64_t{0};
};

// True when the two records are the same packet by the rules above.
bool IsSamePacket(const StationRecord& stored, const StationRecord& record);

}  // namespace zepril
