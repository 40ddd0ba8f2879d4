// Letters as pictures of squares, read from a text file of rows of "X" and ".".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace zepril {

constexpr int kGlyphWidth = 8;    // columns of a cell, leftmost is bit 7
constexpr int kGlyphHeight = 15;  // rows of a cell, from its top

// One cell: a byte a row, the leftmost column in the highest bit.
using PixelGlyph = std::array<std::uint8_t, kGlyphHeight>;

// Pictures by Unicode code point.
using PixelGlyphs = std::map<char32_t, PixelGlyph>;

// Reads the form described at the head of tools/make_fonts/qx7_glyphs.txt from `text`. Nothing when
// a line is not understood, a row is not 8 columns wide, a picture leaves its cell, or a base or
// accent is not known.
std::optional<PixelGlyphs> ReadPixelGlyphs(const std::string& text);

// Whether the square at `column` (0-7) and `row` (0-14) is set.
inline bool GlyphPixel(const PixelGlyph& glyph, int column, int row) {
  return (glyph[static_cast<std::size_t>(row)] >> (7 - column) & 1) != 0;
}

// The Unicode code point of a byte of Windows code page 1252; 0 for the five bytes it leaves open.
char32_t CodePage1252ToUnicode(std::uint8_t byte);

}  // namespace zepril
