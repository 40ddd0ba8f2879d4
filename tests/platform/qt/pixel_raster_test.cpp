// Lines, boxes, circles and images to the pixel, at every edge.
#include "platform/qt/pixel_raster.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>
#include <random>
#include <set>

namespace zepril {
namespace {

constexpr std::uint32_t kInk = 0xFF123456u;

struct Sheet {
  Sheet(int width, int height)
      : Cells(static_cast<std::size_t>(width * height)),
        Raster{Cells.data(), width, height, width} {}
  std::uint32_t At(int x, int y) const { return Raster.Row(y)[x]; }
  std::set<std::pair<int, int>> Painted() const {
    std::set<std::pair<int, int>> painted;
    for (int y = 0; y < Raster.Height; ++y) {
      for (int x = 0; x < Raster.Width; ++x) {
        if (At(x, y) != 0) painted.insert({x, y});
      }
    }
    return painted;
  }
  std::vector<std::uint32_t> Cells;
  PixelRaster Raster;
};

TEST(PixelOfColour, SwapsBlueAndRed) {
  EXPECT_EQ(PixelOfColour(0x112233), 0xFF332211u);
}

TEST(RasterLine, PaintsBothEnds) {
  Sheet sheet(10, 10);
  RasterLine(sheet.Raster, {{2, 3}, {6, 3}}, kInk);
  EXPECT_EQ(sheet.Painted(),
            (std::set<std::pair<int, int>>{{2, 3}, {3, 3}, {4, 3}, {5, 3}, {6, 3}}));
  Sheet slanted(10, 10);
  RasterLine(slanted.Raster, {{6, 5}, {2, 3}}, kInk);
  EXPECT_TRUE(slanted.Painted().contains({6, 5}));
  EXPECT_TRUE(slanted.Painted().contains({2, 3}));
  EXPECT_EQ(slanted.Painted().size(), 5u);
  Sheet dot(3, 3);
  RasterLine(dot.Raster, {{1, 1}, {1, 1}}, kInk);
  EXPECT_EQ(dot.Painted(), (std::set<std::pair<int, int>>{{1, 1}}));
}

// The plain way: every step of the longer axis, the other coordinate rounded half up.
std::set<std::pair<int, int>> LiteralLine(const PixelLine& line, int width, int height) {
  std::set<std::pair<int, int>> painted;
  const int dx = line.To.X - line.From.X;
  const int dy = line.To.Y - line.From.Y;
  const std::int64_t steps = std::max(std::abs(dx), std::abs(dy));
  const auto along = [&](int delta, std::int64_t step) {
    if (steps == 0) return std::int64_t{0};
    const std::int64_t rise = (2 * step * std::abs(delta) + steps) / (2 * steps);
    return delta < 0 ? -rise : rise;
  };
  for (std::int64_t step = 0; step <= steps; ++step) {
    const auto x = static_cast<int>(line.From.X + along(dx, step));
    const auto y = static_cast<int>(line.From.Y + along(dy, step));
    if (x >= 0 && y >= 0 && x < width && y < height) painted.insert({x, y});
  }
  return painted;
}

TEST(RasterLine, CuttingAtTheEdgeDoesNotBendALine) {
  std::mt19937 random(9);
  const auto coordinate = [&] { return static_cast<int>(random() % 200) - 80; };
  for (int i = 0; i < 20000; ++i) {
    Sheet sheet(40, 30);
    const PixelLine line{{coordinate(), coordinate()}, {coordinate(), coordinate()}};
    RasterLine(sheet.Raster, line, kInk);
    ASSERT_EQ(sheet.Painted(), LiteralLine(line, 40, 30))
        << line.From.X << "," << line.From.Y << " " << line.To.X << "," << line.To.Y;
  }
}

TEST(RasterLine, CoordinatesFarOutsideAreSurvived) {
  Sheet sheet(40, 30);
  constexpr int kFar = std::numeric_limits<int>::max();
  for (int x : {-kFar - 1, -4000, 20, 4000, kFar}) {
    for (int y : {-kFar - 1, -4000, 15, 4000, kFar}) {
      RasterLine(sheet.Raster, {{x, y}, {15, 15}}, kInk);
      RasterBox(sheet.Raster, x, y, 15, 15, kInk);
      RasterCircle(sheet.Raster, x, y, 10, kInk);
      RasterCircle(sheet.Raster, 10, 10, std::abs(x / 2), kInk);
      RasterArc(sheet.Raster, x, y, 10, 0.0, 3.0, kInk);
    }
  }
  EXPECT_FALSE(sheet.Painted().empty());
}

TEST(RasterBox, EdgesAreInclusiveAndCornersMayBeSwapped) {
  Sheet sheet(10, 10);
  RasterBox(sheet.Raster, 6, 5, 2, 3, kInk);
  EXPECT_EQ(sheet.Painted().size(), 5u * 3u - 3u);
  EXPECT_EQ(sheet.At(4, 4), 0u);
  RasterFilledBox(sheet.Raster, 2, 3, 6, 5, kInk);
  EXPECT_EQ(sheet.Painted().size(), 15u);
}

TEST(RasterCircle, IsSymmetricAndTouchesItsRadius) {
  for (int radius = 1; radius < 15; ++radius) {
    Sheet sheet(31, 31);
    RasterCircle(sheet.Raster, 15, 15, radius, kInk);
    const auto painted = sheet.Painted();
    EXPECT_TRUE(painted.contains({15 + radius, 15}));
    EXPECT_TRUE(painted.contains({15, 15 - radius}));
    for (const auto& [x, y] : painted) {
      EXPECT_TRUE(painted.contains({30 - x, y}));
      EXPECT_TRUE(painted.contains({y, x}));
    }
  }
}

TEST(RasterArc, PaintsTheUpperRightQuarterCounterClockwise) {
  Sheet sheet(31, 31);
  RasterArc(sheet.Raster, 15, 15, 10, 0.0, 1.570796, kInk);
  EXPECT_NE(sheet.At(25, 15), 0u);
  EXPECT_NE(sheet.At(15, 5), 0u);
  EXPECT_EQ(sheet.At(5, 15), 0u);
}

TEST(RasterImage, ShrinksByDroppingAndStretchesByRepeating) {
  const std::vector<std::uint32_t> pixels{1, 2, 3, 4};
  Sheet sheet(8, 1);
  RasterImage(sheet.Raster, {0, 0, 2, 1}, {4, 1, pixels}, {0, 0, 4, 1});
  RasterImage(sheet.Raster, {2, 0, 6, 1}, {4, 1, pixels}, {1, 0, 3, 1});
  EXPECT_EQ(sheet.Cells, (std::vector<std::uint32_t>{1, 3, 2, 2, 3, 3, 4, 4}));
}

TEST(RasterImage, IsCutAtEveryEdge) {
  const std::vector<std::uint32_t> pixels{1, 2, 3, 4, 5, 6, 7, 8, 9};
  Sheet sheet(2, 2);
  RasterImage(sheet.Raster, {-1, -1, 3, 3}, {3, 3, pixels}, {0, 0, 3, 3});
  EXPECT_EQ(sheet.Cells, (std::vector<std::uint32_t>{5, 6, 8, 9}));
}

TEST(RasterImage, ASourceOutsideItsImageDrawsNothing) {
  const std::vector<std::uint32_t> pixels{1, 2, 3, 4};
  Sheet sheet(4, 4);
  RasterImage(sheet.Raster, {0, 0, 4, 4}, {2, 2, pixels}, {1, 0, 2, 2});
  RasterImage(sheet.Raster, {0, 0, 4, 4}, {4, 4, pixels}, {0, 0, 4, 4});
  RasterImage(sheet.Raster, {0, 0, 0, 4}, {2, 2, pixels}, {0, 0, 2, 2});
  EXPECT_TRUE(sheet.Painted().empty());
}

}  // namespace
}  // namespace zepril
