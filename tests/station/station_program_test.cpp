// A whole station in virtual time: from a frame to the map, lost engines, restarts.
#include "station/station_program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr const char* kBerlin = "=5230.00N/01324.00E>Test";

TEST(StationProgram, AFrameBecomesAStationInTheTickThatReceivesIt) {
  StationHarness station;
  ASSERT_TRUE(station.Start());
  station.Hear("N0CALL", kBerlin, "WIDE1-1*");
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  station.map_surface.Operations.clear();
  station.Ticks(1);
  ASSERT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_TRUE(station.DrewText("N0CALL"));
  const std::string record = "240115 1234 \xFE 5817.860  391.394'N0CALL    Test" +
                             std::string(43, ' ') + " WIDE1-1   />    Car        0  ";
  EXPECT_EQ(station.File("U33\\LOG\\_LOGL_.TXT"), record + "\r\n");
  EXPECT_EQ(station.File("U33\\LOG\\_LOG_.TXT").size(), 92U);
  EXPECT_EQ(station.File("U33\\LOG\\_LOGRAW_.TXT"),
            "N0CALL>WIDE1-1*>APRS <UI>:\r\n=5230.00N/01324.00E>Test\r\n");
}

TEST(StationProgram, AnEmergencyReportLetsTheCycleGoOn) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "!5230.00N\\01324.00E!Help");
  station.map_surface.Operations.clear();
  station.Ticks(1);
  EXPECT_EQ(station.State().Alarms.AlarmCall, "QX2CD");
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_TRUE(station.DrewText("QX2CD"));
  station.Hear("QX3EF", kBerlin);
  station.Ticks(2);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 2);
}

TEST(StationProgram, OneFrameATickWhenLittleIsLeft) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.Hear("QX3EF", "=5232.00N/01324.00E>b");
  station.Ticks(1);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  station.Ticks(1);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 2);
}

TEST(StationProgram, TheFollowedStationsHistorySurvivesARestart) {
  StationHarness station;
  station.Start();
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  for (int minute = 0; minute < 3; ++minute) {
    station.Hear("QX1AB-9", "=523" + std::to_string(minute) + ".00N/01324.00E>drive");
    station.Ticks(10);
  }
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 3);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Station);
  station.Restart();
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 3);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Station);
  EXPECT_TRUE(station.Controls().Map.Option2.Value);
  EXPECT_EQ(station.State().Followed.MonitorInfo, "drive");
  EXPECT_EQ(station.Controls().Moni1.Label6.Caption, "3");
  EXPECT_EQ(station.Controls().Moni1.Combo9.Items, (std::vector<std::string>{"QX1AB-9"}));
  EXPECT_EQ(station.State().Map.CentreNorthKm, station.State().Stores.Moni1Records.At(3).NorthKm());
  EXPECT_EQ(station.State().Stores.Moni1Records.At(3).NorthText(), " 5821.568");
}

TEST(StationProgram, ARefusedEngineAtStartSaysSoAndKeepsTheSettingsAsTheyAre) {
  StationHarness station;
  const std::string before = station.File("ZEPRIL.INI");
  station.socket.OnConnect = [&] { station.socket.SetState(SocketState::Error); };
  station.dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(station.Start());
  EXPECT_TRUE(station.program->EndWanted());
  station.program->Stop(false);
  EXPECT_EQ(station.File("ZEPRIL.INI"), before);
}

TEST(StationProgram, ALostEngineComesBackWithoutABox) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  EXPECT_EQ(station.program->Lamp().State, LampState::Data);
  station.socket.SetState(SocketState::PeerClosed);
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  station.clock.Run(25.0);
  EXPECT_NE(station.program->Lamp().State, LampState::Lost);
  station.Hear("QX3EF", "=5232.00N/01324.00E>b");
  station.Ticks(2);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 2);
  station.clock.Run(70.0);
  EXPECT_EQ(station.program->Lamp().State, LampState::Silent);
  EXPECT_EQ(station.program->Lamp().ToolTip.substr(0, 10), "last data ");
}

