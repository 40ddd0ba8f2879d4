// What of a setting may leave the program: a modem takes control bytes for commands.
#pragma once

#include <string>
#include <string_view>

namespace zepril {

// A blank for each control character: "A\x1BZ" gives "A Z".
std::string WithoutControlCharacters(std::string_view text);

// A comma list without its empty elements: "A,,B," gives "A,B", " , " gives "". The others stay as
// they are.
std::string WithoutEmptyElements(std::string_view path);

}  // namespace zepril
