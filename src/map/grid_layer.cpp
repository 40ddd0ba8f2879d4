// The lines, steps and labels of each of the five grids.
#include "map/grid_layer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "map/grid_lines.h"
#include "map/lattice_part.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/scale_text.h"

namespace zepril {
namespace {

constexpr int kLinePixels = 100;      // between two lines
constexpr int kReachPixels = 5000;    // of the map's own grid, from the corner of the tile
constexpr int kGeographicSteps = 16;  // either way
constexpr double kHighestLatitude = 80.0;
constexpr double kMinutesShownBelow = 1000.0;  // metres a pixel
// How far a metric grid reaches from the centre either way, in thousands of pixels; in a window
// that is larger, to its corners.
constexpr double kMetricWidths = 1.0;
constexpr double kGaussKruegerEastWidths = 3.0;
constexpr double kMetricLimitKm = 10000.0;
constexpr double kGaussKruegerEastLimitKm = 20000.0;
constexpr int kMinutesPerTurn = 360 * 60;

// The systems that the read-outs show.
std::array<bool, kDisplayModes> ShownSystems(const MapViewState& view) {
  std::array<bool, kDisplayModes> shown{};
  for (const int mode : {view.CentreDisplayMode, view.CursorDisplayMode, view.MonitorDisplayMode}) {
    if (mode >= 0 && mode < kDisplayModes) shown[static_cast<std::size_t>(mode)] = true;
  }
  return shown;
}

// Kilometres as a label, to the metre.
std::string KilometreLabel(double km) {
  return PlainNumber(RoundHalfEven(km * 1000.0) / 1000.0 + 0.0);
}

// ---- The map's own zone ---------------------------------------------------------------------

void DrawMapGrid(DrawingSurface& surface, const MapViewState& view, PixelPoint last_tile,
                 GridLabels& taken) {
  GridPainter painter(surface, view, kMapGridColour, taken);
  const double step_km = kLinePixels * view.MetresPerPixel / 1000.0;
  // West and north edge of the tile; the row above its first pixel is the edge.
  const auto [x0, y0] = last_tile;
  const MapPosition corner = PositionOfPixel(view, x0, y0);
  const double west_km = RoundHalfEven(corner.EastKm / view.MapTileKm) * view.MapTileKm;
  const double north_km = RoundHalfEven(corner.NorthKm / view.MapTileKm) * view.MapTileKm;
  const int lines = kReachPixels / kLinePixels;
  for (int i = -lines; i <= lines; ++i) {
    const int x = x0 + i * kLinePixels;
    painter.Segment({x, -kReachPixels}, {x, kReachPixels});
    painter.Label(x + 4, view.ViewHeightPx - 12.0, KilometreLabel(west_km + i * step_km));
    const int y = y0 - 1 + i * kLinePixels;
    painter.Segment({-kReachPixels, y}, {kReachPixels, y});
    painter.Label(2, y - 12, KilometreLabel(north_km - i * step_km));
  }
}

// ---- Grids of converted points --------------------------------------------------------------

// Points in rows of equal north or latitude, and columns of equal east or longitude.
class GridLattice {
 public:
  // `part`: the rows and columns that are converted; they keep their numbers.
  template <typename Convert>
  GridLattice(const LatticePart& part, const Convert& convert) : part_(part) {
    points_.reserve(static_cast<std::size_t>(part.Rows.Count()) *
                    static_cast<std::size_t>(part.Columns.Count()));
    for (int row = part.Rows.First; row <= part.Rows.Last; ++row) {
      for (int column = part.Columns.First; column <= part.Columns.Last; ++column)
        points_.push_back(convert(row, column));
    }
  }
  std::span<const GridPoint> Row(int row) const {
    return std::span(points_).subspan(Index(row, part_.Columns.First),
                                      static_cast<std::size_t>(part_.Columns.Count()));
  }
  std::vector<GridPoint> Column(int column) const {
    std::vector<GridPoint> points;
    points.reserve(static_cast<std::size_t>(part_.Rows.Count()));
    for (int row = part_.Rows.First; row <= part_.Rows.Last; ++row)
      points.push_back(points_[Index(row, column)]);
    return points;
  }

