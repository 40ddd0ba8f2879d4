// Paints one tile.
#pragma once

#include <cstdint>
#include <vector>

#include "sample_maps/labels.h"
#include "sample_maps/map_data.h"

namespace zepril {

struct TileStyle {
  bool Relief = false;
  int NearPixels = 4;   // width of the light strip of sea along the coast
  int ShorePixels = 9;  // and of the second one outside of it
  bool BorderBand = true;
};

struct SampleTile {
  int NorthKm = 0, EastKm = 0;  // south-west corner
  int SideKm = 1000;
};

// 1000 x 1000 indices, top row first: inks, or entries of the relief palette.
std::vector<std::uint8_t> PaintTile(const MapData& data, const Labels& labels,
                                    const SampleTile& place, const TileStyle& style);

}  // namespace zepril
