#include "map/picture_names.h"

#include "map/tile_names.h"
#include "core/text_fields.h"

namespace zepril {

MapPosition PictureCorner(std::string_view name) {
  const std::string_view stem = name.substr(0, name.rfind('.'));
  return {TileFieldValue(Left(stem, 4)), TileFieldValue(Mid(stem, 5, 4))};
}

MapPosition PicturePlace(std::string_view name) {
  const MapPosition corner = PictureCorner(name);
  return {corner.NorthKm + kPictureMiddleKm, corner.EastKm + kPictureMiddleKm};
}

}  // namespace zepril
