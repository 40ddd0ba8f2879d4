// Reads the header of a frame: who sent it, to what destination, and over whom it was heard.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// A frame with its header read.
struct AnalysedFrame {
  std::string PacketCall;         // sender, upper case
  std::string PacketDestination;  // as it came
  std::string PacketHeardVia;     // last digipeater, "ALIAS", "TCPIP"; empty: heard directly
  char PacketType = 0;            // data type character; 0 when there is no information
  std::string PacketInfo;         // information, trimmed; empty when the path is not well formed
  std::string Header;             // the header line up to its colon
  bool ThirdParty = false;
};

enum class HeaderOutcome {
  Frame,         // to be decoded
  OwnGatedBack,  // the own packet, sent back by a gateway
  TooShort,      // the header is none
  NotMarked,     // no "*" anywhere: neither direct nor repeated
  OwnEcho,       // the own transmission; the pass starts again from the top
};

// `frame`: header ending in ":", CR LF, information. `my_call_full` and `own_header` (beginning of
// the own transmitted header in normal form) may be empty: then nothing is taken for the own.
// `result` is filled as far as the outcome asks; its strings keep their memory from call to call.
HeaderOutcome AnalyseHeader(std::string_view frame, std::string_view my_call_full,
                            std::string_view own_header, AnalysedFrame& result);

// A packet that a gateway has put into a frame of its own, `information` without its "}":
//   "N0CALL>APRS,TCPIP,GATE1*:=5230.00N/01324.00E"
// False, and `result` unchanged, when it is none after all.
bool ReadThirdParty(std::string_view information, AnalysedFrame& result);

}  // namespace zepril
