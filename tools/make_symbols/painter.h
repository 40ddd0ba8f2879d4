// A small canvas: shapes drawn fine and taken down to pixels by averaging.
#pragma once

#include "make_fonts/pixel_glyphs.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zepril {

struct Colour {
  std::uint8_t red = 0, green = 0, blue = 0;
};

struct Point {
  double x = 0, y = 0;
};

// A square of kSide units, a unit being a pixel of the finished picture; y grows downward.
class Painter {
 public:
  static constexpr int kSide = 22;

  Painter();

  void Fill(Colour colour);
  void Area(const std::vector<Point>& corners, Colour colour);
  void Line(const std::vector<Point>& points, double width, Colour colour);
  void Ellipse(Point centre, double radius_x, double radius_y, Colour colour);
  void Ring(Point centre, double radius, double width, Colour colour);
  // Degrees, counter-clockwise from east; `to` above `from`.
  void Arc(Point centre, double radius, double width, double from, double to, Colour colour);
  void Box(double left, double top, double right, double bottom, Colour colour);
  // The set squares of a picture, its top left at (x, y).
  void Glyph(const PixelGlyph& glyph, int x, int y, Colour colour);

  // The pixel at column x and row y, each 0 to 21.
  Colour Pixel(int x, int y) const;

 private:
  static constexpr int kFine = 8;  // samples a unit, each way
  static constexpr int kSamples = kSide * kFine;

  template <typename Inside>
  void Paint(Point low, Point high, Colour colour, Inside inside);

  std::vector<Colour> samples_;
};

}  // namespace zepril
