// Draws on rows of 32-bit pixels (0xFFRRGGBB), exact to the pixel and without any smoothing: both
// ends of a line and all edges of a box are painted, what lies outside is cut and costs nothing.
#pragma once

#include <cstdint>

#include "platform/drawing_surface.h"

namespace zepril {

struct PixelRaster {
  std::uint32_t* Pixels = nullptr;
  int Width = 0;
  int Height = 0;
  std::ptrdiff_t RowPixels = 0;  // from one row to the next

  std::uint32_t* Row(int y) const { return Pixels + y * RowPixels; }
  void Put(int x, int y, std::uint32_t pixel) const {
    if (x >= 0 && y >= 0 && x < Width && y < Height) Row(y)[x] = pixel;
  }
};

// 0xBBGGRR of the program to a pixel.
constexpr std::uint32_t PixelOfColour(Colour colour) {
  return 0xFF000000u | (colour & 0xFFu) << 16 | (colour & 0xFF00u) | (colour >> 16 & 0xFFu);
}

void RasterLine(const PixelRaster& raster, const PixelLine& line, std::uint32_t pixel);
// Corners in any order.
void RasterBox(const PixelRaster& raster, int x1, int y1, int x2, int y2, std::uint32_t pixel);
void RasterFilledBox(const PixelRaster& raster, int x1, int y1, int x2, int y2,
                     std::uint32_t pixel);
void RasterCircle(const PixelRaster& raster, int x, int y, int radius, std::uint32_t pixel);
void RasterArc(const PixelRaster& raster, int x, int y, int radius, double start, double end,
               std::uint32_t pixel);
// Nearest neighbour: shrinking drops pixels, stretching repeats them.
void RasterImage(const PixelRaster& raster, const PixelRect& target, const PixelImage& image,
                 const PixelRect& source);

}  // namespace zepril
