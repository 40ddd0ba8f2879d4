// The controls of TX SETUP: what the station is on the air.
#pragma once

#include <array>
#include <cstddef>

#include "core/controls.h"

namespace zepril {

struct TxSetupControls {
  static constexpr std::size_t kLines = 6;
  static constexpr std::size_t kPaths = 4;
  static constexpr std::size_t kQuick = 6;

  Frame Frame4;
  TextBox TxSsid;
  TextBox TxDestinationField;
  TextBox TxPathField;
  std::array<Button, kPaths> PathMemory;  // left click takes the path, right click stores it
  std::array<Button, kQuick> PathQuick;   // append their caption to the path
  Button PathClear;
  std::array<TextBox, kLines> InfoField;
  std::array<CheckBox, kLines> fr4ta;     // ACTIVE
  std::array<Button, kLines> InfoMemory;  // the text is in the tool tip
  TextBox TxInterval;                     // minutes, or "MANUAL"
  Button TxIntervalUp;
  Button TxIntervalDown;
  Button SymbolDown;
  Button SymbolUp;
  Label SymbolName;  // row of the table
  PictureBox SymbolPicture;
  int SymbolIndex = 0;
  TextBox TxOverlayField;
  CheckBox TxTimestampBox;  // "TX TIMESTAMP (GPS)"
  CheckBox DigiBox;
  Label TxLevelLabel;
  TextBox TxLevel;                     // mV
  std::array<OptionButton, 5> Speeds;  // Option3 to Option7: RPR 300, 300, 1200, 9600, 19200
  Label CrossField;                    // second mode
  Button CrossDown;
  Button CrossUp;
  Label CallNotice;  // beside OK: what OK does not do
  Button TxOk;
  Button TxAbort;
};

}  // namespace zepril
