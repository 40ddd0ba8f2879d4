// Monitor text of the packet engine: whatever comes, a frame that is taken has the two lines of the
// normal form, with the text's own information in the second.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "reception/agw_monitor.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  std::string collected = "before";
  const bool taken = zepril::AppendAgwFrame(text, collected);
  if (!taken) {
    if (collected != "before") std::abort();
    return 0;
  }
  const std::string_view normal = std::string_view(collected).substr(6);
  const std::size_t line_end = normal.find("\r\n");
  if (line_end == std::string_view::npos || !normal.substr(0, line_end).ends_with(">:"))
    std::abort();
  if (!normal.ends_with("\r\n") || normal.size() > 2 * text.size() + 16) std::abort();
  if (zepril::HasAgwForm(text)) {
    const std::string_view rest = text.substr(text.find('\r') + 1);
    const std::string_view information = normal.substr(line_end + 2);
    if (!rest.starts_with(information.substr(0, information.size() - 2))) std::abort();
  }
  return 0;
}
