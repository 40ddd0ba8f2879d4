// The chat as one thing: its lines and their log, what is received and sent, the web form, the
// panel.
#pragma once

#include "core/controls/chat_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/chat.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/services.h"
#include "core/state/settings.h"
#include "core/state/stores.h"
#include "core/timer.h"
#include "links/frame_sender.h"
#include "links/radio_links.h"
#include "messages/chat_lines.h"
#include "messages/chat_log.h"
#include "messages/chat_panel.h"
#include "messages/chat_sender.h"
#include "messages/message_reception.h"
#include "messages/web_messages.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "platform/page_fetcher.h"

namespace zepril {

struct MessagesSections {
  const IdentityState& Identity;
  const RadioState& Radio;
  ChatState& Chat;
  const StoresState& Stores;
  InternetState& Internet;
  const SettingsState& Settings;
  const ServicesState& Services;
};

struct MessagesRoomControls {
  ChatControls& Chat;
  RecordPanelControls& Record;
  WindowControls& Window;
  MapControls& Map;
  StatusControls& Status;
};

struct MessagesTools {
  Files& Disk;
  Clock& LocalClock;
  PageFetcher& Pages;
  FrameSender& Frames;
  RadioLinks& Radios;
  Timer& Timer1;
  Timer& Timer2;
};

struct MessagesRoom {
  // Sets the events of the controls; the object must outlive them.
  MessagesRoom(MessagesSections sections, MessagesRoomControls controls, MessagesTools tools);
  MessagesRoom(const MessagesRoom&) = delete;
  MessagesRoom& operator=(const MessagesRoom&) = delete;

  // The start of the run: the log is there.
  void RestoreAtStart();
  // Once a second, also while the main cycle rests.
  void SecondPassed();

  ChatLines Lines;
  ChatLog Log;
  WebMessages Web;
  ChatSender Sender;
  ChatPanel Panel;
  MessageReception Heard;

 private:
  void WebFailed(const std::string& frame_text, const std::string& reason);

  ChatState& chat_;
};

}  // namespace zepril
