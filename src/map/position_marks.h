// Marks of single positions: the centre, the own station, the own object.
#pragma once

#include <string_view>

#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// A yellow X at the centre of the window.
void DrawCentreMark(DrawingSurface& surface, const MapViewState& view);

// Nested boxes and four ticks around the own position, in yellow, or in the GPS colour.
void DrawOwnPosition(DrawingSurface& surface, const MapViewState& view, bool from_gps);

// The own object: a mark of the marks font, rimmed in black, and its name in a black box. An empty
// name draws nothing.
void DrawOwnObject(DrawingSurface& surface, const MapViewState& view, double north_km,
                   double east_km, std::string_view name, bool on_air);

}  // namespace zepril
