// Files of named places: the list, the choice, the places of the one that is loaded, and the panel
// in which a place is added, renamed, moved or removed.
//
// They lie in `MapSystemFolder`\POI. A line is a place: "þ", north and east in km (2-10, 11-19),
// and the name, trimmed, from column 21 on. A file is replaced whole or not at all.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/place_controls.h"
#include "core/progress.h"
#include "core/state/identity.h"
#include "core/state/map_view.h"
#include "core/state/places.h"
#include "core/state/settings.h"
#include "core/texts/boxes.h"
#include "map/map_panels.h"
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

class PlaceFiles final : public PlacePanel {
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
  // Loads the file that the list field names. What can't be read leaves list field and places as
  // they were.
  void SelectPoiFile();
  // Makes the file that the list field names, and loads it.
  void CreatePoiFile();
  // Opens the panel with place `index`, 1-based. An index that is not there does nothing.
  void EditPlace(int index) override;
  // Adds, renames or removes the place of the panel by the text of its name field. A place that was
  // renamed goes to the map centre too, if that has moved since the place was picked. What fails,
  // or is not confirmed, leaves file, places and panel as they are.
  void ApplyPoiEdit();

 private:
  std::string Folder() const { return identity_.MapSystemFolder + "\\POI"; }
  std::string PathOf(const std::string& name) const;
  std::string NameInField() const;
  bool RefuseName(const std::string& name);
  bool Load(const std::string& name);
  void ShowLoaded();
  void Take(const std::string& name);

  void StepLevel();
  void NewPlace();
  void OpenPanel();
  void ClosePanel();
  void ShowLink();
  void OpenLink();
  void MoveToCentre();

  bool FileChosen();
  bool RoomForOneMore();
  bool CentreMoved() const;
  std::string NewLine(std::string_view name) const;
  std::string RenamedLine(std::string_view name) const;
  std::string MovedLine() const;
  // The table as a file, with the edited line in its place or, for a new place, at the end.
  std::string FileText(std::string_view edited_line) const;
  // Writes that, and reads the file anew.
  bool WriteFile(std::string_view edited_line);
  bool ConfirmRemoval();
  bool ConfirmLoss();
  int NumberInFile(int index) const;
  void RedrawPlaces();
  void Tell(const std::string& text) { tools_.Boxes.Tell(boxes::kTitle, text); }
  bool Confirm(const std::string& text);

  const IdentityState& identity_;
  MapViewState& view_;
  SettingsState& settings_;
  PlacesState& places_;
  PlaceControls& controls_;
  MapControls& map_;
  PlaceFilesTools tools_;

  bool loaded_ = false;  // the file of the name that is kept was read
  bool cut_ = false;     // it holds more than was read: the rest is lost when it is written
  std::optional<FileStamp> stamp_;  // of the file as it was read
  double picked_north_km_ = 0.0;    // map centre when the place was picked
  double picked_east_km_ = 0.0;
};

// The link in a place's name: what stands between "{" and the next "}", without the blanks around
// it; empty when there is none. "HUT {www.example.org}" has one, "HUT }{" has not.
std::string_view LinkOf(std::string_view text);

}  // namespace zepril
