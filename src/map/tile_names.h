// Names of map tiles: NNNNEEEE.BMP, the south-west corner in kilometres of the map zone.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// Four characters for a whole number of kilometres. 0 to 9999: digits with zeros in front. Negative
// down to -10000: the last four digits of the magnitude, the first replaced by the letter of its
// thousands ("@" for none): -123 is "@123", -1123 "A123", -10000 "J000". Otherwise "XXXX", a tile
// that can't exist.
std::string TileNameField(double km);

// The value back: a first character above "?" tells a negative one by its code. The other
// characters are read as a number; "XXXX" reads -24000.
double TileFieldValue(std::string_view field);

// North field, east field and ".BMP".
std::string TileFileName(double south_km, double west_km);

// Corner of the tile that covers `km`, for tiles of `tile_km`: rounded down.
double TileCorner(double km, double tile_km);

}  // namespace zepril
