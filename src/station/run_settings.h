// What a run takes from its files at the start, and gives back to them at its end.
#pragma once

#include "core/controls/scale_controls.h"
#include "core/runtime_state.h"
#include "platform/files.h"

namespace zepril {

// The configuration, what the window kept, and the hosts of web services, into the state.
void ReadRunSettings(Files& files, RuntimeState& state);
// What follows from the own call: the beginning of what this station transmits, and the passcode of
// the gate.
void SetOwnNames(RuntimeState& state);
// The last values of the view, merged into the configuration.
void MergeRunSettings(Files& files, const RuntimeState& state, const ScaleControls& scales);

}  // namespace zepril
