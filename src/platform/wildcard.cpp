// Wildcard match of file names by the Windows rules.
#include <cstddef>

#include "platform/files.h"
#include "platform/folded_name.h"

namespace zepril {
namespace {

// Runs of "*" and "?" against the name, going back to the last "*" when a stretch does not fit.
bool MatchesPlain(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::string_view::npos;
  std::size_t retry = 0;
  while (n < name.size()) {
    if (p < pattern.size() &&
        (pattern[p] == '?' || FoldedChar(pattern[p]) == FoldedChar(name[n])) && pattern[p] != '*') {
      ++n;
      ++p;
    } else if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      retry = n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++retry;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*')
    ++p;
  return p == pattern.size();
}

}  // namespace

bool MatchesWildcard(std::string_view name, std::string_view pattern) {
  if (MatchesPlain(name, pattern)) return true;
  // "M*.*" also matches names without a point.
  constexpr std::string_view kAnyExtension = ".*";
  if (pattern.size() < kAnyExtension.size() || !pattern.ends_with(kAnyExtension)) return false;
  if (name.find('.') != std::string_view::npos) return false;
  return MatchesPlain(name, pattern.substr(0, pattern.size() - kAnyExtension.size()));
}

}  // namespace zepril
