// The south-west corner and the middle of the kilometre that a name tells.
#include "map/picture_names.h"

#include <string>

#include "core/text_fields.h"
#include "map/tile_names.h"

namespace zepril {

MapPosition PictureCorner(std::string_view name) {
  const std::string stem = Upper(name.substr(0, name.rfind('.')));
  return {TileFieldValue(Left(stem, 4)), TileFieldValue(Mid(stem, 5, 4))};
}

MapPosition PictureMiddle(std::string_view name) {
  const MapPosition corner = PictureCorner(name);
  return {corner.NorthKm + kPictureMiddleKm, corner.EastKm + kPictureMiddleKm};
}

}  // namespace zepril
