// Lines of `QTHWAY.TXT`, the way as the outside navigation program reads it. Pure texts.
//
// A line is a stretch: the key of the square of 1 km where it begins (1-9), blank, date YYMMDD
// (11-16), blank, time HHMM (18-21), "||", and a digit a step into a neighbouring square.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/clock.h"

namespace zepril {

// A square of 1 km, by its south-western corner.
struct WaySquare {
  int NorthKm = 0;
  int EastKm = 0;
};

// The square of a position in km; below zero too it is the corner to the south and west.
WaySquare WaySquareOf(double north_km, double east_km);

// North without blank, then east with its blank, filled up to 5 characters: "5378 412 ",
// "5395-11  ". A north below 1000 makes a shorter key.
std::string WayKey(WaySquare square);
// Where and when: "5378 412  240514 1230".
std::string WayPlaceAndTime(WaySquare square, const LocalTime& time);

// A line that has grown beyond this many characters is ended.
inline constexpr std::size_t kFullWayLine = 78;
// The beginning of a line, from its place and time.
std::string WayHead(std::string_view place_and_time);

bool IsNeighbour(WaySquare from, WaySquare to);  // or the same square
// The digit of a step: "0" north, "1" north-east, and so on with the sun to "7" north-west. Nothing
// for no step.
std::string WayDigit(WaySquare from, WaySquare to);
// More than 1 km both to the north or south and to the east or west.
bool IsWayJump(WaySquare from, WaySquare to);

// The line that tells of the program's end, for `QTHWAY.TXT` and `QTHACT.TXT`, in letters of the
// old code page.
std::string WayEndLine(std::string_view place_and_time);
// The ten letters "\xC4\xE4\xC5\xE5\xD6\xF6\xDC\xFC\xDF\xB5" by their codes in DOS code page 437.
std::string ToOemText(std::string_view text);

// The line of an outing: `point`, a line of a track, is its turning point, and `name` is of the
// file that it comes from, without the two letters in front.
//   "5390  415 240514 1300 OUT_A  OUTDOOR_ACT TK20240514.VEC"
std::string OutingLine(std::string_view point, std::string_view name);

}  // namespace zepril
