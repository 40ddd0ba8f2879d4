// The TX switch and the OBJECT TX switch of the main window.
//
// TX with an interval runs the beacon; without one the switch is a button, "TX !", that sends one
// report at once. The object goes on the air only with TX on and a name given to it.
#pragma once

#include "core/actions/map_actions.h"
#include "core/controls/chat_controls.h"
#include "core/controls/record_panel_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/state/chat.h"
#include "core/state/gps.h"
#include "core/state/transmission.h"
#include "platform/event.h"
#include "transmit/position_beacon.h"

namespace zepril {

struct TxSwitchesSections {
  TransmissionState& Transmission;
  ChatState& Chat;
  const GpsState& Gps;
};

struct TxSwitchesControls {
  TransmitControls& Transmit;
  ChatControls& Chat;
  RecordPanelControls& Record;
};

class TxSwitches {
 public:
  // Sets the left clicks of `Check6` and `Check18`.
  TxSwitches(TxSwitchesSections sections, TxSwitchesControls controls, PositionBeacon& beacon,
             MapActions& map);
  TxSwitches(const TxSwitches&) = delete;
  TxSwitches& operator=(const TxSwitches&) = delete;

  // Caption by the interval; a switch that can't be on goes off. After the settings were read and
  // after TX SETUP.
  void ShowInterval();
  // Takes the object off the air.
  void ObjectOff();
  // The operator wants to transmit and has not said from where yet; may be empty.
  Event<> PositionMissing;
  // TX has gone off, by hand or because it can't be on: nothing that waits may leave any more. May
  // be empty.
  Event<> TurnedOff;

 private:
  void TxClicked();
  void ObjectClicked();
  void SwitchedOn();
  void SwitchedOff();
  void EnableChatButtons(bool enabled);

  TxSwitchesSections sections_;
  TxSwitchesControls controls_;
  PositionBeacon& beacon_;
  MapActions& map_;
};

}  // namespace zepril
