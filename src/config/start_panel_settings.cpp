// The start panel's first-run values, reader and writer of `ZEPRIL.INI`.
#include "config/start_panel_settings.h"

#include <algorithm>
#include <cmath>

#include "config/config_file.h"
#include "config/settings_table.h"
#include "core/text_fields.h"

namespace zepril {

StartPanelSettings DefaultStartPanelSettings(const std::string& program_folder,
                                             const std::string& temp) {
  StartPanelSettings settings;
  SetFallbacks(SettingsWindow::StartPanel, SectionsOf(settings));
  settings.Identity.TempFolder = temp.empty() ? program_folder : Upper(temp);
  return settings;
}

std::string NormalisedMapZone(std::string_view zone) {
  constexpr double kHighestZone = 60.0;
  if (zone.empty() || zone.front() != 'U') return "U33";
  const double number = std::min(std::fabs(Val(zone.substr(1))), kHighestZone);
  return "U" + ZeroPadded(ToWhole(number), 2);
}

bool ReadConfigForStartPanel(Files& files, const std::string& program_folder,
                             StartPanelSettings& settings) {
  const std::string path = ConfigPath(program_folder);
  const FirstRunScan scan = ScanForFirstRun(files, path);
  settings.Settings.LayoutHint = scan.LayoutHint;
  const SettingSections sections = SectionsOf(settings);
  files.ReadLines(path, [&](std::string_view line) {
    TakeSettingLine(SettingsWindow::StartPanel, sections, line);
    return true;
  });
  // After the read: what must not stay as it came.
  IdentityState& identity = settings.Identity;
  identity.MapZoneName = NormalisedMapZone(identity.MapZoneName);
  identity.MapSystemFolder = program_folder + "\\" + identity.MapZoneName;
  return scan.Configured;
}

bool WriteConfigFromStartPanel(Files& files, const std::string& program_folder,
                               StartPanelSettings& settings) {
  return files.Replace(ConfigPath(program_folder),
                       GiveSettingLines(SettingsWindow::StartPanel, SectionsOf(settings)));
}

}  // namespace zepril
