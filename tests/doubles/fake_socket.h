// A TCP connection played by the test: it records what is sent and answers by script.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/tcp_socket.h"

namespace zepril {

class FakeSocket final : public TcpSocket {
 public:
  void Connect(const std::string& host, int port) override {
    Host = host;
    Port = port;
    ++Connects;
    state_ = SocketState::Connecting;
    if (OnConnect) OnConnect();
  }
  void Close() override {
    state_ = SocketState::Closed;
    ++Closes;
  }
  SocketState State() const override { return state_; }
  bool Send(std::string_view bytes) override {
    if (FailSends) return false;
    Sent.emplace_back(bytes);
    if (OnSend) OnSend(bytes);
    return true;
  }

  void SetState(SocketState state) { state_ = state; }
  void Deliver(std::string_view bytes) {
    if (DataArrived) DataArrived(bytes);
  }

  std::string Host;
  int Port = 0;
  int Connects = 0;
  int Closes = 0;
  bool FailSends = false;
  std::vector<std::string> Sent;
  std::function<void()> OnConnect;
  std::function<void(std::string_view)> OnSend;

 private:
  SocketState state_ = SocketState::Closed;
};

}  // namespace zepril
