// zepril-tool air: stand-ins for the outside world: a packet engine on this computer and modems on
// pseudo-terminals, which play a file of packets, an APRS-IS server, web services, and a GPS that
// is driven along a route.
//
// For demonstrations and tests of the whole program without a receiver. It prints a line as soon as
// a device can be used ("READY port" of the engine, "READY pk232 LINK" of a modem), begins to play
// when the first program listens, and prints what programs do:
//
//   SENT 1 QX7KB-9>ZEPR,WIDE1-1:text           handed to the engine's port 1 to be sent
//   SENT pk232 300 QX7KB-9>ZEPR,WIDE1-1:text   handed to a modem at 300 Bd
//   COMMAND pk232 MYCALL QX7KB-9               a command of a modem
//   LINE aprs-is QX7AB>ZEPR,qAR,QX7KB:!tst     a line that came to the server
//   PAGE web /text/sgas.txt                    a page that was asked for
//   MESSAGE web QX7KB-9 AB1CD Hello{07         handed to the web form for messages
//
// Nothing goes on the air. It ends on SIGTERM or SIGINT.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "tool/air_devices.h"
#include "tool/air_script.h"

namespace zepril {

inline constexpr std::string_view kAirHelp =
    "stand in for the outside world: --agw PORT (engine on 127.0.0.1) --pk232|--scs-tnc|--scs-ptc "
    "LINK (modems on pseudo-terminals) --aprs-is PORT [--aprs-is-manner "
    "silent|slow:SECONDS|babbles|deaf|closes:BYTES] --web PORT (web services on 127.0.0.1) "
    "[--web-manner whole|silent|slow:SECONDS|cut:BYTES|endless|empty|binary|huge|no-data] "
    "[--web-iono whole|html|k-only|other|empty|absent[,OF THE SECOND PAGE]] --gps LINK (GPS on a "
    "pseudo-terminal) [--gps-route LAT,LON;LAT,LON] [--gps-manner rmc|gga|mixed|damaged|halves] "
    "[--play FILE [--rate X] [--repeat]]";

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

int RunAir(std::span<const std::string_view> args);

}  // namespace zepril
