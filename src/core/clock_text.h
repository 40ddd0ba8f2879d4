// A time of day as the operator reads it.
#pragma once

#include <string>

#include "core/text_fields.h"
#include "platform/clock.h"

namespace zepril {

//   "09:05"
inline std::string ClockText(const LocalTime& time) {
  return ZeroPadded(time.Hour, 2) + ":" + ZeroPadded(time.Minute, 2);
}

}  // namespace zepril
