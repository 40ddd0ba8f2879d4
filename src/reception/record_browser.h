// The panel of one station's record, `Frame1`, with its two step buttons.
//
// For the followed station the buttons cut its history ("<X" what is older, "X>" what is newer than
// the record shown); for all others they step through the records near the picked place.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/actions/map_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "core/station_record.h"
#include "platform/dialogs.h"
#include "platform/event.h"
#include "reception/followed_history.h"

namespace zepril {

class RecordBrowser {
 public:
  // Sets the events of the panel's buttons.
  RecordBrowser(StoresState& stores, MapViewState& map, RecordPanelControls& panel,
                MapControls& map_controls, FollowedHistory& history, Dialogs& dialogs,
                MapActions& actions);
  RecordBrowser(const RecordBrowser&) = delete;
  RecordBrowser& operator=(const RecordBrowser&) = delete;

  // The selected record has changed, or its panel has closed; null when none is shown.
  Event<const StationRecord*> SelectionShown;

  // Opens the panel on record `index` of `call`: of the history when that is the followed station,
  // else of the list of all stations. `north_km`, `east_km` is the picked place, around which the
  // buttons search.
  void Open(const std::string& call, int index, double north_km, double east_km);
  // The same for the record that was picked on the map.
  void OpenPicked();
  // Opens it on the newest record of `call`; false when there is none.
  bool OpenNewest(const std::string& call);
  void Close();

  // A record of `call` has been stored: when it is the selected station, the panel moves to its
  // newest record.
  void MoveToNewest(std::string_view call);
  // The selected record of the list of all stations; none while it is one of the history.
  std::optional<StationRecord> SelectedOfAll() const;
  // The list of all stations was cut: `selected` is selected where it stands now, or else the
  // newest record of the selected station. Without one the panel closes.
  void FindAgain(const StationRecord& selected);

  // Another station is followed now: an open panel goes to the newest record of its station in the
  // list that holds it from here on, and its buttons with it; without one it closes.
  void FollowedStationChanged();

  void Command18Click();  // "<" or "<X"
  void Command19Click();  // ">" or "X>"

  // Shows the selected record in the open panel, "&" doubled for the caption.
  void ShowSelected();

 private:
  bool SelectedIsFollowed() const;
  bool HasSelection() const;
  const StationStore& SelectedStore() const;
  // In the list that is selected; 0: it holds none.
  int NewestOf(std::string_view call) const;
  void SetButtons();
  void DeletePositions(bool older);
  void StepBack();
  void StepForward();
  bool IsNearPick(const StationRecord& record) const;

  StoresState& stores_;
  MapViewState& map_;
  RecordPanelControls& panel_;
  MapControls& map_controls_;
  FollowedHistory& history_;
  Dialogs& dialogs_;
  MapActions& actions_;
  double picked_north_km_ = 0.0;
  double picked_east_km_ = 0.0;
};

// Half the side of the square around a picked place within which records count as found there, km:
// whole metres a pixel \ 200, plus a half.
double PickToleranceKm(double metres_per_pixel);

}  // namespace zepril
