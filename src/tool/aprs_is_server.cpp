// Greets, reads lines, answers logins in time or not at all.
#include "tool/aprs_is_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

#include "core/text_fields.h"
#include "gate/aprs_is_login.h"
#include "tool/loopback_listener.h"

namespace zepril {
namespace {

constexpr std::size_t kBlock = 65536;
constexpr int kSmallBuffer = 4096;  // bytes the system takes for a server that does not read
constexpr std::string_view kGreeting = "# zepril-tool air\r\n";

// The word behind `mark` in a login line.
std::string_view WordBehind(std::string_view line, std::string_view mark) {
  const std::size_t found = line.find(mark);
  if (found == std::string_view::npos) return {};
  const std::string_view rest = line.substr(found + mark.size());
  return rest.substr(0, rest.find_first_of(" \r\n"));
}

}  // namespace

std::optional<AprsIsManners> AprsIsMannersNamed(std::string_view name) {
  constexpr int kMost = 1 << 30;
  const std::size_t colon = name.find(':');
  const std::string_view word = name.substr(0, colon);
  const std::string_view value = colon == std::string_view::npos ? "" : name.substr(colon + 1);
  const bool number = !value.empty() && IsNumericField(value);
  AprsIsManners manners;
  if (word == "slow" && number) {
    manners.AnswerAfterSeconds = Val(value);
  } else if (word == "closes" && number) {
    manners.ClosesAtByte = static_cast<std::size_t>(WholeVal(value, 0, kMost).value_or(0));
  } else if (name == "silent") {
    manners.Silent = true;
  } else if (name == "babbles") {
    manners.Babbles = true;
  } else if (name == "deaf") {
    manners.NeverReads = true;
  } else {
    return std::nullopt;
  }
  return manners;
}

std::unique_ptr<AprsIsServer> AprsIsServer::Open(int port, AprsIsManners manners,
                                                 const Clock& clock) {
  const Listener listener = ListenOnLoopback(port);
  if (listener.Descriptor < 0) return nullptr;
  if (manners.NeverReads) {
    // Clients inherit it: what the system would take for them is little.
    ::setsockopt(listener.Descriptor, SOL_SOCKET, SO_RCVBUF, &kSmallBuffer, sizeof kSmallBuffer);
  }
  return std::make_unique<AprsIsServer>(listener.Descriptor, listener.Port, manners, clock);
}

AprsIsServer::~AprsIsServer() {
  for (const Client& client : clients_)
    ::close(client.Descriptor);
  ::close(listener_);
}

short AprsIsServer::EventsOf(const Client& client) const {
  const bool writes = manners_.Babbles || !client.Unsent.empty();
  return static_cast<short>((manners_.NeverReads ? 0 : POLLIN) | (writes ? POLLOUT : 0));
}

void AprsIsServer::Serve(int milliseconds) {
  std::vector<pollfd> waits{{listener_, POLLIN, 0}};
  for (const Client& client : clients_)
    waits.push_back({client.Descriptor, EventsOf(client), 0});
  ::poll(waits.data(), waits.size(), milliseconds);
  for (std::size_t at = 0; at < clients_.size(); ++at) {
    const int ready = waits[at + 1].revents;
    const bool gone = (ready & (POLLHUP | POLLERR)) != 0;
    if (manners_.NeverReads) {
      clients_[at].Cut = gone;
    } else if (gone || (ready & POLLIN) != 0) {
      Read(clients_[at]);
    }
    Write(clients_[at]);
  }
  RemoveCut(clients_);
  if ((waits[0].revents & POLLIN) != 0) Accept();
}

void AprsIsServer::Accept() {
  const int descriptor = AcceptClient(listener_);
  if (descriptor < 0) return;
  if (clients_.size() >= kMostClients) {
    ::close(descriptor);
    return;
  }
  ++clients_so_far_;
  Client& client = clients_.emplace_back();
  client.Descriptor = descriptor;
  client.Unsent = kGreeting;
  client.Cut = manners_.ClosesAtByte == std::size_t{0};
  Write(client);
  RemoveCut(clients_);
}

void AprsIsServer::Read(Client& client) {
  // One that hangs up takes no byte more than it says.
  const std::size_t most =
      manners_.ClosesAtByte ? std::min(*manners_.ClosesAtByte - client.BytesCame, kBlock) : kBlock;
  const std::size_t before = client.Received.size();
  client.Cut = !ReceiveSome(client.Descriptor, most, client.Received);
  client.BytesCame += client.Received.size() - before;
  TakeLines(client);
  if (client.BytesCame == manners_.ClosesAtByte) client.Cut = true;
}

void AprsIsServer::TakeLines(Client& client) {
  std::size_t at = 0;
  for (std::size_t end = client.Received.find('\n'); end != std::string::npos;
       end = client.Received.find('\n', at)) {
    const std::string_view line = std::string_view(client.Received).substr(at, end + 1 - at);
    TakeLogin(client, line);
    if (Line) Line(line);
    at = end + 1;
  }
  client.Received.erase(0, at);
  if (client.Received.size() > kLongestLine) client.Cut = true;
}

void AprsIsServer::TakeLogin(Client& client, std::string_view line) {
  constexpr std::string_view kUser = "user ";
  if (!line.starts_with(kUser) || manners_.Silent) return;
  const std::string call(WordBehind(line, kUser));
  const bool verified = WordBehind(line, " pass ") == PasscodeOf(call);
  client.Answer =
      "# logresp " + call + (verified ? " verified" : " unverified") + ", server AIR\r\n";
  client.AnswerAt = clock_.MonotonicSeconds() + manners_.AnswerAfterSeconds;
}

void AprsIsServer::Write(Client& client) {
  if (!client.Answer.empty() && clock_.MonotonicSeconds() >= client.AnswerAt) {
    client.Unsent += client.Answer;
    client.Answer.clear();
  }
  if (manners_.Babbles && client.Unsent.empty()) client.Unsent.assign(kBlock, 'x');
  if (client.Cut) return;
  const std::size_t before = client.Unsent.size();
  client.Cut = !SendSome(client.Descriptor, client.Unsent);
  bytes_sent_ += before - client.Unsent.size();
}

}  // namespace zepril
