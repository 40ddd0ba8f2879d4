// The list of the port field: devices that are there, and the one that is kept.
#include "station/start/device_list.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using DeviceListTest = StartPanelWorld;

TEST_F(DeviceListTest, TheListOffersTheDevicesThatAreThereNow) {
  const auto panel = PanelOf("MODEM=5\r\n");
  EXPECT_EQ(panel->Controls.Text3.Items, (Lines{"/dev/ttyUSB0   FTDI FT232R", "/dev/ttyS0"}));
  devices.clear();
  panel->ReadDevices();
  EXPECT_TRUE(panel->Controls.Text3.Items.empty());
  EXPECT_EQ(panel->Controls.PortFault.Caption, "");
  panel->DeviceListOpens();
  EXPECT_EQ(panel->Controls.PortFault.Caption, "no serial device is there");
  devices = {{"/dev/ttyACM0", "Modem", ""}};
  panel->DeviceListOpens();
  EXPECT_EQ(panel->Controls.Text3.Items, Lines{"/dev/ttyACM0   Modem"});
  panel->Controls.Option9.Click();
  EXPECT_TRUE(panel->Controls.Text3.Items.empty());  // hosts are not listed
}

TEST_F(DeviceListTest, TheListPointsAtTheKeptDevice) {
  files.MakeFolder("C:\\Z");
  files.Write("C:\\Z\\PORTS.TXT", "COM4=/dev/serial/by-id/usb-FTDI_A1-if00\r\n");
  const auto panel = PanelOf("MODEM=1\r\nCOM=4\r\nTBAUD=9600\r\n");
  EXPECT_EQ(panel->Controls.Text3.Text, "/dev/serial/by-id/usb-FTDI_A1-if00");
  EXPECT_EQ(panel->Controls.Text3.ListIndex, 0);
  // While the modem is set up the device goes by its own name.
  std::string told;
  OnWait = [&] { told = panel->Controls.SetupText.Caption; };
  panel->Controls.Command1.Click();
  EXPECT_TRUE(told.ends_with(" s left   modem on usb-FTDI_A1-if00, 9600 Bd")) << told;
}

}  // namespace
}  // namespace zepril
