// The controls of the place files, and of the panel in which a place is added, renamed or removed.
#pragma once

#include "core/controls.h"

namespace zepril {

struct PlaceControls {
  ComboBox Combo2;  // the files; a name that is typed makes a new one
  Button PoiNew;    // opens the panel for a new place
  Frame PoiPanel;
  Label Label14;     // what the name field does
  TextBox Text4;     // name of the place
  Button PoiOk;      // applies the name
  Button PoiClose;   // leaves the place as it is
  Button Command64;  // " POS->CENTER": the place moves to the map centre
  Button Command67;  // "OPEN LINK"
};

}  // namespace zepril
