// Reads two numbers a line and prints every grid of that place.
#include "tool/coords_command.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"
#include "tool/arguments.h"

namespace zepril {
namespace {

constexpr std::array<ArgumentRule, 3> kRules{
    {{"--zone", true}, {"--header", false}, {"--inverse", false}}};

constexpr std::string_view kHeader =
    "utm_e\tutm_n\tgk_zone\tgk_e\tgk_n\tutmpos_zone\tutmpos_e\tutmpos_n\trt_e\trt_n\tlocator\t"
    "lat_text\tlon_text\n";
constexpr std::string_view kInverseHeader = "lon\tlat\n";

// The next word of `line`, which loses it.
std::string_view TakeWord(std::string_view& line) {
  constexpr std::string_view kGaps = " \t\r";
  line.remove_prefix(std::min(line.find_first_not_of(kGaps), line.size()));
  const std::string_view word = line.substr(0, line.find_first_of(kGaps));
  line.remove_prefix(word.size());
  return word;
}

bool IsNumberText(std::string_view word) {
  constexpr std::string_view kNumberCharacters = "0123456789+-.eE";
  return !word.empty() && word.find_first_not_of(kNumberCharacters) == std::string_view::npos &&
         std::any_of(word.begin(), word.end(), IsDigit);
}

// Reads standard input line by line.
template <typename Take>
void ForEachLine(const Take& take) {
  constexpr std::size_t kLongestLine = 65536;
  std::array<char, 16384> block;
  std::string line;
  for (;;) {
    const std::size_t length = std::fread(block.data(), 1, block.size(), stdin);
    if (length == 0) break;
    for (char c : std::string_view(block.data(), length)) {
      if (c == '\n') {
        take(line);
        line.clear();
      } else if (line.size() < kLongestLine) {
        line += c;
      }
    }
  }
  if (!line.empty()) take(line);
}

}  // namespace

std::optional<NumberPair> ReadNumberPair(std::string_view line) {
  const std::string_view first = TakeWord(line);
  const std::string_view second = TakeWord(line);
  if (!IsNumberText(first) || !IsNumberText(second) || !TakeWord(line).empty()) return std::nullopt;
  return NumberPair{Val(first), Val(second)};
}

std::string CoordsLine(double lon, double lat, int map_zone) {
  constexpr int kDecimals = 4;
  constexpr double kDegreesPerStrip = 3.0;
  std::string line;
  const auto metres = [&line](double value) { line += FixedNumber(value, kDecimals) + "\t"; };
  const auto grid = [&metres](const GridMetres& place) {
    metres(place.East);
    metres(place.North);
  };
  const auto whole = [&line](std::int64_t value) { line += WholeNumber(value) + "\t"; };

  grid(GeodeticToUtm(lon, lat, UtmMeridianOfZone(map_zone), kUtmFalseEasting));
  const double gk_meridian = GaussKruegerMeridianOf(lon);
  whole(ToWhole(gk_meridian / kDegreesPerStrip));
  grid(Wgs84ToGaussKrueger(lon, lat, gk_meridian));
  const double utm_meridian = UtmCentralMeridianOf(lon);
  whole(UtmZoneOfMeridian(utm_meridian));
  grid(GeodeticToUtm(lon, lat, utm_meridian, kUtmFalseEasting));
  grid(Wgs84ToRt90(lon, lat));
  return line + LocatorOf(lat, lon) + "\t" + DegreeMinuteText(lat) + "\t" + DegreeMinuteText(lon);
}

std::string InverseCoordsLine(double east, double north, int map_zone) {
  constexpr int kDecimals = 9;
  const Geodetic place = UtmToGeodetic(UtmMeridianOfZone(map_zone), east, north, kUtmFalseEasting);
  return FixedNumber(place.Lon, kDecimals) + "\t" + FixedNumber(place.Lat, kDecimals);
}

int RunCoords(std::span<const std::string_view> args) {
  Arguments arguments(args, kRules);
  const auto zone = ZoneNumber(arguments.Value("--zone").value_or("U33"));
  if (!zone) arguments.Fail("--zone must be a zone from U01 to U60");
  if (arguments.Failed()) return arguments.Report("coords");

  const bool inverse = arguments.Has("--inverse");
  if (arguments.Has("--header")) {
    const std::string_view header = inverse ? kInverseHeader : kHeader;
    std::fwrite(header.data(), 1, header.size(), stdout);
  }
  std::int64_t refused = 0;
  ForEachLine([&](std::string_view line) {
    const auto pair = ReadNumberPair(line);
    if (!pair) {
      ++refused;
      return;
    }
    const std::string text = (inverse ? InverseCoordsLine(pair->First, pair->Second, *zone)
                                      : CoordsLine(pair->First, pair->Second, *zone)) +
                             "\n";
    std::fwrite(text.data(), 1, text.size(), stdout);
  });
  if (refused > 0) {
    std::fprintf(stderr, "zepril-tool coords: lines that are not two numbers: %s\n",
                 WholeNumber(refused).c_str());
  }
  return std::fflush(stdout) == 0 && refused == 0 ? 0 : 1;
}

}  // namespace zepril
