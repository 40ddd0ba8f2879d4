// The track that is loaded, as a line over the map.
#pragma once

#include <optional>

#include "core/point_list.h"
#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// A three-pixel line from point to point, broken at 0/0, and the text of the last point in a black
// box. A million points cost little more than their number where they lie outside the window or on
// the same pixel.
void TrackLayer(DrawingSurface& surface, const MapViewState& view, const PointList& track);

// The text of point `index` beside pixel (x, y), as a press on the track shows it: black in a box
// of the track's colour, moved so that it lies inside the window. A point without text draws
// nothing.
void DrawTrackPointText(DrawingSurface& surface, const PointList& track, int index, int x, int y);

// 1-based number of the first point less than `tolerance_km` away in both directions.
std::optional<int> FindPointNear(const PointList& points, double north_km, double east_km,
                                 double tolerance_km);

}  // namespace zepril
