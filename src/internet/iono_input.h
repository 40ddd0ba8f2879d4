// "Input of ionospherical data": the sunspot number and the K index, by hand or as an update brings
// them, and what the distance circles show of the estimate.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/texts/text.h"
#include "core/timer.h"
#include "internet/iono_update.h"
#include "platform/dialogs.h"

namespace zepril {

struct IonoInputTools {
  Dialogs& Boxes;
  MapActions& Map;
  SettingsActions& Settings;
  IonoUpdate& Update;
  Timer& Timer1;
  Timer& Timer2;
};

class IonoInput {
 public:
  // An update from the panel: the main cycle stands still for no longer.
  static constexpr int kWatchdogMilliseconds = 6000;

  // Sets the right click of the circles switch and the events of the panel.
  IonoInput(InternetState& internet, MapViewState& view, IonoControls& controls, MapControls& map,
            IonoInputTools tools);
  IonoInput(const IonoInput&) = delete;
  IonoInput& operator=(const IonoInput&) = delete;

  // Shows the panel with the values in use; with automatic update they are updated at once.
  void Open();
  // Takes the typed values, saves them and draws the circles anew. A text that is no number in its
  // range is told and left in its field. With automatic update it closes the panel.
  void Apply();

 private:
  void Refuse(TextBox& field, Text what);

  InternetState& internet_;
  MapViewState& view_;
  IonoControls& controls_;
  IonoInputTools tools_;
};

}  // namespace zepril
