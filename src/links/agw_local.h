// The packet engine on this computer (`RadioMode` 0): the program's four polled operations, spoken
// over the engine's TCP interface on 127.0.0.1, port 8000. To the rest of the program there is no
// difference. An engine that is not there, or goes away, is tried again quietly every ten seconds.
#pragma once

#include <deque>
#include <string>

#include "core/state/radio.h"
#include "core/timer.h"
#include "links/agw_connection.h"
#include "platform/clock.h"
#include "platform/monitor_engine.h"
#include "platform/tcp_socket.h"

namespace zepril {

class AgwLocal final : public MonitorEngine {
 public:
  static constexpr int kEnginePort = 8000;
  static constexpr std::size_t kMostWaitingFrames = 500;
  static constexpr std::size_t kLongestText = 4000;

  AgwLocal(RadioState& radio, TcpSocket& socket, Clock& clock);

  bool AGWStartPoll(std::string_view application, std::string_view call) override;
  std::string AGWGetData() override;
  bool AGWPutData(std::string_view header, std::string_view text) override;
  void AGWClose() override;

  bool LinkIsUp() const override { return connection_.IsUp(); }
  void DropUnsent() override { connection_.DropUnsent(); }
  Timer& LookTimer() { return connection_.LookTimer(); }

 private:
  bool Greet();
  void FrameArrived(std::string_view frame);

  RadioState& radio_;
  Clock& clock_;
  AgwConnection connection_;
  std::deque<std::string> waiting_;
  std::string call_;
};

}  // namespace zepril
