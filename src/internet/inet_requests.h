// The addresses by which both station databases are asked: for the packets of one station since its
// newest record, and for all stations of an area.
#pragma once

#include <string>
#include <string_view>

#include "core/state/internet.h"
#include "core/state/services.h"
#include "geodesy/conversions.h"
#include "platform/clock.h"

namespace zepril {

inline constexpr int kMostHoursAsked = 72;

// Host of the packets of one station; empty: the service is off.
const std::string& HostOf(const ServicesState& services, InternetSource source);

// Hours back from `now` that are asked for: the whole hours since the newest record and one more,
// at most kMostHoursAsked. `newest`: columns 1 to 11 of that record, "YYMMDD HHMM", or empty.
int HoursToAsk(std::string_view newest, const LocalTime& now);

//   "http://h/aprs/raw?callsign=QX7GW&seconds=21600"
//   "http://h/cgi-bin/raw.cgi?call=QX7GW&start=6&time=1"
std::string RawAddress(InternetSource source, std::string_view host, std::string_view call,
                       int hours);

//   "http://h/aprs/area?lat=52.5&lon=-.25&distance=100000&seconds=3600"
std::string AreaAddress(std::string_view host, const Geodetic& centre);

// The local time that columns 1 to 11 of a record tell.
LocalTime TimeOfRecord(std::string_view date_and_time);

}  // namespace zepril
