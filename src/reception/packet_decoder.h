// From a frame in normal form to a decoded packet.
//
// Positions are decoded in plain, NMEA, compressed and Mic-E form, objects too; messages are told
// apart. Everything else (status, telemetry, weather without a position) is not decoded at all. The
// decoder never reports a malformed packet: a failed test drops the frame.
#pragma once

#include <string>
#include <string_view>

#include "core/symbol_table.h"
#include "reception/decoded_packet.h"
#include "reception/header_analysis.h"

namespace zepril {

enum class DropReason {
  OwnGatedBack,
  HeaderTooShort,
  NotMarked,
  OwnEcho,
  Message,      // went to the chat
  TooShort,     // the information ends before its columns do
  NoPosition,   // call, destination, latitude or longitude is empty
  NearEquator,  // latitude of 0.02 degree or less
  OffTheGrid,   // more than 9999 km from the origin of the map zone
  NoLineFeed,   // a header with no beginning
};
inline constexpr int kDropReasons = 10;

// A few words for a reason, for statistics.
std::string_view DropText(DropReason reason);

enum class DecodeOutcome {
  Packet,
  Dropped,
  Recovery,  // an impossible cut: the receive buffer is to be emptied
};

struct DecodeResult {
  DecodeOutcome Outcome = DecodeOutcome::Dropped;
  DropReason Reason = DropReason::NoPosition;  // of a dropped frame
};

// Decodes `frame` into `packet`, whose strings keep their memory from call to call. The text of
// `frame` may be moved out.
DecodeResult DecodePacket(AnalysedFrame& frame, const DecodeContext& context,
                          const SymbolTable& symbols, DecodedPacket& packet);

// Single steps, for tests and for the decoder of internet lines.

// Cuts radio prefixes and an altitude out of a comment, with the text before them.
//   "abc}Test" is "Test", "Hi /A=001234 mobile" is "mobile"
std::string CleanComment(std::string_view text);

// At most 47 characters; a longer text is cut to 46 with "~" behind.
std::string HeldComment(std::string_view text);

// The symbol as a record holds it (overlay behind the code), its index and its text for columns
// 105-120. An empty symbol is "/" and the double quote.
void ResolveSymbol(const SymbolTable& symbols, DecodedPacket& packet);

}  // namespace zepril
