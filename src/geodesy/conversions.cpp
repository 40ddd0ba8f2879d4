// The series of the meridian projections, the datum shift, strips and zones, distance and bearing.
#include "geodesy/conversions.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

struct Ellipsoid {
  double A;  // semi-major axis, m
  double InverseFlattening;
  double E2;  // first eccentricity squared
  double OneMinusE2;
  double AE2;           // A x E2, m
  double Scale;         // of its grid on the central meridian
  double MeridianWrap;  // m, to the far side of the pole
};

constexpr Ellipsoid kBessel{6377397.15508,      299.1528128, 0.0066743722318, 0.9933256277682,
                            42565.122483026265, 1.0,         20001712.0};
constexpr Ellipsoid kGrs80{6378137.0,          298.257222101, 0.0066943800229, 0.9933056199771,
                           42697.672916119336, 0.9996,        19995930.0};

constexpr double kDegree = kConversionPi / 180.0;

// What the series needs of an ellipsoid. The powers of n are worked out once each.
struct Series {
  double A, B, C, D;              // geodetic to conformal latitude
  double InvA, InvB, InvC, InvD;  // and back
  double RectifyingRadius;        // m
  std::array<double, 4> Beta;     // forward
  std::array<double, 4> Delta;    // inverse
};

Series MakeSeries(const Ellipsoid& ellipsoid) {
  const double f = 1.0 / ellipsoid.InverseFlattening;
  const double n = f / (2.0 - f);
  const double n2 = n * n;
  const double n3 = n2 * n;
  const double n4 = n2 * n2;
  const double e2 = ellipsoid.E2;
  const double e4 = e2 * e2;
  const double e6 = e4 * e2;
  const double e8 = e4 * e4;
  Series s{};
  s.A = e2;
  s.B = (5.0 * e4 - e6) / 6.0;
  s.C = (104.0 * e6 - 45.0 * e8) / 120.0;
  s.D = 1237.0 * e8 / 1260.0;
  s.InvA = e2 + e4 + e6 + e8;
  s.InvB = -(7.0 * e4 + 17.0 * e6 + 30.0 * e8) / 6.0;
  s.InvC = (224.0 * e6 + 889.0 * e8) / 120.0;
  s.InvD = -4279.0 * e8 / 1260.0;
  s.RectifyingRadius = ellipsoid.A / (1.0 + n) * (1.0 + n2 / 4.0 + n4 / 64.0);
  s.Beta = {n / 2.0 - 2.0 * n2 / 3.0 + 5.0 * n3 / 16.0 + 41.0 * n4 / 180.0,
            13.0 * n2 / 48.0 - 3.0 * n3 / 5.0 + 557.0 * n4 / 1440.0,
            61.0 * n3 / 240.0 - 103.0 * n4 / 140.0, 49561.0 * n4 / 161280.0};
  s.Delta = {n / 2.0 - 2.0 * n2 / 3.0 + 37.0 * n3 / 96.0 - n4 / 360.0,
             n2 / 48.0 + n3 / 15.0 - 437.0 * n4 / 1440.0, 17.0 * n3 / 480.0 - 37.0 * n4 / 840.0,
             4397.0 * n4 / 161280.0};
  return s;
}

const Series kBesselSeries = MakeSeries(kBessel);
const Series kGrs80Series = MakeSeries(kGrs80);

// Kept: the sums stop here and are no library functions, so that positions far off the zone fall
// where the maps and the stored records have them.
double TaylorCosh(double x) {
  const double x2 = x * x;
  return 1.0 + x2 * (1.0 / 2.0 + x2 * (1.0 / 24.0 + x2 * (1.0 / 720.0)));
}

double TaylorSinh(double x) {
  const double x2 = x * x;
  return x * (1.0 + x2 * (1.0 / 6.0 + x2 * (1.0 / 120.0 + x2 * (1.0 / 5040.0))));
}

// sin(2 j xi) and cos(2 j xi) for j = 1..4, from one pair by the double angle and addition rules.
struct Harmonics {
  std::array<double, 4> Sin;
  std::array<double, 4> Cos;
};

