// Takes folder, name and kilometres out of the path.
#include "viewers/picture_place.h"

#include "map/picture_names.h"

namespace zepril {

std::optional<PictureStart> PictureStartOfPath(std::string_view path) {
  const std::size_t folder_end = path.rfind('\\');
  const std::size_t point = path.rfind('.');
  if (folder_end == std::string_view::npos || point == std::string_view::npos) return std::nullopt;
  if (point < folder_end) return std::nullopt;
  const MapPosition place = PictureMiddle(path.substr(folder_end + 1));
  return PictureStart{place.NorthKm, place.EastKm};
}

}  // namespace zepril
