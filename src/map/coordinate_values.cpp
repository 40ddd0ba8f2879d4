// Fills the values of all systems from a grid or geographic position.
#include "map/coordinate_values.h"

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"

namespace zepril {
namespace {

// Kept: three characters have no place for the sign of -177, which then reads "177".
std::string MeridianText(double meridian) {
  return std::string(Right(PadLeft(ShortNumber(meridian), 3), 3));
}

}  // namespace

void GridToGeo(CoordinateValues& values, const MapViewState& view, double north_km,
               double east_km) {
  const Geodetic place = UtmToGeodetic(view.MapCentralMeridian, east_km * 1000.0, north_km * 1000.0,
                                       view.MapFalseEasting);
  values.GeoLon = place.Lon;
  values.GeoLat = place.Lat;
  values.GeoLonText = DegreeMinuteText(place.Lon);
  values.GeoLatText = DegreeMinuteText(place.Lat);
}

void GeoToAllGrids(CoordinateValues& values) {
  const double lon = values.GeoLon;
  const double lat = values.GeoLat;
  const GridMetres gk = Wgs84ToGaussKrueger(lon, lat, values.GkCentralMeridian);
  values.GkNorthText = GridNorthText(gk.North / 1000.0);
  values.GkEastText = GridEastText(gk.East / 1000.0);
  const GridMetres utm = GeodeticToUtm(lon, lat, values.UtmCentralMeridian, kUtmFalseEasting);
  values.UtmNorthText = GridNorthText(utm.North / 1000.0);
  values.UtmEastText = GridEastText(utm.East / 1000.0);
  const GridMetres rt = Wgs84ToRt90(lon, lat);
  values.RtNorthKm = rt.North / 1000.0;
  values.RtEastKm = rt.East / 1000.0;
  values.RtNorthText = GridNorthText(values.RtNorthKm);
  values.RtEastText = GridEastText(values.RtEastKm);
  values.LocatorText = LocatorOf(lat, lon);
}

void ZoneByPosition(CoordinateValues& values) {
  values.GkCentralMeridian = GaussKruegerMeridianOf(values.DisplayLon);
  values.UtmCentralMeridian = UtmCentralMeridianOf(values.DisplayLon);
  values.GkMeridianText = MeridianText(values.GkCentralMeridian);
  values.UtmMeridianText = MeridianText(values.UtmCentralMeridian);
  values.UtmZoneText = PadLeft(WholeNumber(UtmZoneOfMeridian(values.UtmCentralMeridian)), 2);
}

void TakeZone(const IdentityState& identity, MapViewState& view) {
  if (!identity.MapZoneName.starts_with("U")) return;
  view.MapCentralMeridian = Val(Mid(identity.MapZoneName, 2)) * 6.0 - 183.0;
}

void ZoneOfMap(CoordinateValues& values, const IdentityState& identity, const MapViewState& view) {
  values.MapZoneNumberText = std::string(Mid(identity.MapZoneName, 2));
  values.MapMeridianText = PadLeft(ShortNumber(view.MapCentralMeridian), 3);
  values.DisplayLon = view.MapCentralMeridian;
  ZoneByPosition(values);
}

}  // namespace zepril
