// Words the queries; how far back follows from the newest record.
#include "internet/inet_requests.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::int64_t kSecondsPerHour = 3600;

int Number(std::string_view text) {
  return static_cast<int>(ToWhole(Val(text)));
}

}  // namespace

const std::string& HostOf(const ServicesState& services, InternetSource source) {
  return source == InternetSource::CgiService ? services.AprsCgiService : services.AprsRestService;
}

LocalTime TimeOfRecord(std::string_view date_and_time) {
  constexpr int kCentury = 2000;
  return {kCentury + Number(Mid(date_and_time, 1, 2)),
          Number(Mid(date_and_time, 3, 2)),
          Number(Mid(date_and_time, 5, 2)),
          Number(Mid(date_and_time, 8, 2)),
          Number(Mid(date_and_time, 10, 2)),
          0};
}

int HoursToAsk(std::string_view newest, const LocalTime& now) {
  if (newest.empty()) return kMostHoursAsked;
  const std::int64_t age = SecondsOf(now) - SecondsOf(TimeOfRecord(newest));
  const std::int64_t hours = std::max<std::int64_t>(age, 0) / kSecondsPerHour + 1;
  return static_cast<int>(std::min<std::int64_t>(hours, kMostHoursAsked));
}

std::string RawAddress(InternetSource source, std::string_view host, std::string_view call,
                       int hours) {
  const std::string station(Trim(call));
  if (source == InternetSource::CgiService) {
    return std::string(host) + "/cgi-bin/raw.cgi?call=" + station + "&start=" + WholeNumber(hours) +
           "&time=1";
  }
  return std::string(host) + "/aprs/raw?callsign=" + station +
         "&seconds=" + WholeNumber(hours * kSecondsPerHour);
}

std::string AreaAddress(std::string_view host, const Geodetic& centre) {
  return std::string(host) + "/aprs/area?lat=" + ShortNumber(centre.Lat) +
         "&lon=" + ShortNumber(centre.Lon) + "&distance=100000&seconds=3600";
}

}  // namespace zepril