Harmonics HarmonicsOf(double s1, double c1) {
  Harmonics h{};
  h.Sin[0] = s1;
  h.Cos[0] = c1;
  for (std::size_t j = 1; j < 4; ++j) {
    h.Sin[j] = h.Sin[j - 1] * c1 + h.Cos[j - 1] * s1;
    h.Cos[j] = h.Cos[j - 1] * c1 - h.Sin[j - 1] * s1;
  }
  return h;
}

GridMetres Forward(const Ellipsoid& ellipsoid, const Series& s, double lon, double lat,
                   double central_meridian, double false_easting) {
  const double delta = (lon - central_meridian) * kDegree;  // not brought within +-180
  const double phi = lat * kDegree;

  // Conformal latitude.
  const double sin_phi = std::sin(phi);
  const double cos_phi = std::cos(phi);
  const double q = sin_phi * sin_phi;
  const double conformal = phi - sin_phi * cos_phi * (s.A + q * (s.B + q * (s.C + q * s.D)));
  const double sin_conformal = std::sin(conformal);
  const double cos_conformal = std::cos(conformal);

  // Spherical transverse Mercator.
  const double cos_delta = std::cos(delta);
  const double xi = std::atan(sin_conformal / cos_conformal / cos_delta);
  const double f2 = cos_conformal * std::sin(delta);
  const double eta = 0.5 * std::log((1.0 + f2) / (1.0 - f2));

  // From the sphere to the ellipsoid.
  const Harmonics h = HarmonicsOf(std::sin(2.0 * xi), std::cos(2.0 * xi));
  double north = xi;
  double east = eta;
  for (std::size_t j = 0; j < 4; ++j) {
    const double x = 2.0 * static_cast<double>(j + 1) * eta;
    north += s.Beta[j] * h.Sin[j] * TaylorCosh(x);
    east += s.Beta[j] * h.Cos[j] * TaylorSinh(x);
  }
  GridMetres grid{ellipsoid.Scale * s.RectifyingRadius * east + false_easting,
                  ellipsoid.Scale * s.RectifyingRadius * north};

  // The arc tangent stays on the near side of the pole: points more than 90 degrees off are moved.
  // Kept: the threshold is latitude 1.0 and not the equator; exactly 1.0 is never moved.
  const bool west = lon < central_meridian - 90.0;
  const bool east_side = lon > central_meridian + 90.0;
  if (west || east_side) {
    if (lat > 1.0) grid.North += ellipsoid.MeridianWrap;
    if (lat < 1.0) grid.North -= ellipsoid.MeridianWrap;
  }
  return grid;
}

double WithinHalfTurn(double lon) {
  if (!std::isfinite(lon)) return lon;
  if (std::fabs(lon) > 1e6) lon = std::fmod(lon, 360.0);
  while (lon < -180.0)
    lon += 360.0;
  while (lon > 180.0)
    lon -= 360.0;
  return lon;
}

Geodetic Inverse(const Ellipsoid& ellipsoid, const Series& s, double central_meridian,
                 double easting, double northing, double false_easting) {
  const double xi = northing / ellipsoid.Scale / s.RectifyingRadius;
  const double eta = (easting - false_easting) / ellipsoid.Scale / s.RectifyingRadius;

  // From the ellipsoid to the sphere.
  const Harmonics h = HarmonicsOf(std::sin(2.0 * xi), std::cos(2.0 * xi));
  double xi_sphere = xi;
  double eta_sphere = eta;
  for (std::size_t j = 0; j < 4; ++j) {
    const double x = 2.0 * static_cast<double>(j + 1) * eta;
    xi_sphere -= s.Delta[j] * h.Sin[j] * TaylorCosh(x);
    eta_sphere -= s.Delta[j] * h.Cos[j] * TaylorSinh(x);
  }

  // Conformal latitude and from it the geodetic one.
  const double sine = std::sin(xi_sphere) / TaylorCosh(eta_sphere);
  const double conformal = std::atan(sine / std::sqrt(1.0 - sine * sine));
  const double q = std::sin(conformal) * std::sin(conformal);
  const double lat = (conformal + std::sin(conformal) * std::cos(conformal) *
                                      (s.InvA + q * (s.InvB + q * (s.InvC + q * s.InvD)))) *
                     180.0 / kConversionPi;
  double lon = std::atan(TaylorSinh(eta_sphere) / std::cos(xi_sphere)) * 180.0 / kConversionPi +
               central_meridian;

  // Branch of the arc tangent, each test on the value that the one before left.
  if (easting > false_easting && lon < central_meridian) lon += 180.0;
  if (easting < false_easting && lon > central_meridian) lon += 180.0;
  return {WithinHalfTurn(lon), lat};
}

