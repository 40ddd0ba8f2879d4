// Steps along lines, octants of circles and rows of images, cut at the edges beforehand.
#include "platform/qt/pixel_raster.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace zepril {
namespace {

constexpr int kHighestCoordinate = 1 << 20;

int Held(int value) {
  return std::clamp(value, -kHighestCoordinate, kHighestCoordinate);
}

void Fill(const PixelRaster& raster, int x1, int y1, int x2, int y2, std::uint32_t pixel) {
  x1 = std::max(x1, 0);
  y1 = std::max(y1, 0);
  x2 = std::min(x2, raster.Width - 1);
  y2 = std::min(y2, raster.Height - 1);
  if (x1 > x2) return;
  for (int y = y1; y <= y2; ++y) {
    std::uint32_t* row = raster.Row(y);
    std::fill(row + x1, row + x2 + 1, pixel);
  }
}

// A slanted line as steps along its longer axis; the other coordinate is rounded half up. Only the
// steps inside the raster are made, and each lies where it would lie on an endless sheet.
struct SlantedLine {
  std::int64_t Steps;  // along the longer axis, at least 1
  std::int64_t Rise;   // magnitude along the shorter one
  int FirstLong, SignLong;
  int FirstShort, SignShort;
};

void DrawSlanted(const PixelRaster& raster, const SlantedLine& line, bool along_x,
                 std::uint32_t pixel) {
  const int long_size = along_x ? raster.Width : raster.Height;
  const int short_size = along_x ? raster.Height : raster.Width;
  // Steps whose long coordinate lies inside.
  std::int64_t from = line.SignLong > 0 ? -line.FirstLong : line.FirstLong - (long_size - 1);
  std::int64_t to = line.SignLong > 0 ? long_size - 1 - line.FirstLong : line.FirstLong;
  from = std::max<std::int64_t>(from, 0);
  to = std::min(to, line.Steps);
  // The step at which the short coordinate enters.
  const std::int64_t enter =
      line.SignShort > 0 ? -line.FirstShort : line.FirstShort - (short_size - 1);
  if (enter > 0) {
    if (line.Rise == 0 || enter > line.Rise) return;
    from = std::max(from, (2 * enter - 1) * line.Steps / (2 * line.Rise));
  }
  // Quotient and remainder of the rounded rise, carried from step to step.
  const std::int64_t whole = 2 * line.Steps;
  std::int64_t rise = (2 * from * line.Rise + line.Steps) / whole;
  std::int64_t rest = (2 * from * line.Rise + line.Steps) % whole;
  for (std::int64_t step = from; step <= to; ++step) {
    const auto long_at = static_cast<int>(line.FirstLong + line.SignLong * step);
    const auto short_at = static_cast<int>(line.FirstShort + line.SignShort * rise);
    if (short_at >= 0 && short_at < short_size) {
      (along_x ? raster.Row(short_at)[long_at] : raster.Row(long_at)[short_at]) = pixel;
    } else if (line.SignShort > 0 ? short_at >= short_size : short_at < 0) {
      return;  // left for good
    }
    rest += 2 * line.Rise;
    if (rest >= whole) {
      rest -= whole;
      ++rise;
    }
  }
}

void PutOctants(const PixelRaster& raster, int x, int y, int a, int b, std::uint32_t pixel) {
  raster.Put(x + a, y + b, pixel);
  raster.Put(x - a, y + b, pixel);
  raster.Put(x + a, y - b, pixel);
  raster.Put(x - a, y - b, pixel);
  raster.Put(x + b, y + a, pixel);
  raster.Put(x - b, y + a, pixel);
  raster.Put(x + b, y - a, pixel);
  raster.Put(x - b, y - a, pixel);
}

}  // namespace

void RasterLine(const PixelRaster& raster, const PixelLine& line, std::uint32_t pixel) {
  const int x1 = Held(line.From.X);
  const int y1 = Held(line.From.Y);
  const int x2 = Held(line.To.X);
  const int y2 = Held(line.To.Y);
  if (std::max(x1, x2) < 0 || std::max(y1, y2) < 0) return;
  if (std::min(x1, x2) >= raster.Width || std::min(y1, y2) >= raster.Height) return;
  if (x1 == x2 || y1 == y2) {
    Fill(raster, std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2), pixel);
    return;
  }
  const int dx = std::abs(x2 - x1);
  const int dy = std::abs(y2 - y1);
  const int sx = x2 > x1 ? 1 : -1;
  const int sy = y2 > y1 ? 1 : -1;
  if (dx >= dy) {
    DrawSlanted(raster, {dx, dy, x1, sx, y1, sy}, true, pixel);
  } else {
    DrawSlanted(raster, {dy, dx, y1, sy, x1, sx}, false, pixel);
  }
}

