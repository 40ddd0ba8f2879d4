#include "core/title_line.h"

#include "core/text_fields.h"

namespace zepril {

std::string BaseTitle(std::string_view version, std::string_view call) {
  return PadRight("ZEP RIL  V " + std::string(version) + "  " + std::string(call), kTitleColumns);
}

void PutInTitle(std::string& title, std::size_t first, std::string_view text) {
  if (title.size() < kTitleColumns) title = PadRight(title, kTitleColumns);
  title.replace(first - 1, text.size(), text);
}

void BlankInTitle(std::string& title, std::size_t first, std::size_t last) {
  PutInTitle(title, first, std::string(last - first + 1, ' '));
}

}  // namespace zepril
