// Writes kilometres with three decimals as nine columns, and reads them back.
#include "core/position_text.h"

#include <algorithm>
#include <cmath>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::int64_t kHighestNorthMetres = 9999990;
constexpr double kHeldMetres = 1e12;

std::int64_t HeldWhole(double metres) {
  if (std::isnan(metres)) return 0;
  return static_cast<std::int64_t>(std::clamp(metres, -kHeldMetres, kHeldMetres));
}

}  // namespace

std::string MetresText(std::int64_t metres) {
  std::string text = PadLeft(WholeNumber(metres), 8);
  text.insert(text.size() - 3, 1, '.');
  return text;
}

std::string RecordNorthText(double north_metres) {
  return MetresText(std::min(HeldWhole(Fix(north_metres)), kHighestNorthMetres));
}

std::string RecordEastText(double east_metres) {
  return MetresText(HeldWhole(Int(east_metres)));
}

double PositionTextKm(std::string_view text) {
  const std::size_t point = text.find('.');
  std::string whole;
  bool negative = false;
  for (char c : text.substr(0, point)) {
    if (c == '-') negative = true;
    if (c != ' ' && c != '-') whole += c;
  }
  if (point == std::string_view::npos) return negative ? -Val(whole) : Val(whole);
  std::string places;
  for (char c : text.substr(point + 1)) {
    if (c == '-') negative = true;
    places += c == ' ' || c == '-' ? '0' : c;
  }
  const double km = Val(whole + "." + places);
  return negative ? -km : km;
}

}  // namespace zepril