TEST(StationProgram, TheLocalEngineFeedsTheSameMap) {
  StationHarness station("MODEM=0\r\n");
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.socket.Host, "127.0.0.1");
  station.Hear("N0CALL", kBerlin);
  station.Ticks(1);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  station.program->Stop(true);
  EXPECT_EQ(station.socket.State(), SocketState::Closed);
}

TEST(StationProgram, AnAbsentLocalEngineIsNoObstacle) {
  StationHarness station("MODEM=0\r\n");
  station.socket.OnConnect = [&] { station.socket.SetState(SocketState::Error); };
  ASSERT_TRUE(station.Start());
  EXPECT_EQ(station.program->Lamp().State, LampState::Lost);
  station.EngineAccepts();
  station.clock.Run(25.0);
  station.Hear("N0CALL", kBerlin);
  station.Ticks(1);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
}

TEST(StationProgram, WithoutRadioNothingIsCollected) {
  StationHarness station("MODEM=4\r\n");
  ASSERT_TRUE(station.Start());
  station.State().Radio.AgwConnected = 1;
  station.Hear("N0CALL", kBerlin);
  station.Ticks(3);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  EXPECT_EQ(station.Controls().Status.Label15.Caption, " 12:34");
  EXPECT_EQ(station.program->Lamp().State, LampState::None);
}

TEST(StationProgram, ACallThatIsBeingTypedIsNotFollowedYet) {
  StationHarness station;
  station.Start();
  station.Ticks(1);
  ComboBox& field = station.Controls().Moni1.Combo9;
  field.HasFocus = true;
  field.Text.clear();
  // A key every two seconds; a tick comes in the middle.
  for (char key : std::string("QX2CD")) {
    field.Text += key;
    field.KeyDown({key, 0});
    station.clock.Run(2.0);
    EXPECT_EQ(station.State().Followed.Moni1Call, "QX1AB-9") << field.Text;
  }
  station.Ticks(1);
  EXPECT_EQ(station.State().Followed.Moni1Call, "QX2CD");
  EXPECT_EQ(station.File("U33\\LOG\\QX2.TXT"), "(missing)");
}

TEST(StationProgram, EnterInTheCallFieldFollowsAnotherStation) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>hello");
  station.Ticks(1);
  station.Controls().Moni1.Combo9.Text = "qx2cd";
  station.Controls().Moni1.Combo9.KeyDown({13, 0});
  EXPECT_EQ(station.State().Followed.Moni1Call, "qx2cd");
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.State().Followed.MonitorInfo, "hello");
  const std::string ini = station.File("ZEPRIL.INI");
  EXPECT_NE(ini.find("CALL=qx2cd\r\n"), std::string::npos);
  EXPECT_NE(ini.find("FOO=1\r\n"), std::string::npos);
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_EQ(station.File("U33\\LOG\\QX2CD.TXT").substr(0, 12), "240115 1234 ");
}

TEST(StationProgram, OwnPositionIsTakenFromTheMapCentre) {
  StationHarness station;
  station.Start();
  station.Controls().Map.Option1.RightClick();
  EXPECT_TRUE(station.Controls().Qth.Frame2.Visible);
  EXPECT_EQ(station.Controls().Qth.Frame2.Caption, "USER QTH SETUP: CENTER THE MAP TO YOUR QTH!");
  station.Controls().Map.Picture1.MouseDown({1, 0, 500.0, 299.0});
  station.Controls().Qth.QthOk.Click();
  EXPECT_FALSE(station.Controls().Qth.Frame2.Visible);
  EXPECT_NEAR(station.State().Map.OwnEastKm, 900.0, 1e-9);
  EXPECT_NE(station.File("ZEPRIL.INI").find("UUE=900\r\n"), std::string::npos);
}

