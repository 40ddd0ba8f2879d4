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

  QtSocket();
  ~QtSocket() override;

  void Connect(const std::string& host, int port) override;
  void Close() override;
  SocketState State() const override { return state_; }
  bool Send(std::string_view bytes) override;

 private:
  void ReadWaiting();

  QTcpSocket socket_;
  QTimer patience_;
  SocketState state_ = SocketState::Closed;
};

}  // namespace zepril
