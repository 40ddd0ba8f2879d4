// Web services on loopback: pages asked for and not there, the form for messages, and clients that
// behave badly.
#include "tool/web_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <string>

#include "core/text_fields.h"
#include "platform/native/system_clock.h"
#include "tests/doubles/virtual_clock.h"
#include "tool/air_devices.h"

namespace zepril {
namespace {

// A client's plain socket.
class Client {
 public:
  explicit Client(int port) : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
  }
  ~Client() { ::close(socket_); }
  void Say(const std::string& text) {
    EXPECT_EQ(::send(socket_, text.data(), text.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(text.size()));
  }
  // All that comes until the server closes.
  template <typename Server>
  std::string Page(Server& server) {
    const std::string page = WhatComes(server, 200);
    return closed_ ? page : page + " (not closed)";
  }
  // All that has come within some turns of the server.
  template <typename Server>
  const std::string& WhatComes(Server& server, int turns = 5) {
    char block[65536];
    for (int turn = 0; turn < turns && !closed_; ++turn) {
      server.Serve(10);
      const ssize_t length = ::recv(socket_, block, sizeof block, MSG_DONTWAIT);
      closed_ = length == 0;
      if (length > 0) come_.append(block, static_cast<std::size_t>(length));
    }
    return come_;
  }

 private:
  int socket_;
  std::string come_;
  bool closed_ = false;
};

class WebServerTest : public ::testing::Test {
 protected:
  WebServerTest() : server(WebServer::Open(0, &clock)) {}
  VirtualClock clock;
  std::unique_ptr<WebServer> server;
};

TEST_F(WebServerTest, APageIsAnsweredAndTheConnectionClosed) {
  std::string asked;
  server->Asked = [&](std::string_view target) {
    asked = target;
    return WebAnswer{200, "<html>page</html>"};
  };
  Client client(server->Port());
  client.Say("GET /a?b=c HTTP/1.1\r\nHost: x\r\n\r\n");
  const std::string page = client.Page(*server);
  EXPECT_EQ(asked, "/a?b=c");
  EXPECT_TRUE(page.starts_with("HTTP/1.1 200 OK\r\n")) << page;
  EXPECT_TRUE(page.ends_with("Content-Length: 17\r\n\r\n<html>page</html>")) << page;
  EXPECT_EQ(server->Clients(), 0U);
}

TEST_F(WebServerTest, WhatNobodyAnswersIsNotThere) {
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n");
  server->Serve(10);
  client.Say("\r\n");
  EXPECT_TRUE(client.Page(*server).starts_with("HTTP/1.1 404 Not Found\r\n"));
}

TEST_F(WebServerTest, APageMayBeCut) {
  server->Asked = [](std::string_view) {
    WebAnswer answer{200, "0123456789"};
    answer.CutAt = 4;
    return answer;
  };
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n\r\n");
  const std::string page = client.Page(*server);
  EXPECT_TRUE(page.ends_with("Content-Length: 10\r\n\r\n0123")) << page;
}

TEST_F(WebServerTest, APageMayComeSlowly) {
  server->Asked = [](std::string_view) {
    WebAnswer answer{200, std::string(1000, 'x')};
    answer.Seconds = 10.0;
    return answer;
  };
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n\r\n");
  std::size_t before = client.WhatComes(*server).size();
  EXPECT_EQ(before, 0U);
  for (int second = 1; second < 10; ++second) {
    clock.Run(1.0);
    const std::string come = client.WhatComes(*server);
    EXPECT_NEAR(static_cast<double>(come.size() - before), 110.0, 15.0) << second;
    before = come.size();
  }
  clock.Run(1.0);
  EXPECT_TRUE(client.Page(*server).ends_with("xxx"));
}

TEST_F(WebServerTest, APageMayHaveNoEnd) {
  server->Asked = [](std::string_view) {
    WebAnswer answer{200, "begin"};
    answer.MoreBytes = WebAnswer::kEndless;
    return answer;
  };
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n\r\n");
  const std::string come = client.WhatComes(*server, 100);
  EXPECT_GT(come.size(), 100'000U);
  EXPECT_EQ(come.find("Content-Length"), std::string::npos);
  EXPECT_EQ(server->Clients(), 1U);
}

TEST_F(WebServerTest, APageMayBeAsLargeAsItLikesAndStillEnd) {
  server->Asked = [](std::string_view) {
    WebAnswer answer{200, "begin"};
    answer.MoreBytes = 300'000;
    return answer;
  };
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n\r\n");
  const std::string page = client.Page(*server);
  EXPECT_NE(page.find("Content-Length: 300005\r\n"), std::string::npos);
  EXPECT_EQ(page.size() - page.find("begin"), 300'005U);
}

TEST_F(WebServerTest, APageMayNeverCome) {
  server->Asked = [](std::string_view) {
    WebAnswer answer{200, "page"};
    answer.Silent = true;
    return answer;
  };
  Client client(server->Port());
  client.Say("GET / HTTP/1.1\r\n\r\n");
  EXPECT_EQ(client.WhatComes(*server), "");
  EXPECT_EQ(server->Clients(), 1U);
}

TEST_F(WebServerTest, NonsenseIsCutOff) {
  for (const std::string& head : {std::string("POST / HTTP/1.1\r\n\r\n"), std::string("\r\n\r\n"),
                                  std::string(WebServer::kLongestHead + 4096, 'x')}) {
    Client client(server->Port());
    client.Say(head);
    EXPECT_EQ(client.Page(*server), "") << head.substr(0, 20);
  }
}

TEST(WebForm, IsReadAsFormsAre) {
  const auto message =
      ReadWebForm("/cgi-bin/sendmsg.cgi?fromcall=QX7KB-10&tocall=AB1CD&msg=A%20b+c%7B07%E4%");
  ASSERT_TRUE(message);
  EXPECT_EQ(message->From, "QX7KB-10");
  EXPECT_EQ(message->To, "AB1CD");
  EXPECT_EQ(message->Text, "A b c{07\xE4%");
  EXPECT_FALSE(ReadWebForm("/cgi-bin/raw.cgi?call=AB1CD"));
  EXPECT_EQ(ReadWebForm("/cgi-bin/sendmsg.cgi?x&=&")->Text, "");
}

TEST(WebForm, ReportsOneLineAMessage) {
  EXPECT_EQ(WebMessageLine({"QX7KB-10", "AB1CD", "a\r\nb{07"}),
            "MESSAGE web QX7KB-10 AB1CD a\\x0D\\x0Ab{07\n");
}

TEST(WebDevice, TakesMessagesByItsForm) {
  std::string reported;
  const SystemClock clock;
  const auto device = OpenWebDevice(
      0, {}, {}, [&](const std::string& line) { reported += line; }, clock);
  ASSERT_TRUE(device);
  const std::string ready = device->ReadyLine();
  ASSERT_TRUE(ready.starts_with("READY web "));
  Client client(static_cast<int>(Val(ready.substr(10))));
  client.Say("GET /cgi-bin/sendmsg.cgi?fromcall=A&tocall=B&msg=C HTTP/1.1\r\n\r\n");
  for (int turn = 0; turn < 200 && reported.empty(); ++turn)
    device->Serve(10);
  EXPECT_EQ(reported, "MESSAGE web A B C\n");
}

TEST(WebDevice, HasPagesByTheirPaths) {
  std::string reported;
  const SystemClock clock;
  const auto device = OpenWebDevice(
      0, {},
      {{"/a",
        [](std::string_view target) {
          return WebAnswer{200, "a of " + std::string(target), "text/plain"};
        }}},
      [&](const std::string& line) { reported += line; }, clock);
  ASSERT_TRUE(device);
  const int port = static_cast<int>(Val(device->ReadyLine().substr(10)));
  const auto page = [&](const std::string& target) {
    Client client(port);
    client.Say("GET " + target + " HTTP/1.1\r\n\r\n");
    return client.Page(*device);
  };
  const std::string there = page("/a?b=1");
  EXPECT_TRUE(there.starts_with("HTTP/1.1 200 OK\r\nContent-Type: text/plain\r\n")) << there;
  EXPECT_TRUE(there.ends_with("\r\n\r\na of /a?b=1")) << there;
  EXPECT_TRUE(page("/ab").starts_with("HTTP/1.1 404 Not Found\r\n"));
  EXPECT_EQ(reported, "PAGE web /a?b=1\nPAGE web /ab\n");
}

}  // namespace
}  // namespace zepril
