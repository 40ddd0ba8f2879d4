// The controls of the geo-referenced picture that fills the map window.
#pragma once

#include "core/controls.h"

namespace zepril {

struct PicturePanelControls {
  Frame Frame8;
  ImageView Picture;  // a click centres the map where it was taken
  Label PictureName;
  Button Command29;  // previous picture
  Button Command30;  // next picture
  Button Command70;  // open it outside
  Button Command71;  // close it
};

}  // namespace zepril
