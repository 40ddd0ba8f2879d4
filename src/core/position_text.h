// Positions as texts of nine columns: kilometres with three decimals, as in the station records,
// track and place files.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zepril {

// Whole metres as a nine-column text: padded on the left to 8 characters, a point before the last
// three. No zero is put before the point: 42 m is "     . 42", -345 m is "    -.345". A north
// above 9999990 is held there by RecordNorthText.
std::string MetresText(std::int64_t metres);

// Column text of a record: north cut towards zero (and held at 9999990 m), east rounded down.
std::string RecordNorthText(double north_metres);
std::string RecordEastText(double east_metres);

// Reads any nine-column position text back to kilometres. All blanks are taken out; a "-" anywhere
// is the sign; the three places behind the point are metres and blanks there count as 0:
// "     . 42" is 0.042, "     .-45" is -0.045, "-    .  1" is -0.001, "-  10.517" is -10.517.
// An empty or senseless text reads as 0.
double PositionTextKm(std::string_view text);

}  // namespace zepril
