// Layers that lie over the tiles and are no stations: coordinate grids, distance circles, marks of
// pictures, tracks, places; and the picture that can fill the map window. The redraw calls them in
// its order; what is not overridden draws nothing.
#pragma once

#include "core/state/map_view.h"
#include "map/readouts.h"
#include "platform/drawing_surface.h"

namespace zepril {

class OverlayLayers {
 public:
  virtual ~OverlayLayers() = default;

  // The grid of one display system. `last_tile`: pixel corner of the last tile place, where the
  // grid of the map's own zone starts.
  virtual void GridLayer(DrawingSurface&, const MapViewState&, DisplayMode, PixelPoint) {}
  virtual void CirclesLayer(DrawingSurface&, const MapViewState&) {}
  virtual void PictureMarksLayer(DrawingSurface&, const MapViewState&) {}
  virtual void TrackLayer(DrawingSurface&, const MapViewState&) {}
  virtual void PoiLayer(DrawingSurface&, const MapViewState&) {}
  // The geo-referenced picture in place of the map.
  virtual void ShowPicture(DrawingSurface&, const MapViewState&) {}
};

}  // namespace zepril
