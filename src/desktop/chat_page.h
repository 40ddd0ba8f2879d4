// The chat in the drawer: its lines or its log, the fields of a message, the switches.
#pragma once

#include "core/controls/chat_controls.h"
#include "desktop/window_parts.h"

class QWidget;

namespace zepril {

// The page of the drawer, without a place yet.
QWidget* MakeChatPage(WindowParts& parts, ChatControls& chat);

}  // namespace zepril
