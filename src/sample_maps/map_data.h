// What the sample maps are drawn from, read from its files and laid out in the kilometre grid.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace zepril {

constexpr double kSampleMeridian = 15;  // of zone 33

struct MapPoint {
  double EastKm = 0;
  double NorthKm = 0;
};

struct Outline {
  std::vector<MapPoint> Points;
  MapPoint Low, High;  // corners of the box around the points
};

struct MapPlace {
  MapPoint At;
  int Rank = 3;  // 1 largest
  std::string Name;
};

using LetterRows = std::array<std::uint8_t, 15>;  // a byte a row, leftmost column highest

struct MapData {
  std::vector<Outline> Land;  // closed rings, lakes too; what an odd number of them holds is land
  std::vector<Outline> Borders;  // open lines
  std::vector<MapPlace> Towns;
  std::vector<MapPlace> Waters;
  std::array<LetterRows, 256> Letters{};  // by byte of code page 1252
};

// Reads the five files of `source`. Nothing, with `fault` naming the file, when one is missing or
// not understood. Land is cut off 90 degrees from the middle of the zone and 5 degrees south of
// the equator, where the grid ends to make sense.
std::optional<MapData> ReadMapData(const Files& files, const std::string& source,
                                   std::string& fault);

}  // namespace zepril
