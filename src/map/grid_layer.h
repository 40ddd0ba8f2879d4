// Coordinate grids over the map, one for each system that a read-out is in.
#pragma once

#include "core/state/map_view.h"
#include "map/coordinate_values.h"
#include "map/readouts.h"
#include "platform/drawing_surface.h"

namespace zepril {

// Draws the grid of `mode` if the centre, the cursor or the station read-out shows that system.
// `values`: the strips chosen last. `last_tile`: pixel corner of the last tile drawn, where the
// grid of the map's own zone is anchored.
void GridLayer(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& values,
               DisplayMode mode, PixelPoint last_tile);

}  // namespace zepril
