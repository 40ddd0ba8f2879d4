// A table of paths; behind it stations that drive in circles, and what spoils their pages.
#include "tool/web_pages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "core/text_fields.h"
#include "geodesy/conversions.h"

namespace zepril {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;
constexpr std::int64_t kStep = 600;  // seconds from line to line
constexpr double kRadius = 0.05;     // degrees of the circle that a station drives
constexpr double kLapSeconds = 7200.0;

// The value of a field of the query; empty without it.
std::string_view FieldOf(std::string_view query, std::string_view name) {
  for (const std::string_view field : Split(query, '&')) {
    const std::size_t equals = field.find('=');
    if (equals != std::string_view::npos && field.substr(0, equals) == name)
      return field.substr(equals + 1);
  }
  return {};
}

std::string TimeText(std::int64_t seconds, bool plain) {
  const LocalTime t = TimeOfSeconds(seconds);
  std::string text;
  const int values[] = {t.Year, t.Month, t.Day, t.Hour, t.Minute, t.Second};
  constexpr std::string_view kBetween = "-- ::";
  for (std::size_t at = 0; at < 6; ++at) {
    if (at > 0 && !plain) text += kBetween[at - 1];
    text += ZeroPadded(values[at], at == 0 ? 4 : 2);
  }
  return text;
}

// "DDMM.mm" with so many digits of degrees, and the hemisphere.
std::string Minutes(double degrees, std::size_t digits, char positive, char negative) {
  const auto hundredths = ToWhole(std::fabs(degrees) * 6000.0);
  return ZeroPadded(hundredths / 6000, digits) + ZeroPadded(hundredths / 100 % 60, 2) + "." +
         ZeroPadded(hundredths % 100, 2) + (degrees < 0 ? negative : positive);
}

Geodetic PlaceAt(std::int64_t seconds, const Geodetic& centre) {
  const double angle = 2.0 * kShortPi * static_cast<double>(seconds) / kLapSeconds;
  return {centre.Lon + kRadius * std::sin(angle), centre.Lat + kRadius * std::cos(angle)};
}

// Packets of the last `hours`, the oldest first.
std::string Lines(std::string_view call, std::int64_t hours, std::int64_t now, bool plain) {
  constexpr std::int64_t kMostHours = 72;
  const std::int64_t span = std::clamp<std::int64_t>(hours, 1, kMostHours) * kSecondsPerHour;
  std::string lines;
  for (std::int64_t at = (now - span) / kStep * kStep + kStep; at <= now; at += kStep) {
    const Geodetic place = PlaceAt(at, {13.4, 52.5});
    lines += TimeText(at, plain) + (plain ? "," : " ") + std::string(call) +
             ">APRS,WIDE1-1*,qAR,QX7AB:!" + Minutes(place.Lat, 2, 'N', 'S') + "/" +
             Minutes(place.Lon, 3, 'E', 'W') + ">on its way\r\n";
  }
  return lines;
}

WebAnswer RestRaw(std::string_view query, std::int64_t now) {
  const auto hours = ToWhole(Val(FieldOf(query, "seconds"))) / kSecondsPerHour;
  return {200, Lines(FieldOf(query, "callsign"), hours, now, false), "text/plain"};
}

WebAnswer CgiRaw(std::string_view query, std::int64_t now) {
  const std::string_view call = FieldOf(query, "call");
  const std::string lines = Lines(call, ToWhole(Val(FieldOf(query, "start"))), now, true);
  return {200, "<html><body><pre>RAW DATA: " + std::string(call) + "\r\n" + lines +
                   "</pre></body></html>"};
}

WebAnswer Area(std::string_view query, std::int64_t now) {
  constexpr int kStations = 26;
  const Geodetic centre{Val(FieldOf(query, "lon")), Val(FieldOf(query, "lat"))};
  std::string body = "[";
  for (int number = 0; number < kStations; ++number) {
    const double turn = number * kLapSeconds / kStations;
    const Geodetic place = PlaceAt(now + static_cast<std::int64_t>(turn), centre);
    const char letter = Chr('A' + number);
    body += std::string(number > 0 ? "," : "") + R"({"callsign":"QX7A)" + letter +
            R"(","type":"S","posreceived":")" + TimeText(now - number, false) + R"(","lat":)" +
            FixedNumber(place.Lat, 5) + R"(,"lon":)" + FixedNumber(place.Lon, 5) +
            R"(,"symbolcode":">","symboltable":"/","comment":"a station of the area, driving"})";
  }
  return {200, body + "]", "application/json"};
}

