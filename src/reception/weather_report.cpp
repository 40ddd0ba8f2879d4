// Finds the keys of a weather text and converts their numbers.
#include "reception/weather_report.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kShortestReport = 16;
constexpr double kKnotsToKmh = 1.852;
constexpr double kMphToKmh = 1.609344;
constexpr double kKmhToMs = 1.0 / 3.6;

// "-" stands among the digits of a temperature below 0.
bool IsReportDigit(char c) {
  return IsDigit(c) || c == '-';
}

bool AreDigits(std::string_view text, std::ptrdiff_t column, std::ptrdiff_t count) {
  const std::string_view field = Mid(text, column, count);
  return static_cast<std::ptrdiff_t>(field.size()) == count &&
         std::all_of(field.begin(), field.end(), IsReportDigit);
}

bool HasHead(std::string_view text) {
  return AreDigits(text, 1, 3) && Mid(text, 4, 1) == "/" && AreDigits(text, 5, 3);
}

// The number behind the last `key` that `tested` digits follow, `read` characters of it. A key in
// the last three characters is not looked at: kept, "...h50" at the very end is not told.
std::optional<double> NumberBehind(std::string_view text, char key, int tested, int read) {
  std::optional<double> number;
  const auto last = static_cast<std::ptrdiff_t>(text.size()) - 3;
  for (std::ptrdiff_t column = 1; column <= last; ++column) {
    if (text[static_cast<std::size_t>(column - 1)] != key) continue;
    if (AreDigits(text, column + 1, tested)) number = Val(Mid(text, column + 1, read));
  }
  return number;
}

std::optional<double> NumberBehind(std::string_view text, char key) {
  return NumberBehind(text, key, 3, 3);
}

std::optional<int> Rounded(std::optional<double> value) {
  if (!value) return std::nullopt;
  return static_cast<int>(ToWhole(*value));
}

std::optional<int> Speed(std::optional<double> value, double to_kmh) {
  if (value) *value *= to_kmh * kKmhToMs;
  return Rounded(value);
}

std::optional<int> Rain(std::optional<double> hundredths_of_inch) {
  if (hundredths_of_inch) *hundredths_of_inch *= 25.4 / 100.0;
  return Rounded(hundredths_of_inch);
}

std::optional<int> Temperature(std::optional<double> fahrenheit) {
  if (fahrenheit) *fahrenheit = (*fahrenheit - 32.0) / 1.8;
  return Rounded(fahrenheit);
}

// Stations leave out the thousand: 13.9 is 1014.
std::optional<int> Pressure(std::optional<double> tenths) {
  if (tenths) *tenths /= 10.0;
  std::optional<int> pressure = Rounded(tenths);
  if (pressure && *pressure >= 1 && *pressure <= 199) *pressure += 1000;
  return pressure;
}

void ReadWind(std::string_view text, WeatherReport& report) {
  if (HasHead(text)) {
    report.WindDirectionDeg = Rounded(Val(Mid(text, 1, 3)));
    report.WindSpeedMs = Speed(Val(Mid(text, 5, 3)), kKnotsToKmh);
    report.GustMs = Speed(NumberBehind(text, 'g'), kKnotsToKmh);
  } else {
    report.WindDirectionDeg = Rounded(NumberBehind(text, 'c'));
    report.WindSpeedMs = Speed(NumberBehind(text, 's'), kMphToKmh);
    report.GustMs = Speed(NumberBehind(text, 'g'), kMphToKmh);
  }
}

}  // namespace

WeatherReport ReadWeatherReport(std::string_view comment) {
  WeatherReport report;
  std::string_view text = Trim(comment);
  if (text.size() < kShortestReport) return report;
  text = text.substr(0, std::min(text.find(' '), text.size()));
  ReadWind(text, report);
  report.TemperatureC = Temperature(NumberBehind(text, 't'));
  report.Rain1hMm = Rain(NumberBehind(text, 'r'));
  report.Rain24hMm = Rain(NumberBehind(text, 'p'));
  report.RainTodayMm = Rain(NumberBehind(text, 'P'));
  report.HumidityPercent = Rounded(NumberBehind(text, 'h', 2, 2));
  report.PressureHpa = Pressure(NumberBehind(text, 'b', 4, 5));
  return report;
}

}  // namespace zepril
