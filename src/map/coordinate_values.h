// One position in every system that the read-outs show.
//
// The values are shared by the three read-outs: each call overwrites what it fills, and what was
// filled is valid only until the next call.
#pragma once

#include <string>

#include "core/state/identity.h"
#include "core/state/map_view.h"

namespace zepril {

struct CoordinateValues {
  // Filled by GridToGeo: WGS 84 degrees and their texts.
  double GeoLon = 0.0;
  double GeoLat = 0.0;
  std::string GeoLonText;
  std::string GeoLatText;

  // Copies of the centre's result: the input of ZoneByPosition.
  double DisplayLon = 0.0;
  double DisplayLat = 0.0;

  // Filled by GeoToAllGrids: kilometre texts and the locator.
  std::string GkNorthText;
  std::string GkEastText;
  std::string UtmNorthText;
  std::string UtmEastText;
  std::string RtNorthText;
  std::string RtEastText;
  double RtNorthKm = 0.0;
  double RtEastKm = 0.0;
  std::string LocatorText;

  // Filled by ZoneByPosition: central meridians in use, as numbers and as texts.
  double GkCentralMeridian = 15.0;
  double UtmCentralMeridian = 15.0;
  std::string GkMeridianText = " 15";
  std::string UtmMeridianText = " 15";
  std::string UtmZoneText = "33";

  // Filled by ZoneOfMap.
  std::string MapZoneNumberText = "33";
  std::string MapMeridianText = " 15";
};

// Map kilometres to WGS 84 and its texts.
void GridToGeo(CoordinateValues& values, const MapViewState& view, double north_km, double east_km);

// GeoLat and GeoLon to all grid texts, in the strips chosen last.
void GeoToAllGrids(CoordinateValues& values);

// Chooses the strips of Gauss-Krueger and UTM that DisplayLon lies in.
void ZoneByPosition(CoordinateValues& values);

// The central meridian of the map by the name of its zone, "U33"; another name leaves it.
void TakeZone(const IdentityState& identity, MapViewState& view);

// Number and meridian of the map's zone, "33" and " 15"; the strips start with it as well.
void ZoneOfMap(CoordinateValues& values, const IdentityState& identity, const MapViewState& view);

}  // namespace zepril
