// A window with grids over it, and what was drawn of them.
#pragma once

#include <algorithm>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "geodesy/conversions.h"
#include "map/grid_layer.h"
#include "map/map_view.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {

inline constexpr Colour kWhiteGrid = 0xE8E8E8;
inline constexpr Colour kYellowGrid = 0x00E0E0;
inline constexpr Colour kPinkGrid = 0xFFC0FF;
inline constexpr Colour kCyanGrid = 0xFFE000;
inline constexpr Colour kGreenGrid = 0x00F000;

inline constexpr double kScales[] = {5000.0, 1000.0, 200.0, 50.0, 10.0, 2.0};
inline constexpr double kZooms[] = {0.25, 0.5, 1.0, 2.0, 4.0, 8.0};

// A window with its strips chosen for its centre.
struct Grids {
  Grids(double north, double east, double tile_km, double zoom = 1.0, int width = 1200,
        int height = 800, int zone = 33)
      : Surface(width, height) {
    View.MapCentralMeridian = UtmMeridianOfZone(zone);
    View.ViewWidthPx = width;
    View.ViewHeightPx = height;
    View.CentreNorthKm = north;
    View.CentreEastKm = east;
    View.MapTileKm = tile_km;
    View.ZoomFactor = zoom;
    ComputeViewEdges(View);
    GridToGeo(Values, View, north, east);
    GeoToAllGrids(Values);
    Values.DisplayLon = Values.GeoLon;
    ZoneByPosition(Values);
    GeoToAllGrids(Values);
  }
  void Draw(DisplayMode mode, PixelPoint tile = {0, 0}) {
    View.CentreDisplayMode = static_cast<int>(mode);
    Taken.Clear();
    GridLayer(Surface, View, Values, mode, tile, Taken);
  }
  std::vector<PixelLine> Lines() const {
    std::vector<PixelLine> lines;
    for (const auto& line : Surface.Of("line"))
      lines.push_back({{line.X1, line.Y1}, {line.X2, line.Y2}});
    return lines;
  }
  std::vector<RecorderSurface::Operation> Labels(Colour ink) const {
    auto labels = Surface.Of("text");
    std::erase_if(labels, [&](const auto& label) { return label.Ink != ink; });
    return labels;
  }
  std::set<std::string> LabelTexts(Colour ink) const {
    std::set<std::string> texts;
    for (const auto& label : Labels(ink))
      texts.insert(label.Words);
    return texts;
  }

  RecorderSurface Surface;
  GridLabels Taken;
  MapViewState View;
  CoordinateValues Values;
};

inline bool Seen(const Grids& grids, const PixelLine& line) {
  return std::max(line.From.X, line.To.X) >= 0 && std::max(line.From.Y, line.To.Y) >= 0 &&
         std::min(line.From.X, line.To.X) < grids.Surface.Width() &&
         std::min(line.From.Y, line.To.Y) < grids.Surface.Height();
}

inline std::vector<PixelLine> Sorted(std::vector<PixelLine> lines) {
  std::sort(lines.begin(), lines.end(), [](const PixelLine& a, const PixelLine& b) {
    return std::tie(a.From.X, a.From.Y, a.To.X, a.To.Y) <
           std::tie(b.From.X, b.From.Y, b.To.X, b.To.Y);
  });
  return lines;
}

}  // namespace zepril
