// Pages over loopback: whole, redirected, packed, refused, broken off, endless, too large, slow.
#include "platform/qt/qt_page_fetcher.h"

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/qt/qt_loop.h"
#include "tests/platform/qt/application_support.h"
#include "tests/platform/qt/loopback_certificate.h"

namespace zepril {
namespace {

class QtPageFetcherTest : public ::testing::Test {
 protected:
  QtPageFetcherTest() {
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, [this] { TakeConnection(); });
  }

  // Answers each request by its head.
  void TakeConnection() {
    QTcpSocket* peer = server.nextPendingConnection();
    QObject::connect(peer, &QTcpSocket::readyRead, peer, [this, peer] {
      head += peer->readAll().toStdString();
      if (!head.ends_with("\r\n\r\n")) return;
      requests.push_back(head);
      head.clear();
      if (answer) answer(*peer);
    });
  }
  static void Say(QTcpSocket& peer, const std::string& bytes) {
    peer.write(bytes.data(), static_cast<qint64>(bytes.size()));
  }
  static std::string Whole(const std::string& body, const std::string& more = {}) {
    return "HTTP/1.1 200 OK\r\nContent-Type: text/plain; charset=windows-1252\r\n" + more +
           "Content-Length: " + std::to_string(body.size()) + "\r\n\r\n" + body;
  }
  std::string Url(const std::string& path) const {
    return "http://127.0.0.1:" + std::to_string(server.serverPort()) + path;
  }
  std::int64_t Ask(const std::string& url, Asking asking = Asking::Freely) {
    return pages.Fetch(
        url,
        [this](const Page& page) {
          in_step = loop.InStep();
          told.push_back(page);
        },
        asking);
  }
  bool Comes(std::size_t count) {
    return PumpUntil([this, count] { return told.size() >= count; });
  }

  QTcpServer server;
  std::function<void(QTcpSocket&)> answer;
  std::string head;
  std::vector<std::string> requests;
  QtLoop loop;
  QtPageFetcher pages{loop, "8.08"};
  std::vector<Page> told;
  bool in_step = false;
};

TEST_F(QtPageFetcherTest, AWholePageComesWithStatusKindAndBytes) {
  answer = [](QTcpSocket& peer) { Say(peer, Whole("gr\xFC\xDF \x01{07")); };
  Ask(Url("/cgi-bin/sendmsg.cgi?msg=A B{07"));
  ASSERT_TRUE(Comes(1));
  EXPECT_TRUE(told[0].IsGood());
  EXPECT_EQ(told[0].Status, 200);
  EXPECT_EQ(told[0].ContentType, "text/plain; charset=windows-1252");
  EXPECT_EQ(told[0].Body, "gr\xFC\xDF \x01{07");
  EXPECT_TRUE(in_step);
  EXPECT_TRUE(requests[0].starts_with("GET /cgi-bin/sendmsg.cgi?msg=A%20B%7B07 HTTP/1.1\r\n"))
      << requests[0];
}

TEST_F(QtPageFetcherTest, TheServerIsToldWhoAsksAndThatNoCacheWillDo) {
  answer = [](QTcpSocket& peer) { Say(peer, Whole("", "Set-Cookie: a=b\r\n")); };
  Ask(Url("/"));
  Ask(Url("/again"));
  ASSERT_TRUE(Comes(2));
  EXPECT_NE(requests[0].find("User-Agent: ZEPRIL/8.08\r\n"), std::string::npos) << requests[0];
  EXPECT_NE(requests[0].find("Cache-Control: no-cache"), std::string::npos);
  EXPECT_EQ(requests[1].find("Cookie"), std::string::npos);
}

TEST_F(QtPageFetcherTest, EightBitTextGoesAsItsBytes) {
  answer = [](QTcpSocket& peer) { Say(peer, Whole("")); };
  Ask(Url("/?msg=\xE4#1&x=100%"));
  ASSERT_TRUE(Comes(1));
  EXPECT_TRUE(requests[0].starts_with("GET /?msg=%E4%231&x=100%25 HTTP/1.1\r\n")) << requests[0];
}

TEST_F(QtPageFetcherTest, ARedirectIsFollowed) {
  answer = [this](QTcpSocket& peer) {
    Say(peer, requests.size() == 1
                  ? "HTTP/1.1 302 Found\r\nLocation: /there\r\nContent-Length: 0\r\n\r\n"
                  : Whole("there"));
  };
  Ask(Url("/here"));
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Body, "there");
  EXPECT_EQ(told[0].Url, Url("/here"));
}

