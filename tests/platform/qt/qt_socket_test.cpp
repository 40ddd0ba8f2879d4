#include "platform/qt/qt_socket.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTcpServer>
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/platform/qt/application_support.h"

namespace zepril {
namespace {

class QtSocketTest : public ::testing::Test {
 protected:
  QtSocketTest() {
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    socket = std::make_unique<QtSocket>();
    socket->DataArrived = [this](std::string_view bytes) { got += bytes; };
  }
  void Connect() {
    socket->Connect("127.0.0.1", server.serverPort());
    EXPECT_EQ(socket->State(), SocketState::Connecting);
    ASSERT_TRUE(PumpUntil([this] {
      return socket->State() == SocketState::Connected && server.hasPendingConnections();
    }));
    peer = server.nextPendingConnection();
  }
  void Say(const std::string& bytes) {
    peer->write(bytes.data(), static_cast<qint64>(bytes.size()));
    peer->flush();
  }
  bool Comes(SocketState state) {
    return PumpUntil([this, state] { return socket->State() == state; });
  }

  QTcpServer server;
  QPointer<QTcpSocket> peer;
  std::string got;
  std::unique_ptr<QtSocket> socket;
};

TEST_F(QtSocketTest, BytesArriveWholeAndInOrder) {
  Connect();
  std::string sent;
  for (int i = 0; i < 200000; ++i)
    sent += static_cast<char>(i % 251);
  Say(sent);
  Say(std::string("\0end", 4));
  EXPECT_TRUE(PumpUntil([&] { return got.size() == sent.size() + 4; }));
  EXPECT_EQ(got, sent + std::string("\0end", 4));
}

TEST_F(QtSocketTest, BytesAreSentWholeAndInOrder) {
  Connect();
  std::string sent;
  for (int i = 0; i < 100000; ++i)
    sent += static_cast<char>(i % 253);
  EXPECT_TRUE(socket->Send(sent));
  EXPECT_TRUE(socket->Send("end"));
  QByteArray arrived;
  EXPECT_TRUE(PumpUntil([&] {
    arrived += peer->readAll();
    return arrived.size() == static_cast<qsizetype>(sent.size()) + 3;
  }));
  EXPECT_EQ(arrived.toStdString(), sent + "end");
}

TEST_F(QtSocketTest, ARefusedConnectionIsAnError) {
  const int port = server.serverPort();
  server.close();
  socket->Connect("127.0.0.1", port);
  EXPECT_TRUE(Comes(SocketState::Error));
  EXPECT_FALSE(socket->Send("x"));
}

TEST_F(QtSocketTest, NoHostAndNoPortAreErrorsAtOnce) {
  socket->Connect("", 8000);
  EXPECT_EQ(socket->State(), SocketState::Error);
  for (int port : {0, -1, 65536}) {
    socket->Connect("127.0.0.1", port);
    EXPECT_EQ(socket->State(), SocketState::Error) << port;
  }
}

TEST_F(QtSocketTest, APeerThatClosesIsSeenAfterItsLastBytes) {
  Connect();
  Say("last words");
  peer->disconnectFromHost();
  EXPECT_TRUE(Comes(SocketState::PeerClosed));
  EXPECT_EQ(got, "last words");
  EXPECT_FALSE(socket->Send("x"));
}

TEST_F(QtSocketTest, APeerThatBreaksOffIsSeen) {
  Connect();
  peer->abort();
  EXPECT_TRUE(PumpUntil([this] {
    return socket->State() == SocketState::PeerClosed || socket->State() == SocketState::Error;
  }));
}

TEST_F(QtSocketTest, OwnCloseSendsWhatIsStillThereAndHearsNothingMore) {
  Connect();
  EXPECT_TRUE(socket->Send("goodbye"));
  socket->Close();
  EXPECT_EQ(socket->State(), SocketState::Closed);
  QByteArray arrived;
  EXPECT_TRUE(PumpUntil([&] {
    arrived += peer->readAll();
    return peer->state() == QAbstractSocket::UnconnectedState;
  }));
  arrived += peer->readAll();
  EXPECT_EQ(arrived, QByteArray("goodbye"));
  EXPECT_EQ(socket->State(), SocketState::Closed);
  EXPECT_EQ(got, "");
}

TEST_F(QtSocketTest, TheSameSocketConnectsAgain) {
  Connect();
  peer->disconnectFromHost();
  ASSERT_TRUE(Comes(SocketState::PeerClosed));
  Connect();
  Say("again");
  EXPECT_TRUE(PumpUntil([this] { return got == "again"; }));
}

TEST_F(QtSocketTest, AConnectBeforeTheFirstHasComeTakesItsPlace) {
  socket->Connect("127.0.0.1", server.serverPort());
  QTcpServer other;
  ASSERT_TRUE(other.listen(QHostAddress::LocalHost));
  socket->Connect("127.0.0.1", other.serverPort());
  ASSERT_TRUE(Comes(SocketState::Connected));
  EXPECT_TRUE(PumpUntil([&] { return other.hasPendingConnections(); }));
}

TEST_F(QtSocketTest, APeerThatDoesNotReadMakesSendingFailInTheEnd) {
  Connect();
  peer->setReadBufferSize(1);
  const std::string block(1 << 18, 'x');
  bool sent = true;
  // What the system itself takes is limited, then the socket's own limit counts.
  for (int blocks = 0; sent && blocks < 200; ++blocks)
    sent = socket->Send(block);
  EXPECT_FALSE(sent);
  EXPECT_EQ(socket->State(), SocketState::Connected);
}

TEST_F(QtSocketTest, AnEndInTheMiddleOfAnAttemptIsQuiet) {
  socket->Connect("127.0.0.1", server.serverPort());
  socket.reset();
  QCoreApplication::processEvents();
  EXPECT_EQ(got, "");
}

}  // namespace
}  // namespace zepril
