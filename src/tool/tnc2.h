// Packets as most programs of the field write them, "SRC>DST,PATH:data", in the normal form of
// reception.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// Replaces `normal` by the two lines of the frame. Digipeaters and their asterisks stay in order; a
// path without "*" was heard directly. False when `line` (without its end) is no packet: no ":" or
// no ">" with a sender and a destination before it.
//   "N0CALL>APRS,RELAY*,WIDE1-1:!x" becomes "N0CALL>RELAY*>WIDE1-1>APRS <UI>:" CR LF "!x" CR LF
bool Tnc2ToNormal(std::string_view line, std::string& normal);

}  // namespace zepril
