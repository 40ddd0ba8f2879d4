// Heard text through all four forms of the gate. The first byte chooses the form. Each line is one
// line, its data are bytes of the block in their order, and what is not gated is its end.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "gate/gate_lines.h"

namespace {

constexpr const char* kDialects[] = {"AGW", "PK-232", "SCS TNC", "SCS PTC"};
constexpr std::string_view kCall = "QX7KB-10";

void Check(bool holds) {
  if (!holds) std::abort();
}

// Behind "qAR,QX7KB-10:" or "qAR,TCPIP:", which both may stand in a wild header too.
bool HoldsDataOf(std::string_view line, std::string_view block) {
  const std::string_view text = line.substr(0, line.size() - 2);
  for (std::size_t at = text.find("qAR,"); at != std::string_view::npos;
       at = text.find("qAR,", at + 1)) {
    for (const std::string_view call : {kCall, std::string_view("TCPIP")}) {
      const std::string_view rest = text.substr(at + 4);
      if (rest.starts_with(call) && rest.substr(call.size()).starts_with(":") &&
          block.find(rest.substr(call.size() + 1)) != std::string_view::npos) {
        return true;
      }
    }
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const zepril::GateForm form = zepril::GateFormOf(kDialects[data[0] % 4]);
  const std::string_view block(reinterpret_cast<const char*>(data) + 1, size - 1);
  const zepril::GateLines gated = zepril::GateLinesOf(form, block, kCall);
  for (const std::string& line : gated.Lines) {
    Check(line.find("\r\n") == line.size() - 2);
    Check(HoldsDataOf(line, block));
  }
  Check(block.ends_with(gated.Rest));
  Check(gated.Rest.empty() || gated.Why != zepril::NotGated::Nothing);
  return 0;
}
