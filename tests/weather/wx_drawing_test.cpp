// The parts of the picture: each is there when its field is, where and how strong.
#include "weather/wx_drawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "core/temperature_colour.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {
namespace {

constexpr int kCentre = 80;
constexpr Colour kGrey = 0x808080;

struct Picture {
  explicit Picture(const WeatherReport& report, int bits = 32) {
    DrawWxPicture(surface, report, bits);
  }
  long Lines(const std::function<bool(const RecorderSurface::Operation&)>& fits) const {
    const auto lines = surface.Of("line");
    return std::count_if(lines.begin(), lines.end(), fits);
  }
  long Rays(Colour colour) const {
    return Lines([colour](const RecorderSurface::Operation& line) {
      const double from = std::hypot(line.X1 - kCentre, line.Y1 - kCentre);
      return line.Ink == colour && std::fabs(from - 36.0) < 2.0;
    });
  }
  // Of a ray's far end from the centre.
  double RayEnd() const {
    double end = 0.0;
    for (const auto& line : surface.Of("line"))
      if (line.Ink == kWhite) end = std::hypot(line.X2 - kCentre, line.Y2 - kCentre);
    return end;
  }
  long Circles(Colour colour) const {
    const auto circles = surface.Of("circle");
    return std::count_if(
        circles.begin(), circles.end(),
        [colour](const RecorderSurface::Operation& circle) { return circle.Ink == colour; });
  }
  RecorderSurface surface{kWxPicturePixels, kWxPicturePixels};
};

WeatherReport WithPressure(int hpa) {
  WeatherReport report;
  report.PressureHpa = hpa;
  return report;
}

TEST(WxDrawing, WithoutAReportThereIsTheDialAlone) {
  const Picture picture{WeatherReport{}};
  EXPECT_EQ(picture.Rays(kWhite), 0);
  EXPECT_EQ(picture.Lines([](const auto& line) { return line.Ink == kBlack; }), 0);
  EXPECT_TRUE(picture.surface.Of("filled").empty());
  EXPECT_TRUE(picture.surface.Of("box").empty());
}

TEST(WxDrawing, TheFartherFrom1013TheCloserTheRays) {
  EXPECT_EQ(Picture(WithPressure(1014)).Rays(kWhite), 15);  // every 25 degrees
  EXPECT_EQ(Picture(WithPressure(1013)).Rays(kWhite), 15);  // counts as 1014
  EXPECT_EQ(Picture(WithPressure(1012)).Rays(kWhite), 15);
  EXPECT_EQ(Picture(WithPressure(1018)).Rays(kWhite), 72);
  EXPECT_EQ(Picture(WithPressure(1038)).Rays(kWhite), 360);
  EXPECT_EQ(Picture(WithPressure(1090)).Rays(kWhite), 360);
  EXPECT_EQ(Picture(WithPressure(1018)).Rays(kBlack), 72);
}

TEST(WxDrawing, HighPressureShinesOutwardLowPressureInward) {
  EXPECT_GT(Picture(WithPressure(1020)).RayEnd(), 40.0);
  EXPECT_GT(Picture(WithPressure(1013)).RayEnd(), 40.0);
  EXPECT_LT(Picture(WithPressure(1000)).RayEnd(), 32.0);
}

TEST(WxDrawing, TheDiscHasTheColourOfTheTemperature) {
  WeatherReport report;
  report.TemperatureC = 10;
  EXPECT_EQ(Picture(report).Circles(TemperatureColour(10)), 16);
  report.HumidityPercent = 100;
  EXPECT_EQ(Picture(report).Circles(TemperatureColour(10)), 16);
  // Dry air is paler.
  report.HumidityPercent = 0;
  const Picture dry(report);
  EXPECT_EQ(dry.Circles(TemperatureColour(10)), 0);
  EXPECT_EQ(dry.Circles(0x99FD99), 16);
}

TEST(WxDrawing, FewColoursLeaveRaysAndDiscOut) {
  WeatherReport report = WithPressure(1020);
  report.TemperatureC = 10;
  const Picture picture(report, 8);
  EXPECT_EQ(picture.Rays(kWhite), 0);
  EXPECT_EQ(picture.Circles(TemperatureColour(10)), 0);
  EXPECT_EQ(Picture(report, 16).Circles(TemperatureColour(10)), 16);
}

TEST(WxDrawing, TheArrowComesFromWhereTheWindComes) {
  WeatherReport report;
  report.WindDirectionDeg = 90;
  report.WindSpeedMs = 10;
  const Picture picture(report);
  int shafts = 0;
  for (const auto& line : picture.surface.Of("line")) {
    if (line.Ink != kBlack) continue;
    EXPECT_EQ(line.X1, kCentre + 36);
    EXPECT_EQ(line.Y1, kCentre);
    EXPECT_GT(line.X2, line.X1);
    ++shafts;
  }
  EXPECT_GE(shafts, 3);
  // Grey below black.
  const auto lines = picture.surface.Of("line");
  const auto first_black =
      std::find_if(lines.begin(), lines.end(), [](const auto& line) { return line.Ink == kBlack; });
  EXPECT_EQ(
      std::count_if(first_black, lines.end(), [](const auto& line) { return line.Ink == kGrey; }),
      0);
  EXPECT_EQ(picture.Lines([](const auto& line) { return line.Ink == kGrey; }), 4 * shafts);
}

TEST(WxDrawing, TheStrongerOfWindAndGustMakesTheArrowLong) {
  const auto reach = [](std::optional<int> speed, std::optional<int> gust) {
    WeatherReport report;
    report.WindDirectionDeg = 90;
    report.WindSpeedMs = speed;
    report.GustMs = gust;
    int farthest = 0;
    const Picture picture(report);
    for (const auto& line : picture.surface.Of("line"))
      if (line.Ink == kBlack) farthest = std::max(farthest, line.X2);
    return farthest;
  };
  EXPECT_EQ(reach(5, 12), reach(12, 5));
  EXPECT_GT(reach(5, 12), reach(5, 8));
  // A calm counts as 1, and no storm leaves the picture.
  EXPECT_EQ(reach(0, std::nullopt), reach(1, 0));
  EXPECT_LE(reach(500, 500), kWxPicturePixels);
}

TEST(WxDrawing, RainIsABarBelow) {
  WeatherReport report;
  report.Rain1hMm = 3;
  report.Rain24hMm = 13;
  const Picture picture(report);
  const auto bars = picture.surface.Of("filled");
  ASSERT_EQ(bars.size(), 1U);
  EXPECT_EQ(bars[0].X2 - bars[0].X1, 26);
  EXPECT_GT(bars[0].Y1, kCentre + 36);
  report = {};
  report.RainTodayMm = 0;
  const Picture dry(report);
  EXPECT_TRUE(dry.surface.Of("filled").empty());
  EXPECT_EQ(dry.surface.Of("box").size(), 1U);
  report.RainTodayMm = 9999;
  EXPECT_LT(Picture(report).surface.Of("filled")[0].X2, kWxPicturePixels);
}

}  // namespace
}  // namespace zepril
