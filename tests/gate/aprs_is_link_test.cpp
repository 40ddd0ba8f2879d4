// Steps of the connection to a server, good and bad ones, byte by byte.
#include "gate/aprs_is_link.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/doubles/fake_socket.h"

namespace zepril {
namespace {

constexpr const char* kLogin = "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n";
constexpr const char* kVerified = "# logresp QX7KB verified, server T2TEST\r\n";
constexpr const char* kLine = "QX7AB>ZEPR,qAR,QX7KB:!tst\r\n";

class AprsIsLinkTest : public ::testing::Test {
 protected:
  AprsIsLinkTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB-10";
    internet.AprsIsPasscode = "22513";
    internet.AprsIsServer = "igate.example";
    internet.AprsIsPort = "14580";
    internet.IGateOn = Gate::On;
  }
  void Connect() {
    link.IGateTick();
    socket.SetState(SocketState::Connected);
  }
  void LogIn() {
    Connect();
    link.IGateTick();
    socket.Deliver(kVerified);
    link.IGateTick();
    socket.Sent.clear();
  }
  bool IsUp() const { return internet.IGateConnected == GateLink::Up; }

  InternetState internet;
  IdentityState identity;
  FakeSocket socket;
  AprsIsLink link{internet, identity, socket};
};

TEST_F(AprsIsLinkTest, SwitchedOffItStaysClosed) {
  internet.IGateOn = Gate::Off;
  link.IGateTick();
  EXPECT_EQ(socket.Connects, 0);
  EXPECT_EQ(socket.State(), SocketState::Closed);
  // A number of the file that is not 1 is not on.
  internet.IGateOn = static_cast<Gate>(8);
  link.IGateTick();
  EXPECT_EQ(socket.Connects, 0);
}

TEST_F(AprsIsLinkTest, ConnectsToTheServerOfTheSettings) {
  internet.AprsIsRxBuffer = "left over";
  link.IGateTick();
  EXPECT_EQ(socket.Host, "igate.example");
  EXPECT_EQ(socket.Port, 14580);
  EXPECT_EQ(internet.AprsIsRxBuffer, "");
  EXPECT_FALSE(IsUp());
  EXPECT_TRUE(socket.Sent.empty());
  for (const char* port : {"", "abc", "-1", "70000"}) {
    internet.AprsIsPort = port;
    link.IGateTick();
    EXPECT_EQ(socket.Port, 0) << port;
  }
}

TEST_F(AprsIsLinkTest, AConnectionThatDoesNotStandIsBegunAnewByEachTick) {
  for (const SocketState state : {SocketState::Connecting, SocketState::Error,
                                  SocketState::PeerClosed, SocketState::Closed}) {
    const int before = socket.Connects;
    socket.SetState(state);
    link.IGateTick();
    EXPECT_EQ(socket.Connects, before + 1);
  }
}

TEST_F(AprsIsLinkTest, SaysTheLoginInEachTickUntilItHolds) {
  Connect();
  for (int tick = 0; tick < 3; ++tick)
    link.IGateTick();
  EXPECT_EQ(socket.Sent, (std::vector<std::string>{kLogin, kLogin, kLogin}));
  socket.Deliver("# aprsc\r\n");
  socket.Deliver(kVerified);
  EXPECT_FALSE(IsUp());
  socket.Sent.clear();
  // The tick that sees the answer says nothing more.
  link.IGateTick();
  EXPECT_TRUE(IsUp());
  EXPECT_EQ(internet.AprsIsRxBuffer, "");
  link.IGateTick();
  EXPECT_TRUE(socket.Sent.empty());
  EXPECT_EQ(socket.Connects, 1);
}

TEST_F(AprsIsLinkTest, TheLoginIsThatOfTheCallWithoutSsid) {
  identity.MyCall = "QX7KB-10";
  Connect();
  link.IGateTick();
  EXPECT_EQ(socket.Sent, std::vector<std::string>{kLogin});
  socket.Deliver("# LOGRESP qx7kb Verified, server X");
  link.IGateTick();
  EXPECT_TRUE(IsUp());
}

TEST_F(AprsIsLinkTest, ARefusedLoginIsSaidAgainAndTold) {
  Connect();
  link.IGateTick();
  EXPECT_FALSE(link.IsRefused());
  socket.Deliver("# logresp QX7KB unverified, server T2TEST\r\n");
  link.IGateTick();
  EXPECT_FALSE(IsUp());
  EXPECT_TRUE(link.IsRefused());
  EXPECT_EQ(socket.Sent.size(), 2U);
}

TEST_F(AprsIsLinkTest, TheAnswerMayComeInPieces) {
  for (std::size_t cut = 0; cut <= std::string(kVerified).size(); ++cut) {
    internet.IGateConnected = GateLink::Down;
    socket.SetState(SocketState::Closed);
    Connect();
    link.IGateTick();
    socket.Deliver(std::string(kVerified).substr(0, cut));
    socket.Deliver(std::string(kVerified).substr(cut));
    link.IGateTick();
    EXPECT_TRUE(IsUp()) << cut;
  }
}

TEST_F(AprsIsLinkTest, WhatTheServerSendsAfterwardsIsThrownAway) {
  LogIn();
  socket.Deliver("N0CALL>APRS,TCPIP*:!5230.00N/01324.00E>\r\n");
  link.IGateTick();
  EXPECT_EQ(internet.AprsIsRxBuffer, "");
  EXPECT_TRUE(IsUp());
  EXPECT_TRUE(socket.Sent.empty());
}

TEST_F(AprsIsLinkTest, ALostConnectionIsLoggedInAnew) {
  LogIn();
  socket.SetState(SocketState::PeerClosed);
  EXPECT_FALSE(link.Write(kLine));
  link.IGateTick();
  EXPECT_FALSE(IsUp());
  EXPECT_EQ(socket.Connects, 2);
  socket.SetState(SocketState::Connected);
  EXPECT_FALSE(link.Write(kLine));
  link.IGateTick();
  EXPECT_EQ(socket.Sent, std::vector<std::string>{kLogin});
}

TEST_F(AprsIsLinkTest, SwitchedOffItIsClosedByTheNextTick) {
  LogIn();
  EXPECT_TRUE(link.Write(kLine));
  internet.IGateOn = Gate::Off;
  link.IGateTick();
  EXPECT_EQ(socket.State(), SocketState::Closed);
  EXPECT_EQ(socket.Drops, 0);
  EXPECT_FALSE(IsUp());
  EXPECT_FALSE(link.Write(kLine));
  link.IGateTick();
  EXPECT_EQ(socket.Connects, 1);
}

TEST_F(AprsIsLinkTest, WhatHasNotLeftAtSwitchingOffIsDropped) {
  LogIn();
  link.Write(kLine);
  socket.Unsent = 27;
  internet.IGateOn = Gate::Off;
  link.IGateTick();
  EXPECT_EQ(socket.Drops, 1);
}

TEST_F(AprsIsLinkTest, LinesLeaveOnlyLoggedIn) {
  EXPECT_FALSE(link.Write(kLine));
  Connect();
  EXPECT_FALSE(link.Write(kLine));
  EXPECT_TRUE(socket.Sent.empty());
  LogIn();
  EXPECT_TRUE(link.Write(kLine));
  EXPECT_EQ(socket.Sent, std::vector<std::string>{kLine});
}

TEST_F(AprsIsLinkTest, AServerThatNeverReadsIsDroppedWithWhatWaits) {
  LogIn();
  link.Write(kLine);
  socket.Unsent = 27;
  for (int second = 0; second < AprsIsLink::kPatientLooks; ++second)
    link.Look();
  EXPECT_EQ(socket.Drops, 0);
  EXPECT_TRUE(IsUp());
  link.Look();
  EXPECT_EQ(socket.Drops, 1);
  EXPECT_FALSE(IsUp());
  EXPECT_FALSE(link.Write(kLine));
  link.IGateTick();
  EXPECT_EQ(socket.Connects, 2);
}

TEST_F(AprsIsLinkTest, ALinkWhoseBytesLeaveIsNotDropped) {
  LogIn();
  for (int second = 0; second < 100; ++second) {
    socket.Unsent = second % 10 == 9 ? 0 : 27;
    link.Look();
  }
  EXPECT_EQ(socket.Drops, 0);
}

TEST_F(AprsIsLinkTest, LoginsThatAreNotTakenDropTheLinkToo) {
  Connect();
  link.IGateTick();
  socket.Unsent = 60;
  for (int second = 0; second <= AprsIsLink::kPatientLooks; ++second)
    link.Look();
  EXPECT_EQ(socket.Drops, 1);
}

TEST_F(AprsIsLinkTest, TextWithoutEndIsKeptWithinItsBound) {
  Connect();
  link.IGateTick();
  const std::string endless(1 << 20, 'x');
  std::size_t most = 0;
  for (int megabyte = 0; megabyte < 100; ++megabyte) {
    socket.Deliver(endless);
    most = std::max(most, internet.AprsIsRxBuffer.capacity());
  }
  EXPECT_EQ(internet.AprsIsRxBuffer.size(), AprsIsLink::kMostReceived);
  EXPECT_LE(most, 4 * AprsIsLink::kMostReceived);
  // In small pieces too; what comes last is what counts.
  for (int piece = 0; piece < 1000; ++piece)
    socket.Deliver("0123456789");
  EXPECT_EQ(internet.AprsIsRxBuffer.size(), AprsIsLink::kMostReceived);
  socket.Deliver(kVerified);
  link.IGateTick();
  EXPECT_TRUE(IsUp());
  socket.Deliver(endless);
  EXPECT_LE(internet.AprsIsRxBuffer.size(), AprsIsLink::kMostReceived);
  link.IGateTick();
  EXPECT_EQ(internet.AprsIsRxBuffer, "");
}

TEST_F(AprsIsLinkTest, AClosedLinkListensNoMore) {
  Connect();
  internet.IGateOn = Gate::Off;
  link.IGateTick();
  EXPECT_FALSE(static_cast<bool>(socket.DataArrived));
  socket.Deliver(kVerified);
  EXPECT_EQ(internet.AprsIsRxBuffer, "");
}

TEST_F(AprsIsLinkTest, TheEndGivesTheSocketBack) {
  {
    AprsIsLink other(internet, identity, socket);
    other.IGateTick();
    EXPECT_TRUE(static_cast<bool>(socket.DataArrived));
  }
  EXPECT_FALSE(static_cast<bool>(socket.DataArrived));
}

}  // namespace
}  // namespace zepril
