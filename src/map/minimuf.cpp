// The formulas: where the sun stands on the path, how far ionisation has built up, what passes.
#include "map/minimuf.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kPi = 3.1415926;
constexpr double kTurn = 2.0 * kPi;
constexpr double kQuarterTurn = 1.5708;
constexpr double kHopsPerRadian = 1.59;
constexpr double kHighest = 100.0;  // MHz
constexpr double kMiddleOfMonth = 15.0;
constexpr double kHorizonSine = -0.26;  // the layer sees the sun when the ground has lost it
constexpr double kDay = 24.0;           // hours

double HeldCosine(double value) {
  return std::clamp(value, -1.0, 1.0);
}

double HourOfDay(double hours) {
  if (hours < 0.0) return hours + kDay;
  return hours >= kDay ? hours - kDay : hours;
}

bool Usable(const MinimufInputs& in) {
  const bool on_earth = std::fabs(in.Lat1) <= kQuarterTurn && std::fabs(in.Lat2) <= kQuarterTurn &&
                        std::fabs(in.Lon1) <= kTurn && std::fabs(in.Lon2) <= kTurn;
  return on_earth && in.Month >= 1 && in.Month <= 12 && in.SunspotNumber >= 0.0;
}

// A place of the path, west positive radians.
struct PathPoint {
  double Lat;
  double Lon;
};

// The great circle seen from its second end.
class Path {
 public:
  explicit Path(const MinimufInputs& in)
      : in_(in),
        length_(std::acos(
            HeldCosine(std::sin(in.Lat1) * std::sin(in.Lat2) +
                       std::cos(in.Lat1) * std::cos(in.Lat2) * std::cos(in.Lon2 - in.Lon1)))) {}

  double Length() const { return length_; }  // radians

  // The place at `fraction` of the path.
  PathPoint At(double fraction) const {
    const double p = std::sin(in_.Lat2);
    const double q = std::cos(in_.Lat2);
    const double course = (std::sin(in_.Lat1) - p * std::cos(length_)) / (q * std::sin(length_));
    const double way = length_ * fraction;
    const double sine = HeldCosine(p * std::cos(way) + q * std::sin(way) * course);
    const double turn = HeldCosine((std::cos(way) - sine * p) / (q * std::sqrt(1.0 - sine * sine)));
    double lon = in_.Lon2 + Sgn(std::sin(in_.Lon1 - in_.Lon2)) * std::acos(turn);
    if (lon < 0.0) lon += kTurn;
    if (lon >= kTurn) lon -= kTurn;
    return {kQuarterTurn - std::acos(sine), lon};
  }

 private:
  const MinimufInputs& in_;
  double length_;
};

// Where the sun stands over the year.
struct Season {
  explicit Season(int month) {
    const double year_angle = 0.0172 * (10.0 + (month - 1) * 30.4 + kMiddleOfMonth);
    MinusDeclination = 0.409 * std::cos(year_angle);
    // Equation of time, hours.
    NoonShift = 0.13 * (std::sin(year_angle) + 1.2 * std::sin(2.0 * year_angle));
  }
  double MinusDeclination;
  double NoonShift;
};

// Ionisation over a place at an hour, and the hours of sunlight of its day.
struct Ionisation {
  double Light = 0.0;
  double SunHours = 0.0;
};

// `noon_height`: cosine of the sun's distance from the zenith at noon. By day the density follows
// the sun with the time constant `rise`, by night it decays.
Ionisation IonisationAt(double noon_height, double noon, double sun_hours, double hour) {
  const double rise = std::max(9.7 * std::pow(noon_height, 9.6), 0.1);
  const double g = kPi * rise / sun_hours;
  const double scale = noon_height / (1.0 + g * g);
  const double at_sunset = scale * g * (std::exp(-sun_hours / rise) + 1.0);
  const double sunrise = HourOfDay(noon - sun_hours / 2.0);
  const double since_sunrise = HourOfDay(hour - sunrise);
  if (since_sunrise > sun_hours) {
    return {at_sunset * std::exp((sun_hours - since_sunrise) / 2.0), sun_hours};
  }
  const double phase = kPi * since_sunrise / sun_hours;
  const double by_day =
      scale * (std::sin(phase) + g * (std::exp(-since_sunrise / rise) - std::cos(phase)));
  // Never below what the night left over.
  return {std::max(by_day, at_sunset * std::exp((sun_hours - kDay) / 2.0)), sun_hours};
}

Ionisation IonisationOver(const PathPoint& place, const Season& season, double hour) {
  const double from_zenith = std::cos(place.Lat + season.MinusDeclination);
  if (from_zenith <= kHorizonSine) return {};  // polar night
  const double noon = HourOfDay(3.82 * place.Lon + 12.0 + season.NoonShift);
  const double half_day = (kHorizonSine + std::sin(season.MinusDeclination) * std::sin(place.Lat)) /
                          (std::cos(season.MinusDeclination) * std::cos(place.Lat) + 0.001);
  const double sun_hours =
      12.0 - std::atan(half_day / std::sqrt(std::fabs(1.0 - half_day * half_day))) * 7.639437;
  return IonisationAt(std::fabs(from_zenith), noon, sun_hours, hour);
}

// How much higher than straight up an oblique hop carries.
double ObliqueFactor(double length, double hops) {
  const double sine = std::sin(std::min(2.5 * length / hops, kQuarterTurn));
  return 1.0 + 2.5 * sine * std::sqrt(sine);
}

double FrequencyOver(const PathPoint& place, const MinimufInputs& in, const Season& season,
                     double oblique) {
  const Ionisation air = IonisationOver(place, season, in.UtcHours);
  double muf = (1.0 + in.SunspotNumber / 250.0) * oblique *
               std::sqrt(6.0 + 58.0 * std::sqrt(std::max(air.Light, 0.0)));
  // Long days, paths over the equator, high latitudes.
  muf *= 1.0 - 0.1 * std::exp((air.SunHours - kDay) / 3.0);
  muf *= 1.0 + 0.1 * (1.0 - Sgn(in.Lat1) * Sgn(in.Lat2));
  muf *= 1.0 - 0.1 * (1.0 + Sgn(std::fabs(std::sin(place.Lat)) - std::cos(place.Lat)));
  return muf;
}

}  // namespace

double Minimuf(const MinimufInputs& inputs) {
  if (!Usable(inputs)) return 0.0;
  const Path path(inputs);
  const double hops = std::max(kHopsPerRadian * path.Length(), 1.0);
  const double oblique = ObliqueFactor(path.Length(), hops);
  const Season season(inputs.Month);
  // Half a hop from the second end, and nearly as far from the first.
  const double first = 1.0 / (2.0 * hops);
  const double second = first + std::fabs(0.9999 - 1.0 / hops);
  double muf = FrequencyOver(path.At(first), inputs, season, oblique);
  if (second <= 1.0 - first) {
    const double other = FrequencyOver(path.At(second), inputs, season, oblique);
    if (!(other >= muf)) muf = other;
  }
  return std::isfinite(muf) ? std::min(muf, kHighest) : 0.0;
}

}  // namespace zepril
