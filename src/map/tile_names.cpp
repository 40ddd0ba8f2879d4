// Four characters for a kilometre, a letter first where it is negative.
#include "map/tile_names.h"

#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::ptrdiff_t kFieldWidth = 4;
constexpr int kLetterBase = 64;     // "@" stands for no thousands
constexpr int kLastPlainCode = 63;  // "?"

}  // namespace

std::string TileNameField(double km) {
  if (!(km >= -10000.0 && km < 10000.0)) return "XXXX";
  const std::int64_t magnitude = ToWhole(std::fabs(km));
  std::string field(Right(ZeroPadded(magnitude, kFieldWidth), kFieldWidth));
  if (km < 0.0) field.front() = Chr(static_cast<int>(magnitude / 1000) + kLetterBase);
  return field;
}

double TileFieldValue(std::string_view field) {
  if (field.empty()) return 0.0;
  const int code = Asc(field.front());
  if (code > kLastPlainCode) return -((code - kLetterBase) * 1000.0 + Val(Mid(field, 2, 3)));
  return Val(Left(field, kFieldWidth));
}

std::string TileFileName(double south_km, double west_km) {
  return TileNameField(south_km) + TileNameField(west_km) + ".BMP";
}

double TileCorner(double km, double tile_km) {
  return Int(km / tile_km) * tile_km;
}

}  // namespace zepril
