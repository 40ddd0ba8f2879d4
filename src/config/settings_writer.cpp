// The whole file, or the line of one key.
#include "config/settings_writer.h"

#include "config/config_file.h"
#include "config/main_window_settings.h"

namespace zepril {

void SettingsWriter::WriteConfigFromMainWindow() {
  zepril::WriteConfigFromMainWindow(files_, state_);
  timer1_.Enable();
}

void SettingsWriter::ReplaceConfigLine(const std::string& key, const std::string& value) {
  zepril::ReplaceConfigLine(files_, ConfigPath(state_.Identity.ProgramFolder), key, value);
}

}  // namespace zepril
