// Pictures and the sun in a running station, and saving its map.
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

// A station with two pictures and a clip around the centre of its map.
struct PictureStation : StationHarness {
  PictureStation() {
    files.MakeFolder("C:\\ZEPRIL\\U33\\UTMPICS");
    for (const char* name : {"57000400.BMP", "58000400.BMP", "60000400.AVI"})
      files.Write(std::string("C:\\ZEPRIL\\U33\\UTMPICS\\") + name, "bytes");
    Start();
    Controls().Map.Check12.Value = 1;
    Controls().Map.Check12.Click();
  }
  void Press(int button, double x, double y) {
    Controls().Map.Picture1.MouseMove({0, 0, x, y});
    Controls().Map.Picture1.MouseDown({button, 0, x, y});
  }
  void Release() { Controls().Map.Picture1.MouseUp({2, 0, 0, 0}); }
  // The pixel of a position.
  double X(double east_km) { return (east_km - State().Map.ViewWestKm) * State().Map.PixelsPerKm; }
  double Y(double north_km) {
    return (State().Map.ViewNorthKm - north_km) * State().Map.PixelsPerKm;
  }
  void OpenPicture() {
    Press(2, X(400.0), Y(5800.0));
    Release();
  }
  bool Painted(const std::string& kind, Colour ink) const {
    return std::any_of(
        map_surface.Operations.begin(), map_surface.Operations.end(),
        [&](const auto& operation) { return operation.Kind == kind && operation.Ink == ink; });
  }
};

TEST(PicturePanel, ARightPressOnAMarkShowsThePicture) {
  PictureStation station;
  station.State().Map.CentreFollow = Following::OwnPosition;
  station.Controls().Map.Option1.Value = true;
  station.OpenPicture();
  const PicturePanelControls& panel = station.Controls().Picture;
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Picture);
  EXPECT_TRUE(panel.Frame8.Visible);
  EXPECT_EQ(panel.PictureName.Caption, "2 / 3  58000400.BMP");
  EXPECT_EQ(panel.Picture.Path, "C:\\ZEPRIL\\U33\\UTMPICS\\58000400.BMP");
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(station.Controls().Map.Option1.Value);
  EXPECT_EQ(station.map_surface.Operations.back().Kind, "clear");
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_EQ(station.program->Timer1().IntervalMs(), 30000);
  EXPECT_FALSE(station.Controls().Sun.SunPanel.Visible);
  EXPECT_NE(station.File("PIC.HTM").find("58000400.BMP\">\r\n</center>"), std::string::npos);
}

TEST(PicturePanel, StaysWhileStationsAreHeard) {
  PictureStation station;
  station.OpenPicture();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.clock.Run(29.0);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  station.clock.Run(10.0);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_EQ(station.program->Timer1().IntervalMs(), 6000);
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Picture);
  EXPECT_TRUE(station.Controls().Picture.Frame8.Visible);
  EXPECT_EQ(station.Controls().Picture.Picture.Revision, 1u);
}

TEST(PicturePanel, AClickOnThePictureCentresTheMapWhereItWasTaken) {
  PictureStation station;
  station.OpenPicture();
  station.map_surface.Operations.clear();
  station.Controls().Picture.Picture.Click();
  EXPECT_DOUBLE_EQ(station.State().Map.CentreNorthKm, 5800.499);
  EXPECT_DOUBLE_EQ(station.State().Map.CentreEastKm, 400.499);
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  EXPECT_TRUE(station.Painted("line", 0x00FFFF));  // the mark of a centre that follows nothing
}

TEST(PicturePanel, TheNextStartOpensWhereThePictureWasTaken) {
  PictureStation station;
  station.Hear("QX1AB-9", "=5231.00N/01324.00E>drive");
  station.Ticks(1);
  ASSERT_EQ(station.State().Stores.Moni1Records.Count(), 1);
  station.State().Map.StationLabelLevel = LabelLevel::NoStations;
  station.OpenPicture();
  station.Controls().Picture.Picture.Click();
  station.Restart();
  EXPECT_DOUBLE_EQ(station.State().Map.CentreNorthKm, 5800.499);
  EXPECT_DOUBLE_EQ(station.State().Map.CentreEastKm, 400.499);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(station.Controls().Map.Option2.Value);
}

TEST(PicturePanel, StepsThroughThePicturesAndCloses) {
  PictureStation station;
  station.OpenPicture();
  station.Controls().Picture.Command30.Click();
  EXPECT_EQ(station.Controls().Picture.PictureName.Caption, "3 / 3  60000400.AVI");
  EXPECT_EQ(station.Controls().Picture.Picture.Path, "");
  station.Controls().Picture.Command30.Click();
  EXPECT_EQ(station.Controls().Picture.PictureName.Caption, "1 / 3  57000400.BMP");
  station.map_surface.Operations.clear();
  station.Controls().Picture.Command71.Click();
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  EXPECT_TRUE(station.Painted("line", 0x00FFFF));
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST(PicturePanel, CentreButtonAndFollowOptionsCloseIt) {
  PictureStation station;
  MapControls& map = station.Controls().Map;
  for (const Event<>* closes : {&map.Command12.Click, &map.Option1.Click, &map.Option2.Click}) {
    station.State().Map.CentreNorthKm = 5800.0;
    station.State().Map.CentreEastKm = 400.0;
    station.State().Map.CentreFollow = Following::Nobody;
    station.State().Map.PictureMode = MapShows::Map;
    station.Controls().Map.Command9.Click();
    station.OpenPicture();
    ASSERT_TRUE(station.Controls().Picture.Frame8.Visible);
    (*closes)();
    EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
    EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  }
}

TEST(PicturePanel, ZoomAndDimLeaveThePictureShown) {
  PictureStation station;
  station.OpenPicture();
  station.Controls().Map.Command7.Click();
  station.Controls().Map.Command72.Click();
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Picture);
  EXPECT_TRUE(station.Controls().Picture.Frame8.Visible);
  EXPECT_EQ(station.Controls().Picture.Picture.Revision, 1u);
  EXPECT_EQ(station.State().Map.ZoomFactor, 2.0);
}

