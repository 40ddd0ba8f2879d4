// Compares ends, writes the last place, moves all up.
#include "gate/recent_lines.h"

#include <algorithm>
#include <utility>

#include "core/text_fields.h"

namespace zepril {
namespace {

bool AreAlike(std::string_view a, std::string_view b) {
  constexpr std::ptrdiff_t kCompared = 8;
  return Left(a, kCompared) == Left(b, kCompared) && Right(a, kCompared) == Right(b, kCompared);
}

}  // namespace

bool IsRepeat(const RecentLines& recent, std::string_view line, std::int64_t now) {
  return std::any_of(recent.begin(), recent.end(), [&](const GatedLine& gated) {
    return AreAlike(gated.Text, line) && now - gated.Seconds < kRepeatSeconds;
  });
}

void Remember(RecentLines& recent, std::string_view line, std::int64_t now) {
  recent.back() = {std::string(line), now};
}

void Age(RecentLines& recent) {
  std::move(recent.begin() + 1, recent.end(), recent.begin());
  recent.back() = {};
}

}  // namespace zepril
