#include "viewers/sun_curve.h"

namespace zepril {

SunCurve::SunCurve(const MapViewState& view, const SettingsState& settings, SunControls& controls,
                   DrawingSurface& surface, const Clock& clock)
    : view_(view), settings_(settings), controls_(controls), surface_(surface), clock_(clock) {}

void SunCurve::ShowSunCurve() {}
void SunCurve::MoveSunCurve() {}
void SunCurve::HideSunCurve() {}

}  // namespace zepril
