// The line that is typed, the pass over the lines, and the ways out: radio or web form.
#include "messages/chat_sender.h"

#include <utility>

#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "messages/message_texts.h"

namespace zepril {
namespace {

constexpr int kHighestSerial = 99;

std::string ReasonOf(Delivery delivery) {
  switch (delivery) {
    case Delivery::Sent:
      return {};
    case Delivery::LinkLost:
      return chat_texts::kLinkLost;
    case Delivery::NoRadio:
      return chat_texts::kNoRadio;
    default:
      return chat_texts::kModemBusy;
  }
}

}  // namespace

std::string ChatSender::SendChatLine() {
  ChatState& chat = sections_.Chat;
  if (sections_.Identity.TxAllowed != 1) return {};
  if (Trim(controls_.Text3.Text).empty()) return {};
  if (Trim(controls_.Text2.Text).empty()) return chat_texts::kNoAddressee;
  const int serial = chat.ChatSerial < kHighestSerial ? chat.ChatSerial + 1 : 0;
  const TypedMessage message = MessageToSend(controls_.Text2.Text, controls_.Text3.Text, serial);
  if (message.FrameText.empty()) return chat_texts::kCallTooLong;
  tools_.Timer1.Hold();
  tools_.Timer2.Stop();
  chat.ChatTxText = message.FrameText;
  // It rises for queries too, which carry no number.
  chat.ChatSerial = serial;

  std::uint32_t colour = message.IsQuery ? chat_colours::kNewQuery : chat_colours::kNew;
  if (HasNoRadio(sections_.Radio)) colour = chat_colours::kLastSend;
  const std::string line = OwnLine(sections_.Identity.MyCallFull, chat.ChatTxText);
  tools_.Lines.Push(line, colour);
  tools_.Log.Append(line);

  // The automatic answer stays where it is.
  if (chat.AutoAnswerOn != 1) controls_.Text3.Text.clear();
  tools_.Timer1.Enable();
  return message.WasCut ? chat_texts::kTextCut.With({WholeNumber(kLongestChatLine)})
                        : std::string();
}

void ChatSender::Closed() {
  if (tools_.Web.IsBusy()) tools_.Web.DropWaiting();
}

void ChatSender::RetryPass() {
  // Closed while the tick was under way.
  if (controls_.Check7.Value != 1) return;
  tools_.Timer1.Hold();
  std::string stuck;
  for (ChatLine& line : sections_.Chat.Lines) {
    if (!chat_colours::HasSendsLeft(line.Colour)) continue;
    if (PassIsToEnd()) break;
    SendOnce(line, stuck);
  }
  tools_.Lines.Show();
  // It rests until the web form has answered.
  if (!tools_.Web.IsBusy()) tools_.Timer1.Enable();
}

bool ChatSender::PassIsToEnd() {
  tools_.LocalClock.NoticePresses();
  return tools_.LocalClock.EndAsked() || controls_.Check7.PressWaits;
}

// `stuck`: why the radio takes nothing, once a line before has found that out. Each one would find
// it out anew and wait for it.
void ChatSender::SendOnce(ChatLine& line, std::string& stuck) {
  // Nothing leaves under another call than it was typed under.
  if (CallOfLine(line.Text) != CallInLine(sections_.Identity.MyCallFull)) {
    line.Colour = chat_colours::kGivenUp;
    line.Trouble = chat_texts::kOtherCall;
    return;
  }
  sections_.Chat.ChatTxText = FrameTextOfLine(line.Text);
  // Kept: a send counts whether or not it leaves, so that nothing is sent long after it was typed.
  line.Trouble = stuck.empty() ? SendChatFrame() : stuck;
  sections_.Chat.ChatTxText.clear();
  if (!HasNoRadio(sections_.Radio)) stuck = line.Trouble;
  line.Colour = line.Colour == chat_colours::kLastSend ? chat_colours::kGivenUp : line.Colour + 1;
}

std::string ChatSender::SendChatFrame() {
  const std::string text =
      std::exchange(sections_.Chat.ChatTxText, {}).substr(0, kLongestFrameText);
  if (sections_.Identity.TxAllowed != 1) return {};
  if (IsForWebOnly(text) || HasNoRadio(sections_.Radio)) return tools_.Web.Send(text);
  return ReasonOf(tools_.Frames.SendFrame(text));
}

}  // namespace zepril
