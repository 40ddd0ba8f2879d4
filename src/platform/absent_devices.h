// Stand-ins for a device that is not there: every operation does nothing.
#pragma once

#include "platform/monitor_engine.h"
#include "platform/page_fetcher.h"
#include "platform/serial_port.h"
#include "platform/tcp_socket.h"

namespace zepril {

class AbsentSerialPort final : public SerialPort {
 public:
  bool Open(const std::string&, int) override { return false; }
  void Close() override {}
  bool IsOpen() const override { return false; }
  void Write(std::string_view) override {}
  std::string ReadAll() override { return {}; }
  std::size_t BytesToWrite() const override { return 0; }
};

class AbsentSocket final : public TcpSocket {
 public:
  void Connect(const std::string&, int) override {}
  void Close() override {}
  void Drop() override {}
  SocketState State() const override { return SocketState::Closed; }
  bool Send(std::string_view) override { return false; }
  std::size_t UnsentBytes() const override { return 0; }
};

class AbsentEngine final : public MonitorEngine {
 public:
  bool AGWStartPoll(std::string_view, std::string_view) override { return false; }
  std::string AGWGetData() override { return {}; }
  bool AGWPutData(std::string_view, std::string_view) override { return false; }
  void AGWClose() override {}
  bool LinkIsUp() const override { return false; }
  void DropUnsent() override {}
};

// Nothing is ever fetched.
class AbsentPages final : public PageFetcher {
 private:
  void Begin(const std::string&, Asking) override {}
  void Abandon() override {}
};

}  // namespace zepril
