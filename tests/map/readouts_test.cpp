// One place in every system of the three read-outs, and the lines of a station.
#include "map/readouts.h"

#include <gtest/gtest.h>

#include "tests/map/map_world.h"

namespace zepril {
namespace {

struct ReadoutWorld : MapWorld {
  ReadoutWorld() {
    View().CentreNorthKm = 6600.0;
    View().CentreEastKm = 400.0;
    ComputeEdges();
    ZoneOfMap(Room.ReadoutTexts.Values(), State.Identity, State.Map);
  }
  void ComputeEdges() {
    View().MetresPerPixel = 50.0;
    View().PixelsPerKm = 20.0;
  }
  Readouts& Texts() { return Room.ReadoutTexts; }
  std::string Centre() const {
    return Controls.Readouts.Label1.Caption + " / " + Controls.Readouts.Label2.Caption;
  }
  std::string Cursor() const {
    return Controls.Readouts.Label3.Caption + " / " + Controls.Readouts.Label4.Caption;
  }
  std::string Monitor() const {
    return Controls.Readouts.Label7.Caption + " / " + Controls.Readouts.Label8.Caption;
  }
};

TEST(CentreReadout, ShowsTheSamePlaceInFiveSystems) {
  ReadoutWorld world;
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Centre(), "UTMcen 6600.000 / 33! 15  400.000");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "GLLcen 59:31.58 / JO69OM 13:13.93");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "GK cen 6601.506 /   | 12 4569.842");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "UTMcen 6600.000 / 33| 15  400.000");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "RNNcen 6603.500 / RNEcen 1354.407");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.View().CentreDisplayMode, 0);
}

TEST(CentreReadout, FarEastStripsShowTwoDecimalsOfTheEast) {
  ReadoutWorld world;
  world.View().CentreNorthKm = 5761.038;
  world.View().CentreEastKm = 1532.657;
  world.View().CentreDisplayMode = 1;
  world.Texts().CentreReadout();
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "GK cen 5658.258 /   | 30 10484.55");
  EXPECT_EQ(world.Texts().Values().GkEastText, " 10484.55");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Centre(), "UTMcen 5660.115 / 35| 27  694.204");
}

TEST(CentreReadout, ANegativeEastKeepsItsSignInTheFirstColumn) {
  ReadoutWorld world;
  world.View().CentreEastKm = -12.345;
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Centre(), "UTMcen 6600.000 / 33! 15-  12.345");
}

TEST(ZoneOfMap, ItsNameTellsTheMeridian) {
  MapViewState view;
  IdentityState identity;
  const auto meridian = [&](const char* name) {
    identity.MapZoneName = name;
    TakeZone(identity, view);
    return view.MapCentralMeridian;
  };
  EXPECT_EQ(meridian("U60"), 177.0);
  EXPECT_EQ(meridian("U01"), -177.0);
  EXPECT_EQ(meridian("U33"), 15.0);
  EXPECT_EQ(meridian("RT90"), 15.0);  // no zone: as it was
}

TEST(CentreReadout, AMeridianOfFourCharactersLosesItsSign) {
  ReadoutWorld world;
  world.State.Identity.MapZoneName = "U01";
  world.View().MapCentralMeridian = -177.0;
  ZoneOfMap(world.Texts().Values(), world.State.Identity, world.State.Map);
  EXPECT_EQ(world.Texts().Values().MapMeridianText, "-177");
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Centre(), "UTMcen 6600.000 / 01!177  400.000");
}

TEST(CentreReadout, TheMapsOwnSystemLeavesTheDisplayPositionAlone) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 7.0;
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Texts().Values().DisplayLon, 7.0);
  world.View().CentreDisplayMode = 1;
  world.Texts().CentreReadout();
  EXPECT_NEAR(world.Texts().Values().DisplayLon, 13.2322, 0.001);
}

TEST(CursorReadout, TellsThePositionOfThePixel) {
  ReadoutWorld world;
  world.View().CentreNorthKm = 5825.0;
  world.View().CentreEastKm = 425.0;
  world.Texts().CursorReadout(100, 50);
  EXPECT_DOUBLE_EQ(world.View().CursorNorthKm, 5837.45);
  EXPECT_DOUBLE_EQ(world.View().CursorEastKm, 410.0);
  EXPECT_EQ(world.Cursor(), "UTMcrs 5837.450 / 33! 15  410.000");
  world.Texts().CursorReadout(400, 299);
  EXPECT_DOUBLE_EQ(world.View().CursorNorthKm, 5825.0);
  EXPECT_DOUBLE_EQ(world.View().CursorEastKm, 425.0);
}

