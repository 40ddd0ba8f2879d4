// Reads the place out of a picture's name, draws the frames, finds the first one at a place.
#include "map/picture_marks_layer.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "core/text_fields.h"
#include "map/map_colours.h"
#include "map/picture_names.h"
#include "map/window_cut.h"

namespace zepril {
namespace {

constexpr std::size_t kNameLength = 12;
constexpr double kLargeMarksUpTo = 200.0;  // metres a pixel
constexpr double kSlackKm = 0.5;           // a name tells whole kilometres

int HalfSide(const MapViewState& view) {
  return view.MetresPerPixel <= kLargeMarksUpTo ? 7 : 4;
}

// A digit, or "@" to "J" for the thousands of a negative value, and three digits.
bool IsField(std::string_view field) {
  const char first = field.front();
  return (IsDigit(first) || (first >= '@' && first <= 'J')) &&
         std::all_of(field.begin() + 1, field.end(), IsDigit);
}

void DrawMark(DrawingSurface& surface, PixelPoint at, int half_side) {
  const auto box = [&](int reach, Colour colour) {
    surface.Box(at.X - reach, at.Y - reach, at.X + reach, at.Y + reach, colour);
  };
  box(half_side + 1, kBlack);
  box(half_side, ColourPictureMark);
  box(half_side - 1, kBlack);
}

}  // namespace

std::optional<MapPosition> PlaceOfPicture(std::string_view name) {
  if (name.size() != kNameLength) return std::nullopt;
  const std::string folded = Upper(name);
  const bool place = IsField(Mid(folded, 1, 4)) && IsField(Mid(folded, 5, 4)) && folded[8] == '.';
  return place ? std::optional(PictureCorner(folded)) : std::nullopt;
}

void PictureMarksLayer(DrawingSurface& surface, const MapViewState& view) {
  const int half_side = HalfSide(view);
  const int reach = half_side + 1;
  for (const std::string& name : view.PictureNames) {
    const auto place = PlaceOfPicture(name);
    if (!place) continue;
    const PixelPoint at = MarkPixel(view, place->NorthKm, place->EastKm);
    if (!TouchesWindow(surface, {at.X - reach, at.Y - reach}, {at.X + reach, at.Y + reach})) {
      continue;
    }
    DrawMark(surface, at, half_side);
  }
}

std::optional<int> FindPictureNear(const MapViewState& view, double north_km, double east_km) {
  const double side_metres = 2.0 * HalfSide(view) * view.MetresPerPixel;
  const double near_km = side_metres / 1000.0 + kSlackKm;
  int index = 0;
  for (const std::string& name : view.PictureNames) {
    ++index;
    const auto place = PlaceOfPicture(name);
    if (!place) continue;
    if (std::fabs(place->NorthKm - north_km) < near_km &&
        std::fabs(place->EastKm - east_km) < near_km) {
      return index;
    }
  }
  return std::nullopt;
}

}  // namespace zepril
