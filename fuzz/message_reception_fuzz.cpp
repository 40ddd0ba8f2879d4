// Messages of any bytes, some passes of them, with the automatic answer on or off: no line, frame
// or log line grows, a pass sends no more frames than it may, and an acknowledgement finds just the
// lines that a literal reading of the rule finds.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/controls/main_window_controls.h"
#include "core/quiet_actions.h"
#include "core/runtime_state.h"
#include "links/agw_link.h"
#include "links/radio_links.h"
#include "links/serial_modem.h"
#include "messages/messages_room.h"
#include "platform/quiet_machine.h"
#include "tests/doubles/fake_pages.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/recording_engine.h"
#include "tests/doubles/virtual_clock.h"

namespace {

using namespace zepril;

constexpr const char* kLog = R"(C:\Z\U33\LOG\_CHATLOG.TXT)";

void Require(bool holds) {
  if (!holds) std::abort();
}

struct World {
  World() {
    State.Identity.MyCall = "QX7KB";
    State.Identity.MyCallFull = "QX7KB-10";
    State.Identity.TxAllowed = 1;
    State.Identity.MapSystemFolder = R"(C:\Z\U33)";
  }

  RuntimeState State;
  ServicesState Services;
  MainWindowControls Controls;
  RecordingEngine Engine;
  FakeSocket Socket;
  FakeSerial Port;
  FakePages Pages;
  MemoryFiles Disk;
  VirtualClock Clock;
  QuietDialogs Boxes;
  NotedEnd End;
  Timer Timer1{6000};
  Timer Timer2{3000};
  RecordedProgress LongWork;
  SerialModem Modem{State.Identity, State.Radio, State.Transmission, {Port, Clock, LongWork}};
  AgwLink Link{State.Radio, State.Identity, State.Transmission, Socket, Clock, Boxes, End};
  RadioLinks Links{{State.Identity, State.Radio, State.Reception, State.Transmission},
                   {Engine, Link, Modem, Port, Clock}};
  FrameSender Frames{Links, Clock};
  MessagesRoom Room{
      {State.Identity, State.Radio, State.Chat, State.Stores, State.Internet, State.Settings,
       Services},
      {Controls.Chat, Controls.Record, Controls.Window, Controls.Map, Controls.Status},
      {Disk, Clock, Pages, Frames, Links, Timer1, Timer2}};
};

// The front of `rest` up to `end`, which is taken off.
std::string_view Take(std::string_view& rest, char end) {
  const std::size_t length = std::min(rest.find(end), rest.size());
  const std::string_view taken = rest.substr(0, length);
  rest.remove_prefix(std::min(length + 1, rest.size()));
  return taken;
}

// Lines that wait, some of them as if they had been repeated.
void PutWaitingLines(World& world) {
  const std::uint32_t colours[] = {250, 251, 254, 0x5FF0};
  for (std::size_t at = 0; at < 4; ++at) {
    ChatLine& line = world.State.Chat.Lines[at];
    line = {" QX7KB-10:N0CALL   :x{0" + std::to_string(at % 2), colours[at], 250, {}};
  }
}

void HearOne(World& world, const HeardMessage& message) {
  const auto before = world.State.Chat.Lines;
  world.Room.Heard.MessageReceived(message);
  const std::string text(message.Info.substr(std::min<std::size_t>(11, message.Info.size())));
  const bool ack = text.starts_with("ack") || text.starts_with("mok");
  for (std::size_t at = 0; at < kChatLines; ++at) {
    const ChatLine& line = world.State.Chat.Lines[at];
    Require(line.Text.size() <= kLongestChatLine);
    // A line that was not repeated yet takes no acknowledgement.
    if (ack && before[at].Colour == 250) Require(line.Colour == 250);
    if (ack) Require(line.Text == before[at].Text);
  }
}

}  // namespace

// The first byte switches the automatic answer. A line is a message: sender|destination|header|
// information; an empty one begins the next pass.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  if (rest.empty()) return 0;
  World world;
  world.State.Chat.AutoAnswerOn = rest.front() & 1;
  world.State.Chat.AutoAnswerText = "away";
  rest.remove_prefix(1);
  PutWaitingLines(world);
  std::size_t sent_before = 0;
  while (!rest.empty()) {
    std::string_view line = Take(rest, '\n');
    if (line.empty()) {
      sent_before = world.Engine.Sent.size();
      world.Room.Heard.PassBegins();
      continue;
    }
    HeardMessage message;
    message.From = Take(line, '|');
    message.Destination = Take(line, '|');
    message.Header = Take(line, '|');
    message.Info = line;
    HearOne(world, message);
    Require(world.Engine.Sent.size() - sent_before <= MessageReception::kMostAnswers);
  }
  for (const std::string& frame : world.Engine.Sent)
    Require(frame.size() <= 100 + ChatSender::kLongestFrameText);
  const std::string log = world.Disk.Of(kLog);
  for (std::size_t at = 0; at < log.size();) {
    const std::size_t end = log.find("\r\n", at);
    Require(end != std::string::npos && end - at <= 15 + kLongestChatLine);
    at = end + 2;
  }
  return 0;
}
