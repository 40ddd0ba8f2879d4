// The words about the GPS: its line over the map, and what is told when it gives no position.
#pragma once

#include "core/texts/text.h"

namespace zepril::gps_texts {

// The line: its head and pieces. %1: the value, filled on the left to its width.
inline constexpr Text kInfo{"   GPS-INFO: "};
inline constexpr Text kNorth{" GLN:%1"};
inline constexpr Text kEast{" GLE:%1"};
inline constexpr Text kHeight{" ALT:%1_m"};
inline constexpr Text kKilometresPerHour{" Vkm:%1_km/h"};
inline constexpr Text kKnots{" Vnm:%1_nm/h"};
inline constexpr Text kHorizontalError{" ERh:%1_m"};
inline constexpr Text kVerticalError{" ERv:%1_m"};
inline constexpr Text kSatellites{" USE:%1_sats"};
inline constexpr char kFill = '_';

// In its place. %1: the time of the last position, or the source as it is set.
inline constexpr Text kNoPositionYet{"GPS: no position yet"};
inline constexpr Text kNoPositionSince{"GPS: no position since %1"};
inline constexpr Text kWithTrouble{"%1   %2"};
inline constexpr Text kNoSource{"GPS: %1 is neither a port nor a file."};
inline constexpr Text kNoFile{"%1 is no file."};
inline constexpr Text kFileAbsent{"%1 is not there."};
inline constexpr Text kNoSentences{"%1 holds no NMEA sentences, and is left alone."};
inline constexpr Text kFileUnread{"%1 can't be read."};
inline constexpr Text kFileStays{"%1 can't be removed, and so is not read."};

}  // namespace zepril::gps_texts
