// Takes a typed number in its range.
#include "core/iono_numbers.h"

#include "core/text_fields.h"

namespace zepril {

std::optional<double> NumberUpTo(std::string_view text, double highest) {
  const std::string_view typed = Trim(text);
  if (typed.empty() || !IsNumericField(typed)) return std::nullopt;
  const double value = Val(typed);
  if (!(value >= 0.0 && value <= highest)) return std::nullopt;
  return value;
}

}  // namespace zepril
