// Keys as the program's logic knows them.
#pragma once

#include "core/controls.h"

class QKeyEvent;

namespace zepril {

KeyPress KeyPressOf(const QKeyEvent& event);

}  // namespace zepril
