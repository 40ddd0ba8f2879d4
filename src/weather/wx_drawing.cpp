// Draws the parts of the picture one after the other.
#include "weather/wx_drawing.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "core/temperature_colour.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr int kCentre = 80;
constexpr int kRadius = 36;      // of the ring
constexpr int kFaceRadius = 70;  // of the dial behind it
constexpr double kPi = 3.14159265358979;

constexpr Colour kGround = 0x38312A;
constexpr Colour kFace = 0xA09890;
constexpr Colour kFaceRim = 0xC8C2BC;
constexpr Colour kMarks = 0x5A524A;
constexpr Colour kGrey = 8421504;

// `bearing`: degrees clockwise from the top.
PixelPoint At(double radius, double bearing) {
  const double angle = bearing * kPi / 180.0;
  return {kCentre + static_cast<int>(ToWhole(std::sin(angle) * radius)),
          kCentre - static_cast<int>(ToWhole(std::cos(angle) * radius))};
}

void FillDisc(DrawingSurface& surface, int radius, Colour colour) {
  std::vector<PixelLine> rows;
  for (int dy = -radius; dy <= radius; ++dy) {
    const int dx = static_cast<int>(std::sqrt(static_cast<double>(radius * radius - dy * dy)));
    rows.push_back({{kCentre - dx, kCentre + dy}, {kCentre + dx, kCentre + dy}});
  }
  surface.Lines(rows, colour);
}

// A compass: ticks every 45 degrees, a longer one to the north.
void DrawFace(DrawingSurface& surface) {
  surface.Clear(kGround);
  FillDisc(surface, kFaceRadius, kFace);
  surface.Circle(kCentre, kCentre, kFaceRadius, kFaceRim);
  std::vector<PixelLine> ticks;
  for (int bearing = 0; bearing < 360; bearing += 45)
    ticks.push_back({At(kFaceRadius - (bearing == 0 ? 8 : 4), bearing), At(kFaceRadius, bearing)});
  surface.Lines(ticks, kMarks);
  surface.Circle(kCentre, kCentre, kRadius, kMarks);
}

// High pressure shines outward, low pressure inward, the more so the farther it is from 1013.
void DrawPressure(DrawingSurface& surface, int hpa) {
  const int pressure = hpa == 1013 ? 1014 : hpa;
  const double step = std::clamp(25.0 / std::abs(pressure - 1013), 1.0, 25.0);
  const double from = pressure > 1013 ? kRadius + 1.0 : kRadius - 1.0;
  const double to = pressure > 1013 ? kRadius + 8.0 : kRadius - 8.0;
  std::vector<PixelLine> white;
  std::vector<PixelLine> black;
  for (double bearing = 0.0; bearing < 360.0; bearing += step) {
    white.push_back({At(from, bearing), At(to, bearing)});
    black.push_back({At(from, bearing + step / 2.0), At(to, bearing + step / 2.0)});
  }
  surface.Lines(black, kBlack);
  surface.Lines(white, kWhite);
}

// Dry air makes a colour paler: at 0 percent six tenths of the way to white.
Colour Blended(Colour colour, const WeatherReport& report) {
  if (!report.HumidityPercent) return colour;
  const double pale = 0.6 * (100.0 - std::clamp(*report.HumidityPercent, 0, 100)) / 100.0;
  Colour blended = 0;
  for (int shift : {16, 8, 0}) {
    const auto part = static_cast<double>(colour >> shift & 0xFF);
    blended |= static_cast<Colour>(ToWhole(part + (255.0 - part) * pale)) << shift;
  }
  return blended;
}

void DrawTemperature(DrawingSurface& surface, Colour colour) {
  // Each circle with its neighbour, so that the disc has no gaps.
  for (int radius = kRadius - 14; radius >= 8; radius -= 2) {
    surface.Circle(kCentre, kCentre, radius, colour);
    surface.Circle(kCentre, kCentre, radius - 1, colour);
  }
  surface.Circle(kCentre, kCentre, kRadius - 13, kMarks);
}

// A shaft from the dial's edge to the ring and a filled head, longer and broader for stronger wind.
void DrawWind(DrawingSurface& surface, const WeatherReport& report) {
  const double direction = *report.WindDirectionDeg;
  const int strength = std::max({report.WindSpeedMs.value_or(0), report.GustMs.value_or(0), 1});
  const double size = std::min(12.0 + strength, 32.0);
  const PixelPoint point = At(kRadius, direction);
  const double half_head = 4.0 + size / 3.0;  // degrees
  std::vector<PixelLine> lines{{point, At(kRadius + size, direction)}};
  for (double turn = -half_head; turn <= half_head; turn += 0.5)
    lines.push_back({point, At(kRadius + size / 2.0, direction + turn)});
  std::vector<PixelLine> shade;
  for (const PixelLine& line : lines) {
    for (const int offset : {-1, 1}) {
      shade.push_back({{line.From.X + offset, line.From.Y}, {line.To.X + offset, line.To.Y}});
      shade.push_back({{line.From.X, line.From.Y + offset}, {line.To.X, line.To.Y + offset}});
    }
  }
  surface.Lines(shade, kGrey);
  surface.Lines(lines, kBlack);
}

// The most of what is told, a pixel to each side a millimetre.
void DrawRain(DrawingSurface& surface, int rain_mm, Colour colour) {
  constexpr int kTop = kCentre + kFaceRadius + 3;
  constexpr int kBottom = kTop + 5;
  const int half = std::clamp(rain_mm, 0, kFaceRadius);
  surface.Box(kCentre - kFaceRadius, kTop, kCentre + kFaceRadius, kBottom, kMarks);
  if (half > 0) surface.FilledBox(kCentre - half, kTop, kCentre + half, kBottom, colour);
}

}  // namespace

void DrawWxPicture(DrawingSurface& surface, const WeatherReport& report, int colour_depth_bits) {
  constexpr int kEnoughBits = 16;
  DrawFace(surface);
  const Colour colour =
      report.TemperatureC ? Blended(TemperatureColour(*report.TemperatureC), report) : kGrey;
  if (colour_depth_bits >= kEnoughBits) {
    if (report.PressureHpa) DrawPressure(surface, *report.PressureHpa);
    if (report.TemperatureC) DrawTemperature(surface, colour);
  }
  if (report.WindDirectionDeg) DrawWind(surface, report);
  const auto rain = std::max({report.Rain1hMm, report.Rain24hMm, report.RainTodayMm});
  if (rain) DrawRain(surface, *rain, colour);
}

}  // namespace zepril
