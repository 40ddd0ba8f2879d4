// OBJECT SETUP: name, text and symbol of the own object; its place is the map's centre.
#pragma once

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "core/controls/map_controls.h"
#include "core/controls/object_setup_controls.h"
#include "core/controls/transmit_controls.h"
#include "core/state/map_view.h"
#include "core/state/transmission.h"
#include "core/symbol_table.h"
#include "core/timer.h"
#include "transmit/symbol_preview.h"
#include "transmit/tx_switches.h"

namespace zepril {

struct ObjectSetupTools {
  MapActions& Map;
  SettingsActions& Settings;
  const SymbolTable& Symbols;
  SymbolPreview& Preview;
  TxSwitches& Switches;
  Timer& Timer1;
  Timer& Timer2;
};

class ObjectSetup {
 public:
  // Sets the right click of `Check18` and the events of the panel.
  ObjectSetup(TransmissionState& transmission, MapViewState& view, ObjectSetupControls& controls,
              MapControls& map, TransmitControls& transmit, ObjectSetupTools tools);
  ObjectSetup(const ObjectSetup&) = delete;
  ObjectSetup& operator=(const ObjectSetup&) = delete;

 private:
  void Open();
  void Apply();
  void Delete();
  void Cancel();
  void FillFields();
  void TakeFields();
  void StepSymbol(int direction);
  void ShowSymbol();
  void Close();

  TransmissionState& transmission_;
  MapViewState& view_;
  ObjectSetupControls& controls_;
  MapControls& map_;
  TransmitControls& transmit_;
  ObjectSetupTools tools_;
};

}  // namespace zepril
