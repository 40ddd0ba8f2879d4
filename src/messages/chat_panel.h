// The hand on the chat: typing, the switches, the fields and what the panel says of itself.
//
// While somebody types the main cycle waits for him: each key puts it off for two seconds.
#pragma once

#include <string>

#include "core/controls/chat_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/chat.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/services.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/timer.h"
#include "links/radio_links.h"
#include "messages/chat_lines.h"
#include "messages/chat_sender.h"
#include "platform/clock.h"

namespace zepril {

struct ChatPanelSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  ChatState& Chat;
  const StoresState& Stores;
  InternetState& Internet;
  const SettingsState& Settings;
  const ServicesState& Services;
};

struct ChatPanelControls {
  ChatControls& Chat;
  RecordPanelControls& Record;
  const WindowControls& Window;
};

struct ChatPanelTools {
  ChatLines& Lines;
  ChatSender& Sender;
  RadioLinks& Radios;
  const Clock& LocalClock;
  Timer& Timer1;
  Timer& Timer2;
};

class ChatPanel {
 public:
  static constexpr int kTypingMilliseconds = 2000;

  // Sets the events of the controls but for those of the log.
  ChatPanel(ChatPanelSections sections, ChatPanelControls controls, ChatPanelTools tools);
  ChatPanel(const ChatPanel&) = delete;
  ChatPanel& operator=(const ChatPanel&) = delete;

  // A message for the operator has come in. The panel opens when it was closed, which is told.
  bool OpenForMessage();
  // Says for some seconds what became of a line.
  void Tell(const std::string& words);
  // Answers `to` with the automatic answer.
  void SendAutoAnswer(const std::string& to);
  // Captions, tool tips and words that follow the state; once a second and after each tick.
  void Renew();

 private:
  void SwitchClicked();
  void AutoAnswerSwitched();
  void KeyInMessage(KeyPress key);
  void Entered();
  void SendLine();
  void PingStation();
  void PrepareChat();
  void LineClicked(std::size_t at);
  void Seen();
  void Open();
  void FocusOnFields();
  void ShowAutoAnswerText();
  void ShowSwitch();
  void ShowNote();

  ChatPanelSections sections_;
  ChatPanelControls controls_;
  ChatPanelTools tools_;
  int shown_auto_answer_ = 0;
  bool opened_without_switch_ = false;
  std::string told_;         // of the last line typed
  double told_until_ = 0.0;  // monotonic seconds
};

}  // namespace zepril
