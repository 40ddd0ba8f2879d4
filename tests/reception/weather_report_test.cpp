// Weather texts with and without a head, cut, repeated, negative, in any order, and noise.
#include "reception/weather_report.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace zepril {
namespace {

TEST(WeatherReport, AWholeReportWithAHead) {
  const WeatherReport report = ReadWeatherReport("220/004g005t077r000p000P000h50b10139");
  EXPECT_EQ(report.WindDirectionDeg, 220);
  EXPECT_EQ(report.WindSpeedMs, 2);
  EXPECT_EQ(report.GustMs, 3);
  EXPECT_EQ(report.TemperatureC, 25);
  EXPECT_EQ(report.Rain1hMm, 0);
  EXPECT_EQ(report.Rain24hMm, 0);
  EXPECT_EQ(report.RainTodayMm, 0);
  EXPECT_EQ(report.HumidityPercent, 50);
  EXPECT_EQ(report.PressureHpa, 1014);
}

TEST(WeatherReport, WithoutAHeadWindAndGustsAreInMilesPerHour) {
  const WeatherReport report = ReadWeatherReport("c220s004g005t077b10139");
  EXPECT_EQ(report.WindDirectionDeg, 220);
  EXPECT_EQ(report.WindSpeedMs, 2);
  EXPECT_EQ(report.GustMs, 2);
  EXPECT_EQ(report.PressureHpa, 1014);
  EXPECT_EQ(ReadWeatherReport(".../...g010t077h50b10139").GustMs, 4);
  EXPECT_EQ(ReadWeatherReport("220/...g010t077h50b10139").WindDirectionDeg, std::nullopt);
}

TEST(WeatherReport, BehindAHeadItsKeysAreNotLookedFor) {
  const WeatherReport report = ReadWeatherReport("220/004c111s099g010t077");
  EXPECT_EQ(report.WindDirectionDeg, 220);
  EXPECT_EQ(report.WindSpeedMs, 2);
  EXPECT_EQ(report.GustMs, 5);
}

TEST(WeatherReport, AKeyInTheLastThreeCharactersIsNotSeen) {
  EXPECT_EQ(ReadWeatherReport("220/004g005t077h50").HumidityPercent, std::nullopt);
  const WeatherReport report = ReadWeatherReport("220/004g005t077h50b00139");
  EXPECT_EQ(report.HumidityPercent, 50);
  EXPECT_EQ(report.PressureHpa, 1014);
}

TEST(WeatherReport, PressuresAreRoundedHalfToEvenAndGetTheirThousand) {
  const auto pressure = [](const std::string& field) {
    return ReadWeatherReport("220/004g005t077" + field).PressureHpa;
  };
  EXPECT_EQ(pressure("b10125"), 1012);
  EXPECT_EQ(pressure("b10135"), 1014);
  EXPECT_EQ(pressure("b01994"), 1199);
  EXPECT_EQ(pressure("b01995"), 200);
  EXPECT_EQ(pressure("b09900"), 990);
  EXPECT_EQ(pressure("b00000"), 0);
  EXPECT_EQ(pressure("b00010"), 1001);
  // Four digits are looked for, five characters read.
  EXPECT_EQ(pressure("b1013L"), 1101);
  EXPECT_EQ(pressure("b101"), std::nullopt);
}

TEST(WeatherReport, TemperaturesBelowZeroAndRain) {
  const WeatherReport cold = ReadWeatherReport("220/004g005t-05r010p050P100");
  EXPECT_EQ(cold.TemperatureC, -21);
  EXPECT_EQ(cold.Rain1hMm, 3);
  EXPECT_EQ(cold.Rain24hMm, 13);
  EXPECT_EQ(cold.RainTodayMm, 25);
  EXPECT_EQ(ReadWeatherReport("220/004g005t032h50").TemperatureC, 0);
}

TEST(WeatherReport, SixteenCharactersAreTheLeast) {
  EXPECT_EQ(ReadWeatherReport("c220s004g005t07").WindDirectionDeg, std::nullopt);
  EXPECT_EQ(ReadWeatherReport("  c220s004g005t07   ").WindDirectionDeg, std::nullopt);
  EXPECT_EQ(ReadWeatherReport("c220s004g005t077").TemperatureC, 25);
  EXPECT_EQ(ReadWeatherReport("").PressureHpa, std::nullopt);
}

TEST(WeatherReport, TheLastOfAKindWins) {
  const WeatherReport report = ReadWeatherReport("b10139b09900t077t032");
  EXPECT_EQ(report.PressureHpa, 990);
  EXPECT_EQ(report.TemperatureC, 0);
  // One that has no digits takes nothing away.
  EXPECT_EQ(ReadWeatherReport("b10139t077t...h50").TemperatureC, 25);
}

TEST(WeatherReport, ItEndsAtTheFirstBlank) {
  const WeatherReport report = ReadWeatherReport("180/010g020t050 r100");
  EXPECT_EQ(report.TemperatureC, 10);
  EXPECT_EQ(report.Rain1hMm, std::nullopt);
  // Cut short by it, what stands before still counts.
  EXPECT_EQ(ReadWeatherReport("180/010 sunny and warm").WindSpeedMs, 5);
}

// 100,000 made reports, each field by the conversion of its unit.
TEST(WeatherReport, EveryValueIsThatOfItsUnit) {
  std::mt19937 random(1);
  const auto digits = [&](int highest, int places) {
    const int value = static_cast<int>(random() % static_cast<unsigned>(highest + 1));
    std::string text = std::to_string(value);
    return std::pair(value,
                     std::string(static_cast<std::size_t>(places) - text.size(), '0') + text);
  };
  const auto even = [](double value) { return static_cast<int>(std::nearbyint(value)); };
  for (int made = 0; made < 100000; ++made) {
    const auto direction = digits(360, 3), speed = digits(250, 3), gust = digits(250, 3),
               temperature = digits(199, 3), rain = digits(999, 3), humidity = digits(99, 2),
               pressure = digits(10999, 5);
    const bool head = made % 2 == 0;
    const std::string wind =
        head ? direction.second + "/" + speed.second : "c" + direction.second + "s" + speed.second;
    const std::string text = wind + "g" + gust.second + "t" + temperature.second + "r" +
                             rain.second + "h" + humidity.second + "b" + pressure.second;
    const WeatherReport report = ReadWeatherReport(text);
    const double factor = head ? 1.852 : 1.609344;
    ASSERT_EQ(report.WindDirectionDeg, direction.first) << text;
    ASSERT_NEAR(*report.WindSpeedMs, speed.first * factor / 3.6, 0.5000001) << text;
    ASSERT_NEAR(*report.GustMs, gust.first * factor / 3.6, 0.5000001) << text;
    ASSERT_EQ(report.TemperatureC, even((temperature.first - 32) / 1.8)) << text;
    ASSERT_EQ(report.Rain1hMm, even(rain.first * 25.4 / 100)) << text;
    ASSERT_EQ(report.HumidityPercent, humidity.first) << text;
    const int hpa = even(pressure.first / 10.0);
    ASSERT_EQ(report.PressureHpa, hpa >= 1 && hpa <= 199 ? hpa + 1000 : hpa) << text;
  }
}

// Any bytes: nothing is told that is not a number of at most its digits.
TEST(WeatherReport, NoiseTellsNothingOutOfRange) {
  std::mt19937 random(2);
  const std::string letters = "0123456789-/.csgtrpPhb \xB0\0";
  for (int made = 0; made < 100000; ++made) {
    std::string text;
    for (auto length = random() % 60; length > 0; --length)
      text += random() % 8 == 0 ? static_cast<char>(random()) : letters[random() % letters.size()];
    const WeatherReport report = ReadWeatherReport(text);
    ASSERT_LE(std::abs(report.WindSpeedMs.value_or(0)), 514) << text;
    ASSERT_LE(std::abs(report.TemperatureC.value_or(0)), 537) << text;
    ASSERT_LE(std::abs(report.PressureHpa.value_or(0)), 10000) << text;
    ASSERT_LE(std::abs(report.HumidityPercent.value_or(0)), 99) << text;
  }
}

}  // namespace
}  // namespace zepril
