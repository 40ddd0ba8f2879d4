// "Input of ionospherical data": the sunspot number and the K index by hand, and what the distance
// circles show of the estimate.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/iono_controls.h"
#include "core/controls/map_controls.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/texts/text.h"
#include "platform/dialogs.h"

namespace zepril {

struct IonoInputTools {
  Dialogs& Boxes;
  MapActions& Map;
  SettingsActions& Settings;
};

class IonoInput {
 public:
  static constexpr double kHighestSunspotNumber = 400.0;
  static constexpr double kHighestK = 9.0;

  // Sets the right click of the circles switch and the events of the panel.
  IonoInput(InternetState& internet, MapViewState& view, IonoControls& controls, MapControls& map,
            IonoInputTools tools);
  IonoInput(const IonoInput&) = delete;
  IonoInput& operator=(const IonoInput&) = delete;

  // Shows the panel with the values in use.
  void Open();
  // Takes the typed values, saves them and draws the circles anew. A text that is no number in its
  // range is told and left in its field.
  void Apply();

 private:
  void Refuse(TextBox& field, Text what);

  InternetState& internet_;
  MapViewState& view_;
  IonoControls& controls_;
  IonoInputTools tools_;
};

}  // namespace zepril
