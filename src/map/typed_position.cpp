// Reads kilometres, degrees in their forms and locators; what can't be is refused with its reason.
#include "map/typed_position.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "core/text_fields.h"
#include "core/texts/notices.h"
#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr std::size_t kLongestTyped = 80;  // characters
constexpr double kHighestLat = 90.0;
constexpr double kHighestLon = 180.0;
constexpr double kSixty = 60.0;
constexpr std::size_t kDecimalsOfDegrees = 4;  // kilometres have metres behind the point: three
constexpr char kDegreeSign = '\xB0';

TypedPosition Refused(Text why) {
  return {std::nullopt, why};
}

// ---- Words ----------------------------------------------------------------------------------

bool IsHemisphere(char c) {
  return c == 'N' || c == 'S' || c == 'E' || c == 'W';
}

// Upper case, the signs of degrees, minutes and seconds as colons without blanks behind them, and
// the comma between two values as a blank.
std::string Plain(std::string_view typed) {
  std::string text;
  for (const char c : Upper(Trim(typed))) {
    const bool mark = c == kDegreeSign || c == '\'' || c == '"';
    if (c == ' ' && !text.empty() && text.back() == ':') continue;
    if (!mark || text.empty() || text.back() != ':') text += mark ? ':' : c;
  }
  const bool one_comma = std::count(text.begin(), text.end(), ',') == 1;
  if (one_comma && text.find_first_of(".: ") != std::string::npos)
    std::replace(text.begin(), text.end(), ',', ' ');
  return text;
}

// Between blanks; a lone letter of a hemisphere belongs to the value before it, or else behind.
std::vector<std::string> Words(const std::string& text) {
  std::vector<std::string> words;
  std::string in_front;
  for (const std::string_view part : Split(text, ' ')) {
    if (part.empty()) continue;
    const bool lone = part.size() == 1 && IsHemisphere(part.front());
    if (lone && !words.empty() && !IsHemisphere(words.back().back()) &&
        !IsHemisphere(words.back().front())) {
      words.back() += part;
    } else if (lone) {
      in_front = part;
    } else {
      words.push_back(in_front + std::string(part));
      in_front.clear();
    }
  }
  if (!in_front.empty()) words.push_back(in_front);
  return words;
}

// ---- Values ---------------------------------------------------------------------------------

struct Value {
  double Number = 0.0;
  char Hemisphere = 0;  // N, S, E, W, or none
  bool Marked = false;  // by colons or a hemisphere: degrees
  std::size_t Decimals = 0;
};

// Digits with at most one point.
std::optional<double> PlainNumber(std::string_view text, bool fraction_allowed) {
  const auto points = std::count(text.begin(), text.end(), '.');
  const bool digits = std::any_of(text.begin(), text.end(), IsDigit);
  if (!digits || points > (fraction_allowed ? 1 : 0) || !IsNumericField(text)) return std::nullopt;
  return Val(text);
}

std::optional<Value> ReadValue(std::string_view word) {
  Value value;
  if (!word.empty() && IsHemisphere(word.back())) {
    value.Hemisphere = word.back();
    word.remove_suffix(1);
  } else if (!word.empty() && IsHemisphere(word.front())) {
    value.Hemisphere = word.front();
    word.remove_prefix(1);
  }
  const bool negative = !word.empty() && word.front() == '-';
  if (negative || (!word.empty() && word.front() == '+')) word.remove_prefix(1);
  if (negative && value.Hemisphere != 0) return std::nullopt;
  value.Marked = value.Hemisphere != 0 || word.find(':') != std::string_view::npos;
  if (!word.empty() && word.back() == ':') word.remove_suffix(1);
  const auto parts = Split(word, ':');
  if (parts.size() > 3) return std::nullopt;
  double unit = 1.0;
  for (std::size_t at = 0; at < parts.size(); ++at) {
    const auto number = PlainNumber(parts[at], at + 1 == parts.size());
    if (!number || (at > 0 && *number >= kSixty)) return std::nullopt;
    value.Number += *number * unit;
    unit /= kSixty;
  }
  const std::size_t point = word.find('.');
  if (point != std::string_view::npos) value.Decimals = word.size() - point - 1;
  if (negative || value.Hemisphere == 'S' || value.Hemisphere == 'W') value.Number = -value.Number;
  return value;
}

// ---- Places ---------------------------------------------------------------------------------

TypedPosition AtKilometres(double north_km, double east_km) {
  const bool on_map =
      std::fabs(north_km) < kHighestCentreKm && std::fabs(east_km) < kHighestCentreKm;
  if (!on_map) return Refused(notices::kBeyondMap);  // also what is no number
  return {MapPosition{north_km, east_km}, std::string()};
}

