// Places names in their order, each where it meets none before it.
#include "sample_maps/labels.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace zepril {
namespace {

struct Box {
  int Left, Top, Right, Bottom;
};

bool Meet(const Box& a, const Box& b) {
  return a.Left < b.Right && b.Left < a.Right && a.Top < b.Bottom && b.Top < a.Bottom;
}

class Placer {
 public:
  explicit Placer(double km_per_pixel) : km_per_pixel_(km_per_pixel) {}

  void Town(const MapPlace& town) {
    const int x = Pixel(town.At.EastKm), y = Pixel(-town.At.NorthKm);
    const int r = DotRadius(town.Rank);
    const Box dot{x - r - 1, y - r - 1, x + r + 2, y + r + 2};
    if (town.Rank > 2 && !Free(dot)) return;
    MapLabel label{0, 0, 8, town.Rank, false, town.Name};
    const int w = LabelWidth(label);
    // The ink of a letter's cell begins three rows down and ends three rows above its foot.
    const int gap = r + 3, up = -r - 15, down = r - 1;
    const std::optional<MapLabel> placed = Try(label, {{x + gap, y - 7},
                                                       {x - gap - w, y - 7},
                                                       {x + r, y + up},
                                                       {x + r, y + down},
                                                       {x - w / 2, y + up},
                                                       {x - w / 2, y + down},
                                                       {x - r - w, y + up},
                                                       {x - r - w, y + down}});
    if (!placed && town.Rank > 2) return;
    taken_.push_back(dot);
    result_.Dots.push_back({x, y, town.Rank});
    if (placed) Keep(*placed);
  }

  void Water(const MapPlace& water) {
    const int x = Pixel(water.At.EastKm), y = Pixel(-water.At.NorthKm);
    MapLabel label{0, 0, water.Rank == 1 ? 16 : water.Rank == 2 ? 14 : 11, 3, true, water.Name};
    const int w = LabelWidth(label);
    std::vector<std::pair<int, int>> tries;
    for (const int dy : {0, 20, -20, 40, -40})
      tries.push_back({x - w / 2, y - 7 + dy});
    if (const auto placed = Try(label, tries)) Keep(*placed);
  }

  Labels Take() { return std::move(result_); }

 private:
  int Pixel(double km) const { return static_cast<int>(std::floor(km / km_per_pixel_)); }

  static Box BoxOf(const MapLabel& label) {
    return {label.X - 1, label.Y + 2, label.X + LabelWidth(label) + 1, label.Y + kLabelHeight};
  }

  bool Free(const Box& box) const {
    return std::none_of(taken_.begin(), taken_.end(), [&](const Box& b) { return Meet(b, box); });
  }

  std::optional<MapLabel> Try(MapLabel label,
                              const std::vector<std::pair<int, int>>& places) const {
    for (const auto& [x, y] : places) {
      label.X = x;
      label.Y = y;
      if (Free(BoxOf(label))) return label;
    }
    return std::nullopt;
  }

  void Keep(const MapLabel& label) {
    taken_.push_back(BoxOf(label));
    result_.Names.push_back(label);
  }

  double km_per_pixel_;
  std::vector<Box> taken_;
  Labels result_;
};

}  // namespace

Labels PlaceLabels(const MapData& data, double km_per_pixel, int last_town, int last_water) {
  Placer placer(km_per_pixel);
  for (int rank = 1; rank <= last_town; ++rank) {
    for (const MapPlace& town : data.Towns) {
      if (town.Rank == rank) placer.Town(town);
    }
  }
  for (const MapPlace& water : data.Waters) {
    if (water.Rank <= last_water) placer.Water(water);
  }
  return placer.Take();
}

}  // namespace zepril
