// Words the sentences, and spoils them where that is the manner.
#include "tool/gps_route.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr double kMetresPerDegree = 60.0 * 1852.0;

constexpr std::array<std::pair<std::string_view, GpsManner>, 5> kManners{
    {{"rmc", GpsManner::Rmc},
     {"gga", GpsManner::Gga},
     {"mixed", GpsManner::Mixed},
     {"damaged", GpsManner::Damaged},
     {"halves", GpsManner::Halves}}};

std::string ChecksumText(std::string_view body) {
  constexpr std::string_view kHex = "0123456789ABCDEF";
  unsigned sum = 0;
  for (const char c : body)
    sum ^= static_cast<unsigned>(Asc(c));
  return {kHex[sum / 16], kHex[sum % 16]};
}

std::string Sentence(const std::string& body) {
  return "$" + body + "*" + ChecksumText(body) + "\r\n";
}

// "5230.2430": minutes with four decimals behind the degrees.
std::string AngleText(double degrees, std::size_t digits) {
  constexpr double kParts = 10000.0;
  const double whole = RoundHalfEven(std::fabs(degrees) * 60.0 * kParts);
  const double full = Int(whole / (60.0 * kParts));
  const double minutes = (whole - full * 60.0 * kParts) / kParts;
  std::string text = FixedNumber(minutes, 4);
  text.insert(0, std::max<std::size_t>(7, text.size()) - text.size(), '0');
  return ZeroPadded(static_cast<std::int64_t>(full), digits) + text;
}

std::string PlaceText(const GpsPoint& at) {
  return AngleText(at.Lat, 2) + (at.Lat < 0.0 ? ",S," : ",N,") + AngleText(at.Lon, 3) +
         (at.Lon < 0.0 ? ",W" : ",E");
}

std::string TimeText(const LocalTime& utc) {
  return ZeroPadded(utc.Hour, 2) + ZeroPadded(utc.Minute, 2) + ZeroPadded(utc.Second, 2) + ".00";
}

std::string RmcBody(const std::string& talker, const GpsMoment& moment) {
  const LocalTime& utc = moment.Utc;
  const std::string date =
      ZeroPadded(utc.Day, 2) + ZeroPadded(utc.Month, 2) + ZeroPadded(utc.Year % 100, 2);
  return talker + "RMC," + TimeText(utc) + ",A," + PlaceText(moment.At) + "," +
         FixedNumber(moment.Knots, 1) + ",0.0," + date + ",,,A";
}

std::string GgaBody(const std::string& talker, const GpsMoment& moment) {
  return talker + "GGA," + TimeText(moment.Utc) + "," + PlaceText(moment.At) +
         ",1,08,0.9,54.3,M,46.9,M,,";
}

std::string MixedSentences(const GpsMoment& moment) {
  const std::string talker = moment.Count % 2 == 0 ? "GP" : "GN";
  return Sentence(GgaBody(talker, moment)) + Sentence("GPGSV,1,1,11,07,79,048,42") +
         Sentence(talker + "VTG,0.0,T,,M," + FixedNumber(moment.Knots, 1) + ",N," +
                  FixedNumber(moment.Knots * 1.852, 1) + ",K") +
         Sentence(RmcBody(talker, moment));
}

// The first digit of the minutes is another one.
std::string Damaged(std::string sentence) {
  constexpr std::size_t kMinutes = 21;  // of "$GPRMC,hhmmss.00,A,ddmm"
  if (kMinutes < sentence.size()) sentence[kMinutes] = sentence[kMinutes] == '5' ? '1' : '5';
  return sentence;
}

bool IsPlace(const GpsPoint& at) {
  return std::fabs(at.Lat) < 90.0 && std::fabs(at.Lon) <= 180.0;
}

}  // namespace

std::optional<std::vector<GpsPoint>> ReadGpsRoute(std::string_view text) {
  const auto number = [](std::string_view one) {
    const std::string_view digits = one.substr(one.starts_with("-") ? 1 : 0);
    return !digits.empty() && IsNumericField(digits);
  };
  std::vector<GpsPoint> route;
  for (const std::string_view part : Split(text, ';')) {
    const std::vector<std::string_view> pair = Split(part, ',');
    if (pair.size() != 2 || !number(pair[0]) || !number(pair[1])) return std::nullopt;
    route.push_back({Val(pair[0]), Val(pair[1])});
    if (!IsPlace(route.back())) return std::nullopt;
  }
  return route;
}

GpsPoint PointOfRoute(const std::vector<GpsPoint>& route, double metres) {
  for (std::size_t next = 1; next < route.size(); ++next) {
    const GpsPoint& from = route[next - 1];
    const GpsPoint& to = route[next];
    const double narrowing = std::cos(from.Lat * std::numbers::pi / 180.0);
    const double length =
        std::hypot(to.Lat - from.Lat, (to.Lon - from.Lon) * narrowing) * kMetresPerDegree;
    if (metres < length) {
      const double share = metres / length;
      return {from.Lat + (to.Lat - from.Lat) * share, from.Lon + (to.Lon - from.Lon) * share};
    }
    metres -= length;
  }
  return route.empty() ? GpsPoint{} : route.back();
}

std::optional<GpsManner> GpsMannerNamed(std::string_view name) {
  for (const auto& [known, manner] : kManners)
    if (known == name) return manner;
  return std::nullopt;
}

std::string GpsSentences(GpsManner manner, const GpsMoment& moment) {
  constexpr int kDamagedEvery = 3;
  switch (manner) {
    case GpsManner::Gga:
      return Sentence(GgaBody("GP", moment));
    case GpsManner::Mixed:
      return MixedSentences(moment);
    case GpsManner::Damaged:
      if (moment.Count % kDamagedEvery == kDamagedEvery - 1) {
        return Damaged(Sentence(RmcBody("GP", moment)));
      }
      break;
    case GpsManner::Rmc:
    case GpsManner::Halves:
      break;
  }
  return Sentence(RmcBody("GP", moment));
}

std::string GpsTalker::Say(const GpsMoment& moment) {
  const std::string all = std::exchange(rest_, {}) + GpsSentences(manner_, moment);
  if (manner_ != GpsManner::Halves) return all;
  const std::size_t half = GpsSentences(manner_, moment).size() / 2;
  rest_ = all.substr(all.size() - half);
  return all.substr(0, all.size() - half);
}

}  // namespace zepril
