// The chat on doubles: an engine or a serial line that writes down what it is given, pages in
// memory, virtual time. The station is QX7KB-10.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/controls/main_window_controls.h"
#include "core/radio_rules.h"
#include "core/runtime_state.h"
#include "core/state/services.h"
#include "links/agw_link.h"
#include "links/radio_links.h"
#include "links/serial_modem.h"
#include "messages/messages_room.h"
#include "tests/doubles/fake_pages.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/recording_engine.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

struct MessagesWorld {
  explicit MessagesWorld(RadioMode mode = RadioMode::AgwLocal) {
    State.Radio.RadioMode = static_cast<int>(mode);
    State.Identity.MyCall = "QX7KB";
    State.Identity.MySsid = "10";
    State.Identity.MyCallFull = "QX7KB-10";
    State.Identity.TxAllowed = 1;
    State.Identity.MapSystemFolder = R"(C:\ZEPRIL\U33)";
    State.Settings.WindowActive = true;
    Services.AprsCgiService = "http://aprs.example";
    Controls.Chat.Check7.Value = 1;
    Controls.Chat.Frame3.Visible = true;
    Controls.Chat.Frame7.Visible = false;
    Controls.Status.Text10.Visible = false;
    Port.Call = "QX7KB-10";
    if (IsSerialModem(mode)) Port.Open("/dev/ttyUSB0", 38400);
    Timer1.Arm(6000);
    Clock.OnWait = [this](double seconds, bool) { Waits.push_back(seconds); };
  }

  // A message of `from`, heard directly or by way of `path` ("WIDE1-1*").
  void Hear(const std::string& from, const std::string& info, const std::string& path = {}) {
    const std::string header =
        path.empty() ? from + "*>APRS <UI>" : from + ">" + path + ">APRS <UI>";
    Room.Heard.MessageReceived({from, info, header, "APRS"});
  }
  // One that a database of the internet tells of.
  void HearOverInternet(const std::string& from, const std::string& info,
                        std::int64_t age_seconds = 0) {
    const std::string header = from + ">qAR,QX7AB>APRS <UI>";
    Room.Heard.MessageReceived({from, info, header, "APRS", true, age_seconds});
  }
  void Type(const std::string& to, const std::string& text) {
    Controls.Chat.Text2.Text = to;
    Controls.Chat.Text3.Text = text;
    PressEnter();
  }
  void PressEnter() { Controls.Chat.Text3.KeyDown({kEnterKey, 0}); }
  void PutLine(std::size_t at, const std::string& text, std::uint32_t colour) {
    State.Chat.Lines[at] = {text, colour, colour, {}};
  }
  const ChatLine& Line(std::size_t at) const { return State.Chat.Lines[at]; }
  const ChatLine& Newest() const { return State.Chat.Lines.back(); }
  std::string Log() const { return Disk.Of(R"(C:\ZEPRIL\U33\LOG\_CHATLOG.TXT)"); }
  int LogLines() const { return Disk.LineCount(R"(C:\ZEPRIL\U33\LOG\_CHATLOG.TXT)"); }
  // What was handed to the engine, without the header.
  std::vector<std::string> Sent() const {
    std::vector<std::string> texts;
    for (const std::string& frame : Engine.Sent)
      texts.push_back(frame.substr(frame.find(" | ") + 3));
    return texts;
  }

  static constexpr int kEnterKey = 13;

  RuntimeState State;
  ServicesState Services;
  MainWindowControls Controls;
  RecordingEngine Engine;
  FakeSocket Socket;
  FakeSerial Port;
  FakePages Pages;
  MemoryFiles Disk;
  VirtualClock Clock{{2024, 1, 15, 12, 34, 0}};
  ScriptedDialogs Boxes;
  NotedEnd End;
  Timer Timer1{6000};
  Timer Timer2{3000};
  RecordedProgress LongWork;
  std::vector<double> Waits;
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

}  // namespace zepril
