// A place of the map for programs and web maps outside: addresses, the globe's file, and the way
// back from what the operator has copied there. Nothing here acts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/state/map_view.h"
#include "geodesy/conversions.h"

namespace zepril {

// The centre of the map, in degrees and in whole metres of the map's zone.
struct OutsidePlace {
  Geodetic Degrees;
  std::string NorthMetres;
  std::string EastMetres;
};
OutsidePlace PlaceOfCentre(const MapViewState& view);

// Seven decimals, always with "." and a digit before it: "0.5000000", "-0.5000000".
std::string DegreesText(double degrees);

// The page of each web map that shows the place. `host`: scheme and host without a slash at the
// end.
std::string GoogleMapsUrl(std::string_view host, const OutsidePlace& place);
// These two work in the grid of UTM zone 33, as the maps here do.
std::string MinKartaUrl(std::string_view host, const OutsidePlace& place);
std::string NorgeskartUrl(std::string_view host, const OutsidePlace& place);
// In zone 35.
std::string KarttapaikkaUrl(std::string_view host, const OutsidePlace& place);

// Latitude, two blanks and longitude.
std::string PlaceLabel(const OutsidePlace& place);
// The file that the globe opens: UTF-8, lines with CR LF. `label` in code page 1252: what can't
// stand in such a file becomes a blank.
std::string GlobeFile(std::string_view label, const OutsidePlace& place);

// The place in a text that the globe has put on the clipboard, code page 1252: two coordinates in
// degrees, minutes and seconds, or fewer of them. Behind the first eleven characters, unless a
// degree sign stands among these. South, and west as "W" or "V", are negative. Nothing for any
// other text, one of the two 0, or beyond the earth.
//   52°30'14.76"N 13°24'18.72"E
std::optional<Geodetic> PlaceInGlobeText(std::string_view copied);
// The place in the address of a page of Google Maps: latitude and longitude behind "@", a comma
// behind each.
std::optional<Geodetic> PlaceInMapAddress(std::string_view address);

// `place` as centre of a map: km of the map's zone, to the whole metre.
struct CentreKm {
  double North = 0.0;
  double East = 0.0;
};
CentreKm CentreAt(const Geodetic& place, const MapViewState& view);

}  // namespace zepril
