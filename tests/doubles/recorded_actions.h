// Writes down what a room asks of the map, the settings, the program and the desktop, in one order.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "core/actions/map_actions.h"
#include "core/actions/program_actions.h"
#include "core/actions/settings_actions.h"
#include "platform/desktop_actions.h"

namespace zepril {

class RecordedActions final : public MapActions,
                              public SettingsActions,
                              public ProgramActions,
                              public DesktopActions {
 public:
  void MapRedraw() override { Calls.emplace_back("redraw"); }
  void MapRefresh() override { Calls.emplace_back("refresh"); }
  void WriteConfigFromMainWindow() override {
    Calls.emplace_back("save");
    if (OnSave) OnSave();
  }
  void ReplaceConfigLine(const std::string& key, const std::string&) override {
    Calls.push_back("replace " + key);
  }
  void EndProgram() override { Calls.emplace_back("end"); }
  bool MainWindowActive() const override { return true; }
  void Open(const std::string& what) override { Calls.push_back("open " + what); }
  bool MovePointerOnMap(int, int) override { return false; }

  int CountOf(const std::string& call) const {
    return static_cast<int>(std::count(Calls.begin(), Calls.end(), call));
  }
  std::vector<std::string> Calls;
  std::function<void()> OnSave;
};

}  // namespace zepril
