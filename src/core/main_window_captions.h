// Captions and tool tips of the main window, and which controls are hidden before anything
// happened.
#pragma once

#include "core/controls/main_window_controls.h"

namespace zepril {

// On every panel that holds the main cycle.
inline constexpr const char* kReceptionRests = "Nothing is received while this is open.";

// The state of every control before the start: panels closed, captions in English.
void SetInitialControls(MainWindowControls& controls);

// Captions and tool tips by the language number (units: 1 English; tens 1: tool tips on).
void SetMainWindowLabels(MainWindowControls& controls, int language);

}  // namespace zepril
