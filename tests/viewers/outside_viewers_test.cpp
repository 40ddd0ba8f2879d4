// What is opened outside for the map's centre, and the place that comes back by the clipboard.
#include "viewers/outside_viewers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr const char* kGlobeFile = R"(C:\ZEPRIL\ZEPRIL.KML)";

class OutsideViewersTest : public ::testing::Test {
 protected:
  OutsideViewersTest() {
    identity.ProgramFolder = R"(C:\ZEPRIL)";
    services.GoogleMaps = "https://g.example";
    services.MinKarta = "https://m.example";
    services.Norgeskart = "https://n.example";
    services.Karttapaikka = "https://k.example";
    view.CentreNorthKm = 5378.123;
    view.CentreEastKm = 412.345;
    clock.OnWait = [this](double seconds, bool pumping) {
      EXPECT_TRUE(pumping);
      waits.push_back(seconds);
    };
    timer1.Arm(6000);
  }

  IdentityState identity;
  FollowedStationState followed;
  StoresState stores;
  ServicesState services;
  MapViewState view;
  ViewerControls controls;
  MapControls map;
  ReadoutControls readouts;
  MemoryFiles disk;
  VirtualClock clock;
  RecordedDesktop desktop;
  RecordedActions actions;
  Timer timer1{6000};
  Timer timer2{3000};
  std::vector<double> waits;
  OutsideViewers viewers{{identity, followed, stores, services, view},
                         {controls, map, readouts},
                         {disk, clock, desktop, actions, timer1, timer2}};
};

TEST_F(OutsideViewersTest, EachWebMapIsOpenedAtTheCentre) {
  controls.GoogleMapsShow.Click();
  controls.MinKarta.Click();
  controls.Norgeskart.Click();
  controls.Karttapaikka.Click();
  EXPECT_THAT(
      desktop.Opened,
      ElementsAre(
          "https://g.example/maps/@48.5500772,13.8122373,1008m/data=!3m1!1e3",
          "https://m.example/?e=412345&n=5378123&z=12&background=2&boundaries=false",
          "https://n.example/#!?project=norgeskart&layers=1003&zoom=14&lat=5378123&lon=412345",
          ::testing::StartsWith("https://k.example/karttapaikka/?share=customMarker&n=")));
  EXPECT_FALSE(controls.ViewerNote.Visible);
  EXPECT_TRUE(timer1.Enabled());
}

TEST_F(OutsideViewersTest, AServiceWithoutAHostSaysSo) {
  services.MinKarta.clear();
  controls.MinKarta.Click();
  EXPECT_THAT(desktop.Opened, IsEmpty());
  EXPECT_TRUE(controls.ViewerNote.Visible);
  EXPECT_EQ(controls.ViewerNote.Caption, "Min Karta has no address in SERVICES.TXT");
  controls.Norgeskart.Click();
  EXPECT_FALSE(controls.ViewerNote.Visible);
}

TEST_F(OutsideViewersTest, TheGlobeGetsAFileAndTheCycleRests) {
  controls.GlobeShow.Click();
  EXPECT_THAT(waits, ElementsAre(0.5, 0.5));
  EXPECT_EQ(disk.Of(kGlobeFile),
            "<kml>\r\n<Placemark>\r\n<name> 48.5500772  13.8122373</name>\r\n<Point>\r\n"
            "<coordinates>13.8122373,48.5500772</coordinates>\r\n</Point>\r\n</Placemark>\r\n"
            "</kml>\r\n");
  ASSERT_EQ(desktop.Opened.size(), 1U);
  EXPECT_TRUE(desktop.Opened[0].starts_with("file://")) << desktop.Opened[0];
  EXPECT_TRUE(desktop.Opened[0].ends_with("ZEPRIL.KML")) << desktop.Opened[0];
  EXPECT_FALSE(timer1.Enabled());
  EXPECT_TRUE(timer2.Enabled());
  EXPECT_EQ(timer2.IntervalMs(), 30000);
}

