// A weather report as a picture: pressure as rays on a ring, temperature as a disc of its colour,
// wind as an arrow from where it comes, rain as a bar below.
#pragma once

#include "platform/drawing_surface.h"
#include "reception/weather_report.h"

namespace zepril {

// The picture is a square of this many pixels.
inline constexpr int kWxPicturePixels = 161;

// Clears `surface` and draws what the report tells. Rays and disc need at least 16 bits of colour.
void DrawWxPicture(DrawingSurface& surface, const WeatherReport& report, int colour_depth_bits);

}  // namespace zepril
