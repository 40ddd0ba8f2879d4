// What the sample maps are drawn from, read from its files and laid out in the kilometre grid.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace zepril {

constexpr double kSampleMeridian = 15;  // of zone 33

struct MapPoint {
  double east_km = 0;
  double north_km = 0;
};

struct Outline {
  std::vector<MapPoint> points;
  MapPoint low, high;  // corners of the box around the points
};

struct MapPlace {
  MapPoint at;
  int rank = 3;  // 1 largest
  std::string name;
};

using LetterRows = std::array<std::uint8_t, 15>;  // a byte a row, leftmost column highest

struct MapData {
  std::vector<Outline> land;  // closed rings, lakes too; what an odd number of them holds is land
  std::vector<Outline> borders;  // open lines
  std::vector<MapPlace> towns;
  std::vector<MapPlace> waters;
  std::array<LetterRows, 256> letters{};  // by byte of code page 1252
};

// Reads the five files of `source`. Nothing, with `fault` naming the file, when one is missing or
// not understood. Land is cut off 90 degrees from the middle of the zone and 5 degrees south of
// the equator, where the grid ends to make sense.
std::optional<MapData> ReadMapData(const std::filesystem::path& source, std::string& fault);

}  // namespace zepril
