// Plays in their time, and a played engine's clients over loopback.
#include "tool/air_command.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "links/agw_frame.h"
#include "tool/arguments.h"

namespace zepril {
namespace {

AirPlay PlayOf(std::string_view text, double rate = 1, bool repeat = false) {
  return AirPlay(ReadAirScript(text), rate, repeat);
}

std::string CallsDue(AirPlay& play, double now) {
  std::string calls;
  while (const AirPacket* packet = play.Due(now))
    calls += packet->From + ' ';
  return calls;
}

TEST(AirPlay, GivesPacketsWhenTheyAreDue) {
  AirPlay play = PlayOf("@1 A1>B:x\n@2 A2>B:x\n@2 A3>B:x\n@9 A4>B:x\n");
  EXPECT_EQ(CallsDue(play, 100), "");  // not begun
  play.Begin(100);
  EXPECT_EQ(CallsDue(play, 100.5), "");
  EXPECT_DOUBLE_EQ(play.SecondsToNext(100.5, 7), 0.5);
  EXPECT_EQ(CallsDue(play, 102), "A1 A2 A3 ");
  EXPECT_EQ(CallsDue(play, 1000), "A4 ");
  EXPECT_EQ(CallsDue(play, 2000), "");
  EXPECT_EQ(play.SecondsToNext(2000, 7), 7);
}

TEST(AirPlay, RateDividesTheTimes) {
  AirPlay play = PlayOf("@10 A1>B:x\n@20 A2>B:x\n", 20);
  play.Begin(0);
  EXPECT_EQ(CallsDue(play, 0.5), "A1 ");
  EXPECT_EQ(CallsDue(play, 1.0), "A2 ");
}

TEST(AirPlay, RepeatsASecondAfterTheLastPacket) {
  AirPlay play = PlayOf("@0 A1>B:x\n@3 A2>B:x\n", 1, true);
  play.Begin(0);
  EXPECT_EQ(CallsDue(play, 3.9), "A1 A2 ");
  EXPECT_EQ(CallsDue(play, 4.0), "A1 ");
  EXPECT_EQ(CallsDue(play, 7.0), "A2 ");
}

TEST(AirPlay, AnEmptyScriptIsNotRepeated) {
  AirPlay play = PlayOf("", 1, true);
  play.Begin(0);
  EXPECT_EQ(CallsDue(play, 10), "");
}

int Air(std::vector<std::string_view> args) {
  return RunAir(args);
}

TEST(RunAirTest, NeedsADeviceAndASensibleRate) {
  EXPECT_EQ(Air({}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--play", "file"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--agw", "70000"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--agw", "0", "--rate", "0"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--pk232"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--aprs-is", "70000"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--aprs-is", "0", "--aprs-is-manner", "loud"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--gps", "x", "--gps-manner", "loud"}), Arguments::kUsageError);
  EXPECT_EQ(Air({"--gps", "x", "--gps-route", "north"}), Arguments::kUsageError);
}

TEST(RunAirTest, EndsWhenAFileOrALinkCannotBeHad) {
  EXPECT_EQ(Air({"--agw", "0", "--play", "/no/such/file"}), 1);
  EXPECT_EQ(Air({"--agw", "0", "--scs-ptc", "/no/such/folder/modem"}), 1);
}

TEST(SentLineTest, ShowsWhatWasHandedOverInOneLine) {
  EXPECT_EQ(SentLine({1, "QX7KB-9", "ZEPR", "WIDE1-1", "=a\rb"}),
            "SENT 1 QX7KB-9>ZEPR,WIDE1-1:=a\\x0Db\n");
  EXPECT_EQ(SentLine({0, "A", "B", "", "x"}), "SENT 0 A>B:x\n");
}

TEST(AgwUnprotoReading, TakesDigipeatersAndText) {
  std::string path;
  std::string text;
  EXPECT_TRUE(ReadAgwUnproto(AgwUnprotoData("WIDE1-1,WIDE2-1", "Hi"), path, text));
  EXPECT_EQ(path, "WIDE1-1,WIDE2-1");
  EXPECT_EQ(text, "Hi");
  EXPECT_TRUE(ReadAgwUnproto(AgwUnprotoData("", "Hi"), path, text));
  EXPECT_EQ(path, "");
  EXPECT_EQ(text, "Hi");
}

TEST(AgwUnprotoReading, RefusesACountThatLies) {
  std::string path;
  std::string text;
  EXPECT_FALSE(ReadAgwUnproto("", path, text));
  EXPECT_FALSE(ReadAgwUnproto("\x05short", path, text));
}

// A program at the other end of the loopback.
class Client {
 public:
  explicit Client(int port) : descriptor_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    Connected = ::connect(descriptor_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  }
  ~Client() { ::close(descriptor_); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  void Send(std::string_view bytes) {
    EXPECT_EQ(::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(bytes.size()));
  }
  // What has come; the engine has served before.
  std::string Received() {
    std::string all;
    std::array<char, 4096> block;
    for (;;) {
      const ssize_t length = ::recv(descriptor_, block.data(), block.size(), MSG_DONTWAIT);
      if (length == 0) Ended = true;
      if (length <= 0) return all;
      all.append(block.data(), static_cast<std::size_t>(length));
    }
  }

  bool Connected = false;
  bool Ended = false;

 private:
  int descriptor_;
};

class AgwServerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    server = AgwServer::Open(0);
    ASSERT_NE(server, nullptr);
    ASSERT_GT(server->Port(), 0);
  }
  void Serve(int times = 6) {
    for (int i = 0; i < times; ++i)
      server->Serve(20);
  }
  std::unique_ptr<AgwServer> server;
};

TEST_F(AgwServerTest, AcceptsARegistrationWithOneByteOne) {
  Client client(server->Port());
  ASSERT_TRUE(client.Connected);
  client.Send(MakeAgwFrame(1, 'X', "QX7KB", "APRS", {}));
  Serve();
  const std::string answer = client.Received();
  ASSERT_EQ(answer.size(), 37U);
  EXPECT_EQ(ReadAgwHeader(answer).Kind, 'X');
  EXPECT_EQ(ReadAgwHeader(answer).From, "QX7KB");
  EXPECT_EQ(answer.back(), '\x01');
}

TEST_F(AgwServerTest, OnlyClientsThatAskGetFrames) {
  Client asking(server->Port());
  Client silent(server->Port());
  asking.Send(MakeAgwFrame(0, 'm', "QX7KB", "", {}));
  Serve();
  EXPECT_EQ(server->Clients(), 2U);
  EXPECT_EQ(server->Monitoring(), 1U);
  server->Broadcast("frame");
  EXPECT_EQ(asking.Received(), "frame");
  EXPECT_EQ(silent.Received(), "");
}

TEST_F(AgwServerTest, FramesMayArriveInPieces) {
  std::vector<std::string> sent;
  server->Sent = [&sent](const AgwUnproto& unproto) { sent.push_back(SentLine(unproto)); };
  const std::string frame =
      MakeAgwFrame(1, 'V', "QX7KB-9", "ZEPR", AgwUnprotoData("WIDE1-1", "=test"));
  const std::string both = frame + frame;
  Client client(server->Port());
  for (char byte : both) {
    client.Send({&byte, 1});
    server->Serve(20);
  }
  Serve();
  EXPECT_EQ(sent, std::vector<std::string>(2, "SENT 1 QX7KB-9>ZEPR,WIDE1-1:=test\n"));
  EXPECT_EQ(client.Received(), "");
}

TEST_F(AgwServerTest, CutsAClientWhoseFrameCannotBeOne) {
  Client client(server->Port());
  client.Send(std::string(kAgwHeaderLength, '\xFF'));
  Serve();
  EXPECT_EQ(server->Clients(), 0U);
  client.Received();
  EXPECT_TRUE(client.Ended);
}

TEST_F(AgwServerTest, CutsAClientThatDoesNotRead) {
  Client slow(server->Port());
  Client reading(server->Port());
  slow.Send(MakeAgwFrame(0, 'm', "SLOW", "", {}));
  reading.Send(MakeAgwFrame(0, 'm', "READER", "", {}));
  Serve();
  const std::string frame(60000, 'x');
  std::size_t read = 0;
  constexpr std::size_t kFrames = 200;
  for (std::size_t i = 0; i < kFrames; ++i) {
    server->Broadcast(frame);
    for (int at = 0; at < 50 && read < (i + 1) * frame.size(); ++at) {
      read += reading.Received().size();
      server->Serve(0);
    }
  }
  EXPECT_EQ(read, kFrames * frame.size());
  EXPECT_EQ(server->Monitoring(), 1U);
}

TEST_F(AgwServerTest, RefusesClientsBeyondItsPlaces) {
  std::vector<std::unique_ptr<Client>> clients;
  for (std::size_t i = 0; i < AgwServer::kMostClients + 1; ++i) {
    clients.push_back(std::make_unique<Client>(server->Port()));
    Serve(2);
  }
  EXPECT_EQ(server->Clients(), AgwServer::kMostClients);
  clients.back()->Received();
  EXPECT_TRUE(clients.back()->Ended);
  clients.front().reset();
  Serve();
  EXPECT_EQ(server->Clients(), AgwServer::kMostClients - 1);
}

TEST_F(AgwServerTest, ASecondEngineCannotTakeThePort) {
  EXPECT_EQ(AgwServer::Open(server->Port()), nullptr);
}

}  // namespace
}  // namespace zepril
