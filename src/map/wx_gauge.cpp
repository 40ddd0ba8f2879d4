// Reads wind, temperature and rain out of a weather text, and draws them.
#include "map/wx_gauge.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/temperature_colour.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "map/line_batch.h"

namespace zepril {
namespace {

constexpr double kKnotsToMs = 1.852 / 3.6;
constexpr double kMphToMs = 1.609344 / 3.6;
constexpr double kInchHundredthsToMm = 25.4 / 100.0;
constexpr std::size_t kShortestReport = 16;

constexpr Colour kRim = 0xC0C0C0;
constexpr Colour kShade = 0x808080;
constexpr int kInnerRadius = 8;
constexpr int kOuterRadius = 13;
constexpr int kGaugeSize = 16;  // outer size of the disc; the arrow begins 13 beyond half of it
constexpr int kArrowFrom = kGaugeSize / 2 + 13;
constexpr int kArrowTo = kGaugeSize / 2 + 30;
constexpr double kPieStep = kShortPi / 32.0;

// "-" stands among the digits of a temperature below 0.
bool IsWxDigit(char c) {
  return IsDigit(c) || c == '-';
}

bool AllDigits(std::string_view text, std::size_t from, std::size_t count) {
  if (from + count > text.size()) return false;
  return std::all_of(text.begin() + static_cast<std::ptrdiff_t>(from),
                     text.begin() + static_cast<std::ptrdiff_t>(from + count), IsWxDigit);
}

// Value behind the last occurrence of `key` that is followed by digits.
std::optional<double> KeyValue(std::string_view text, char key, std::size_t digits) {
  std::optional<double> value;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != key || !AllDigits(text, at + 1, digits)) continue;
    // A pressure has four digits or five.
    const std::size_t taken = digits == 4 && AllDigits(text, at + 1, 5) ? 5 : digits;
    value = Val(text.substr(at + 1, taken));
  }
  return value;
}

std::optional<double> Scaled(std::optional<double> value, double factor) {
  if (value) *value *= factor;
  return value;
}

void ReadWind(std::string_view text, WxGaugeValues& values) {
  const bool head =
      AllDigits(text, 0, 3) && text.size() > 3 && text[3] == '/' && AllDigits(text, 4, 3);
  if (head) {
    values.DirectionDeg = Val(text.substr(0, 3));
    values.SpeedMs = Val(text.substr(4, 3)) * kKnotsToMs;
  } else {
    values.DirectionDeg = KeyValue(text, 'c', 3);
    values.SpeedMs = Scaled(KeyValue(text, 's', 3), kMphToMs);
  }
  values.GustMs = Scaled(KeyValue(text, 'g', 3), kMphToMs);
}

// The drawing, one part a function: a disc in the colour of the temperature, its rim with light and
// shade, rain as a bar below, and the wind as an arrow around it.

void DrawDisc(DrawingSurface& surface, int x, int y, const WxGaugeValues& values) {
  const Colour fill = values.TemperatureC
                          ? TemperatureColour(static_cast<int>(ToWhole(*values.TemperatureC)))
                          : kShade;
  LineBatch lines(surface);
  for (int dy = -kOuterRadius; dy <= kOuterRadius; ++dy) {
    const int dx = static_cast<int>(Int(std::sqrt(kOuterRadius * kOuterRadius - dy * dy)));
    lines.Line(x - dx, y + dy, x + dx, y + dy, fill);
  }
  // Spokes to the rim close the steps of the scan lines.
  for (double angle = 0.0; angle < 2.0 * kShortPi; angle += kPieStep) {
    const int dx = static_cast<int>(ToWhole(std::cos(angle) * kOuterRadius));
    const int dy = static_cast<int>(ToWhole(std::sin(angle) * kOuterRadius));
    lines.Line(x, y, x + dx, y - dy, fill);
  }
}

