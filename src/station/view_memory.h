// What of the map's look outlives a run and has no key in the configuration file: label level,
// layers, scale, brightness, systems of the read-outs, track style. Kept in `WINDOW.TXT`; what is
// missing or out of bounds there leaves the state of a first start. Filters of stations are not
// kept: a new run shows all that is heard.
#pragma once

#include "config/main_window_settings.h"
#include "config/window_file.h"
#include "core/controls/scale_controls.h"
#include "core/runtime_state.h"

namespace zepril {

// The look of a first start.
void SetFirstView(MapViewState& view);

WindowValues ViewValues(const RuntimeState& state);
void ApplyViewValues(const WindowValues& values, RuntimeState& state);

// What the merge at exit brings into the configuration file: centre, own position, chosen maps.
LastValues LastValuesOf(const MapViewState& view, const ScaleControls& scales);

}  // namespace zepril
