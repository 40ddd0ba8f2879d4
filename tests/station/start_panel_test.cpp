#include "station/start_panel.h"

#include <gtest/gtest.h>

#include "platform/native/native_files.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

class StartPanelTest : public ::testing::Test {
 protected:
  std::string Ini() { return files.ReadAll("C:\\Z\\ZEPRIL.INI", 1 << 20).value_or("(missing)"); }
  bool Has(const std::string& line) { return Ini().find(line + "\r\n") != std::string::npos; }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  ScriptedDialogs dialogs;
};

TEST_F(StartPanelTest, StartNeedsACallOfThreeCharacters) {
  StartPanel panel(files, dialogs, "C:\\Z", "");
  bool started = false;
  panel.Started = [&] { started = true; };
  panel.Controls.Text8.Text = " QX ";
  dialogs.Expect("ZEP RIL  START", "SET USER CALL !");
  panel.Controls.Command1.Click();
  EXPECT_FALSE(started);
  EXPECT_FALSE(panel.Controls.Fault.Caption.empty());
  EXPECT_TRUE(panel.Controls.Text8.FocusWanted);
  panel.Controls.Text8.Text = "qx7kb";
  panel.Controls.Text8.Change();
  EXPECT_TRUE(panel.Controls.Fault.Caption.empty());
  panel.Controls.Command1.Click();
  EXPECT_TRUE(started);
  EXPECT_TRUE(Has("USER=QX7KB"));
  EXPECT_EQ(panel.Controls.Command1.Caption, "...");
}

TEST_F(StartPanelTest, ASecondPressIsIgnored) {
  StartPanel panel(files, dialogs, "C:\\Z", "");
  int starts = 0;
  panel.Started = [&] { ++starts; };
  panel.Controls.Text8.Text = "QX7KB";
  panel.Controls.Command1.Click();
  panel.Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(StartPanelTest, TheInterfaceDecidesWhichFieldsAreTaken) {
  StartPanel panel(files, dialogs, "C:\\Z", "");
  EXPECT_TRUE(panel.Controls.Option2.Value);
  EXPECT_FALSE(panel.Controls.Text3.Enabled);
  panel.Controls.Option9.Click();
  EXPECT_TRUE(panel.Controls.Text3.Enabled);
  EXPECT_FALSE(panel.Controls.Option2.Value);
  panel.Controls.Text8.Text = "QX7KB";
  panel.Controls.Text3.Text = " radio.local ";
  panel.Controls.Text4.Text = "";
  panel.Controls.Command1.Click();
  EXPECT_TRUE(Has("MODEM=3"));
  EXPECT_TRUE(Has("HOSTC=radio.local"));
  EXPECT_TRUE(Has("HOSTP=8000"));
}

TEST_F(StartPanelTest, MapsPathGivesTheMapSystem) {
  StartPanel panel(files, dialogs, "C:\\Z", "");
  panel.Controls.Text8.Text = "QX7KB";
  panel.Controls.Text1.Text = "c:\\zepril\\u08\\";
  panel.Controls.Command1.Click();
  EXPECT_TRUE(Has("UMAPS=C:\\ZEPRIL\\U08"));
  EXPECT_TRUE(Has("MSYS=U08"));
}

TEST_F(StartPanelTest, AFirstRunInAnotherFolderLooksForItsMapsThere) {
  EXPECT_EQ(StartPanel(files, dialogs, "C:\\Z", "").Controls.Text1.Text, "C:\\Z\\U33");
  files.MakeFolder("C:\\ZEPRIL\\U33");
  files.Remove("C:\\Z\\ZEPRIL.INI");
  EXPECT_EQ(StartPanel(files, dialogs, "C:\\Z", "").Controls.Text1.Text, "C:\\ZEPRIL\\U33");
  files.Write("C:\\Z\\ZEPRIL.INI", "TEMP=C:\\T\r\nUMAPS=C:\\MINE\\U33\r\n");
  EXPECT_EQ(StartPanel(files, dialogs, "C:\\Z", "").Controls.Text1.Text, "C:\\MINE\\U33");
}

TEST_F(StartPanelTest, LogsOfTheLastRunGoAndTheOthersStay) {
  files.MakeFolder("C:\\Z\\U33\\LOG");
  for (const char* name : {"_LOG_", "_LOGL_", "_LOGRAW_", "_ALARM_", "_CHATLOG", "QX1AB"}) {
    files.Write("C:\\Z\\U33\\LOG\\" + std::string(name) + ".TXT", "x");
  }
  StartPanel panel(files, dialogs, "C:\\Z", "");
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOG_.TXT"));
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOGL_.TXT"));
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOGRAW_.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\_ALARM_.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\_CHATLOG.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\QX1AB.TXT"));
}

TEST_F(StartPanelTest, AFileThatCantBeWrittenIsSaidAndNothingIsLost) {
  StartPanel panel(files, dialogs, "C:\\Z", "");
  files.MakeFolder("C:\\Z\\ZEPRIL.INI.new~");
  panel.Controls.Text8.Text = "QX7KB";
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\ZEPRIL.INI");
  panel.Controls.Command1.Click();
  EXPECT_EQ(panel.Controls.Command1.Caption, "START");
  EXPECT_EQ(panel.Controls.Text8.Text, "QX7KB");
}

}  // namespace
}  // namespace zepril
