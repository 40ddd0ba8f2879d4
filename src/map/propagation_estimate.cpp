// The great circle, the hops over it, and the frequency that each of them carries.
#include "map/propagation_estimate.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "map/minimuf.h"

namespace zepril {
namespace {

constexpr double kRadian = kShortPi / 180.0;
constexpr double kKmPerDegree = 111.1;
constexpr double kEarthRadiusKm = 6367.0;
constexpr double kLongestHopKm = 4500.0;
constexpr double kLowestTakeOffDeg = 1.5;
constexpr int kMostHops = 50;
constexpr double kLeastSunspots = 1.0;
constexpr double kMostSunspots = 180.0;
constexpr double kDayHours = 24.0;

double SinDeg(double degrees) {
  return std::sin(degrees * kRadian);
}
double CosDeg(double degrees) {
  return std::cos(degrees * kRadian);
}

// Degrees. The millionth keeps the root from vanishing for equal places.
double ArcCosineDeg(double c) {
  return 90.0 - std::atan(c / std::sqrt(1.0 - c * c + 0.000001)) / kRadian;
}

double ArcSineDeg(double s) {
  return std::atan(s / std::sqrt(1.0 - s * s)) / kRadian;
}

double Folded(double degrees) {
  if (degrees > 180.0) return degrees - 360.0;
  return degrees < -180.0 ? degrees + 360.0 : degrees;
}

// A place, longitude west positive.
struct Place {
  double Lat;
  double Lon;
};

bool OnEarth(const Place& place) {
  return std::fabs(place.Lat) <= 90.0 && std::fabs(place.Lon) <= 180.0;
}

struct GreatCircle {
  double Angle;    // degrees
  double Bearing;  // degrees from north by east, as seen from the first place
};

GreatCircle GreatCircleBetween(const Place& from, const Place& to) {
  const double angle = ArcCosineDeg(SinDeg(from.Lat) * SinDeg(to.Lat) +
                                    CosDeg(from.Lat) * CosDeg(to.Lat) * CosDeg(from.Lon - to.Lon));
  const double c =
      (SinDeg(to.Lat) - SinDeg(from.Lat) * CosDeg(angle)) / (CosDeg(from.Lat) * SinDeg(angle));
  const double bearing = ArcCosineDeg(c);
  // Longitudes grow to the west: mirrored when the second place lies there.
  const bool westward = SinDeg(to.Lon - from.Lon) > 0.0;
  return {angle, westward ? 360.0 - bearing : bearing};
}

// The place `angle` degrees along the great circle.
Place PlaceAlong(const Place& from, const GreatCircle& way, double angle) {
  const double sine =
      SinDeg(from.Lat) * CosDeg(angle) + CosDeg(from.Lat) * SinDeg(angle) * CosDeg(way.Bearing);
  const double lat = ArcSineDeg(sine);
  double turn =
      ArcCosineDeg((CosDeg(angle) - SinDeg(from.Lat) * sine) / (CosDeg(from.Lat) * CosDeg(lat)));
  if (way.Bearing < 180.0) turn = -turn;
  return {lat, Folded(from.Lon + turn)};
}

double MufOfPath(const Place& from, const Place& to, double sunspots,
                 const PropagationInputs& inputs) {
  const GreatCircle way = GreatCircleBetween(from, to);
  const HopPlan plan = PlanHops(way.Angle, sunspots);
  if (plan.Hops == 0) return 0.0;
  const auto muf_at = [&](double hops_along) {
    const Place point = PlaceAlong(from, way, hops_along * plan.HopDeg);
    return CriticalFrequency(point.Lat, point.Lon, sunspots, inputs.Month, inputs.UtcHours) *
           ObliqueRayFactor(plan.TakeOffDeg, sunspots);
  };
  const double first = muf_at(0.5);
  const double last = muf_at(plan.Hops - 0.5);
  // A value that is no number must not hide behind the other.
  return std::isnan(first + last) ? first + last : std::min(first, last);
}

double SecondMuf(const Place& from, const Place& to, double sunspots,
                 const PropagationInputs& inputs) {
  return Minimuf({from.Lat * kRadian, from.Lon * kRadian, to.Lat * kRadian, to.Lon * kRadian,
                  sunspots, inputs.Month, inputs.UtcHours});
}

double Cut(double megahertz) {
  return Int(10.0 * megahertz) / 10.0;
}

}  // namespace

double LayerHeightKm(double sunspots) {
  return 275.0 + sunspots / 2.0;
}

HopPlan PlanHops(double path_deg, double sunspots) {
  const double layer = LayerHeightKm(sunspots) + kEarthRadiusKm;
  for (int hops = 1; hops <= kMostHops; ++hops) {
    const double half_hop = path_deg / (2.0 * hops);
    const double take_off =
        std::atan((CosDeg(half_hop) - kEarthRadiusKm / layer) / SinDeg(half_hop)) / kRadian;
    if (kKmPerDegree * path_deg / hops <= kLongestHopKm && take_off >= kLowestTakeOffDeg) {
      return {hops, take_off, path_deg / hops};
    }
  }
  return {};
}

double CriticalFrequency(double lat, double lon_west, double sunspots, int month,
                         double utc_hours) {
  // Latitude over the geomagnetic equator.
  const double x = lon_west < -160.0 ? lon_west + 360.0 : lon_west;
  const double g = (20.0 - x) / 50.0;
  const double bulge = 1.0 - g / 7.0;
  double magnetic = lat - (20.0 * g / (1.0 + g + g * g) + 5.0 * bulge * bulge);
  // Local time.
  double local = utc_hours - lon_west / 15.0;
  if (local < 0.0) local += kDayHours;
  if (local >= kDayHours) local -= kDayHours;
  // Season; in the south half a year off.
  double season_month = month;
  if (magnetic <= 0.0) {
    magnetic = -magnetic;
    season_month += 6.0;
  }
  const double c = CosDeg((season_month - 6.5) * 30.0);
  const double summer = (std::fabs(c) + c) / 2.0;
  const double winter = (std::fabs(c) - c) / 2.0;
  magnetic = std::min(magnetic, 77.5);
  // Hours from the daily maximum, as an angle.
  const double u = local < 5.0 ? local + kDayHours : local;
  double swing = (u - 14.0 - 2.0 * summer + 2.0 * winter - sunspots / 175.0) *
                 (7.0 - 3.0 * summer + 4.0 * winter - sunspots / (150.0 - 75.0 * winter));
  // Kept: the night is +60 degrees on both sides of the day; the cosine doesn't mind.
  if (std::fabs(swing) > 60.0) swing = 60.0;
  return 6.5 * (1.0 + sunspots / (175.0 + 175.0 * summer)) * CosDeg(swing) *
         std::sqrt(CosDeg(magnetic - 5.0 * summer + 5.0 * winter));
}

double ObliqueRayFactor(double take_off_deg, double sunspots) {
  const double sine =
      kEarthRadiusKm * CosDeg(take_off_deg) / (kEarthRadiusKm + LayerHeightKm(sunspots));
  return 1.0 / std::sqrt(1.0 - sine * sine);
}

double DisturbanceWeight(double lat1, double lat2) {
  const double theta = 3.0 * (std::fabs(lat1) + std::fabs(lat2)) / 2.0 - 120.0;
  const double root = SinDeg(theta) / 2.7 + 0.3;
  return root * root * root + 0.011;
}

PropagationResult PropagationEstimate(double lat1, double lon1, double lat2, double lon2,
                                      const PropagationInputs& inputs) {
  // West is positive from here on.
  const Place from{lat1, -lon1};
  const Place to{lat2, -lon2};
  if (!OnEarth(from) || !OnEarth(to)) return {};
  const double sunspots = std::clamp(inputs.SunspotNumber, kLeastSunspots, kMostSunspots);
  const double path = MufOfPath(from, to, sunspots, inputs);
  const double second = SecondMuf(from, to, sunspots, inputs);
  const double mean = (2.0 * path + second) / 3.0;
  const double fopt =
      mean - std::pow(inputs.KpIndex, 1.5) * DisturbanceWeight(lat1, lat2) / 9.0 * mean;
  if (!(path > 0.0) || !std::isfinite(fopt)) return {};
  return {Cut(fopt), Cut(path), Cut(second), Cut(mean)};
}

}  // namespace zepril
