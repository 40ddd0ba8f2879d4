// The controls of the map and of the bar above it.
#pragma once

#include "core/controls.h"

namespace zepril {

struct MapControls {
  PictureBox Picture1;     // the map
  PictureBox PictureBase;  // second map window under it: the plain form of a map type
  Button Command1;         // next coarser scale
  Button Command2;         // next finer scale
  Button Command7;         // zoom out by 2
  Button Command8;         // zoom in by 2
  Button Command9;         // zoom 1
  Button Command12;        // centre button "MAP"
  OptionButton Option1;    // follow the own position
  OptionButton Option2;    // follow MONI 1
  CheckBox Check4;         // coordinate grid
  CheckBox Check9;         // distance circles
  CheckBox Check12;        // picture marks
  CheckBox Check14;        // track display
  Button Command72;        // brightness
  Button Command73;        // places
  Button Command59;        // save map window
  Label ScaleText;         // text of the scale bar
};

}  // namespace zepril
