// The controls that tell what long work is done and how far it is.
#pragma once

#include "core/controls.h"

namespace zepril {

struct ProgressControls {
  Frame ProgressPanel;
  Label ProgressText;
  FillBar ProgressBar;
};

}  // namespace zepril
