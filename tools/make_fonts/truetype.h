// Writes a TrueType font of filled outlines.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace zepril {

// A corner or, when not `on_curve`, the control point of a quadratic curve. Font units, y upward.
struct OutlinePoint {
  int x = 0;
  int y = 0;
  bool on_curve = true;
};

// Closed; clockwise contours are filled, counter-clockwise ones inside them cut holes.
using Contour = std::vector<OutlinePoint>;

struct FontGlyph {
  char32_t code = 0;  // 0: reached by no character
  int advance = 0;    // font units
  std::vector<Contour> contours;
};

// Ascent and descent are both positive and hold for every platform's line height; there is no gap.
struct FontFace {
  std::string family;  // ASCII
  int units_per_em = 0;
  int ascent = 0;
  int descent = 0;
  int x_height = 0;
  int capital_height = 0;
  bool fixed_width = false;
  std::vector<FontGlyph> glyphs;  // the first is the box for missing characters; codes ascending
};

// The bytes of the font file: the same face gives the same bytes at any time on any machine.
std::string WriteTrueType(const FontFace& face);

}  // namespace zepril
