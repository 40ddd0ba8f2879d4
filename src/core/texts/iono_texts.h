// The words about ionospheric data: where its numbers come from and how their update goes.
#pragma once

#include "core/texts/text.h"

namespace zepril::iono_texts {

// A field whose value comes from the internet. %1: the value.
inline constexpr Text kFromInternet{"%1 (INET)"};

// The status beside the fields. %1: the time.
inline constexpr Text kUpdating{"UPDATING..."};
inline constexpr Text kUpdatedByPageA{"%1 UPDATED (1) "};
inline constexpr Text kUpdatedByBoth{"%1 UPDATED (M) "};
inline constexpr Text kUpdatedByPageB{"%1 UPDATED (2) "};
inline constexpr Text kUpdateFailed{"UPDATE FAILED"};
inline constexpr Text kByHand{"NO AUTOMATIC UPDATE"};
inline constexpr Text kNoAddress{"OFF: NO ADDRESS IN SERVICES.TXT"};

// What its tool tip adds. %1: the address, or the time; the numbers.
inline constexpr Text kAsking{"Asking %1"};
inline constexpr Text kAnswered{"%1: sunspot number %2, K %3"};
inline constexpr Text kNotAnswered{
    "%1: no answer, or a page without the numbers. The values stay; the next update is in an hour"};

inline constexpr Text kOnlyKAnswered{
    "%1: K %2. No sunspot number came, the one in use stays; the next update is in an hour"};
inline constexpr Text kOnlySunspotsAnswered{
    "%1: sunspot number %2. No K came, the one in use stays; the next update is in an hour"};

}  // namespace zepril::iono_texts
