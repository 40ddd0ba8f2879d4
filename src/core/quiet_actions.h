// For a room that is used by itself: nothing is drawn, nothing is stored, nobody is warned.
#pragma once

#include <string>

#include "core/actions/emergency_actions.h"
#include "core/actions/map_actions.h"
#include "core/actions/settings_actions.h"

namespace zepril {

struct QuietActions final : MapActions, EmergencyActions, SettingsActions {
  void MapRedraw() override {}
  void MapRefresh() override {}
  void ShowEmergency() override {}
  void WriteConfigFromMainWindow() override {}
  void ReplaceConfigLine(const std::string&, const std::string&) override {}
};

}  // namespace zepril
