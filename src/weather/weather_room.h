// The weather of the selected station.
#pragma once

#include "weather/wx_panel.h"

namespace zepril {

struct WeatherRoom {
  // Sets the events of the controls; the object must outlive them.
  WeatherRoom(const MapViewState& view, WeatherControls& controls, RecordPanelControls& record,
              DrawingSurface& surface)
      : Panel(view, controls, record, surface) {}
  WeatherRoom(const WeatherRoom&) = delete;
  WeatherRoom& operator=(const WeatherRoom&) = delete;

  WxPanel Panel;
};

}  // namespace zepril