TEST_F(QtPageFetcherTest, ARedirectInACircleEnds) {
  answer = [](QTcpSocket& peer) {
    Say(peer, "HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n");
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_FALSE(told[0].IsGood());
  EXPECT_LE(requests.size(), 1U + QtPageFetcher::kMostRedirects);
}

TEST_F(QtPageFetcherTest, ARedirectOutOfTheWebIsRefused) {
  answer = [](QTcpSocket& peer) {
    Say(peer, "HTTP/1.1 302 Found\r\nLocation: file:///etc/hostname\r\nContent-Length: 0\r\n\r\n");
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_FALSE(told[0].IsGood());
  EXPECT_EQ(told[0].Body, "");
}

TEST_F(QtPageFetcherTest, APackedPageIsUnpacked) {
  answer = [](QTcpSocket& peer) {
    const unsigned char packed[] = {0x1F, 0x8B, 0x08, 0,    0,    0,    0,    0, 0,
                                    0x03, 0xF3, 0x48, 0xCD, 0xC9, 0xC9, 0x07, 0, 0x82,
                                    0x89, 0xD1, 0xF7, 0x05, 0,    0,    0};
    const std::string bytes(reinterpret_cast<const char*>(packed), sizeof packed);
    Say(peer, Whole(bytes, "Content-Encoding: gzip\r\n"));
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Body, "Hello");
}

TEST_F(QtPageFetcherTest, APackedPageThatUnpacksBeyondMeasureIsGivenUp) {
  const QByteArray packed = qCompress(QByteArray(1 << 26, 'x')).mid(4);
  ASSERT_LT(packed.size(), 1 << 20);
  answer = [&packed](QTcpSocket& peer) {
    Say(peer, Whole(packed.toStdString(), "Content-Encoding: deflate\r\n"));
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_FALSE(told[0].IsGood());
  EXPECT_EQ(told[0].Body, "");
}

TEST_F(QtPageFetcherTest, AStatusOfFaultIsAnAnswer) {
  for (const char* status : {"404 Not Found", "403 Forbidden", "500 Oops", "503 Later"}) {
    answer = [status](QTcpSocket& peer) {
      Say(peer, std::string("HTTP/1.1 ") + status + "\r\nContent-Length: 4\r\n\r\nwhy?");
    };
    Ask(Url("/"));
    ASSERT_TRUE(Comes(told.size() + 1)) << status;
    EXPECT_EQ(told.back().Outcome, PageOutcome::Loaded) << status;
    EXPECT_FALSE(told.back().IsGood()) << status;
    EXPECT_EQ(told.back().Body, "why?") << status;
  }
}

TEST_F(QtPageFetcherTest, ANobodyAndNonsenseFail) {
  QTcpServer gone;
  ASSERT_TRUE(gone.listen(QHostAddress::LocalHost));
  const std::string nobody = "http://127.0.0.1:" + std::to_string(gone.serverPort()) + "/";
  gone.close();
  for (const std::string& url : {nobody, std::string("file:///etc/hostname"),
                                 std::string("nonsense"), std::string(), std::string("http://")}) {
    Ask(url);
    ASSERT_TRUE(Comes(told.size() + 1)) << url;
    EXPECT_EQ(told.back().Outcome, PageOutcome::Failed) << url;
    EXPECT_EQ(told.back().Body, "") << url;
  }
}

TEST_F(QtPageFetcherTest, AnAnswerBrokenOffFails) {
  const std::string whole = Whole("four");
  for (std::size_t length : {std::size_t{0}, std::size_t{5}, whole.size() - 6, whole.size() - 1}) {
    answer = [&whole, length](QTcpSocket& peer) {
      Say(peer, whole.substr(0, length));
      peer.disconnectFromHost();
    };
    Ask(Url("/"));
    ASSERT_TRUE(Comes(told.size() + 1)) << length;
    EXPECT_EQ(told.back().Outcome, PageOutcome::Failed) << length;
  }
}

// A message that was taken and not answered would be sent twice.
TEST_F(QtPageFetcherTest, WhatMustNotBeDoneTwiceIsAskedOnce) {
  answer = [](QTcpSocket& peer) { peer.disconnectFromHost(); };
  Ask(Url("/form?msg=a"), Asking::Once);
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Outcome, PageOutcome::Failed);
  EXPECT_EQ(requests.size(), 1U);
  EXPECT_TRUE(requests[0].starts_with("GET /form?msg=a HTTP/1.1\r\n")) << requests[0];
  // Again and again, and where an answer comes.
  answer = [](QTcpSocket& peer) { Say(peer, Whole("taken")); };
  Ask(Url("/form?msg=b"), Asking::Once);
  Ask(Url("/form?msg=c"), Asking::Once);
  ASSERT_TRUE(Comes(3));
  EXPECT_EQ(told[1].Body, "taken");
  EXPECT_EQ(told[2].Body, "taken");
  EXPECT_EQ(requests.size(), 3U);
}

TEST_F(QtPageFetcherTest, AnEndlessPageIsGivenUp) {
  answer = [](QTcpSocket& peer) {
    Say(peer, "HTTP/1.1 200 OK\r\n\r\n");
    const auto pour = [&peer] {
      if (peer.bytesToWrite() < (1 << 20)) Say(peer, std::string(1 << 18, 'x'));
    };
    QObject::connect(&peer, &QTcpSocket::bytesWritten, &peer, pour);
    pour();
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Outcome, PageOutcome::TooLarge);
  EXPECT_EQ(told[0].Body, "");
  // The next ones are not held up by it, nor by as many as a host is asked at once.
  constexpr std::size_t kAtOnce = 7;
  for (std::size_t page = 2; page <= kAtOnce; ++page) {
    Ask(Url("/"));
    ASSERT_TRUE(Comes(page));
  }
  told.resize(1);
  answer = [](QTcpSocket& peer) { Say(peer, Whole("next")); };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(2));
  EXPECT_EQ(told[1].Body, "next");
}

TEST_F(QtPageFetcherTest, WhoNeverAnswersIsDroppedWithoutAWord) {
  const std::int64_t number = Ask(Url("/silent"));
  ASSERT_TRUE(PumpUntil([this] { return requests.size() == 1; }));
  pages.Drop(number);
  EXPECT_FALSE(pages.IsBusy());
  answer = [](QTcpSocket& peer) { Say(peer, Whole("next")); };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Body, "next");
}

