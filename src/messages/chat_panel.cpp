// Switches and fields of the chat, and why nothing leaves.
#include "messages/chat_panel.h"

#include "core/keys.h"
#include "core/main_window_resize.h"
#include "core/radio_rules.h"
#include "core/text_fields.h"
#include "core/texts/chat_texts.h"
#include "messages/message_texts.h"

namespace zepril {
namespace {

constexpr const char* kPing = "?APRST";
constexpr double kToldSeconds = 10.0;

}  // namespace

ChatPanel::ChatPanel(ChatPanelSections sections, ChatPanelControls controls, ChatPanelTools tools)
    : sections_(sections), controls_(controls), tools_(tools) {
  ChatControls& chat = controls_.Chat;
  chat.Check7.Click = [this] { SwitchClicked(); };
  chat.Check8.Click = [this] { Seen(); };
  chat.Check16.Click = [this] { AutoAnswerSwitched(); };
  chat.Text2.Change = [this] { Renew(); };
  chat.Text2.GotFocus = [this] { Seen(); };
  chat.Text2.KeyDown = [this](KeyPress key) {
    if (key.Code == kEnterKey) controls_.Chat.Text3.FocusWanted = true;
  };
  chat.Text3.GotFocus = [this] { Seen(); };
  chat.Text3.KeyDown = [this](KeyPress key) { KeyInMessage(key); };
  chat.Command16.Click = [this] {
    controls_.Chat.Text2.Text.clear();
    controls_.Chat.Text3.Text.clear();
    Renew();
  };
  for (std::size_t at = 0; at < chat.Text1.size(); ++at)
    chat.Text1[at].Click = [this, at] { LineClicked(at); };
  controls_.Record.Command10.Click = [this] { PingStation(); };
  controls_.Record.Command41.Click = [this] { PrepareChat(); };
}

// ---- Open and closed ------------------------------------------------------------------------

void ChatPanel::SwitchClicked() {
  // It is one of the switches by which the web services are limited in time.
  sections_.Internet.InetSwitchTime = tools_.LocalClock.SecondsSinceMidnight();
  controls_.Chat.Frame3.Visible = controls_.Chat.Check7.Value == 1;
  if (controls_.Chat.Frame3.Visible) FocusOnFields();
  if (opened_without_switch_) controls_.Chat.Check7.Enabled = false;
  opened_without_switch_ = false;
  Seen();
}

void ChatPanel::Open() {
  CheckBox& box = controls_.Chat.Check7;
  box.Value = 1;
  // Opened by a message while its switch can't be pressed: it can be, to close it.
  opened_without_switch_ = opened_without_switch_ || !box.Enabled;
  box.Enabled = true;
  controls_.Chat.Frame3.Visible = true;
}

bool ChatPanel::OpenForMessage() {
  const bool opens = !controls_.Chat.Frame3.Visible;
  if (opens || !sections_.Settings.WindowActive) ++sections_.Chat.Unseen;
  if (opens) {
    Open();
    controls_.Chat.Check8.Value = 1;
  }
  Renew();
  return opens;
}

void ChatPanel::Seen() {
  sections_.Chat.Unseen = 0;
  Renew();
}

void ChatPanel::FocusOnFields() {
  ChatControls& chat = controls_.Chat;
  TextBox& next = Trim(chat.Text2.Text).empty() ? chat.Text2 : chat.Text3;
  next.FocusWanted = true;
}

// ---- Typing ---------------------------------------------------------------------------------

void ChatPanel::KeyInMessage(KeyPress key) {
  tools_.Timer1.Hold();
  tools_.Timer2.Arm(kTypingMilliseconds);
  if (sections_.Chat.Unseen != 0) Seen();
  if (key.Code == kEnterKey) Entered();
}

void ChatPanel::Entered() {
  ChatControls& chat = controls_.Chat;
  if (sections_.Identity.TxAllowed != 1) return;
  if (sections_.Chat.AutoAnswerOn == 1 && Trim(chat.Text2.Text).empty()) {
    // The text is the new automatic answer.
    sections_.Chat.AutoAnswerText = AutoAnswerOf(chat.Text3.Text);
    chat.Text3.Text = sections_.Chat.AutoAnswerText;
    return;
  }
  SendLine();
  chat.Text3.FocusWanted = true;
}

void ChatPanel::SendLine() {
  Tell(tools_.Sender.SendChatLine());
}

void ChatPanel::Tell(const std::string& words) {
  if (!words.empty()) {
    told_ = words;
    told_until_ = tools_.LocalClock.MonotonicSeconds() + kToldSeconds;
  }
  Renew();
}

void ChatPanel::PingStation() {
  const std::string call(Trim(sections_.Stores.SelectedStationCall));
  if (call.empty() || !controls_.Record.Command10.Enabled) return;
  Open();
  controls_.Chat.Text2.Text = call;
  controls_.Chat.Text3.Text = kPing;
  tools_.Timer2.Arm(kTypingMilliseconds);
  Entered();
  if (sections_.Chat.AutoAnswerOn == 1) controls_.Chat.Text3.Text = sections_.Chat.AutoAnswerText;
  Seen();
}

void ChatPanel::PrepareChat() {
  const std::string call(Trim(sections_.Stores.SelectedStationCall));
  if (call.empty() || !controls_.Record.Command41.Enabled) return;
  Open();
  controls_.Chat.Text2.Text = call;
  controls_.Chat.Text3.FocusWanted = true;
  Seen();
}

// The other station of the line is written to.
void ChatPanel::LineClicked(std::size_t at) {
  const std::string& line = sections_.Chat.Lines[at].Text;
  const bool own = CallOfLine(line) == Trim(sections_.Identity.MyCallFull);
  const std::string_view call = own ? Trim(Mid(line, 11, 9)) : CallOfLine(line);
  if (!call.empty() && sections_.Identity.TxAllowed == 1) {
    controls_.Chat.Text2.Text = call;
    controls_.Chat.Text3.FocusWanted = true;
  }
  Seen();
}

// ---- The automatic answer -------------------------------------------------------------------

void ChatPanel::AutoAnswerSwitched() {
  sections_.Chat.AutoAnswerOn = controls_.Chat.Check16.Value;
  Seen();
}

void ChatPanel::SendAutoAnswer(const std::string& to) {
  if (sections_.Identity.TxAllowed != 1) return;
  ChatControls& chat = controls_.Chat;
  std::string& answer = sections_.Chat.AutoAnswerText;
  const std::string addressee_before = chat.Text2.Text;
  const std::string text_before = chat.Text3.Text;
  const bool half_typed =
      chat.Text2.HasFocus || (!Trim(text_before).empty() && text_before != answer);
  answer = AutoAnswerOf(answer);
  chat.Text2.Text = to;
  chat.Text3.Text = answer;
  SendLine();
  if (!half_typed) return;
  // What the operator was about to write is his.
  chat.Text2.Text = addressee_before;
  chat.Text3.Text = text_before;
  Renew();
}

// Without an addressee the message field holds the answer.
void ChatPanel::ShowAutoAnswerText() {
  if (shown_auto_answer_ == sections_.Chat.AutoAnswerOn) return;
  shown_auto_answer_ = sections_.Chat.AutoAnswerOn;
  std::string& field = controls_.Chat.Text3.Text;
  const std::string& answer = sections_.Chat.AutoAnswerText;
  if (shown_auto_answer_ == 1 && Trim(field).empty()) field = answer;
  if (shown_auto_answer_ != 1 && field == answer) field.clear();
}

// ---- What the panel says --------------------------------------------------------------------

void ChatPanel::Renew() {
  // Switched off elsewhere too: TX goes off, or the time of the web services is over.
  controls_.Chat.Frame3.Visible = controls_.Chat.Check7.Value == 1;
  if (controls_.Chat.Check7.Value != 1) tools_.Sender.Closed();
  ShowAutoAnswerText();
  MainWindowResize(controls_.Window, controls_.Chat, sections_.Chat);
  tools_.Lines.Show();
  ShowSwitch();
  ShowNote();
}

void ChatPanel::ShowSwitch() {
  CheckBox& box = controls_.Chat.Check7;
  const int unseen = sections_.Chat.Unseen;
  box.Caption = unseen == 0 ? std::string(chat_texts::kChat)
                            : chat_texts::kChatUnseen.With({WholeNumber(unseen)});
  const int waiting = tools_.Lines.Waiting();
  if (!box.Enabled) {
    box.ToolTip = chat_texts::kChatNeedsPosition;
  } else if (box.Value != 1 && waiting > 0) {
    box.ToolTip = chat_texts::kChatWaits.With({WholeNumber(waiting)});
  } else {
    box.ToolTip = chat_texts::kChatTip;
  }
}

void ChatPanel::ShowNote() {
  std::string note;
  const RadioLink* link = tools_.Radios.Active();
  if (sections_.Identity.TxAllowed != 1) {
    note = chat_texts::kListener;
  } else if (tools_.LocalClock.MonotonicSeconds() < told_until_) {
    note = told_;
  } else if (HasNoRadio(sections_.Radio)) {
    if (sections_.Services.AprsCgiService.empty()) note = chat_texts::kNoService;
  } else if (link == nullptr || !link->IsUp()) {
    note = chat_texts::kNoLink;
  }
  if (note.empty()) note = sections_.Chat.LogTrouble;
  controls_.Chat.ChatNote.Caption = note;
  controls_.Chat.ChatNote.Visible = !note.empty();
}

}  // namespace zepril
