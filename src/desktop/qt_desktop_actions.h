// Small things asked of the desktop, by Qt. What the system does not allow is not done.
#pragma once

#include "platform/desktop_actions.h"

class QWidget;

namespace zepril {

class QtDesktopActions final : public DesktopActions {
 public:
  void SetWindows(QWidget* main_window, QWidget* map) {
    main_window_ = main_window;
    map_ = map;
  }
  bool MainWindowActive() const override;
  void Open(const std::string& path_or_address) override;
  bool MovePointerOnMap(int x, int y) override;
  std::string ClipboardText() const override;
  bool SetClock(const LocalTime& time) override;

 private:
  QWidget* main_window_ = nullptr;
  QWidget* map_ = nullptr;
};

}  // namespace zepril
