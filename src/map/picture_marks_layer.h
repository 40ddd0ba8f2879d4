// Marks where geo-referenced pictures were taken, and the picture near a position.
//
// A picture is named like a tile: north and east in km, four characters each, and an extension of
// three ("58000400.JPG"). What is named otherwise has no place and no mark.
#pragma once

#include <optional>
#include <string_view>

#include "core/state/map_view.h"
#include "map/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// White square frames with black lines on both sides, 8 pixels wide, 14 where a pixel is 200 metres
// or less.
void PictureMarksLayer(DrawingSurface& surface, const MapViewState& view);

// 1-based number of the first picture whose mark covers the position; nothing when none does. It is
// near when it lies less than the side of the frame and half a kilometre away in both directions.
std::optional<int> FindPictureNear(const MapViewState& view, double north_km, double east_km);

// The place that a picture's name tells: the south-west corner of its kilometre.
std::optional<MapPosition> PlaceOfPicture(std::string_view name);

}  // namespace zepril
