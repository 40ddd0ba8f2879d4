// Day angle, declination and elevation, and the sum over the steps of a day.
#include "viewers/sun_path.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr double kFullTurn = 360.0;
constexpr double kDegreesPerHour = 15.0;
// Kept: 364 days, by which the day angle runs up to a degree ahead at the end of the year.
constexpr double kYearDays = 364.0;
constexpr int kDaysFromSolstice = 10;  // from the December solstice to the new year
constexpr std::array<int, 12> kDaysBefore{0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
// Keeps the arctangent finite with the sun in the zenith.
constexpr double kHighestSine = 0.999999999999;
// 1000 W at vertical sun, a tenth of it from the cells, a degree is a fifteenth of an hour: 100/15.
constexpr double kSinesPerWattHour = 0.15;
constexpr double kBatteryVolts = 12.0;

double Radians(double degrees) {
  return degrees * kShortPi / 180.0;
}
double Degrees(double radians) {
  return radians * 180.0 / kShortPi;
}

}  // namespace

double DayAngleDeg(int month, int day) {
  const auto row = static_cast<std::size_t>(std::clamp(month, 1, 12) - 1);
  double year_fraction = (day + kDaysFromSolstice + kDaysBefore[row]) / kYearDays;
  if (year_fraction >= 1.0) year_fraction -= 1.0;
  return year_fraction * kFullTurn;
}

double DeclinationDeg(double day_angle_deg) {
  return -std::cos(Radians(day_angle_deg)) * kAxialTiltDeg;
}

SunPath::SunPath(const SunPlace& place, double declination_deg)
    : shift_deg_((place.LongitudeDeg / kDegreesPerHour - place.UtcOffsetHours) * kDegreesPerHour),
      sine_part_(std::sin(Radians(declination_deg)) * std::sin(Radians(place.LatitudeDeg))),
      cosine_part_(std::cos(Radians(declination_deg)) * std::cos(Radians(place.LatitudeDeg))) {}

double SunPath::SineAt(double clock_deg) const {
  const double hour_angle = Radians(shift_deg_ + clock_deg) + kShortPi;
  const double sine = cosine_part_ * std::cos(hour_angle) + sine_part_;
  return std::clamp(sine, -kHighestSine, kHighestSine);
}

double SunPath::ElevationDegAt(double clock_deg) const {
  const double sine = SineAt(clock_deg);
  return Degrees(std::atan(sine / std::sqrt(1.0 - sine * sine)));
}

double SunPath::SumOfSines(double step_deg) const {
  double sum = 0.0;
  for (double clock_deg = 0.0; clock_deg <= kFullTurn; clock_deg += step_deg) {
    const double sine = SineAt(clock_deg);
    if (sine > 0.0) sum += sine;
  }
  return sum;
}

SunEnergy EnergyOfDay(const SunPath& path, double step_deg) {
  const double watt_hours = path.SumOfSines(step_deg) / kSinesPerWattHour * step_deg;
  return {watt_hours, watt_hours / kBatteryVolts};
}

}  // namespace zepril
