// One read of the PK-232: what is kept is the whole of it or its end, long enough to be a frame.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "reception/pk232_monitor.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view text = zepril::Pk232Text(input);
  if (text.empty()) return 0;
  if (!input.ends_with(text) || text.size() < 10) std::abort();
  // A text that begins with a good header is kept as it is, so that reading it again changes
  // nothing.
  const std::size_t line_end = text.find("\r\n");
  const bool good = text.substr(0, line_end).find("<UI>") != std::string_view::npos;
  if (good && zepril::Pk232Text(text) != text) std::abort();
  return 0;
}
