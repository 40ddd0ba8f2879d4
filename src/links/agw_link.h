// The packet engine on another computer, over TCP/IP (`RadioMode` 3).
//
// At start a link that does not come up ends the program, after a box that says why. Later a link
// that was lost is opened again quietly every ten seconds (`links/agw_connection`): registration
// and monitoring are asked for anew, no box appears.
#pragma once

#include <deque>
#include <string>

#include "core/actions/program_actions.h"
#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "core/texts/text.h"
#include "core/timer.h"
#include "links/agw_connection.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "platform/tcp_socket.h"

namespace zepril {

class AgwLink {
 public:
  // What has come and is not collected waits here beyond this much text in `AgwRxBuffer`, which
  // would be emptied when it grew too long; of what waits the oldest goes.
  static constexpr std::size_t kMostHandedOn = kLongestReceiveBuffer / 2;
  static constexpr std::size_t kMostWaiting = 1 << 20;

  AgwLink(RadioState& radio, const IdentityState& identity, const TransmissionState& transmission,
          TcpSocket& winsock1, Clock& clock, Dialogs& dialogs, ProgramActions& program);

  // Connects, registers the call, switches monitoring on. False after a box that ended the program.
  bool ConnectAgw();
  void DisconnectAgw();
  // Sends `AgwTxText` to `TxDestination` by way of `TxPath`. False when nothing was handed over:
  // the link is lost, or the engine gives no sign of life. Such a frame is not kept for later.
  bool SendAgwUnproto();
  // The transmitter was switched off: what has not left is dropped.
  void DropUnsent() { connection_.DropUnsent(); }

  // One whole frame of the engine.
  void FrameArrived(std::string_view frame);
  bool LinkIsUp() const;
  Timer& LookTimer() { return connection_.LookTimer(); }
  // The link was lost, or is back; may be empty.
  Event<> LinkChanged;

 private:
  void BeginConnection();
  std::string RegisterFrame() const;
  std::string MonitorFrame() const;
  bool Registered() const;
  void HandOn();
  bool Fail(Text text);
  bool GiveUp();

  RadioState& radio_;
  const IdentityState& identity_;
  const TransmissionState& transmission_;
  Clock& clock_;
  Dialogs& dialogs_;
  ProgramActions& program_;
  AgwConnection connection_;
  std::deque<std::string> waiting_;
  std::size_t waiting_bytes_ = 0;
};

}  // namespace zepril
