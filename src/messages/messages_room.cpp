// How the parts of the chat are built, and what the web form tells of a line.
#include "messages/messages_room.h"

#include "core/texts/chat_texts.h"
#include "messages/message_texts.h"

namespace zepril {

MessagesRoom::MessagesRoom(MessagesSections sections, MessagesRoomControls controls,
                           MessagesTools tools)
    : Lines(sections.Chat, controls.Chat),
      Log({sections.Identity, sections.Radio, sections.Chat}, controls.Chat,
          {tools.Disk, tools.LocalClock, tools.Timer1}),
      Web(sections.Identity, sections.Services, {controls.Window, controls.Map, controls.Status},
          {tools.Pages, tools.LocalClock, tools.Timer1, tools.Timer2},
          [this](const std::string& frame_text, const std::string& reason) {
            WebFailed(frame_text, reason);
          }),
      Sender({sections.Identity, sections.Radio, sections.Chat}, controls.Chat,
             {Lines, Log, tools.Frames, Web, tools.LocalClock, tools.Timer1, tools.Timer2}),
      Panel({sections.Identity, sections.Radio, sections.Chat, sections.Stores, sections.Internet,
             sections.Settings, sections.Services},
            {controls.Chat, controls.Record, controls.Window},
            {Lines, Sender, tools.Radios, tools.LocalClock, tools.Timer1, tools.Timer2}),
      Heard(sections.Identity, sections.Chat, controls.Chat,
            {Lines, Log, Sender, Panel, tools.LocalClock}),
      chat_(sections.Chat) {}

void MessagesRoom::RestoreAtStart() {
  Log.MakeSureOfFile();
  Panel.Renew();
}

void MessagesRoom::SecondPassed() {
  Web.SecondPassed();
  Panel.Renew();
}

void MessagesRoom::WebFailed(const std::string& frame_text, const std::string& reason) {
  for (ChatLine& line : chat_.Lines) {
    if (FrameTextOfLine(line.Text) == frame_text) line.Trouble = reason;
  }
  Lines.Show();
  Panel.Tell(chat_texts::kNotSentByWeb.With({reason}));
}

}  // namespace zepril
