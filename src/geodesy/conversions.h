// Conversions between geographic positions and the grids that the program shows.
//
// Method: Krueger's n-series of the Gauss conformal (transverse Mercator) projection to the fourth
// order, as published by national surveys for their grids; geocentric shifts between the Bessel
// 1841 ellipsoid and GRS 80, which is taken for WGS 84. Angles are degrees, coordinates metres;
// longitude comes before latitude and easting before northing. There are no false northings.
//
// Error bound: within 6 degrees of the central meridian the forward conversion agrees with an exact
// one to 0.01 mm for latitudes 0 to 84, and a round trip returns to well under a millimetre. The
// hyperbolic functions are short Taylor sums, so farther out results depart: 0.5 mm at 15 degrees,
// 16 cm at 30 degrees, metres at 60 degrees. Kept: stored positions were made with these sums.
//
// Domain: any finite input; nothing is validated. 90 degrees off the meridian on the equator the
// forward conversion yields infinities.
#pragma once

namespace zepril {

// The pi of the conversions. Kept: fifteen digits, so that results are those of earlier versions.
inline constexpr double kConversionPi = 3.14159265358979;
// The pi of distance, bearing and overlays. Kept apart from the other on purpose.
inline constexpr double kShortPi = 3.14159265;

inline constexpr double kRt90Meridian = 15.808277777;
inline constexpr double kRt90FalseEasting = 1500000.0;
inline constexpr double kUtmFalseEasting = 500000.0;

struct Geodetic {
  double Lon = 0.0;  // degrees, east positive
  double Lat = 0.0;  // degrees, north positive
};

struct GridMetres {
  double East = 0.0;
  double North = 0.0;
};

struct Geocentric {
  double X = 0.0;  // metres
  double Y = 0.0;
  double Z = 0.0;
};

// Transverse Mercator on GRS 80, scale 0.9996, and back. A point more than 90 degrees from the
// meridian is put on the far side (see the source for the rule and its threshold of 1 degree of
// latitude). Inverse longitudes lie within -180 to 180.
GridMetres GeodeticToUtm(double lon, double lat, double central_meridian, double false_easting);
Geodetic UtmToGeodetic(double central_meridian, double easting, double northing,
                       double false_easting);

// The same on the Bessel ellipsoid with scale 1: Gauss-Krueger and RT 90.
GridMetres GeodeticToGaussBessel(double lon, double lat, double central_meridian,
                                 double false_easting);
Geodetic GaussBesselToGeodetic(double central_meridian, double easting, double northing,
                               double false_easting);

// Geographic to geocentric with height 0, and back by Bowring's closed formula. The longitude of
// the way back has no quadrant: right for positive X only, which holds for Europe.
Geocentric GeodeticToXyzBessel(double lon, double lat);
Geocentric GeodeticToXyzWgs84(double lon, double lat);
Geodetic XyzToGeodeticBessel(const Geocentric& xyz);
Geodetic XyzToGeodeticWgs84(const Geocentric& xyz);

// Datum steps. The German one is three shifts; the Swedish one six parameters whose inverse negates
// all six: a first-order inverse with a residue of about 1.5 cm, which is not iterated away.
Geocentric ShiftBesselToWgs84(const Geocentric& xyz);
Geocentric ShiftWgs84ToBessel(const Geocentric& xyz);
Geocentric HelmertRt90ToWgs84(const Geocentric& xyz);
Geocentric HelmertWgs84ToRt90(const Geocentric& xyz);

// The chains between WGS 84 and the two Bessel grids, all steps in order.
GridMetres Wgs84ToGaussKrueger(double lon, double lat, double central_meridian);
Geodetic GaussKruegerToWgs84(double easting, double northing, double central_meridian);
GridMetres Wgs84ToRt90(double lon, double lat);
Geodetic Rt90ToWgs84(double easting, double northing);

// Selection of strips by longitude.
double UtmCentralMeridianOf(double lon);                   // of the 6 degree zone
int UtmZoneOfMeridian(double central_meridian);            // 1 to 61: exactly 180 degrees gives 61
double GaussKruegerMeridianOf(double lon);                 // of the 3 degree strip
double GaussKruegerFalseEasting(double central_meridian);  // zone digit in front of 500 km
double UtmMeridianOfZone(int zone);                        // zone x 6 - 183

// Great circle on a sphere of 60 nautical miles to the degree.
struct DistanceBearing {
  double DistanceKm = 0.0;
  double BearingDeg = 0.0;  // 0 to 360 clockwise from north, from the first towards the second
};

// Both positions in kilometres of the map's zone. Two equal positions give about 0.009 km and a
// defined bearing.
DistanceBearing StationDistanceBearing(double own_north_km, double own_east_km, double north_km,
                                       double east_km, double map_central_meridian,
                                       double map_false_easting);

}  // namespace zepril
