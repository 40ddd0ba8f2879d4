// The sun's panel: its six results, its title, its plot.
#include "viewers/sun_curve.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "geodesy/conversions.h"
#include "tests/doubles/recorder_surface.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using testing::ElementsAre;

struct SunWorld {
  // The cursor a few metres beyond a place, so that cutting to a decimal leaves its figures.
  void PutCursor(double lat, double lon) {
    const GridMetres at =
        GeodeticToUtm(lon + (lon < 0 ? -1e-5 : 1e-5), lat + (lat < 0 ? -1e-5 : 1e-5),
                      View.MapCentralMeridian, View.MapFalseEasting);
    View.CursorNorthKm = at.North / 1000.0;
    View.CursorEastKm = at.East / 1000.0;
  }
  std::vector<std::string> Names() const { return Captions(Controls.SunNames); }
  std::vector<std::string> Values() const { return Captions(Controls.SunValues); }
  static std::vector<std::string> Captions(const std::array<Label, SunControls::kRows>& labels) {
    std::vector<std::string> captions;
    for (const Label& label : labels)
      captions.push_back(label.Caption);
    return captions;
  }

  MapViewState View;
  SettingsState Settings;
  SunControls Controls;
  RecorderSurface Surface{SunCurve::kPlotWidth, SunCurve::kPlotHeight};
  VirtualClock Clock{{2024, 6, 21, 12, 0, 0}};
  SunCurve Sun{View, Settings, Controls, Surface, Clock};
};

TEST(SunCurve, NamesItsSixResults) {
  SunWorld world;
  EXPECT_THAT(world.Names(), ElementsAre("SOL.EL.PWR (Wh/d/m\xB2hor):", "> (Ah @12V):",
                                         " ... 06-21 (Wh/d/m\xB2hor):", "> (Ah @12V):",
                                         " ... 12-21 (Wh/d/m\xB2hor):", "> (Ah @12V):"));
}

TEST(SunCurve, ShowsTheEnergiesOfTheDayAndOfBothReferenceDays) {
  SunWorld world;
  world.Settings.UtcOffsetHours = 2;
  world.PutCursor(48.5, 8.0);
  world.Sun.ShowSunCurve();
  EXPECT_TRUE(world.Controls.SunPanel.Visible);
  EXPECT_EQ(world.Controls.SunPlot.Revision, 1u);
  EXPECT_THAT(world.Values(), ElementsAre("879", "73.2", "878", "73.2", "163", "13.6"));
}

TEST(SunCurve, CutsTheAmpereHoursOfTheUncutEnergy) {
  SunWorld world;
  world.Clock.SetNow({2024, 3, 21, 12, 0, 0});
  world.View.CursorNorthKm = 0.0;
  world.View.CursorEastKm = 500.0;
  world.View.MapCentralMeridian = 0.0;
  world.Sun.ShowSunCurve();
  // 763 / 12 would be 63.5.
  EXPECT_THAT(world.Values(), ElementsAre("763", "63.6", "699", "58.3", "699", "58.3"));
}

TEST(SunCurve, ShowsNoughtsInThePolarNight) {
  SunWorld world;
  world.Clock.SetNow({2024, 12, 21, 12, 0, 0});
  world.PutCursor(80.0, 15.0);
  world.Sun.ShowSunCurve();
  EXPECT_THAT(world.Values(), ElementsAre("0", "0.0", "952", "79.3", "0", "0.0"));
}

TEST(SunCurve, TheTitleHoldsDatePositionAndOffset) {
  SunWorld world;
  world.Settings.UtcOffsetHours = 2;
  world.PutCursor(48.55, 8.0);
  world.Sun.ShowSunCurve();
  EXPECT_EQ(world.Controls.SunTitle.Caption,
            "2024-06-21  SUN CURVE  48.5       N 8.0   E   UTC 2+");
}

TEST(SunCurve, SouthAndWestAreNegativeAndCutTowardsNought) {
  SunWorld world;
  world.Settings.UtcOffsetHours = -3;
  world.View.MapCentralMeridian = -45.0;
  world.PutCursor(-22.97, -43.18);
  world.Sun.ShowSunCurve();
  EXPECT_EQ(world.Controls.SunTitle.Caption,
            "2024-06-21  SUN CURVE  -22.9       N -43.1   E   UTC -3");
}

