// Circles of equal distance around the map centre, with the frequency that carries there.
#pragma once

#include "core/state/map_view.h"
#include "map/propagation_estimate.h"
#include "platform/drawing_surface.h"

namespace zepril {

void CirclesLayer(DrawingSurface& surface, const MapViewState& view,
                  const PropagationInputs& inputs);

}  // namespace zepril
