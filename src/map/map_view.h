// Geometry of the map window: what part of the zone is seen, and where a position lies in it.
//
// Kilometres are in the UTM zone of the map library; pixels count from the window's top left,
// rising to the right and down. The centre of a window of W x H pixels is pixel (W/2, H/2 - 1): the
// view is asymmetric by one pixel.
#pragma once

#include "core/state/map_view.h"
#include "platform/drawing_surface.h"

namespace zepril {

// Drawing coordinates are held within this many pixels, the sign kept.
inline constexpr double kPixelLimit = 4000.0;
// The map ends here, either way.
inline constexpr double kHighestCentreKm = 9999.999;
// Added to a station's or a tile's position so that binary fractions don't push it off its pixel.
inline constexpr double kPixelGraceKm = 0.0001;

// Holds the centre within the map.
void ClampCentre(MapViewState& view);

// Resolution and edges of the view from centre, scale, zoom factor and size. A zoom factor of 0
// acts as 1; a scale that is none of the six becomes 5000.
void ComputeViewEdges(MapViewState& view);

// A pixel coordinate as the drawing layer takes it: held within `limit`, rounded half to even.
int DrawPixel(double pixel, double limit = kPixelLimit);

// Pixel of a position: the exact one, and the one of stations and marks with the grace added.
double ExactPixelX(const MapViewState& view, double east_km);
double ExactPixelY(const MapViewState& view, double north_km);
PixelPoint MarkPixel(const MapViewState& view, double north_km, double east_km);

// Position of a pixel of the window.
struct MapPosition {
  double NorthKm = 0.0;
  double EastKm = 0.0;
};
MapPosition PositionOfPixel(const MapViewState& view, double x, double y);

// The pixel of the window's centre.
PixelPoint CentrePixel(const MapViewState& view);

}  // namespace zepril