TEST(StationProgram, ATypedPositionCentresTheMapThere) {
  StationHarness station;
  station.Start();
  station.Controls().Map.Option1.RightClick();
  station.Controls().Qth.TextQthNorth.Text = "5900.5";
  station.Controls().Qth.TextQthEast.Text = "410";
  station.Controls().Qth.TextQthEast.KeyDown({13, 0});
  EXPECT_EQ(station.State().Map.CentreNorthKm, 5900.5);
  EXPECT_EQ(station.State().Map.CentreEastKm, 410.0);
  EXPECT_EQ(station.State().Map.CentreFollow, Following::Nobody);
  station.Controls().Qth.Command22.Click();
  EXPECT_FALSE(station.Controls().Qth.Frame2.Visible);
}

TEST(StationProgram, AFoundCallIsHighlighted) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>hello");
  station.Ticks(1);
  station.map_surface.Operations.clear();
  station.Controls().MoniAll.Text15.Text = " qx2cd ";
  station.Controls().MoniAll.Text15.KeyDown({13, 0});
  EXPECT_TRUE(station.DrewText("! QX2CD !"));
}

TEST(StationProgram, AStationIsPickedFromTheListAndFollowed) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.Ticks(1);
  station.Hear("QX3EF", "=5232.00N/01324.00E>b");
  station.Ticks(1);
  MainWindowControls& controls = station.Controls();
  controls.MoniAll.Command3.Click();
  EXPECT_TRUE(controls.MoniAll.HeardPanel.Visible);
  ASSERT_EQ(controls.MoniAll.HeardList.Items.size(), 2U);
  EXPECT_EQ(controls.MoniAll.HeardList.Items[0].substr(0, 5), "QX3EF");
  controls.MoniAll.HeardList.ListIndex = 1;
  controls.MoniAll.HeardList.Click();
  EXPECT_TRUE(controls.Record.Frame1.Visible);
  EXPECT_NE(controls.Record.Label20.Caption.find("QX2CD"), std::string::npos);
  controls.Record.Command11.Click();
  EXPECT_EQ(station.State().Followed.Moni1Call, "QX2CD");
  controls.Map.Command12.Click();
  EXPECT_EQ(station.State().Map.MapLockedOnRecord, 1);
  EXPECT_EQ(controls.Map.Command12.Caption, "MAP L");
  controls.Record.Command23.Click();
  EXPECT_FALSE(controls.Record.Frame1.Visible);
  EXPECT_EQ(station.State().Map.MapLockedOnRecord, 0);
  EXPECT_EQ(controls.Map.Command12.Caption, "MAP");
}

TEST(StationProgram, TheListOfStationsIsRenewedByTheTick) {
  StationHarness station;
  station.Start();
  MainWindowControls& controls = station.Controls();
  controls.MoniAll.Command3.Click();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.Ticks(1);
  EXPECT_EQ(controls.MoniAll.HeardList.Items.size(), 1U);
}

// What was pressed meanwhile arrives behind the tick and is meant for the rows of before.
TEST(StationProgram, AfterATickThatWaitedTheListIsRenewedByTheNextOne) {
  StationHarness station;
  station.Start();
  station.Ticks(1);
  MainWindowControls& controls = station.Controls();
  controls.MoniAll.Command3.Click();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.clock.Schedule(1.0, [] {});  // to there the tick hands over
  station.program->Timer1().Elapsed();
  ASSERT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_EQ(controls.MoniAll.HeardList.Items.size(), 0U);
  station.program->Timer1().Elapsed();
  EXPECT_EQ(controls.MoniAll.HeardList.Items.size(), 1U);
}

TEST(StationProgram, ANewWindowShowsMarksAndCallsOfAllClasses) {
  StationHarness station;
  station.Start();
  EXPECT_EQ(station.State().Map.StationLabelLevel, LabelLevel::MarksAndCalls);
  EXPECT_EQ(station.Controls().MoniAll.Label16.Caption, "2");
  EXPECT_EQ(station.State().Map.StationClassMask, 31);
  EXPECT_EQ(station.Controls().MoniAll.Check13.Value, 1);
  EXPECT_EQ(station.Controls().MoniAll.Check25.Value, 1);
  EXPECT_EQ(station.Controls().Window.Title, "ZEP RIL  V 8.08  QX7KB");
}

