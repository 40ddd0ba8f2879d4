// The gate's link over real sockets, to a server that is good, slow, silent, rude, endless or deaf.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "gate/aprs_is_link.h"
#include "gate/aprs_is_login.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_socket.h"
#include "tool/aprs_is_server.h"

namespace zepril {
namespace {

constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

class GateServerTest : public ::testing::Test {
 protected:
  GateServerTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB-10";
    internet.AprsIsPasscode = PasscodeOf("QX7KB");
    internet.AprsIsServer = "127.0.0.1";
    internet.IGateOn = Gate::On;
  }
  void Open(const AprsIsManners& manners = {}) {
    server = AprsIsServer::Open(0, manners, loop);
    ASSERT_NE(server, nullptr);
    server->Line = [this](std::string_view line) { lines.emplace_back(line); };
    internet.AprsIsPort = WholeNumber(server->Port());
  }
  // Serves both ends until `reached`; false when that lasts too long.
  bool Until(const std::function<bool()>& reached) {
    const double end = loop.MonotonicSeconds() + kPatience;
    while (!reached()) {
      if (loop.MonotonicSeconds() > end) return false;
      server->Serve(0);
      loop.Wait(0.001);
    }
    return true;
  }
  bool IsUp() const { return internet.IGateConnected == GateLink::Up; }
  bool Received(const std::string& words) const {
    return internet.AprsIsRxBuffer.find(words) != std::string::npos;
  }
  void Connect() {
    link.IGateTick();
    ASSERT_TRUE(Until([this] { return link.IsConnected() && server->Clients() == 1; }));
  }
  void LogIn() {
    Connect();
    link.IGateTick();
    ASSERT_TRUE(Until([this] { return Received(" verified"); }));
    link.IGateTick();
    ASSERT_TRUE(IsUp());
    lines.clear();
  }

  QtLoop loop;
  QtSocket socket;
  InternetState internet;
  IdentityState identity;
  AprsIsLink link{internet, identity, socket};
  std::unique_ptr<AprsIsServer> server;
  std::vector<std::string> lines;
};

TEST_F(GateServerTest, LinesReachTheServerByteForByte) {
  Open();
  LogIn();
  std::string all = "QX7AB>ZEPR,qAR,QX7KB-10:";
  for (int code = 0; code < 256; ++code) {
    if (code != '\n') all += Chr(code);
  }
  all += "   \r\n";
  ASSERT_TRUE(link.Write(all));
  ASSERT_TRUE(Until([this] { return !lines.empty(); }));
  EXPECT_EQ(lines, std::vector<std::string>{all});
}

TEST_F(GateServerTest, AWrongPasscodeIsRefused) {
  Open();
  internet.AprsIsPasscode = "1";
  Connect();
  link.IGateTick();
  ASSERT_TRUE(Until([this] { return link.IsRefused(); }));
  link.IGateTick();
  EXPECT_FALSE(IsUp());
}

TEST_F(GateServerTest, ASlowServerIsWaitedFor) {
  Open({.AnswerAfterSeconds = 0.1});
  LogIn();
}

TEST_F(GateServerTest, ASilentServerGetsTheLoginAgain) {
  Open({.Silent = true});
  Connect();
  for (std::size_t tick = 1; tick <= 3; ++tick) {
    link.IGateTick();
    ASSERT_TRUE(Until([&] { return lines.size() == tick; }));
    EXPECT_EQ(lines.back(), "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n");
  }
  EXPECT_FALSE(IsUp());
}

TEST_F(GateServerTest, AServerMayHangUpAtEveryByteOfTheLogin) {
  const std::string login = LoginLine("QX7KB", internet.AprsIsPasscode, "8.08");
  for (std::size_t byte = 0; byte <= login.size(); ++byte) {
    link.Close();
    Open({.ClosesAtByte = byte});
    link.IGateTick();
    ASSERT_TRUE(Until(
        [&] { return server->ClientsSoFar() == 1 && socket.State() != SocketState::Connecting; }));
    if (link.IsConnected()) link.IGateTick();
    ASSERT_TRUE(Until([&] { return !link.IsConnected(); })) << byte;
    EXPECT_FALSE(IsUp()) << byte;
    // The next tick begins anew.
    link.IGateTick();
    ASSERT_TRUE(Until([&] { return server->ClientsSoFar() == 2; })) << byte;
    EXPECT_FALSE(IsUp()) << byte;
  }
}

TEST_F(GateServerTest, AHundredMegabytesWithoutALineEndStayFlat) {
  Open({.Babbles = true});
  Connect();
  link.IGateTick();
  std::size_t most = 0;
  ASSERT_TRUE(Until([&] {
    most = std::max(most, internet.AprsIsRxBuffer.capacity());
    return server->BytesSent() > 100'000'000;
  })) << server->BytesSent();
  EXPECT_LE(internet.AprsIsRxBuffer.size(), AprsIsLink::kMostReceived);
  EXPECT_LE(most, 4 * AprsIsLink::kMostReceived);
  EXPECT_TRUE(link.IsConnected());
}

TEST_F(GateServerTest, AServerThatNeverReadsIsLeftWithItsBytes) {
  Open({.NeverReads = true});
  Connect();
  internet.IGateConnected = GateLink::Up;
  const std::string line = "QX7AB>ZEPR,qAR,QX7KB-10:" + std::string(200, 'x') + "\r\n";
  std::size_t taken = 0;
  while (link.Write(line)) {
    ++taken;
    loop.Wait(0.0);
    ASSERT_LT(taken, 100'000U);
  }
  EXPECT_LE(socket.UnsentBytes(), static_cast<std::size_t>(16) << 20);
  for (int second = 0; second <= AprsIsLink::kPatientLooks; ++second)
    link.Look();
  EXPECT_EQ(socket.State(), SocketState::Closed);
  EXPECT_FALSE(IsUp());
  EXPECT_FALSE(link.Write(line));
  EXPECT_TRUE(Until([this] { return server->Clients() == 0; }));
  EXPECT_TRUE(lines.empty());
}

TEST_F(GateServerTest, NothingArrivesAfterSwitchingOff) {
  Open();
  LogIn();
  ASSERT_TRUE(link.Write("QX7AB>ZEPR,qAR,QX7KB-10:before\r\n"));
  ASSERT_TRUE(Until([this] { return lines.size() == 1; }));
  internet.IGateOn = Gate::Off;
  link.IGateTick();
  EXPECT_FALSE(link.Write("QX7AB>ZEPR,qAR,QX7KB-10:after\r\n"));
  ASSERT_TRUE(Until([this] { return server->Clients() == 0; }));
  EXPECT_EQ(lines.size(), 1U);
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
