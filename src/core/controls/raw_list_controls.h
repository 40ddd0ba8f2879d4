// The controls of the list of raw packets.
#pragma once

#include "core/controls.h"

namespace zepril {

struct RawListControls {
  Button Command57;  // opens and closes it
  ListBox RawList;
  TextBox Text14;    // text to search
  Button Command38;  // search
};

}  // namespace zepril
