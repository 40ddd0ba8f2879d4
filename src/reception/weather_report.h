// A weather station's report as numbers, read out of the comment of its record.
#pragma once

#include <optional>
#include <string_view>

namespace zepril {

// In the units shown, each rounded half to even; nothing where the report did not tell.
struct WeatherReport {
  std::optional<int> WindDirectionDeg;
  std::optional<int> WindSpeedMs;
  std::optional<int> GustMs;
  std::optional<int> TemperatureC;
  std::optional<int> Rain1hMm;
  std::optional<int> Rain24hMm;
  std::optional<int> RainTodayMm;  // since midnight
  std::optional<int> HumidityPercent;
  std::optional<int> PressureHpa;
};

// `comment`: columns 43 to 89 of a record. Trimmed it must have 16 characters, and counts up to its
// first blank. A head "DDD/SSS" tells wind direction and speed in knots, and then gusts are in
// knots too; else they stand behind "c", "s" and "g", in miles per hour. "t" is the temperature in
// degrees Fahrenheit, "r", "p" and "P" rain of the last hour, of 24 hours and since midnight in
// hundredths of an inch, "h" humidity in percent, "b" pressure in tenths of hPa. A key counts where
// digits follow it ("-" is one); the last one of a kind wins.
//   "220/004g005t077r000p000P000h50b10139" gives 220, 2, 3, 25, 0, 0, 0, 50, 1014
WeatherReport ReadWeatherReport(std::string_view comment);

}  // namespace zepril
