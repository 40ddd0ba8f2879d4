#include "map/map_saver.h"

namespace zepril {

void MapSaver::SaveMapWindow() {}

}  // namespace zepril
