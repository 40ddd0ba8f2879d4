// Sunspots and K on the start panel: shown, locked, and taken at START.
#include "station/start/iono_fields.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using IonoFieldsTest = StartPanelWorld;

TEST_F(IonoFieldsTest, TheSettingsDecideWhatIsShownAndWhetherItIsLocked) {
  const struct {
    const char* Settings;
    int Box;
  } rows[] = {{"IONA=0\r\n", 0}, {"IONA=1\r\n", 1}, {"IONA=8\r\n", 1}, {"", 1}};
  for (const auto& row : rows) {
    const auto panel = PanelOf(std::string("SSPT=101.5\r\nKIND=.3\r\n") + row.Settings);
    const StartPanelControls& c = panel->Controls;
    EXPECT_EQ(c.Text15.Text, "101.5");
    EXPECT_EQ(c.Text16.Text, ".3");
    EXPECT_EQ(c.Check8.Value, row.Box) << row.Settings;
    EXPECT_EQ(c.Text15.Enabled, row.Box == 0) << row.Settings;
    EXPECT_EQ(c.Text16.Enabled, row.Box == 0) << row.Settings;
  }
}

TEST_F(IonoFieldsTest, TheBoxLocksAndOpensTheFields) {
  const auto panel = PanelOf("IONA=1\r\n");
  StartPanelControls& c = panel->Controls;
  c.Check8.Value = 0;
  c.Check8.Click();
  EXPECT_TRUE(c.Text15.Enabled && c.Text16.Enabled);
  c.Check8.Value = 1;
  c.Check8.Click();
  EXPECT_FALSE(c.Text15.Enabled || c.Text16.Enabled);
}

TEST_F(IonoFieldsTest, WhatCantBeIsMarkedWhileItIsTypedAndStartGoesOn) {
  const auto panel = PanelOf("IONA=0\r\nSSPT=40\r\nKIND=2\r\nMODEM=4\r\n");
  StartPanelControls& c = panel->Controls;
  const auto type = [](TextBox& field, const char* text) {
    field.Text = text;
    field.Change();
  };
  EXPECT_EQ(c.IonoFault.Caption, "");
  for (const char* k : {"9.1", "-1", "x", ""}) {
    type(c.Text16, k);
    EXPECT_EQ(c.IonoFault.Caption, "K: a number from 0 to 9") << k;
  }
  for (const char* k : {"9", "0", " 3.5 "}) {
    type(c.Text16, k);
    EXPECT_EQ(c.IonoFault.Caption, "") << k;
  }
  for (const char* sunspots : {"401", "-1", "many", ""}) {
    type(c.Text15, sunspots);
    EXPECT_EQ(c.IonoFault.Caption, "SUNSPOT(R): a number from 0 to 400") << sunspots;
  }
  type(c.Text15, "500");
  // What comes from the internet is nobody's fault.
  c.Check8.Value = 1;
  c.Check8.Click();
  EXPECT_EQ(c.IonoFault.Caption, "");
  c.Check8.Value = 0;
  c.Check8.Click();
  EXPECT_EQ(c.IonoFault.Caption, "SUNSPOT(R): a number from 0 to 400");
  c.Command1.Click();
  EXPECT_EQ(starts, 1);
  EXPECT_TRUE(Has("SSPT=500")) << Ini();
}

TEST_F(IonoFieldsTest, TheBoxSaysWhatItDoes) {
  EXPECT_EQ(PanelOf("")->Controls.Check8.ToolTip,
            "Fetch ionospherical data automatically via internet");
}

TEST_F(IonoFieldsTest, StartTakesNumbersAndBox) {
  const auto panel = PanelOf("IONA=1\r\nSSPT=40\r\nKIND=2\r\nMODEM=4\r\n");
  StartPanelControls& c = panel->Controls;
  c.Check8.Value = 0;
  c.Check8.Click();
  c.Text15.Text = " 120.5 spots";
  c.Text16.Text = "3.7";
  c.Command1.Click();
  EXPECT_TRUE(Has("SSPT=120.5")) << Ini();
  EXPECT_TRUE(Has("KIND=3.7")) << Ini();
  EXPECT_TRUE(Has("IONA=0")) << Ini();
}

TEST_F(IonoFieldsTest, WhateverSwitchesTheUpdateOnIsKeptAsOne) {
  const auto panel = PanelOf("IONA=8\r\nMODEM=4\r\n");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("IONA=1")) << Ini();
}

TEST_F(IonoFieldsTest, AnEmptyFieldIsZeroAndAnOverflowNothing) {
  const auto panel = PanelOf("IONA=0\r\nSSPT=40\r\nKIND=2\r\nMODEM=4\r\n");
  panel->Controls.Text15.Text = "1e400";
  panel->Controls.Text16.Text = "";
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("SSPT=40")) << Ini();
  EXPECT_TRUE(Has("KIND=0")) << Ini();
}

}  // namespace
}  // namespace zepril
