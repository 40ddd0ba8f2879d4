// The configuration file holds anything: both readers take it, and what they have read is the same
// after it was written and read again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "config/settings_table.h"
#include "config/start_panel_settings.h"
#include "core/runtime_state.h"
#include "tests/doubles/memory_files.h"

namespace {

using zepril::MemoryFiles;
using zepril::RuntimeState;
using zepril::StartPanelSettings;

const std::string kFolder = "C:\\ZEPRIL";

StartPanelSettings ReadStart(MemoryFiles& files) {
  StartPanelSettings settings = zepril::DefaultStartPanelSettings(kFolder, {});
  zepril::ReadConfigForStartPanel(files, kFolder, settings);
  return settings;
}

RuntimeState ReadMain(MemoryFiles& files) {
  RuntimeState state;
  state.Identity.ProgramFolder = kFolder;
  zepril::ReadConfigForMainWindow(files, state);
  return state;
}

std::string LinesOf(StartPanelSettings& settings) {
  return zepril::GiveSettingLines(zepril::SettingsWindow::StartPanel, zepril::SectionsOf(settings));
}
std::string LinesOf(RuntimeState& state) {
  return zepril::GiveSettingLines(zepril::SettingsWindow::MainWindow, zepril::SectionsOf(state));
}

void StartPanelKeepsItsSettings(const std::string& text) {
  MemoryFiles files;
  files.Contents[zepril::ConfigPath(kFolder)] = text;
  StartPanelSettings first = ReadStart(files);
  if (!zepril::WriteConfigFromStartPanel(files, kFolder, first)) std::abort();
  StartPanelSettings second = ReadStart(files);
  if (LinesOf(first) != LinesOf(second)) std::abort();
}

void MainWindowKeepsItsSettings(const std::string& text) {
  MemoryFiles files;
  files.Contents[zepril::ConfigPath(kFolder)] = text;
  RuntimeState first = ReadMain(files);
  if (!zepril::WriteConfigFromMainWindow(files, first)) std::abort();
  RuntimeState second = ReadMain(files);
  if (LinesOf(first) != LinesOf(second)) std::abort();
}

// Lines of other keys survive the exchange of one.
void ReplacingKeepsTheOthers(const std::string& text) {
  MemoryFiles files;
  const std::string path = zepril::ConfigPath(kFolder);
  files.Contents[path] = text;
  const std::string before = files.Contents[path];
  if (!zepril::ReplaceConfigLine(files, path, "KIND", "7")) {
    if (files.Contents[path] != before) std::abort();
    return;
  }
  const std::string once = files.Contents[path];
  if (!zepril::ReplaceConfigLine(files, path, "KIND", "7")) std::abort();
  if (files.Contents[path] != once) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  StartPanelKeepsItsSettings(text);
  MainWindowKeepsItsSettings(text);
  ReplacingKeepsTheOthers(text);
  return 0;
}
