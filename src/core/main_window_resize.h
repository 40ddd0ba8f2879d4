// What a new size of the main window means for the controls themselves; where they stand is the
// desktop's business.
#pragma once

#include "core/controls/chat_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/chat.h"

namespace zepril {

// Widest and narrowest message field, pixels.
inline constexpr int kWidestMessageField = 488;
inline constexpr int kNarrowestMessageField = 10;

// The auto-answer switch: wide, with "AUTO ANSWER TEXT:", while the message field holds the answer
// (automatic answers on, no addressee); else narrow, with "AUTO-A".
void ShowAutoAnswerCaption(ChatControls& controls, const ChatState& chat);

// The whole: width of the message field by the window's, caption of the auto-answer switch.
void MainWindowResize(const WindowControls& window, ChatControls& controls, const ChatState& chat);

}  // namespace zepril
