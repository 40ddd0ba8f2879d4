// Names of geo-referenced pictures: NNNNEEEE and an extension, the kilometres in which the picture
// was taken, written as in the names of tiles.
#pragma once

#include <string_view>

#include "map/map_view.h"

namespace zepril {

// From the corner of the kilometre to where a picture is taken to lie in it, either way. A centre
// with this fraction in both coordinates is known as a picture's place when it is read back.
inline constexpr double kPictureMiddleKm = 0.499;

// South-west corner of the kilometre; groups that are missing count as 0, case does not matter.
//   "62000400.BMP" is 6200 / 400, "a1230412.jpg" is -1123 / 412, "62.JPG" is 62 / 0
MapPosition PictureCorner(std::string_view name);

// The middle of the kilometre: 6200.499 / 400.499, -1122.501 / 412.499.
MapPosition PictureMiddle(std::string_view name);

}  // namespace zepril
