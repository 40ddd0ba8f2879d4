// Saves the map window to a picture file in "\MY_MAPS" under the program folder.
#pragma once

#include <string>
#include <vector>

#include "core/actions/map_actions.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"

namespace zepril {

struct MapSaverTools {
  Files& Disk;
  Dialogs& Boxes;
  DrawingSurface& MapSurface;
  MapActions& Map;
};

class MapSaver {
 public:
  MapSaver(const IdentityState& identity, MapViewState& view, MapSaverTools tools)
      : identity_(identity), view_(view), tools_(tools) {}

  // Asks with the path of the first free number; on OK draws, saves and draws again. A picture that
  // is shown over the map is closed. What can't be saved is passed over in silence.
  void SaveMapWindow();

 private:
  const IdentityState& identity_;
  MapViewState& view_;
  MapSaverTools tools_;
};

// "MAP_0001.BMP" or the first number that no entry of the folder has; four figures or more.
std::string FirstFreeMapName(const std::vector<FolderEntry>& entries);

}  // namespace zepril
