// The rooms that own the serial modem and that transmit, and what joins them to the running
// program: the modem's life from start to stop, the terminal, the beacon, the object, TX SETUP.
#pragma once

#include <functional>
#include <utility>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/main_window_controls.h"
#include "core/progress.h"
#include "core/runtime_state.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "links/agw_link.h"
#include "links/agw_local.h"
#include "links/serial_modem.h"
#include "links/temporary_mode.h"
#include "links/terminal.h"
#include "map/symbol_sheets.h"
#include "station/station_program.h"
#include "transmit/frame_sender.h"
#include "transmit/object_setup.h"
#include "transmit/position_beacon.h"
#include "transmit/retransmission.h"
#include "transmit/symbol_preview.h"
#include "transmit/tx_outcome.h"
#include "transmit/tx_setup.h"
#include "transmit/tx_switches.h"

namespace zepril {

struct TransmitRoomsTools {
  StationPlatform& Machine;
  AgwLink& RemoteEngine;
  AgwLocal& LocalEngine;
  SymbolSheets& Sheets;
  const SymbolTable& Symbols;
  Progress& LongWork;
  Timer& Timer1;
  Timer& Timer2;
  Timer& ReopenTimer;
  MapActions& Map;
  SettingsActions& Settings;
  TxSetupActions& Joins;  // what TX SETUP asks of the rest of the program
};

class TransmitRooms {
 public:
  TransmitRooms(RuntimeState& state, MainWindowControls& controls, TransmitRoomsTools tools);
  TransmitRooms(const TransmitRooms&) = delete;
  TransmitRooms& operator=(const TransmitRooms&) = delete;

  // The start.
  void OpenSerialModem();
  void RunTerminalHandler();
  // Captions and colours of the TX switches by the settings.
  void ShowSwitches() { switches_.ShowInterval(); }
  // The tick.
  void KeepSecondModeMonitored();
  void SendIdentification();
  void SendBeacon() { beacon_.SendPositionBeacon(); }
  void SendObjectReport() { beacon_.SendObjectReport(); }
  // How much of the time to the next report is over; after each tick.
  void ShowNextBeacon();
  // Once a second.
  void RenewOutcome() { outcome_.Renew(); }
  // The stop.
  void LeaveSerialModem();

  // The operator talks to the modem, sets the transmitter up or places the object: the main cycle
  // stands still.
  bool HoldsTheCycle() const {
    return terminal_.IsOpen() || controls_.TxSetup.Frame4.Visible ||
           controls_.ObjectSetup.Frame11.Visible;
  }
  bool ModemIsUp() const { return modem_.LinkIsUp(); }
  std::string ModemTrouble() const { return modem_.Trouble(); }
  // START has not reached the modem; to be told before the start.
  void ModemWasNotSetUp() { modem_.WasNotSetUp(); }
  // The operator wants to transmit without an own position.
  void SetPositionMissing(Event missing) { switches_.PositionMissing = std::move(missing); }
  // Asked before a lost modem is opened anew; set by the owner of the main cycle.
  void SetMayReopen(std::function<bool()> may_reopen);

 private:
  void TerminalChanged();
  void ShowLinkTrouble();
  void BindModemRun();

  RuntimeState& state_;
  MainWindowControls& controls_;
  TransmitRoomsTools tools_;

  SerialModem modem_;
  Terminal terminal_;
  TemporaryMode temporary_mode_;
  FrameSender sender_;
  TxOutcome outcome_;
  PositionBeacon beacon_;
  TxSwitches switches_;
  SymbolPreview tx_symbol_;
  SymbolPreview object_symbol_;
  TxSetup tx_setup_;
  ObjectSetup object_setup_;
  Retransmission retransmission_;
};

}  // namespace zepril
