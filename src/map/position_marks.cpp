// Draws the crosses, boxes, ticks and letters of the marks.
#include "map/position_marks.h"

#include <initializer_list>

#include "core/text_fields.h"
#include "map/line_batch.h"
#include "map/map_colours.h"
#include "map/map_view.h"

namespace zepril {
namespace {

constexpr int kTickFrom = 13;  // pixels from the centre
constexpr int kTickTo = 8;
constexpr int kCharacterPixels = 8;
constexpr std::string_view kObjectGlyph = "i";

// Up, right, down, left, each as thick as the offsets in both axes make it.
void DrawTicks(DrawingSurface& surface, int x, int y, int thickness, Colour colour) {
  LineBatch lines(surface);
  for (int dx = -thickness; dx <= thickness; ++dx) {
    for (int dy = -thickness; dy <= thickness; ++dy) {
      const int cx = x + dx;
      const int cy = y + dy;
      lines.Line(cx, cy - kTickFrom, cx, cy - kTickTo, colour);
      lines.Line(cx + kTickFrom, cy, cx + kTickTo, cy, colour);
      lines.Line(cx, cy + kTickFrom, cx, cy + kTickTo, colour);
      lines.Line(cx - kTickFrom, cy, cx - kTickTo, cy, colour);
    }
  }
}

}  // namespace

void DrawCentreMark(DrawingSurface& surface, const MapViewState& view) {
  const auto [x, y] = CentrePixel(view);
  surface.Line(x - 9, y - 9, x + 10, y + 10, kPenColour);
  surface.Line(x - 9, y + 9, x + 10, y - 10, kPenColour);
}

void DrawOwnPosition(DrawingSurface& surface, const MapViewState& view, bool from_gps) {
  const Colour c = from_gps ? GpsColour : kPenColour;
  const auto [x, y] = MarkPixel(view, view.OwnNorthKm, view.OwnEastKm);
  struct Ring {
    int Radius;
    Colour Ink;
  };
  for (const Ring& ring : {Ring{13, kBlack}, Ring{12, c}, Ring{11, c}, Ring{10, kBlack}}) {
    surface.Box(x - ring.Radius, y - ring.Radius, x + ring.Radius, y + ring.Radius, ring.Ink);
  }
  DrawTicks(surface, x, y, 2, kBlack);
  DrawTicks(surface, x, y, 1, c);
}

void DrawOwnObject(DrawingSurface& surface, const MapViewState& view, double north_km,
                   double east_km, std::string_view name, bool on_air) {
  if (name.empty()) return;
  const auto [x, y] = MarkPixel(view, north_km, east_km);
  const Colour colour = on_air ? kOwnObjectOnAirColour : kOwnObjectColour;
  DrawMarkGlyph(surface, x - 11, y - 12, kObjectGlyph, colour);
  DrawMarkName(surface, x, y, Trim(name), colour);
}

void DrawMarkGlyph(DrawingSurface& surface, int left, int top, std::string_view glyph, Colour ink) {
  for (int dx = -1; dx <= 1; ++dx) {
    for (int dy = -1; dy <= 1; ++dy) {
      surface.Text(left + dx, top + dy, glyph, FontFace::Marks, kBlack);
    }
  }
  surface.Text(left, top, glyph, FontFace::Marks, ink);
}

void DrawMarkName(DrawingSurface& surface, int x, int y, std::string_view name, Colour ink) {
  if (name.empty()) return;
  const int width = kCharacterPixels * static_cast<int>(name.size());
  surface.FilledBox(x + 16, y - 7, x + 16 + width, y + 5, kBlack);
  surface.Text(x + 17, y - 9, name, FontFace::Text, ink);
}

}  // namespace zepril
