// Lines and labels of the metric grids that are not the map's own.
#include "map/grid_layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "tests/map/grid_world.h"

namespace zepril {
namespace {

TEST(MetricGrid, TheBaseIsAMultipleOfTheStep) {
  const GridReach reach = GridReachOf(5658.258, 50.0, 1.0, 10000.0);
  EXPECT_DOUBLE_EQ(reach.Step, 5.0);
  EXPECT_DOUBLE_EQ(reach.First, 5655.0 - 50.0);
  EXPECT_DOUBLE_EQ(reach.Last, 5655.0 + 50.0);
  EXPECT_EQ(reach.Count(), 21);
  // A step beyond the value: the base is 0.
  const GridReach wide = GridReachOf(400.0, 20000.0, 1.0, 30000.0);
  EXPECT_DOUBLE_EQ(wide.First, -20000.0);
  EXPECT_DOUBLE_EQ(wide.Last, 20000.0);
}

TEST(MetricGrid, ReachesAreHeldWithinTheirLimit) {
  const GridReach low = GridReachOf(-9900.0, 1000.0, 1.0, 10000.0);
  EXPECT_DOUBLE_EQ(low.First, -10000.0);
  EXPECT_DOUBLE_EQ(low.Last, -8900.0);
  const GridReach high = GridReachOf(9900.0, 1000.0, 1.0, 10000.0);
  EXPECT_DOUBLE_EQ(high.Last, 10000.0);
  EXPECT_EQ(GridReachOf(1e30, 50.0, 1.0, 10000.0).Count(), 1);
  const GridReach strip = GridReachOf(15500.0, 5000.0, 3.0, 20000.0);
  EXPECT_DOUBLE_EQ(strip.First, 500.0);
  EXPECT_DOUBLE_EQ(strip.Last, 20000.0);
}

TEST(MetricGrid, NoReachHasMoreThanSixtyOneLines) {
  for (double tile : kScales) {
    for (double zoom : kZooms) {
      for (double value : {0.0, -0.001, 12.345, 5658.258, -9999.999, 15500.0}) {
        EXPECT_LE(GridReachOf(value, tile * zoom, 3.0, 20000.0).Count(), 61);
        EXPECT_GE(GridReachOf(value, tile * zoom, 3.0, 20000.0).Count(), 1);
      }
    }
  }
}

struct MetricSystem {
  DisplayMode Mode;
  Colour Ink;
  double EastWidths;
  double EastLimit;
};
constexpr MetricSystem kMetricSystems[] = {{DisplayMode::GaussKrueger, kPinkGrid, 3.0, 20000.0},
                                           {DisplayMode::UtmByPosition, kCyanGrid, 1.0, 10000.0},
                                           {DisplayMode::Rt90, kGreenGrid, 1.0, 10000.0}};

Geodetic Wgs84Of(const MetricSystem& system, const CoordinateValues& values, double e, double n) {
  if (system.Mode == DisplayMode::GaussKrueger) {
    return GaussKruegerToWgs84(e, n, values.GkCentralMeridian);
  }
  if (system.Mode == DisplayMode::Rt90) return Rt90ToWgs84(e, n);
  return UtmToGeodetic(values.UtmCentralMeridian, e, n, 500000.0);
}

// The literal way: all lines, all points, each joined to the one before unless it starts its line.
std::vector<PixelLine> LiteralMetricLines(const Grids& grids, const MetricSystem& system,
                                          const std::string& north, const std::string& east) {
  constexpr int kStart = -999999;
  const double p = grids.View.MetresPerPixel;
  const double d = p / 10.0;
  const double n = d * Int(PositionTextKm(north) / d) - p;
  const double e = d * Int(PositionTextKm(east) / d) - system.EastWidths * p;
  const double n0 = std::clamp(n, -10000.0, 10000.0);
  const double n1 = std::clamp(n + 2.0 * p, -10000.0, 10000.0);
  const double e0 = std::clamp(e, -system.EastLimit, system.EastLimit);
  const double e1 =
      std::clamp(e + 2.0 * system.EastWidths * p, -system.EastLimit, system.EastLimit);
  std::vector<PixelLine> lines;
  PixelPoint last;
  const auto join = [&](double east_km, double north_km) {
    const Geodetic geo = Wgs84Of(system, grids.Values, east_km * 1000.0, north_km * 1000.0);
    const GridMetres at = GeodeticToUtm(geo.Lon, geo.Lat, grids.View.MapCentralMeridian, 500000.0);
    const double x = ExactPixelX(grids.View, at.East / 1000.0);
    const double y = ExactPixelY(grids.View, at.North / 1000.0);
    if (!std::isfinite(x) || !std::isfinite(y)) {
      last = {kStart, kStart};
      return;
    }
    const PixelPoint pixel{DrawPixel(x), DrawPixel(y)};
    if (std::abs(pixel.X - last.X) <= 120 && std::abs(pixel.Y - last.Y) <= 120) {
      lines.push_back({last, pixel});
    }
    last = pixel;
  };
  const int norths = static_cast<int>((n1 - n0) / d + 1e-6);
  const int easts = static_cast<int>((e1 - e0) / d + 1e-6);
  for (int row = 0; row <= norths; ++row) {
    last = {kStart, kStart};
    for (int column = 0; column <= easts; ++column)
      join(e0 + column * d, n0 + row * d);
  }
  for (int column = 0; column <= easts; ++column) {
    last = {kStart, kStart};
    for (int row = 0; row <= norths; ++row)
      join(e0 + column * d, n0 + row * d);
  }
  return lines;
}

TEST(MetricGrid, WhatIsSeenIsWhatTheWholeGridWouldShow) {
  std::mt19937 random(5);
  const auto spread = [&](double reach) {
    return reach * (static_cast<double>(random() % 20001) / 10000.0 - 1.0);
  };
  for (int i = 0; i < 150; ++i) {
    const double zoom = kZooms[random() % 6];
    const double tile = kScales[random() % 6];
    const double reach = random() % 3 == 0 ? 9999.0 : 1500.0;
    Grids grids(std::min(5500.0 + spread(reach), 9999.0), 400.0 + spread(reach), tile, zoom);
    for (const MetricSystem& system : kMetricSystems) {
      const bool gk = system.Mode == DisplayMode::GaussKrueger;
      const bool rt = system.Mode == DisplayMode::Rt90;
      const std::string north = gk   ? grids.Values.GkNorthText
                                : rt ? grids.Values.RtNorthText
                                     : grids.Values.UtmNorthText;
      const std::string east = gk   ? grids.Values.GkEastText
                               : rt ? grids.Values.RtEastText
                                    : grids.Values.UtmEastText;
      grids.Surface.Operations.clear();
      grids.Draw(system.Mode);
      auto expected = LiteralMetricLines(grids, system, north, east);
      std::erase_if(expected, [&](const PixelLine& line) { return !Seen(grids, line); });
      ASSERT_EQ(Sorted(grids.Lines()), Sorted(expected)) << tile << " " << zoom;
    }
  }
}

TEST(MetricGrid, LinesLieOnMultiplesOfTheStepInTheirSystem) {
  for (double tile : {200.0, 50.0, 10.0}) {
    Grids grids(5800.3, 430.7, tile);
    grids.Draw(DisplayMode::GaussKrueger);
    const double d = tile / 10.0;
    ASSERT_GT(grids.Lines().size(), 150u);
    for (const PixelLine& line : grids.Lines()) {
      const MapPosition at = PositionOfPixel(grids.View, line.From.X, line.From.Y);
      const Geodetic geo = UtmToGeodetic(15.0, at.EastKm * 1000.0, at.NorthKm * 1000.0, 500000.0);
      const GridMetres gk = Wgs84ToGaussKrueger(geo.Lon, geo.Lat, 15.0);
      for (double km : {gk.North / 1000.0, gk.East / 1000.0})
        EXPECT_NEAR(km, d * std::round(km / d), 0.8 * tile / 1000.0);
    }
  }
}

TEST(MetricGrid, LabelsAreTheKilometresWhereTheLineMeetsTheEdge) {
  Grids grids(5800.3, 430.7, 50.0);
  grids.Draw(DisplayMode::Rt90);
  grids.View.CursorDisplayMode = grids.View.MonitorDisplayMode = 4;
  grids.Surface.Operations.clear();
  grids.Draw(DisplayMode::Rt90);
  const auto labels = grids.Labels(kGreenGrid);
  ASSERT_GE(labels.size(), 15u);
  const auto rt90_at = [&](double x, double y) {
    const MapPosition at = PositionOfPixel(grids.View, x, y);
    const Geodetic geo = UtmToGeodetic(15.0, at.EastKm * 1000.0, at.NorthKm * 1000.0, 500000.0);
    return Wgs84ToRt90(geo.Lon, geo.Lat);
  };
  for (const auto& label : labels) {
    if (label.X1 == 2) {
      EXPECT_NEAR(rt90_at(0, label.Y1 + 12).North / 1000.0, Val(label.Words), 0.1);
    } else {
      EXPECT_EQ(label.Y1, 1);
      // One that would lose its end has been moved in.
      const bool moved_in = label.X1 + 8 * static_cast<int>(label.Words.size()) + 1 == 1200;
      if (moved_in) continue;
      EXPECT_NEAR(rt90_at(label.X1 - 4, 0).East / 1000.0, Val(label.Words), 0.1);
    }
  }
}

TEST(MetricGrid, ARimOfBlackLiesUnderEachLabel) {
  Grids grids(5800.3, 430.7, 50.0);
  grids.Draw(DisplayMode::Rt90);
  EXPECT_EQ(grids.Labels(kBlack).size(), 9 * grids.Labels(kGreenGrid).size());
}

TEST(MetricGrid, LabelsOfGridsShownTogetherStandSideBySide) {
  std::array<bool, kDisplayModes> all{};
  all.fill(true);
  EXPECT_EQ(SlotsAmong(all, DisplayMode::MapUtm).Left, 0);
  EXPECT_EQ(SlotsAmong(all, DisplayMode::GaussKrueger).Left, 1);
  EXPECT_EQ(SlotsAmong(all, DisplayMode::GaussKrueger).Top, 0);
  EXPECT_EQ(SlotsAmong(all, DisplayMode::Rt90).Left, 3);
  EXPECT_EQ(SlotsAmong(all, DisplayMode::Rt90).Top, 2);
  std::array<bool, kDisplayModes> alone{};
  alone[4] = true;
  EXPECT_EQ(SlotsAmong(alone, DisplayMode::Rt90).Left, 0);
  EXPECT_EQ(SlotsAmong(alone, DisplayMode::Rt90).Top, 0);
}

TEST(MetricGrid, NoTwoLabelsOfAGridOverlap) {
  for (double zoom : kZooms) {
    for (int mode = 1; mode < kDisplayModes; ++mode) {
      Grids grids(7000.0, 400.0, 5000.0, zoom);
      grids.Draw(static_cast<DisplayMode>(mode));
      auto labels = grids.Surface.Of("text");
      std::erase_if(labels, [](const auto& label) { return label.Ink == kBlack; });
      for (std::size_t a = 0; a < labels.size(); ++a) {
        for (std::size_t b = a + 1; b < labels.size(); ++b) {
          const int width = 8 * static_cast<int>(labels[a].Words.size());
          const int other = 8 * static_cast<int>(labels[b].Words.size());
          EXPECT_FALSE(std::abs(labels[a].Y1 - labels[b].Y1) < 12 &&
                       labels[a].X1 < labels[b].X1 + other && labels[b].X1 < labels[a].X1 + width)
              << labels[a].Words << " " << labels[b].Words;
        }
      }
    }
  }
}

TEST(MetricGrid, AStripOfTwoDigitsIsStillCoveredThoughItsTextHasLostOne) {
  // The easting reads 10484.55 while the true value is 10484.255: 590 pixels beside the centre.
  Grids grids(5761.038, 1532.657, 2.0, 0.25);
  ASSERT_EQ(grids.Values.GkEastText, " 10484.55");
  grids.Draw(DisplayMode::GaussKrueger);
  int west = 0;
  int east = 0;
  for (const PixelLine& line : grids.Lines()) {
    west += line.From.X < 100 ? 1 : 0;
    east += line.From.X > 1100 ? 1 : 0;
  }
  EXPECT_GT(west, 3);
  EXPECT_GT(east, 3);
}

}  // namespace
}  // namespace zepril
