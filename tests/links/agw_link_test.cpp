// The link to another computer's packet engine: start, data, loss, reports.
#include "links/agw_link.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "links/agw_frame.h"
#include "tests/links/agw_support.h"

namespace zepril {
namespace {

class AgwLinkTest : public RemoteLinkTest {
 protected:
  AgwLinkTest() {
    identity.MyCallFull = "QX7KB";
    clock.Drive(looks, false);
  }
  // The engine answers the registration after `seconds` with `reply`.
  void EngineAnswers(std::string reply, double seconds = 0.5) {
    socket.OnConnect = [this] {
      clock.Schedule(0.1, [this] { socket.SetState(SocketState::Connected); });
    };
    socket.OnSend = [this, reply, seconds](std::string_view bytes) {
      if (bytes[4] == 'X') clock.Schedule(seconds, [this, reply] { socket.Deliver(reply); });
    };
  }
  static std::string Accepted() { return MakeAgwFrame(0, 'X', "QX7KB", "", "\x01"); }
};

TEST_F(AgwLinkTest, ConnectsRegistersAndMonitors) {
  EngineAnswers(Accepted());
  radio.BaudMode = "1200";
  EXPECT_TRUE(link.ConnectAgw());
  EXPECT_EQ(socket.Host, "QX7KB0");
  EXPECT_EQ(socket.Port, 8000);
  EXPECT_EQ(radio.AgwConnected, 1);
  ASSERT_EQ(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0], MakeAgwFrame(1, 'X', "QX7KB", "APRS", {}));
  EXPECT_EQ(socket.Sent[1], MakeAgwFrame(1, 'm', "QX7KB", "APRS", {}));
  EXPECT_TRUE(radio.AgwRxBuffer.empty());
}

TEST_F(AgwLinkTest, ARefusedConnectionSaysSoAndEndsTheProgram) {
  socket.OnConnect = [this] {
    clock.Schedule(1.0, [this] { socket.SetState(SocketState::Error); });
  };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(AgwLinkTest, AHostThatHangsUpAtOnceDoesNotHoldTheStart) {
  socket.OnConnect = [this] {
    clock.Schedule(0.01, [this] { socket.SetState(SocketState::PeerClosed); });
  };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
}

TEST_F(AgwLinkTest, ASilentEngineIsGivenTenSeconds) {
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
  EXPECT_NEAR(clock.MonotonicSeconds(), 10.0, 0.1);
}

TEST_F(AgwLinkTest, ARefusedRegistrationEndsTheProgram) {
  EngineAnswers(MakeAgwFrame(0, 'X', "QX7KB", "", std::string(1, '\0')));
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
}

TEST_F(AgwLinkTest, DataOfAnyKindReachesTheBuffer) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const std::string text = "1:Fm QX1AB To APRS <UI >[1]\r!x\r\r";
  socket.Deliver(MonitorFrameOf(text) + MakeAgwFrame(0, 'G', "", "", "ports"));
  EXPECT_EQ(radio.AgwRxBuffer, text + "ports");
  EXPECT_EQ(radio.AgwFrame, MakeAgwFrame(0, 'G', "", "", "ports"));
  EXPECT_EQ(radio.LastDataSeconds, clock.MonotonicSeconds());
}

TEST_F(AgwLinkTest, AnEventOfTwoJoinedFramesAppendsEverythingBehindTheFirstHeader) {
  const std::string one = MonitorFrameOf("1:Fm A To B <UI >\r!\r\r");
  const std::string two = MonitorFrameOf("1:Fm C To D <UI >\r!\r\r");
  link.FrameArrived(one + two);
  EXPECT_EQ(radio.AgwRxBuffer, one.substr(36) + two);
}

TEST_F(AgwLinkTest, TheBufferDoesNotGrowWithoutBound) {
  for (int at = 0; at < 20; ++at)
    link.FrameArrived(MonitorFrameOf(std::string(60000, 'x')));
  EXPECT_LE(radio.AgwRxBuffer.size(), kLongestReceiveBuffer);
}

TEST_F(AgwLinkTest, WhatIsNotCollectedForLongIsNotLost) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  std::string sent;
  for (int at = 0; at < 2000; ++at) {
    const std::string text =
        "1:Fm QX" + std::to_string(at) + " To APRS <UI >[1]\r!" + std::string(60, 'x') + "\r\r";
    sent += text;
    socket.Deliver(MonitorFrameOf(text));
    EXPECT_LE(radio.AgwRxBuffer.size(), AgwLink::kMostHandedOn);
  }
  ASSERT_GT(sent.size(), 2 * kLongestReceiveBuffer);
  std::string collected;
  for (int tick = 0; tick < 60 && collected.size() < sent.size(); ++tick) {
    collected += radio.AgwRxBuffer;
    radio.AgwRxBuffer.clear();
    clock.Wait(1.0);
    looks.Fired();
    if (looks.Elapsed) looks.Elapsed();
  }
  EXPECT_EQ(collected, sent);
}

