// zepril-tool coords: positions through every grid of the program.
#pragma once

#include <span>
#include <string_view>

namespace zepril {

inline constexpr std::string_view kCoordsHelp =
    "\"longitude latitude\" lines to every grid, tab separated: [--zone U33] [--header] | --inverse";

int RunCoords(std::span<const std::string_view> args);

}  // namespace zepril
