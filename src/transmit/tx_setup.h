// The TX SETUP panel of the main window: fills its fields from the state, lets fields and buttons
// work on each other, and on OK takes them, programs the radio and saves.
#pragma once

#include <optional>

#include "core/actions/settings_actions.h"
#include "core/controls/gate_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/controls/tx_setup_controls.h"
#include "core/progress.h"
#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/transmission.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "links/radio_links.h"
#include "transmit/symbol_preview.h"
#include "transmit/tx_setup_rules.h"
#include "transmit/tx_switches.h"

namespace zepril {

// What TX SETUP asks of the rest of the program when it is confirmed.
struct TxSetupJoins {
  std::function<void()> RefreshStatusLine;  // the speed's label in the status line
  std::function<void()> ShowTitleMarkers;
  std::function<void()> SetLabels;
  std::function<void()> CompanionFollows;  // the digipeater program beside an engine; may be empty
};

struct TxSetupSections {
  IdentityState& Identity;
  RadioState& Radio;
  TransmissionState& Transmission;
  InternetState& Internet;
  ReceptionState& Reception;
};

struct TxSetupTools {
  const TxSetupJoins& Joins;
  SettingsActions& Settings;
  TxSwitches& Switches;
  RadioLinks& Links;
  Progress& LongWork;
  const SymbolTable& Symbols;
  SymbolPreview& Preview;
  Timer& Timer1;
  Timer& Timer2;
};

class TxSetup {
 public:
  // Sets the right click of `Check6` and the events of the panel.
  TxSetup(TxSetupSections sections, TxSetupControls& controls, TransmitControls& transmit,
          GateControls& gate, TxSetupTools tools);
  TxSetup(const TxSetup&) = delete;
  TxSetup& operator=(const TxSetup&) = delete;

  void Open();
  void ApplyTxSetup();
  void Abort();

 private:
  void BindFields();
  void BindLines();
  void BindPath();
  void BindSpeeds();

  void FillStation();
  void FillLines();
  void FillRadio();
  void ShowByMode();
  void ShowWorking(bool working);
  void TakeRadio();
  void TakeStation();
  void TakeLines();
  void ProgramRadio();

  SpeedChoice ShownSpeeds() const;
  void ShowSpeeds(const SpeedChoice& choice);
  void HfDualClicked();
  void StepSymbol(int direction);
  void ShowSymbol();
  void RecallInfo(std::size_t button);
  void StoreInfo(std::size_t button);

  TxSetupSections sections_;
  TxSetupControls& controls_;
  TransmitControls& transmit_;
  GateControls& gate_;
  TxSetupTools tools_;
  std::optional<std::size_t> focused_line_;  // the last one, from visit to visit
};

}  // namespace zepril
