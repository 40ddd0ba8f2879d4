// Accepts clients, reads their frames, and drops those that are slow or make no sense.
#include "tool/agw_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "core/text_fields.h"
#include "links/agw_frame.h"
#include "tool/loopback_listener.h"

namespace zepril {
namespace {

constexpr std::size_t kBlock = 4096;
constexpr std::size_t kCallField = 10;

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
  const Listener listener = ListenOnLoopback(port);
  if (listener.Descriptor < 0) return nullptr;
  return std::make_unique<AgwServer>(listener.Descriptor, listener.Port);
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
  RemoveCut(clients_);
  if ((waits[0].revents & POLLIN) != 0) Accept();
}

void AgwServer::Accept() {
  const int descriptor = AcceptClient(listener_);
  if (descriptor < 0) return;
  if (clients_.size() >= kMostClients) {
    ::close(descriptor);
    return;
  }
  clients_.emplace_back().Descriptor = descriptor;
}

void AgwServer::Read(Client& client) {
  client.Cut = !ReceiveSome(client.Descriptor, kBlock, client.Received);
  TakeFrames(client);
}

void AgwServer::Write(Client& client) {
  if (!client.Cut) client.Cut = !SendSome(client.Descriptor, client.Unsent);
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
  RemoveCut(clients_);
}

}  // namespace zepril
