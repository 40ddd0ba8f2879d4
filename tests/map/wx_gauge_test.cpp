// Weather texts read, and the gauge drawn from them.
#include "map/wx_gauge.h"

#include <gtest/gtest.h>

#include <random>

#include "core/temperature_colour.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {
namespace {

TEST(WxGaugeValues, ReadsAReportWithAWindHead) {
  const WxGaugeValues v = ReadWxGaugeValues("220/004g005t077r010p020P015h50b10139");
  EXPECT_EQ(v.DirectionDeg, 220.0);
  EXPECT_NEAR(*v.SpeedMs, 4 * 1.852 / 3.6, 1e-9);
  EXPECT_NEAR(*v.GustMs, 5 * 1.609344 / 3.6, 1e-9);
  EXPECT_NEAR(*v.TemperatureC, 25.0, 1e-9);
  EXPECT_NEAR(*v.RainMm, 20 * 0.254, 1e-9);  // the largest of the three
  EXPECT_EQ(v.HumidityPercent, 50.0);
  EXPECT_NEAR(*v.PressureHpa, 1013.9, 1e-9);
}

TEST(WxGaugeValues, ReadsDirectionAndSpeedByTheirLettersWithoutAHead) {
  const WxGaugeValues v = ReadWxGaugeValues("_10090556c220s004g005t-05");
  EXPECT_EQ(v.DirectionDeg, 220.0);
  EXPECT_NEAR(*v.SpeedMs, 4 * 1.609344 / 3.6, 1e-9);
  EXPECT_NEAR(*v.TemperatureC, -37.0 / 1.8, 1e-9);
}

TEST(WxGaugeValues, ShortOrForeignTextsTellNothing) {
  EXPECT_FALSE(ReadWxGaugeValues("220/004g005t077").DirectionDeg);  // 15 characters
  EXPECT_FALSE(ReadWxGaugeValues("Wind 220 degrees here").DirectionDeg);
  EXPECT_FALSE(ReadWxGaugeValues("").TemperatureC);
}

TEST(WxGauge, TheDiscHasTheColourOfTheTemperature) {
  RecorderSurface surface(400, 400);
  StationRecord record;
  record.Put(43, 89, "090/020g005t050r000p000P000h50");
  WxGaugeDraw(surface, 200, 200, record);
  int in_colour = 0;
  for (const auto& line : surface.Of("line"))
    in_colour += line.Ink == TemperatureColour(10) ? 1 : 0;
  EXPECT_GE(in_colour, 27);
}

TEST(WxGauge, TheArrowStandsOnTheSideTheWindComesFrom) {
  RecorderSurface surface(400, 400);
  StationRecord record;
  record.Put(43, 89, "090/020g005t077r000p000P000h50");
  WxGaugeDraw(surface, 200, 200, record);
  int outside = 0;
  for (const auto& line : surface.Of("line")) {
    if (line.X1 < 216 || line.Ink != kBlack) continue;
    EXPECT_NEAR(line.Y1, 200, 1);
    ++outside;
  }
  EXPECT_EQ(outside, 3);
}

TEST(WxGauge, ACalmOrUnknownWindHasNoArrow) {
  RecorderSurface surface(400, 400);
  StationRecord record;
  record.Put(43, 89, "000/000g000t077r000p000P000h50");
  WxGaugeDraw(surface, 200, 200, record);
  for (const auto& line : surface.Of("line"))
    EXPECT_LE(line.X1, 214);
}

TEST(WxGauge, AnyTextIsSurvived) {
  std::mt19937 random(1);
  RecorderSurface surface(400, 400);
  for (int i = 0; i < 2000; ++i) {
    std::string text(47, ' ');
    for (char& c : text)
      c = "0123456789-/cstgrpPhb "[random() % 22];
    StationRecord record;
    record.Put(43, 89, text);
    surface.Operations.clear();
    WxGaugeDraw(surface, 200, 200, record);
    for (const auto& line : surface.Of("line")) {
      ASSERT_GE(line.X2, 100);
      ASSERT_LE(line.X2, 300);
    }
  }
}

}  // namespace
}  // namespace zepril
