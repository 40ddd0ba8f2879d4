// Reports and objects in every radio mode, to the byte and the pause.
#include "transmit/position_beacon.h"

#include <gtest/gtest.h>

#include "links/agw_frame.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"
#include "tests/transmit/transmit_world.h"

namespace zepril {
namespace {

class BeaconTest : public ::testing::Test {
 protected:
  BeaconTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB-10";
    view.OwnNorthKm = 5395.283;
    view.OwnEastKm = -10.517;
    port.Call = "QX7KB-10";
    transmission.TxSymbolIndex = 30;  // "/>"
    transmission.InfoLine[0] = "Test";
    transmission.InfoLineActive = {1, 0, 0, 0, 0, 0};
    clock.OnWait = [this](double, bool) {
      pointer_while_waiting = window.Pointer;
      map_pointer_while_waiting = map.Picture1.Pointer;
    };
  }
  void Use(RadioMode mode) { radio.RadioMode = static_cast<int>(mode); }
  std::string LastSent() { return engine.Sent.empty() ? "" : engine.Sent.back(); }

  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
  MapViewState view;
  GpsState gps;
  SettingsState settings;
  WindowControls window;
  MapControls map;
  RecordingEngine engine;
  FakeSocket socket;
  FakeSerial port;
  VirtualClock clock{{2024, 6, 1, 1, 30, 0}};
  ScriptedDialogs boxes;
  NotedEnd program;
  MemoryFiles files;
  SymbolTable symbols;
  AgwLink link{radio, identity, transmission, socket, clock, boxes, program};
  ReceptionState received;
  RecordedProgress work;
  SerialModem modem{identity, radio, transmission, {port, clock, work}};
  RadioLinks links{{identity, radio, received, transmission}, {engine, link, modem, port, clock}};
  FrameSender sender{links, clock};
  PositionBeacon beacon{{identity, transmission, view, gps, settings},
                        {sender, symbols, files, clock, window, map}};
  PointerShape pointer_while_waiting = PointerShape::Default;
  PointerShape map_pointer_while_waiting = PointerShape::Default;
};

TEST_F(BeaconTest, TheReportGoesToTheLocalEngineWithDestinationAndPath) {
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E> Test");
  EXPECT_NEAR(clock.MonotonicSeconds(), 0.8, 1e-9);
  EXPECT_EQ(pointer_while_waiting, PointerShape::Hourglass);
  EXPECT_EQ(map_pointer_while_waiting, PointerShape::Hourglass);
  EXPECT_EQ(window.Pointer, PointerShape::Default);
  EXPECT_EQ(map.Picture1.Pointer, PointerShape::Default);
  transmission.TxPath = "";
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR, | =4830.15N/00805.20E> Test");
}

TEST_F(BeaconTest, SerialModemsGetTheTextAndACarriageReturn) {
  port.Open("2", 1200);
  for (RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    Use(mode);
    port.Written.clear();
    beacon.SendPositionBeacon();
    EXPECT_EQ(port.Written, "=4830.15N/00805.20E> Test\r");
  }
  EXPECT_NEAR(clock.MonotonicSeconds(), 2.4, 1e-9);
}

TEST_F(BeaconTest, NoControlByteOfASettingReachesAnEngine) {
  transmission.InfoLine[0] =
      "a\x1B"
      "b\x03";
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E> a b ");
  transmission.ObjectName = "X\x1BY      ";
  transmission.ObjectText = "c\rd";
  transmission.ObjectNorth = 5395.283;
  transmission.ObjectEast = -10.517;
  beacon.SendObjectReport();
  EXPECT_NE(LastSent().find(";X Y      *"), std::string::npos) << LastSent();
  EXPECT_TRUE(LastSent().ends_with("c d")) << LastSent();
}

TEST_F(BeaconTest, NoByteOfATextIsACommandToASerialModem) {
  // A heard station's comment may hold anything; it is sent again as it came.
  const std::string heard =
      "a\x03"
      "MYCALL X\r\x1BQ\n\x7F\xE4";
  port.Open("2", 1200);
  for (RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    Use(mode);
    port.Written.clear();
    sender.SendFrame(heard);
    EXPECT_EQ(port.Written, "a MYCALL X  Q  \xE4\r");
  }
  // An engine is told the length and takes each byte for what it is.
  Use(RadioMode::AgwLocal);
  sender.SendFrame(heard);
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | " + heard);
}

TEST_F(BeaconTest, AFrameIsHeldBackWhileSomebodyElseTalksToTheModem) {
  bool held = true;
  sender.HeldBack = [&held] { return held; };
  port.Open("2", 1200);
  for (RadioMode mode : {RadioMode::AgwLocal, RadioMode::Pk232}) {
    Use(mode);
    beacon.SendPositionBeacon();
  }
  EXPECT_TRUE(engine.Sent.empty());
  EXPECT_EQ(port.Written, "");
  EXPECT_EQ(clock.MonotonicSeconds(), 0.0);
  held = false;
  beacon.SendPositionBeacon();
  EXPECT_NE(port.Written, "");
}

TEST_F(BeaconTest, TheSecondModeIsSwitchedOffForTheFrame) {
  port.Open("3", 38400);
  Use(RadioMode::ScsTnc);
  radio.HfDualOn = 1;
  beacon.SendPositionBeacon();
  EXPECT_EQ(port.Written, "\x1B%AU0\r=4830.15N/00805.20E> Test\r");
  EXPECT_NEAR(clock.MonotonicSeconds(), 0.9, 1e-9);
  // Only the SCS TNC has one; a frame may ask to leave it as it is.
  port.Written.clear();
  sender.SendFrame("x", SecondMode::LeaveAsItIs);
  EXPECT_EQ(port.Written, "x\r");
  Use(RadioMode::ScsPtc);
  port.Written.clear();
  sender.SendFrame("x");
  EXPECT_EQ(port.Written, "x\r");
}

TEST_F(BeaconTest, TheRemoteEngineGetsAnUnprotoFrame) {
  Use(RadioMode::AgwRemote);
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  socket.OnSend = [this](std::string_view bytes) {
    if (bytes[4] == 'X') socket.Deliver(MakeAgwFrame(0, 'X', "QX7KB", "", "\x01"));
  };
  ASSERT_TRUE(link.ConnectAgw());
  const double before = clock.MonotonicSeconds();
  beacon.SendPositionBeacon();
  EXPECT_NE(socket.Sent.back().find("=4830.15N/00805.20E> Test"), std::string::npos);
  EXPECT_NEAR(clock.MonotonicSeconds() - before, 0.8, 1e-9);
}

TEST_F(BeaconTest, WithoutARadioNothingGoesOutAndNothingIsWaitedFor) {
  Use(RadioMode::None);
  port.Open("2", 1200);
  beacon.SendPositionBeacon();
  EXPECT_TRUE(engine.Sent.empty());
  EXPECT_EQ(port.Written, "");
  EXPECT_EQ(clock.MonotonicSeconds(), 0.0);
}

TEST_F(BeaconTest, WithoutCallOrPositionNothingIsBuilt) {
  identity.MyCall = "  ";
  beacon.SendPositionBeacon();
  identity.MyCall = "QX7KB";
  view.OwnNorthKm = 0.0;
  view.OwnEastKm = 0.0;
  beacon.SendPositionBeacon();
  transmission.ObjectName = "ABC      ";
  transmission.ObjectNorth = 5378.123;
  transmission.ObjectEast = 412.345;
  beacon.SendObjectReport();
  beacon.SendIdentification("IGate 8.08");
  EXPECT_TRUE(engine.Sent.empty());
  EXPECT_EQ(transmission.InfoLineIndex, 0);
  // One of the two is enough.
  view.OwnNorthKm = 5395.283;
  beacon.SendPositionBeacon();
  EXPECT_EQ(engine.Sent.size(), 1U);
}

TEST_F(BeaconTest, TheTimeIsToldOnlyWithAClockThatGpsHasSet) {
  transmission.TxTimestamp = 1;
  settings.UtcOffsetHours = 2;
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E> Test");
  gps.GpsTimeValid = 1;
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | @312330z4830.15N/00805.20E> Test");
  transmission.TxTimestamp = 0;
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E> Test");
}

TEST_F(BeaconTest, WithNoActiveLineThereIsNoCommentAndNoBlank) {
  transmission.InfoLineActive.fill(0);
  transmission.InfoLine.fill("never");
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E>");
  EXPECT_EQ(transmission.InfoLineIndex, 6);
}

TEST_F(BeaconTest, AReportIsAtMost84CharactersLong) {
  transmission.InfoLine[0] = std::string(70, 'x');
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent().size(), std::string("ZEPR,WIDE1-1 | ").size() + 84);
}

