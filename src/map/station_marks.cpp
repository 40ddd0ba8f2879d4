#include "map/station_marks.h"

#include "core/text_fields.h"
#include "map/line_batch.h"

namespace zepril {
namespace {

constexpr int kCharacterPixels = 8;

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
  for (int radius = 1; radius <= rings.Third; ++radius) {
    surface.Circle(x, y, radius, rings.At(radius));
  }
}

LabelForm LabelFormOf(int level) {
  if (level == 2 || level == 4) return LabelForm::Short;
  return level == 3 || level == 5 ? LabelForm::Long : LabelForm::None;
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
