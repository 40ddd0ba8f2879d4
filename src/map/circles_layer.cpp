// Draws circles and their texts, and leaves out what can't touch the window.
#include "map/circles_layer.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "geodesy/conversions.h"
#include "map/map_view.h"
#include "map/scale_text.h"
#include "map/window_cut.h"

namespace zepril {
namespace {

constexpr int kCircleStep = 100;  // pixels
constexpr int kLargestCircle = 1000;
constexpr double kFarthestEstimateKm = 3001.0;
constexpr double kOffTheGreatCircle = 0.01;  // degrees; keeps equal places apart
constexpr int kAnchorOffset = 14;
constexpr int kSecondTextRight = 8;
constexpr int kSecondTextDown = 15;
constexpr int kTextCellHeight = 24;     // more than any glyph takes
constexpr int kLongestSecondText = 24;  // characters, more than any estimate takes
constexpr int kCharacterPixels = 8;

// A direction on the grid, in the order of the labels.
struct Direction {
  int East;
  int South;
};
constexpr Direction kDirections[] = {{1, 0}, {0, 1}, {-1, 0}, {0, -1}};

// White at the nine positions around the place, then black on it.
void RimmedText(DrawingSurface& surface, int x, int y, const std::string& text) {
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy)
      surface.Text(x + dx, y + dy, text, FontFace::Text, kWhite);
  }
  surface.Text(x, y, text, FontFace::Text, kBlack);
}

bool TextTouchesWindow(const DrawingSurface& surface, int x, int y, std::size_t length) {
  const int width = kCharacterPixels * static_cast<int>(length);
  return TouchesWindow(surface, {x - kCharacterPixels, y - kCharacterPixels},
                       {x + width + kCharacterPixels, y + kTextCellHeight});
}

// A circle so wide that the whole window lies inside it paints nothing.
bool CircleTouchesWindow(const DrawingSurface& surface, PixelPoint centre, int radius) {
  const double dx = std::max(centre.X, surface.Width() - 1 - centre.X);
  const double dy = std::max(centre.Y, surface.Height() - 1 - centre.Y);
  return std::hypot(dx, dy) >= radius - 2;
}

class CirclesPainter {
 public:
  CirclesPainter(DrawingSurface& surface, const MapViewState& view, const PropagationInputs& inputs)
      : surface_(surface),
        view_(view),
        inputs_(inputs),
        centre_(GeoAt(view.CentreNorthKm, view.CentreEastKm)) {}

  void Draw(int radius) {
    const PixelPoint middle = CentrePixel(view_);
    if (CircleTouchesWindow(surface_, middle, radius)) {
      surface_.Circle(middle.X, middle.Y, radius, kBlack);
    }
    const double distance_km = radius * view_.MetresPerPixel / 1000.0;
    const std::string text = PlainNumber(distance_km) + " km";
    for (const Direction& direction : kDirections) {
      const int x = middle.X + direction.East * radius - kAnchorOffset;
      const int y = middle.Y + direction.South * radius - kAnchorOffset;
      if (TextTouchesWindow(surface_, x, y, text.size())) RimmedText(surface_, x, y, text);
      DrawEstimate(x + kSecondTextRight, y + kSecondTextDown, distance_km, direction);
    }
  }

 private:
  Geodetic GeoAt(double north_km, double east_km) const {
    return UtmToGeodetic(view_.MapCentralMeridian, east_km * 1000.0, north_km * 1000.0,
                         view_.MapFalseEasting);
  }

  void DrawEstimate(int x, int y, double distance_km, const Direction& direction) {
    if (!(distance_km < kFarthestEstimateKm)) return;
    if (!TextTouchesWindow(surface_, x, y, kLongestSecondText)) return;
    const Geodetic there = GeoAt(view_.CentreNorthKm - direction.South * distance_km,
                                 view_.CentreEastKm + direction.East * distance_km);
    const PropagationResult estimate =
        PropagationEstimate(centre_.Lat, centre_.Lon, there.Lat + kOffTheGreatCircle,
                            there.Lon + kOffTheGreatCircle, inputs_);
    if (estimate.Fopt > 0.0) RimmedText(surface_, x, y, EstimateText(estimate));
  }

  std::string EstimateText(const PropagationResult& estimate) const {
    if (!view_.FoptDetailed) return "Fopt=" + PlainNumber(estimate.Fopt);
    return PlainNumber(estimate.MufPath) + " " + PlainNumber(estimate.MufSecond) + " " +
           PlainNumber(estimate.Mean);
  }

  DrawingSurface& surface_;
  const MapViewState& view_;
  const PropagationInputs& inputs_;
  Geodetic centre_;
};

}  // namespace

void CirclesLayer(DrawingSurface& surface, const MapViewState& view,
                  const PropagationInputs& inputs) {
  CirclesPainter painter(surface, view, inputs);
  for (int radius = kCircleStep; radius <= kLargestCircle; radius += kCircleStep)
    painter.Draw(radius);
}

}  // namespace zepril
