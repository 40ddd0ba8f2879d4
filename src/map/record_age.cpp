// Minutes from a record's date and time to the clock; nothing for what is no time.
#include "map/record_age.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

// A two-digit number of a record; below 0 when it is none.
int TwoDigits(std::string_view text) {
  if (text.size() != 2 || !IsDigit(text[0]) || !IsDigit(text[1])) return -1;
  return (text[0] - '0') * 10 + (text[1] - '0');
}

}  // namespace

std::optional<std::int64_t> RecordAgeMinutes(const StationRecord& record, const LocalTime& now) {
  const int year = TwoDigits(record.Columns(1, 2));
  const int month = TwoDigits(record.Columns(3, 4));
  const int day = TwoDigits(record.Columns(5, 6));
  const int hour = TwoDigits(record.Columns(8, 9));
  const int minute = TwoDigits(record.Columns(10, 11));
  const bool possible = year >= 0 && month >= 1 && month <= 12 && day >= 1 && day <= 31 &&
                        hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59;
  if (!possible) return std::nullopt;
  const std::int64_t age = MinutesOf(now) - MinutesOf({2000 + year, month, day, hour, minute, 0});
  return std::max<std::int64_t>(age, 0);
}

}  // namespace zepril
