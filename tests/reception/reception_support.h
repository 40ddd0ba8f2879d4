// A whole reception over doubles, for the tests of this room.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "core/controls/map_controls.h"
#include "core/controls/moni1_controls.h"
#include "core/controls/moni_all_controls.h"
#include "core/controls/raw_list_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/status_controls.h"
#include "core/controls/window_controls.h"
#include "core/state/gps.h"
#include "platform/monitor_engine.h"
#include "reception/reception_room.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {

class FakeEngine final : public MonitorEngine {
 public:
  bool AGWStartPoll(std::string_view, std::string_view) override { return true; }
  std::string AGWGetData() override {
    if (Texts.empty()) return {};
    std::string text = Texts.front();
    Texts.erase(Texts.begin());
    return text;
  }
  bool AGWPutData(std::string_view, std::string_view) override { return true; }
  void AGWClose() override {}
  bool LinkIsUp() const override { return true; }
  void DropUnsent() override {}

  std::vector<std::string> Texts;
};

// Writes down what reception asks of other rooms.
class RecordingActions final : public MapActions,
                               public MessageActions,
                               public EmergencyActions,
                               public GateActions,
                               public SettingsActions {
 public:
  void MapRedraw() override {
    ++Redraws;
    if (OnRedraw) OnRedraw();
  }
  void MapRefresh() override { ++Refreshes; }
  void MessageReceived(const HeardMessage& message) override {
    Messages.push_back({std::string(message.From), std::string(message.Info),
                        std::string(message.Header), std::string(message.Destination),
                        message.OverInternet, message.AgeSeconds});
  }
  void PassBegins() override { ++PassesBegun; }
  void ShowEmergency() override { ++Emergencies; }
  void GateMonitorBlock(std::string_view text, std::string_view dialect) override {
    Gated.emplace_back(text);
    GatedDialect = dialect;
  }
  void WriteConfigFromMainWindow() override {}
  void ReplaceConfigLine(const std::string& key, const std::string& value) override {
    ConfigLines.emplace_back(key, value);
  }

  struct Message {
    std::string From;
    std::string Info;
    std::string Header;
    std::string Destination;
    bool OverInternet = false;
    std::int64_t AgeSeconds = 0;
  };
  int PassesBegun = 0;
  int Redraws = 0;
  int Refreshes = 0;
  int Emergencies = 0;
  std::vector<Message> Messages;
  std::vector<std::string> Gated;
  std::string GatedDialect;
  std::vector<std::pair<std::string, std::string>> ConfigLines;
  std::function<void()> OnRedraw;
};

// The groups of controls that reception handles.
struct ReceptionControls {
  WindowControls Window;
  MapControls Map;
  Moni1Controls Moni1;
  MoniAllControls MoniAll;
  RecordPanelControls Record;
  RawListControls Raw;
  StatusControls Status;
};

// A station in zone U33 that receives through a PK-232 (its text is the normal form already).
class Reception {
 public:
  Reception()
      : Room({Identity, Radio, Received, Stores, Followed, Map, Gps, Alarms, Settings, Internet},
             {Controls.Window, Controls.Map, Controls.Moni1, Controls.MoniAll, Controls.Record,
              Controls.Status, &Controls.Raw.RawList},
             {Disk, Time, Boxes, RadioHeard, Symbols, Actions, Actions, Actions, Timer1, &Actions,
              &Actions}) {
    Identity.MyCall = Identity.MyCallFull = "QX7KB";
    Identity.MapSystemFolder = R"(C:\ZEPRIL\U33)";
    Radio.RadioMode = 1;
    Radio.AgwConnected = 1;
    Stores.MoniAllRecords.Limit = 666;
    Stores.Moni1Records.Limit = 3330;
    Followed.Moni1LogPath = R"(C:\ZEPRIL\U33\LOG\QX7KB.TXT)";
    Map.MapDrawn = true;
    Controls.Record.Frame1.Visible = false;
    Controls.Status.Frame12.Visible = false;
    Controls.Status.FileNotice.Visible = false;
    Actions.OnRedraw = [this] { Timer1.Enable(); };
    Modem.Open("1", 1200);
    Timer1.Arm(6000);
  }

  // A frame in normal form, heard directly from N0CALL unless a header says otherwise.
  static std::string Frame(const std::string& information,
                           const std::string& header = "N0CALL*>WIDE1-1>APRS") {
    return header + " <UI>:\r\n" + information + "\r\n";
  }
  void Hear(const std::string& text) {
    Modem.Reads.push_back(text);
    Pass.Run();
  }
  void HearPacket(const std::string& information,
                  const std::string& header = "N0CALL*>WIDE1-1>APRS") {
    Hear(Frame(information, header));
  }
  const StationRecord& Last() const {
    return Stores.MoniAllRecords.At(Stores.MoniAllRecords.Count());
  }
  int Heard() const { return Stores.MoniAllRecords.Count(); }
  std::int64_t Drops(DropReason reason) const {
    return Pass.Counts().Drops[static_cast<std::size_t>(reason)];
  }
  Label& Notice() { return Controls.Status.FileNotice; }
  static std::string Log(const std::string& name) { return R"(C:\ZEPRIL\U33\LOG\)" + name; }

  IdentityState Identity;
  RadioState Radio;
  ReceptionState Received;
  StoresState Stores;
  MapViewState Map;
  AlarmState Alarms;
  SettingsState Settings;
  InternetState Internet;
  FollowedStationState Followed;
  GpsState Gps;
  ReceptionControls Controls;
  SymbolTable Symbols;
  Timer Timer1{6000};
  VirtualClock Time;
  FakeSerial Modem;
  FakeEngine Engine;
  MemoryFiles Disk;
  RecordingActions Actions;
  ScriptedDialogs Boxes;
  HeardTexts RadioHeard{Radio, Received, Engine, Modem, Time};
  ReceptionRoom Room;
  Collector& Link = Room.Link;
  DistanceAlarm& Distance = Room.Distance;
  FollowedHistory& History = Room.History;
  RecordBrowser& Browser = Room.Browser;
  ReceivePass& Pass = Room.Pass;
};

// A record of `call` at a place, by the columns.
inline StationRecord RecordOf(const std::string& call, const std::string& date_time = "240115 1234",
                              const std::string& north = " 5817.860",
                              const std::string& east = "  391.394", const std::string& via = "",
                              const std::string& info = "Test") {
  StationRecord record;
  record.Put(1, 11, date_time);
  record.Put(13, 13, {&StationRecord::kKeyMark, 1});
  record.Put(14, 22, north);
  record.Put(23, 31, east);
  record.Put(33, 41, call);
  record.Put(43, 89, info);
  record.Put(91, 100, via);
  record.Put(101, 103, "/>");
  record.Put(105, 120, "  Car        0");
  return record;
}

}  // namespace zepril
