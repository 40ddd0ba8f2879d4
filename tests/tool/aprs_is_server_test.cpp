// The played server over loopback: greeting, answers to logins, lines as they came, bad manners.
#include "tool/aprs_is_server.h"

#include <gtest/gtest.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <string>
#include <vector>

#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

constexpr const char* kLogin = "user QX7KB pass 22513 vers ZEPRIL 8.08 filter b/ZZ9ZZZ\r\n";

// A client of the server that it is served with.
class Visitor {
 public:
  explicit Visitor(AprsIsServer& server) : server_(server) {
    descriptor_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(server.Port()));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::connect(descriptor_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    Serve();
  }
  ~Visitor() { ::close(descriptor_); }
  Visitor(const Visitor&) = delete;
  Visitor& operator=(const Visitor&) = delete;

  void Say(const std::string& text) {
    ::send(descriptor_, text.data(), text.size(), MSG_NOSIGNAL);
    Serve();
  }
  // All that has come.
  std::string Heard() {
    Serve();
    std::array<char, 65536> block;
    std::string text;
    for (;;) {
      const ssize_t length = ::recv(descriptor_, block.data(), block.size(), MSG_DONTWAIT);
      hung_up_ = hung_up_ || length == 0;
      if (length <= 0) return text;
      text.append(block.data(), static_cast<std::size_t>(length));
    }
  }
  bool HungUp() const { return hung_up_; }

 private:
  void Serve() {
    for (int turn = 0; turn < 5; ++turn)
      server_.Serve(1);
  }

  AprsIsServer& server_;
  int descriptor_ = -1;
  bool hung_up_ = false;
};

class AprsIsServerTest : public ::testing::Test {
 protected:
  void Open(const AprsIsManners& manners = {}) {
    server = AprsIsServer::Open(0, manners, clock);
    ASSERT_NE(server, nullptr);
    server->Line = [this](std::string_view line) { lines.emplace_back(line); };
  }

  VirtualClock clock;
  std::unique_ptr<AprsIsServer> server;
  std::vector<std::string> lines;
};

TEST_F(AprsIsServerTest, GreetsAndVerifiesByThePasscode) {
  Open();
  Visitor visitor(*server);
  EXPECT_EQ(visitor.Heard(), "# zepril-tool air\r\n");
  visitor.Say(kLogin);
  EXPECT_EQ(visitor.Heard(), "# logresp QX7KB verified, server AIR\r\n");
  Visitor other(*server);
  other.Heard();
  other.Say("user QX7KB pass 22514 vers ZEPRIL 8.08\r\n");
  EXPECT_EQ(other.Heard(), "# logresp QX7KB unverified, server AIR\r\n");
  other.Say("user QX7KB\r\n");
  EXPECT_EQ(other.Heard(), "# logresp QX7KB unverified, server AIR\r\n");
}

TEST_F(AprsIsServerTest, LinesAreToldAsTheyCame) {
  Open();
  Visitor visitor(*server);
  visitor.Say("A>B:one\r\nA>B:t");
  visitor.Say(std::string("wo\0\xFE \r\n", 7));
  EXPECT_EQ(lines,
            (std::vector<std::string>{"A>B:one\r\n", std::string("A>B:two\0\xFE \r\n", 12)}));
}

TEST_F(AprsIsServerTest, ASlowOneAnswersInItsTime) {
  Open({.AnswerAfterSeconds = 3.0});
  Visitor visitor(*server);
  visitor.Heard();
  visitor.Say(kLogin);
  EXPECT_EQ(visitor.Heard(), "");
  clock.Wait(3.0);
  EXPECT_EQ(visitor.Heard(), "# logresp QX7KB verified, server AIR\r\n");
}

TEST_F(AprsIsServerTest, ASilentOneNeverAnswers) {
  Open({.Silent = true});
  Visitor visitor(*server);
  visitor.Heard();
  visitor.Say(kLogin);
  clock.Wait(100.0);
  EXPECT_EQ(visitor.Heard(), "");
  EXPECT_EQ(lines.size(), 1U);
}

TEST_F(AprsIsServerTest, ARudeOneHangsUpAtItsByte) {
  for (const std::size_t bytes : {0, 1, 5, 55, 56}) {
    Open({.ClosesAtByte = bytes});
    Visitor visitor(*server);
    visitor.Say(kLogin);
    visitor.Heard();
    EXPECT_TRUE(visitor.HungUp() || server->Clients() == 0) << bytes;
    EXPECT_EQ(server->ClientsSoFar(), 1U);
  }
}

TEST_F(AprsIsServerTest, ABabblingOneSendsWithoutALineEnd) {
  Open({.Babbles = true});
  Visitor visitor(*server);
  std::string heard;
  while (heard.size() < 1'000'000)
    heard += visitor.Heard();
  EXPECT_EQ(heard.find('\n', 20), std::string::npos);
}

TEST_F(AprsIsServerTest, ADeafOneTakesNothing) {
  Open({.NeverReads = true});
  Visitor visitor(*server);
  visitor.Say(kLogin);
  EXPECT_TRUE(lines.empty());
  EXPECT_EQ(server->Clients(), 1U);
}

TEST_F(AprsIsServerTest, ALineWithoutEndCutsItsClientOff) {
  Open();
  Visitor visitor(*server);
  for (int block = 0; block < 3; ++block)
    visitor.Say(std::string(40000, 'x'));
  EXPECT_EQ(server->Clients(), 0U);
}

TEST(AprsIsManners, AreNamedByWords) {
  EXPECT_TRUE(AprsIsMannersNamed("silent")->Silent);
  EXPECT_TRUE(AprsIsMannersNamed("babbles")->Babbles);
  EXPECT_TRUE(AprsIsMannersNamed("deaf")->NeverReads);
  EXPECT_EQ(AprsIsMannersNamed("slow:2.5")->AnswerAfterSeconds, 2.5);
  EXPECT_EQ(AprsIsMannersNamed("closes:17")->ClosesAtByte, 17U);
  for (const char* wrong : {"", "loud", "slow", "slow:", "slow:x", "closes", "silent:1"})
    EXPECT_FALSE(AprsIsMannersNamed(wrong)) << wrong;
}

}  // namespace
}  // namespace zepril
