// The words of internet support: what each of its switches is doing, and what came of it last.
#pragma once

#include "core/texts/text.h"

namespace zepril::internet_texts {

// The switch of MONI 1. %1: the source, 1 or 2.
inline constexpr Text kSource{"i  %1"};

// Whose words they are. %1: the words.
inline constexpr Text kOfMoni1{"MONI 1: %1"};
inline constexpr Text kOfMoniAll{"AREA: %1"};

inline constexpr Text kOff{"off"};
// %1: the time of day.
inline constexpr Text kWaits{"waits for %1"};
inline constexpr Text kAsking{"asking since %1"};
inline constexpr Text kLines{"%1 %2 lines, %3 new"};
inline constexpr Text kStations{"%1 %2 stations, %3 new"};
inline constexpr Text kNoData{"%1 no data"};
inline constexpr Text kNoAnswer{"%1 no answer"};
inline constexpr Text kRefused{"%1 refused (%2)"};
inline constexpr Text kTooLarge{"%1 answer too large"};
inline constexpr Text kOddAnswer{"%1 answer not understood"};
inline constexpr Text kPassedOver{"%1 answer passed over"};
inline constexpr Text kTooManyWait{"%1 too many pages wait"};
// %1: minutes.
inline constexpr Text kTimeIsUp{"off after %1 min"};
// %1: the key in the file.
inline constexpr Text kNoService{"off, no %1 in SERVICES.TXT"};
inline constexpr Text kNoStation{"no station is followed"};
inline constexpr Text kNothingToScan{"no station to scan"};
// %1: which one, %2: of how many; then that, and what is done with it.
inline constexpr Text kScanPlace{"%1/%2"};
inline constexpr Text kScan{"scan %1, %2"};

}  // namespace zepril::internet_texts
