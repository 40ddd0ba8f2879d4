#include "gps/track_files.h"

namespace zepril {

TrackFiles::TrackFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
                       PlacesState& places, TrackControls& controls, MapControls& map,
                       TrackFilesTools tools)
    : identity_(identity),
      view_(view),
      settings_(settings),
      places_(places),
      controls_(controls),
      map_(map),
      tools_(tools) {}

void TrackFiles::RestoreAtStart() {}
void TrackFiles::ListTrackFiles() {}
void TrackFiles::SelectTrack() {}

}  // namespace zepril
