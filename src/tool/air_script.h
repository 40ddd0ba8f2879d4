// What a played engine hears: packets with the time at which each is on the air.
//
// A script holds one packet a line, either as most programs write them or as the engine's own
// monitor text:
//
//   @4.2 QX1AB-9>APRS,QX0DIG*,WIDE2-1:!5405.39N/01208.37E>on the road
//   @7 1:Fm QX2CD To APRS Via WIDE1-1 <UI pid=F0 Len=4 PF=0 >[12:00:00]
//   !tst
//
// "@4.2 " is the second, counted from the start of the play, at which the packet is heard. A packet
// without one follows a second after the one before it. The information of monitor text stands in
// the line below its header, or behind a CR in the same line. Empty lines, and lines that are no
// packet, are passed over and counted.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace zepril {

struct AirPacket {
  double Seconds = 0;  // from the start of the play
  std::string From;    // the sender's call
  std::string To;      // the destination
  std::string Via;     // digipeaters, asterisks kept; empty when there are none
  std::string Information;
  std::string Header;  // header line of monitor text, played as it is; empty: made of the calls
};

struct AirScript {
  std::vector<AirPacket> Packets;  // in the order of the lines, times never falling
  std::size_t Refused = 0;         // lines that are no packet
};

// Longest information that is played, in bytes.
inline constexpr std::size_t kLongestInformation = 2048;

AirScript ReadAirScript(std::string_view text);

// The whole monitor frame of the packet, as an engine sends it at `time`: kind "U", 36 bytes of
// header, the text with its CR CR.
std::string MonitorFrame(const AirPacket& packet, const LocalTime& time);

}  // namespace zepril
