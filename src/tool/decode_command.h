// zepril-tool decode: monitor text on standard input to 120-column records on standard output.
#pragma once

#include <span>
#include <string_view>

namespace zepril {

inline constexpr std::string_view kDecodeHelp =
    "monitor text to station records: --mode N | --tnc2 [--zone U33] [--now 2024-01-15T12:34] "
    "[--utc-offset H] [--call CALL] [--limit N] [--pass BYTES] [--stats]";

int RunDecode(std::span<const std::string_view> args);

}  // namespace zepril
