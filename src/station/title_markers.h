// What the title tells beside program and call: the digipeater and the gate.
#pragma once

#include "core/controls/window_controls.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/settings.h"

namespace zepril {

// Brings call and markers into `settings.TitleText`, and that to the window.
void ShowTitleMarkers(const IdentityState& identity, const RadioState& radio,
                      const InternetState& internet, SettingsState& settings,
                      WindowControls& window);

}  // namespace zepril
