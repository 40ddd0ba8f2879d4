// An APRS-IS server on this computer, as far as the program speaks to one, with good or bad
// manners.
//
// It listens on 127.0.0.1 only. A client is greeted; the line "user CALL pass NUMBER ..." is
// answered by "# logresp CALL verified" when the number is the passcode of the call, else
// "unverified". Each line that comes is told with its end. Nothing is handed on to anybody.
//
// One thread; everything happens in `Serve`.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace zepril {

struct AprsIsManners {
  double AnswerAfterSeconds = 0;              // how long a login waits for its answer
  bool Silent = false;                        // a login is never answered
  bool Babbles = false;                       // sends text without a line end, and without an end
  bool NeverReads = false;                    // takes nothing of what is sent to it
  std::optional<std::size_t> ClosesAtByte{};  // hangs up when so many bytes of a client have come
};

// "silent", "slow:3" (seconds), "babbles", "deaf", "closes:17" (bytes); nothing for other words.
std::optional<AprsIsManners> AprsIsMannersNamed(std::string_view name);

class AprsIsServer {
 public:
  static constexpr std::size_t kMostClients = 16;
  static constexpr std::size_t kLongestLine = 65536;

  // Listens on `port`, 0 for any free one. Nothing when that is not possible.
  static std::unique_ptr<AprsIsServer> Open(int port, AprsIsManners manners, const Clock& clock);
  // Takes over `listener`, which listens on `port` and does not block.
  AprsIsServer(int listener, int port, AprsIsManners manners, const Clock& clock)
      : listener_(listener), port_(port), manners_(manners), clock_(clock) {}
  ~AprsIsServer();
  AprsIsServer(const AprsIsServer&) = delete;
  AprsIsServer& operator=(const AprsIsServer&) = delete;

  int Port() const { return port_; }
  std::size_t Clients() const { return clients_.size(); }
  std::size_t ClientsSoFar() const { return clients_so_far_; }
  std::size_t BytesSent() const { return bytes_sent_; }

  // Takes and gives what is there; waits for at most `milliseconds` when there is nothing.
  void Serve(int milliseconds);

  // A line has come, with its line end.
  std::function<void(std::string_view line)> Line;

 private:
  struct Client {
    int Descriptor = -1;
    bool Cut = false;
    std::size_t BytesCame = 0;
    std::string Received;
    std::string Unsent;
    std::string Answer;     // waits for its time
    double AnswerAt = 0.0;  // monotonic seconds
  };

  short EventsOf(const Client& client) const;
  void Accept();
  void Read(Client& client);
  void TakeLines(Client& client);
  void TakeLogin(Client& client, std::string_view line);
  void Write(Client& client);

  int listener_;
  int port_;
  AprsIsManners manners_;
  const Clock& clock_;
  std::size_t clients_so_far_ = 0;
  std::size_t bytes_sent_ = 0;
  std::vector<Client> clients_;
};

}  // namespace zepril
