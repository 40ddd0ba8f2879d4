// The outlines of both marks, of arcs and bars.
#include "make_fonts/marks.h"

#include <cmath>
#include <numbers>

namespace zepril {
namespace {

constexpr double kUnit = 64;  // font units a pixel
constexpr double kCentreX = 11.5;
constexpr double kCentreY = 18 - 12.5;  // above the baseline

OutlinePoint At(double x, double y, bool on_curve = true) {
  return {static_cast<int>(std::lround(x * kUnit)), static_cast<int>(std::lround(y * kUnit)),
          on_curve};
}

// A circle of eight quadratic arcs; a hole runs the other way round.
Contour Circle(double x, double y, double radius, bool hole) {
  Contour contour;
  const double step = std::numbers::pi / 8;
  for (int i = 0; i < 16; ++i) {
    const double angle = (hole ? i : -i) * step;
    const double r = i % 2 == 0 ? radius : radius / std::cos(step);
    contour.push_back(At(x + r * std::cos(angle), y + r * std::sin(angle), i % 2 == 0));
  }
  return contour;
}

Contour Bar(double left, double bottom, double right, double top) {
  return {At(left, bottom), At(left, top), At(right, top), At(right, bottom)};
}

// A ring with a letter i in it, 19 pixels across.
FontGlyph ObjectMark() {
  FontGlyph glyph{U'i', static_cast<int>(23 * kUnit), {}};
  glyph.contours.push_back(Circle(kCentreX, kCentreY, 9.5, false));
  glyph.contours.push_back(Circle(kCentreX, kCentreY, 7.25, true));
  glyph.contours.push_back(Bar(kCentreX - 1.5, kCentreY - 5, kCentreX + 1.5, kCentreY + 0.5));
  glyph.contours.push_back(Bar(kCentreX - 1.5, kCentreY + 2.5, kCentreX + 1.5, kCentreY + 5));
  return glyph;
}

// A diamond with round eye, 19 pixels across.
FontGlyph PlaceMark() {
  FontGlyph glyph{U'n', static_cast<int>(23 * kUnit), {}};
  const double r = 9.5;
  glyph.contours.push_back({At(kCentreX - r, kCentreY), At(kCentreX, kCentreY + r),
                            At(kCentreX + r, kCentreY), At(kCentreX, kCentreY - r)});
  glyph.contours.push_back(Circle(kCentreX, kCentreY, 3.5, true));
  return glyph;
}

}  // namespace

FontFace MarksFace() {
  FontFace face;
  face.family = "ZEPRIL Marks";
  face.units_per_em = static_cast<int>(23 * kUnit);
  face.ascent = static_cast<int>(18 * kUnit);
  face.descent = static_cast<int>(5 * kUnit);
  face.x_height = static_cast<int>(9 * kUnit);
  face.capital_height = static_cast<int>(14 * kUnit);
  face.fixed_width = true;
  FontGlyph missing{0, static_cast<int>(23 * kUnit), {}};
  missing.contours.push_back(Circle(kCentreX, kCentreY, 4, false));
  face.glyphs = {missing, FontGlyph{U' ', static_cast<int>(23 * kUnit), {}}, ObjectMark(),
                 PlaceMark()};
  return face;
}

}  // namespace zepril
