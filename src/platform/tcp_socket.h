// A TCP connection with the states the program knows. Data arrives through an event that runs
// whenever control is handed over, also inside waits.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/event.h"

namespace zepril {

enum class SocketState { Closed = 0, Connecting = 6, Connected = 7, PeerClosed = 8, Error = 9 };

class TcpSocket {
 public:
  virtual ~TcpSocket() = default;
  // Begins to connect; the state tells how it went. A host that does not answer in time ends in
  // Error.
  virtual void Connect(const std::string& host, int port) = 0;
  // What was handed over before still leaves when the peer takes it at once.
  virtual void Close() = 0;
  // Closes at once; what has not left yet is dropped.
  virtual void Drop() = 0;
  virtual SocketState State() const = 0;
  // False when the text could not be handed to the system.
  virtual bool Send(std::string_view bytes) = 0;
  // Bytes handed over that the peer's machine has not taken yet.
  virtual std::size_t UnsentBytes() const = 0;

  // The connection stands; may be empty.
  Event<> Connected;
  Event<std::string_view> DataArrived;
};

}  // namespace zepril
