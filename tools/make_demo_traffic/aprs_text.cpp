// Prints plain, compressed and Mic-E positions and weather reports.
#include "make_demo_traffic/aprs_text.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zepril {
namespace {

constexpr double kRadians = std::numbers::pi / 180;

int Round(double value) {
  return static_cast<int>(std::lround(value));
}

// Degrees and hundredths of a minute.
struct Minutes {
  int degrees = 0;
  int hundredths = 0;
};

Minutes ToMinutes(double degrees) {
  const int all = Round(std::abs(degrees) * 6000);
  return {all / 6000, all % 6000};
}

std::string Base91(double value) {
  std::string text;
  auto rest = static_cast<long>(value);
  for (const long weight : {753571L, 8281L, 91L, 1L}) {
    text += static_cast<char>(rest / weight + 33);
    rest %= weight;
  }
  return text;
}

// Three places, the first a minus sign below zero.
std::string Fahrenheit(int degrees) {
  return degrees < 0 ? std::string("-").append(Digits(-degrees, 2)) : Digits(degrees, 3);
}

char Character(int code) {
  return static_cast<char>(code);
}

}  // namespace

std::string Digits(int value, int width) {
  std::string text = std::to_string(value);
  if (static_cast<int>(text.size()) < width) {
    text.insert(0, static_cast<std::size_t>(width) - text.size(), '0');
  }
  return text;
}

double DistanceKm(Place a, Place b) {
  const double dx = (b.lon - a.lon) * std::cos((a.lat + b.lat) / 2 * kRadians);
  return std::hypot(dx, b.lat - a.lat) * 111.2;
}

double CourseDegrees(Place from, Place to) {
  const double dx = (to.lon - from.lon) * std::cos((from.lat + to.lat) / 2 * kRadians);
  const double course = std::atan2(dx, to.lat - from.lat) / kRadians;
  return course < 0 ? course + 360 : course;
}

std::string PlainPosition(Place at, const std::string& symbol) {
  const Minutes lat = ToMinutes(at.lat), lon = ToMinutes(at.lon);
  const auto minutes = [](int hundredths) {
    return Digits(hundredths / 100, 2) + "." + Digits(hundredths % 100, 2);
  };
  return Digits(lat.degrees, 2) + minutes(lat.hundredths) + (at.lat < 0 ? "S" : "N") +
         symbol.substr(0, 1) + Digits(lon.degrees, 3) + minutes(lon.hundredths) +
         (at.lon < 0 ? "W" : "E") + symbol.substr(1, 1);
}

std::string CourseSpeed(Motion motion) {
  if (motion.knots < 0.5) return {};
  const int course = Round(motion.course) % 360;
  return Digits(course == 0 ? 360 : course, 3) + "/" + Digits(Round(motion.knots), 3);
}

std::string CompressedPosition(Place at, const std::string& symbol, Motion motion) {
  const double speed_steps = std::log(motion.knots + 1) / std::log(1.08);
  return symbol.substr(0, 1) + Base91(380926 * (90 - at.lat)) + Base91(190463 * (180 + at.lon)) +
         symbol.substr(1, 1) + Character(Round(motion.course) % 360 / 4 + 33) +
         Character(std::min(Round(speed_steps), 89) + 33) + "C";
}

MicEFrame MicEPosition(Place at, const std::string& symbol, Motion motion,
                       const std::string& comment) {
  const Minutes lat = ToMinutes(at.lat);
  Minutes lon = ToMinutes(at.lon);
  // Hundredths and courses whose character would be a control code move by a hair.
  lon.hundredths += std::max(0, 5 - lon.hundredths % 100) - std::max(0, lon.hundredths % 100 - 95);
  const int course = std::max(5, Round(motion.course) % 360 / 100 * 100 +
                                     std::clamp(Round(motion.course) % 360 % 100, 5, 95));
  const int knots = std::min(Round(motion.knots), 190);
  const int figures[] = {lat.degrees / 10,          lat.degrees % 10,         lat.hundredths / 1000,
                         lat.hundredths / 100 % 10, lat.hundredths / 10 % 10, lat.hundredths % 10};
  const bool set[] = {true, false, true, at.lat >= 0, false, at.lon < 0};
  MicEFrame frame;
  for (int i = 0; i < 6; ++i)
    frame.destination += Character((set[i] ? 'P' : '0') + figures[i]);
  const int minutes = lon.hundredths / 100;
  frame.info += '`';
  frame.info += Character(lon.degrees < 10 ? lon.degrees + 118 : lon.degrees + 28);
  frame.info += Character(minutes < 10 ? minutes + 88 : minutes + 28);
  frame.info += Character(lon.hundredths % 100 + 28);
  frame.info += Character(knots / 10 + 108);
  frame.info += Character(knots % 10 * 10 + course / 100 + 32);
  frame.info += Character(course % 100 + 28);
  frame.info += symbol.substr(1, 1) + symbol.substr(0, 1) + ">" + comment;
  return frame;
}

std::string WeatherText(const Weather& w) {
  const double mph = 3.6 / 1.609344, knots = 3.6 / 1.852, inches = 100 / 25.4;
  const int fahrenheit = Round(w.celsius * 1.8 + 32);
  return Digits(w.wind_degrees, 3) + "/" + Digits(Round(w.wind_ms * knots), 3) + "g" +
         Digits(Round(w.gust_ms * mph), 3) + "t" + Fahrenheit(fahrenheit) + "r" +
         Digits(Round(w.rain_hour_mm * inches), 3) + "p" +
         Digits(Round(w.rain_day_mm * inches), 3) + "P" +
         Digits(Round(w.rain_day_mm * inches * 0.6), 3) + "h" + Digits(w.humidity % 100, 2) + "b" +
         Digits(Round(w.hectopascal * 10), 5);
}

}  // namespace zepril
