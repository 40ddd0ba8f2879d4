// How old a station record is, by the local clock.
#pragma once

#include <cstdint>
#include <optional>

#include "core/station_record.h"
#include "platform/clock.h"

namespace zepril {

// Whole minutes from the record's date and time to `now`, not below 0; nothing for a record whose
// date or time is impossible.
std::optional<std::int64_t> RecordAgeMinutes(const StationRecord& record, const LocalTime& now);

}  // namespace zepril
