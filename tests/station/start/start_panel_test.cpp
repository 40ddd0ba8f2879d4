// What the start panel does when it opens, and the speeds that an interface knows.
#include "station/start/start_panel.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using StartPanelTest = StartPanelWorld;

TEST_F(StartPanelTest, AFirstRunInAnotherFolderLooksForItsMapsThere) {
  EXPECT_EQ(MakePanel()->Controls.Text1.Text, "C:\\Z\\U33");
  files.MakeFolder("C:\\ZEPRIL\\U33");
  files.Remove("C:\\Z\\ZEPRIL.INI");
  EXPECT_EQ(MakePanel()->Controls.Text1.Text, "C:\\ZEPRIL\\U33");
  files.Write("C:\\Z\\ZEPRIL.INI", "TEMP=C:\\T\r\nUMAPS=C:\\MINE\\U33\r\n");
  EXPECT_EQ(MakePanel()->Controls.Text1.Text, "C:\\MINE\\U33");
}

TEST_F(StartPanelTest, LogsOfTheLastRunGoAndTheOthersStay) {
  files.MakeFolder("C:\\Z\\U33\\LOG");
  for (const char* name : {"_LOG_", "_LOGL_", "_LOGRAW_", "_ALARM_", "_CHATLOG", "QX1AB"}) {
    files.Write("C:\\Z\\U33\\LOG\\" + std::string(name) + ".TXT", "x");
  }
  const auto panel = MakePanel();
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOG_.TXT"));
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOGL_.TXT"));
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\LOG\\_LOGRAW_.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\_ALARM_.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\_CHATLOG.TXT"));
  EXPECT_TRUE(files.Exists("C:\\Z\\U33\\LOG\\QX1AB.TXT"));
}

TEST_F(StartPanelTest, SlowInterfacesFallBackToASlowSpeed) {
  for (const char* fast : {"300R", "9600", "19200"}) {
    const auto panel = PanelOf(std::string("MODEM=5\r\nHBAUD=") + fast + "\r\n");
    EXPECT_EQ(panel->Settings().Radio.BaudMode, fast);
    panel->Controls.Option13.Click();
    EXPECT_EQ(panel->Settings().Radio.BaudMode, fast);
    panel->Controls.Option1.Click();
    EXPECT_EQ(panel->Settings().Radio.BaudMode, "300") << fast;
  }
  const auto panel = PanelOf("MODEM=5\r\nHBAUD=1200\r\n");
  panel->Controls.Option10.Click();
  EXPECT_EQ(panel->Settings().Radio.BaudMode, "1200");
}

TEST_F(StartPanelTest, AFastSpeedOfTheFileFallsBackWithASlowInterface) {
  for (const char* slow_modem : {"0", "1", "3", "4"}) {
    for (const char* fast : {"300R", "9600", "19200"}) {
      const auto panel = PanelOf(std::string("MODEM=") + slow_modem + "\r\nHBAUD=" + fast + "\r\n");
      panel->Controls.Command1.Click();
      EXPECT_TRUE(Has("HBAUD=300")) << slow_modem << " " << fast;
    }
  }
  PanelOf("MODEM=5\r\nHBAUD=300R\r\n")->Controls.Command1.Click();
  EXPECT_TRUE(Has("HBAUD=300R"));
  PanelOf("MODEM=5\r\nHBAUD=300 Bd\r\n")->Controls.Command1.Click();
  EXPECT_TRUE(Has("HBAUD=300"));
}

}  // namespace
}  // namespace zepril
