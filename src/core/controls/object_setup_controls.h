// The controls of OBJECT SETUP.
#pragma once

#include "core/controls.h"

namespace zepril {

struct ObjectSetupControls {
  Frame Frame11;
  TextBox ObjectNameField;
  TextBox ObjectTextField;
  TextBox ObjectOverlayField;
  Button ObjectSymbolDown;
  Button ObjectSymbolUp;
  Label ObjectSymbolName;
  PictureBox ObjectSymbolPicture;
  int SymbolIndex = 0;
  Button ObjectOk;
  Button Command31;  // DELETE OBJECT
  Button Command32;  // CANCEL
};

}  // namespace zepril
