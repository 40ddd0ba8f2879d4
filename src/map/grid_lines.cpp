// Finds where pieces of a line cross the window's edges, and where its label stands.
#include "map/grid_lines.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include "geodesy/conversions.h"
#include "map/map_view.h"
#include "map/window_cut.h"

namespace zepril {
namespace {

constexpr int kFarthestNeighbour = 120;  // pixels
constexpr double kTearKm = 10000.0;
constexpr int kCharacterPixels = 8;
constexpr double kLabelHeight = 12.0;
constexpr double kLabelGap = 4.0;     // to the right of a vertical line
constexpr double kSlotWidth = 72.0;   // of a label and its margins
constexpr double kLabelMargin = 2.0;  // from the left and right edge

constexpr int kRim = 1;  // pixels around a label

int WidthOf(std::size_t characters) {
  return kCharacterPixels * static_cast<int>(characters);
}

// Where a piece of a line crosses the vertical x = `at`: its y.
std::optional<double> CrossingY(const PixelLine& piece, double at) {
  const double x1 = piece.From.X - at;
  const double x2 = piece.To.X - at;
  if ((x1 < 0.0) == (x2 < 0.0)) return std::nullopt;
  return piece.From.Y + (piece.To.Y - piece.From.Y) * x1 / (x1 - x2);
}

std::optional<double> CrossingX(const PixelLine& piece, double at) {
  return CrossingY({{piece.From.Y, piece.From.X}, {piece.To.Y, piece.To.X}}, at);
}

GridEdge OtherEdge(GridEdge edge) {
  return edge == GridEdge::Left || edge == GridEdge::Bottom ? GridEdge::Top : GridEdge::Left;
}

}  // namespace

GridPoint GridPointOf(const MapViewState& view, double lon, double lat) {
  double from_meridian = std::fmod(lon - view.MapCentralMeridian, 360.0);
  if (from_meridian > 180.0) from_meridian -= 360.0;
  if (from_meridian < -180.0) from_meridian += 360.0;
  const GridMetres place = GeodeticToUtm(view.MapCentralMeridian + from_meridian, lat,
                                         view.MapCentralMeridian, view.MapFalseEasting);
  const double x = ExactPixelX(view, place.East / 1000.0);
  const double y = ExactPixelY(view, place.North / 1000.0);
  return {{DrawPixel(x), DrawPixel(y)}, x, y, std::isfinite(x) && std::isfinite(y)};
}

GridPainter::~GridPainter() {
  if (!segments_.empty()) surface_.Lines(segments_, colour_);
  for (const LabelText& label : labels_) {
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy)
        surface_.Text(label.X + dx, label.Y + dy, label.Text, FontFace::Text, kBlack);
    }
    surface_.Text(label.X, label.Y, label.Text, FontFace::Text, colour_);
  }
}

void GridPainter::Segment(PixelPoint from, PixelPoint to) {
  if (TouchesWindow(surface_, from, to)) segments_.push_back({from, to});
}

void GridPainter::Label(double x, double y, const std::string& text) {
  const PixelPoint at{DrawPixel(x), DrawPixel(y)};
  const bool inside = at.X >= 0 && at.X < surface_.Width() && at.Y >= 0 && at.Y < surface_.Height();
  if (!inside) return;
  const int last_x = surface_.Width() - kRim - WidthOf(text.size());
  const int held_x = std::max(std::min(at.X, last_x), kRim);
  const int held_y = std::max(at.Y, kRim);
  if (taken_.Take(held_x, held_y, text.size())) labels_.push_back({held_x, held_y, text});
}

bool GridLabels::Take(int x, int y, std::size_t length) {
  const int width = WidthOf(length);
  const bool free = std::none_of(taken_.begin(), taken_.end(), [&](const Cell& other) {
    return x < other.X + other.Width && other.X < x + width &&
           std::abs(y - other.Y) < static_cast<int>(kLabelHeight);
  });
  if (free) taken_.push_back({x, y, width});
  return free;
}

bool GridPainter::Joined(const GridPoint& a, const GridPoint& b, GridJoin join) const {
  if (!a.Known || !b.Known) return false;
  if (join == GridJoin::Near) {
    return std::abs(b.Pixel.X - a.Pixel.X) <= kFarthestNeighbour &&
           std::abs(b.Pixel.Y - a.Pixel.Y) <= kFarthestNeighbour;
  }
  const double tear = kTearKm * view_.PixelsPerKm;
  return std::fabs(b.X - a.X) <= tear && std::fabs(b.Y - a.Y) <= tear;
}

void GridPainter::Line(std::span<const GridPoint> points, GridJoin join, GridEdge edge,
                       const std::string& label) {
  line_.clear();
  for (std::size_t i = 1; i < points.size(); ++i) {
    const GridPoint& from = points[i - 1];
    const GridPoint& to = points[i];
    if (!Joined(from, to, join) || !TouchesWindow(surface_, from.Pixel, to.Pixel)) continue;
    line_.push_back({from.Pixel, to.Pixel});
  }
  segments_.insert(segments_.end(), line_.begin(), line_.end());
  if (!LabelAt(edge, label)) LabelAt(OtherEdge(edge), label);
}

// The label stands where the line first crosses the edge inside the window, or the place behind
// other labels there. False when it doesn't.
bool GridPainter::LabelAt(GridEdge edge, const std::string& label) {
  const bool upright = edge == GridEdge::Left || edge == GridEdge::Right;
  return upright ? LabelUpright(edge, label) : LabelLevel(edge, label);
}

bool GridPainter::LabelUpright(GridEdge edge, const std::string& label) {
  const double right = surface_.Width() - 1.0;
  const double at = edge == GridEdge::Left ? slots_.Left * kSlotWidth : right;
  for (const PixelLine& piece : line_) {
    const auto y = CrossingY(piece, at);
    if (!y || *y < 0.0 || *y >= surface_.Height()) continue;
    const double width = kCharacterPixels * static_cast<double>(label.size());
    Label(edge == GridEdge::Left ? at + kLabelMargin : right - width - kLabelMargin,
          *y - kLabelHeight, label);
    return true;
  }
  return false;
}

bool GridPainter::LabelLevel(GridEdge edge, const std::string& label) {
  const double bottom = surface_.Height() - 1.0;
  const double at = edge == GridEdge::Top ? slots_.Top * kLabelHeight : bottom;
  for (const PixelLine& piece : line_) {
    const auto x = CrossingX(piece, at);
    if (!x || *x < 0.0 || *x >= surface_.Width()) continue;
    // At the lower edge one row up: the last one belongs to the grid of the map's own zone.
    Label(*x + kLabelGap, edge == GridEdge::Top ? at : bottom + 1.0 - 2.0 * kLabelHeight, label);
    return true;
  }
  return false;
}

}  // namespace zepril
