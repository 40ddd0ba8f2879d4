// What switching TX or the object on and off does, and when neither can be.
#include "transmit/tx_switches.h"

#include "core/state_colours.h"
#include "core/text_fields.h"
#include "transmit/tx_setup_rules.h"

namespace zepril {

TxSwitches::TxSwitches(TxSwitchesSections sections, TxSwitchesControls controls,
                       PositionBeacon& beacon, MapActions& map)
    : sections_(sections), controls_(controls), beacon_(beacon), map_(map) {
  controls_.Transmit.Check6.Click = [this] { TxClicked(); };
  controls_.Transmit.Check18.Click = [this] { ObjectClicked(); };
  controls_.Transmit.Check18.BackColour = state_colours::kOwnObjectDimmed;
  EnableChatButtons(false);
}

void TxSwitches::EnableChatButtons(bool enabled) {
  controls_.Record.Command10.Enabled = enabled;
  controls_.Record.Command41.Enabled = enabled;
}

void TxSwitches::ShowInterval() {
  CheckBox& tx = controls_.Transmit.Check6;
  const int interval = sections_.Transmission.TxIntervalMinutes;
  tx.Caption = TxCaption(interval);
  // A press during a report by hand asks for no second one.
  tx.PressesInWaits = interval == 0 ? Presses::Dropped : Presses::OneKept;
  const bool was_on = tx.Value == 1;
  if (interval == 0 || !beacon_.PositionKnown()) tx.Value = 0;
  // Without a position neither reports nor messages make sense.
  controls_.Chat.Check7.Enabled = beacon_.PositionKnown();
  if (!beacon_.PositionKnown()) controls_.Chat.Check7.Value = 0;
  if (was_on && tx.Value == 0) SwitchedOff();
}

void TxSwitches::TxClicked() {
  CheckBox& tx = controls_.Transmit.Check6;
  if (!beacon_.PositionKnown() && PositionMissing) PositionMissing();
  if (sections_.Transmission.TxIntervalMinutes == 0) {
    // By hand: one report, and the switch falls back.
    tx.Value = 0;
    beacon_.SendByHand();
    return;
  }
  if (tx.Value == 1 && !beacon_.PositionKnown()) tx.Value = 0;
  tx.Value == 1 ? SwitchedOn() : SwitchedOff();
}

void TxSwitches::SwitchedOn() {
  // The first report leaves with the next tick.
  sections_.Transmission.LastBeaconTime = 0;
  controls_.Transmit.Check18.BackColour.reset();
  EnableChatButtons(true);
  // A station on the move answers by itself.
  const bool moving = sections_.Gps.GpsFixValid == 1 || sections_.Gps.GpsFixValidBefore == 1;
  if (moving && sections_.Chat.AutoAnswerOn == 0) {
    sections_.Chat.AutoAnswerOn = 1;
    controls_.Chat.Check16.Value = 1;
  }
}

void TxSwitches::SwitchedOff() {
  if (TurnedOff) TurnedOff();
  ObjectOff();
  controls_.Transmit.Check18.BackColour = state_colours::kOwnObjectDimmed;
  controls_.Chat.Frame3.Visible = false;
  controls_.Chat.Check7.Value = 0;
  EnableChatButtons(false);
  map_.MapRedraw();
}

void TxSwitches::ObjectOff() {
  controls_.Transmit.Check18.Value = 0;
  sections_.Transmission.ObjectTxOn = 0;
}

void TxSwitches::ObjectClicked() {
  const bool may =
      controls_.Transmit.Check6.Value == 1 && !Trim(sections_.Transmission.ObjectName).empty();
  if (!may || controls_.Transmit.Check18.Value != 1) {
    const bool was_on = sections_.Transmission.ObjectTxOn == 1;
    ObjectOff();
    if (was_on) map_.MapRedraw();
    return;
  }
  sections_.Transmission.ObjectTxOn = 1;
  // The first report leaves with the next tick, later ones at twice the position's interval.
  sections_.Transmission.LastObjectTime = 0;
  map_.MapRedraw();
}

}  // namespace zepril
