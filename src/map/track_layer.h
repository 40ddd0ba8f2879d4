// The track that is loaded, as a line over the map.
#pragma once

#include <optional>

#include "core/point_list.h"
#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

void TrackLayer(DrawingSurface& surface, const MapViewState& view, const PointList& track);

// The text of point `index` at pixel (x, y), as a press on the track shows it.
void DrawTrackPointText(DrawingSurface& surface, const PointList& track, int index, int x, int y);

// 1-based number of the first point less than `tolerance_km` away in both directions.
std::optional<int> FindPointNear(const PointList& points, double north_km, double east_km,
                                 double tolerance_km);

}  // namespace zepril
