// Pages of the stand-in's databases, and the manners in which they come.
#include "tool/web_pages.h"

#include <gtest/gtest.h>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr LocalTime kNow{2024, 5, 14, 12, 35, 0};

WebAnswer PageOf(const std::string& target, const WebManners& manners = {}) {
  const auto page = WebPageOf(target, kNow, manners);
  EXPECT_TRUE(page) << target;
  return page.value_or(WebAnswer{});
}

int LinesIn(const std::string& text) {
  return static_cast<int>(Split(text, '\n').size()) - 1;
}

TEST(WebPages, TellOfAnyStationsPackets) {
  const WebAnswer page = PageOf("/aprs/raw?callsign=QX7GW-9&seconds=7200");
  EXPECT_EQ(page.Status, 200);
  EXPECT_EQ(LinesIn(page.Body), 12);
  EXPECT_TRUE(page.Body.starts_with("2024-05-14 10:40:00 QX7GW-9>APRS,WIDE1-1*,qAR,QX7AB:!52"))
      << page.Body;
  EXPECT_EQ(LinesIn(PageOf("/aprs/raw?callsign=A&seconds=99999999").Body), 432);
}

TEST(WebPages, TellOfThemInTheOtherFormToo) {
  const WebAnswer page = PageOf("/cgi-bin/raw.cgi?call=QX7GW&start=1&time=1");
  EXPECT_NE(page.Body.find("RAW DATA: QX7GW\r\n20240514114000,QX7GW>APRS,"), std::string::npos)
      << page.Body;
}

TEST(WebPages, TellOfAnyArea) {
  const WebAnswer page = PageOf("/aprs/area?lat=-33.5&lon=151.25&distance=100000&seconds=3600");
  EXPECT_TRUE(page.Body.starts_with(R"([{"callsign":"QX7AA","type":"S",)")) << page.Body;
  EXPECT_NE(page.Body.find(R"("lat":-33.)"), std::string::npos);
  EXPECT_NE(page.Body.find(R"("lon":151.)"), std::string::npos);
  EXPECT_NE(page.Body.find(R"("callsign":"QX7AZ")"), std::string::npos);
}

TEST(WebPages, OtherPathsAreNone) {
  for (const char* target : {"/", "", "/aprs", "/aprs/rawx", "/cgi-bin/sendmsg.cgi?msg=x"})
    EXPECT_FALSE(WebPageOf(target, kNow, {})) << target;
}

TEST(WebManners, HaveNames) {
  EXPECT_EQ(WebMannersNamed("whole")->Kind, WebManner::Whole);
  EXPECT_EQ(WebMannersNamed("endless")->Kind, WebManner::Endless);
  EXPECT_EQ(WebMannersNamed("slow:2.5")->Seconds, 2.5);
  EXPECT_EQ(WebMannersNamed("cut:100")->Bytes, 100U);
  for (const char* name : {"", "kind", "slow", "slow:", "slow:x", "cut", "whole:1", "huge:2"})
    EXPECT_FALSE(WebMannersNamed(name)) << name;
}

TEST(WebManners, SpoilThePages) {
  const std::string target = "/aprs/raw?callsign=QX7GW&seconds=3600";
  const auto spoilt = [&target](const char* name) {
    return PageOf(target, WebMannersNamed(name).value_or(WebManners{}));
  };
  EXPECT_TRUE(spoilt("silent").Silent);
  EXPECT_EQ(spoilt("slow:3").Seconds, 3.0);
  EXPECT_EQ(spoilt("cut:7").CutAt, 7U);
  EXPECT_EQ(spoilt("endless").MoreBytes, WebAnswer::kEndless);
  EXPECT_EQ(spoilt("huge").MoreBytes, 100'000'000U);
  EXPECT_EQ(spoilt("empty").Body, "");
  EXPECT_NE(spoilt("binary").Body.find('\0'), std::string::npos);
  EXPECT_EQ(spoilt("no-data").Body, "No data found for this station");
}

}  // namespace
}  // namespace zepril
