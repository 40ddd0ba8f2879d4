// Reads heads of requests, answers with a page, and closes.
#include "tool/web_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>

#include "core/text_fields.h"
#include "tool/loopback_listener.h"

namespace zepril {
namespace {

constexpr std::size_t kBlock = 4096;
constexpr std::string_view kHeadEnd = "\r\n\r\n";

int HexValue(char c) {
  const std::size_t value = std::string_view("0123456789ABCDEF").find(UpperChar(c));
  return value == std::string_view::npos ? -1 : static_cast<int>(value);
}

std::string FormValue(std::string_view text) {
  std::string value;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool coded = text[at] == '%' && at + 2 < text.size() && HexValue(text[at + 1]) >= 0 &&
                       HexValue(text[at + 2]) >= 0;
    if (coded) {
      value += Chr(16 * HexValue(text[at + 1]) + HexValue(text[at + 2]));
      at += 2;
    } else {
      value += text[at] == '+' ? ' ' : text[at];
    }
  }
  return value;
}

std::string PageOf(const WebAnswer& answer) {
  const char* word = answer.Status == 200 ? "OK" : "Not Found";
  std::string page = "HTTP/1.1 " + WholeNumber(answer.Status) + " " + word +
                     "\r\nContent-Type: " + answer.ContentType + "\r\nConnection: close\r\n";
  if (answer.MoreBytes != WebAnswer::kEndless) {
    const auto length = static_cast<std::int64_t>(answer.Body.size() + answer.MoreBytes);
    page += "Content-Length: " + WholeNumber(length) + "\r\n";
  }
  return page + "\r\n" + answer.Body.substr(0, answer.CutAt.value_or(answer.Body.size()));
}

}  // namespace

std::optional<WebFormMessage> ReadWebForm(std::string_view target) {
  constexpr std::string_view kForm = "/cgi-bin/sendmsg.cgi?";
  if (!target.starts_with(kForm)) return std::nullopt;
  WebFormMessage message;
  for (const std::string_view field : Split(target.substr(kForm.size()), '&')) {
    const std::size_t equals = field.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string value = FormValue(field.substr(equals + 1));
    const std::string_view name = field.substr(0, equals);
    if (name == "fromcall") message.From = value;
    if (name == "tocall") message.To = value;
    if (name == "msg") message.Text = value;
  }
  return message;
}

std::unique_ptr<WebServer> WebServer::Open(int port, const Clock* clock) {
  const Listener listener = ListenOnLoopback(port);
  if (listener.Descriptor < 0) return nullptr;
  return std::make_unique<WebServer>(listener.Descriptor, listener.Port, clock);
}

WebServer::~WebServer() {
  for (const Client& client : clients_)
    ::close(client.Descriptor);
  ::close(listener_);
}

void WebServer::Serve(int milliseconds) {
  std::vector<pollfd> waits{{listener_, POLLIN, 0}};
  for (const Client& client : clients_) {
    const int events = MayWrite(client) ? POLLOUT : POLLIN;
    waits.push_back({client.Descriptor, static_cast<short>(events), 0});
  }
  if (::poll(waits.data(), waits.size(), milliseconds) <= 0) return;
  for (std::size_t at = 0; at < clients_.size(); ++at) {
    const int ready = waits[at + 1].revents;
    if ((ready & (POLLIN | POLLHUP | POLLERR)) != 0) Read(clients_[at]);
    if ((ready & POLLOUT) != 0) Write(clients_[at]);
  }
  RemoveCut(clients_);
  if ((waits[0].revents & POLLIN) == 0) return;
  const int descriptor = AcceptClient(listener_);
  if (descriptor < 0) return;
  if (clients_.size() >= kMostClients) {
    ::close(descriptor);
  } else {
    clients_.emplace_back().Descriptor = descriptor;
  }
}

void WebServer::Read(Client& client) {
  client.Cut = !ReceiveSome(client.Descriptor, kBlock, client.Head);
  // What comes behind its question is passed over.
  if (client.Answered) client.Head.clear();
  if (client.Cut || client.Answered) return;
  if (client.Head.find(kHeadEnd) != std::string::npos) return Answer(client);
  client.Cut = client.Head.size() > kLongestHead;
}

// "GET target HTTP/1.1"
void WebServer::Answer(Client& client) {
  const std::string_view line = std::string_view(client.Head).substr(0, client.Head.find("\r\n"));
  const std::vector<std::string_view> words = Split(line, ' ');
  if (words.size() != 3 || words[0] != "GET") {
    client.Cut = true;
    return;
  }
  client.Answered = true;
  const WebAnswer answer = Asked ? Asked(words[1]) : WebAnswer{};
  client.Unsent = PageOf(answer);
  client.MoreBytes = answer.CutAt ? 0 : answer.MoreBytes;
  client.Silent = answer.Silent;
  client.Seconds = clock_ != nullptr ? answer.Seconds : 0.0;
  client.Begun = clock_ != nullptr ? clock_->MonotonicSeconds() : 0.0;
  client.Size = client.Unsent.size();
  Write(client);
}

// How much of what is unsent may leave by now.
std::size_t WebServer::Allowed(const Client& client) const {
  if (client.Seconds <= 0.0) return client.Unsent.size();
  const double passed = clock_->MonotonicSeconds() - client.Begun;
  const double share = std::min(passed / client.Seconds, 1.0);
  const auto due = static_cast<std::size_t>(share * static_cast<double>(client.Size));
  const std::size_t sent = client.Size - client.Unsent.size();
  return due > sent ? due - sent : 0;
}

bool WebServer::MayWrite(const Client& client) const {
  return client.Answered && !client.Silent && Allowed(client) > 0;
}

void WebServer::Write(Client& client) {
  constexpr std::uint64_t kFilling = 1 << 16;
  if (client.Cut || !MayWrite(client)) return;
  std::string part = client.Unsent.substr(0, Allowed(client));
  const std::size_t before = part.size();
  client.Cut = !SendSome(client.Descriptor, part);
  client.Unsent.erase(0, before - part.size());
  if (client.Unsent.empty() && client.MoreBytes > 0) {
    const std::uint64_t next = std::min(client.MoreBytes, kFilling);
    client.Unsent.assign(static_cast<std::size_t>(next), 'x');
    if (client.MoreBytes != WebAnswer::kEndless) client.MoreBytes -= next;
  }
  client.Cut = client.Cut || client.Unsent.empty();
}

}  // namespace zepril
