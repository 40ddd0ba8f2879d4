// Devices and numbers of the port field, and the file that keeps them.
#include "station/start/port_choice.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using PortChoiceTest = StartPanelWorld;

TEST_F(PortChoiceTest, AChosenDeviceIsKeptUnderItsStableNameForTheHeldNumber) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=7\r\n");
  files.Write("C:\\Z\\PORTS.TXT", "; mine\r\nCOM2=/dev/ttyS5\r\n");
  panel->Controls.Text3.Select(0);
  panel->Controls.Text3.Change();
  EXPECT_EQ(panel->Controls.Text3.Text, "/dev/ttyUSB0");
  panel->Controls.Command1.Click();
  EXPECT_EQ(Ports(), "; mine\r\nCOM2=/dev/ttyS5\r\nCOM7=/dev/serial/by-id/usb-FTDI_A1-if00\r\n");
  EXPECT_TRUE(Has("SCOMP=7"));
  EXPECT_EQ(modem.Notes.front(), "open 7 38400");
}

TEST_F(PortChoiceTest, ATypedDeviceIsKeptAsAPath) {
  const struct {
    const char* Typed;
    const char* Kept;
  } rows[] = {{"ttyUSB0", "COM4=/dev/serial/by-id/usb-FTDI_A1-if00\r\n"},
              {" ttyS0 ", "COM4=/dev/ttyS0\r\n"},
              {"ttyUSB7", "COM4=/dev/ttyUSB7\r\n"},
              {"/dev/serial/by-id/usb-x", "COM4=/dev/serial/by-id/usb-x\r\n"}};
  for (const auto& row : rows) {
    const auto panel = PanelOf("MODEM=1\r\nCOM=4\r\n");
    Type(*panel, row.Typed);
    panel->Controls.Command1.Click();
    EXPECT_EQ(Ports(), row.Kept) << row.Typed;
    EXPECT_TRUE(Has("COM=4"));
    files.Remove("C:\\Z\\PORTS.TXT");
  }
}

TEST_F(PortChoiceTest, ADeviceNeedsANumberThatItCanBeKeptUnder) {
  for (const char* odd : {"0", "-3", "300", "2.5"}) {
    const auto panel = PanelOf(std::string("MODEM=6\r\nSCOMP=") + odd + "\r\n");
    Type(*panel, "ttyS0");
    panel->Controls.Command1.Click();
    EXPECT_TRUE(Has("SCOMP=3")) << odd;
    EXPECT_EQ(Ports(), "COM3=/dev/ttyS0\r\n");
  }
  files.Remove("C:\\Z\\PORTS.TXT");
  const auto panel = PanelOf("MODEM=1\r\nCOM=0\r\n");
  Type(*panel, "ttyS0");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("COM=2"));
  EXPECT_EQ(Ports(), "COM2=/dev/ttyS0\r\n");
}

TEST_F(PortChoiceTest, TheKeptDeviceIsShownInPlaceOfItsNumber) {
  files.MakeFolder("C:\\Z");
  files.Write("C:\\Z\\PORTS.TXT", "COM4=/dev/ttyUSB9\r\n");
  auto panel = PanelOf("MODEM=1\r\nCOM=4\r\nSCOMP=5\r\n");
  EXPECT_EQ(panel->Controls.Text3.Text, "/dev/ttyUSB9");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("COM=4"));
  EXPECT_EQ(Ports(), "COM4=/dev/ttyUSB9\r\n");
  // A number typed is taken as number; the line stays.
  panel = PanelOf("MODEM=1\r\nCOM=4\r\nSCOMP=5\r\n");
  Type(*panel, "com 6");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("COM=6"));
  EXPECT_EQ(Ports(), "COM4=/dev/ttyUSB9\r\n");
}

}  // namespace
}  // namespace zepril
