// The controls of the panel of a station's record.
#pragma once

#include "core/controls.h"

namespace zepril {

struct RecordPanelControls {
  Frame Frame1;
  Label Label19;     // "QTH=" or "DELETE"
  Label Label20;     // the record
  Button Command18;  // "<" or "<X"
  Button Command19;  // ">" or "X>"
  Button Command10;  // PING
  Button Command41;  // prepare CHAT
  Button Command11;  // make the station MONI 1
  Button Command40;  // WX panel
  Button Command36;  // highlight
  Button Command23;  // close
};

}  // namespace zepril
