// Writes positions and weather in the forms that are heard on the air.
#pragma once

#include <string>

namespace zepril {

struct Place {
  double lat = 0, lon = 0;  // degrees, north and east positive
};

struct Motion {
  double course = 0;  // degrees, 0 where standing
  double knots = 0;
};

// A whole number with leading zeros, at least `width` digits.
std::string Digits(int value, int width);

double DistanceKm(Place a, Place b);
double CourseDegrees(Place from, Place to);

// 5405.12N/01208.40E>     the symbol is table and code
std::string PlainPosition(Place at, const std::string& symbol);

// 088/036, or nothing where standing
std::string CourseSpeed(Motion motion);

// Table, four characters of latitude, four of longitude, code, course and speed, compression byte.
std::string CompressedPosition(Place at, const std::string& symbol, Motion motion);

// The form that puts the latitude into the destination call: "in service", never an emergency.
struct MicEFrame {
  std::string destination;
  std::string info;
};
MicEFrame MicEPosition(Place at, const std::string& symbol, Motion motion,
                       const std::string& comment);

struct Weather {
  int wind_degrees = 0;
  double wind_ms = 0, gust_ms = 0, celsius = 0, rain_hour_mm = 0, rain_day_mm = 0;
  int humidity = 50;
  double hectopascal = 1013;
};

// 220/004g005t077r000p000P000h50b10139, to stand behind a position with the symbol "/_"
std::string WeatherText(const Weather& weather);

}  // namespace zepril
