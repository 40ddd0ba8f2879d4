// FIND: the station of a call is marked on the map.
#pragma once

#include <string>

#include "core/actions/map_actions.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/state/map_view.h"
#include "core/state/stores.h"
#include "core/timer.h"

namespace zepril {

class StationFinder {
 public:
  // Sets the events of the text field and its button, and of `Command36` of the record panel.
  StationFinder(MapViewState& view, const StoresState& stores, MoniAllControls& controls,
                RecordPanelControls& record, MapActions& map, Timer& timer1);
  StationFinder(const StationFinder&) = delete;
  StationFinder& operator=(const StationFinder&) = delete;

  void Find(const std::string& call);

 private:
  MapViewState& view_;
  const StoresState& stores_;
  MoniAllControls& controls_;
  MapActions& map_;
  Timer& timer1_;
};

}  // namespace zepril
