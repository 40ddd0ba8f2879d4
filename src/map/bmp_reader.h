// Reads Windows bitmaps: uncompressed, 1, 4, 8, 24 or 32 bits a pixel, rows from the bottom or from
// the top. Map tiles and symbol sheets come from outside, so nothing in the file is believed: sizes
// are capped, every offset is tested against the length of the file, indices beyond the palette are
// black.
//
// Accepted: a 16-colour tile of 1000 x 1000 pixels in 500118 bytes. Refused: a run-length coded
// bitmap, a file that ends before its last row, a width of 0.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/drawing_surface.h"

namespace zepril {

inline constexpr std::int64_t kMostBitmapPixels = 16'000'000;
inline constexpr std::size_t kLongestBitmapFile = 64u << 20;  // bytes

// Pixels as 0xFFRRGGBB. A palette entry as well.
struct Bitmap {
  int Width = 0;   // at least 1
  int Height = 0;  // at least 1
  // Of a bitmap with a palette: its entries and one index a pixel, rows from the top.
  std::vector<std::uint32_t> Palette;
  std::vector<std::uint8_t> Indexed;
  // Of any other: the pixels, rows from the top.
  std::vector<std::uint32_t> Pixels;

  bool HasPalette() const { return !Indexed.empty(); }
  std::size_t Bytes() const {
    return Indexed.size() + (Palette.size() + Pixels.size()) * sizeof(std::uint32_t);
  }
};

// Nothing when the bytes are no bitmap that can be drawn whole.
std::optional<Bitmap> ReadBmp(std::string_view bytes);

// The picture stretched or shrunk to `width` x `height` pixels by taking the nearest pixel to the
// left and above; nothing is filtered. `palette` replaces the bitmap's own (it may be empty for a
// bitmap without one).
std::vector<std::uint32_t> StretchedPixels(const Bitmap& bitmap,
                                           const std::vector<std::uint32_t>& palette, int width,
                                           int height);

}  // namespace zepril
