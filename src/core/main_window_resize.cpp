// Widths of the message fields and the caption that depends on them.
#include "core/main_window_resize.h"

#include <algorithm>

#include "core/text_fields.h"
#include "core/texts/status_texts.h"

namespace zepril {
namespace {

constexpr int kShortCaptionPx = 73;
constexpr int kLongCaptionPx = 159;
constexpr int kAddresseePx = 96;  // beside the message field

}  // namespace

void ShowAutoAnswerCaption(ChatControls& controls, const ChatState& chat) {
  const bool holds_answer = chat.AutoAnswerOn == 1 && Trim(controls.Text2.Text).empty();
  controls.Check16.Caption =
      holds_answer ? status_texts::kAutoAnswerField : status_texts::kAutoAnswer;
  controls.Check16.WidthPx = holds_answer ? kLongCaptionPx : kShortCaptionPx;
}

void MainWindowResize(const WindowControls& window, ChatControls& controls, const ChatState& chat) {
  ShowAutoAnswerCaption(controls, chat);
  const int room = window.WidthPx - controls.Check16.WidthPx - kAddresseePx;
  controls.Text3.WidthPx = std::clamp(room, kNarrowestMessageField, kWidestMessageField);
}

}  // namespace zepril