Geocentric ToXyz(const Ellipsoid& ellipsoid, double lon, double lat) {
  const double lambda = lon * kDegree;
  const double phi = lat * kDegree;
  const double sin_phi = std::sin(phi);
  const double normal = ellipsoid.A / std::sqrt(1.0 - ellipsoid.E2 * sin_phi * sin_phi);
  return {normal * std::cos(phi) * std::cos(lambda), normal * std::cos(phi) * std::sin(lambda),
          normal * ellipsoid.OneMinusE2 * sin_phi};
}

Geodetic FromXyz(const Ellipsoid& ellipsoid, const Geocentric& xyz) {
  const double lon = std::atan(xyz.Y / xyz.X) * 180.0 / kConversionPi;
  const double p = std::sqrt(xyz.X * xyz.X + xyz.Y * xyz.Y);
  const double w = std::sqrt(ellipsoid.OneMinusE2);
  const double theta = std::atan(xyz.Z / (p * w));
  const double sin_theta = std::sin(theta);
  const double cos_theta = std::cos(theta);
  const double lat = std::atan((xyz.Z + ellipsoid.AE2 / w * sin_theta * sin_theta * sin_theta) /
                               (p - ellipsoid.AE2 * cos_theta * cos_theta * cos_theta)) *
                     180.0 / kConversionPi;
  return {lon, lat};
}

// Bessel to WGS 84 for the German grid: shifts in metres.
constexpr Geocentric kGermanShift{587.0, 16.0, 393.0};

// RT 90 to WGS 84: shifts in metres, rotations in seconds of arc with pi multiplied in already.
constexpr Geocentric kSwedishShift{414.0978567149, 41.3381489658, 603.0627177516};
constexpr Geocentric kSwedishRotation{2.6861981625864457, -6.727238491309673, 22.06252854975766};

Geocentric Helmert(const Geocentric& xyz, double sign) {
  const double rx = sign * kSwedishRotation.X / 180.0 / 3600.0;
  const double ry = sign * kSwedishRotation.Y / 180.0 / 3600.0;
  const double rz = sign * kSwedishRotation.Z / 180.0 / 3600.0;
  return {xyz.X + rz * xyz.Y - ry * xyz.Z + sign * kSwedishShift.X,
          xyz.Y - rz * xyz.X + rx * xyz.Z + sign * kSwedishShift.Y,
          xyz.Z + ry * xyz.X - rx * xyz.Y + sign * kSwedishShift.Z};
}

double ArcCosine(double cosine) {
  // Held off 1 so that equal positions give a small distance instead of a fault.
  constexpr double kLimit = 0.999999999999;
  cosine = std::clamp(cosine, -kLimit, kLimit);
  return kShortPi / 2.0 - std::atan(cosine / std::sqrt(1.0 - cosine * cosine));
}

}  // namespace

GridMetres GeodeticToUtm(double lon, double lat, double central_meridian, double false_easting) {
  return Forward(kGrs80, kGrs80Series, lon, lat, central_meridian, false_easting);
}

Geodetic UtmToGeodetic(double central_meridian, double easting, double northing,
                       double false_easting) {
  return Inverse(kGrs80, kGrs80Series, central_meridian, easting, northing, false_easting);
}

GridMetres GeodeticToGaussBessel(double lon, double lat, double central_meridian,
                                 double false_easting) {
  return Forward(kBessel, kBesselSeries, lon, lat, central_meridian, false_easting);
}

Geodetic GaussBesselToGeodetic(double central_meridian, double easting, double northing,
                               double false_easting) {
  return Inverse(kBessel, kBesselSeries, central_meridian, easting, northing, false_easting);
}

Geocentric GeodeticToXyzBessel(double lon, double lat) {
  return ToXyz(kBessel, lon, lat);
}

Geocentric GeodeticToXyzWgs84(double lon, double lat) {
  return ToXyz(kGrs80, lon, lat);
}

Geodetic XyzToGeodeticBessel(const Geocentric& xyz) {
  return FromXyz(kBessel, xyz);
}

Geodetic XyzToGeodeticWgs84(const Geocentric& xyz) {
  return FromXyz(kGrs80, xyz);
}

