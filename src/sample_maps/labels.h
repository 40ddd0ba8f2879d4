// Where the dots and names of a scale stand: decided once for the whole scale, so that a name runs
// on across tile edges.
#pragma once

#include <vector>

#include "sample_maps/map_data.h"

namespace zepril {

// Pixels of the whole scale: x eastward from easting 0, y southward from northing 0.
struct Dot {
  int X = 0, Y = 0;
  int Rank = 3;
};

struct MapLabel {
  int X = 0, Y = 0;  // top left of the first letter's cell
  int Step = 8;      // from letter to letter
  int Rank = 3;      // 1: drawn bold
  bool Water = false;
  std::string Text;
};

struct Labels {
  std::vector<Dot> Dots;
  std::vector<MapLabel> Names;
};

constexpr int kLabelHeight = 15;

inline int DotRadius(int rank) {
  return rank == 1 ? 4 : rank == 2 ? 3 : 2;
}
inline int LabelWidth(const MapLabel& label) {
  return label.Step * static_cast<int>(label.Text.size());
}

// Larger towns choose first; a name that finds no free place is left out, and with it the dot of a
// small town. Places of a rank above `last_town` or `last_water` are not shown.
Labels PlaceLabels(const MapData& data, double km_per_pixel, int last_town, int last_water);

}  // namespace zepril
