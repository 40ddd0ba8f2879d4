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

// A glyph of the marks font whose cell begins at (left, top), nine times in black as a rim around
// it and once in its colour.
void DrawMarkGlyph(DrawingSurface& surface, int left, int top, std::string_view glyph, Colour ink);

// The name of what is marked at (x, y), in a black box to the right. An empty one draws nothing.
void DrawMarkName(DrawingSurface& surface, int x, int y, std::string_view name, Colour ink);

}  // namespace zepril
