// Positions as the read-outs show them: kilometres with three decimals, degrees and minutes.
//
// These texts are a contract and not a matter of look: the beacon takes the degree texts apart, and
// the coordinate grid starts from the numeric value of the kilometre texts.
#pragma once

#include <string>

namespace zepril {

// Kilometre text of nine characters: whole metres, padded on the left, a point before the last
// three. No zero stands before the point, and the sign of a negative value is the first character,
// away from the digits. Metres are rounded down (with 1 cm of grace for binary fractions).
//   5912.345 -> " 5912.345", 0 -> "    0.000", 0.1 -> "     .100", -12.345 -> "-  12.345"
std::string KilometreText(double km);

// North of a grid: as KilometreText, held at 9999.999 km.
std::string GridNorthText(double km);
// East of a grid: as KilometreText, but from 10000 km on (Gauss-Krueger strips of two digits) six
// characters, a point and the last two digits of the metres.
//   15500.00012 -> " 15500.00", 10484.25506 -> " 10484.55"
std::string GridEastText(double km);

// A value brought to whole metres, as the cursor and the monitored station are.
double RoundedToMetre(double km);
// Kilometre text of a value that is already whole metres; empty from 9999.999 km on, either sign.
std::string PointKilometreText(double km);

// Position texts of a track or place line, from kilometres: KilometreText, and empty beyond
// 9999.999 km, either sign.
struct PositionTexts {
  std::string North;
  std::string East;
};
PositionTexts FormatGpsPositionTexts(double north_km, double east_km);
// The same for a place: nine blanks in place of an empty text, so that the columns behind it hold.
PositionTexts FormatPoiPositionTexts(double north_km, double east_km);

// Latitude or longitude as degrees, minutes and hundredths, all cut: " 52:30.24", "- 9:30.00".
// Kept: three digits of degrees leave no place for the sign, 122 degrees west reads "122:00.00".
std::string DegreeMinuteText(double degrees);

// Six-character Maidenhead locator, all capitals: latitude 52.5, longitude 13.4 is "JO62QM".
std::string LocatorOf(double lat, double lon);

}  // namespace zepril