TEST_F(OutsideViewersTest, AFollowedStationIsNamed) {
  followed.Moni1Call = "QX1AB-9";
  readouts.Label11.Caption = "DIST 12.3 km";
  view.CentreFollow = Following::Station;
  controls.GlobeShow.Click();
  EXPECT_NE(disk.Of(kGlobeFile).find("<name> 48.5500772"), std::string::npos);
  stores.Moni1Records.Append(StationRecord("240514 1230"));
  controls.GlobeShow.Click();
  EXPECT_NE(disk.Of(kGlobeFile).find("<name> QX1AB-9  DIST 12.3 km</name>"), std::string::npos);
  view.CentreFollow = Following::OwnPosition;
  controls.GlobeShow.Click();
  EXPECT_NE(disk.Of(kGlobeFile).find("<name> 48.5500772"), std::string::npos);
}

TEST_F(OutsideViewersTest, AFileThatCannotBeWrittenIsToldAndNoOldOneOpened) {
  disk.Contents[kGlobeFile] = "old";
  disk.NoRoomToReplace = true;
  controls.GlobeShow.Click();
  EXPECT_THAT(desktop.Opened, IsEmpty());
  EXPECT_TRUE(timer1.Enabled());
  EXPECT_FALSE(timer2.Enabled());
  EXPECT_TRUE(
      controls.ViewerNote.Caption.starts_with(std::string(kGlobeFile) + " can't be written: "));
}

TEST_F(OutsideViewersTest, PressedAgainWhileItOpensItOpensOnce) {
  clock.OnWait = [this](double, bool) { controls.GlobeShow.Click(); };
  controls.GlobeShow.Click();
  EXPECT_EQ(desktop.Opened.size(), 1U);
  clock.OnWait = nullptr;
  controls.GlobeShow.Click();
  EXPECT_EQ(desktop.Opened.size(), 2U);
}

TEST_F(OutsideViewersTest, AnOldTimerOfTheKeyboardDoesNotCutTheRestShort) {
  timer2.Arm(2000);
  controls.GlobeShow.Click();
  EXPECT_EQ(timer2.IntervalMs(), 30000);
}

TEST_F(OutsideViewersTest, APlaceCopiedInTheGlobeIsTheCentre) {
  view.CentreFollow = Following::Station;
  map.Option2.Value = true;
  desktop.Clipboard =
      "52\xB0"
      "30'14.76\"N 13\xB0"
      "24'18.72\"E";
  controls.GlobeFetch.Click();
  EXPECT_EQ(view.CentreNorthKm, 5818.303);
  EXPECT_EQ(view.CentreEastKm, 391.754);
  EXPECT_EQ(view.CentreFollow, Following::Nobody);
  EXPECT_FALSE(map.Option1.Value);
  EXPECT_FALSE(map.Option2.Value);
  EXPECT_TRUE(view.ManualMapMove);
  EXPECT_THAT(waits, ElementsAre(0.1));
  EXPECT_THAT(actions.Calls, ElementsAre("redraw"));
}

TEST_F(OutsideViewersTest, TheAddressOfAMapPageIsTheCentre) {
  desktop.Clipboard = "https://g.example/maps/@52.5041,13.4052,1008m/data=!3m1!1e3";
  controls.GoogleMapsFetch.Click();
  EXPECT_EQ(view.CentreNorthKm, 5818.303);
  EXPECT_EQ(view.CentreEastKm, 391.754);
  EXPECT_THAT(actions.Calls, ElementsAre("redraw"));
}

TEST_F(OutsideViewersTest, AnythingElseLeavesTheMapAndSaysWhy) {
  for (const char* text : {"", "hello", "@52.5"}) {
    desktop.Clipboard = text;
    controls.GlobeFetch.Click();
    EXPECT_EQ(controls.ViewerNote.Caption, "no place on the clipboard: copy it in the globe first");
    controls.GoogleMapsFetch.Click();
    EXPECT_EQ(controls.ViewerNote.Caption,
              "no place on the clipboard: copy the page's address first");
  }
  EXPECT_EQ(view.CentreNorthKm, 5378.123);
  EXPECT_THAT(actions.Calls, IsEmpty());
}

}  // namespace
}  // namespace zepril
