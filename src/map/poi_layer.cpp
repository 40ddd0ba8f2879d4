// Draws the mark and the name of each place that reaches the window.
#include "map/poi_layer.h"

#include <cmath>
#include <string_view>

#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/position_marks.h"

namespace zepril {
namespace {

constexpr double kFarthestPx = 3200.0;  // places beyond are left out
constexpr int kMarkReachPx = 64;        // no glyph of any font reaches farther
constexpr int kCharacterPixels = 8;
constexpr int kNameLevel = 2;
constexpr std::string_view kPlaceGlyph = "n";  // a place of interest in the marks font

bool Far(double pixel) {
  return !(std::fabs(pixel) <= kFarthestPx);
}

// Whether a mark and a name of `length` characters at (x, y) reach the window.
bool Shows(const DrawingSurface& surface, int x, int y, std::size_t length) {
  const int name_reach = kMarkReachPx + kCharacterPixels * static_cast<int>(length);
  return x >= -name_reach && x <= surface.Width() + kMarkReachPx && y >= -kMarkReachPx &&
         y <= surface.Height() + kMarkReachPx;
}

}  // namespace

void PoiLayer(DrawingSurface& surface, const MapViewState& view, const PointList& places) {
  for (int index = 1; index <= places.Count(); ++index) {
    if (Far(ExactPixelX(view, places.EastKm(index) + kPixelGraceKm)) ||
        Far(ExactPixelY(view, places.NorthKm(index) - kPixelGraceKm))) {
      continue;
    }
    const auto [x, y] = MarkPixel(view, places.NorthKm(index), places.EastKm(index));
    if (!Shows(surface, x, y, places.Length(index))) continue;
    DrawMarkGlyph(surface, x - 11, y - 13, kPlaceGlyph, kPlaceColour);
    if (view.PoiLevel >= kNameLevel) {
      DrawMarkName(surface, x, y, places.Name(index), kPlaceColour);
    }
  }
}

}  // namespace zepril
