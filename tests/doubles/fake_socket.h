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
  void Drop() override {
    Unsent = 0;
    ++Drops;
    Close();
  }
  SocketState State() const override { return state_; }
  std::size_t UnsentBytes() const override { return Unsent; }
  bool Send(std::string_view bytes) override {
    if (FailSends) return false;
    if (IsVersionQuestion(bytes)) {
      ++VersionQuestions;
      if (AnswersVersion) Deliver(std::string(bytes.substr(0, 28)) + std::string(8, '\0'));
      return true;
    }
    Sent.emplace_back(bytes);
    if (OnSend) OnSend(bytes);
    return true;
  }

  void SetState(SocketState state) {
    const bool connected = state == SocketState::Connected && state_ != state;
    state_ = state;
    if (connected && Connected) Connected();
  }
  void Deliver(std::string_view bytes) {
    if (DataArrived) DataArrived(bytes);
  }

  std::string Host;
  int Port = 0;
  int Connects = 0;
  int Closes = 0;
  int Drops = 0;
  bool FailSends = false;
  // An engine's answer to the question for its version, which is not written down in `Sent`.
  bool AnswersVersion = true;
  int VersionQuestions = 0;
  std::size_t Unsent = 0;
  std::vector<std::string> Sent;
  std::function<void()> OnConnect;
  std::function<void(std::string_view)> OnSend;

 private:
  static bool IsVersionQuestion(std::string_view bytes) {
    return bytes.size() == 36 && bytes[4] == 'R';
  }

  SocketState state_ = SocketState::Closed;
};

}  // namespace zepril
