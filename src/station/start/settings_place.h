// The settings of the start panel, with the folder that they live in.
#pragma once

#include <string>

#include "config/start_panel_settings.h"
#include "platform/files.h"

namespace zepril {

struct StartSettingsPlace {
  StartPanelSettings& Values;
  const std::string& ProgramFolder;
  Files& Disk;
};

}  // namespace zepril