Geocentric ShiftBesselToWgs84(const Geocentric& xyz) {
  return {xyz.X + kGermanShift.X, xyz.Y + kGermanShift.Y, xyz.Z + kGermanShift.Z};
}

Geocentric ShiftWgs84ToBessel(const Geocentric& xyz) {
  return {xyz.X - kGermanShift.X, xyz.Y - kGermanShift.Y, xyz.Z - kGermanShift.Z};
}

Geocentric HelmertRt90ToWgs84(const Geocentric& xyz) {
  return Helmert(xyz, 1.0);
}

Geocentric HelmertWgs84ToRt90(const Geocentric& xyz) {
  return Helmert(xyz, -1.0);
}

GridMetres Wgs84ToGaussKrueger(double lon, double lat, double central_meridian) {
  const Geocentric bessel = ShiftWgs84ToBessel(GeodeticToXyzWgs84(lon, lat));
  const Geodetic position = XyzToGeodeticBessel(bessel);
  return GeodeticToGaussBessel(position.Lon, position.Lat, central_meridian,
                               GaussKruegerFalseEasting(central_meridian));
}

Geodetic GaussKruegerToWgs84(double easting, double northing, double central_meridian) {
  const Geodetic position = GaussBesselToGeodetic(central_meridian, easting, northing,
                                                  GaussKruegerFalseEasting(central_meridian));
  return XyzToGeodeticWgs84(ShiftBesselToWgs84(GeodeticToXyzBessel(position.Lon, position.Lat)));
}

GridMetres Wgs84ToRt90(double lon, double lat) {
  const Geocentric bessel = HelmertWgs84ToRt90(GeodeticToXyzWgs84(lon, lat));
  const Geodetic position = XyzToGeodeticBessel(bessel);
  return GeodeticToGaussBessel(position.Lon, position.Lat, kRt90Meridian, kRt90FalseEasting);
}

Geodetic Rt90ToWgs84(double easting, double northing) {
  const Geodetic position =
      GaussBesselToGeodetic(kRt90Meridian, easting, northing, kRt90FalseEasting);
  return XyzToGeodeticWgs84(HelmertRt90ToWgs84(GeodeticToXyzBessel(position.Lon, position.Lat)));
}

double UtmCentralMeridianOf(double lon) {
  return Int(Int(lon + 6.0) / 6.0) * 6.0 - 3.0;
}

int UtmZoneOfMeridian(double central_meridian) {
  return static_cast<int>(IntegerQuotient(central_meridian + 186.0, 6.0));
}

double GaussKruegerMeridianOf(double lon) {
  return Int(Int(lon + 1.5) / 3.0) * 3.0;
}

double GaussKruegerFalseEasting(double central_meridian) {
  return Int(central_meridian / 3.0) * 1000000.0 + 500000.0;
}

double UtmMeridianOfZone(int zone) {
  return zone * 6.0 - 183.0;
}

DistanceBearing StationDistanceBearing(double own_north_km, double own_east_km, double north_km,
                                       double east_km, double map_central_meridian,
                                       double map_false_easting) {
  const Geodetic own = UtmToGeodetic(map_central_meridian, own_east_km * 1000.0,
                                     own_north_km * 1000.0, map_false_easting);
  const Geodetic station =
      UtmToGeodetic(map_central_meridian, east_km * 1000.0, north_km * 1000.0, map_false_easting);
  constexpr double kShortDegree = kShortPi / 180.0;
  const double phi1 = own.Lat * kShortDegree;
  const double phi2 = station.Lat * kShortDegree;
  const double difference = (station.Lon - own.Lon) * kShortDegree;
  const double sigma = ArcCosine(std::sin(phi2) * std::sin(phi1) +
                                 std::cos(phi2) * std::cos(phi1) * std::cos(difference));
  double alpha = ArcCosine((std::sin(phi2) - std::sin(phi1) * std::cos(sigma)) /
                           (std::cos(phi1) * std::sin(sigma)));
  if (std::sin(difference) < 0.0) alpha = 2.0 * kShortPi - alpha;
  constexpr double kKmOfDegree = 111.12;  // 60 nautical miles of 1.852 km
  return {sigma * 180.0 / kShortPi * kKmOfDegree, alpha * 180.0 / kShortPi};
}

}  // namespace zepril
