// The places that are loaded, as marks over the map.
#pragma once

#include "core/point_list.h"
#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// `PoiLevel` 1 marks alone, 2 marks and names.
void PoiLayer(DrawingSurface& surface, const MapViewState& view, const PointList& places);

}  // namespace zepril
