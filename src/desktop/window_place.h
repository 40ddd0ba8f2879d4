// Where a window opens: where it was last, or in the middle of the screen, always with all of it on
// a screen that is there now.
#pragma once

#include <QRect>
#include <QSize>
#include <QString>

#include <optional>
#include <string>

#include "config/window_file.h"

class QWidget;

namespace zepril {

// `wanted` brought into `screen`: no larger than it, and no part beyond its edges.
QRect BroughtInto(const QRect& wanted, const QRect& screen);

// Gives `window` the place kept under `key` ("x,y,width,height", and "maximised" in key + "MAX"),
// or else its own size in the middle of its screen. What a frame of the desktop takes is left free.
void PlaceWindow(QWidget& window, const WindowValues& values, const std::string& key);
// The same values of a window as it stands now.
WindowValues PlaceOf(const QWidget& window, const std::string& key);

}  // namespace zepril
