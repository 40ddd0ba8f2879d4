// Shapes as a test of points, and the average of the points in a pixel.
#include "make_symbols/painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zepril {
namespace {

double DistanceToSegment(Point p, Point a, Point b) {
  const double dx = b.x - a.x, dy = b.y - a.y;
  const double length2 = dx * dx + dy * dy;
  double along = 0;
  if (length2 > 0) along = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / length2, 0.0, 1.0);
  return std::hypot(p.x - a.x - along * dx, p.y - a.y - along * dy);
}

bool InsideArea(const std::vector<Point>& corners, Point p) {
  bool inside = false;
  for (std::size_t i = 0, j = corners.size() - 1; i < corners.size(); j = i++) {
    const Point a = corners[i], b = corners[j];
    if ((a.y > p.y) == (b.y > p.y)) continue;
    if (p.x < (b.x - a.x) * (p.y - a.y) / (b.y - a.y) + a.x) inside = !inside;
  }
  return inside;
}

}  // namespace

Painter::Painter() : samples_(static_cast<std::size_t>(kSamples * kSamples)) {}

template <typename Inside>
void Painter::Paint(Point low, Point high, Colour colour, Inside inside) {
  const auto limit = [](double v) {
    return std::clamp(static_cast<int>(std::floor(v * kFine)), 0, kSamples);
  };
  for (int y = limit(low.y); y < limit(high.y + 1); ++y) {
    for (int x = limit(low.x); x < limit(high.x + 1); ++x) {
      if (inside(Point{(x + 0.5) / kFine, (y + 0.5) / kFine})) {
        samples_[static_cast<std::size_t>(y) * kSamples + x] = colour;
      }
    }
  }
}

void Painter::Fill(Colour colour) {
  std::fill(samples_.begin(), samples_.end(), colour);
}

void Painter::Area(const std::vector<Point>& corners, Colour colour) {
  if (corners.empty()) return;
  Paint({0, 0}, {kSide, kSide}, colour, [&](Point p) { return InsideArea(corners, p); });
}

void Painter::Line(const std::vector<Point>& points, double width, Colour colour) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    const Point a = points[i - 1], b = points[i];
    Paint({std::min(a.x, b.x) - width, std::min(a.y, b.y) - width},
          {std::max(a.x, b.x) + width, std::max(a.y, b.y) + width}, colour,
          [&](Point p) { return DistanceToSegment(p, a, b) <= width / 2; });
  }
}

void Painter::Ellipse(Point centre, double radius_x, double radius_y, Colour colour) {
  if (radius_x <= 0 || radius_y <= 0) return;
  Paint({centre.x - radius_x, centre.y - radius_y}, {centre.x + radius_x, centre.y + radius_y},
        colour, [&](Point p) {
          return std::hypot((p.x - centre.x) / radius_x, (p.y - centre.y) / radius_y) <= 1;
        });
}

void Painter::Ring(Point centre, double radius, double width, Colour colour) {
  Arc(centre, radius, width, 0, 360, colour);
}

void Painter::Arc(Point centre, double radius, double width, double from, double to,
                  Colour colour) {
  const double reach = radius + width;
  Paint({centre.x - reach, centre.y - reach}, {centre.x + reach, centre.y + reach}, colour,
        [&](Point p) {
          const double dx = p.x - centre.x, dy = centre.y - p.y;
          if (std::abs(std::hypot(dx, dy) - radius) > width / 2) return false;
          double angle = std::atan2(dy, dx) * 180 / std::numbers::pi;
          while (angle < from)
            angle += 360;
          return angle <= to;
        });
}

void Painter::Box(double left, double top, double right, double bottom, Colour colour) {
  Paint({left, top}, {right, bottom}, colour,
        [&](Point p) { return p.x >= left && p.x < right && p.y >= top && p.y < bottom; });
}

void Painter::Glyph(const PixelGlyph& glyph, int x, int y, Colour colour) {
  for (int row = 0; row < kGlyphHeight; ++row) {
    for (int column = 0; column < kGlyphWidth; ++column) {
      if (!GlyphPixel(glyph, column, row)) continue;
      Box(x + column, y + row, x + column + 1, y + row + 1, colour);
    }
  }
}

Colour Painter::Pixel(int x, int y) const {
  int red = 0, green = 0, blue = 0;
  for (int sy = y * kFine; sy < (y + 1) * kFine; ++sy) {
    for (int sx = x * kFine; sx < (x + 1) * kFine; ++sx) {
      const Colour& sample = samples_[static_cast<std::size_t>(sy) * kSamples + sx];
      red += sample.red;
      green += sample.green;
      blue += sample.blue;
    }
  }
  const int half = kFine * kFine / 2;
  const auto mean = [&](int sum) {
    return static_cast<std::uint8_t>((sum + half) / (kFine * kFine));
  };
  return {mean(red), mean(green), mean(blue)};
}

}  // namespace zepril
