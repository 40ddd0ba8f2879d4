// A run on default settings writes none of them
#include "config/settings_in_memory.h"

#include <gtest/gtest.h>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "config/start_panel_settings.h"
#include "tests/doubles/memory_files.h"

namespace zepril {
namespace {

const std::string kFolder = R"(C:\ZEPRIL)";
const std::string kIni = R"(C:\ZEPRIL\ZEPRIL.INI)";

TEST(SettingsInMemory, AFileThatCannotBeReadIsToldWithItsReason) {
  MemoryFiles disk;
  EXPECT_FALSE(TroubleWithConfig(disk, kFolder));  // a first run
  disk.Contents[kIni] = "USER=QX7KB\r\n";
  EXPECT_FALSE(TroubleWithConfig(disk, kFolder));
  disk.UnreadableEnding = "ZEPRIL.INI";
  disk.Why = FileTrouble::NoPermission;
  EXPECT_EQ(TroubleWithConfig(disk, kFolder), FileTrouble::NoPermission);
}

TEST(SettingsInMemory, WhatIsSetIsReadBackAndTheFileStaysAsItIs) {
  MemoryFiles disk;
  disk.Contents[kIni] = "USER=QX7KB\r\n";
  disk.Contents[R"(C:\ZEPRIL\PORTS.TXT)"] = "COM3=/dev/modem\r\n";
  disk.UnreadableEnding = "ZEPRIL.INI";
  const auto before = disk.Contents;
  SettingsInMemory files(disk, kFolder);
  StartPanelSettings settings;
  EXPECT_FALSE(ReadConfigForStartPanel(files, kFolder, settings));
  EXPECT_EQ(settings.Identity.MyCall, "");  // the defaults
  settings.Identity.MyCall = "QX2CD";
  EXPECT_TRUE(WriteConfigFromStartPanel(files, kFolder, settings));
  RuntimeState state;
  state.Identity.ProgramFolder = kFolder;
  ReadConfigForMainWindow(files, state);
  EXPECT_EQ(state.Identity.MyCall, "QX2CD");
  EXPECT_TRUE(WriteConfigFromMainWindow(files, state));
  EXPECT_TRUE(ReplaceConfigLine(files, kIni, "CALL", "QX3EF"));
  EXPECT_TRUE(MergeConfigAtExit(files, kFolder, {}));
  EXPECT_NE(files.ReadAll(kIni, 1 << 20)->find("CALL=QX3EF"), std::string::npos);
  EXPECT_TRUE(files.Replace(R"(C:\ZEPRIL\PORTS.TXT)", "COM3=/dev/other\r\n"));
  EXPECT_TRUE(files.Replace(R"(C:\ZEPRIL\WINDOW.TXT)", "X=1\r\n"));
  EXPECT_TRUE(files.Append(kIni, "X=1\r\n"));
  EXPECT_TRUE(files.ReadAll(kIni, 1 << 20)->ends_with("X=1\r\n"));
  EXPECT_FALSE(files.Remove(kIni));
  EXPECT_EQ(disk.Contents, before);
}

TEST(SettingsInMemory, OtherFilesAreThoseOfTheDisk) {
  MemoryFiles disk;
  SettingsInMemory files(disk, kFolder);
  EXPECT_TRUE(files.Append(R"(C:\ZEPRIL\U33\LOG\X.TXT)", "line\r\n"));
  EXPECT_EQ(disk.Of(R"(C:\ZEPRIL\U33\LOG\X.TXT)"), "line\r\n");
  EXPECT_TRUE(files.Exists(R"(C:\ZEPRIL\U33\LOG\X.TXT)"));
  EXPECT_FALSE(files.Remove(kIni));
  EXPECT_FALSE(files.Rename(R"(C:\ZEPRIL\U33\LOG\X.TXT)", kIni));
}

}  // namespace
}  // namespace zepril
