// The connection to an APRS-IS server: a client that logs in and then only writes.
//
// A tick makes one step of it: a connection that does not stand is begun anew, on one that stands
// the login is said until the server has told that it holds. What the server sends is looked at for
// that answer and thrown away; of what comes between two ticks only so much is kept.
//
// A server that takes no bytes for ten seconds gets none that would leave later: the connection is
// dropped with them, and begun anew by the next tick.
#pragma once

#include <cstddef>
#include <string_view>

#include "core/state/identity.h"
#include "core/state/internet.h"
#include "platform/tcp_socket.h"

namespace zepril {

class AprsIsLink {
 public:
  static constexpr std::size_t kMostReceived = 65536;  // characters between two ticks
  // Looks, one a second, after which a link whose bytes do not leave is dropped. Counted in looks:
  // a program that stood still itself takes no link for stalled.
  static constexpr int kPatientLooks = 10;

  // Takes the events of `winsock2` while a connection is wanted.
  AprsIsLink(InternetState& internet, const IdentityState& identity, TcpSocket& winsock2);
  ~AprsIsLink();
  AprsIsLink(const AprsIsLink&) = delete;
  AprsIsLink& operator=(const AprsIsLink&) = delete;

  // One step, once a tick and before anything else of it, where a gate is possible and there is a
  // passcode.
  void IGateTick();
  // Once a second.
  void Look();
  // At once; what has not left is dropped.
  void Close();

  // Hands a line over. False when the link takes none.
  bool Write(std::string_view line);
  // The server has answered the login, and refused it.
  bool IsRefused() const;
  // The connection stands, whatever the login.
  bool IsConnected() const { return winsock2_.State() == SocketState::Connected; }

 private:
  void Connect();
  void LogIn();
  void OnSocketData(std::string_view bytes);
  void GiveEventsBack();

  InternetState& internet_;
  const IdentityState& identity_;
  TcpSocket& winsock2_;
  bool owns_events_ = false;
  int looks_unsent_ = 0;
};

}  // namespace zepril
