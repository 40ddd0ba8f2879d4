// The sun's path over a point of the map on the current day, and what it brings on a square metre.
#pragma once

#include <string>

#include "core/controls/sun_controls.h"
#include "core/state/map_view.h"
#include "core/state/settings.h"
#include "map/map_panels.h"
#include "platform/clock.h"
#include "platform/drawing_surface.h"
#include "viewers/sun_path.h"

namespace zepril {

class SunCurve final : public SunPanel {
 public:
  // A column a degree of the clock, 15 an hour, from midnight to midnight.
  static constexpr int kPlotWidth = 361;
  // A row a degree of elevation, the horizon lowest.
  static constexpr int kPlotHeight = 91;

  // `surface`: the plot, kPlotWidth x kPlotHeight. Sets the names of the six results.
  SunCurve(const MapViewState& view, const SettingsState& settings, SunControls& controls,
           DrawingSurface& surface, const Clock& clock);

  // For the cursor's position.
  void ShowSunCurve() override;
  // The pointer has moved: the plot follows while the panel is open.
  void MoveSunCurve() override;
  void HideSunCurve() override;

 private:
  SunPlace PlaceUnderCursor() const;
  void ShowTitle(const SunPlace& place, const LocalTime& now);
  void ShowEnergies(const SunPath& today, const SunPath& summer, const SunPath& winter);
  void DrawSky();
  void DrawReferenceDay(const SunPath& path);
  void DrawToday(const SunPath& path, const LocalTime& now);

  const MapViewState& view_;
  const SettingsState& settings_;
  SunControls& controls_;
  DrawingSurface& surface_;
  const Clock& clock_;
};

// A value cut, not rounded, to one decimal: 73.29 -> "73.2", -0.55 -> "-0.5".
std::string CutToOneDecimal(double value);

}  // namespace zepril
