// A desktop on which the main window is in front; what is opened is written down.
#pragma once

#include <string>
#include <vector>

#include "platform/desktop_actions.h"

namespace zepril {

class RecordedDesktop final : public DesktopActions {
 public:
  bool MainWindowActive() const override { return true; }
  void Open(const std::string& what) override { Opened.push_back(what); }
  bool MovePointerOnMap(int, int) override { return false; }

  // Written down; the computer's clock stays.
  bool SetClock(const LocalTime& time) override {
    ClockSettings.push_back(time);
    return ClockMayBeSet;
  }

  std::string ClipboardText() const override { return Clipboard; }

  std::vector<std::string> Opened;
  std::string Clipboard;
  std::vector<LocalTime> ClockSettings;
  bool ClockMayBeSet = true;
};

}  // namespace zepril
