// Lines and labels of the grids at any scale, also at their ends.
#include "map/grid_layer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "tests/map/grid_world.h"

namespace zepril {
namespace {

// ---- Which grids --------------------------------------------------------------------------------

TEST(GridLayer, ShowsTheSystemsOfTheThreeReadOuts) {
  Grids grids(5800.0, 400.0, 50.0);
  grids.View.CentreDisplayMode = 1;
  grids.View.CursorDisplayMode = 2;
  grids.View.MonitorDisplayMode = 4;
  std::vector<Colour> seen;
  for (int mode = 0; mode < kDisplayModes; ++mode) {
    grids.Surface.Operations.clear();
    GridLayer(grids.Surface, grids.View, grids.Values, static_cast<DisplayMode>(mode), {0, 0},
              grids.Taken);
    const auto lines = grids.Surface.Of("line");
    seen.push_back(lines.empty() ? 0 : lines.front().Ink);
    for (const auto& line : lines)
      EXPECT_EQ(line.Ink, seen.back());
  }
  EXPECT_EQ(seen, (std::vector<Colour>{0, kYellowGrid, kPinkGrid, 0, kGreenGrid}));
}

TEST(GridLayer, TheMapsOwnAndTheUtmOfThePositionHaveColoursOfTheirOwn) {
  Grids grids(5800.0, 400.0, 50.0);
  grids.Draw(DisplayMode::MapUtm);
  EXPECT_EQ(grids.Surface.Of("line").front().Ink, kWhiteGrid);
  grids.Surface.Operations.clear();
  grids.Draw(DisplayMode::UtmByPosition);
  EXPECT_EQ(grids.Surface.Of("line").front().Ink, kCyanGrid);
}

TEST(GridLayer, LeavesTheValuesOfTheReadOutsAlone) {
  Grids grids(5800.0, 400.0, 50.0);
  grids.Values.GkNorthText = "as it was";
  grids.Values.GeoLat = 1.25;
  grids.Draw(DisplayMode::GaussKrueger);
  EXPECT_EQ(grids.Values.GkNorthText, "as it was");
  EXPECT_EQ(grids.Values.GeoLat, 1.25);
  EXPECT_FALSE(grids.Surface.Operations.empty());
}

// ---- The map's own grid -------------------------------------------------------------------------

TEST(MapGrid, LinesStandEveryHundredPixelsFromTheTile) {
  Grids grids(5825.0, 425.0, 50.0, 1.0, 800, 600);
  // West edge 25 km west of the centre, north edge 25 km north of it.
  const PixelPoint tile{400 - 500, 299 - 500 + 1};
  grids.Draw(DisplayMode::MapUtm, tile);
  const auto lines = Sorted(grids.Lines());
  std::vector<PixelLine> expected;
  for (int x = 0; x < 800; x += 100)
    expected.push_back({{x, -5000}, {x, 5000}});
  for (int y = 99; y < 600; y += 100)
    expected.push_back({{-5000, y}, {5000, y}});
  EXPECT_EQ(lines, Sorted(expected));
}

TEST(MapGrid, LabelsAreTheKilometresOfTheirLine) {
  Grids grids(5825.0, 425.0, 50.0, 1.0, 800, 600);
  grids.Draw(DisplayMode::MapUtm, {400 - 500, 299 - 500 + 1});
  const auto labels = grids.Labels(kWhiteGrid);
  const auto at = [&](int x, int y) {
    for (const auto& label : labels) {
      if (label.X1 == x && label.Y1 == y) return label.Words;
    }
    return std::string();
  };
  // The line at pixel 400 is the centre's 425; at the lower edge, four pixels beside it.
  EXPECT_EQ(at(404, 600 - 12), "425");
  EXPECT_EQ(at(4, 600 - 12), "405");
  EXPECT_EQ(at(2, 299 - 12), "5825");
  EXPECT_EQ(at(2, 99 - 12), "5835");
  for (const auto& label : labels) {
    EXPECT_GE(label.X1, 0);
    EXPECT_LT(label.X1, 800);
    EXPECT_GE(label.Y1, 0);
    EXPECT_LT(label.Y1, 600);
  }
}

TEST(MapGrid, FineStepsHaveLabelsOfMetres) {
  Grids grids(5800.0, 400.0, 2.0, 0.25, 800, 600);
  grids.Draw(DisplayMode::MapUtm, {400, 299 - 4000 + 1});
  const auto texts = grids.LabelTexts(kWhiteGrid);
  EXPECT_EQ(texts.count("400.05"), 1u);
  EXPECT_EQ(texts.count("399.9"), 1u);
  EXPECT_EQ(texts.count("5800"), 1u);
  EXPECT_EQ(texts.count("5799.95"), 1u);
}

TEST(MapGrid, AroundZeroNumbersAreWhole) {
  Grids grids(0.0, 0.0, 2.0, 0.25, 800, 600);
  grids.Draw(DisplayMode::MapUtm, {400, 299 - 4000 + 1});
  const auto texts = grids.LabelTexts(kWhiteGrid);
  EXPECT_EQ(texts.count("0"), 1u);
  EXPECT_EQ(texts.count("-0"), 0u);
  EXPECT_EQ(texts.count("0.05"), 1u);
  EXPECT_EQ(texts.count("-0.05"), 1u);
}

TEST(MapGrid, ReachesFiveThousandPixelsFromTheTileAndNoFarther) {
  Grids grids(5800.0, 400.0, 50.0);
  grids.Draw(DisplayMode::MapUtm, {-4960, 5600});
  const auto lines = grids.Lines();
  // Upright: -4960 + 5000 = 40. Level: 5599 - 5000 = 599 and on.
  EXPECT_EQ(Sorted(lines), Sorted({{{40, -5000}, {40, 5000}},
                                   {{-5000, 599}, {5000, 599}},
                                   {{-5000, 699}, {5000, 699}},
                                   {{-5000, 799}, {5000, 799}}}));
}

// ---- The geographic grid ------------------------------------------------------------------------

TEST(GeographicGrid, StepsGrowWithTheScale) {
  EXPECT_EQ(GeographicStepMinutes(0.5), 1);
  EXPECT_EQ(GeographicStepMinutes(14.9), 1);
  EXPECT_EQ(GeographicStepMinutes(15.0), 2);
  EXPECT_EQ(GeographicStepMinutes(29.9), 2);
  EXPECT_EQ(GeographicStepMinutes(30.0), 5);
  EXPECT_EQ(GeographicStepMinutes(60.0), 10);
  EXPECT_EQ(GeographicStepMinutes(90.0), 15);
  EXPECT_EQ(GeographicStepMinutes(150.0), 30);
  EXPECT_EQ(GeographicStepMinutes(299.0), 30);
  EXPECT_EQ(GeographicStepMinutes(300.0), 60);
  EXPECT_EQ(GeographicStepMinutes(700.0), 120);
  EXPECT_EQ(GeographicStepMinutes(1500.0), 300);
  EXPECT_EQ(GeographicStepMinutes(2999.0), 300);
  EXPECT_EQ(GeographicStepMinutes(3000.0), 600);
}

TEST(GeographicGrid, LabelsAreDegreesAndBelowAThousandMetresMinutes) {
  EXPECT_EQ(DegreeLabel(52 * 60, false), "52");
  EXPECT_EQ(DegreeLabel(52 * 60 + 5, true), "52:05");
  EXPECT_EQ(DegreeLabel(-5, true), "-0:05");
  EXPECT_EQ(DegreeLabel(-9 * 60 - 30, true), "-9:30");
  EXPECT_EQ(DegreeLabel(190 * 60, false), "-170");
  EXPECT_EQ(DegreeLabel(-190 * 60, false), "170");
  EXPECT_EQ(DegreeLabel(-180 * 60, false), "180");
  Grids coarse(5800.0, 400.0, 1000.0);
  coarse.Draw(DisplayMode::Geographic);
  EXPECT_EQ(coarse.LabelTexts(kYellowGrid).count("52"), 1u);
  Grids fine(5800.0, 400.0, 1000.0, 0.5);
  fine.Draw(DisplayMode::Geographic);
  EXPECT_EQ(fine.LabelTexts(kYellowGrid).count("52:00"), 1u);
}

// The literal way: every line whole, nothing left out.
std::vector<PixelLine> LiteralGeographicLines(const MapViewState& view, double step, double m) {
  const Geodetic centre = UtmToGeodetic(view.MapCentralMeridian, view.CentreEastKm * 1000.0,
                                        view.CentreNorthKm * 1000.0, 500000.0);
  const double lat0 = step * Int(centre.Lat / step);
  const double lon0 = step * Int((centre.Lon - m) / step) + m;
  std::vector<PixelLine> lines;
  const auto pixel = [&](const GridMetres& at) {
    return PixelPoint{DrawPixel(ExactPixelX(view, at.East / 1000.0)),
                      DrawPixel(ExactPixelY(view, at.North / 1000.0))};
  };
  const auto join = [&](double lon1, double lat1, double lon2, double lat2) {
    const GridMetres from = GeodeticToUtm(lon1, lat1, view.MapCentralMeridian, 500000.0);
    const GridMetres to = GeodeticToUtm(lon2, lat2, view.MapCentralMeridian, 500000.0);
    // A quarter of the globe from the meridian the far side of the earth begins elsewhere.
    const bool torn = !(std::hypot(to.East - from.East, to.North - from.North) < 1e7);
    if (!torn) lines.push_back({pixel(from), pixel(to)});
  };
  for (int i = -16; i <= 16; ++i) {
    for (int j = -16; j <= 16; ++j) {
      const double lat = lat0 + i * step;
      const double lon = lon0 + j * step;
      if (std::fabs(lat) > 80.0001) continue;
      if (j < 16) join(lon, lat, lon + step, lat);
      if (i < 16 && lat + step < 80.0001) join(lon, lat, lon, lat + step);
    }
  }
  return lines;
}

TEST(GeographicGrid, WhatIsSeenIsWhatTheWholeGridWouldShow) {
  std::mt19937 random(3);
  const auto spread = [&](double reach) {
    return reach * (static_cast<double>(random() % 20001) / 10000.0 - 1.0);
  };
  const struct {
    double Tile, Zoom, Step, Meridian;
  } kViews[] = {{1000.0, 1.0, 2.0, 1.0},      {1000.0, 0.5, 1.0, 0.0},
                {200.0, 1.0, 0.5, 0.0},       {50.0, 1.0, 5.0 / 60.0, 0.0},
                {10.0, 1.0, 1.0 / 60.0, 0.0}, {2.0, 0.25, 1.0 / 60.0, 0.0},
                {1000.0, 2.0, 5.0, 0.0},      {5000.0, 1.0, 10.0, 5.0}};
  for (int i = 0; i < 80; ++i) {
    const auto& shape = kViews[random() % 8];
    Grids grids(5000.0 + spread(2500.0), 500.0 + spread(1200.0), shape.Tile, shape.Zoom);
    grids.Draw(DisplayMode::Geographic);
    auto expected = LiteralGeographicLines(grids.View, shape.Step, shape.Meridian);
    std::erase_if(expected, [&](const PixelLine& line) { return !Seen(grids, line); });
    // Binary fractions of a step may move a pixel; none of these views has one.
    ASSERT_EQ(Sorted(grids.Lines()), Sorted(expected)) << shape.Tile << " " << shape.Zoom;
  }
}

TEST(GeographicGrid, StopsAtEightyDegrees) {
  // The centre lies at 84 degrees.
  const GridMetres far_north = GeodeticToUtm(15.0, 84.0, 15.0, 500000.0);
  Grids grids(far_north.North / 1000.0, 500.0, 1000.0);
  grids.Draw(DisplayMode::Geographic);
  const double parallel_80 = GeodeticToUtm(15.0, 80.0, 15.0, 500000.0).North / 1000.0;
  const int limit = DrawPixel(ExactPixelY(grids.View, parallel_80));
  ASSERT_FALSE(grids.Lines().empty());
  for (const PixelLine& line : grids.Lines()) {
    // Away from the meridian the parallel bends to the north.
    if (std::abs(line.From.X - 600) < 60 && std::abs(line.To.X - 600) < 60) {
      EXPECT_GE(line.From.Y, limit - 2);
      EXPECT_GE(line.To.Y, limit - 2);
    }
  }
  EXPECT_EQ(grids.LabelTexts(kYellowGrid).count("82"), 0u);
}

TEST(GeographicGrid, FromWholeDegreesOnTheMapsMeridianIsALine) {
  for (const auto& [tile, zoom] : {std::pair{1000.0, 1.0}, {1000.0, 0.5}, {5000.0, 1.0}}) {
    Grids grids(5800.0, 500.0, tile, zoom);
    grids.Draw(DisplayMode::Geographic);
    bool found = false;
    for (const PixelLine& line : grids.Lines()) {
      found = found || (line.From.X == 600 && line.To.X == 600 && line.From.Y != line.To.Y);
    }
    EXPECT_TRUE(found) << tile << " " << zoom;
    const auto texts = grids.LabelTexts(kYellowGrid);
    EXPECT_EQ(texts.count("15") + texts.count("15:00"), 1u);
  }
}

TEST(GeographicGrid, LabelsStandBesideTheirLineAtTheEdge) {
  Grids grids(5800.0, 400.0, 200.0);
  grids.Draw(DisplayMode::Geographic);
  ASSERT_GE(grids.Labels(kYellowGrid).size(), 6u);
  for (const auto& label : grids.Labels(kYellowGrid)) {
    if (label.Y1 == 800 - 24) continue;  // of meridians, above the lower edge
    const int width = 8 * static_cast<int>(label.Words.size());
    EXPECT_EQ(label.X1, 1199 - width - 2);
    // The line crosses the last column twelve pixels lower.
    const MapPosition edge = PositionOfPixel(grids.View, 1199, label.Y1 + 12);
    const Geodetic at = UtmToGeodetic(15.0, edge.EastKm * 1000.0, edge.NorthKm * 1000.0, 500000.0);
    const auto colon = label.Words.find(':');
    const double lat = Val(label.Words.substr(0, colon)) + Val(label.Words.substr(colon + 1)) / 60;
    EXPECT_NEAR(at.Lat, lat, 0.004) << label.Words;
  }
}

TEST(GeographicGrid, TheLastZoneGoesOnOverTheDateLine) {
  // Zone 60 has its meridian at 177 degrees east; the window reaches far beyond 180.
  Grids grids(5800.0, 800.0, 200.0, 1.0, 1200, 800, 60);
  grids.Draw(DisplayMode::Geographic);
  const auto texts = grids.LabelTexts(kYellowGrid);
  EXPECT_EQ(texts.count("-179:00"), 1u);
  EXPECT_EQ(texts.count("180:00"), 1u);
  EXPECT_EQ(texts.count("-178:00"), 1u);
  Grids utm(5800.0, 900.0, 200.0, 1.0, 1200, 800, 60);
  utm.Draw(DisplayMode::UtmByPosition);
  EXPECT_GT(utm.Lines().size(), 100u);
}

// ---- Large windows, labels of several grids -----------------------------------------------------

TEST(GridLayer, AWindowLargerThanTheReachIsFilledToItsEdges) {
  for (DisplayMode mode :
       {DisplayMode::GaussKrueger, DisplayMode::UtmByPosition, DisplayMode::Rt90}) {
    Grids grids(5817.860, 391.394, 50.0, 1.0, 3840, 2160);
    grids.Draw(mode);
    int west = 0;
    int east = 0;
    for (const PixelLine& line : grids.Lines()) {
      west += line.From.X < 200 ? 1 : 0;
      east += line.From.X > 3640 ? 1 : 0;
    }
    EXPECT_GT(west, 3) << static_cast<int>(mode);
    EXPECT_GT(east, 3) << static_cast<int>(mode);
  }
}

TEST(GridLayer, LinesOfALargeWindowStayOnTheSameValues) {
  const auto labels = [](int width) {
    Grids grids(5817.860, 391.394, 50.0, 1.0, width, 800);
    grids.Draw(DisplayMode::UtmByPosition);
    std::set<std::string> texts;
    for (const auto& text : grids.Surface.Of("text"))
      texts.insert(text.Words);
    return texts;
  };
  const auto small = labels(900);
  const auto large = labels(2560);
  EXPECT_GT(large.size(), small.size());
  for (const std::string& text : small)
    EXPECT_EQ(large.count(text), 1u) << text;
}

TEST(GridLayer, LabelsOfAllGridsLeaveEachOtherOut) {
  Grids grids(5817.860, 391.394, 50.0);
  grids.View.CentreDisplayMode = static_cast<int>(DisplayMode::Rt90);
  grids.View.CursorDisplayMode = static_cast<int>(DisplayMode::Geographic);
  grids.View.MonitorDisplayMode = static_cast<int>(DisplayMode::MapUtm);
  for (int mode = 0; mode < kDisplayModes; ++mode) {
    GridLayer(grids.Surface, grids.View, grids.Values, static_cast<DisplayMode>(mode), {37, 211},
              grids.Taken);
  }
  std::vector<RecorderSurface::Operation> labels;
  for (const auto& text : grids.Surface.Of("text")) {
    if (text.Ink != kBlack) labels.push_back(text);
  }
  ASSERT_GT(labels.size(), 20u);
  for (std::size_t one = 0; one < labels.size(); ++one) {
    const int width = 8 * static_cast<int>(labels[one].Words.size());
    // Whole, with the rim, inside the window.
    EXPECT_GE(labels[one].X1, 1) << labels[one].Words;
    EXPECT_GE(labels[one].Y1, 1) << labels[one].Words;
    EXPECT_LE(labels[one].X1 + width + 1, 1200) << labels[one].Words;
    for (std::size_t two = one + 1; two < labels.size(); ++two) {
      const int other = 8 * static_cast<int>(labels[two].Words.size());
      const bool apart = labels[one].X1 + width <= labels[two].X1 ||
                         labels[two].X1 + other <= labels[one].X1 ||
                         std::abs(labels[one].Y1 - labels[two].Y1) >= 12;
      EXPECT_TRUE(apart) << labels[one].Words << " and " << labels[two].Words;
    }
  }
}

// ---- Anything goes ------------------------------------------------------------------------------

TEST(GridLayer, AnyViewDrawsBoundedlyAndLabelsInside) {
  std::mt19937 random(17);
  const auto spread = [&](double reach) {
    return reach * (static_cast<double>(random() % 20001) / 10000.0 - 1.0);
  };
  std::vector<std::pair<double, double>> centres = {
      {0.0, 0.0},        {9999.999, 9999.999}, {-9999.999, -9999.999},
      {9999.999, 500.0}, {-9999.999, 500.0},   {0.0, 9999.999},
      {0.0, -9999.999},  {110.6, 500.0},       {5800.0, 500.0 + 220},
      {9997.0, 500.0},   {10.0, 500.0}};
  for (int i = 0; i < 8; ++i)
    centres.emplace_back(spread(9999.999), spread(9999.999));
  for (const auto& [north, east] : centres) {
    for (int zone : {1, 33, 60}) {
      for (double tile : kScales) {
        for (double zoom : kZooms) {
          Grids grids(north, east, tile, zoom, 320, 240, zone);
          for (int mode = 0; mode < kDisplayModes; ++mode)
            grids.Draw(static_cast<DisplayMode>(mode), {-100, -77});
          ASSERT_LT(grids.Surface.Operations.size(), 12000u);
          for (const auto& operation : grids.Surface.Operations) {
            if (operation.Kind == "line") {
              ASSERT_LE(std::abs(operation.X1), 5000);
              ASSERT_LE(std::abs(operation.Y2), 5000);
            } else if (operation.Ink != kBlack) {
              ASSERT_GE(operation.X1, 0);
              ASSERT_LT(operation.X1, 320);
              ASSERT_GE(operation.Y1, 0);
              ASSERT_LT(operation.Y1, 240);
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace zepril