TEST(StationProgram, TheTitleTellsOfASwitchedOnGate) {
  StationHarness station("IGATE=1\r\n");
  station.State().Internet.AprsIsPasscode = "22513";
  station.Start();
  EXPECT_EQ(station.State().Settings.TitleText.substr(75, 15), "IGate          ");
  // Not connected: the first tick leaves the word and blanks the rest.
  station.Ticks(1);
  EXPECT_EQ(station.State().Settings.TitleText.substr(75, 15), "IGate          ");
}

TEST(StationProgram, TheOpenRecordPanelGoesWithTheChangeOfTheFollowedStation) {
  StationHarness station;
  station.Start();
  for (const char* minute : {"30", "31", "32"}) {
    station.Hear("QX1AB-9", std::string("=52") + minute + ".00N/01324.00E>drive");
    station.Ticks(1);
  }
  station.Hear("QX2CD", "=5240.00N/01324.00E>a");
  station.Ticks(1);
  MainWindowControls& controls = station.Controls();
  controls.MoniAll.Command3.Click();
  controls.MoniAll.HeardList.ListIndex = 0;
  controls.MoniAll.HeardList.Click();
  EXPECT_EQ(controls.Record.Command18.Caption, "<");
  // Followed now: the buttons cut its own history, and say so.
  controls.Record.Command11.Click();
  EXPECT_EQ(controls.Record.Command18.Caption, "<X");
  EXPECT_EQ(controls.Record.Label19.Caption, "DELETE");
  EXPECT_EQ(station.State().Stores.SelectedRecordIndex, 1);
  // No longer followed: they step through all stations again and ask nothing.
  controls.Moni1.Combo9.Text = "QX1AB-9";
  controls.Moni1.Combo9.KeyDown({13, 0});
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 3);
  EXPECT_EQ(controls.Record.Command18.Caption, "<");
  EXPECT_EQ(station.State().Stores.SelectedRecordIndex, 4);
  controls.Record.Command18.Click();
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 3);
}

TEST(StationProgram, RightPressOnAStationOpensItsRecord) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>a");
  station.Ticks(1);
  const MapViewState& view = station.State().Map;
  const StationRecord& record = station.State().Stores.MoniAllRecords.At(1);
  const double x = (record.EastKm() - view.ViewWestKm) * view.PixelsPerKm;
  const double y = (view.ViewNorthKm - record.NorthKm()) * view.PixelsPerKm;
  station.Controls().Map.Picture1.MouseMove({0, 0, x, y});
  station.Controls().Map.Picture1.MouseDown({2, 0, x, y});
  EXPECT_TRUE(station.Controls().Record.Frame1.Visible);
  EXPECT_EQ(station.State().Stores.SelectedStationCall, "QX2CD");
  EXPECT_TRUE(station.program->Timer2().Enabled());
  EXPECT_EQ(station.program->Timer2().IntervalMs(), 3000);
  station.clock.Run(3.1);
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST(StationProgram, RawPacketsAreSearchedUpwardsWhileTheCycleWaits) {
  StationHarness station;
  station.Start();
  station.Hear("QX2CD", "=5231.00N/01324.00E>alpha");
  station.Ticks(1);
  station.Hear("QX3EF", "=5232.00N/01324.00E>beta");
  station.Ticks(1);
  MainWindowControls& controls = station.Controls();
  controls.Raw.Command57.Click();
  EXPECT_TRUE(controls.Raw.RawList.Visible);
  controls.Raw.Text14.Text = "ALPHA";
  controls.Raw.Command38.Click();
  const auto row = static_cast<std::size_t>(controls.Raw.RawList.ListIndex);
  EXPECT_NE(controls.Raw.RawList.Items[row].find("alpha"), std::string::npos);
  EXPECT_EQ(station.program->Timer1().IntervalMs(), 24000);
  station.clock.Run(24.1);
  EXPECT_EQ(station.program->Timer1().IntervalMs(), 6000);
  controls.Raw.Text14.Text = "nothing";
  const int before = controls.Raw.RawList.ListIndex;
  controls.Raw.Command38.Click();
  EXPECT_EQ(controls.Raw.RawList.ListIndex, before);
}

