// The rings of each mark as pixels, and the forms of a label.
#include "map/station_marks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "core/text_fields.h"
#include "map/line_batch.h"

namespace zepril {
namespace {

constexpr int kCharacterPixels = 8;

constexpr int kLargestMark = 20;
using RadiusTable = std::array<std::array<int, kLargestMark + 1>, kLargestMark + 1>;

// The circle on which a pixel lies, by its distance right and down.
const RadiusTable& Radii() {
  static const RadiusTable table = [] {
    RadiusTable radii{};
    for (std::size_t dy = 0; dy < radii.size(); ++dy) {
      for (std::size_t dx = 0; dx < radii.size(); ++dx) {
        const double distance = std::hypot(static_cast<double>(dx), static_cast<double>(dy));
        radii[dy][dx] = std::max(static_cast<int>(std::lround(distance)), 1);
      }
    }
    return radii;
  }();
  return table;
}

// The pixels of a disc's rings in `colour`, row by row: each belongs to the ring whose radius is
// nearest to its distance.
void FillRings(DrawingSurface& surface, PixelPoint at, int inside, const MarkRings& rings,
               Colour colour) {
  const RadiusTable& radii = Radii();
  const auto is_ring = [&](int dx, int dy) {
    const int radius =
        radii[static_cast<std::size_t>(std::abs(dy))][static_cast<std::size_t>(std::abs(dx))];
    return radius > inside && radius <= rings.Third && rings.At(radius) == colour;
  };
  for (int dy = -rings.Third; dy <= rings.Third; ++dy) {
    for (int dx = -rings.Third; dx <= rings.Third; ++dx) {
      if (!is_ring(dx, dy)) continue;
      const int from = dx;
      while (dx < rings.Third && is_ring(dx + 1, dy))
        ++dx;
      surface.FilledBox(at.X + from, at.Y + dy, at.X + dx, at.Y + dy, colour);
    }
  }
}

}  // namespace

void DrawDiamondMark(DrawingSurface& surface, int x, int y, const MarkRings& rings) {
  LineBatch lines(surface);
  for (int radius = 1; radius <= rings.Third; ++radius) {
    lines.Diamond(x, y, radius, rings.At(radius));
  }
}

void DrawSquareMark(DrawingSurface& surface, int x, int y, const MarkRings& rings) {
  for (int radius = 1; radius <= rings.Third; ++radius) {
    surface.Box(x - radius, y - radius, x + radius, y + radius, rings.At(radius));
  }
}

void DrawCircleMark(DrawingSurface& surface, int x, int y, const MarkRings& rings) {
  DrawCircleRing(surface, x, y, 0, rings);
}

void DrawCircleRing(DrawingSurface& surface, int x, int y, int inside, const MarkRings& rings) {
  // Circles drawn one in the other leave pixels between them: the rings are filled first.
  const std::array<Colour, 3> colours{rings.Inner, rings.Middle, rings.Outer};
  for (auto colour = colours.begin(); colour != colours.end(); ++colour) {
    if (std::find(colours.begin(), colour, *colour) != colour) continue;
    FillRings(surface, {x, y}, inside, rings, *colour);
  }
  for (int radius = inside + 1; radius <= rings.Third; ++radius) {
    surface.Circle(x, y, radius, rings.At(radius));
  }
}

LabelForm LabelFormOf(LabelLevel level) {
  switch (level) {
    case LabelLevel::MarksAndCalls:
    case LabelLevel::SymbolsAndCalls:
      return LabelForm::Short;
    case LabelLevel::MarksAndLines:
    case LabelLevel::SymbolsAndLines:
      return LabelForm::Long;
    default:
      return LabelForm::None;
  }
}

std::string LongLabel(const StationRecord& record) {
  std::string text(record.Time());
  text.append(" ").append(record.Info());
  text.append(" ").append(record.Symbol());
  text.append(" ").append(record.HeardViaField());
  text.append(record.ObjectMark() == '_' ? "_" : " ").append(record.Call());
  return std::string(Trim(text));
}

void DrawLabel(DrawingSurface& surface, int left, int y, std::string_view text, Colour box,
               Colour ink) {
  const int width = kCharacterPixels * static_cast<int>(text.size());
  surface.FilledBox(left, y - 7, left + width, y + 5, box);
  surface.Text(left, y - 9, text, FontFace::Text, ink);
}

}  // namespace zepril
