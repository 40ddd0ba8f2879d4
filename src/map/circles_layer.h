// Circles of equal distance around the map centre, every 100 pixels up to 1000, with the frequency
// that carries there.
//
// East, south, west and north on each circle stands its distance ("500 km", "0.5 km") and, below
// 3001 km and where an estimate can be made, a second line: "Fopt=14.2", or in the detailed mode
// the estimates of the two models and their mean, "14.2 12.1 13.5". Black on a white rim.
#pragma once

#include "core/state/map_view.h"
#include "map/propagation_estimate.h"
#include "platform/drawing_surface.h"

namespace zepril {

void CirclesLayer(DrawingSurface& surface, const MapViewState& view,
                  const PropagationInputs& inputs);

}  // namespace zepril