TypedPosition AtDegrees(double lat, double lon, const MapViewState& view) {
  if (std::fabs(lat) > kHighestLat || std::fabs(lon) > kHighestLon)
    return Refused(notices::kNoSuchDegrees);
  const GridMetres metres = GeodeticToUtm(lon, lat, view.MapCentralMeridian, view.MapFalseEasting);
  return AtKilometres(metres.North / 1000.0, metres.East / 1000.0);
}

bool IsLocator(std::string_view text) {
  constexpr std::array<char, 5> kLast{'R', '9', 'X', '9', 'X'};  // of each pair
  if (text.size() % 2 != 0 || text.size() < 4 || text.size() > 2 * kLast.size()) return false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char last = kLast[at / 2];
    if (text[at] < (IsDigit(last) ? '0' : 'A') || text[at] > last) return false;
  }
  return true;
}

// The middle of the locator's field.
TypedPosition AtLocator(std::string_view text, const MapViewState& view) {
  constexpr std::array<double, 5> kCells{18.0, 10.0, 24.0, 10.0, 24.0};
  if (text.size() < 6) return Refused(notices::kShortLocator);
  double lon = -180.0;
  double lat = -90.0;
  double side = 180.0;  // degrees of latitude; of longitude it is twice that
  for (std::size_t pair = 0; pair < text.size() / 2; ++pair) {
    side /= kCells[pair];
    const char first = pair % 2 == 0 ? 'A' : '0';
    lon += 2.0 * side * (text[2 * pair] - first);
    lat += side * (text[2 * pair + 1] - first);
  }
  return AtDegrees(lat + side / 2.0, lon + side, view);
}

// ---- Texts ----------------------------------------------------------------------------------

bool HoldsComma(std::string_view text) {
  return text.find(',') != std::string_view::npos;
}

// The two values in any order that their letters tell; degrees where they can be.
TypedPosition OfPair(const std::string& first, const std::string& second, bool in_one_field,
                     const MapViewState& view) {
  auto north = ReadValue(first);
  auto east = ReadValue(second);
  if (!north || !east) {
    return Refused(HoldsComma(first) || HoldsComma(second) ? notices::kUsePoint
                                                           : notices::kNoPosition);
  }
  const auto is_east = [](const Value& value) {
    return value.Hemisphere == 'E' || value.Hemisphere == 'W';
  };
  const auto is_north = [](const Value& value) {
    return value.Hemisphere == 'N' || value.Hemisphere == 'S';
  };
  if (is_east(*north) && !is_east(*east)) std::swap(north, east);
  if (is_east(*north) || is_north(*east)) return Refused(notices::kNoPosition);
  const bool could_be_degrees =
      std::fabs(north->Number) <= kHighestLat && std::fabs(east->Number) <= kHighestLon;
  if (north->Marked && east->Marked) return AtDegrees(north->Number, east->Number, view);
  if (north->Marked != east->Marked) return Refused(notices::kMixedUnits);
  const bool fine = std::min(north->Decimals, east->Decimals) >= kDecimalsOfDegrees;
  if (could_be_degrees && (in_one_field || fine)) {
    return AtDegrees(north->Number, east->Number, view);
  }
  TypedPosition place = AtKilometres(north->Number, east->Number);
  if (place.Place && could_be_degrees) place.Note = notices::kAreKilometres;
  return place;
}

// A whole position in one field; nothing when its text is none.
std::optional<TypedPosition> OfOneField(const std::string& text, const MapViewState& view) {
  const auto words = Words(text);
  if (words.size() == 2) return OfPair(words[0], words[1], true, view);
  if (words.size() == 1 && IsLocator(words[0])) return AtLocator(words[0], view);
  if (words.size() > 2)
    return Refused(HoldsComma(text) ? notices::kUsePoint : notices::kNoPosition);
  return std::nullopt;
}

}  // namespace

TypedPosition ReadTypedPosition(TypedField north, TypedField east, const MapViewState& view) {
  if (north.Text.size() > kLongestTyped || east.Text.size() > kLongestTyped) {
    return Refused(notices::kNoPosition);
  }
  const std::string north_text = Plain(north.Text);
  const std::string east_text = Plain(east.Text);
  const auto in_north = OfOneField(north_text, view);
  const auto in_east = OfOneField(east_text, view);
  if (in_north && (east_text.empty() || !east.Changed)) return *in_north;
  if (in_east && (north_text.empty() || !north.Changed)) return *in_east;
  if (in_north || in_east) return Refused(notices::kOnePosition);
  if (north_text.empty() || east_text.empty()) return Refused(notices::kBothWanted);
  return OfPair(north_text, east_text, false, view);
}

}  // namespace zepril
