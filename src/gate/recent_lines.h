// What went through the gate lately: the same line is not handed over twice.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/state/internet.h"

namespace zepril {

using RecentLines = decltype(InternetState::RecentlyGated);

// Seconds for which a line counts as gated already.
inline constexpr std::int64_t kRepeatSeconds = 30;

// True for a line like one that is remembered and younger than that. Kept: lines are alike when
// their first 8 and their last 8 characters are, the line end among these.
// `now`: seconds of the local calendar.
bool IsRepeat(const RecentLines& recent, std::string_view line, std::int64_t now);

// Kept: the line takes the last place whatever stands there, so of several in one tick only the
// last is remembered.
void Remember(RecentLines& recent, std::string_view line, std::int64_t now);

// Once a tick: all move up, the last place gets free. A line is forgotten after five of these,
// however young it is.
void Age(RecentLines& recent);

}  // namespace zepril
