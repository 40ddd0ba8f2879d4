// Monitor text of the SCS modems: taking never goes backwards, every frame has its two lines, and
// text that arrives in two pieces gives the same frames in the same order.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "reception/scs_monitor.h"

namespace {

using zepril::ScsDialect;
using zepril::TakeScsFrames;

// All frames, taking until nothing more goes.
std::string TakeAll(std::string& text, ScsDialect dialect) {
  std::string collected;
  for (;;) {
    const std::size_t taken = TakeScsFrames(text, dialect, collected);
    if (taken > text.size()) std::abort();
    if (taken == 0) return collected;
    text.erase(0, taken);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const ScsDialect dialect = (data[0] & 1) != 0 ? ScsDialect::Ptc : ScsDialect::Tnc;
  const std::string input(reinterpret_cast<const char*>(data) + 2, size - 2);
  std::string whole = input;
  const std::string collected = TakeAll(whole, dialect);
  if (collected.size() > input.size() + 16 * (input.size() / 24 + 1)) std::abort();
  std::size_t feeds = 0;
  for (char c : collected)
    feeds += c == '\n' ? 1 : 0;
  if (!collected.empty() && (feeds < 2 || !collected.ends_with("\r\n"))) std::abort();
  if (!collected.empty() && collected.find(" <UI>:\r\n") == std::string::npos) std::abort();

  // In two pieces, the first one ending anywhere.
  const std::size_t cut = input.empty() ? 0 : data[1] % input.size();
  std::string buffer = input.substr(0, cut);
  std::string pieces = TakeAll(buffer, dialect);
  buffer += input.substr(cut);
  pieces += TakeAll(buffer, dialect);
  if (pieces != collected) std::abort();
  return 0;
}
