// The pages of the stand-in's station databases: packets of any station, the stations of any area,
// and the manners of servers that do not behave.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "tool/web_server.h"

namespace zepril {

// How the pages come.
enum class WebManner { Whole, Silent, Slow, Cut, Endless, Empty, Binary, Huge, NoData };

struct WebManners {
  WebManner Kind = WebManner::Whole;
  double Seconds = 0.0;   // of a slow page, from its first to its last byte
  std::size_t Bytes = 0;  // of a page that is cut
};

// "whole", "silent", "slow:SECONDS", "cut:BYTES", "endless", "empty", "binary", "huge", "no-data";
// nothing for any other word.
std::optional<WebManners> WebMannersNamed(std::string_view text);

// A request by its path and query, at a time in UTC; nothing for a path that is none of these:
//   /aprs/raw?callsign=QX7GW&seconds=3600      a line each ten minutes
//   /cgi-bin/raw.cgi?call=QX7GW&start=1&time=1
//   /aprs/area?lat=52.5&lon=13.4               stations around the point
std::optional<WebAnswer> WebPageOf(std::string_view target, const LocalTime& now,
                                   const WebManners& manners);

}  // namespace zepril