TEST(PicturePanel, GoesWithWhateverEndsThePicture) {
  PictureStation station;
  station.OpenPicture();
  station.State().Map.PictureMode = MapShows::Map;
  station.Controls().Map.Command9.Click();
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
}

TEST(PicturePanel, IsClosedByTheEndOfTheProgram) {
  PictureStation station;
  station.OpenPicture();
  station.program->Stop(true);
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  EXPECT_EQ(station.Controls().Picture.Picture.Path, "");
}

TEST(PicturePanel, ThePicturesAreNotLookedUpWhenTheyAreNotShown) {
  PictureStation station;
  station.Controls().Map.Check12.Value = 0;
  station.Controls().Map.Check12.Click();
  station.OpenPicture();
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
}

TEST(SunPanel, OpensWhereNothingIsFollowsThePointerAndGoesOnRelease) {
  PictureStation station;
  const SunControls& sun = station.Controls().Sun;
  EXPECT_FALSE(sun.SunPanel.Visible);
  station.Press(2, 100.0, 100.0);
  EXPECT_TRUE(sun.SunPanel.Visible);
  EXPECT_FALSE(station.sun_surface.Operations.empty());
  EXPECT_EQ(sun.SunNames[0].Caption, "SOL.EL.PWR (Wh/d/m\xB2hor):");
  const std::string title = sun.SunTitle.Caption;
  EXPECT_EQ(title.substr(0, 23), "2024-01-15  SUN CURVE  ");
  const auto revision = sun.SunPlot.Revision;
  station.Controls().Map.Picture1.MouseMove({0, 0, 300.0, 400.0});
  EXPECT_NE(sun.SunTitle.Caption, title);
  EXPECT_GT(sun.SunPlot.Revision, revision);
  station.Release();
  EXPECT_FALSE(sun.SunPanel.Visible);
  station.Controls().Map.Picture1.MouseMove({0, 0, 310.0, 400.0});
  EXPECT_FALSE(sun.SunPanel.Visible);
}

TEST(SunPanel, OpensInANarrowWindowWithoutAnyLookup) {
  PictureStation station;
  station.Controls().Window.WidthPx = 629;
  station.Press(2, station.X(400.0), station.Y(5800.0));
  EXPECT_TRUE(station.Controls().Sun.SunPanel.Visible);
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST(SunPanel, StaysAwayWhereALookupHits) {
  PictureStation station;
  station.OpenPicture();
  EXPECT_EQ(station.Controls().Sun.SunPlot.Revision, 0u);
}

TEST(SaveMapWindow, IsAskedNumberedAndTurnsMissingTilesWhite) {
  PictureStation station;
  EXPECT_TRUE(station.Painted("filled", 0x505050));
  station.dialogs.Expect("ZEP RIL",
                         "SAVE MAP WINDOW TO FILE...  C:\\ZEPRIL\\MY_MAPS\\MAP_0001.BMP");
  station.map_surface.Operations.clear();
  station.Controls().Map.Command59.Click();
  EXPECT_EQ(station.File("MY_MAPS\\MAP_0001.BMP").substr(0, 2), "BM");
  EXPECT_TRUE(station.Painted("filled", 0xFFFFFF));
  EXPECT_FALSE(station.Painted("filled", 0x505050));
  EXPECT_TRUE(station.program->Timer1().Enabled());
  station.dialogs.Expect("ZEP RIL", "SAVE MAP WINDOW TO FILE...  C:\\ZEPRIL\\MY_MAPS\\MAP_0002.BMP",
                         DialogAnswer::Cancel);
  station.Controls().Map.Command59.Click();
  EXPECT_EQ(station.File("MY_MAPS\\MAP_0002.BMP"), "(missing)");
  // Until the end of the run.
  station.Restart();
  station.map_surface.Operations.clear();
  station.Controls().Map.Command9.Click();
  EXPECT_TRUE(station.Painted("filled", 0x505050));
}

TEST(SaveMapWindow, ClosesThePictureInFrontOfTheMap) {
  PictureStation station;
  station.OpenPicture();
  station.dialogs.Expect("ZEP RIL",
                         "SAVE MAP WINDOW TO FILE...  C:\\ZEPRIL\\MY_MAPS\\MAP_0001.BMP");
  station.Controls().Map.Command59.Click();
  EXPECT_FALSE(station.Controls().Picture.Frame8.Visible);
  EXPECT_EQ(station.State().Map.PictureMode, MapShows::Map);
}

}  // namespace
}  // namespace zepril
