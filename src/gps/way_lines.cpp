// Builds keys, heads, digits and the end line.
#include "gps/way_lines.h"

#include <array>
#include <cstdlib>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kEastWidth = 5;
constexpr std::ptrdiff_t kEndLineWidth = 54;
constexpr std::string_view kEndWords = " STOP   ZEPRIL_NAVIGATION_ENDED";
constexpr std::string_view kEndMark = "@(xxx)@yyy@zzz";

}  // namespace

WaySquare WaySquareOf(double north_km, double east_km) {
  return {static_cast<int>(ToWhole(Int(north_km))), static_cast<int>(ToWhole(Int(east_km)))};
}

std::string WayKey(WaySquare square) {
  return WholeNumber(square.NorthKm) + PadRight(Str(square.EastKm), kEastWidth);
}

std::string WayPlaceAndTime(WaySquare square, const LocalTime& time) {
  return WayKey(square) + " " + ZeroPadded(time.Year % 100, 2) + ZeroPadded(time.Month, 2) +
         ZeroPadded(time.Day, 2) + " " + ZeroPadded(time.Hour, 2) + ZeroPadded(time.Minute, 2);
}

std::string WayHead(std::string_view place_and_time) {
  return std::string(place_and_time) + "||";
}

bool IsNeighbour(WaySquare from, WaySquare to) {
  return std::abs(to.NorthKm - from.NorthKm) <= 1 && std::abs(to.EastKm - from.EastKm) <= 1;
}

std::string WayDigit(WaySquare from, WaySquare to) {
  // By the signs of the steps to the north and to the east, from south-west on.
  constexpr std::string_view kDigits = "5436 2701";
  const double north = Sgn(to.NorthKm - from.NorthKm);
  const double east = Sgn(to.EastKm - from.EastKm);
  const char digit = kDigits[static_cast<std::size_t>((north + 1.0) * 3.0 + east + 1.0)];
  return digit == ' ' ? std::string() : std::string(1, digit);
}

bool IsWayJump(WaySquare from, WaySquare to) {
  return std::abs(to.NorthKm - from.NorthKm) > 1 && std::abs(to.EastKm - from.EastKm) > 1;
}

std::string WayEndLine(std::string_view place_and_time) {
  const std::string words = Field(std::string(place_and_time) + std::string(kEndWords),
                                  static_cast<std::size_t>(kEndLineWidth));
  return std::string(TrimRight(ToOemText(words + std::string(kEndMark))));
}

std::string ToOemText(std::string_view text) {
  constexpr std::string_view kLetters = "\xC4\xE4\xC5\xE5\xD6\xF6\xDC\xFC\xDF\xB5";
  constexpr std::array<int, 10> kCodes{142, 132, 143, 134, 153, 148, 154, 129, 225, 230};
  std::string mapped(text);
  for (char& c : mapped) {
    const std::size_t found = kLetters.find(c);
    if (found != std::string_view::npos) c = Chr(kCodes[found]);
  }
  return mapped;
}

std::string OutingLine(std::string_view point, std::string_view name) {
  std::string line(Mid(point, 3, 4));
  line += Mid(point, 11, 5);
  line += ' ';
  line += Mid(point, 23, 11);
  line += " OUT_A  OUTDOOR_ACT TK";
  line += name;
  return line;
}

}  // namespace zepril
