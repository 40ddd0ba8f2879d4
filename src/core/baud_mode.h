// How the radio speeds of the settings are shown.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// "300" -> "300 Bd", "300R" -> "RPR 300", "1200" -> "1200 Bd" and so on.
std::string BaudModeLabelOf(std::string_view baud_mode);

}  // namespace zepril
