#include "map/track_layer.h"

namespace zepril {
void TrackLayer(DrawingSurface&, const MapViewState&, const PointList&) {}
void DrawTrackPointText(DrawingSurface&, const PointList&, int, int, int) {}
std::optional<int> FindPointNear(const PointList&, double, double, double) {
  return std::nullopt;
}
}  // namespace zepril
