#include "viewers/place_files.h"

namespace zepril {

PlaceFiles::PlaceFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
                       PlacesState& places, PlaceControls& controls, MapControls& map,
                       PlaceFilesTools tools)
    : identity_(identity),
      view_(view),
      settings_(settings),
      places_(places),
      controls_(controls),
      map_(map),
      tools_(tools) {}

void PlaceFiles::RestoreAtStart() {}
void PlaceFiles::ListPoiFiles() {}
void PlaceFiles::SelectPoiFile() {}
void PlaceFiles::CreatePoiFile() {}
void PlaceFiles::EditPlace(int) {}
void PlaceFiles::ApplyPoiEdit() {}

}  // namespace zepril
