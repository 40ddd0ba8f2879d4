// Thins the position history of a station that has outgrown its limit: a long gap in time first
// cuts off what is older, then neighbours that lie close together lose the later one, the oldest
// part of the track most.
#pragma once

#include <string_view>
#include <vector>

#include "core/station_record.h"

namespace zepril {

// Day number of a record's date for gaps: year x 360 + month x 30 + day, two-digit years below 70
// being of this century. Not a real calendar: 240210 and 240301 differ by 21.
int HistoryDay(const StationRecord& record);

// Removes everything up to the older side of the newest gap: a record more than `most_days` after
// all before it. A clock that jumps back, and forward again, makes no gap. True when something was
// removed.
bool CutAtGap(std::vector<StationRecord>& records, int most_days);

// Removes the later of two neighbours closer than 0.01 to 0.5 km in both north and east, in five
// passes over ever shorter parts from the oldest on (three quarters at 0.01 km, ... one quarter at
// 0.5 km). A pass is skipped when at most `enough` records are left. While more are left after the
// five, the distances are doubled and the passes run again.
void ThinByDistance(std::vector<StationRecord>& records, double enough);

// Drops what a history file could not give back: blank records and those whose right-trimmed line
// is shorter than a valid one; at most `most` records stay, the oldest.
void KeepReadable(std::vector<StationRecord>& records, std::size_t most);

}  // namespace zepril
