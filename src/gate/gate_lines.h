// From a block of heard text to the lines that a gate hands to the internet.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "gate/gate_forms.h"

namespace zepril {

// Why heard text, or a line made of it, does not go to the internet.
enum class NotGated {
  Nothing,           // all of it goes
  NoFrame,           // a part of a frame is missing
  ForbiddenPath,     // NOGATE, RFONLY, TCPIP or TCPXX in its header
  ForwardedOrQuery,  // data that begins with "}" or "?"
  SeveralLines,      // data with a line end in it: a line can't hold that
  Repeat,            // like a line of the last seconds
  NotTaken,          // the link has not taken the line
};

// A block has no more frames when this many characters or fewer are left.
inline constexpr std::size_t kLongestRemainder = 10;

struct GateLines {
  // "QX7AB>ZEPR,WIDE1-1,qAR,QX7KB-10:!tst" and CR LF each.
  std::vector<std::string> Lines;
  NotGated Why = NotGated::Nothing;  // what ended the block before its end
  std::string_view Rest;             // what of the block was not gated, from that frame on
};

// The lines of all frames of the block. Kept: the first frame that may not go, or is none, ends it;
// the frames behind that one are not gated either.
//
// `call`: that of the station, with its SSID. Frames of its own are told as "TCPIP". Kept: a call
// that merely begins like it counts as its own too.
//
// The data of a line are the bytes that were heard.
GateLines GateLinesOf(GateForm form, std::string_view block, std::string_view call);

}  // namespace zepril
