// Sockets of a server on 127.0.0.1 that nobody can hold up.
#pragma once

#include <unistd.h>

#include <cstddef>
#include <string>
#include <vector>

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

// Appends what has come from a client, at most `most` bytes. False when the client is gone.
bool ReceiveSome(int descriptor, std::size_t most, std::string& received);
// Hands over what a client takes at once of `unsent`, and takes that off. False when it is gone.
bool SendSome(int descriptor, std::string& unsent);

// Closes the sockets of those that are cut off, and forgets them.
template <typename Client>
void RemoveCut(std::vector<Client>& clients) {
  std::erase_if(clients, [](const Client& client) {
    if (client.Cut) ::close(client.Descriptor);
    return client.Cut;
  });
}

}  // namespace zepril