TEST_F(AgwLinkTest, WhatWaitsDoesNotGrowWithoutBoundAndLosesTheOldest) {
  for (int at = 0; at < 40; ++at)
    link.FrameArrived(
        MonitorFrameOf(" " + std::to_string(at) + ":" + std::string(50000, 'x') + "\r\r"));
  std::string collected;
  for (int taken = 0; taken < 40; ++taken) {
    collected += radio.AgwRxBuffer;
    radio.AgwRxBuffer.clear();
    link.FrameArrived(MonitorFrameOf("?\r\r"));
  }
  EXPECT_LE(collected.size(), AgwLink::kMostWaiting + kLongestReceiveBuffer);
  EXPECT_EQ(collected.find(" 5:"), std::string::npos);
  for (int at = 25; at < 40; ++at)
    EXPECT_NE(collected.find(" " + std::to_string(at) + ":"), std::string::npos) << at;
}

TEST_F(AgwLinkTest, AnEngineThatRefusesTheCallLaterIsNoLinkAndIsAskedAgain) {
  EngineAnswers(Accepted(), 0.0);
  int changes = 0;
  link.ConnectAgw();
  link.LinkChanged = [&] { ++changes; };
  socket.SetState(SocketState::PeerClosed);
  EngineAnswers(MakeAgwFrame(0, 'X', "QX7KB", "", std::string(1, '\0')), 0.1);
  const auto pass = [this](int seconds) {
    for (int second = 0; second < seconds; ++second) {
      clock.Wait(1.0);
      if (looks.Elapsed) looks.Elapsed();
    }
  };
  pass(40);
  EXPECT_FALSE(link.LinkIsUp());
  EXPECT_EQ(radio.AgwConnected, 0);
  EXPECT_EQ(changes, 1);
  EXPECT_GE(socket.Connects, 3);
  transmission.AgwTxText = "Test";
  const std::size_t sent = socket.Sent.size();
  EXPECT_FALSE(link.SendAgwUnproto());
  EXPECT_EQ(socket.Sent.size(), sent);
  EngineAnswers(Accepted(), 0.1);
  pass(15);
  EXPECT_TRUE(link.LinkIsUp());
  EXPECT_EQ(changes, 2);
}

TEST_F(AgwLinkTest, DisconnectUnregistersAndWaitsASecond) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const double before = clock.MonotonicSeconds();
  link.DisconnectAgw();
  EXPECT_EQ(socket.Sent.back(), MakeAgwFrame(0, 'x', "QX7KB", "APRS", {}));
  EXPECT_NEAR(clock.MonotonicSeconds() - before, 1.0, 1e-9);
  EXPECT_EQ(radio.AgwConnected, 0);
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(AgwLinkTest, DisconnectOfALostLinkOnlyCloses) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  socket.SetState(SocketState::PeerClosed);
  const std::size_t sent = socket.Sent.size();
  link.DisconnectAgw();
  EXPECT_EQ(socket.Sent.size(), sent);
  EXPECT_EQ(radio.AgwConnected, 0);
}

TEST_F(AgwLinkTest, UnprotoGoesOutOnlyWhenConnectedAndSaysWhenItFails) {
  transmission.TxPath = "WIDE1-1";
  transmission.AgwTxText = "=test";
  link.SendAgwUnproto();
  EXPECT_TRUE(socket.Sent.empty());
  EngineAnswers(Accepted());
  link.ConnectAgw();
  link.SendAgwUnproto();
  EXPECT_EQ(socket.Sent.back(),
            MakeAgwFrame(0, 'V', "QX7KB", "ZEPR", AgwUnprotoData("WIDE1-1", "=test")));
  socket.FailSends = true;
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE ERROR !");
  link.SendAgwUnproto();
}

TEST_F(AgwLinkTest, OnALinkThatIsLostNothingIsSentAndNoBoxAppears) {
  transmission.AgwTxText = "=test";
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const std::size_t before = socket.Sent.size();
  socket.SetState(SocketState::PeerClosed);
  socket.FailSends = true;
  link.SendAgwUnproto();
  EXPECT_EQ(socket.Sent.size(), before);
}

TEST_F(AgwLinkTest, ALostLinkIsOpenedAgainQuietlyEveryTenSeconds) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  socket.SetState(SocketState::PeerClosed);
  socket.OnConnect = nullptr;  // nobody answers yet
  EXPECT_FALSE(link.LinkIsUp());
  clock.Run(35.0);
  EXPECT_EQ(socket.Connects, 4);
  EXPECT_EQ(radio.AgwConnected, 0);
  EngineAnswers(Accepted());
  socket.Sent.clear();
  clock.Run(21.0);
  EXPECT_TRUE(link.LinkIsUp());
  ASSERT_GE(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0][4], 'X');
  EXPECT_EQ(socket.Sent[1][4], 'm');
  EXPECT_FALSE(program.Ended);
}

}  // namespace
}  // namespace zepril
