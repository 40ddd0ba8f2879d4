// The controls of MONI ALL, every station heard.
#pragma once

#include <array>

#include "core/controls.h"

namespace zepril {

struct MoniAllControls {
  Button Command13;  // steps the label level
  Label Label16;     // level or "WX"
  CheckBox Check10;  // class 2
  CheckBox Check11;  // class 1
  CheckBox Check13;  // class 0; third state: only if moved
  CheckBox Check19;  // class 3
  CheckBox Check25;  // class 4
  CheckBox Check24;  // directly heard stations only
  CheckBox Check3;   // distance alarm over all stations
  CheckBox Check23;  // internet
  FillBar Label5;    // fill bar
  TextBox Text15;    // call to find
  Button Command14;  // FIND
  Button Command3;   // list of heard stations
  ListBox HeardList;
  std::array<OptionButton, 4> HeardOrder;  // above its columns: call, age, distance, direction
  Frame HeardPanel;
};

}  // namespace zepril
