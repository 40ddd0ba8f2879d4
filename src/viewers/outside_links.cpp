// Writes the addresses and the globe's file, and reads copied coordinates.
#include "viewers/outside_links.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"
#include "platform/code_page.h"

namespace zepril {
namespace {

// What somebody has copied may be anything.
constexpr std::ptrdiff_t kLongestCopied = 1000;
constexpr std::ptrdiff_t kLeadText = 11;
constexpr double kKarttapaikkaMeridian = 27.0;
constexpr char kDegreeSign = '\xB0';

std::string MetresText(double metres) {
  return WholeNumber(ToWhole(metres));
}

// A character of the label as it can stand in XML.
std::string XmlText(char c) {
  switch (c) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    default:
      return IsControlCharacter(c) ? " " : Utf8FromCodePage({&c, 1});
  }
}

// A comma between two digits is a point: some desktops write numbers so.
std::string WithPoints(std::string_view text) {
  std::string points(text);
  for (std::size_t at = 1; at + 1 < points.size(); ++at) {
    if (points[at] == ',' && IsDigit(points[at - 1]) && IsDigit(points[at + 1])) points[at] = '.';
  }
  return points;
}

// The text of the number, with its sign, that ends right before column `end`.
std::string_view NumberBefore(std::string_view text, std::ptrdiff_t end) {
  std::ptrdiff_t start = end;
  while (start > 1) {
    const char before = text[static_cast<std::size_t>(start - 2)];
    if (!IsDigit(before) && before != '.' && before != '-') break;
    --start;
    if (before == '-') break;
  }
  return Mid(text, start, end - start);
}

// What stands behind a degree sign: minutes up to "'", seconds up to a double quote, each if there.
double PartsOfDegree(std::string_view text) {
  const std::ptrdiff_t minute_mark = InStr(text, "'");
  if (minute_mark == 0) return 0.0;
  const double minutes = Val(Left(text, minute_mark - 1));
  const std::ptrdiff_t second_mark = InStr(minute_mark, text, "\"");
  const double seconds =
      second_mark == 0 ? 0.0 : Val(Mid(text, minute_mark + 1, second_mark - minute_mark - 1));
  return minutes / 60.0 + seconds / 3600.0;
}

// The first letter behind a coordinate is its direction; what else is written does not count.
bool IsNegative(std::string_view degrees, std::string_view behind, std::string_view letters) {
  const auto letter = std::find_if(behind.begin(), behind.end(), [](char c) {
    return UpperChar(c) >= 'A' && UpperChar(c) <= 'Z';
  });
  const bool by_letter =
      letter != behind.end() && letters.find(UpperChar(*letter)) != std::string_view::npos;
  return degrees.starts_with('-') || by_letter;
}

// `degrees` with their sign, and what stands behind them.
double Coordinate(std::string_view degrees, std::string_view behind, std::string_view letters) {
  const double value = std::fabs(Val(degrees)) + PartsOfDegree(behind);
  return IsNegative(degrees, behind, letters) ? -value : value;
}

std::optional<Geodetic> OnEarth(double lat, double lon) {
  const bool given = lat != 0.0 && lon != 0.0;
  if (!given || std::fabs(lat) > 90.0 || std::fabs(lon) > 180.0) return std::nullopt;
  return Geodetic{lon, lat};
}

}  // namespace

OutsidePlace PlaceOfCentre(const MapViewState& view) {
  const double east = view.CentreEastKm * 1000.0;
  const double north = view.CentreNorthKm * 1000.0;
  return {UtmToGeodetic(view.MapCentralMeridian, east, north, view.MapFalseEasting),
          MetresText(north), MetresText(east)};
}

std::string DegreesText(double degrees) {
  return FixedNumber(degrees, 7);
}

// ---- Addresses ------------------------------------------------------------------------------

