// Tells a number, with or without letters in front, from a device's name.
#include "core/port_number.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {

std::optional<int> PortNumberOfText(std::string_view text) {
  constexpr int kHighestHeld = 32767;
  constexpr std::string_view kBefore = "COM";
  std::string_view digits = Trim(text);
  if (EqualFolded(digits.substr(0, kBefore.size()), kBefore)) {
    digits = TrimLeft(digits.substr(kBefore.size()));
  }
  const bool whole = !digits.empty() && std::all_of(digits.begin(), digits.end(), IsDigit);
  if (!whole) return std::nullopt;
  return WholeVal(digits, 0, kHighestHeld).value_or(0);
}

}  // namespace zepril
