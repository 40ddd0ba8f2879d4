// Opens listening sockets and takes clients from them.
#include "tool/loopback_listener.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>

namespace zepril {
namespace {

constexpr int kWaitingConnections = 8;

sockaddr_in LoopbackAddress(int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

bool MakeNonBlocking(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFL, 0);
  return flags >= 0 && ::fcntl(descriptor, F_SETFL, flags | O_NONBLOCK) == 0 &&
         ::fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0;
}

// Binds `listener` and tells the port it got; 0 when that failed.
int Listen(int listener, int port) {
  const int yes = 1;
  ::setsockopt(listener, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
  sockaddr_in address = LoopbackAddress(port);
  socklen_t length = sizeof address;
  auto* plain = reinterpret_cast<sockaddr*>(&address);
  if (::bind(listener, plain, sizeof address) != 0) return 0;
  if (::listen(listener, kWaitingConnections) != 0) return 0;
  if (::getsockname(listener, plain, &length) != 0) return 0;
  return ntohs(address.sin_port);
}

// The last read or write could not go on at once: nothing is wrong.
bool WouldWait() {
  return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

}  // namespace

Listener ListenOnLoopback(int port) {
  const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
  if (descriptor < 0) return {};
  const int bound = MakeNonBlocking(descriptor) ? Listen(descriptor, port) : 0;
  if (bound != 0) return {descriptor, bound};
  ::close(descriptor);
  return {};
}

int AcceptClient(int listener) {
  const int descriptor = ::accept(listener, nullptr, nullptr);
  if (descriptor < 0 || MakeNonBlocking(descriptor)) return descriptor;
  ::close(descriptor);
  return -1;
}

bool ReceiveSome(int descriptor, std::size_t most, std::string& received) {
  const std::size_t before = received.size();
  received.resize(before + most);
  const ssize_t length = ::recv(descriptor, received.data() + before, most, 0);
  received.resize(before + (length > 0 ? static_cast<std::size_t>(length) : 0));
  return length > 0 || (length < 0 && WouldWait());
}

bool SendSome(int descriptor, std::string& unsent) {
  if (unsent.empty()) return true;
  const ssize_t length = ::send(descriptor, unsent.data(), unsent.size(), MSG_NOSIGNAL);
  if (length > 0) unsent.erase(0, static_cast<std::size_t>(length));
  return length >= 0 || WouldWait();
}

}  // namespace zepril