// ---- https ----------------------------------------------------------------------------------

class QtHttpsTest : public QtPageFetcherTest {
 protected:
  QtHttpsTest() {
    QSslConfiguration own = QSslConfiguration::defaultConfiguration();
    own.setLocalCertificate(certificate);
    own.setPrivateKey(QSslKey(QByteArray(kLoopbackKey), QSsl::Ec));
    https.setSslConfiguration(own);
    EXPECT_TRUE(https.listen(QHostAddress::LocalHost));
    QObject::connect(&https, &QTcpServer::pendingConnectionAvailable, [this] {
      QTcpSocket* peer = https.nextPendingConnection();
      QObject::connect(peer, &QTcpSocket::readyRead, peer, [peer] {
        if (peer->readAll().endsWith("\r\n\r\n")) Say(*peer, Whole("secret"));
      });
    });
  }
  ~QtHttpsTest() override { QSslConfiguration::setDefaultConfiguration(before); }
  void TrustIt() {
    QSslConfiguration trusting = before;
    trusting.addCaCertificate(certificate);
    QSslConfiguration::setDefaultConfiguration(trusting);
  }
  std::string Address() const {
    return "https://127.0.0.1:" + std::to_string(https.serverPort()) + "/";
  }

  const QSslConfiguration before = QSslConfiguration::defaultConfiguration();
  const QSslCertificate certificate{QByteArray(kLoopbackCertificate)};
  QSslServer https;
};

TEST_F(QtHttpsTest, AHostWhoseCertificateIsTrustedIsRead) {
  TrustIt();
  Ask(Address());
  ASSERT_TRUE(Comes(1));
  EXPECT_TRUE(told[0].IsGood());
  EXPECT_EQ(told[0].Body, "secret");
}

TEST_F(QtHttpsTest, AHostWhoseCertificateIsNotIsNoAnswer) {
  Ask(Address());
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Outcome, PageOutcome::Failed);
  EXPECT_EQ(told[0].Body, "");
}

// From https nobody is led back to http.
TEST_F(QtHttpsTest, ARedirectToALessSafeAddressIsRefused) {
  TrustIt();
  https.disconnect();
  QObject::connect(&https, &QTcpServer::pendingConnectionAvailable, [this] {
    QTcpSocket* peer = https.nextPendingConnection();
    QObject::connect(peer, &QTcpSocket::readyRead, peer, [this, peer] {
      peer->readAll();
      Say(*peer, "HTTP/1.1 302 Found\r\nLocation: " + Url("/") + "\r\nContent-Length: 0\r\n\r\n");
    });
  });
  answer = [](QTcpSocket& peer) { Say(peer, Whole("open to all")); };
  Ask(Address());
  ASSERT_TRUE(Comes(1));
  EXPECT_FALSE(told[0].IsGood());
  EXPECT_TRUE(requests.empty());
}

TEST_F(QtPageFetcherTest, APageThatComesInPiecesIsPutTogether) {
  answer = [](QTcpSocket& peer) {
    Say(peer, "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3\r\nabc\r\n");
    QTimer::singleShot(0, &peer, [&peer] { Say(peer, "3\r\ndef\r\n0\r\n\r\n"); });
  };
  Ask(Url("/"));
  ASSERT_TRUE(Comes(1));
  EXPECT_EQ(told[0].Body, "abcdef");
}

TEST_F(QtPageFetcherTest, NobodyIsToldInsideAnotherStep) {
  answer = [](QTcpSocket& peer) { Say(peer, Whole("page")); };
  Ask(Url("/"));
  bool told_within = true;
  loop.RunStep([&] {
    for (int turn = 0; turn < 100 && requests.empty(); ++turn)
      loop.Wait(0.01);
    loop.Wait(0.1);
    told_within = !told.empty();
  });
  EXPECT_FALSE(told_within);
  EXPECT_TRUE(Comes(1));
}

}  // namespace
}  // namespace zepril