TEST(StationProgram, ACloseByTheOperatorKeepsTheViewAndCleansUp) {
  StationHarness station;
  station.files.MakeFolder("C:\\ZEPRIL\\U33\\M0050TOPO");
  station.files.MakeFolder("C:\\ZEPRIL\\U33\\M0050");
  station.files.Write("C:\\ZEPRIL\\TEMP\\MINE.DIR", "mine");
  station.Start();
  EXPECT_NE(station.File("TEMP\\ALLMDIRS.DIR"), "(missing)");
  station.Controls().Scales.Folder[3].Select(1);
  station.Controls().Scales.Folder[3].Change();
  EXPECT_EQ(station.State().Map.MapTileKm, 50.0);
  EXPECT_EQ(station.State().Map.ActiveFolderName, "M0050TOPO");
  station.Controls().Map.Picture1.MouseDown({1, 0, 400.0, 399.0});
  station.program->Stop(true);
  const std::string ini = station.File("ZEPRIL.INI");
  EXPECT_NE(ini.find("M0050=TOPO\r\n"), std::string::npos);
  EXPECT_NE(ini.find("UTN=5795\r\n"), std::string::npos);
  EXPECT_EQ(station.File("TEMP\\ALLMDIRS.DIR"), "(missing)");
}

TEST(StationProgram, TheLastMapVariantComesBack) {
  StationHarness station("M0050=topo\r\n");
  station.files.MakeFolder("C:\\ZEPRIL\\U33\\M0050TOPO");
  station.files.MakeFolder("C:\\ZEPRIL\\U33\\M0050");
  station.Start();
  EXPECT_EQ(station.Controls().Scales.Folder[3].Selected(), "M0050TOPO");
}

TEST(StationProgram, OwnFramesHeardBackAreNoStations) {
  StationHarness station("TXPA=WIDE1-1\r\n");
  station.Start();
  EXPECT_EQ(station.State().Reception.OwnHeaderPattern, "QX7KB*>WIDE1-1>ZEPR");
  const std::string text =
      "1:Fm QX7KB To ZEPR Via WIDE1-1 <UI pid=F0 Len=24 PF=0 >[1]\r=5230.00N/01324.00E>Test\r\r";
  station.socket.Deliver(MakeAgwFrame(0, 'U', "QX7KB", "ZEPR", text));
  station.Ticks(2);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
}

TEST(StationProgram, TheOwnHeaderNamesEveryElementOfThePath) {
  StationHarness two("TXID=9\r\nTXPA=wide1-1, WIDE2-1\r\nTXTO=zepr\r\n");
  two.Start();
  EXPECT_EQ(two.State().Reception.OwnHeaderPattern, "QX7KB-9*>WIDE1-1>WIDE2-1>ZEPR");
  StationHarness none("TXPA=\r\n");
  none.Start();
  EXPECT_EQ(none.State().Reception.OwnHeaderPattern, "QX7KB*>ZEPR");
  StationHarness nameless("USER=\r\n");
  nameless.Start();
  EXPECT_EQ(nameless.State().Reception.OwnHeaderPattern, "");
}

TEST(StationProgram, RecordsAndLogsBelongToTheZoneOfTheMaps) {
  StationHarness station("MSYS=U32\r\nUMAPS=C:\\ZEPRIL\\U32\r\n");
  station.Start();
  EXPECT_EQ(station.State().Map.MapCentralMeridian, 9.0);
  station.Hear("QX1AB-9", "=5230.00N/00900.00E>Test");
  station.Ticks(1);
  ASSERT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  // On the central meridian, but for the shift to the east.
  EXPECT_EQ(station.State().Stores.MoniAllRecords.At(1).EastText(), "  500.003");
  EXPECT_EQ(station.File("U32\\LOG\\QX1AB-9.TXT").substr(0, 6), "240115");
  EXPECT_EQ(station.File("U32\\LOG\\_LOGL_.TXT").size(), 122U);
}

