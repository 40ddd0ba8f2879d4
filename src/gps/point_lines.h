// A point as tracks and `QTHACTPR.TXT` hold it, in km.
#pragma once

#include <string>
#include <string_view>

#include "core/point_list.h"
#include "core/text_fields.h"

namespace zepril {

// "þ", north, east: 19 columns. A text that is empty, since the position is out of range, is nine
// blanks: the columns hold.
inline std::string PointLineStart(std::string_view north_text, std::string_view east_text) {
  constexpr std::size_t kWidth = 9;
  return PointList::kMark + Field(north_text, kWidth) + Field(east_text, kWidth);
}

}  // namespace zepril
