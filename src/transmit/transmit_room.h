// What transmits, as one thing: the frame sender with its outcome, position reports, the object, TX
// SETUP, and a heard station's position once more.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/chat_controls.h"
#include "core/controls/gate_controls.h"
#include "core/controls/map_controls.h"
#include "core/controls/object_setup_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/controls/tx_setup_controls.h"
#include "core/controls/window_controls.h"
#include "core/progress.h"
#include "core/state/chat.h"
#include "core/state/gps.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/map_view.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/settings.h"
#include "core/state/transmission.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "links/frame_sender.h"
#include "links/links_room.h"
#include "map/symbol_sheets.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/drawing_surface.h"
#include "platform/files.h"
#include "platform/serial_port.h"
#include "transmit/object_setup.h"
#include "transmit/position_beacon.h"
#include "transmit/retransmission.h"
#include "transmit/symbol_preview.h"
#include "transmit/tx_outcome.h"
#include "transmit/tx_setup.h"
#include "transmit/tx_switches.h"

namespace zepril {

struct TransmitSections {
  IdentityState& Identity;
  RadioState& Radio;
  TransmissionState& Transmission;
  MapViewState& View;
  GpsState& Gps;
  SettingsState& Settings;
  ChatState& Chat;
  InternetState& Internet;
  ReceptionState& Received;
};

struct TransmitRoomControls {
  WindowControls& Window;
  MapControls& Map;
  TransmitControls& Transmit;
  ChatControls& Chat;
  GateControls& Gate;
  RecordPanelControls& Record;
  TxSetupControls& TxSetup;
  ObjectSetupControls& ObjectSetup;
};

struct TransmitTools {
  Files& Disk;
  Clock& LocalClock;
  Dialogs& Boxes;
  DrawingSurface& TxSymbolSurface;      // the symbol in TX SETUP
  DrawingSurface& ObjectSymbolSurface;  // and in OBJECT SETUP, each of one cell
  LinksRoom& Links;
  SymbolSheets& Sheets;
  const SymbolTable& Symbols;
  Progress& LongWork;
  MapActions& Map;
  SettingsActions& Settings;
  Timer& Timer1;
  Timer& Timer2;
};

struct TransmitRoom {
  // Sets the events of the controls; the object must outlive them.
  TransmitRoom(TransmitSections sections, TransmitRoomControls controls, TransmitTools tools);
  TransmitRoom(const TransmitRoom&) = delete;
  TransmitRoom& operator=(const TransmitRoom&) = delete;

  void SendIdentification();
  // How much of the time to the next report is over; after each tick.
  void ShowNextBeacon();
  // What would speak to the modem too waits until the terminal is closed.
  void TerminalChanged(bool open);
  // The operator sets the transmitter up or places the object: the main cycle stands still.
  bool HoldsTheCycle() const {
    return controls_.TxSetup.Frame4.Visible || controls_.ObjectSetup.Frame11.Visible;
  }

  TxSetupJoins SetupJoins;  // set by the owner before the panel is opened
  FrameSender Sender;
  TxOutcome Outcome;
  PositionBeacon Beacon;
  TxSwitches Switches;
  SymbolPreview TxSymbol;
  SymbolPreview ObjectSymbol;
  TxSetup Setup;
  ObjectSetup Object;
  Retransmission Again;

 private:
  TransmitSections sections_;
  TransmitRoomControls controls_;
  TransmitTools tools_;
};

}  // namespace zepril
