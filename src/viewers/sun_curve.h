// The sun's path over a point of the map on the current day, and what it brings on a square metre.
#pragma once

#include "core/main_window_controls.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"

namespace zepril {

class SunCurve {
 public:
  static constexpr int kPlotWidth = 361;  // a column a degree of the hour angle, both ends
  static constexpr int kPlotHeight = 91;  // a row a degree of elevation

  // `surface`: the plot, kPlotWidth x kPlotHeight.
  SunCurve(const MapViewState& view, const SettingsState& settings, SunControls& controls,
           DrawingSurface& surface, const Clock& clock);

  // For the cursor's position.
  void ShowSunCurve();
  // The pointer has moved: the plot follows while the panel is open.
  void MoveSunCurve();
  void HideSunCurve();

 private:
  const MapViewState& view_;
  const SettingsState& settings_;
  SunControls& controls_;
  DrawingSurface& surface_;
  const Clock& clock_;
};

}  // namespace zepril
