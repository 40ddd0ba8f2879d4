// How long ago a file was changed.
#pragma once

#include <cstdint>
#include <limits>

#include "platform/clock.h"
#include "platform/files.h"

namespace zepril {

// Seconds; endless when the stamp lies in the future, as by another computer's clock.
inline double SecondsSinceChange(const FileStamp& stamp, const Clock& clock) {
  constexpr double kNsPerSecond = 1e9;
  const std::int64_t age_ns = clock.FileTimeNs() - stamp.ModifiedNs;
  return age_ns < 0 ? std::numeric_limits<double>::infinity()
                    : static_cast<double>(age_ns) / kNsPerSecond;
}

}  // namespace zepril
