// Sockets of a server on 127.0.0.1 that nobody can hold up.
#pragma once

namespace zepril {

// A socket that listens on 127.0.0.1 and does not block, and the port it got; a descriptor of -1
// when that is not possible.
struct Listener {
  int Descriptor = -1;
  int Port = 0;
};

// `port` 0 for any free one.
Listener ListenOnLoopback(int port);

// The next client's socket, which does not block; -1 when there is none.
int AcceptClient(int listener);

// The last read or write could not go on at once: nothing is wrong.
bool WouldWait();

}  // namespace zepril
