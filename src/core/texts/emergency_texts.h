// The words of the emergency panel.
#pragma once

#include "core/texts/text.h"

namespace zepril::emergency_texts {

inline constexpr Text kTitle{"EMERGENCY"};
// %1: call of 12 places, %2: time.
inline constexpr Text kCall{"%1%2"};
// %1: zone, %2: north, %3: east in km.
inline constexpr Text kGrid{"UTM(Z%1): %2 %3"};
inline constexpr Text kDegrees{"GLL: %1  %2"};
// Of the log. %1: call, %2: time of the report, %3: now.
inline constexpr Text kCancelled{"FALSE ALARM : %1  %2  CANCELLED %3"};

inline constexpr Text kQuestionTitle{"ZEP RIL         EMERGENCY ALARM"};
inline constexpr Text kQuestion{"CANCEL THIS ALARM  ( = FALSE ALARM )  ?"};

}  // namespace zepril::emergency_texts
