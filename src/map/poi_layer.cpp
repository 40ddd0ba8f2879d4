#include "map/poi_layer.h"

namespace zepril {
void PoiLayer(DrawingSurface&, const MapViewState&, const PointList&) {}
}  // namespace zepril
