// Known places in every projection, there and back, and places outside of them.
#include "geodesy/conversions.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zepril {
namespace {

constexpr double kTenthMillimetre = 1e-4;

TEST(GeodeticToUtm, OriginOfTheZoneIsItsFalseEasting) {
  const GridMetres grid = GeodeticToUtm(15, 0, 15, 500000);
  EXPECT_NEAR(grid.East, 500000.0, 1e-9);
  EXPECT_NEAR(grid.North, 0.0, 1e-9);
}

TEST(GeodeticToUtm, BerlinInZone33) {
  const GridMetres grid = GeodeticToUtm(13.4, 52.5, 15, 500000);
  EXPECT_NEAR(grid.East, 391390.7313, kTenthMillimetre);
  EXPECT_NEAR(grid.North, 5817855.2407, kTenthMillimetre);
}

TEST(GeodeticToUtm, FarOffTheZoneTheShortSumsShow) {
  const GridMetres at60 = GeodeticToUtm(75, 50, 15, 500000);
  EXPECT_NEAR(at60.East, 4511329.6001, kTenthMillimetre);  // exact sums would give ...5165
  EXPECT_NEAR(at60.North, 7461523.6061, kTenthMillimetre);
  const GridMetres at30 = GeodeticToUtm(45, 52, 15, 500000);
  EXPECT_NEAR(at30.East, 2532657.1931, kTenthMillimetre);
  EXPECT_NEAR(at30.North, 6197908.0085, kTenthMillimetre);
}

TEST(UtmToGeodetic, RoundTripIsCloseInsideTheZoneAndDepartsOutside) {
  for (double lat = 0; lat <= 84; lat += 7) {
    for (double lon = 9; lon <= 21; lon += 1.5) {
      const GridMetres grid = GeodeticToUtm(lon, lat, 15, 500000);
      const Geodetic back = UtmToGeodetic(15, grid.East, grid.North, 500000);
      EXPECT_NEAR(back.Lon, lon, 4e-9);
      EXPECT_NEAR(back.Lat, lat, 4e-9);
    }
  }
  const GridMetres far = GeodeticToUtm(75, 50, 15, 500000);
  EXPECT_NEAR(UtmToGeodetic(15, far.East, far.North, 500000).Lat - 50.0, 3.60702e-5, 1e-9);
  const GridMetres less = GeodeticToUtm(45, 52, 15, 500000);
  const double metres =
      std::fabs(UtmToGeodetic(15, less.East, less.North, 500000).Lat - 52.0) * 111000.0;
  EXPECT_NEAR(metres, 0.021, 0.002);
}

TEST(GeodeticToUtm, WrapOfTheMeridianTurnsAtLatitudeOneAndSparesIt) {
  EXPECT_NEAR(GeodeticToUtm(115, 1.0, 15, 500000).North, -693919.5659, kTenthMillimetre);
  EXPECT_NEAR(GeodeticToUtm(115, 1.5, 15, 500000).North, 18960963.8522, kTenthMillimetre);
  EXPECT_NEAR(GeodeticToUtm(115, 0.5, 15, 500000).North, -20344093.9350, kTenthMillimetre);
  EXPECT_GT(GeodeticToUtm(-85, 1.5, 15, 500000).North, 1.8e7);
  EXPECT_LT(GeodeticToUtm(-85, 0.5, 15, 500000).North, -2.0e7);
}

TEST(GeodeticToUtm, NinetyDegreesOffOnTheEquatorIsNoCrash) {
  EXPECT_FALSE(std::isfinite(GeodeticToUtm(105.00000000000001, 0, 15, 500000).East) &&
               std::isfinite(GeodeticToUtm(105, 0, 15, 500000).East) &&
               std::fabs(GeodeticToUtm(105, 0, 15, 500000).East) < 1e7);
}

TEST(GaussKrueger, BerlinInStrip12) {
  const GridMetres grid = Wgs84ToGaussKrueger(13.4, 52.5, GaussKruegerMeridianOf(13.4));
  EXPECT_NEAR(grid.East, 4595177.7632, kTenthMillimetre);
  EXPECT_NEAR(grid.North, 5819456.5651, kTenthMillimetre);
  const Geodetic back = GaussKruegerToWgs84(grid.East, grid.North, 12);
  // The shift drops the height that it makes, so a millimetre is lost on the way there and back.
  EXPECT_NEAR(back.Lon, 13.4, 2e-8);
  EXPECT_NEAR(back.Lat, 52.5, 2e-8);
}

TEST(Rt90, StockholmAndTheResidueOfTheWayBack) {
  const GridMetres grid = Wgs84ToRt90(18.0685, 59.3293);
  EXPECT_NEAR(grid.East, 1628826.8552, kTenthMillimetre);
  EXPECT_NEAR(grid.North, 6580908.4473, kTenthMillimetre);
  const Geodetic back = Rt90ToWgs84(grid.East, grid.North);
  EXPECT_NEAR(back.Lon, 18.0685003, 5e-8);
  EXPECT_NEAR(back.Lat, 59.3293000, 5e-8);
  const double residue_m =
      std::hypot((back.Lon - 18.0685) * 111320 * std::cos(59.3293 * 0.01745329),
                 (back.Lat - 59.3293) * 111320);
  EXPECT_NEAR(residue_m, 0.016, 0.004);
}

TEST(Strips, AreChosenByLongitude) {
  EXPECT_EQ(UtmCentralMeridianOf(11.9999), 9.0);
  EXPECT_EQ(UtmZoneOfMeridian(9), 32);
  EXPECT_EQ(UtmCentralMeridianOf(12), 15.0);
  EXPECT_EQ(UtmZoneOfMeridian(15), 33);
  EXPECT_EQ(GaussKruegerMeridianOf(13.4), 12.0);
  EXPECT_EQ(GaussKruegerFalseEasting(12), 4500000.0);
  EXPECT_EQ(GaussKruegerMeridianOf(13.5), 15.0);
  EXPECT_EQ(GaussKruegerFalseEasting(15), 5500000.0);
  EXPECT_EQ(UtmCentralMeridianOf(-0.5), -3.0);
  EXPECT_EQ(UtmZoneOfMeridian(-3), 30);
  EXPECT_EQ(GaussKruegerMeridianOf(-0.5), 0.0);
  EXPECT_EQ(GaussKruegerMeridianOf(-2), -3.0);
  EXPECT_EQ(GaussKruegerFalseEasting(-3), -500000.0);
  EXPECT_EQ(UtmCentralMeridianOf(180), 183.0);
  EXPECT_EQ(UtmZoneOfMeridian(183), 61);
}

TEST(XyzToGeodeticWgs84, NegativeXFoldsTheLongitude) {
  const Geodetic position = XyzToGeodeticWgs84({-3000000, 1000000, 5500000});
  EXPECT_NEAR(position.Lon, -18.43495, 1e-5);
  EXPECT_NEAR(position.Lat, 60.26932, 1e-5);
}

TEST(UtmToGeodetic, PlacesBehindThePoleComeBack) {
  for (double lon : {15.0 + 170.0, 15.0 - 170.0}) {
    const GridMetres grid = GeodeticToUtm(lon, 80.0, 15.0, 500000.0);
    const Geodetic place = UtmToGeodetic(15.0, grid.East, grid.North, 500000.0);
    EXPECT_NEAR(place.Lon, lon > 180.0 ? lon - 360.0 : lon, 1e-4);
    EXPECT_NEAR(place.Lat, 80.0, 1e-4);
  }
}

TEST(UtmToGeodetic, LongitudeStaysWithinHalfATurn) {
  for (double meridian : {-177.0, 177.0, 183.0}) {
    for (double east = -3e6; east <= 4e6; east += 2.5e5) {
      const double lon = UtmToGeodetic(meridian, east, 5e6, 500000).Lon;
      EXPECT_GE(lon, -180.0);
      EXPECT_LE(lon, 180.0);
    }
  }
}

TEST(StationDistanceBearing, EqualPositionsAreNoFault) {
  const DistanceBearing same = StationDistanceBearing(5800, 400, 5800, 400, 15, 500000);
  EXPECT_NEAR(same.DistanceKm, 0.00899, 1e-5);
  EXPECT_NEAR(same.BearingDeg, 89.99995, 1e-5);
}

TEST(StationDistanceBearing, ToTheNorthEastAndToTheWest) {
  const DistanceBearing a = StationDistanceBearing(5800, 400, 5900, 500, 15, 500000);
  EXPECT_NEAR(a.DistanceKm, 141.0957, 1e-4);
  EXPECT_NEAR(a.BearingDeg, 43.7627, 1e-4);
  const DistanceBearing b = StationDistanceBearing(5800, 400, 5800, 390, 15, 500000);
  EXPECT_NEAR(b.DistanceKm, 9.9638, 1e-4);
  EXPECT_NEAR(b.BearingDeg, 268.8348, 1e-4);
}

TEST(Pi, TheTwoValuesAreKeptApart) {
  EXPECT_EQ(kConversionPi, 3.14159265358979);
  EXPECT_EQ(kShortPi, 3.14159265);
}

}  // namespace
}  // namespace zepril