void DrawRim(DrawingSurface& surface, int x, int y) {
  surface.Circle(x, y, kInnerRadius, kShade);
  surface.Circle(x, y, kOuterRadius, kBlack);
  surface.Circle(x, y, kOuterRadius + 1, kRim);
  // Light falls from the upper left.
  surface.Arc(x, y, kOuterRadius + 1, 3.0 * kShortPi / 8.0, 9.0 * kShortPi / 8.0, kWhite);
  surface.Arc(x, y, kOuterRadius + 1, 11.0 * kShortPi / 8.0, 2.0 * kShortPi + kShortPi / 8.0,
              kBlack);
}

void DrawRain(DrawingSurface& surface, int x, int y, double rain_mm) {
  if (rain_mm <= 0.0) return;
  constexpr Colour kRainColour = 0xFF8000;
  const int half = std::clamp(static_cast<int>(ToWhole(rain_mm)), 1, kInnerRadius - 1);
  surface.FilledBox(x - half, y + 3, x + half, y + 5, kRainColour);
}

void DrawWind(DrawingSurface& surface, int x, int y, const WxGaugeValues& values) {
  if (!values.DirectionDeg) return;
  const double speed = std::max(values.SpeedMs.value_or(0.0), values.GustMs.value_or(0.0));
  if (!(speed > 0.0)) return;
  // The wind comes from its direction: the arrow points at the station.
  const double angle = *values.DirectionDeg * kShortPi / 180.0;
  const auto at = [&](double radius, double turn) {
    return PixelPoint{x + static_cast<int>(ToWhole(std::sin(angle + turn) * radius)),
                      y - static_cast<int>(ToWhole(std::cos(angle + turn) * radius))};
  };
  const PixelPoint tip = at(kArrowFrom, 0.0);
  const PixelPoint tail = at(kArrowTo, 0.0);
  // Wider barbs for stronger wind, from 3 to 9 pixels.
  const double spread = std::clamp(speed / 2.0, 3.0, 9.0) / kArrowTo;
  const PixelPoint left = at(kArrowFrom + 7.0, -spread);
  const PixelPoint right = at(kArrowFrom + 7.0, spread);
  LineBatch lines(surface);
  const auto arrow = [&](int dx, int dy, Colour colour) {
    for (const PixelPoint& end : {tail, left, right}) {
      lines.Line(tip.X + dx, tip.Y + dy, end.X + dx, end.Y + dy, colour);
    }
  };
  for (const auto& [dx, dy] : {std::pair{-1, 0}, {0, -1}})
    arrow(dx, dy, kRim);
  for (const auto& [dx, dy] : {std::pair{1, 0}, {0, 1}})
    arrow(dx, dy, kShade);
  arrow(0, 0, kBlack);
}

}  // namespace

WxGaugeValues ReadWxGaugeValues(std::string_view comment) {
  WxGaugeValues values;
  const std::string_view text = Trim(comment);
  if (text.size() < kShortestReport) return values;
  ReadWind(text, values);
  if (const auto fahrenheit = KeyValue(text, 't', 3)) {
    values.TemperatureC = (*fahrenheit - 32.0) / 1.8;
  }
  for (char key : {'r', 'p', 'P'}) {
    const auto rain = Scaled(KeyValue(text, key, 3), kInchHundredthsToMm);
    if (rain) values.RainMm = std::max(values.RainMm.value_or(0.0), *rain);
  }
  values.HumidityPercent = KeyValue(text, 'h', 2);
  values.PressureHpa = Scaled(KeyValue(text, 'b', 4), 0.1);
  return values;
}

void WxGaugeDraw(DrawingSurface& surface, int x, int y, const StationRecord& record) {
  const WxGaugeValues values = ReadWxGaugeValues(record.Info());
  DrawDisc(surface, x, y, values);
  DrawRim(surface, x, y);
  DrawRain(surface, x, y, values.RainMm.value_or(0.0));
  DrawWind(surface, x, y, values);
}

}  // namespace zepril
