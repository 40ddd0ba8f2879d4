// The main window's reader, writer and merge at exit of `ZEPRIL.INI`.
#include "config/main_window_settings.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "config/config_file.h"
#include "config/settings_table.h"
#include "core/baud_mode.h"
#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::size_t kMostMergedLines = 100;

void DeriveNames(RuntimeState& state) {
  IdentityState& identity = state.Identity;
  // No SSID line, or one before the call: the bare call goes on the air.
  if (identity.MyCallFull.empty()) identity.MyCallFull = identity.MyCall;
  identity.MapSystemFolder = identity.ProgramFolder + "\\" + identity.MapZoneName;
  state.Radio.BaudModeLabel = BaudModeLabelOf(state.Radio.BaudMode);
}

MapViewState LastView(const LastValues& values) {
  MapViewState view;
  for (std::size_t at = 0; at < values.CurrentMaps.size(); ++at) {
    view.StoredVariants[at] = Mid(values.CurrentMaps[at], 6);
  }
  view.CentreNorthKm = values.CentreNorthKm;
  view.CentreEastKm = values.CentreEastKm;
  view.OwnNorthKm = values.OwnNorthKm;
  view.OwnEastKm = values.OwnEastKm;
  return view;
}

// The rows of the merge in their order there.
std::vector<const Setting*> MergedSettings() {
  std::vector<const Setting*> merged;
  for (const Setting& setting : AllSettings()) {
    if (setting.AtExit > 0) merged.push_back(&setting);
  }
  std::sort(merged.begin(), merged.end(),
            [](const Setting* a, const Setting* b) { return a->AtExit < b->AtExit; });
  return merged;
}

// Replaces each line that begins with the key; appends it where there is none.
void MergeLine(std::vector<std::string>& lines, const std::string& key, const std::string& value) {
  bool found = false;
  for (std::string& line : lines) {
    if (!line.starts_with(key)) continue;
    line = key + value;
    found = true;
  }
  if (!found) lines.push_back(key + value);
}

}  // namespace

void ReadConfigForMainWindow(Files& files, RuntimeState& state) {
  const SettingSections sections = SectionsOf(state);
  SetFallbacks(SettingsWindow::MainWindow, sections);
  state.Identity.TempFolder = state.Identity.ProgramFolder;
  files.ReadLines(ConfigPath(state.Identity.ProgramFolder), [&](std::string_view line) {
    TakeSettingLine(SettingsWindow::MainWindow, sections, line);
    return true;
  });
  DeriveNames(state);
}

bool WriteConfigFromMainWindow(Files& files, RuntimeState& state) {
  return files.Replace(ConfigPath(state.Identity.ProgramFolder),
                       GiveSettingLines(SettingsWindow::MainWindow, SectionsOf(state)));
}

bool MergeConfigAtExit(Files& files, const std::string& program_folder, const LastValues& values) {
  const std::string path = ConfigPath(program_folder);
  // All lines, in their order.
  auto lines = ReadTrimmedLines(files, path, kMostMergedLines);
  if (!lines) return false;
  // The current map of each scale, the centre, the own position.
  MapViewState last = LastView(values);
  SettingSections sections;
  std::get<MapViewState*>(sections) = &last;
  for (const Setting* setting : MergedSettings()) {
    MergeLine(*lines, std::string(setting->Key) + "=",
              GiveSetting(*setting, SettingsWindow::MainWindow, sections));
  }
  // Back as it stands.
  if (lines->size() > kMostMergedLines) return false;
  return files.Replace(path, JoinLines(*lines));
}

}  // namespace zepril
