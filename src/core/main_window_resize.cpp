#include "core/main_window_resize.h"

#include <algorithm>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr int kShortCaptionPx = 73;
constexpr int kLongCaptionPx = 159;
constexpr int kAddresseePx = 96;  // beside the message field

}  // namespace

void ShowAutoAnswerCaption(TransmitControls& transmit, const ChatState& chat) {
  const bool holds_answer = chat.AutoAnswerOn == 1 && Trim(transmit.Text2.Text).empty();
  transmit.Check16.Caption = holds_answer ? "AUTO ANSWER TEXT:" : "AUTO-A";
  transmit.Check16.WidthPx = holds_answer ? kLongCaptionPx : kShortCaptionPx;
}

void MainWindowResize(MainWindowControls& controls, const ChatState& chat) {
  ShowAutoAnswerCaption(controls.Transmit, chat);
  const int room = controls.Window.WidthPx - controls.Transmit.Check16.WidthPx - kAddresseePx;
  controls.Transmit.Text3.WidthPx = std::clamp(room, kNarrowestMessageField, kWidestMessageField);
}

}  // namespace zepril
