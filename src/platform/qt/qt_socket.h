// A TCP connection by Qt's socket.
#pragma once

#include <QTcpSocket>
#include <QTimer>

#include "platform/tcp_socket.h"

namespace zepril {

class QtSocket final : public TcpSocket {
 public:
  // An attempt without an answer for this long ends in an error.
  static constexpr int kConnectMilliseconds = 15000;
  // More than this waiting to be sent means that the peer does not read: sending fails.
  static constexpr qint64 kMostUnsent = 1 << 20;

  // A peer that has lost its power is noticed: after a minute of silence it is probed three times,
  // every ten seconds.
  static constexpr int kAliveIdleSeconds = 60;
  static constexpr int kAliveProbeSeconds = 10;
  static constexpr int kAliveProbes = 3;

  QtSocket();
  ~QtSocket() override;

  void Connect(const std::string& host, int port) override;
  void Close() override;
  void Drop() override;
  SocketState State() const override { return state_; }
  bool Send(std::string_view bytes) override;
  std::size_t UnsentBytes() const override;

 private:
  void ReadWaiting();
  void KeepAlive() const;

  QTcpSocket socket_;
  QTimer patience_;
  SocketState state_ = SocketState::Closed;
};

}  // namespace zepril
