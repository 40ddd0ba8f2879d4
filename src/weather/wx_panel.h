// WX INFO: the report of the selected station as numbers and as a picture.
#pragma once

#include "core/controls/record_panel_controls.h"
#include "core/controls/weather_controls.h"
#include "core/state/map_view.h"
#include "core/station_record.h"
#include "platform/drawing_surface.h"

namespace zepril {

class WxPanel {
 public:
  // Sets the events of the panel's button and of its close. `surface`: the picture.
  WxPanel(const MapViewState& view, WeatherControls& controls, RecordPanelControls& record,
          DrawingSurface& surface);
  WxPanel(const WxPanel&) = delete;
  WxPanel& operator=(const WxPanel&) = delete;

  // Another record is selected, or none. A weather station's is shown, unless the operator has
  // closed the panel; at every other one panel and button hide.
  void ShowWxPanel(const StationRecord* record);

 private:
  void Switch();
  void DrawWxReport();

  const MapViewState& view_;
  WeatherControls& controls_;
  RecordPanelControls& record_controls_;
  DrawingSurface& surface_;
  StationRecord record_;     // the selected one, when it is a weather station's
  bool suppressed_ = false;  // closed by the operator
};

}  // namespace zepril
