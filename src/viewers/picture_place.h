// A map start that is a picture's place: what the start panel takes from the picture it shows.
#pragma once

#include <optional>
#include <string_view>

namespace zepril {

// Kilometres, each with the fraction .499 or, when negative, .501.
struct PictureStart {
  double UTN = 0.0;
  double UTE = 0.0;
};

// Read from the name between the last "\" and the last "." of `path`; nothing when one of them is
// missing or the point stands before the "\".
//   C:\ZEPRIL\U33\UTMPICS\62000400.BMP: 6200.499 and 400.499
//   C:\ZEPRIL\U33.NEW\62000400: nothing
std::optional<PictureStart> PictureStartOfPath(std::string_view path);

}  // namespace zepril
