// The terminal of a serial modem: what it has printed, what was typed, and how to leave.
#pragma once

#include "core/controls/terminal_controls.h"
#include "desktop/window_parts.h"

class QWidget;

namespace zepril {

// The page of the drawer, without a place yet.
QWidget* MakeTerminalPage(WindowParts& parts, TerminalControls& terminal);

}  // namespace zepril
