// The packet engine on another computer, over TCP/IP (`RadioMode` 3).
//
// At start a link that does not come up ends the program, after a box that says why. Later a link
// that was lost is opened again quietly every ten seconds, by a timer of its own: registration and
// monitoring are asked for anew, no box appears.
#pragma once

#include <string>

#include "core/actions/program_actions.h"
#include "core/state/identity.h"
#include "core/state/radio.h"
#include "core/state/transmission.h"
#include "core/timer.h"
#include "links/agw_stream.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/tcp_socket.h"

namespace zepril {

// Milliseconds between two attempts to open a lost link.
inline constexpr int kReopenMilliseconds = 10000;

class AgwLink {
 public:
  AgwLink(RadioState& radio, const IdentityState& identity, const TransmissionState& transmission,
          TcpSocket& winsock1, Clock& clock, Dialogs& dialogs, ProgramActions& program,
          Timer& reopen_timer);

  // Connects, registers the call, switches monitoring on. False after a box that ended the program.
  bool ConnectAgw();
  void DisconnectAgw();
  // Sends `AgwTxText` to `TxDestination` by way of `TxPath`; nothing when not connected.
  void SendAgwUnproto();

  // One whole frame of the engine.
  void FrameArrived(std::string_view frame);
  // The re-open timer has fired.
  void ReopenElapsed();
  bool LinkIsUp() const;

 private:
  void BeginConnection();
  std::string RegisterFrame() const;
  std::string MonitorFrame() const;
  bool Registered() const;
  bool Fail(const char* text);

  RadioState& radio_;
  const IdentityState& identity_;
  const TransmissionState& transmission_;
  TcpSocket& winsock1_;
  Clock& clock_;
  Dialogs& dialogs_;
  ProgramActions& program_;
  Timer& reopen_timer_;
  AgwStream stream_;
  bool started_ = false;    // the first connection stood
  bool reopening_ = false;  // registration of a re-opened link has not been sent yet
};

}  // namespace zepril
