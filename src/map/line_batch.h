// Collects lines and hands those of one colour to the surface together, in the order in which they
// were drawn: a line of another colour first sends what waits, so that what lies on top stays
// there.
#pragma once

#include <vector>

#include "platform/drawing_surface.h"

namespace zepril {

class LineBatch {
 public:
  explicit LineBatch(DrawingSurface& surface) : surface_(surface) {}
  ~LineBatch() { Flush(); }
  LineBatch(const LineBatch&) = delete;
  LineBatch& operator=(const LineBatch&) = delete;

  void Line(int x1, int y1, int x2, int y2, Colour colour) {
    if (colour != colour_) Flush();
    colour_ = colour;
    lines_.push_back({{x1, y1}, {x2, y2}});
  }
  // Four lines through the points at distance `radius` to the right, above, to the left and below.
  void Diamond(int x, int y, int radius, Colour colour) {
    Line(x + radius, y, x, y - radius, colour);
    Line(x, y - radius, x - radius, y, colour);
    Line(x - radius, y, x, y + radius, colour);
    Line(x, y + radius, x + radius, y, colour);
  }
  // The three-pixel line of a track: four lines one pixel off in each direction.
  void SideLines(PixelPoint from, PixelPoint to, Colour colour) {
    Line(from.X - 1, from.Y, to.X - 1, to.Y, colour);
    Line(from.X + 1, from.Y, to.X + 1, to.Y, colour);
    Line(from.X, from.Y - 1, to.X, to.Y - 1, colour);
    Line(from.X, from.Y + 1, to.X, to.Y + 1, colour);
  }
  // Sends what waits; to be called before anything else is drawn on the surface.
  void Flush() {
    if (!lines_.empty()) surface_.Lines(lines_, colour_);
    lines_.clear();
  }

 private:
  DrawingSurface& surface_;
  Colour colour_ = 0;
  std::vector<PixelLine> lines_;
};

}  // namespace zepril
