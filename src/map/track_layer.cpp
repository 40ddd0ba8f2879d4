// Joins the track's pixels into lines, draws a point's text, finds a point at a place.
#include "map/track_layer.h"

#include <algorithm>
#include <cmath>

#include "map/line_batch.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/position_marks.h"
#include "map/station_marks.h"

namespace zepril {
namespace {

constexpr double kTrackPixelLimit = 32000.0;
constexpr std::size_t kLongestPlainLine = 34;  // a longer line has a text of its own
constexpr int kSegmentsAtOnce = 4096;          // sent to the surface together
constexpr double kReachPx = 3.0;               // the line is three pixels wide, and is rounded

Colour ColourOf(const PointList& track, int index) {
  return track.Length(index) > kLongestPlainLine ? kTrackWithTextColour : GpsColour;
}

PixelPoint TrackPixel(double x, double y) {
  return {DrawPixel(x, kTrackPixelLimit), DrawPixel(y, kTrackPixelLimit)};
}

// On which sides of the window a pixel lies so far outside that nothing drawn there shows.
class Outside {
 public:
  Outside(int width, int height) : width_(EndOf(width)), height_(EndOf(height)) {}

  unsigned SidesOf(double x, double y) const {
    return (x < -kReachPx ? 1U : 0U) | (x > width_ ? 2U : 0U) | (y < -kReachPx ? 4U : 0U) |
           (y > height_ ? 8U : 0U);
  }

 private:
  // A window so large that pixels are held within it has no outside at its end.
  static double EndOf(int size) {
    const double end = size + kReachPx;
    return end < kTrackPixelLimit ? end : HUGE_VAL;
  }
  double width_;
  double height_;
};

// Draws the segments that show.
class TrackPainter {
 public:
  TrackPainter(DrawingSurface& surface)
      : lines_(surface), outside_(surface.Width(), surface.Height()) {}

  void Break() { has_last_ = false; }

  void Go(double x, double y, Colour colour) {
    const unsigned sides = outside_.SidesOf(x, y);
    if (has_last_ && (sides & last_sides_) == 0) {
      Segment(TrackPixel(last_x_, last_y_), TrackPixel(x, y), colour);
    } else {
      painted_ = false;
    }
    has_last_ = true;
    last_sides_ = sides;
    last_x_ = x;
    last_y_ = y;
  }

 private:
  void Segment(PixelPoint from, PixelPoint to, Colour colour) {
    // What stands still was painted with the segment before.
    if (from == to && painted_ && painted_colour_ == colour) return;
    lines_.SideLines(from, to, colour);
    // The middle too, or a slanting line has holes.
    lines_.Line(from.X, from.Y, to.X, to.Y, colour);
    painted_ = true;
    painted_colour_ = colour;
    if (++waiting_ < kSegmentsAtOnce) return;
    lines_.Flush();
    waiting_ = 0;
  }

  LineBatch lines_;
  Outside outside_;
  bool has_last_ = false;
  unsigned last_sides_ = 0;
  double last_x_ = 0.0;
  double last_y_ = 0.0;
  bool painted_ = false;       // the last point lies at the end of a segment that was drawn...
  Colour painted_colour_ = 0;  // ...in this colour
  int waiting_ = 0;
};

void DrawSegments(DrawingSurface& surface, const MapViewState& view, const PointList& track) {
  TrackPainter painter(surface);
  for (int index = 1; index <= track.Count(); ++index) {
    if (track.HasPosition(index)) {
      painter.Go(ExactPixelX(view, track.EastKm(index)), ExactPixelY(view, track.NorthKm(index)),
                 ColourOf(track, index));
    } else {
      painter.Break();
    }
  }
}

}  // namespace

void TrackLayer(DrawingSurface& surface, const MapViewState& view, const PointList& track) {
  DrawSegments(surface, view, track);
  int last = track.Count();
  while (last > 0 && !track.HasPosition(last))
    --last;
  if (last == 0) return;
  const auto [x, y] =
      TrackPixel(ExactPixelX(view, track.EastKm(last)), ExactPixelY(view, track.NorthKm(last)));
  DrawMarkName(surface, x, y, track.Text(last), ColourOf(track, last));
}

void DrawTrackPointText(DrawingSurface& surface, const PointList& track, int index, int x, int y) {
  constexpr int kCharacterPixels = 8;
  constexpr int kBesidePx = 16;
  constexpr int kAbovePx = 9;
  constexpr int kBelowPx = 6;
  const std::string_view text = track.Text(index);
  if (text.empty()) return;
  const int width = kCharacterPixels * static_cast<int>(text.size());
  const int left = std::max(std::min(x + kBesidePx, surface.Width() - 1 - width), 0);
  const int line = std::max(std::min(y, surface.Height() - kBelowPx), kAbovePx);
  DrawLabel(surface, left, line, text, GpsColour, kBlack);
}

std::optional<int> FindPointNear(const PointList& points, double north_km, double east_km,
                                 double tolerance_km) {
  for (int index = 1; index <= points.Count(); ++index) {
    if (std::fabs(points.EastKm(index) - east_km) < tolerance_km &&
        std::fabs(points.NorthKm(index) - north_km) < tolerance_km) {
      return index;
    }
  }
  return std::nullopt;
}

}  // namespace zepril
