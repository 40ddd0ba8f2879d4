// The map itself: the tiles in view, stretched to the zoom factor, with brightness and ink.
#pragma once

#include <functional>

#include "core/controls/palette_controls.h"
#include "core/state/map_view.h"
#include "map/tile_cache.h"
#include "platform/drawing_surface.h"

namespace zepril {

inline constexpr Colour kMissingTileColour = 0x505050;
// From the first saved map on, so that it prints well.
inline constexpr Colour kMissingTileAfterSave = 0xFFFFFF;

// Where a tile stands on the screen.
struct TilePlace {
  double SouthKm = 0.0;
  double WestKm = 0.0;
  PixelRect Target;
};

// Calls `visit` for every tile in view, south to north, west to east in each row.
void ForEachTileInView(const MapViewState& view,
                       const std::function<void(const TilePlace&)>& visit);

// Draws the tiles of the active folder and keeps the ink state: a tile of 16 inks turns it on, a
// tile of more than 600000 bytes off, and while it is off the palette panel is hidden and no ink
// chosen. A tile that can't be loaded is a filled rectangle. Returns the pixel corner of the last
// tile place, from which the grid of the map zone starts.
PixelPoint DrawActiveTiles(DrawingSurface& surface, TileCache& cache, MapViewState& view,
                           PaletteControls& palette);

// Draws the tiles of the plain folder of the scale, without palette work.
void DrawBaseTiles(DrawingSurface& surface, TileCache& cache, const MapViewState& view);

}  // namespace zepril