TEST_F(BeaconTest, TheIdentificationMovesNoInfoLine) {
  beacon.SendIdentification("IGate 8.08");
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N/00805.20E> IGate 8.08");
  EXPECT_EQ(transmission.InfoLineIndex, 0);
}

TEST_F(BeaconTest, TheObjectAlwaysTellsTheTime) {
  clock.SetNow({2024, 5, 14, 14, 30, 0});
  settings.UtcOffsetHours = 2;
  transmission.ObjectName = "ABC      ";
  transmission.ObjectNorth = 5378.123;
  transmission.ObjectEast = 412.345;
  transmission.ObjectSymbol = 82;  // "/r"
  beacon.SendObjectReport();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | ;ABC      *141230z4833.00N/01348.73Er ");
  EXPECT_EQ(transmission.InfoLineIndex, 0);
  EXPECT_NEAR(clock.MonotonicSeconds(), 0.8, 1e-9);
  EXPECT_EQ(pointer_while_waiting, PointerShape::Hourglass);
  EXPECT_EQ(map_pointer_while_waiting, PointerShape::Hourglass);
  EXPECT_EQ(window.Pointer, PointerShape::Default);
  EXPECT_EQ(map.Picture1.Pointer, PointerShape::Default);
}

TEST_F(BeaconTest, StationAndObjectHaveAnOverlayEach) {
  transmission.TxSymbolIndex = 103;  // "\\#" takes one
  transmission.TxOverlay = "S";
  transmission.ObjectName = "ABC      ";
  transmission.ObjectNorth = 5378.123;
  transmission.ObjectEast = 412.345;
  transmission.ObjectSymbol = 103;
  transmission.ObjectOverlay = "J";
  settings.UtcOffsetHours = 2;
  beacon.SendPositionBeacon();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | =4830.15N\\S0805.20E# Test");
  beacon.SendObjectReport();
  EXPECT_EQ(LastSent(), "ZEPR,WIDE1-1 | ;ABC      *312330z4833.00N\\J1348.73E# ");
}

}  // namespace
}  // namespace zepril
