// The server of the gate: which interfaces have one, and what its OK takes.
#include "station/start/aprs_is_setup.h"

#include <gtest/gtest.h>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using AprsIsSetupTest = StartPanelWorld;

TEST_F(AprsIsSetupTest, OnlyInterfacesThatHandOnWhatTheyHearHaveOne) {
  const auto panel = PanelOf("MODEM=4\r\n");
  StartPanelControls& c = panel->Controls;
  EXPECT_FALSE(c.Command14.Enabled);
  EXPECT_FALSE(c.AprsIsPanel.Visible);
  for (OptionButton* option : {&c.Option1, &c.Option2, &c.Option11, &c.Option13}) {
    option->Click();
    EXPECT_TRUE(c.Command14.Enabled) << option->Caption;
  }
  for (OptionButton* option : {&c.Option9, &c.Option10}) {
    option->Click();
    EXPECT_FALSE(c.Command14.Enabled) << option->Caption;
  }
}

TEST_F(AprsIsSetupTest, ItsOkTakesTheServerAndBringsStartBack) {
  const auto panel = PanelOf("AISRV=igate.example\r\nAIPRT=14580\r\n");
  StartPanelControls& c = panel->Controls;
  c.Command14.Click();
  EXPECT_TRUE(c.AprsIsPanel.Visible);
  EXPECT_FALSE(c.Command1.Enabled);
  EXPECT_TRUE(c.AprsIsServerField.FocusWanted);
  EXPECT_EQ(c.AprsIsServerField.Text, "igate.example");
  EXPECT_EQ(c.AprsIsPortField.Text, "14580");
  EXPECT_TRUE(c.AprsIsWords.Caption.starts_with("If you use a radio interface at this computer"));
  EXPECT_TRUE(c.AprsIsWords.Caption.ends_with("passcode will be generated automatically."));
  c.AprsIsServerField.Text = "  rotate.example ";
  c.AprsIsPortField.Text = " 10152 ";
  c.Command15.Click();
  EXPECT_FALSE(c.AprsIsPanel.Visible);
  EXPECT_TRUE(c.Command1.Enabled);
  EXPECT_TRUE(Has("AISRV=rotate.example")) << Ini();
  EXPECT_TRUE(Has("AIPRT=10152"));
  // What else stands in fields waits for START.
  c.Text8.Text = "QX9ZZ";
  c.Command14.Click();
  c.Command15.Click();
  EXPECT_TRUE(Has("USER=QX7KB"));
  c.Command1.Click();
  EXPECT_TRUE(Has("USER=QX9ZZ"));
  EXPECT_TRUE(Has("AISRV=rotate.example"));
}

TEST_F(AprsIsSetupTest, StartTrimsWhatTheFileHeld) {
  const auto panel = PanelOf("AISRV= igate.example \r\nAIPRT= 14580 \r\n");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("AISRV=igate.example"));
  EXPECT_TRUE(Has("AIPRT=14580"));
}

TEST_F(AprsIsSetupTest, AFileThatCannotBeWrittenIsTold) {
  const auto panel = PanelOf("");
  files.MakeFolder("C:\\Z\\ZEPRIL.INI.new~");
  panel->Controls.Command14.Click();
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\ZEPRIL.INI");
  panel->Controls.Command15.Click();
  EXPECT_TRUE(panel->Controls.Command1.Enabled);
}

}  // namespace
}  // namespace zepril
