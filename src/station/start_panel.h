// The start panel: takes the settings of the operator before the main window opens.
#pragma once

#include <functional>
#include <string>

#include "config/start_panel_settings.h"
#include "core/start_panel_controls.h"
#include "platform/dialogs.h"
#include "platform/files.h"

namespace zepril {

class StartPanel {
 public:
  // `temp`: the environment's TEMP, empty when there is none.
  StartPanel(Files& files, Dialogs& dialogs, std::string program_folder, const std::string& temp);
  StartPanel(const StartPanel&) = delete;
  StartPanel& operator=(const StartPanel&) = delete;

  StartPanelControls Controls;
  // Told when START has stored the settings: the main window may open.
  std::function<void()> Started;

  const StartPanelSettings& Settings() const { return settings_; }

 private:
  void Load();
  void DeleteRunLogs();
  void ShowSettings();
  void ChooseInterface(const OptionButton& chosen);
  void ShowPortFields();
  void Command1Click();
  bool TakeFields();

  Files& files_;
  Dialogs& dialogs_;
  std::string program_folder_;
  StartPanelSettings settings_;
  bool starting_ = false;
};

}  // namespace zepril
