// A map window of one pixel a kilometre, and what is drawn on it.
#pragma once

#include <string>

#include "core/state/map_view.h"
#include "map/map_view.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {

inline RecorderSurface::Operation Line(int x1, int y1, int x2, int y2, Colour colour) {
  return {"line", x1, y1, x2, y2, colour, {}, FontFace::Text, {}};
}
inline RecorderSurface::Operation Filled(int x1, int y1, int x2, int y2, Colour colour) {
  return {"filled", x1, y1, x2, y2, colour, {}, FontFace::Text, {}};
}
inline RecorderSurface::Operation Words(int x, int y, const std::string& text, Colour colour) {
  return {"text", x, y, 0, 0, colour, text, FontFace::Text, {}};
}

// 800 x 600, in which pixel (x, y) is at km (1000 - y, x).
inline void ShowAPixelAKilometre(MapViewState& view) {
  view.ViewWidthPx = 800;
  view.ViewHeightPx = 600;
  view.MapTileKm = 1000.0;
  view.CentreNorthKm = 701.0;
  view.CentreEastKm = 400.0;
  ComputeViewEdges(view);
}

struct KilometreWindow {
  KilometreWindow() { ShowAPixelAKilometre(View); }

  RecorderSurface Surface{800, 600};
  MapViewState View;
};

}  // namespace zepril