TEST(CursorReadout, BeyondTheMapTheFieldIsEmpty) {
  ReadoutWorld world;
  world.View().CentreNorthKm = 9999.999;
  world.Texts().CursorReadout(400, 0);
  EXPECT_EQ(world.Cursor(), "UTMcrs / 33! 15  400.000");
}

TEST(CursorReadout, DoesNotMoveTheDisplayPosition) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 7.0;
  world.View().CursorDisplayMode = 1;
  world.Texts().CursorReadout(100, 50);
  EXPECT_EQ(world.Texts().Values().DisplayLon, 7.0);
  EXPECT_EQ(world.Cursor().substr(0, 6), "GLLcrs");
}

TEST(CursorReadout, ShowsTheSamePlaceInFiveSystems) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 13.2;
  ZoneByPosition(world.Texts().Values());
  const std::vector<std::string> expected = {
      "UTMcrs 6600.000 / 33! 15  400.000", "GLLcrs 59:31.58 / JO69OM 13:13.93",
      "GK crs 6601.506 /   | 12 4569.842", "UTMcrs 6600.000 / 33| 15  400.000",
      "RNNcrs 6603.500 / RNEcrs 1354.407"};
  for (std::size_t mode = 0; mode < expected.size(); ++mode) {
    world.View().CursorDisplayMode = static_cast<int>(mode);
    world.Texts().CursorReadout(400, 299);
    EXPECT_EQ(world.Cursor(), expected[mode]);
  }
}

TEST(CursorReadout, BeyondTheMapTheOtherSystemsGoOn) {
  // Only the map's own system has an end.
  ReadoutWorld world;
  world.View().CentreEastKm = 9999.0;
  world.View().CursorDisplayMode = 1;
  world.Texts().CursorReadout(799, 299);
  EXPECT_GT(world.View().CursorEastKm, 9999.999);
  EXPECT_EQ(world.Cursor().substr(0, 6), "GLLcrs");
  EXPECT_EQ(world.Controls.Readouts.Label3.Caption.size(), 15u);
}

TEST(MonitorReadout, ShowsTheSamePlaceInFiveSystems) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 13.2;
  ZoneByPosition(world.Texts().Values());
  world.State.Followed.MonitorNorthKm = 6600.0;
  world.State.Followed.MonitorEastKm = 400.0;
  const std::vector<std::string> expected = {
      "UTMmon 6600.000 / 33! 15  400.000", "GLLmon 59:31.58 / JO69OM 13:13.93",
      "GK mon 6601.506 /   | 12 4569.842", "UTMmon 6600.000 / 33| 15  400.000",
      "RNNmon 6603.500 / RNEmon 1354.407"};
  for (std::size_t mode = 0; mode < expected.size(); ++mode) {
    world.View().MonitorDisplayMode = static_cast<int>(mode);
    world.Texts().MonitorReadout();
    EXPECT_EQ(world.Monitor(), expected[mode]);
  }
}

TEST(MonitorReadout, APositionIsBroughtToWholeMetresAndEndsWithTheMap) {
  ReadoutWorld world;
  world.State.Followed.MonitorNorthKm = 5912.34591;
  world.State.Followed.MonitorEastKm = -12.3454;
  world.Texts().MonitorReadout();
  EXPECT_EQ(world.Monitor(), "UTMmon 5912.346 / 33! 15-  12.346");
  world.State.Followed.MonitorNorthKm = 10000.0;
  world.State.Followed.MonitorEastKm = -10000.0;
  world.Texts().MonitorReadout();
  EXPECT_EQ(world.Monitor(), "UTMmon / 33! 15");
}

TEST(MonitorReadout, TheGaussKruegerCaptionIsNotCut) {
  ReadoutWorld world;
  world.View().CentreNorthKm = 5761.038;
  world.View().CentreEastKm = 1532.657;
  world.View().CentreDisplayMode = 1;
  world.Texts().CentreReadout();
  ZoneByPosition(world.Texts().Values());
  world.State.Followed.MonitorNorthKm = 5761.038;
  world.State.Followed.MonitorEastKm = 1532.657;
  world.View().MonitorDisplayMode = 2;
  world.Texts().MonitorReadout();
  EXPECT_EQ(world.Monitor(), "GK mon 5658.258 /   | 30 10484.55");
}

TEST(MonitorReadout, ShowsTheStationLine) {
  ReadoutWorld world;
  world.View().OwnNorthKm = 5817.860;
  world.View().OwnEastKm = 391.394;
  world.State.Followed.MonitorNorthKm = 5817.860;
  world.State.Followed.MonitorEastKm = 491.394;
  world.State.Followed.MonitorHeardVia = "WIDE1-1";
  world.Texts().MonitorReadout();
  EXPECT_EQ(world.Controls.Readouts.Label11.Caption.substr(0, 15), "DIST:   100 km ");
  EXPECT_NE(world.Controls.Readouts.Label11.Caption.find("VIA: WIDE1-1"), std::string::npos);
}

