// Accepts clients, reads their frames, and drops those that are slow or make no sense.
#include "tool/agw_server.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "core/text_fields.h"
#include "links/agw_frame.h"

namespace zepril {
namespace {

constexpr int kWaitingConnections = 8;
constexpr std::size_t kBlock = 4096;
constexpr std::size_t kCallField = 10;

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

bool WouldWait() {
  return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

}  // namespace

bool ReadAgwUnproto(std::string_view data, std::string& path, std::string& text) {
  path.clear();
  if (data.empty()) return false;
  const auto count = static_cast<std::size_t>(Asc(data[0]));
  if (data.size() < 1 + count * kCallField) return false;
  for (std::size_t at = 0; at < count; ++at) {
    const std::string_view field = data.substr(1 + at * kCallField, kCallField);
    if (at > 0) path += ',';
    path += Trim(field.substr(0, field.find('\0')));
  }
  text = data.substr(1 + count * kCallField);
  return true;
}

std::unique_ptr<AgwServer> AgwServer::Open(int port) {
  const int listener = ::socket(AF_INET, SOCK_STREAM, 0);
  if (listener < 0) return nullptr;
  const int bound = MakeNonBlocking(listener) ? Listen(listener, port) : 0;
  if (bound == 0) {
    ::close(listener);
    return nullptr;
  }
  return std::make_unique<AgwServer>(listener, bound);
}

AgwServer::~AgwServer() {
  for (const Client& client : clients_)
    ::close(client.Descriptor);
  ::close(listener_);
}

std::size_t AgwServer::Monitoring() const {
  std::size_t count = 0;
  for (const Client& client : clients_)
    count += client.Monitors ? 1 : 0;
  return count;
}

void AgwServer::Serve(int milliseconds) {
  std::vector<pollfd> waits{{listener_, POLLIN, 0}};
  for (const Client& client : clients_) {
    const int events = client.Unsent.empty() ? POLLIN : POLLIN | POLLOUT;
    waits.push_back({client.Descriptor, static_cast<short>(events), 0});
  }
  if (::poll(waits.data(), waits.size(), milliseconds) <= 0) return;
  for (std::size_t at = 0; at < clients_.size(); ++at) {
    const int ready = waits[at + 1].revents;
    if ((ready & (POLLIN | POLLHUP | POLLERR)) != 0) Read(clients_[at]);
    if ((ready & POLLOUT) != 0) Write(clients_[at]);
  }
  RemoveCut();
  if ((waits[0].revents & POLLIN) != 0) Accept();
}

void AgwServer::Accept() {
  const int descriptor = ::accept(listener_, nullptr, nullptr);
  if (descriptor < 0) return;
  if (clients_.size() >= kMostClients || !MakeNonBlocking(descriptor)) {
    ::close(descriptor);
    return;
  }
  clients_.emplace_back().Descriptor = descriptor;
}

void AgwServer::Read(Client& client) {
  std::array<char, kBlock> block;
  const ssize_t length = ::recv(client.Descriptor, block.data(), block.size(), 0);
  if (length <= 0) {
    client.Cut = length == 0 || !WouldWait();
    return;
  }
  client.Received.append(block.data(), static_cast<std::size_t>(length));
  TakeFrames(client);
}

void AgwServer::Write(Client& client) {
  if (client.Cut || client.Unsent.empty()) return;
  const ssize_t length =
      ::send(client.Descriptor, client.Unsent.data(), client.Unsent.size(), MSG_NOSIGNAL);
  if (length < 0) {
    client.Cut = !WouldWait();
    return;
  }
  client.Unsent.erase(0, static_cast<std::size_t>(length));
}

void AgwServer::TakeFrames(Client& client) {
  std::size_t at = 0;
  while (!client.Cut && client.Received.size() - at >= kAgwHeaderLength) {
    const std::string_view rest = std::string_view(client.Received).substr(at);
    const std::size_t length = ReadAgwHeader(rest).DataLength;
    if (length > kLongestData) {
      client.Cut = true;
      return;
    }
    if (rest.size() < kAgwHeaderLength + length) break;
    TakeFrame(client, rest.substr(0, kAgwHeaderLength + length));
    at += kAgwHeaderLength + length;
  }
  client.Received.erase(0, at);
}

void AgwServer::TakeFrame(Client& client, std::string_view frame) {
  const AgwFrameFields fields = ReadAgwHeader(frame);
  const auto answer = [this, &client](const std::string& reply) {
    client.Unsent += reply;
    client.Cut = client.Unsent.size() > kMostUnsent;
    Write(client);
  };
  switch (fields.Kind) {
    case 'X':
      answer(MakeAgwFrame(fields.Port, 'X', fields.From, {}, "\x01"));
      break;
    case 'R':  // its version, two numbers of 32 bits
      answer(MakeAgwFrame(fields.Port, 'R', {}, {}, std::string("\x08\0\0\0\x08\0\0\0", 8)));
      break;
    case 'm':
      client.Monitors = true;
      break;
    case 'V': {
      AgwUnproto unproto{fields.Port, fields.From, fields.To, {}, {}};
      const std::string_view data = frame.substr(kAgwHeaderLength);
      if (ReadAgwUnproto(data, unproto.Path, unproto.Text) && Sent) Sent(unproto);
      break;
    }
    default:  // "x" and all that an engine may be asked besides: nothing to do
      break;
  }
}

void AgwServer::Broadcast(std::string_view frame) {
  for (Client& client : clients_) {
    if (!client.Monitors) continue;
    client.Unsent += frame;
    if (client.Unsent.size() > kMostUnsent) client.Cut = true;
    Write(client);
  }
  RemoveCut();
}

void AgwServer::RemoveCut() {
  std::erase_if(clients_, [](const Client& client) {
    if (client.Cut) ::close(client.Descriptor);
    return client.Cut;
  });
}

}  // namespace zepril
