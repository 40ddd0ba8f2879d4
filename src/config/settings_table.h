// The settings of the configuration file, a row a key in the order of the file: from it both
// windows read and write, and the merge at exit takes its keys.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "config/setting.h"
#include "config/start_panel_settings.h"
#include "core/runtime_state.h"

namespace zepril {

// All eighty.
std::span<const Setting> AllSettings();

SettingSections SectionsOf(StartPanelSettings& settings);
SettingSections SectionsOf(RuntimeState& state);

// Sets every setting of the window to its fallback. That of TEMP depends on the machine and is left
// empty.
void SetFallbacks(SettingsWindow window, const SettingSections& sections);
// Takes one line: trimmed of blanks, its key matched without regard to case. False when no setting
// has the key.
bool TakeSettingLine(SettingsWindow window, const SettingSections& sections, std::string_view line);
// All lines that the window writes, CR LF after each.
std::string GiveSettingLines(SettingsWindow window, const SettingSections& sections);

}  // namespace zepril