TEST(StationLine, FieldsStandInTheirPlaces) {
  EXPECT_EQ(StationLine(141.1, 43.8, "57", "WIDE1-1"),
            "DIST:   141 km   DIR:  44 \xB0   SPEED:  57 km/h   VIA: WIDE1-1");
  EXPECT_EQ(StationLine(141.1, 43.8, "", "  "),
            "DIST:   141 km   DIR:  44 \xB0   SPEED:     km/h   VIA: -");
}

TEST(StationSpeed, LooksBackAtLeastThreeMinutes) {
  const auto at = [](const std::string& time, double north) {
    RecordMaker maker;
    maker.DateAndTime = "240115 " + time;
    maker.NorthKm = north;
    return maker.Make();
  };
  StationStore store(100);
  EXPECT_EQ(StationSpeedText(store), "");
  store.Append(at("1200", 5700.0));  // not looked at
  store.Append(at("1207", 5797.0));
  store.Append(at("1209", 5799.0));
  store.Append(at("1210", 5800.0));
  EXPECT_EQ(StationSpeedText(store), "60");  // 3 km in 3 minutes
  StationStore two(100);
  two.Append(at("1209", 5799.0));
  two.Append(at("1210", 5800.0));
  EXPECT_EQ(StationSpeedText(two), "60");
  StationStore same(100);
  same.Append(at("1210", 5799.0));
  same.Append(at("1210", 5800.0));
  EXPECT_EQ(StationSpeedText(same), "");
}

TEST(DisplayModes, OutsideEuropeTheEuropeanSystemsArePassedOver) {
  ReadoutWorld world;
  world.View().MapCentralMeridian = 63.0;
  std::vector<int> modes;
  for (int i = 0; i < 4; ++i) {
    world.Texts().StepDisplayMode(Readout::Cursor);
    modes.push_back(world.View().CursorDisplayMode);
  }
  EXPECT_EQ(modes, (std::vector<int>{1, 3, 0, 1}));
  for (double meridian : {-30.0, 60.0}) {
    world.View().MapCentralMeridian = meridian;
    world.View().CursorDisplayMode = 1;
    world.Texts().StepDisplayMode(Readout::Cursor);
    EXPECT_EQ(world.View().CursorDisplayMode, 2);
  }
}

TEST(DisplayModes, InEuropeAllFiveComeInTurn) {
  ReadoutWorld world;
  std::vector<int> modes;
  for (int i = 0; i < 5; ++i) {
    world.Texts().StepDisplayMode(Readout::Monitor);
    modes.push_back(world.View().MonitorDisplayMode);
  }
  EXPECT_EQ(modes, (std::vector<int>{1, 2, 3, 4, 0}));
  EXPECT_EQ(world.View().CentreDisplayMode, 0);
  EXPECT_EQ(world.View().CursorDisplayMode, 0);
}

TEST(DisplayModes, TheStripIsChosenBeforeTheReadOutIsMadeAnew) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 30.0;  // of an earlier centre
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 30");
  world.Texts().StepDisplayMode(Readout::Centre);
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 12");
  EXPECT_EQ(world.Texts().Values().UtmMeridianText, " 15");
  EXPECT_EQ(world.Texts().Values().UtmZoneText, "33");
}

TEST(DisplayModes, PanningKeepsTheStripUntilACaptionIsClicked) {
  ReadoutWorld world;
  world.View().CentreDisplayMode = 2;
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 15");
  world.View().CentreEastKm = 900.0;
  world.Texts().CentreReadout();
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 15");
  world.Texts().StepDisplayMode(Readout::Cursor);
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 21");
}

TEST(DisplayModes, WithTheCentreInTheMapsSystemAClickElsewhereKeepsTheStrip) {
  ReadoutWorld world;
  world.Texts().Values().DisplayLon = 30.0;  // far from the strip in use
  world.Texts().StepDisplayMode(Readout::Cursor);
  world.Texts().StepDisplayMode(Readout::Cursor);
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 15");
  world.View().CentreDisplayMode = 1;
  world.Texts().StepDisplayMode(Readout::Cursor);
  EXPECT_EQ(world.Texts().Values().GkMeridianText, " 30");
}

TEST(GeoToAllGrids, NorthBeyondTheGridIsHeld) {
  CoordinateValues values;
  values.GeoLat = 89.99;
  values.GeoLon = 15.0;
  GeoToAllGrids(values);
  EXPECT_EQ(values.GkNorthText, " 9999.999");
}

}  // namespace
}  // namespace zepril
