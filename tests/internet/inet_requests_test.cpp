// The addresses of both databases, and how far back they ask.
#include "internet/inet_requests.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

constexpr LocalTime kNow{2024, 5, 14, 12, 30, 0};

TEST(HoursToAsk, WithoutARecordThreeDays) {
  EXPECT_EQ(HoursToAsk("", kNow), 72);
}

TEST(HoursToAsk, WholeHoursSinceTheNewestRecordAndOneMore) {
  EXPECT_EQ(HoursToAsk("240514 0730", kNow), 6);
  EXPECT_EQ(HoursToAsk("240514 0731", kNow), 5);
  EXPECT_EQ(HoursToAsk("240514 1230", kNow), 1);
  EXPECT_EQ(HoursToAsk("240514 1129", kNow), 2);
}

TEST(HoursToAsk, NeverMoreThanThreeDaysNorLessThanAnHour) {
  EXPECT_EQ(HoursToAsk("240510 0830", kNow), 72);
  EXPECT_EQ(HoursToAsk("240511 1330", kNow), 72);
  EXPECT_EQ(HoursToAsk("240511 1430", kNow), 71);
  EXPECT_EQ(HoursToAsk("240514 1900", kNow), 1) << "a record of the future";
  EXPECT_EQ(HoursToAsk("           ", kNow), 72);
  EXPECT_EQ(HoursToAsk("999999 9999", kNow), 1);
}

TEST(HoursToAsk, CountsOverALeapDayAndTheTurnOfAYear) {
  EXPECT_EQ(HoursToAsk("240228 2300", {2024, 3, 1, 1, 0, 0}), 27);
  EXPECT_EQ(HoursToAsk("230228 2300", {2023, 3, 1, 1, 0, 0}), 3);
  EXPECT_EQ(HoursToAsk("231231 2330", {2024, 1, 1, 0, 30, 0}), 2);
}

TEST(RawAddress, OfTheRestServiceCountsSeconds) {
  EXPECT_EQ(RawAddress(InternetSource::RestService, "http://h", "QX7GW", 6),
            "http://h/aprs/raw?callsign=QX7GW&seconds=21600");
  EXPECT_EQ(RawAddress(InternetSource::RestService, "http://h", " qx7gw-9 ", 72),
            "http://h/aprs/raw?callsign=qx7gw-9&seconds=259200");
}

TEST(RawAddress, OfTheCgiServiceCountsHours) {
  EXPECT_EQ(RawAddress(InternetSource::CgiService, "http://h", "QX7GW", 6),
            "http://h/cgi-bin/raw.cgi?call=QX7GW&start=6&time=1");
  EXPECT_EQ(RawAddress(InternetSource::CgiService, "http://h", "QX7GW", 72),
            "http://h/cgi-bin/raw.cgi?call=QX7GW&start=72&time=1");
}

TEST(AreaAddress, TellsTheCentreInUpToFifteenDigitsWithoutAZeroBeforeThePoint) {
  EXPECT_EQ(AreaAddress("http://h", {13.4052, 52.5}),
            "http://h/aprs/area?lat=52.5&lon=13.4052&distance=100000&seconds=3600");
  EXPECT_EQ(AreaAddress("http://h", {-0.25, 0.5}),
            "http://h/aprs/area?lat=.5&lon=-.25&distance=100000&seconds=3600");
  EXPECT_EQ(AreaAddress("http://h", {13.123456789012345, 52.0}),
            "http://h/aprs/area?lat=52&lon=13.1234567890123&distance=100000&seconds=3600");
}

TEST(HostOf, IsThatOfTheSource) {
  ServicesState services;
  services.AprsCgiService = "http://cgi";
  services.AprsRestService = "http://rest";
  EXPECT_EQ(HostOf(services, InternetSource::RestService), "http://rest");
  EXPECT_EQ(HostOf(services, InternetSource::CgiService), "http://cgi");
}

}  // namespace
}  // namespace zepril
