// What the map is drawn with, and no more. Coordinates are pixels from the top left, rising to the
// right and down; both ends of a line and all edges of a box are painted. Colours are 0xBBGGRR, as
// the program keeps them. Nothing fails: what lies outside is cut.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zepril {

using Colour = std::uint32_t;  // 0xBBGGRR

inline constexpr Colour kBlack = 0x000000;
inline constexpr Colour kWhite = 0xFFFFFF;

struct PixelPoint {
  int X = 0;
  int Y = 0;
  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelLine {
  PixelPoint From;
  PixelPoint To;
  friend bool operator==(const PixelLine&, const PixelLine&) = default;
};

struct PixelRect {
  int X = 0;
  int Y = 0;
  int Width = 0;
  int Height = 0;
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

enum class FontFace {
  Text,   // "QX7_F6" at 9 points: 8 pixels a character, 12 pixels to the base line
  Marks,  // "Webdings" at 17 points, by a marks font of our own
};

// Pixels as a tile or a symbol sheet holds them: rows from the top, each pixel 0xRRGGBB in the low
// 24 bits; the high byte is 0xFF.
struct PixelImage {
  int Width = 0;
  int Height = 0;
  std::span<const std::uint32_t> Pixels;
};

class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  virtual int Width() const = 0;
  virtual int Height() const = 0;
  // What is painted, as the bytes of a BMP file.
  virtual std::string BmpFile() const = 0;
  virtual void Clear(Colour colour) = 0;
  // Many lines of one colour, one pixel wide.
  virtual void Lines(std::span<const PixelLine> lines, Colour colour) = 0;
  virtual void Box(int x1, int y1, int x2, int y2, Colour colour) = 0;
  virtual void FilledBox(int x1, int y1, int x2, int y2, Colour colour) = 0;
  virtual void Circle(int x, int y, int radius, Colour colour) = 0;
  // Part of a circle from `start` to `end`, radians counter-clockwise from the right.
  virtual void Arc(int x, int y, int radius, double start, double end, Colour colour) = 0;
  virtual void Points(std::span<const PixelPoint> points, Colour colour) = 0;
  // Text with its cell's top left at (x, y); code page 1252.
  virtual void Text(int x, int y, std::string_view text, FontFace face, Colour colour) = 0;
  // `source` part of the image, stretched into `target`; no filtering of our own.
  virtual void Image(const PixelRect& target, const PixelImage& image, const PixelRect& source) = 0;

  void Line(int x1, int y1, int x2, int y2, Colour colour) {
    const PixelLine line{{x1, y1}, {x2, y2}};
    Lines({&line, 1}, colour);
  }
  void Point(int x, int y, Colour colour) {
    const PixelPoint point{x, y};
    Points({&point, 1}, colour);
  }
};

}  // namespace zepril
