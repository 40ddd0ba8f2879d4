// The fonts as files: make_fonts <glyph pictures> <target dir> [<letters file>]
//
// Writes the fixed-width face QX7_F6.ttf and the map marks ZEPRIL_Marks.ttf, and, where asked for,
// the same letter pictures as a table for drawing without a font: a line a byte of code page 1252,
// the byte and its 15 rows in hexadecimal.

#include "make_fonts/marks.h"
#include "make_fonts/pixel_glyphs.h"
#include "make_fonts/truetype.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace zepril {
namespace {

constexpr int kPixel = 128;  // font units a square: 12 squares an em of 1536 units

Contour Rectangle(int left, int bottom, int right, int top) {
  return {{left, bottom}, {left, top}, {right, top}, {right, bottom}};
}

// Squares of a row that touch become a bar, equal bars of rows that touch one rectangle.
std::vector<Contour> Outline(const PixelGlyph& glyph) {
  std::vector<Contour> contours;
  for (int row = 0; row < kGlyphHeight; ++row) {
    for (int from = 0; from < kGlyphWidth; ++from) {
      const auto bar_at = [&](int r, int& to) {
        if (r < 0 || r >= kGlyphHeight || !GlyphPixel(glyph, from, r)) return false;
        if (from > 0 && GlyphPixel(glyph, from - 1, r)) return false;
        for (to = from; to < kGlyphWidth && GlyphPixel(glyph, to, r);)
          ++to;
        return true;
      };
      int to = 0, other = 0;
      if (!bar_at(row, to) || (bar_at(row - 1, other) && other == to)) continue;
      int end = row + 1;
      while (bar_at(end, other) && other == to)
        ++end;
      contours.push_back(
          Rectangle(from * kPixel, (12 - end) * kPixel, to * kPixel, (12 - row) * kPixel));
    }
  }
  return contours;
}

FontFace FixedFace(const PixelGlyphs& pictures) {
  FontFace face;
  face.family = "QX7_F6";
  face.units_per_em = 12 * kPixel;
  face.ascent = 12 * kPixel;
  face.descent = 3 * kPixel;
  face.x_height = 7 * kPixel;
  face.capital_height = 9 * kPixel;
  face.fixed_width = true;
  FontGlyph missing{0, kGlyphWidth * kPixel, {}};
  missing.contours = {Rectangle(kPixel, 0, 7 * kPixel, 9 * kPixel),
                      {{2 * kPixel, kPixel},
                       {6 * kPixel, kPixel},
                       {6 * kPixel, 8 * kPixel},
                       {2 * kPixel, 8 * kPixel}}};
  face.glyphs.push_back(missing);
  for (const auto& [code, picture] : pictures) {
    face.glyphs.push_back({code, kGlyphWidth * kPixel, Outline(picture)});
  }
  return face;
}

void AddHex(std::string& text, int byte) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  text += kDigits[byte >> 4];
  text += kDigits[byte & 15];
}

std::string LettersTable(const PixelGlyphs& pictures) {
  std::string text;
  for (int byte = 0x20; byte < 0x100; ++byte) {
    const auto picture = pictures.find(CodePage1252ToUnicode(static_cast<std::uint8_t>(byte)));
    if (picture == pictures.end()) continue;
    AddHex(text, byte);
    text += ' ';
    for (const std::uint8_t row : picture->second)
      AddHex(text, row);
    text += '\n';
  }
  return text;
}

// Only what the code page holds: pieces made for composing stay out of the font.
bool KeepCodePage(PixelGlyphs& pictures) {
  PixelGlyphs kept;
  for (int byte = 0x20; byte < 0x100; ++byte) {
    const char32_t code = CodePage1252ToUnicode(static_cast<std::uint8_t>(byte));
    if (code == 0 || byte == 0x7F) continue;
    const auto picture = pictures.find(code);
    if (picture == pictures.end()) {
      std::fputs(("no picture for byte " + std::to_string(byte) + "\n").c_str(), stderr);
      return false;
    }
    kept.insert(*picture);
  }
  pictures = std::move(kept);
  return true;
}

bool WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return file.good();
}

int Run(const std::vector<std::string>& words) {
  if (words.size() < 2 || words.size() > 3) {
    std::fputs("usage: make_fonts <glyph pictures> <target dir> [<letters file>]\n", stderr);
    return 2;
  }
  std::ifstream file(words[0], std::ios::binary);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  auto pictures = ReadPixelGlyphs(text);
  if (!pictures || !KeepCodePage(*pictures)) {
    std::fputs("the glyph pictures cannot be read\n", stderr);
    return 1;
  }
  bool good = WriteFile(words[1] + "/QX7_F6.ttf", WriteTrueType(FixedFace(*pictures))) &&
              WriteFile(words[1] + "/ZEPRIL_Marks.ttf", WriteTrueType(MarksFace()));
  if (words.size() == 3) good = good && WriteFile(words[2], LettersTable(*pictures));
  return good ? 0 : 1;
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  return zepril::Run({argv + 1, argv + argc});
}
