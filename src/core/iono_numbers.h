// What a sunspot number and a K index can be, and how they are typed.
#pragma once

#include <optional>
#include <string_view>

namespace zepril {

// From 0 on.
inline constexpr double kHighestSunspotNumber = 400.0;
inline constexpr double kHighestK = 9.0;

// A typed number from 0 to `highest`; nothing for any other text.
std::optional<double> NumberUpTo(std::string_view text, double highest);

}  // namespace zepril
