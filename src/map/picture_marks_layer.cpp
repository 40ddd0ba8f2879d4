#include "map/picture_marks_layer.h"

namespace zepril {
void PictureMarksLayer(DrawingSurface&, const MapViewState&) {}
std::optional<int> FindPictureNear(const MapViewState&, double, double) {
  return std::nullopt;
}
}  // namespace zepril
