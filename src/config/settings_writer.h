// Writes the configuration file for whoever has changed a setting in the main window.
#pragma once

#include <string>

#include "core/actions/settings_actions.h"
#include "core/runtime_state.h"
#include "core/timer.h"
#include "platform/files.h"

namespace zepril {

class SettingsWriter final : public SettingsActions {
 public:
  SettingsWriter(RuntimeState& state, Files& files, Timer& timer1)
      : state_(state), files_(files), timer1_(timer1) {}

  void WriteConfigFromMainWindow() override;
  void ReplaceConfigLine(const std::string& key, const std::string& value) override;

 private:
  RuntimeState& state_;
  Files& files_;
  Timer& timer1_;
};

}  // namespace zepril
