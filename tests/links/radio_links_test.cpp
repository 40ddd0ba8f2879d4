// Which link each radio interface is, and what each does at start, end, frame and TX SETUP.
#include "links/radio_links.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/progress.h"
#include "links/links_room.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class RadioLinksTest : public ::testing::Test {
 protected:
  RadioLinksTest() {
    identity.MyCall = identity.MyCallFull = "QX7KB";
    radio.AgwHost = "engine.example";
    radio.AgwTcpPort = "8001";
  }
  void Use(int mode) { radio.RadioMode = mode; }
  void Use(RadioMode mode) { Use(static_cast<int>(mode)); }
  // An engine that takes every connection and lists each frame's kind.
  void EngineAnswers() {
    socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  }
  std::string KindsSent() const {
    std::string kinds;
    for (const std::string& frame : socket.Sent)
      kinds += frame.size() > 4 ? frame[4] : '?';
    return kinds;
  }

  IdentityState identity;
  RadioState radio;
  ReceptionState received;
  TransmissionState transmission;
  TerminalControls talk;
  RawListControls raw;
  StatusControls status;
  FakeSocket socket;
  FakeSerial port;
  VirtualClock clock;
  ScriptedDialogs boxes;
  RecordedActions actions;
  RecordedProgress work;
  Timer timer1{6000};
  Timer timer2{3000};
  LinksRoom room{{identity, radio, received, transmission},
                 {talk, raw, status},
                 {socket, port, clock, clock, boxes, actions, actions, work, timer1, timer2}};
};

TEST_F(RadioLinksTest, TheEngineOnThisComputerIsStartedAndClosed) {
  Use(RadioMode::AgwLocal);
  EngineAnswers();
  EXPECT_TRUE(room.Open());
  EXPECT_EQ(socket.Host, "127.0.0.1");
  EXPECT_EQ(socket.Port, 8000);
  EXPECT_EQ(KindsSent(), "Xm");
  EXPECT_TRUE(room.Radios.Active()->IsUp());
  EXPECT_FALSE(talk.Command65.Enabled);
  EXPECT_TRUE(room.Radios.Active()->Send("Test", SecondMode::SwitchOff));
  EXPECT_EQ(KindsSent(), "XmV");
  room.Leave();
  EXPECT_EQ(KindsSent(), "XmVx");
  EXPECT_FALSE(room.Radios.Active()->IsUp());
}

TEST_F(RadioLinksTest, AnEngineThatIsNotThereIsTriedTwiceAndEndsNothing) {
  Use(RadioMode::AgwLocal);
  socket.OnConnect = [this] { socket.SetState(SocketState::Error); };
  EXPECT_TRUE(room.Open());
  EXPECT_EQ(socket.Connects, 2);
  EXPECT_NEAR(clock.MonotonicSeconds(), 2.0, 0.1);
  EXPECT_EQ(actions.CountOf("end"), 0);
  EXPECT_FALSE(room.Radios.Active()->Send("Test", SecondMode::SwitchOff));
}

TEST_F(RadioLinksTest, TheEngineOnThisComputerLearnsANewCall) {
  Use(RadioMode::AgwLocal);
  EngineAnswers();
  room.Open();
  identity.MyCallFull = "QX7KB-9";
  room.Radios.Active()->TakeNewSettings(work);
  EXPECT_EQ(KindsSent(), "XmxXm");
  EXPECT_NE(socket.Sent.back().find("QX7KB-9"), std::string::npos);
  EXPECT_EQ(socket.Connects, 2);
  EXPECT_NEAR(clock.MonotonicSeconds(), 2.0, 0.1);
}

TEST_F(RadioLinksTest, AnEngineElsewhereThatIsNotFoundEndsTheProgram) {
  Use(RadioMode::AgwRemote);
  socket.OnConnect = [this] { socket.SetState(SocketState::Error); };
  boxes.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(room.Open());
  EXPECT_EQ(socket.Host, "engine.example");
  EXPECT_EQ(socket.Port, 8001);
  EXPECT_EQ(actions.CountOf("end"), 1);
}

TEST_F(RadioLinksTest, EachModemIsOpenedLeftAndSentToOnItsLine) {
  const struct {
    RadioMode Mode;
    std::string Device, Opening, Leaving;
  } modems[] = {
      {RadioMode::Pk232, "1", "ECHO ON\rK\r", "\x03"},
      {RadioMode::ScsTnc, "3", "", "\x1B%ZL\r"},
      {RadioMode::ScsPtc, "3", "K\r", "\x1BQ\r\x1BRESET\r"},
  };
  for (const auto& modem : modems) {
    Use(modem.Mode);
    port.Written.clear();
    talk.Command65.Enabled = false;
    EXPECT_TRUE(room.Open());
    EXPECT_EQ(port.Device, modem.Device);
    EXPECT_EQ(port.Written, modem.Opening);
    EXPECT_TRUE(talk.Command65.Enabled);
    port.Written.clear();
    RadioLink& link = *room.Radios.Active();
    EXPECT_TRUE(link.IsUp() && link.HasTerminal());
    EXPECT_TRUE(link.Send("a\x03z", SecondMode::SwitchOff));
    EXPECT_EQ(port.Written, "a z\r");
    port.Written.clear();
    room.Leave();
    EXPECT_EQ(port.Written, modem.Leaving);
    room.ClosePort();
    EXPECT_FALSE(link.IsUp());
    EXPECT_FALSE(link.Send("Test", SecondMode::SwitchOff));
  }
}

TEST_F(RadioLinksTest, OnlyAFrameOfTheOwnStationSwitchesTheSecondModeOff) {
  Use(RadioMode::ScsTnc);
  radio.HfDualOn = 1;
  room.Open();
  port.Written.clear();
  room.Radios.Active()->Send("Test", SecondMode::LeaveAsItIs);
  EXPECT_EQ(port.Written, "Test\r");
  port.Written.clear();
  room.Radios.Active()->Send("Test", SecondMode::SwitchOff);
  EXPECT_EQ(port.Written, "\x1B%AU0\rTest\r");
}

TEST_F(RadioLinksTest, WithoutARadioThereIsNoLink) {
  for (const int mode : {4, 2, 7, -1}) {
    Use(mode);
    EXPECT_EQ(room.Radios.Active(), nullptr) << mode;
    EXPECT_EQ(room.Heard.Active(), nullptr) << mode;
    EXPECT_TRUE(room.Open());
    room.Leave();
  }
  EXPECT_EQ(socket.Connects, 0);
  EXPECT_EQ(port.Device, "");
  EXPECT_FALSE(talk.Command65.Enabled);
}

TEST_F(RadioLinksTest, EachInterfaceNamesHowItWrites) {
  const std::pair<RadioMode, std::string_view> dialects[] = {{RadioMode::AgwLocal, "AGW"},
                                                             {RadioMode::AgwRemote, "AGW"},
                                                             {RadioMode::Pk232, "PK-232"},
                                                             {RadioMode::ScsTnc, "SCS TNC"},
                                                             {RadioMode::ScsPtc, "SCS PTC"}};
  for (const auto& [mode, dialect] : dialects) {
    Use(mode);
    ASSERT_NE(room.Heard.Active(), nullptr);
    EXPECT_EQ(room.Heard.Active()->Dialect(), dialect);
  }
}

}  // namespace
}  // namespace zepril
