// Draws the boundaries, and the frames of the tiles that the index files name.
#include "map/tile_frames.h"

#include <cmath>

#include "core/text_fields.h"
#include "map/line_batch.h"
#include "map/map_view.h"
#include "map/scales.h"
#include "map/tile_names.h"

namespace zepril {
namespace {

constexpr double kNarrowestTilePx = 9.0;
constexpr double kLineReachPx = 3000.0;
constexpr std::size_t kTileNameLength = 12;

// Rest of a pixel coordinate of the zone after whole tiles. The count of tiles comes from a
// whole-number division and may be one off or more; what is taken away are true sides, so that the
// boundaries stand on the frames whatever the count.
double TileOffset(double pixel, double side_px) {
  return pixel - static_cast<double>(IntegerQuotient(pixel, side_px)) * side_px;
}

void DrawBoundaries(DrawingSurface& surface, const MapViewState& view, double side_px) {
  LineBatch lines(surface);
  const int reach = static_cast<int>(kLineReachPx);
  const double x0 = TileOffset(view.ViewWestKm * view.PixelsPerKm, side_px);
  for (double x = -5.0 * side_px - x0; x <= kLineReachPx - x0; x += side_px) {
    lines.Line(DrawPixel(x), 0, DrawPixel(x), reach, kBlack);
  }
  const double y0 = TileOffset(view.ViewNorthKm * view.PixelsPerKm, side_px);
  for (double y = y0; y <= y0 + kLineReachPx; y += side_px) {
    lines.Line(0, DrawPixel(y), reach, DrawPixel(y), kBlack);
  }
}

void DrawFrame(DrawingSurface& surface, const MapViewState& view, std::string_view name,
               const MapScale& scale) {
  const double south = TileFieldValue(Left(name, 4));
  const double west = TileFieldValue(Mid(name, 5, 4));
  const double north = south + scale.TileKm;
  const double east = west + scale.TileKm;
  if (south > view.ViewNorthKm || north < view.ViewSouthKm) return;
  if (west > view.ViewEastKm || east < view.ViewWestKm) return;
  surface.Box(DrawPixel(ExactPixelX(view, west)), DrawPixel(ExactPixelY(view, north) + 1.0),
              DrawPixel(ExactPixelX(view, east) - 1.0), DrawPixel(ExactPixelY(view, south)),
              scale.FrameColour);
}

}  // namespace

void TileFrames(DrawingSurface& surface, const MapViewState& view, const MapLibrary& library,
                const ScaleControls& scales) {
  for (std::size_t row = 0; row < kMapScaleTable.size(); ++row) {
    if (scales.FrameBox[row].Value == 0) continue;
    const MapScale& scale = kMapScaleTable[row];
    // Boundaries of the tile grid.
    const double side_px = scale.TileKm * 1000.0 / view.MetresPerPixel;
    if (side_px > kNarrowestTilePx) DrawBoundaries(surface, view, side_px);
    // Frames of the tiles that are there.
    const std::string folder = scales.Folder[row].Selected();
    if (folder.empty()) continue;
    const auto index = library.ReadIndex(folder);
    if (!index) continue;
    for (std::string_view line : Split(*index, '\n')) {
      if (line.size() >= kTileNameLength) DrawFrame(surface, view, line, scale);
    }
  }
}

}  // namespace zepril
