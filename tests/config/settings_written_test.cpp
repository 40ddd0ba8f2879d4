// Every setting goes through both readers and both writers as tests/data/settings_written.txt
// tells.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "config/start_panel_settings.h"
#include "core/runtime_state.h"
#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

const std::string kFolder = "C:\\ZEPRIL";

// What a file of this one line is when it was read and written.
std::string WrittenByStartPanel(const std::string& line) {
  MemoryFiles files;
  files.Contents[ConfigPath(kFolder)] = line + "\r\n";
  StartPanelSettings settings = DefaultStartPanelSettings(kFolder, "d:\\Temp");
  ReadConfigForStartPanel(files, kFolder, settings);
  EXPECT_TRUE(WriteConfigFromStartPanel(files, kFolder, settings));
  return files.Of(ConfigPath(kFolder));
}

std::string WrittenByMainWindow(const std::string& line) {
  MemoryFiles files;
  files.Contents[ConfigPath(kFolder)] = line + "\r\n";
  RuntimeState state;
  state.Identity.ProgramFolder = kFolder;
  ReadConfigForMainWindow(files, state);
  EXPECT_TRUE(WriteConfigFromMainWindow(files, state));
  return files.Of(ConfigPath(kFolder));
}

// The value of `key`; "none" in brackets when the file has no such line.
std::string ValueIn(const std::string& file, const std::string& key) {
  const std::string text = "\r\n" + file;
  const std::size_t line = text.find("\r\n" + key + "=");
  if (line == std::string::npos) return "(none)";
  const std::size_t value = line + key.size() + 3;
  return text.substr(value, text.find("\r\n", value) - value);
}

std::vector<std::string> Rows() {
  std::ifstream in(std::string(ZEPRIL_SOURCE_DIR) + "/tests/data/settings_written.txt",
                   std::ios::binary);
  std::vector<std::string> rows;
  for (std::string row; std::getline(in, row);) {
    if (!row.starts_with('#')) rows.push_back(row);
  }
  return rows;
}

TEST(SettingsWritten, EachOfEightyIsReadAndWrittenByBothWindowsAsTheTableTells) {
  int keys = 0;
  for (const std::string& row : Rows()) {
    const std::string line = row.substr(0, row.find('|'));
    const std::string key = line.substr(0, line.find('='));
    if (key == line) ++keys;
    EXPECT_EQ(line + "|" + ValueIn(WrittenByStartPanel(line), key) + "|" +
                  ValueIn(WrittenByMainWindow(line), key),
              row);
  }
  EXPECT_EQ(keys, 80);
}

// What one line does to the others: nothing.
TEST(SettingsWritten, ALineChangesItsOwnSettingAlone) {
  const std::string start = WrittenByStartPanel("");
  const std::string main = WrittenByMainWindow("");
  for (const std::string& row : Rows()) {
    const std::string line = row.substr(0, row.find('|'));
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos) continue;
    const std::string key = line.substr(0, equals);
    const auto with_own_value = [&key](std::string file, const std::string& value) {
      const std::string old = key + "=" + ValueIn(file, key) + "\r\n";
      const std::size_t at = ("\r\n" + file).find("\r\n" + old);
      if (at != std::string::npos) file.replace(at, old.size(), key + "=" + value + "\r\n");
      return file;
    };
    const std::string start_now = WrittenByStartPanel(line);
    const std::string main_now = WrittenByMainWindow(line);
    EXPECT_EQ(start_now, with_own_value(start, ValueIn(start_now, key))) << line;
    EXPECT_EQ(main_now, with_own_value(main, ValueIn(main_now, key))) << line;
  }
}

}  // namespace
}  // namespace zepril
