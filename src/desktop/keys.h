// Keys as the program's logic knows them.
#pragma once

#include "core/controls.h"

class QKeyEvent;
class QWidget;

namespace zepril {

KeyPress KeyPressOf(const QKeyEvent& event);

// Enter or the space bar presses what has the focus.
bool IsClickKey(const QKeyEvent& event);
// Shift+F10 on the focused control is its right click. (The Menu key comes as a menu event.)
bool IsRightClickKey(const QKeyEvent& event);
// True for a field that takes what is typed while it has the focus.
bool IsTypedIn(const QWidget* widget);

}  // namespace zepril
