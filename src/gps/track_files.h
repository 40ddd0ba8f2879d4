// Track files of the days: the list, the choice, and the one that is loaded for the map.
//
// They lie in `MapSystemFolder`\TRK, one a day, YYYYMMDD.TRK; a line is a point: "þ", north and
// east in km (2-10, 11-19), blank, date YYYYMMDD (21-28), blank, time HHMM (30-33).
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/track_controls.h"
#include "core/progress.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace zepril {

struct TrackFilesTools {
  Files& Disk;
  Dialogs& Boxes;
  MapActions& Map;
  SettingsActions& Settings;
  Progress& LongWork;
};

class TrackFiles {
 public:
  // Sets the events of the list, its buttons, `Frame10` and `Check14`.
  TrackFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
             PlacesState& places, TrackControls& controls, MapControls& map, TrackFilesTools tools);
  TrackFiles(const TrackFiles&) = delete;
  TrackFiles& operator=(const TrackFiles&) = delete;

  // The list, and the file that was loaded last.
  void RestoreAtStart();
  // Fills the list with the names in the folder, upper-cased, without extension.
  void ListTrackFiles();
  // Loads the file that the list field names. A name without a file is offered as a new, empty one.
  // What can't be read leaves list field and points as they were.
  void SelectTrack();

 private:
  std::string Folder() const { return identity_.MapSystemFolder + "\\TRK"; }
  std::string PathOf(const std::string& name) const;
  bool Load(const std::string& name);
  bool CreateEmpty(const std::string& name);
  // Brings the field back to the file that is loaded.
  void ShowLoaded();
  void Choose(const std::string& name);
  void StepFile(int direction);
  void CentreOnEnd();
  void ChooseInList();
  void SwitchDisplay();

  const IdentityState& identity_;
  MapViewState& view_;
  SettingsState& settings_;
  PlacesState& places_;
  TrackControls& controls_;
  MapControls& map_;
  TrackFilesTools tools_;
  bool loaded_ = false;  // the file of the name that is kept was read
};

}  // namespace zepril