std::string GoogleMapsUrl(std::string_view host, const OutsidePlace& place) {
  return std::string(host) + "/maps/@" + DegreesText(place.Degrees.Lat) + "," +
         DegreesText(place.Degrees.Lon) + ",1008m/data=!3m1!1e3";
}

std::string MinKartaUrl(std::string_view host, const OutsidePlace& place) {
  return std::string(host) + "/?e=" + place.EastMetres + "&n=" + place.NorthMetres +
         "&z=12&background=2&boundaries=false";
}

std::string NorgeskartUrl(std::string_view host, const OutsidePlace& place) {
  return std::string(host) + "/#!?project=norgeskart&layers=1003&zoom=14&lat=" + place.NorthMetres +
         "&lon=" + place.EastMetres;
}

std::string KarttapaikkaUrl(std::string_view host, const OutsidePlace& place) {
  const GridMetres grid =
      GeodeticToUtm(place.Degrees.Lon, place.Degrees.Lat, kKarttapaikkaMeridian, kUtmFalseEasting);
  return std::string(host) + "/karttapaikka/?share=customMarker&n=" + MetresText(grid.North) +
         "&e=" + MetresText(grid.East) +
         "&title=&desc=&zoom=11&layers=%5B%7B%22id%22%3A3%2C%22opacity%22%3A100%7D%5D&lang=sv";
}

// ---- The globe's file -----------------------------------------------------------------------

std::string PlaceLabel(const OutsidePlace& place) {
  return DegreesText(place.Degrees.Lat) + "  " + DegreesText(place.Degrees.Lon);
}

std::string GlobeFile(std::string_view label, const OutsidePlace& place) {
  std::string name;
  for (const char c : label)
    name += XmlText(c);
  std::string file;
  for (const std::string& line :
       {std::string("<kml>"), std::string("<Placemark>"), "<name> " + name + "</name>",
        std::string("<Point>"),
        "<coordinates>" + DegreesText(place.Degrees.Lon) + "," + DegreesText(place.Degrees.Lat) +
            "</coordinates>",
        std::string("</Point>"), std::string("</Placemark>"), std::string("</kml>")})
    file += line + "\r\n";
  return file;
}

// ---- The way back ---------------------------------------------------------------------------

std::optional<Geodetic> PlaceInGlobeText(std::string_view copied) {
  const std::string text = WithPoints(Left(copied, kLongestCopied));
  const std::string_view sign(&kDegreeSign, 1);
  const std::ptrdiff_t anywhere = InStr(text, sign);
  const std::ptrdiff_t first =
      anywhere > kLeadText || anywhere == 0 ? InStr(kLeadText + 1, text, sign) : anywhere;
  if (first == 0) return std::nullopt;
  const std::ptrdiff_t second = InStr(first + 1, text, sign);
  if (second == 0) return std::nullopt;
  return OnEarth(
      Coordinate(NumberBefore(text, first), Mid(text, first + 1, second - first - 1), "S"),
      Coordinate(NumberBefore(text, second), Mid(text, second + 1), "WV"));
}

std::optional<Geodetic> PlaceInMapAddress(std::string_view address) {
  address = Left(address, kLongestCopied);
  const std::ptrdiff_t at = InStr(address, "@");
  const std::ptrdiff_t first = at == 0 ? 0 : InStr(at + 1, address, ",");
  const std::ptrdiff_t second = first == 0 ? 0 : InStr(first + 1, address, ",");
  if (second == 0) return std::nullopt;
  return OnEarth(Val(Mid(address, at + 1, first - at - 1)),
                 Val(Mid(address, first + 1, second - first - 1)));
}

CentreKm CentreAt(const Geodetic& place, const MapViewState& view) {
  const GridMetres grid =
      GeodeticToUtm(place.Lon, place.Lat, view.MapCentralMeridian, view.MapFalseEasting);
  return {RoundHalfEven(grid.North) / 1000.0, RoundHalfEven(grid.East) / 1000.0};
}

}  // namespace zepril
