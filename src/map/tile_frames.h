// Shows where tiles exist: boundaries of the tile grid and frames of the tiles of each ticked
// scale.
#pragma once

#include "core/controls/scale_controls.h"
#include "core/state/map_view.h"
#include "map/map_library.h"
#include "platform/drawing_surface.h"

namespace zepril {

// For each scale whose frame box is ticked: black lines along the tile boundaries across the whole
// window, where a tile is more than 9 pixels wide, and a box in the colour of the scale around
// every tile of its selected folder that touches the view. Tiles are known by the index file alone.
void TileFrames(DrawingSurface& surface, const MapViewState& view, const MapLibrary& library,
                const ScaleControls& scales);

}  // namespace zepril
