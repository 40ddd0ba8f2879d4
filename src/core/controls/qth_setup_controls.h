// The controls of USER QTH SETUP.
#pragma once

#include "core/controls.h"

namespace zepril {

struct QthSetupControls {
  Frame Frame2;
  TextBox TextQthNorth;  // km, or a whole position
  TextBox TextQthEast;   // km, or a whole position
  Label QthNote;         // why what was typed is no position
  Label QthRests;        // that nothing is received, once the operator has begun
  Button QthOk;          // takes what was typed, else the map centre, as own position
  Button Command22;      // CANCEL
};

}  // namespace zepril