TEST(StationProgram, AlarmBoxesSwitchTheirAlarms) {
  StationHarness station("DISA=0\r\n");
  station.Start();
  MainWindowControls& controls = station.Controls();
  EXPECT_EQ(controls.Moni1.Check1.Value, 0);
  station.Hear("QX2CD", kBerlin);
  station.Ticks(1);
  EXPECT_FALSE(controls.Status.Frame12.Visible);
  controls.MoniAll.Check3.Value = 1;
  controls.MoniAll.Check3.Click();
  station.Hear("QX3EF", kBerlin);
  station.Ticks(1);
  EXPECT_TRUE(controls.Status.Frame12.Visible);
  EXPECT_EQ(controls.Status.Label25.Caption.substr(0, 5), "QX3EF");
  controls.Status.Frame12.Click();
  EXPECT_FALSE(controls.Status.Frame12.Visible);
  // The one of the followed station is a setting.
  controls.Moni1.Check1.Value = 1;
  controls.Moni1.Check1.Click();
  EXPECT_NE(station.File("ZEPRIL.INI").find("DISA=1\r\n"), std::string::npos);
  station.Hear("QX1AB-9", kBerlin);
  station.Ticks(1);
  EXPECT_TRUE(controls.Status.Frame12.Visible);
  EXPECT_EQ(controls.Status.Label25.Caption.substr(0, 7), "QX1AB-9");
}

TEST(StationProgram, NoiseOnTheLinkHarmsNothing) {
  StationHarness station;
  station.Start();
  std::mt19937 random(7);
  for (int round = 0; round < 200; ++round) {
    std::string noise;
    const std::size_t length = random() % 3000;
    for (std::size_t at = 0; at < length; ++at)
      noise += Chr(static_cast<int>(random() % 256));
    station.socket.Deliver(noise);
    station.Ticks(1);
    ASSERT_LE(station.State().Radio.AgwRxBuffer.size(), kLongestReceiveBuffer);
    ASSERT_LE(station.State().Reception.RxBuffer.size(), kLongestReceiveBuffer);
  }
  // The stream finds itself again with a new connection.
  station.socket.SetState(SocketState::PeerClosed);
  station.clock.Run(25.0);
  station.Hear("N0CALL", kBerlin);
  station.Ticks(3);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.All().back().Call(), "N0CALL");
}

TEST(StationProgram, LogsThatCantBeWrittenDoNotStopTheStation) {
  StationHarness station;
  station.Start();
  // The folder of the logs has become a file.
  std::filesystem::remove_all(station.folder.Sub("ZEPRIL/U33/LOG"));
  station.files.Write("C:\\ZEPRIL\\U33\\LOG", "x");
  for (int at = 0; at < 5; ++at) {
    station.Hear("QX1AB-9", kBerlin);
    station.Ticks(1);
  }
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_EQ(station.State().Reception.RxBuffer.size() < 2000, true);
  // Behind the first failure the logs rest, and what is heard is decoded.
  station.Hear("N0CALL", kBerlin);
  station.Ticks(1);
  ASSERT_GT(station.State().Stores.MoniAllRecords.Count(), 0);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.All().back().Call(), "N0CALL");
}

TEST(StationProgram, ADayOfTrafficStaysWithinTheLimits) {
  StationHarness station;
  station.clock.Loops = 450000;  // 100 stations, 500 positions
  station.Start();
  std::mt19937 random(3);
  for (int tick = 0; tick < 2000; ++tick) {
    const int number = static_cast<int>(random() % 300);
    const std::string minutes = ZeroPadded(static_cast<int>(random() % 60), 2);
    station.Hear(number == 0 ? "QX1AB-9" : "QX2A" + std::to_string(number),
                 "=52" + minutes + ".00N/013" + minutes + ".00E>x");
    station.map_surface.Operations.clear();
    station.clock.Run(6.0);
  }
  EXPECT_LE(station.State().Stores.MoniAllRecords.Count(), 101);
  EXPECT_GE(station.State().Stores.MoniAllRecords.Count(), 75);
  EXPECT_GT(station.State().Stores.Moni1Records.Count(), 0);
}

}  // namespace
}  // namespace zepril
