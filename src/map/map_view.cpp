// Clamps the centre, computes the edges, and goes from kilometres to pixels and back.
#include "map/map_view.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"
#include "map/scales.h"

namespace zepril {
namespace {

double Held(double value, double limit) {
  return std::isnan(value) ? 0.0 : std::clamp(value, -limit, limit);
}

}  // namespace

void ClampCentre(MapViewState& view) {
  view.CentreNorthKm = Held(view.CentreNorthKm, kHighestCentreKm);
  view.CentreEastKm = Held(view.CentreEastKm, kHighestCentreKm);
}

void ComputeViewEdges(MapViewState& view) {
  if (!ScaleRow(view.MapTileKm)) view.MapTileKm = kMapScaleTable.front().TileKm;
  if (!(view.ZoomFactor > 0.0)) view.ZoomFactor = 1.0;
  view.MetresPerPixel = view.ZoomFactor * view.MapTileKm;
  view.PixelsPerKm = 1000.0 / view.MetresPerPixel;
  const double half_height = view.ViewHeightPx / 2.0;
  const double half_width = view.ViewWidthPx / 2.0;
  const double p = view.MetresPerPixel;
  view.ViewSouthKm = view.CentreNorthKm - half_height * p / 1000.0;
  view.ViewNorthKm = view.CentreNorthKm + (half_height - 1.0) * p / 1000.0;
  view.ViewWestKm = view.CentreEastKm - half_width * p / 1000.0;
  view.ViewEastKm = view.CentreEastKm + (half_width - 1.0) * p / 1000.0;
}

int DrawPixel(double pixel, double limit) {
  return static_cast<int>(ToWhole(Held(pixel, limit)));
}

double ExactPixelX(const MapViewState& view, double east_km) {
  return (east_km - view.ViewWestKm) * view.PixelsPerKm;
}

double ExactPixelY(const MapViewState& view, double north_km) {
  return (view.ViewNorthKm - north_km) * view.PixelsPerKm;
}

PixelPoint MarkPixel(const MapViewState& view, double north_km, double east_km) {
  return {DrawPixel((east_km - view.ViewWestKm + kPixelGraceKm) * view.PixelsPerKm),
          DrawPixel((view.ViewNorthKm - north_km + kPixelGraceKm) * view.PixelsPerKm)};
}

MapPosition PositionOfPixel(const MapViewState& view, double x, double y) {
  const double p = view.MetresPerPixel;
  return {view.CentreNorthKm - (y - (view.ViewHeightPx / 2.0 - 1.0)) * p / 1000.0,
          (x - view.ViewWidthPx / 2.0) * p / 1000.0 + view.CentreEastKm};
}

PixelPoint CentrePixel(const MapViewState& view) {
  return {DrawPixel(view.ViewWidthPx / 2.0), DrawPixel(view.ViewHeightPx / 2.0 - 1.0)};
}

}  // namespace zepril
