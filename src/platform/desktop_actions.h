// Small things asked of the desktop. What a system does not allow is quietly not done.
#pragma once

#include <string>

#include "platform/clock.h"

namespace zepril {

class DesktopActions {
 public:
  virtual ~DesktopActions() = default;
  // True when the main window is the active window of the system.
  virtual bool MainWindowActive() const = 0;
  // Opens a file or address with the program the desktop has for it.
  virtual void Open(const std::string& path_or_address) = 0;
  // Moves the mouse pointer to pixel (x, y) of the map; false when the system does not allow it.
  virtual bool MovePointerOnMap(int x, int y) = 0;
  // What the operator has copied, code page 1252; empty when it is no text.
  virtual std::string ClipboardText() const { return {}; }
  // Sets the computer's clock to this local time; false when that is refused.
  virtual bool SetClock(const LocalTime&) { return false; }
};

}  // namespace zepril
