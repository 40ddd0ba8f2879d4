// A small gauge drawn around a weather station on the map, from the weather text of its record.
#pragma once

#include <optional>
#include <string_view>

#include "core/station_record.h"
#include "platform/drawing_surface.h"

namespace zepril {

// What a report told, in metric units; nothing where it did not tell.
struct WxGaugeValues {
  std::optional<double> DirectionDeg;
  std::optional<double> SpeedMs;
  std::optional<double> GustMs;
  std::optional<double> TemperatureC;
  std::optional<double> RainMm;  // the largest of last hour, 24 hours and since midnight
  std::optional<double> HumidityPercent;
  std::optional<double> PressureHpa;
};

// Reads the comment of a record. Shorter than 16 characters: nothing is told. Wind stands as
// direction and knots before and behind "/" at the front, else behind "c" and "s" (mph); "g" gust
// (mph), "t" temperature (degrees Fahrenheit), "r", "p", "P" rain (hundredths of an inch), "h"
// humidity (percent), "b" pressure (tenths of hPa). A letter counts when digits follow it.
//   "220/004g005t077r000p000P000h50b10139" is accepted, "Wind 220" is not.
WxGaugeValues ReadWxGaugeValues(std::string_view comment);

// The gauge around (x, y).
void WxGaugeDraw(DrawingSurface& surface, int x, int y, const StationRecord& record);

}  // namespace zepril
