// Marks and labels of stations, shared by the layers of all stations and of the followed one.
#pragma once

#include <string>
#include <string_view>

#include "core/state/label_level.h"
#include "core/station_record.h"
#include "platform/drawing_surface.h"

namespace zepril {

// Rings of radius 1 to `Third`, from the inside: `Inner` colour up to `First`, `Middle` up to
// `Second`, `Outer` up to `Third`.
struct MarkRings {
  int First = 0;
  int Second = 0;
  int Third = 0;
  Colour Inner = 0;
  Colour Middle = 0;
  Colour Outer = 0;

  Colour At(int radius) const {
    return radius <= First ? Inner : radius <= Second ? Middle : Outer;
  }
};

void DrawDiamondMark(DrawingSurface& surface, int x, int y, const MarkRings& rings);
void DrawSquareMark(DrawingSurface& surface, int x, int y, const MarkRings& rings);
void DrawCircleMark(DrawingSurface& surface, int x, int y, const MarkRings& rings);
// Only the rings of a radius over `inside`.
void DrawCircleRing(DrawingSurface& surface, int x, int y, int inside, const MarkRings& rings);

// How much a label tells, by the label level.
enum class LabelForm { None, Short, Long };
LabelForm LabelFormOf(LabelLevel level);

// "HHMM comment symbol name" and the call behind a blank, or behind "_" for a record with that
// mark.
std::string LongLabel(const StationRecord& record);

// A label in the fixed font (8 pixels a character): a filled box from (left, y - 7) on and the text
// in it.
void DrawLabel(DrawingSurface& surface, int left, int y, std::string_view text, Colour box,
               Colour ink);

}  // namespace zepril
