// Marks where geo-referenced pictures were taken, and the picture near a position.
#pragma once

#include <optional>

#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

void PictureMarksLayer(DrawingSurface& surface, const MapViewState& view);

// 1-based number of the first picture whose mark covers the position; nothing when none does.
std::optional<int> FindPictureNear(const MapViewState& view, double north_km, double east_km);

}  // namespace zepril