void RasterBox(const PixelRaster& raster, int x1, int y1, int x2, int y2, std::uint32_t pixel) {
  const auto [left, right] = std::minmax(x1, x2);
  const auto [top, bottom] = std::minmax(y1, y2);
  Fill(raster, left, top, right, top, pixel);
  Fill(raster, left, bottom, right, bottom, pixel);
  Fill(raster, left, top, left, bottom, pixel);
  Fill(raster, right, top, right, bottom, pixel);
}

void RasterFilledBox(const PixelRaster& raster, int x1, int y1, int x2, int y2,
                     std::uint32_t pixel) {
  Fill(raster, std::min(x1, x2), std::min(y1, y2), std::max(x1, x2), std::max(y1, y2), pixel);
}

void RasterCircle(const PixelRaster& raster, int x, int y, int radius, std::uint32_t pixel) {
  if (radius < 0 || radius > kHighestCoordinate) return;
  x = Held(x);
  y = Held(y);
  if (x + radius < 0 || y + radius < 0) return;
  if (x - radius >= raster.Width || y - radius >= raster.Height) return;
  int a = radius;
  int b = 0;
  std::int64_t error = 1 - radius;
  while (b <= a) {
    PutOctants(raster, x, y, a, b, pixel);
    ++b;
    if (error < 0) {
      error += 2 * b + 1;
    } else {
      --a;
      error += 2 * (b - a) + 1;
    }
  }
}

void RasterArc(const PixelRaster& raster, int x, int y, int radius, double start, double end,
               std::uint32_t pixel) {
  constexpr double kFullTurn = 6.283185307179586;
  constexpr int kLargestArc = 10000;
  if (radius < 1 || radius > kLargestArc || !std::isfinite(start) || !std::isfinite(end)) return;
  x = Held(x);
  y = Held(y);
  const double reach = std::min(end - start, kFullTurn);
  const int steps = static_cast<int>(std::ceil(reach * radius));
  for (int step = 0; step <= steps; ++step) {
    const double angle = start + reach * step / std::max(steps, 1);
    raster.Put(x + static_cast<int>(std::lround(std::cos(angle) * radius)),
               y - static_cast<int>(std::lround(std::sin(angle) * radius)), pixel);
  }
}

void RasterImage(const PixelRaster& raster, const PixelRect& target, const PixelImage& image,
                 const PixelRect& source) {
  const bool source_inside = source.X >= 0 && source.Y >= 0 && source.Width >= 1 &&
                             source.Height >= 1 && source.Width <= image.Width - source.X &&
                             source.Height <= image.Height - source.Y;
  const auto held = static_cast<std::size_t>(std::max(image.Width, 0)) *
                    static_cast<std::size_t>(std::max(image.Height, 0));
  if (!source_inside || image.Pixels.size() < held || target.Width < 1 || target.Height < 1) return;
  if (std::abs(target.X) > kHighestCoordinate || std::abs(target.Y) > kHighestCoordinate) return;
  const int left = std::max(target.X, 0);
  const int top = std::max(target.Y, 0);
  const int right =
      static_cast<int>(std::min<std::int64_t>(std::int64_t{target.X} + target.Width, raster.Width));
  const int bottom = static_cast<int>(
      std::min<std::int64_t>(std::int64_t{target.Y} + target.Height, raster.Height));
  if (left >= right || top >= bottom) return;
  const bool same_width = target.Width == source.Width;
  std::vector<int> column;
  if (!same_width) {
    for (int x = left; x < right; ++x) {
      column.push_back(source.X +
                       static_cast<int>(std::int64_t{x - target.X} * source.Width / target.Width));
    }
  }
  for (int y = top; y < bottom; ++y) {
    const int from =
        source.Y + static_cast<int>(std::int64_t{y - target.Y} * source.Height / target.Height);
    const std::uint32_t* pixels = image.Pixels.data() + static_cast<std::size_t>(from) *
                                                            static_cast<std::size_t>(image.Width);
    std::uint32_t* row = raster.Row(y) + left;
    if (same_width) {
      std::copy_n(pixels + source.X + (left - target.X), right - left, row);
    } else {
      for (int at : column)
        *row++ = pixels[at];
    }
  }
}

}  // namespace zepril
