// The six fixed scales of the map library, coarse to fine.
//
// A scale is known by the side of one tile in kilometres, which is also its native resolution in
// metres per pixel. A folder is named by the five-character prefix; text behind it names a map
// type.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/drawing_surface.h"

namespace zepril {

struct MapScale {
  std::string_view FolderPrefix;  // "M5000"
  double TileKm;                  // side of a tile
  Colour FrameColour;             // tile frames
};

inline constexpr int kMapScales = 6;
inline constexpr std::size_t kScalePrefixLength = 5;
inline constexpr int kTilePixels = 1000;  // side of a tile

inline constexpr std::array<MapScale, kMapScales> kMapScaleTable{{
    {"M5000", 5000.0, 0xC0A000},
    {"M1000", 1000.0, 0xF0F0F0},
    {"M0200", 200.0, 0x00D0E0},
    {"M0050", 50.0, 0x4040E0},
    {"M0010", 10.0, 0x00FF00},
    {"M0002", 2.0, 0x00C0FF},
}};

// Row of a scale, 0 to 5; nothing for a side that is none of the six.
constexpr std::optional<int> ScaleRow(double tile_km) {
  for (int row = 0; row < kMapScales; ++row) {
    if (kMapScaleTable[static_cast<std::size_t>(row)].TileKm == tile_km) return row;
  }
  return std::nullopt;
}

}  // namespace zepril
