#include "map/circles_layer.h"

namespace zepril {
void CirclesLayer(DrawingSurface&, const MapViewState&, const PropagationInputs&) {}
}  // namespace zepril
