// File names without regard to case, code page 1252.
#pragma once

#include <string_view>

namespace zepril {

char FoldedChar(char c);
bool SameName(std::string_view a, std::string_view b);
// Order of a sorted listing: folded first, as written where that is equal.
bool NameBefore(std::string_view a, std::string_view b);

}  // namespace zepril
