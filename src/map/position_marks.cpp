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
  // The mark, nine times in black as a rim, once in its colour.
  for (int dx = -12; dx <= -10; ++dx) {
    for (int dy = -13; dy <= -11; ++dy) {
      surface.Text(x + dx, y + dy, kObjectGlyph, FontFace::Marks, kBlack);
    }
  }
  const Colour colour = on_air ? kOwnObjectOnAirColour : kOwnObjectColour;
  surface.Text(x - 11, y - 12, kObjectGlyph, FontFace::Marks, colour);
  // The name to the right.
  const std::string_view shown = Trim(name);
  const int width = kCharacterPixels * static_cast<int>(shown.size());
  surface.FilledBox(x + 16, y - 7, x + 16 + width, y + 5, kBlack);
  surface.Text(x + 17, y - 9, shown, FontFace::Text, colour);
}

}  // namespace zepril
