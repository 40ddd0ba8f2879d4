// The sun's path over a place in the course of a day, and what it brings on level ground.
//
// Method: the day of the year gives the declination, declination, latitude and hour angle give the
// elevation; a day's energy is the sum of the elevation's sine. Angles are degrees unless a name
// says radians; latitudes are north positive, longitudes east positive. The year has 364 days:
//
//   day angle    = 360 (day of the month + 10 + days of the months before) / 364, whole turns cut
//   declination  = -23.45 cos(day angle)
//   elevation    = arcsin(cos declination cos latitude cos H + sin declination sin latitude)
//
// (textbook formulae of the solar position for engineers; equation of time and refraction left
// out).
//
// Error bound: the declination is right to 1.5 degrees, sunrise in middle latitudes to half an
// hour. Domain: any finite place, the poles too; a place that is no number yields sums of 0.
// Nothing fails.
#pragma once

namespace zepril {

inline constexpr double kAxialTiltDeg = 23.45;

// 0 to 360. `month` 1 to 12, others are held there; leap days are not counted.
double DayAngleDeg(int month, int day);
double DeclinationDeg(double day_angle_deg);

struct SunPlace {
  double LatitudeDeg = 0.0;
  double LongitudeDeg = 0.0;
  double UtcOffsetHours = 0.0;  // of the operator's clock
};

// One day at a place. Times of the day are degrees of the operator's clock: 0 at midnight, 180 at
// noon, 15 an hour.
class SunPath {
 public:
  SunPath(const SunPlace& place, double declination_deg);

  // Sine of the elevation, held just inside -1 to 1.
  double SineAt(double clock_deg) const;
  // -90 to 90, 0 at the horizon.
  double ElevationDegAt(double clock_deg) const;
  // The sines over the horizon, from midnight to midnight, both ends counted.
  double SumOfSines(double step_deg) const;

 private:
  double shift_deg_;    // solar time before the clock's
  double sine_part_;    // sin declination sin latitude
  double cosine_part_;  // cos declination cos latitude
};

// Electric energy of a day from one square metre of level solar cells.
struct SunEnergy {
  double WattHours = 0.0;
  double AmpereHours = 0.0;  // at 12 V
};
SunEnergy EnergyOfDay(const SunPath& path, double step_deg);

}  // namespace zepril
