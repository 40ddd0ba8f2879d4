// Places spread over the window, brought into the grid's system, tell the lines between them.
#include "map/lattice_part.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "map/map_view.h"

namespace zepril {
namespace {

constexpr int kPlaces = 5;            // along each side of the window
constexpr double kWidestKm = 8000.0;  // diagonal of a window whose grids bend little
constexpr double kHighestLatitude = 80.0;
constexpr double kSameDegrees = 1e-5;
// How far the lines go on beyond those of the places: grids bend between two of them, and a line
// that is seen comes from a point that is not.
constexpr double kShareBeyond = 0.2;
constexpr double kLinesBeyond = 2.0;

struct Span {
  double Low = std::numeric_limits<double>::infinity();
  double High = -std::numeric_limits<double>::infinity();
  void Take(double value) {
    Low = std::min(Low, value);
    High = std::max(High, value);
  }
};

LineNumbers LinesOf(const LatticeAxis& axis, const Span& span) {
  const double beyond = kShareBeyond * (span.High - span.Low) + kLinesBeyond * axis.Step;
  const double last = axis.Count - 1.0;
  const double from = std::floor((span.Low - beyond - axis.First) / axis.Step);
  const double to = std::ceil((span.High + beyond - axis.First) / axis.Step);
  if (!(from <= last && to >= 0.0)) return {};
  return {static_cast<int>(std::max(from, 0.0)), static_cast<int>(std::min(to, last))};
}

// Nothing where the map's own projection does not lead there and back.
std::optional<Geodetic> PlaceAt(const MapViewState& view, double x, double y) {
  const MapPosition at = PositionOfPixel(view, x, y);
  const Geodetic place = UtmToGeodetic(view.MapCentralMeridian, at.EastKm * 1000.0,
                                       at.NorthKm * 1000.0, view.MapFalseEasting);
  const GridMetres back =
      GeodeticToUtm(place.Lon, place.Lat, view.MapCentralMeridian, view.MapFalseEasting);
  const double off = std::hypot(back.East / 1000.0 - at.EastKm, back.North / 1000.0 - at.NorthKm);
  if (!(off <= 0.001) || !(std::fabs(place.Lat) <= kHighestLatitude)) return std::nullopt;
  return place;
}

bool BendsLittle(const MapViewState& view) {
  const MapPosition from = PositionOfPixel(view, 0, 0);
  const MapPosition to = PositionOfPixel(view, view.ViewWidthPx, view.ViewHeightPx);
  return std::hypot(to.EastKm - from.EastKm, to.NorthKm - from.NorthKm) <= kWidestKm;
}

}  // namespace

bool SamePlace(const Geodetic& one, const Geodetic& two) {
  return std::fabs(one.Lon - two.Lon) <= kSameDegrees &&
         std::fabs(one.Lat - two.Lat) <= kSameDegrees;
}

LatticePart PartInWindow(
    const MapViewState& view, const LatticeAxis& rows, const LatticeAxis& columns,
    const std::function<std::optional<LatticePlace>(const Geodetic&)>& place_of) {
  const LatticePart whole{{0, rows.Count - 1}, {0, columns.Count - 1}};
  if (!BendsLittle(view)) return whole;
  Span row;
  Span column;
  for (int i = 0; i < kPlaces * kPlaces; ++i) {
    constexpr double kPieces = kPlaces - 1.0;
    const int across = i % kPlaces;
    const int down = i / kPlaces;
    const auto place =
        PlaceAt(view, view.ViewWidthPx * across / kPieces, view.ViewHeightPx * down / kPieces);
    const auto there = place ? place_of(*place) : std::nullopt;
    if (!there) return whole;
    row.Take(there->Row);
    column.Take(there->Column);
  }
  const LatticePart part{LinesOf(rows, row), LinesOf(columns, column)};
  return part.Rows.Count() > 0 && part.Columns.Count() > 0 ? part : whole;
}

}  // namespace zepril
