// Folds characters of the code page, and compares and orders names by them.
#include "platform/folded_name.h"

#include <algorithm>

namespace zepril {

char FoldedChar(char c) {
  const auto code = static_cast<unsigned char>(c);
  if (code >= 'a' && code <= 'z') return static_cast<char>(code - 32);
  if (code >= 0xE0 && code <= 0xFE && code != 0xF7) return static_cast<char>(code - 32);
  if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 16);
  if (code == 0xFF) return static_cast<char>(0x9F);
  return c;
}

bool SameName(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return FoldedChar(x) == FoldedChar(y); });
}

bool NameBefore(std::string_view a, std::string_view b) {
  const auto less = [](char x, char y) {
    return static_cast<unsigned char>(FoldedChar(x)) < static_cast<unsigned char>(FoldedChar(y));
  };
  if (std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), less)) return true;
  if (std::lexicographical_compare(b.begin(), b.end(), a.begin(), a.end(), less)) return false;
  return a < b;
}

}  // namespace zepril
