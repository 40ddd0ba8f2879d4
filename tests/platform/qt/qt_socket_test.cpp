// Connections over loopback: made, refused, silent, broken off, ended.
#include "platform/qt/qt_socket.h"

#include <QCoreApplication>
#include <QPointer>
#include <QString>
#include <QTcpServer>
#include <gtest/gtest.h>

#include <fstream>
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

// The row of the connection to `port` in the system's table: state, timer, queues.
std::string RowOfConnectionTo(int port) {
  std::ifstream table("/proc/net/tcp");
  const std::string wanted =
      " 0100007F:" + QString::number(port, 16).toUpper().rightJustified(4, '0').toStdString() +
      " 01 ";
  for (std::string line; std::getline(table, line);) {
    // Local and remote address stand in this order.
    const std::size_t at = line.find(wanted);
    if (at != std::string::npos && at > 10) return line.substr(at + wanted.size());
  }
  return {};
}

TEST_F(QtSocketTest, ASilentPeerIsProbed) {
  Connect();
  // Queues, then "02": the timer of keep-alive runs, and in how many hundredths of a second.
  const std::string row = RowOfConnectionTo(server.serverPort());
  ASSERT_GE(row.size(), 29U) << row;
  EXPECT_EQ(row.substr(18, 3), "02:") << row;
  const int hundredths = QString::fromStdString(row.substr(21, 8)).toInt(nullptr, 16);
  EXPECT_LE(hundredths, 6000);
  EXPECT_GT(hundredths, 3000);
  // Given up a minute and a half behind the last word: three probes, ten seconds apart.
  EXPECT_EQ(QtSocket::kAliveIdleSeconds, 60);
  EXPECT_EQ(QtSocket::kAliveProbeSeconds, 10);
  EXPECT_EQ(QtSocket::kAliveProbes, 3);
}

TEST_F(QtSocketTest, WhatIsDroppedDoesNotLeave) {
  Connect();
  // More than the system takes for a peer that does not read.
  peer->setReadBufferSize(1);
  std::string much(1 << 20, 'x');
  std::size_t handed_over = 0;
  for (int block = 0; block < 16 && socket->Send(much); ++block) {
    handed_over += much.size();
    QCoreApplication::processEvents();
  }
  EXPECT_GT(socket->UnsentBytes(), 0U);
  socket->Drop();
  EXPECT_EQ(socket->State(), SocketState::Closed);
  EXPECT_EQ(socket->UnsentBytes(), 0U);
  // A hard end: the peer gets what its system had taken already, never the rest.
  qint64 got_bytes = 0;
  peer->setReadBufferSize(0);
  ASSERT_TRUE(PumpUntil([&] {
    got_bytes += peer->readAll().size();
    return peer->state() != QAbstractSocket::ConnectedState;
  }));
  got_bytes += peer->readAll().size();
  EXPECT_LT(got_bytes, static_cast<qint64>(handed_over));
}

TEST_F(QtSocketTest, TellsWhenTheConnectionStands) {
  int connected = 0;
  socket->Connected = [&] { ++connected; };
  Connect();
  EXPECT_EQ(connected, 1);
  EXPECT_EQ(socket->UnsentBytes(), 0U);
}

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
