// zepril-tool air: a packet engine on this computer that plays a file of packets.
//
// For demonstrations and tests of the whole program without a receiver. It prints "READY port" when
// it listens, begins to play when the first program asks for monitored frames, and prints
// "SENT port from>to,path:text" for what a program hands over to be sent (nothing goes on the air).
// It ends on SIGTERM or SIGINT.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tool/agw_server.h"
#include "tool/air_script.h"

namespace zepril {

inline constexpr std::string_view kAirHelp =
    "play packets as an engine on 127.0.0.1: --agw PORT --play FILE [--rate X] [--repeat]";

// The packets of a script as they fall due.
class AirPlay {
 public:
  // `rate`: how many times faster than written; `repeat`: from the start again a second after the
  // last packet.
  AirPlay(AirScript script, double rate, bool repeat);

  // The play begins at `now`, a monotonic time in seconds.
  void Begin(double now);
  bool Begun() const { return begun_; }
  // The next packet when it is due at `now`, else none. Repeated calls give all that are due.
  const AirPacket* Due(double now);
  // Seconds until the next packet is due; `otherwise` when none is to come.
  double SecondsToNext(double now, double otherwise) const;

 private:
  double DueAt() const;

  AirScript script_;
  double rate_;
  bool repeat_;
  bool begun_ = false;
  double start_ = 0;
  std::size_t next_ = 0;
};

// "SENT 1 QX7KB-9>ZEPR,WIDE1-1:=test" and a line feed. Control characters of the text are written
// as
// "\x0D", so that it stays one line.
std::string SentLine(const AgwUnproto& unproto);

int RunAir(std::span<const std::string_view> args);

}  // namespace zepril
