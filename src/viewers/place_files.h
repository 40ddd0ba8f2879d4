// Files of named places: the list, the choice, the places of the one that is loaded, and the panel
// in which a place is added, renamed, moved or removed.
//
// They lie in `MapSystemFolder`\POI. A line is a place: "þ", north and east in km (2-10, 11-19),
// and the name, trimmed, from column 21 on. A file is replaced whole or not at all.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/main_window_controls.h"
#include "core/progress.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "platform/desktop_actions.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace zepril {

struct PlaceFilesTools {
  Files& Disk;
  Dialogs& Boxes;
  DesktopActions& Desktop;
  MapActions& Map;
  SettingsActions& Settings;
  Progress& LongWork;
};

class PlaceFiles {
 public:
  // Sets the events of the list, of `Command73` and of the panel.
  PlaceFiles(const IdentityState& identity, MapViewState& view, SettingsState& settings,
             PlacesState& places, PlaceControls& controls, MapControls& map, PlaceFilesTools tools);
  PlaceFiles(const PlaceFiles&) = delete;
  PlaceFiles& operator=(const PlaceFiles&) = delete;

  // The list, and the file that was loaded last.
  void RestoreAtStart();
  // Fills the list with the names in the folder, upper-cased, without extension.
  void ListPoiFiles();
  // Loads the file that the list field names.
  void SelectPoiFile();
  // Makes the file that the list field names, and loads it.
  void CreatePoiFile();
  // Opens the panel with place `index`, 1-based.
  void EditPlace(int index);
  // Adds, renames or removes the place of the panel by the text of its name field.
  void ApplyPoiEdit();

 private:
  const IdentityState& identity_;
  MapViewState& view_;
  SettingsState& settings_;
  PlacesState& places_;
  PlaceControls& controls_;
  MapControls& map_;
  PlaceFilesTools tools_;
};

}  // namespace zepril