 private:
  std::size_t Index(int row, int column) const {
    return static_cast<std::size_t>(row - part_.Rows.First) *
               static_cast<std::size_t>(part_.Columns.Count()) +
           static_cast<std::size_t>(column - part_.Columns.First);
  }
  LatticePart part_;
  std::vector<GridPoint> points_;
};

void DrawGeographicGrid(DrawingSurface& surface, const MapViewState& view, GridLabels& taken) {
  const Geodetic centre = UtmToGeodetic(view.MapCentralMeridian, view.CentreEastKm * 1000.0,
                                        view.CentreNorthKm * 1000.0, view.MapFalseEasting);
  if (!std::isfinite(centre.Lon) || !std::isfinite(centre.Lat)) return;
  const int step = GeographicStepMinutes(view.MetresPerPixel);
  // Everything in minutes of arc. From whole degrees on, longitudes run from the map's meridian.
  const int origin =
      step < 60 ? 0 : 60 * static_cast<int>(IntegerRemainder(view.MapCentralMeridian, step / 60.0));
  const auto whole_step = [step](double degrees) {
    return step * static_cast<int>(Int(degrees * 60.0 / step));
  };
  const int middle_lat = whole_step(centre.Lat);
  const int first_lon = whole_step(centre.Lon - origin / 60.0) + origin - kGeographicSteps * step;
  const int limit = whole_step(kHighestLatitude);
  const int first_lat = std::max(middle_lat - kGeographicSteps * step, -limit);
  const int last_lat = std::min(middle_lat + kGeographicSteps * step, limit);
  if (last_lat < first_lat) return;
  const LatticeAxis rows{1.0 * first_lat, 1.0 * step, (last_lat - first_lat) / step + 1};
  const LatticeAxis columns{1.0 * first_lon, 1.0 * step, 2 * kGeographicSteps + 1};
  const LatticePart part =
      PartInWindow(view, rows, columns, [&](const Geodetic& place) -> std::optional<LatticePlace> {
        // On the side of the date line where the columns are.
        const double lon = centre.Lon + std::remainder(place.Lon - centre.Lon, 360.0);
        return LatticePlace{place.Lat * 60.0, lon * 60.0};
      });
  const GridLattice lattice(part, [&](int row, int column) {
    return GridPointOf(view, (first_lon + column * step) / 60.0, (first_lat + row * step) / 60.0);
  });
  GridPainter painter(surface, view, kGeographicGridColour, taken);
  const bool with_minutes = view.MetresPerPixel < kMinutesShownBelow;
  for (int column = part.Columns.First; column <= part.Columns.Last; ++column) {
    painter.Line(lattice.Column(column), GridJoin::Unbroken, GridEdge::Bottom,
                 DegreeLabel(first_lon + column * step, with_minutes));
  }
  for (int row = part.Rows.First; row <= part.Rows.Last; ++row) {
    painter.Line(lattice.Row(row), GridJoin::Unbroken, GridEdge::Right,
                 DegreeLabel(first_lat + row * step, with_minutes));
  }
}

// Where the labels of a grid stand, and which places are gone.
struct GridEdges {
  GridSlots Slots;
  GridLabels& Taken;
};

// A grid in kilometres: where its labels stand, its colour, the reach of both axes.
struct MetricGrid {
  GridEdges Edges;
  Colour Ink;
  GridReach North;
  GridReach East;
};

LatticeAxis AxisOf(const GridReach& reach) {
  return {reach.First, reach.Step, reach.Count()};
}

// `to_wgs84`: the way from the system's metres, easting and northing; `from_wgs84`: the way there.
template <typename ToWgs84, typename FromWgs84>
void DrawMetricGrid(DrawingSurface& surface, const MapViewState& view, const MetricGrid& grid,
                    const ToWgs84& to_wgs84, const FromWgs84& from_wgs84) {
  const GridReach& north = grid.North;
  const GridReach& east = grid.East;
  const LatticePart part = PartInWindow(
      view, AxisOf(north), AxisOf(east), [&](const Geodetic& place) -> std::optional<LatticePlace> {
        const GridMetres there = from_wgs84(place.Lon, place.Lat);
        if (!SamePlace(to_wgs84(there.East, there.North), place)) return std::nullopt;
        return LatticePlace{there.North / 1000.0, there.East / 1000.0};
      });
  const GridLattice lattice(part, [&](int row, int column) {
    const Geodetic place = to_wgs84(east.At(column) * 1000.0, north.At(row) * 1000.0);
    return GridPointOf(view, place.Lon, place.Lat);
  });
  GridPainter painter(surface, view, grid.Ink, grid.Edges.Taken, grid.Edges.Slots);
  for (int column = part.Columns.First; column <= part.Columns.Last; ++column) {
    painter.Line(lattice.Column(column), GridJoin::Near, GridEdge::Top,
                 KilometreLabel(east.At(column)));
  }
  for (int row = part.Rows.First; row <= part.Rows.Last; ++row) {
    painter.Line(lattice.Row(row), GridJoin::Near, GridEdge::Left, KilometreLabel(north.At(row)));
  }
}

double WidthsIn(const MapViewState& view, double widths) {
  // In whole steps of 100 pixels, so that lines stay on round values.
  const double to_corner = std::hypot(view.ViewWidthPx, view.ViewHeightPx) / 2.0;
  return std::max(widths, std::ceil(to_corner / kLinePixels) / 10.0);
}

GridReach ReachOfText(const MapViewState& view, const std::string& text) {
  return GridReachOf(PositionTextKm(text), view.MetresPerPixel, WidthsIn(view, kMetricWidths),
                     kMetricLimitKm);
}

void DrawGaussKruegerGrid(DrawingSurface& surface, const MapViewState& view,
                          const CoordinateValues& centre, GridEdges edges) {
  // Wider to the east and west: the text of a strip of two digits has lost a digit, and its value
  // may lie a kilometre beside the centre.
  const GridReach east =
      GridReachOf(PositionTextKm(centre.GkEastText), view.MetresPerPixel,
                  WidthsIn(view, kGaussKruegerEastWidths), kGaussKruegerEastLimitKm);
  DrawMetricGrid(
      surface, view, {edges, kGaussKruegerGridColour, ReachOfText(view, centre.GkNorthText), east},
      [&](double easting, double northing) {
        return GaussKruegerToWgs84(easting, northing, centre.GkCentralMeridian);
      },
      [&](double lon, double lat) {
        return Wgs84ToGaussKrueger(lon, lat, centre.GkCentralMeridian);
      });
}

void DrawUtmGrid(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& centre,
                 GridEdges edges) {
  DrawMetricGrid(
      surface, view,
      {edges, kUtmGridColour, ReachOfText(view, centre.UtmNorthText),
       ReachOfText(view, centre.UtmEastText)},
      [&](double easting, double northing) {
        return UtmToGeodetic(centre.UtmCentralMeridian, easting, northing, kUtmFalseEasting);
      },
      [&](double lon, double lat) {
        return GeodeticToUtm(lon, lat, centre.UtmCentralMeridian, kUtmFalseEasting);
      });
}

void DrawRt90Grid(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& centre,
                  GridEdges edges) {
  DrawMetricGrid(surface, view,
                 {edges, kRt90GridColour, ReachOfText(view, centre.RtNorthText),
                  ReachOfText(view, centre.RtEastText)},
                 Rt90ToWgs84, Wgs84ToRt90);
}

}  // namespace

int GeographicStepMinutes(double metres_per_pixel) {
  struct Row {
    double From;  // metres a pixel
    int Minutes;
  };
  static constexpr Row kRows[] = {{3000.0, 600}, {1500.0, 300}, {700.0, 120},
                                  {300.0, 60},   {150.0, 30},   {90.0, 15},
                                  {60.0, 10},    {30.0, 5},     {15.0, 2}};
  for (const Row& row : kRows) {
    if (metres_per_pixel >= row.From) return row.Minutes;
  }
  return 1;
}

std::string DegreeLabel(int arc_minutes, bool with_minutes) {
  int minutes = arc_minutes % kMinutesPerTurn;
  if (minutes > kMinutesPerTurn / 2) minutes -= kMinutesPerTurn;
  if (minutes <= -kMinutesPerTurn / 2) minutes += kMinutesPerTurn;
  const int magnitude = std::abs(minutes);
  std::string text = minutes < 0 ? "-" : "";
  text += WholeNumber(magnitude / 60);
  if (with_minutes) text += ":" + ZeroPadded(magnitude % 60, 2);
  return text;
}

int GridReach::Count() const {
  constexpr double kGrace = 1e-6;  // of a step, for binary fractions
  return static_cast<int>(Int((Last - First) / Step + kGrace)) + 1;
}

GridReach GridReachOf(double centre_km, double metres_per_pixel, double widths, double limit) {
  const double step = metres_per_pixel / 10.0;  // km that 100 pixels show
  const double first = step * Int(centre_km / step) - widths * metres_per_pixel;
  const double last = first + 2.0 * widths * metres_per_pixel;
  return {std::clamp(first, -limit, limit), std::clamp(last, -limit, limit), step};
}

GridSlots SlotsAmong(const std::array<bool, kDisplayModes>& shown, DisplayMode mode) {
  GridSlots slots;
  for (const DisplayMode before :
       {DisplayMode::MapUtm, DisplayMode::GaussKrueger, DisplayMode::UtmByPosition}) {
    if (before >= mode || !shown[static_cast<std::size_t>(before)]) continue;
    ++slots.Left;
    if (before != DisplayMode::MapUtm) ++slots.Top;
  }
  return slots;
}

void DrawGrid(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& values,
              DisplayMode mode, PixelPoint last_tile, GridSlots slots, GridLabels& taken) {
  if (mode == DisplayMode::MapUtm) return DrawMapGrid(surface, view, last_tile, taken);
  if (mode == DisplayMode::Geographic) return DrawGeographicGrid(surface, view, taken);
  const GridEdges edges{slots, taken};
  // The centre in the strips in use. The read-outs' own values are theirs.
  CoordinateValues centre = values;
  GridToGeo(centre, view, view.CentreNorthKm, view.CentreEastKm);
  GeoToAllGrids(centre);
  if (mode == DisplayMode::GaussKrueger) DrawGaussKruegerGrid(surface, view, centre, edges);
  if (mode == DisplayMode::UtmByPosition) DrawUtmGrid(surface, view, centre, edges);
  if (mode == DisplayMode::Rt90) DrawRt90Grid(surface, view, centre, edges);
}

void GridLayer(DrawingSurface& surface, const MapViewState& view, const CoordinateValues& values,
               DisplayMode mode, PixelPoint last_tile, GridLabels& taken) {
  const auto shown = ShownSystems(view);
  if (!shown[static_cast<std::size_t>(mode)]) return;
  DrawGrid(surface, view, values, mode, last_tile, SlotsAmong(shown, mode), taken);
}

}  // namespace zepril
