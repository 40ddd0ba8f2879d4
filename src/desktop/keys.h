// Keys as the program's logic knows them.
#pragma once

#include <optional>

#include "core/controls.h"

class QKeyEvent;
class QString;
class QWidget;

namespace zepril {

KeyPress KeyPressOf(const QKeyEvent& event);

bool IsEnterKey(const QKeyEvent& event);
// Enter or the space bar presses what has the focus.
bool IsClickKey(const QKeyEvent& event);
// Shift+F10 on the focused control is its right click. (The Menu key comes as a menu event.)
bool IsRightClickKey(const QKeyEvent& event);
// True for a field that takes what is typed while it has the focus.
bool IsTypedIn(const QWidget* widget);

// The byte that a key gives to a terminal: its character in code page 1252, 13 Enter, 8 Backspace,
// 9 Tab, 27 Esc, 127 Delete, 1 to 26 for a letter with Ctrl (28 to 31 for the signs behind "Z").
// Nothing for keys without a character, for those with Alt, for Shift+Tab, and for characters that
// code page 1252 does not have.
std::optional<char> TypedByte(const QKeyEvent& event);
// The same of one character.
std::optional<char> TypedByte(const QString& text);
// A widget that is no field is made one that takes the keys (or none any more): the window's own do
// not act there, and the map leaves it the focus.
void KeepKeysIn(QWidget* widget, bool kept);

}  // namespace zepril
