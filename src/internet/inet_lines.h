// Packets of one station as the databases tell them: the lines of a reply, and a line as a frame.
//
// A line is the packet's time in UTC, a comma, and the packet as the internet writes it:
//   20240514123000,QX7GW>APRS,WIDE1-1,qAR,QX7AB:!4830.15N/00805.20E>Test
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "reception/header_analysis.h"

namespace zepril {

// The page tells that there is nothing of the station.
bool SaysNoData(std::string_view body);

// The lines of a page of either kind, without nul characters; empty when the page is of another
// form, or tells of too little to hold a packet.
//
// Behind "RAW DATA: " and `call`, without regard to its case; a head may stand before the lines.
std::string LinesOfCgiReply(std::string_view body, std::string_view call);
// "2024-05-14 12:30:00 QX7GW>APRS,...", brought to the form above.
std::string LinesOfRestReply(std::string_view body);

struct InetLine {
  std::int64_t Seconds = 0;  // UTC, since 1970
  std::string_view Text;     // the whole line, in either form of date
};

// The lines of `text` that have a time, in its order, the oldest first; of the same time as they
// stand. A head before the first line is passed over. A line of less than 40 characters ends the
// list. The views live as long as `text`.
std::vector<InetLine> CutInetLines(std::string_view text);

// Reads the header of the packet of `line`; false when it is none. Heard via is "inet", or the last
// element of the path in small letters, or "tcpip" where the line tells of that.
bool ReadInetLine(std::string_view line, AnalysedFrame& frame);

// A position that this station has sent once more for another one, come back.
bool IsOwnRetransmission(std::string_view line, const AnalysedFrame& frame,
                         std::string_view my_call_full);

}  // namespace zepril
