// zepril-tool coords: positions through every grid of the program.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace zepril {

inline constexpr std::string_view kCoordsHelp =
    "positions through every grid: \"longitude latitude\" lines [--zone U33] [--header], or "
    "\"east north\" lines of the map zone with --inverse";

int RunCoords(std::span<const std::string_view> args);

// One line of output, without its end, for a position in degrees: metres with four decimals,
// separated by tabs. Columns: utm_e utm_n gk_zone gk_e gk_n utmpos_zone utmpos_e utmpos_n rt_e rt_n
// locator lat_text lon_text.
std::string CoordsLine(double lon, double lat, int map_zone);
// Longitude and latitude with nine decimals for a place in the grid of the map zone, metres.
std::string InverseCoordsLine(double east, double north, int map_zone);

struct NumberPair {
  double First = 0.0;
  double Second = 0.0;
};
// Two numbers separated by blanks or tabs; nothing when the line does not hold exactly two.
std::optional<NumberPair> ReadNumberPair(std::string_view line);

}  // namespace zepril
