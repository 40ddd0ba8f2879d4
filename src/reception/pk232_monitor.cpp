// Leaves the modem's echo and a first line without a marker out.
#include "reception/pk232_monitor.h"

#include "core/text_fields.h"

namespace zepril {

std::string_view Pk232Text(std::string_view input) {
  constexpr std::size_t kShortest = 10;
  if (input == "K\r\n" || input.size() < kShortest) return {};

  const std::size_t line_end = input.find("\r\n");
  if (line_end == std::string_view::npos) return input;
  const std::string_view line = input.substr(0, line_end);
  // Kept: only two of the three markers save a first line, "(UI)" does not.
  if (line.find("<UI>") != std::string_view::npos || line.find("[UI]") != std::string_view::npos) {
    return input;
  }

  std::string_view rest = input.substr(line_end);
  if (rest.size() < kShortest) return {};
  if (rest.size() - 2 >= kShortest) rest.remove_prefix(2);
  return rest;
}

Brought BringPk232Text(std::string_view raw, std::string& normal) {
  const std::string_view text = Pk232Text(raw);
  normal += text;
  return {raw.size(), text};
}

}  // namespace zepril
