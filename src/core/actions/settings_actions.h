// What a room asks of the configuration file.
#pragma once

#include <string>

namespace zepril {

class SettingsActions {
 public:
  virtual ~SettingsActions() = default;
  // Rewrites the file whole; enables `Timer1`.
  virtual void WriteConfigFromMainWindow() = 0;
  // Replaces (or appends) the line of one key and keeps all others.
  virtual void ReplaceConfigLine(const std::string& key, const std::string& value) = 0;
};

}  // namespace zepril
