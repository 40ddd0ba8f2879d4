// Takes frame after frame of a block, looks whether it may go, and words its line.
#include "gate/gate_lines.h"

#include <algorithm>
#include <array>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::array<std::string_view, 4> kForbidding{"NOGATE", "RFONLY", "TCPIP", "TCPXX"};

bool ForbidsTheGate(const std::string& watched) {
  return std::any_of(kForbidding.begin(), kForbidding.end(), [&watched](std::string_view word) {
    return watched.find(word) != std::string::npos;
  });
}

// An end within the data: the server would take what follows for a packet of its own. Ends behind
// it, which widespread radios send, do no harm.
bool HasSeveralLines(const GateFrame& frame) {
  const std::string_view data = frame.Data;
  const std::size_t last = data.find_last_not_of("\r\n");
  const bool within = last != std::string_view::npos && data.find_first_of("\r\n") < last;
  return within || data.find("\r\n") != std::string_view::npos ||
         frame.Header.find_first_of("\r\n") != std::string::npos;
}

NotGated WhyNot(const std::optional<GateFrame>& frame) {
  if (!frame) return NotGated::NoFrame;
  if (ForbidsTheGate(frame->Watched)) return NotGated::ForbiddenPath;
  const bool others = frame->Data.starts_with('}') || frame->Data.starts_with('?');
  if (others) return NotGated::ForwardedOrQuery;
  return HasSeveralLines(*frame) ? NotGated::SeveralLines : NotGated::Nothing;
}

std::string LineOf(const GateFrame& frame, std::string_view call) {
  const bool own = EqualFolded(std::string_view(frame.Header).substr(0, call.size()), call);
  std::string line = frame.Header;
  line.append("qAR,").append(own ? "TCPIP" : call).append(":");
  line.append(frame.Data).append("\r\n");
  return line;
}

GateText Behind(GateText text, std::size_t offset) {
  return {text.AsHeard.substr(offset), text.Capitals.substr(offset)};
}

}  // namespace

GateLines GateLinesOf(GateForm form, std::string_view block, std::string_view call) {
  const std::string capitals = Upper(block);
  const std::string_view gate_call = Trim(call);
  GateText rest{block, capitals};
  GateLines gated;
  while (true) {
    const std::optional<GateFrame> frame = form(rest);
    gated.Why = WhyNot(frame);
    if (gated.Why != NotGated::Nothing) {
      gated.Rest = rest.AsHeard;
      return gated;
    }
    gated.Lines.push_back(LineOf(*frame, gate_call));
    // The next frame, when there is room for one.
    rest = Behind(rest, frame->DataEnd);
    if (rest.AsHeard.size() <= kLongestRemainder) return gated;
    rest = Behind(rest, std::min(rest.AsHeard.find_first_not_of("\r\n"), rest.AsHeard.size()));
    if (rest.AsHeard.size() <= kLongestRemainder) return gated;
  }
}

}  // namespace zepril
