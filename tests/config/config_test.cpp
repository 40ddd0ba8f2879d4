// Both readers and writers of `ZEPRIL.INI`: keys, order, fallbacks, bounds, the merge at exit.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <set>

#include "config/config_file.h"
#include "config/main_window_settings.h"
#include "config/settings_table.h"
#include "config/start_panel_settings.h"
#include "core/baud_mode.h"
#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

using ::testing::HasSubstr;

class ConfigTest : public ::testing::Test {
 protected:
  ConfigTest() { state.Identity.ProgramFolder = "C:"; }

  void WriteIni(const std::string& text) { ASSERT_TRUE(files.Write("C:\\ZEPRIL.INI", text)); }
  std::string Ini() const { return files.ReadAll("C:\\ZEPRIL.INI", 1 << 20).value_or("missing"); }
  std::vector<std::string> IniLines() const {
    return ReadTrimmedLines(files, "C:\\ZEPRIL.INI", 1000).value_or(std::vector<std::string>{});
  }
  bool HasLine(const std::string& line) const {
    const auto lines = IniLines();
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  }
  StartPanelSettings ReadPanel(const std::string& ini) {
    WriteIni(ini);
    StartPanelSettings settings = DefaultStartPanelSettings("C:", "");
    ReadConfigForStartPanel(files, "C:", settings);
    return settings;
  }
  void ReadMain(const std::string& ini) {
    WriteIni(ini);
    ReadConfigForMainWindow(files, state);
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  RuntimeState state;
};

TEST_F(ConfigTest, StartPanelWritesEightyKeysInTheOrderOfTheFile) {
  StartPanelSettings settings = DefaultStartPanelSettings("C:", "");
  ASSERT_TRUE(WriteConfigFromStartPanel(files, "C:", settings));
  const auto lines = IniLines();
  ASSERT_EQ(lines.size(), 80U);
  const std::string order =
      "LANG USER MSYS UMAPS M0002 M0010 M0050 M0200 M1000 M5000 TEMP NMEA NBAUD MODEM COM TBAUD "
      "SCOMP SBAUD HOSTC HOSTP HBAUD CALL DISA DIST UTCD SLOG LOGS TXID TXON TXTO TXPA TXPM1 TXPM2 "
      "TXPM3 TXPM4 TXTIM TXI1 TXI2 TXI3 TXI4 TXI5 TXI6 TXI1A TXI2A TXI3A TXI4A TXI5A TXI6A TXM1 "
      "TXM2 TXM3 TXM4 TXM5 TXM6 TXAF TXAFC DIGI XBAUD TXSY TXSS UTN UTE UUN UUE ONAM OTXT OSYM "
      "OSYN "
      "OUTN OUTE NOAT SSPT KIND IONA POIF TRKF AIPRT AISRV IGATE WVER";
  std::string written;
  for (const std::string& line : lines) {
    written += (written.empty() ? "" : " ") + line.substr(0, line.find('='));
  }
  EXPECT_EQ(written, order);
  EXPECT_TRUE(HasLine("TXON= 0"));
  EXPECT_NE(Ini().find("WVER=\r\n"), std::string::npos);
}

TEST_F(ConfigTest, DefaultsOfAFirstRun) {
  const StartPanelSettings s = DefaultStartPanelSettings("C:\\ZEPRIL", "c:\\Temp");
  EXPECT_EQ(s.Identity.TempFolder, "C:\\TEMP");
  EXPECT_EQ(DefaultStartPanelSettings("C:\\ZEPRIL", "").Identity.TempFolder, "C:\\ZEPRIL");
  EXPECT_EQ(s.Identity.MapsPath, "C:\\ZEPRIL\\U33");
  EXPECT_EQ(s.Radio.TncPort, 2);
  EXPECT_EQ(s.Transmission.TxSymbolIndex, 14);
  EXPECT_EQ(s.Transmission.ObjectSymbol, 0);
  EXPECT_EQ(s.Transmission.InfoLine[1], "using ZEPRIL");
  EXPECT_EQ(s.Transmission.InfoLine[2], "ZEPRIL DOWNLOAD: https://zepril.example");
  EXPECT_EQ(s.Transmission.InfoLine[4], s.Transmission.InfoLine[2]);
  EXPECT_EQ(s.Internet.SunspotNumber, 40);
  EXPECT_EQ(s.Internet.KpIndex, 2);
}

TEST_F(ConfigTest, MainWindowWritesSeventyThreeKeysAndKeepsTheBlankOfTheInterval) {
  ReadMain("M0050=TOPO\r\nNOAT=1\r\nTXON=10\r\nFOO=1\r\n");
  ASSERT_TRUE(WriteConfigFromMainWindow(files, state));
  EXPECT_EQ(IniLines().size(), 73U);
  EXPECT_TRUE(HasLine("TXON= 10"));
  for (const char* gone :
       {"M0002=", "M0010=", "M0050=", "M0200=", "M1000=", "M5000=", "NOAT=", "FOO="}) {
    EXPECT_EQ(Ini().find(gone), std::string::npos) << gone;
  }
}

TEST_F(ConfigTest, KeysMatchWithoutCaseAndTheLaterLineWins) {
  ReadMain("  usEr=qx7kb \r\nTXON=5\r\nTXON=7\r\n");
  EXPECT_EQ(state.Identity.MyCall, "QX7KB");
  EXPECT_EQ(state.Transmission.TxIntervalMinutes, 7);
  EXPECT_EQ(ReadPanel("  usEr=qx7kb \r\n").Identity.MyCall, "QX7KB");
}

TEST_F(ConfigTest, EmptyNmeaValuesLeaveTheHeldOnes) {
  ReadMain("NMEA=3\r\nNMEA=\r\nNBAUD=0\r\n");
  EXPECT_EQ(state.Gps.NmeaSource, "3");
  EXPECT_EQ(state.Gps.NmeaBaud, "4800");
  EXPECT_EQ(ReadPanel("NBAUD=\r\n").Gps.NmeaBaud, "4800");
  EXPECT_EQ(ReadPanel("NBAUD=9600x\r\n").Gps.NmeaBaud, "9600x");
}

TEST_F(ConfigTest, MapSystemIsBroughtToTwoDigits) {
  EXPECT_EQ(NormalisedMapZone("U8"), "U08");
  EXPECT_EQ(NormalisedMapZone("U-33"), "U33");
  EXPECT_EQ(NormalisedMapZone("U75"), "U60");
  EXPECT_EQ(NormalisedMapZone("33"), "U33");
  EXPECT_EQ(NormalisedMapZone(""), "U33");
  EXPECT_EQ(NormalisedMapZone("U0"), "U00");
  EXPECT_EQ(NormalisedMapZone("UX"), "U00");
  EXPECT_EQ(NormalisedMapZone("U33N"), "U33");
  const StartPanelSettings s = ReadPanel("MSYS=u5\r\n");
  EXPECT_EQ(s.Identity.MapZoneName, "U05");
  EXPECT_EQ(s.Identity.MapSystemFolder, "C:\\U05");
}

TEST_F(ConfigTest, FoldersLoseOneBackslashOnly) {
  EXPECT_EQ(ReadPanel("UMAPS=D:\\MAPS\\\r\n").Identity.MapsPath, "D:\\MAPS");
  EXPECT_EQ(ReadPanel("UMAPS=D:\\MAPS\\\\\r\n").Identity.MapsPath, "D:\\MAPS\\");
  ReadMain("TEMP=C:\\T\\\r\n");
  EXPECT_EQ(state.Identity.TempFolder, "C:\\T");
}

TEST_F(ConfigTest, ObjectNameIsFilledToNineOrStaysEmpty) {
  EXPECT_EQ(ReadPanel("ONAM=AB\r\n").Transmission.ObjectName, "AB       ");
  EXPECT_EQ(ReadPanel("ONAM=\r\n").Transmission.ObjectName, "");
  ReadMain("ONAM=LONGNAMEXYZ\r\n");
  EXPECT_EQ(state.Transmission.ObjectName, "LONGNAMEX");
}

TEST_F(ConfigTest, ClockOffsetKeepsItsFractionInTheStartPanelOnly) {
  EXPECT_EQ(ReadPanel("UTCD=2.5\r\n").StartPanel.UtcOffsetHours, 2.5);
  ReadMain("UTCD=2.5\r\n");
  EXPECT_EQ(state.Settings.UtcOffsetHours, 2);
  ReadMain("UTCD=1.5\r\n");
  EXPECT_EQ(state.Settings.UtcOffsetHours, 2);
  ASSERT_TRUE(WriteConfigFromMainWindow(files, state));
  EXPECT_TRUE(HasLine("UTCD=2"));
}

TEST_F(ConfigTest, MergeKeepsUnknownLinesAndTheirOrder) {
  WriteIni("usER=qx7kb\r\nFOO=1\r\nM0050=X\r\nUTN=1\r\n");
  LastValues last;
  last.CurrentMaps = {"M5000", "M1000", "M0200", "M0050TOPO", "M0010", "M0002"};
  last.CentreNorthKm = 6600;
  last.CentreEastKm = 400;
  last.OwnNorthKm = 5378.123;
  last.OwnEastKm = 412.345;
  ASSERT_TRUE(MergeConfigAtExit(files, "C:", last));
  EXPECT_EQ(
      Ini(),
      "usER=qx7kb\r\nFOO=1\r\nM0050=TOPO\r\nUTN=6600\r\nM5000=\r\nM1000=\r\nM0200=\r\nM0010=\r\n"
      "M0002=\r\nUTE=400\r\nUUN=5378.123\r\nUUE=412.345\r\n");
}

TEST_F(ConfigTest, MergeNeverWritesANumberThatOverflowed) {
  WriteIni("UTN=1\r\n");
  LastValues last;
  last.CentreNorthKm = std::numeric_limits<double>::infinity();
  last.OwnEastKm = std::numeric_limits<double>::quiet_NaN();
  ASSERT_TRUE(MergeConfigAtExit(files, "C:", last));
  EXPECT_TRUE(HasLine("UTN=0"));
  EXPECT_TRUE(HasLine("UUE=0"));
}

TEST_F(ConfigTest, MergeLeavesAFileOfMoreThanAHundredLinesAlone) {
  std::string text;
  for (int line = 0; line < 101; ++line)
    text += "X" + WholeNumber(line) + "=1\r\n";
  WriteIni(text);
  EXPECT_FALSE(MergeConfigAtExit(files, "C:", {}));
  EXPECT_EQ(Ini(), text);
  // One that would grow beyond a hundred lines by the ten keys of the merge stays too.
  text.clear();
  for (int line = 0; line < 91; ++line)
    text += "X" + WholeNumber(line) + "=1\r\n";
  WriteIni(text);
  EXPECT_FALSE(MergeConfigAtExit(files, "C:", {}));
  EXPECT_EQ(Ini(), text);
  WriteIni(text.substr(text.find('\n') + 1));
  EXPECT_TRUE(MergeConfigAtExit(files, "C:", {}));
  EXPECT_EQ(IniLines().size(), 100U);
}

TEST_F(ConfigTest, FirstRunMarkIsTestedOnTheLineAsStored) {
  WriteIni(" TEMP=x\r\ntemp=x\r\n");
  EXPECT_FALSE(ScanForFirstRun(files, "C:\\ZEPRIL.INI").Configured);
  WriteIni("TEMP=\r\nWVER=win10 \r\n");
  EXPECT_TRUE(ScanForFirstRun(files, "C:\\ZEPRIL.INI").Configured);
  EXPECT_EQ(ScanForFirstRun(files, "C:\\ZEPRIL.INI").LayoutHint, "WIN10");
  ReadMain("WVER=win10\r\n");
  EXPECT_EQ(state.Settings.LayoutHint, "WIN10");
}

TEST_F(ConfigTest, FirstRunScanCreatesAMissingFile) {
  EXPECT_FALSE(ScanForFirstRun(files, "C:\\ZEPRIL.INI").Configured);
  EXPECT_EQ(Ini(), "");
}

TEST_F(ConfigTest, RealsAreWrittenShortAndOverlayKeepsItsFirstCharacter) {
  ReadMain("UTN=0.5\r\nUUE=-10.517\r\nTXSS=XY\r\n");
  EXPECT_EQ(state.Transmission.TxOverlay, "X");
  ASSERT_TRUE(WriteConfigFromMainWindow(files, state));
  EXPECT_TRUE(HasLine("UTN=.5"));
  EXPECT_TRUE(HasLine("UUE=-10.517"));
  EXPECT_EQ(ReadPanel("TXSS=\r\n").Transmission.TxOverlay, "A");
}

TEST_F(ConfigTest, NameOnTheAirTakesAnSsidOfOneToFifteen) {
  ReadMain("USER=qx7kb\r\nTXID=9\r\n");
  EXPECT_EQ(state.Identity.MyCallFull, "QX7KB-9");
  state.Identity = {};
  state.Identity.ProgramFolder = "C:";
  ReadMain("USER=qx7kb\r\nTXID=16\r\n");
  EXPECT_EQ(state.Identity.MyCallFull, "QX7KB");
  EXPECT_EQ(state.Identity.MySsid, "16");
  ASSERT_TRUE(WriteConfigFromMainWindow(files, state));
  EXPECT_TRUE(HasLine("TXID=16"));
}

TEST_F(ConfigTest, AnSsidBeforeTheCallOrNoneLeavesTheBareCall) {
  ReadMain("TXID=9\r\nUSER=QX7KB\r\n");
  EXPECT_EQ(state.Identity.MyCallFull, "QX7KB");
  state.Identity = {};
  state.Identity.ProgramFolder = "C:";
  ReadMain("USER=QX7KB\r\n");
  EXPECT_EQ(state.Identity.MyCallFull, "QX7KB");
}

TEST_F(ConfigTest, ValuesBeyondTheirFieldLeaveTheHeldValue) {
  ReadMain("DIST=40000\r\nLOGS=300\r\nSLOG=-1\r\nTXON=abc\r\n");
  EXPECT_EQ(state.Alarms.AlarmDistanceKm, 10);
  EXPECT_EQ(state.Stores.LogsOn, 0);
  EXPECT_EQ(state.Followed.Moni1ThinningOn, 0);
  EXPECT_EQ(state.Transmission.TxIntervalMinutes, 0);
}

TEST_F(ConfigTest, AnIntervalBelowZeroIsZero) {
  ReadMain("TXON=-7\r\n");
  EXPECT_EQ(state.Transmission.TxIntervalMinutes, 0);
  EXPECT_EQ(ReadPanel("TXON=-7\r\n").Transmission.TxIntervalMinutes, 0);
}

TEST_F(ConfigTest, AlarmDistanceIsHeldToTheStartPanelsRange) {
  EXPECT_EQ(ReadPanel("DIST=0\r\n").Alarms.AlarmDistanceKm, 1);
  EXPECT_EQ(ReadPanel("DIST=250\r\n").Alarms.AlarmDistanceKm, 100);
}

TEST_F(ConfigTest, MainWindowReaderHasFallbackValuesOfItsOwn) {
  ReadMain("");
  EXPECT_EQ(state.Radio.TncPort, 1);
  EXPECT_EQ(state.Followed.Moni1AlarmOn, 1);
  EXPECT_EQ(state.Transmission.ObjectSymbol, 37);
  EXPECT_EQ(state.Identity.MapsPath, "C:\\ZEPRIL");
  EXPECT_EQ(state.Identity.TempFolder, "C:");
  EXPECT_EQ(state.Transmission.TxDestination, "ZEPR");
}

TEST_F(ConfigTest, MainWindowUpperCasesTheStoredMapVariants) {
  ReadMain("M0050=topo\r\n");
  EXPECT_EQ(state.Map.StoredVariants[3], "TOPO");
  EXPECT_EQ(ReadPanel("M0050=topo\r\n").Map.StoredVariants[3], "topo");
}

TEST_F(ConfigTest, BothReadersTakeEverySettingThatTheirWriterGives) {
  StartPanelSettings s = DefaultStartPanelSettings("C:", "");
  s.Identity.MyCall = "QX7KB";
  s.Radio.AgwHost = "radio.local";
  s.Radio.BaudMode = "1200";
  s.Transmission.TxPathMemory[2] = "WIDE2-2";
  s.Transmission.InfoLineActive[4] = 0;
  s.Transmission.InfoLineMemory[5] = "145.500MHZ";
  s.Map.CentreNorthKm = 6200.499;
  s.Transmission.ObjectOverlay = "7";
  s.StartPanel.KeepReadOnlyMarks = 1;
  ASSERT_TRUE(WriteConfigFromStartPanel(files, "C:", s));
  const std::string first = Ini();
  StartPanelSettings again = DefaultStartPanelSettings("C:", "");
  EXPECT_TRUE(ReadConfigForStartPanel(files, "C:", again));
  ASSERT_TRUE(WriteConfigFromStartPanel(files, "C:", again));
  EXPECT_EQ(Ini(), first);
  ReadConfigForMainWindow(files, state);
  EXPECT_EQ(state.Radio.AgwHost, "radio.local");
  EXPECT_EQ(state.Radio.BaudModeLabel, "1200 Bd");
  EXPECT_EQ(state.Transmission.TxPathMemory[2], "WIDE2-2");
  EXPECT_EQ(state.Transmission.InfoLineActive[4], 0);
  EXPECT_EQ(state.Transmission.InfoLineMemory[5], "145.500MHZ");
  EXPECT_EQ(state.Map.CentreNorthKm, 6200.499);
  EXPECT_EQ(state.Map.StoredNorthText, "6200.499");
  EXPECT_EQ(state.Transmission.ObjectOverlay, "7");
}

TEST_F(ConfigTest, WhatIsHeldInAnotherFormIsFoldedOnWritingWhereTheFileWantsItSo) {
  StartPanelSettings s = DefaultStartPanelSettings("C:", "");
  s.Identity.MyCall = " qx7kb ";
  s.Identity.MapZoneName = "u33 ";
  s.Gps.NmeaSource = " 3 ";
  s.Gps.NmeaBaud = " 9600";
  s.Radio.CrossMode = " r300";
  s.Transmission.TxDestination = " zepr ";
  s.Transmission.ObjectName = "LONGNAMEXYZ";
  s.Transmission.TxOverlay = "xy";
  s.Identity.MapsPath = "C:\\MAPS\\";
  ASSERT_TRUE(WriteConfigFromStartPanel(files, "C:", s));
  for (const char* line : {"USER=QX7KB", "MSYS=U33", "NMEA=3", "NBAUD=9600", "XBAUD=R300"}) {
    EXPECT_NE(Ini().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
  // All other text goes out as it is.
  for (const char* line : {"TXTO= zepr ", "ONAM=LONGNAMEXYZ", "TXSS=xy", "UMAPS=C:\\MAPS\\"}) {
    EXPECT_NE(Ini().find(std::string(line) + "\r\n"), std::string::npos) << line;
  }
}

TEST_F(ConfigTest, ReplacingOneLineKeepsAllOthers) {
  WriteIni("FOO=1\r\ncall=OLD\r\nM0050=TOPO\r\n");
  ASSERT_TRUE(ReplaceConfigLine(files, "C:\\ZEPRIL.INI", "CALL", "QX1AB"));
  EXPECT_EQ(Ini(), "FOO=1\r\nCALL=QX1AB\r\nM0050=TOPO\r\n");
  ASSERT_TRUE(ReplaceConfigLine(files, "C:\\ZEPRIL.INI", "TXID", "7"));
  EXPECT_EQ(Ini(), "FOO=1\r\nCALL=QX1AB\r\nM0050=TOPO\r\nTXID=7\r\n");
}

TEST_F(ConfigTest, AnEndlessLineNeitherFillsMemoryNorIsCutByAnEdit) {
  const std::string giant = "FOO=" + std::string(300000, 'x') + "\r\nUSER=QX7KB\r\n";
  ReadMain(giant);
  EXPECT_EQ(state.Identity.MyCall, "QX7KB");
  EXPECT_FALSE(ReplaceConfigLine(files, "C:\\ZEPRIL.INI", "CALL", "X"));
  EXPECT_FALSE(MergeConfigAtExit(files, "C:", {}));
  EXPECT_EQ(Ini(), giant);
}

TEST_F(ConfigTest, AFailedWriteLeavesTheOldFileWhole) {
  ReadMain("USER=QX7KB\r\n");
  // The new file beside the old one can't be made: a folder stands in its place.
  ASSERT_TRUE(files.MakeFolder("C:\\ZEPRIL.INI.new~"));
  EXPECT_FALSE(WriteConfigFromMainWindow(files, state));
  EXPECT_EQ(Ini(), "USER=QX7KB\r\n");
}

TEST(SettingsTable, ARealThatOverflowsIsPassedOverAndNeverWritten) {
  RuntimeState state;
  const SettingSections sections = SectionsOf(state);
  double& held = state.Map.CentreNorthKm;
  held = 5800.5;
  for (const char* line : {"UTN=1e400", "UTN=-1e400", "utn= 9e99999"}) {
    EXPECT_TRUE(TakeSettingLine(SettingsWindow::MainWindow, sections, line));
    EXPECT_EQ(held, 5800.5) << line;
  }
  held = std::numeric_limits<double>::infinity();
  EXPECT_THAT(GiveSettingLines(SettingsWindow::MainWindow, sections), HasSubstr("\r\nUTN=0\r\n"));
  held = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(GiveSettingLines(SettingsWindow::MainWindow, sections), HasSubstr("\r\nUTN=0\r\n"));
}

TEST(SettingsTable, LinesOfOtherKeysAreNotTaken) {
  RuntimeState state;
  const SettingSections sections = SectionsOf(state);
  for (const char* line : {"", "=", "FOO=1", "USER", "USER =X", "TXI=1", "TXI1B=1"}) {
    EXPECT_FALSE(TakeSettingLine(SettingsWindow::MainWindow, sections, line)) << line;
  }
}

// Told once: what the main window falls back to is what its state begins with, but for texts and
// folders that are the program's own.
TEST(SettingsTable, FallbacksOfTheMainWindowAreWhatTheStateBeginsWith) {
  RuntimeState state;
  const std::string begins = GiveSettingLines(SettingsWindow::MainWindow, SectionsOf(state));
  SetFallbacks(SettingsWindow::MainWindow, SectionsOf(state));
  state.Transmission.InfoLine = {};
  state.Internet.AprsIsServer.clear();
  EXPECT_EQ(GiveSettingLines(SettingsWindow::MainWindow, SectionsOf(state)), begins);
}

TEST(SettingsTable, NoKeyStandsTwiceAndTheMergeTakesTen) {
  std::set<std::string_view> keys;
  std::set<int> turns;
  for (const Setting& setting : AllSettings()) {
    EXPECT_TRUE(keys.insert(setting.Key).second) << setting.Key;
    if (setting.AtExit == 0) continue;
    EXPECT_TRUE(turns.insert(setting.AtExit).second) << setting.Key;
  }
  EXPECT_EQ(turns, (std::set<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(BaudModeLabel, NamesTheMode) {
  EXPECT_EQ(BaudModeLabelOf("300"), "300 Bd");
  EXPECT_EQ(BaudModeLabelOf("300R"), "RPR 300");
  EXPECT_EQ(BaudModeLabelOf("19200"), "19200 Bd");
}

}  // namespace
}  // namespace zepril
