// Addresses of web maps, the globe's file with any bytes in its label, and copied coordinates.
#include "viewers/outside_links.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <random>
#include <string>

namespace zepril {
namespace {

constexpr const char* kHost = "https://maps.example";

MapViewState ViewAt(double north_km, double east_km) {
  MapViewState view;
  view.CentreNorthKm = north_km;
  view.CentreEastKm = east_km;
  return view;
}

OutsidePlace PlaceAt(double north_km, double east_km) {
  return PlaceOfCentre(ViewAt(north_km, east_km));
}

TEST(OutsideLinks, DegreesHaveSevenDecimalsAndADigitBeforeThePoint) {
  EXPECT_EQ(DegreesText(0.5), "0.5000000");
  EXPECT_EQ(DegreesText(-0.5), "-0.5000000");
  EXPECT_EQ(DegreesText(48.55007722), "48.5500772");
  EXPECT_EQ(DegreesText(0.0), "0.0000000");
  EXPECT_EQ(DegreesText(-0.00000001), "0.0000000");
  EXPECT_EQ(DegreesText(-180.0), "-180.0000000");
}

TEST(OutsideLinks, EachWebMapHasItsAddress) {
  const OutsidePlace place = PlaceAt(5378.123, 412.345);
  EXPECT_EQ(GoogleMapsUrl(kHost, place),
            "https://maps.example/maps/@48.5500772,13.8122373,1008m/data=!3m1!1e3");
  EXPECT_EQ(MinKartaUrl(kHost, place),
            "https://maps.example/?e=412345&n=5378123&z=12&background=2&boundaries=false");
  EXPECT_EQ(
      NorgeskartUrl(kHost, place),
      "https://maps.example/#!?project=norgeskart&layers=1003&zoom=14&lat=5378123&lon=412345");
  EXPECT_EQ(KarttapaikkaUrl(kHost, PlaceAt(6711.901, 1050.176)),
            "https://maps.example/karttapaikka/?share=customMarker&n=6672127&e=385700&title=&desc="
            "&zoom=11&layers=%5B%7B%22id%22%3A3%2C%22opacity%22%3A100%7D%5D&lang=sv");
}

TEST(OutsideLinks, WholeMetresAreTheNearest) {
  EXPECT_EQ(PlaceAt(5817.860, 391.753).EastMetres, "391753");
  EXPECT_EQ(PlaceAt(5395.276, -10.523).EastMetres, "-10523");
}

TEST(OutsideLinks, TheGlobesFileIsWrittenLineByLine) {
  const OutsidePlace place = PlaceAt(5378.123, 412.345);
  EXPECT_EQ(PlaceLabel(place), "48.5500772  13.8122373");
  EXPECT_EQ(GlobeFile(PlaceLabel(place), place),
            "<kml>\r\n<Placemark>\r\n<name> 48.5500772  13.8122373</name>\r\n<Point>\r\n"
            "<coordinates>13.8122373,48.5500772</coordinates>\r\n</Point>\r\n</Placemark>\r\n"
            "</kml>\r\n");
}

TEST(OutsideLinks, ALabelOfAnyBytesLeavesTheFileWhole) {
  const OutsidePlace place = PlaceAt(5378.123, 412.345);
  EXPECT_NE(GlobeFile("QX7KB  24\xB0 <a> & b", place)
                .find("<name> QX7KB  24\xC2\xB0 &lt;a&gt; &amp; b</name>"),
            std::string::npos);
  std::string every;
  for (int byte = 0; byte < 256; ++byte)
    every += static_cast<char>(byte);
  const std::string file = GlobeFile(every, place);
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'), 8);
  EXPECT_EQ(std::count(file.begin(), file.end(), '<'), 10);
  EXPECT_EQ(file.find('\0'), std::string::npos);
  EXPECT_EQ(file.find('\x7F'), std::string::npos);
  EXPECT_EQ(file.find('\x1B'), std::string::npos);
}

void ExpectPlace(const std::optional<Geodetic>& place, double lat, double lon) {
  ASSERT_TRUE(place);
  EXPECT_NEAR(place->Lat, lat, 1e-9);
  EXPECT_NEAR(place->Lon, lon, 1e-9);
}

TEST(OutsideLinks, WhatTheGlobeCopiesIsReadInDegreesMinutesAndSeconds) {
  ExpectPlace(PlaceInGlobeText("52\xB0"
                               "30'14.76\"N 13\xB0"
                               "24'18.72\"E"),
              52.5041, 13.4052);
  ExpectPlace(PlaceInGlobeText("Google Eart 52\xB0"
                               "30'14.76\"N  13\xB0"
                               "24'18.72\"E"),
              52.5041, 13.4052);
  ExpectPlace(PlaceInGlobeText("52\xB0"
                               "30'N 13\xB0"
                               "24'E"),
              52.5, 13.4);
  ExpectPlace(PlaceInGlobeText("52.25\xB0 N 13.75\xB0 E"), 52.25, 13.75);
  ExpectPlace(PlaceInGlobeText("33\xB0"
                               "30'S 70\xB0"
                               "40'30\"W"),
              -33.5, -70.675);
  ExpectPlace(PlaceInGlobeText("33\xB0"
                               "30's 70\xB0"
                               "40'v"),
              -33.5, -70.0 - 40.0 / 60.0);
}

TEST(OutsideLinks, SignsCommasAndWordsBehindACoordinateAreToldApart) {
  ExpectPlace(PlaceInGlobeText("48.55\xB0 -13.81\xB0"), 48.55, -13.81);
  ExpectPlace(PlaceInGlobeText("-48.55\xB0, 13.81\xB0"), -48.55, 13.81);
  ExpectPlace(PlaceInGlobeText("48,55\xB0 13,81\xB0"), 48.55, 13.81);
  ExpectPlace(PlaceInGlobeText("52\xB0"
                               "30'14,76\"N, 13\xB0"
                               "24'18,72\"E, Wedding"),
              52.5041, 13.4052);
  ExpectPlace(PlaceInGlobeText("54\xB0"
                               "30'N Ostsee 13\xB0"
                               "30'E Vogelinsel"),
              54.5, 13.5);
}

TEST(OutsideLinks, ATextWithoutTwoCoordinatesIsNoPlace) {
  for (const char* text : {"", "hello",
                           "52\xB0"
                           "30'N",
                           "0\xB0N 13\xB0"
                           "E",
                           "52\xB0N 0\xB0"
                           "E",
                           "91\xB0N 13\xB0"
                           "E",
                           "52\xB0N 181\xB0"
                           "E",
                           "\xB0\xB0", "'\"'\"", "52.5 13.4"})
    EXPECT_EQ(PlaceInGlobeText(text).has_value(), false) << text;
  EXPECT_FALSE(PlaceInGlobeText(std::string(5000, ' ') + "52\xB0N 13\xB0"
                                                         "E"));
}

TEST(OutsideLinks, AnAddressIsReadBehindItsSign) {
  ExpectPlace(PlaceInMapAddress("https://www.maps.example/maps/@48.55,13.81,1008m/data=!3m1!1e3"),
              48.55, 13.81);
  ExpectPlace(PlaceInMapAddress("x@-33.5,-70.25,15z"), -33.5, -70.25);
  for (const char* text : {"", "48.55,13.81,", "@48.55,13.81", "@48.55", "@,,", "@0,13,", "@95,13,",
                           "@a,b,c", "@48.55,1e400,"})
    EXPECT_FALSE(PlaceInMapAddress(text)) << text;
}

TEST(OutsideLinks, AReadPlaceIsTheCentreToTheMetre) {
  const auto globe = PlaceInGlobeText(
      "52\xB0"
      "30'14.76\"N 13\xB0"
      "24'18.72\"E");
  ASSERT_TRUE(globe);
  const CentreKm centre = CentreAt(*globe, {});
  EXPECT_EQ(centre.North, 5818.303);
  EXPECT_EQ(centre.East, 391.754);
}

// Nothing that somebody may have copied breaks the readers, nor leads off the earth.
TEST(OutsideLinks, NoiseIsNoPlaceOrOneOnEarth) {
  std::mt19937 random(3);
  const std::string letters = "0123456789.,@-'\"\xB0 NSWVEe+";
  for (int made = 0; made < 100000; ++made) {
    std::string text;
    for (auto length = random() % 40; length > 0; --length)
      text += letters[random() % letters.size()];
    for (const auto& place : {PlaceInGlobeText(text), PlaceInMapAddress(text)}) {
      if (!place) continue;
      ASSERT_LE(std::abs(place->Lat), 90.0) << text;
      ASSERT_LE(std::abs(place->Lon), 180.0) << text;
    }
  }
}

}  // namespace
}  // namespace zepril
