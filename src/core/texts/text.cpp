// Values put into the places of a text.
#include "core/texts/text.h"

namespace zepril {

std::string Text::With(std::initializer_list<std::string_view> values) const {
  const std::string_view text = *this;
  std::string filled;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t value = text[at] == '%' && at + 1 < text.size()
                                  ? static_cast<std::size_t>(text[at + 1] - '1')
                                  : values.size();
    if (value < values.size()) {
      filled += values.begin()[value];
      ++at;
    } else {
      filled += text[at];
    }
  }
  return filled;
}

}  // namespace zepril
