// Web services on 127.0.0.1 as far as the program asks them: one page a connection.
//
// Nobody can hold it up: who sends a head that is none, or too long a one, does not read his page,
// or comes when all places are taken, is cut off. One thread; everything happens in `Serve`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace zepril {

// A page, and how it comes where a server is to behave badly.
struct WebAnswer {
  static constexpr std::uint64_t kEndless = ~std::uint64_t{0};

  int Status = 404;
  std::string Body;
  std::string ContentType = "text/html";
  bool Silent = false;                              // nothing is ever sent
  double Seconds = 0.0;                             // from the first byte to the last; 0: at once
  std::optional<std::size_t> CutAt = std::nullopt;  // closed behind so many bytes of the body
  std::uint64_t MoreBytes = 0;  // of filling behind the body; kEndless: without a length
};

// A page of a server: its path without a query, and what is answered to who asks for it.
struct WebPage {
  std::string_view Path;
  std::function<WebAnswer(std::string_view target)> Answer;
};

// What came in by the form for messages.
struct WebFormMessage {
  std::string From;
  std::string To;
  std::string Text;
};

// A request "/cgi-bin/sendmsg.cgi?fromcall=QX7KB&tocall=AB1CD&msg=Hello%7B07", its values decoded
// as forms do; nothing for any other.
std::optional<WebFormMessage> ReadWebForm(std::string_view target);

class WebServer {
 public:
  static constexpr std::size_t kMostClients = 16;
  static constexpr std::size_t kLongestHead = 16384;  // bytes

  // Listens on `port`, 0 for any free one. Nothing when that is not possible.
  // `clock`: by which slow pages come; may be missing, then they come at once.
  static std::unique_ptr<WebServer> Open(int port, const Clock* clock = nullptr);
  // Takes over `listener`, which listens on `port` and does not block.
  WebServer(int listener, int port, const Clock* clock)
      : listener_(listener), port_(port), clock_(clock) {}
  ~WebServer();
  WebServer(const WebServer&) = delete;
  WebServer& operator=(const WebServer&) = delete;

  int Port() const { return port_; }
  std::size_t Clients() const { return clients_.size(); }

  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  void Serve(int milliseconds);

  // A page was asked for: path and query. Without an answer it is not there.
  std::function<WebAnswer(std::string_view target)> Asked;

 private:
  struct Client {
    int Descriptor = -1;
    bool Cut = false;
    bool Answered = false;
    std::string Head;
    std::string Unsent;
    std::uint64_t MoreBytes = 0;  // of filling, behind what is unsent
    double Begun = 0.0;           // monotonic seconds
    double Seconds = 0.0;         // of a slow page
    std::size_t Size = 0;         // of that
    bool Silent = false;
  };

  void Read(Client& client);
  void Write(Client& client);
  void Answer(Client& client);
  bool MayWrite(const Client& client) const;
  std::size_t Allowed(const Client& client) const;

  int listener_;
  int port_;
  const Clock* clock_;
  std::vector<Client> clients_;
};

}  // namespace zepril