TEST(SunCurve, ACutNumberNeverReadsMinusNought) {
  EXPECT_EQ(CutToOneDecimal(-0.04), "0.0");
  EXPECT_EQ(CutToOneDecimal(-0.55), "-0.5");
  EXPECT_EQ(CutToOneDecimal(73.29), "73.2");
}

TEST(SunCurve, FollowsThePointerOnlyWhileItIsOpen) {
  SunWorld world;
  world.Controls.SunPanel.Visible = false;
  world.PutCursor(48.5, 8.0);
  world.Sun.MoveSunCurve();
  EXPECT_FALSE(world.Controls.SunPanel.Visible);
  EXPECT_EQ(world.Controls.SunPlot.Revision, 0u);
  world.Sun.ShowSunCurve();
  const std::string before = world.Controls.SunTitle.Caption;
  world.PutCursor(60.0, 18.0);
  world.Sun.MoveSunCurve();
  EXPECT_NE(world.Controls.SunTitle.Caption, before);
  EXPECT_EQ(world.Controls.SunPlot.Revision, 2u);
  world.Sun.HideSunCurve();
  EXPECT_FALSE(world.Controls.SunPanel.Visible);
}

// Highest and lowest row of the points in an ink, and how many there are.
struct Extent {
  int Count = 0;
  int Top = 1000;
  int Bottom = -1000;
  int Left = 1000;
  int Right = -1000;
};
Extent ExtentOf(const RecorderSurface& surface, Colour ink) {
  Extent extent;
  for (const auto& point : surface.Of("point")) {
    if (point.Ink != ink) continue;
    ++extent.Count;
    extent.Top = std::min(extent.Top, point.Y1);
    extent.Bottom = std::max(extent.Bottom, point.Y1);
    extent.Left = std::min(extent.Left, point.X1);
    extent.Right = std::max(extent.Right, point.X1);
  }
  return extent;
}

TEST(SunPlot, TheDaysCurveStandsOverTheFaintReferenceDays) {
  SunWorld world;
  world.Clock.SetNow({2024, 3, 21, 12, 0, 0});
  world.Settings.UtcOffsetHours = 1;
  world.PutCursor(50.0, 15.0);
  world.Sun.ShowSunCurve();
  const auto points = world.Surface.Of("point");
  ASSERT_FALSE(points.empty());
  const Colour faint = points.front().Ink;
  const Colour today = points.back().Ink;
  ASSERT_NE(faint, today);
  const Extent day = ExtentOf(world.Surface, today);
  // Noon at 40 degrees, twelve hours from 6 to 18.
  EXPECT_NEAR(day.Top, 90 - 40, 1);
  EXPECT_EQ(day.Bottom, 90);
  EXPECT_NEAR(day.Left, 90, 2);
  EXPECT_NEAR(day.Right, 270, 2);
  const Extent reference = ExtentOf(world.Surface, faint);
  EXPECT_NEAR(reference.Top, 90 - 63, 1);
  EXPECT_LT(reference.Left, day.Left);
}

TEST(SunPlot, NothingIsDrawnBelowTheHorizonNorBesideThePlot) {
  for (double lat : {-90.0, -60.0, 0.0, 23.45, 89.9}) {
    SunWorld world;
    world.PutCursor(lat, 15.0);
    world.Sun.ShowSunCurve();
    for (const auto& point : world.Surface.Of("point")) {
      EXPECT_GE(point.Y1, 0);
      EXPECT_LE(point.Y1, 90);
      EXPECT_GE(point.X1, 0);
      EXPECT_LE(point.X1, 360);
    }
  }
}

TEST(SunPlot, TheSunIsMarkedByDayOnly) {
  SunWorld world;
  world.PutCursor(50.0, 15.0);
  world.Sun.ShowSunCurve();
  EXPECT_FALSE(world.Surface.Of("filled").empty());
  world.Surface.Operations.clear();
  world.Clock.SetNow({2024, 6, 21, 23, 30, 0});
  world.Sun.ShowSunCurve();
  EXPECT_TRUE(world.Surface.Of("filled").empty());
}

TEST(SunCurve, AnImpossibleCursorShowsNoughts) {
  for (double bad :
       {1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
    SunWorld world;
    world.View.CursorNorthKm = bad;
    world.View.CursorEastKm = bad;
    world.Sun.ShowSunCurve();
    for (const auto& point : world.Surface.Of("point")) {
      EXPECT_GE(point.Y1, 0);
      EXPECT_LE(point.Y1, 90);
    }
    EXPECT_FALSE(world.Values()[0].empty());
  }
}

}  // namespace
}  // namespace zepril