struct Path {
  std::string_view Name;
  WebAnswer (*Page)(std::string_view query, std::int64_t now);
};

constexpr std::array<Path, 3> kPaths{
    {{"/aprs/raw", &RestRaw}, {"/cgi-bin/raw.cgi", &CgiRaw}, {"/aprs/area", &Area}}};

std::string AllBytes() {
  std::string bytes;
  for (int code = 0; code < 5000; ++code)
    bytes += Chr(code * 7);
  return bytes;
}

void Spoil(const WebManners& manners, WebAnswer& answer) {
  constexpr std::uint64_t kHuge = 100'000'000;
  switch (manners.Kind) {
    case WebManner::Whole:
      return;
    case WebManner::Silent:
      answer.Silent = true;
      return;
    case WebManner::Slow:
      answer.Seconds = manners.Seconds;
      return;
    case WebManner::Cut:
      answer.CutAt = manners.Bytes;
      return;
    case WebManner::Endless:
      answer.MoreBytes = WebAnswer::kEndless;
      return;
    case WebManner::Huge:
      answer.MoreBytes = kHuge;
      return;
    case WebManner::Empty:
      answer.Body.clear();
      return;
    case WebManner::Binary:
      answer.Body = AllBytes();
      return;
    case WebManner::NoData:
      answer.Body = "No data found for this station";
      return;
  }
}

}  // namespace

std::optional<WebManners> WebMannersNamed(std::string_view text) {
  constexpr double kLongest = 3600.0;
  constexpr std::array<std::pair<std::string_view, WebManner>, 9> kNames{
      {{"whole", WebManner::Whole},
       {"silent", WebManner::Silent},
       {"slow", WebManner::Slow},
       {"cut", WebManner::Cut},
       {"endless", WebManner::Endless},
       {"empty", WebManner::Empty},
       {"binary", WebManner::Binary},
       {"huge", WebManner::Huge},
       {"no-data", WebManner::NoData}}};
  const std::size_t colon = text.find(':');
  const bool has_number = colon != std::string_view::npos;
  const std::string_view name = text.substr(0, colon);
  const std::string_view number = has_number ? text.substr(colon + 1) : std::string_view();
  const auto found = std::find_if(kNames.begin(), kNames.end(),
                                  [name](const auto& row) { return row.first == name; });
  if (found == kNames.end()) return std::nullopt;
  const bool wants_number = found->second == WebManner::Slow || found->second == WebManner::Cut;
  if (has_number != wants_number) return std::nullopt;
  if (has_number && (number.empty() || !IsNumericField(number))) return std::nullopt;
  const double value = std::min(Val(number), found->second == WebManner::Slow ? kLongest : 1e9);
  return WebManners{found->second, value, static_cast<std::size_t>(value)};
}

std::optional<WebAnswer> WebPageOf(std::string_view target, const LocalTime& now,
                                   const WebManners& manners) {
  const std::size_t question = std::min(target.find('?'), target.size());
  const std::string_view query = target.substr(std::min(question + 1, target.size()));
  for (const Path& path : kPaths) {
    if (target.substr(0, question) != path.Name) continue;
    WebAnswer answer = path.Page(query, SecondsOf(now));
    Spoil(manners, answer);
    return answer;
  }
  return std::nullopt;
}

}  // namespace zepril
