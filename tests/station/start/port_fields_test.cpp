// The port fields by radio interface, and what is marked in them.
#include "station/start/port_fields.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using PortFieldsTest = StartPanelWorld;

TEST_F(PortFieldsTest, EveryInterfaceOfTheFileIsShownWithItsFields) {
  struct Row {
    const char* Modem;
    OptionButton StartPanelControls::*Option;
    const char* PortLabel;
    const char* Port;
    const char* Speed;
  };
  const Row rows[] = {{"1", &StartPanelControls::Option1, "COMM PORT", "4", "2400"},
                      {"3", &StartPanelControls::Option9, "HOST NAME", "radio", "8123"},
                      {"5", &StartPanelControls::Option11, "COMM PORT", "6", "57600"},
                      {"6", &StartPanelControls::Option13, "COMM PORT", "6", "57600"}};
  for (const Row& row : rows) {
    const auto panel = PanelOf(std::string("MODEM=") + row.Modem +
                               "\r\nCOM=4\r\nTBAUD=2400\r\nSCOMP=6\r\nSBAUD=57600\r\n"
                               "HOSTC=radio\r\nHOSTP=8123\r\n");
    const StartPanelControls& c = panel->Controls;
    EXPECT_TRUE((c.*row.Option).Value) << row.Modem;
    EXPECT_TRUE(c.Text3.Visible && c.Text4.Visible) << row.Modem;
    EXPECT_EQ(c.PortLabel.Caption, row.PortLabel);
    EXPECT_EQ(c.SpeedLabel.Caption,
              std::string(row.PortLabel) == "HOST NAME" ? "HOST PORT" : "COMM BAUD");
    EXPECT_EQ(c.Text3.Text, row.Port);
    EXPECT_EQ(c.Text4.Text, row.Speed);
  }
}

TEST_F(PortFieldsTest, InterfacesWithoutAPortHideItsFields) {
  for (const char* modem_line : {"MODEM=0\r\n", "MODEM=4\r\n", "MODEM=2\r\n", ""}) {
    const auto panel = PanelOf(modem_line);
    EXPECT_FALSE(panel->Controls.Text3.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.Text4.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.PortLabel.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.SpeedLabel.Visible) << modem_line;
  }
}

TEST_F(PortFieldsTest, WhatWasTypedForAnInterfaceIsThereAgain) {
  const auto panel = PanelOf("MODEM=1\r\nCOM=4\r\nSCOMP=6\r\n");
  StartPanelControls& c = panel->Controls;
  Type(*panel, "5");
  c.Text4.Text = "4800";
  c.Option9.Click();
  EXPECT_EQ(c.Text3.Text, "QX7KB0");
  c.Text3.Text = "radio.local";
  c.Option10.Click();
  c.Option11.Click();
  EXPECT_EQ(c.Text3.Text, "6");
  Type(*panel, "7");
  c.Option13.Click();
  EXPECT_EQ(c.Text3.Text, "7");  // both SCS modems have the same fields
  c.Option1.Click();
  EXPECT_EQ(c.Text3.Text, "5");
  EXPECT_EQ(c.Text4.Text, "4800");
  c.Command1.Click();
  // Only what belongs to the interface is taken.
  EXPECT_TRUE(Has("MODEM=1"));
  EXPECT_TRUE(Has("COM=5"));
  EXPECT_TRUE(Has("TBAUD=4800"));
  EXPECT_TRUE(Has("SCOMP=6"));
  EXPECT_TRUE(Has("HOSTC=QX7KB0"));
}

TEST_F(PortFieldsTest, WhatCanBeNoPortIsMarkedWhileItIsTyped) {
  const auto panel = PanelOf("MODEM=1\r\n");
  StartPanelControls& c = panel->Controls;
  for (const char* wrong : {"0", "COM257", "99999999999"}) {
    Type(*panel, wrong);
    EXPECT_EQ(c.PortFault.Caption, "port numbers go from 1 to 256") << wrong;
  }
  for (const char* right : {"1", "COM256", "ttyUSB0", ""}) {
    Type(*panel, right);
    EXPECT_EQ(c.PortFault.Caption, "") << right;
  }
  c.Text4.Text = "fast";
  c.Text4.Change();
  EXPECT_EQ(c.PortFault.Caption, "the speed is a number, such as 9600");
  c.Text4.Text = "9600";
  c.Text4.Change();
  EXPECT_EQ(c.PortFault.Caption, "");
  c.Option9.Click();
  c.Text4.Text = "agw";
  c.Text4.Change();
  EXPECT_EQ(c.PortFault.Caption, "the port is a number");
}

}  // namespace
}  // namespace zepril
