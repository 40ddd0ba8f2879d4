// Tracks and places in a whole station: from the configuration onto the map and back.
#include <gtest/gtest.h>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr const char* kTrack =
    "\xFE 5800.000  400.000 20240514 1230\r\n\xFE 5801.000  401.000 20240514 1231\r\n";
constexpr const char* kPlaces = "\xFE 5700.000  400.000  LAKE\r\n\xFE 5800.000  400.000  HUT\r\n";

struct PlacesStation : StationHarness {
  explicit PlacesStation(const std::string& settings = "TRKF=20240514\r\nPOIF=HUTS\r\n")
      : StationHarness(settings) {
    files.MakeFolder(R"(C:\ZEPRIL\U33\TRK)");
    files.MakeFolder(R"(C:\ZEPRIL\U33\POI)");
    files.Write(R"(C:\ZEPRIL\U33\TRK\20240514.TRK)", kTrack);
    files.Write(R"(C:\ZEPRIL\U33\POI\HUTS.POI)", kPlaces);
    EXPECT_TRUE(Start());
    Ticks(1);
  }
  // 50 m a pixel around the track and one of the places, without stations.
  void ShowAround() {
    State().Map.MapTileKm = 50.0;
    State().Map.CentreNorthKm = 5800.0;
    State().Map.CentreEastKm = 400.0;
    State().Map.CentreFollow = Following::Nobody;
    State().Map.StationLabelLevel = LabelLevel::NoStations;
    map_surface.Operations.clear();
    Controls().Map.Command9.Click();
  }
};

TEST(TracksAndPlaces, OfTheLastRunAreOnTheMapOnceSwitchedOn) {
  PlacesStation station;
  EXPECT_EQ(station.Controls().Tracks.Combo1.Text, "20240514");
  EXPECT_EQ(station.Controls().Places.Combo2.Text, "HUTS");
  station.ShowAround();
  EXPECT_FALSE(station.DrewText("20240514 1231"));
  EXPECT_FALSE(station.DrewText("HUT"));
  station.Controls().Map.Check14.Value = 1;
  station.Controls().Map.Check14.Click();
  station.Controls().Map.Command73.Click();
  station.Controls().Map.Command73.Click();
  EXPECT_TRUE(station.DrewText("20240514 1231"));
  EXPECT_TRUE(station.DrewText("HUT"));
}

TEST(TracksAndPlaces, APlaceUnderARightPressIsRenamedInItsFile) {
  PlacesStation station;
  station.ShowAround();
  station.Controls().Map.Command73.Click();
  const double x = station.State().Map.ViewWidthPx / 2.0;
  const double y = station.State().Map.ViewHeightPx / 2.0 - 1.0;
  station.Controls().Map.Picture1.MouseDown({2, 0, x, y});
  ASSERT_TRUE(station.Controls().Places.PoiPanel.Visible);
  EXPECT_EQ(station.Controls().Places.Text4.Text, "HUT");
  station.Controls().Map.Picture1.MouseUp({2, 0, x, y});
  // The cycle goes on; the panel stays as the operator left it.
  station.Controls().Places.Text4.Text = "CABIN";
  station.Ticks(3);
  EXPECT_EQ(station.Controls().Places.Text4.Text, "CABIN");
  station.Controls().Places.Text4.KeyDown({13, 0});
  EXPECT_EQ(station.File("U33\\POI\\HUTS.POI"),
            "\xFE 5700.000  400.000  LAKE\r\n\xFE 5800.000  400.000 CABIN\r\n");
  EXPECT_FALSE(station.Controls().Places.PoiPanel.Visible);
}

TEST(TracksAndPlaces, FilesThatAreChosenComeBackAfterARestart) {
  PlacesStation station("");
  station.Controls().Tracks.Command69.Click();
  station.Controls().Places.Combo2.Text = "lakes";
  station.Controls().Places.Combo2.KeyDown({13, 0});
  EXPECT_NE(station.File("ZEPRIL.INI").find("\r\nTRKF=20240514\r\n"), std::string::npos);
  EXPECT_NE(station.File("ZEPRIL.INI").find("\r\nPOIF=LAKES\r\n"), std::string::npos);
  station.Restart();
  EXPECT_EQ(station.State().Places.TrackPoints.Count(), 2);
  EXPECT_EQ(station.Controls().Places.Combo2.Text, "LAKES");
}

TEST(TracksAndPlaces, TheEndOfATrackIsCentredAndNoLongerFollowed) {
  PlacesStation station;
  station.Controls().Map.Option1.Click();
  ASSERT_EQ(station.State().Map.CentreFollow, Following::OwnPosition);
  station.Controls().Tracks.Frame10.Click();
  EXPECT_DOUBLE_EQ(station.State().Map.CentreNorthKm, 5801.0);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(station.Controls().Map.Option1.Value);
}

TEST(TracksAndPlaces, ANewPlaceSwitchesPlacesOn) {
  PlacesStation station;
  station.ShowAround();
  ASSERT_EQ(station.State().Map.PoiLevel, 0);
  station.Controls().Places.PoiNew.Click();
  station.Controls().Places.Text4.Text = "SHELTER";
  station.Controls().Places.PoiOk.Click();
  EXPECT_EQ(station.State().Map.PoiLevel, 2);
  EXPECT_EQ(station.Controls().Map.Command73.Caption, "POI 2");
  EXPECT_TRUE(station.DrewText("SHELTER"));
  // A level that was chosen stays.
  station.Controls().Map.Command73.Click();
  station.Controls().Map.Command73.Click();
  ASSERT_EQ(station.State().Map.PoiLevel, 1);
  station.Controls().Places.PoiNew.Click();
  station.Controls().Places.Text4.Text = "SECOND";
  station.Controls().Places.PoiOk.Click();
  EXPECT_EQ(station.State().Map.PoiLevel, 1);
}

}  // namespace
}  // namespace zepril
