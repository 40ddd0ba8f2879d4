#include "map/grid_layer.h"

namespace zepril {
void GridLayer(DrawingSurface&, const MapViewState&, const CoordinateValues&, DisplayMode,
               PixelPoint) {}
}  // namespace zepril
