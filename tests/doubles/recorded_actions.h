// Writes down what a room asks of the map, the settings and the desktop, in one order.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"
#include "platform/desktop_actions.h"

namespace zepril {

class RecordedActions final : public MapActions, public SettingsActions, public DesktopActions {
 public:
  void MapRedraw() override { Calls.emplace_back("redraw"); }
  void MapRefresh() override { Calls.emplace_back("refresh"); }
  void WriteConfigFromMainWindow() override { Calls.emplace_back("save"); }
  void ReplaceConfigLine(const std::string& key, const std::string&) override {
    Calls.push_back("replace " + key);
  }
  bool MainWindowActive() const override { return true; }
  bool WindowExists(const std::string&) const override { return false; }
  void Open(const std::string& what) override { Calls.push_back("open " + what); }
  bool MovePointerOnMap(int, int) override { return false; }

  int CountOf(const std::string& call) const {
    return static_cast<int>(std::count(Calls.begin(), Calls.end(), call));
  }
  std::vector<std::string> Calls;
};

}  // namespace zepril
