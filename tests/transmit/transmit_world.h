// The transmitting rooms on doubles: an engine and a serial line that write down what they are
// given.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "core/controls/chat_controls.h"
#include "core/controls/gate_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/object_setup_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/controls/tx_setup_controls.h"
#include "core/controls/window_controls.h"
#include "core/runtime_state.h"
#include "links/radio_links.h"
#include "links/serial_modem.h"
#include "map/symbol_sheets.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/memory_files.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/recorder_surface.h"
#include "tests/doubles/recording_engine.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"
#include "transmit/position_beacon.h"
#include "transmit/tx_switches.h"

namespace zepril {

// The groups of controls that transmission handles.
struct TransmitWorldControls {
  WindowControls Window;
  MapControls Map;
  RecordPanelControls Record;
  TransmitControls Transmit;
  ChatControls Chat;
  GateControls Gate;
  TxSetupControls TxSetup;
  ObjectSetupControls ObjectSetup;
};

struct TransmitWorld {
  TransmitWorld() {
    State.Identity.MyCall = "QX7KB";
    Port.Call = "QX7KB-10";
    State.Identity.MySsid = "10";
    State.Identity.MyCallFull = "QX7KB-10";
    State.Map.OwnNorthKm = 5395.283;
    State.Map.OwnEastKm = -10.517;
    State.Transmission.TxSymbolIndex = 30;
    State.Transmission.InfoLine[0] = "Test";
    State.Transmission.InfoLineActive = {1, 0, 0, 0, 0, 0};
    State.Transmission.TxIntervalMinutes = 10;
  }

  RuntimeState State;
  TransmitWorldControls Controls;
  RecordingEngine Engine;
  FakeSocket Socket;
  FakeSerial Port;
  VirtualClock Clock{{2024, 5, 14, 14, 30, 0}};
  ScriptedDialogs Boxes;
  RecordedActions Actions;
  Timer Timer1{6000};
  Timer Timer2{3000};
  MemoryFiles Disk;
  SymbolTable Symbols;
  std::string ProgramFolder = "C:\\ZEPRIL";
  SymbolSheets Sheets{Disk, ProgramFolder};
  RecorderSurface Cell{kSymbolCellPixels, kSymbolCellPixels};
  RecordedProgress LongWork;
  SerialModem Modem{State.Identity, State.Radio, State.Transmission, {Port, Clock, LongWork}};
  AgwLink Link{State.Radio, State.Identity, State.Transmission, Socket, Clock, Boxes, Actions};
  RadioLinks Links{{State.Identity, State.Radio, State.Reception, State.Transmission},
                   {Engine, Link, Modem, Port, Clock}};
  FrameSender Sender{Links, Clock};
  PositionBeacon Beacon{{State.Identity, State.Transmission, State.Map, State.Gps, State.Settings},
                        {Sender, Symbols, Disk, Clock, Controls.Window, Controls.Map}};
  TxSwitches Switches{{State.Transmission, State.Chat, State.Gps},
                      {Controls.Transmit, Controls.Chat, Controls.Record},
                      Beacon,
                      Actions};
};

}  // namespace zepril
