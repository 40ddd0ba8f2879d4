// The fields of the GPS: what they show, what START takes of them, and a port that the modem has.
#include "station/start/gps_fields.h"

#include <gtest/gtest.h>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

class GpsFieldsTest : public StartPanelWorld {
 protected:
  static void TypeGps(StartPanel& panel, const std::string& source) {
    panel.Controls.Text6.Text = source;
    panel.Controls.Text6.Change();
  }
  void ExpectConflict() { dialogs.Expect("ZEP RIL  SETUP", "NMEA PORT / COMM PORT  CONFLICT !"); }
  std::string WindowFile() {
    return files.ReadAll("C:\\Z\\WINDOW.TXT", 1 << 20).value_or("(none)");
  }
};

TEST_F(GpsFieldsTest, ShowWhatTheSettingsHold) {
  const auto panel = PanelOf("NMEA=3 SAVE\r\nNBAUD=9600\r\n");
  EXPECT_EQ(panel->Controls.Text6.Text, "3 SAVE");
  EXPECT_EQ(panel->Controls.Text17.Text, "9600");
  EXPECT_EQ(panel->Controls.SetClockBox.Value, 0);
  EXPECT_EQ(panel->Controls.Text6.ToolTip,
            "NMEA183-source (COM port number of GPS receiver or filename)");
  EXPECT_EQ(PanelOf("LANG=1\r\n")->Controls.Text6.ToolTip, "");
}

TEST_F(GpsFieldsTest, ANumberOrAFileIsTakenAsItIsTyped) {
  for (const char* source : {"7", "7 SAVE", "COM7", "C:\\GPS.TXT", "0"}) {
    const auto panel = PanelOf("MODEM=4\r\n");
    TypeGps(*panel, std::string(" ") + source + " ");
    panel->Controls.Command1.Click();
    EXPECT_TRUE(Has("NMEA=" + std::string(source))) << source;
    EXPECT_EQ(Ports(), "(none)");
    // Untouched the next time it stays.
    const auto next = MakePanel();
    EXPECT_EQ(next->Controls.Text6.Text, source);
    next->Controls.Command1.Click();
    EXPECT_TRUE(Has("NMEA=" + std::string(source))) << source;
  }
}

TEST_F(GpsFieldsTest, AnEmptyFieldLeavesThePortAndZeroSwitchesItOff) {
  const auto panel = PanelOf("MODEM=4\r\nNMEA=5\r\n");
  TypeGps(*panel, "  ");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=5"));
  const auto next = MakePanel();
  TypeGps(*next, "0");
  next->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=0"));
}

TEST_F(GpsFieldsTest, ASpeedThatIsNoNumberFallsBack) {
  for (const auto& [typed, stored] : {std::pair{"9600", "9600"}, std::pair{"", "4800"},
                                      std::pair{"fast", "4800"}, std::pair{"0", "4800"}}) {
    const auto panel = PanelOf("MODEM=4\r\nNBAUD=38400\r\n");
    panel->Controls.Text17.Text = typed;
    panel->Controls.Text17.Change();
    panel->Controls.Command1.Click();
    EXPECT_TRUE(Has("NBAUD=" + std::string(stored))) << typed;
  }
}

TEST_F(GpsFieldsTest, WhatCantBeIsMarkedWhileItIsTyped) {
  const auto panel = PanelOf("MODEM=4\r\n");
  TypeGps(*panel, "300");
  EXPECT_EQ(panel->Controls.GpsFault.Caption, "port numbers go from 1 to 256");
  TypeGps(*panel, "0");
  EXPECT_EQ(panel->Controls.GpsFault.Caption, "");
  panel->Controls.Text17.Text = "x";
  panel->Controls.Text17.Change();
  EXPECT_EQ(panel->Controls.GpsFault.Caption, "the speed is a number, such as 9600");
  panel->Controls.Text17.Text = "9600";
  panel->Controls.Text17.Change();
  EXPECT_EQ(panel->Controls.GpsFault.Caption, "");
}

TEST_F(GpsFieldsTest, ASourceThatCanBeNoneIsMarked) {
  const std::string fault = "neither a port nor a file (4 characters or more, without SAVE)";
  const auto panel = PanelOf("MODEM=4\r\nNMEA=ABC\r\n");
  EXPECT_EQ(panel->Controls.GpsFault.Caption, fault);
  for (const char* good : {"3", "3 SAVE", "COM3 SAVE", "ttyUSB0", "ttyUSB0 SAVE", "/dev/ttyACM0",
                           "/dev/ttyACM0 SAVE", "C:\\GPS.TXT", "0"}) {
    TypeGps(*panel, good);
    EXPECT_EQ(panel->Controls.GpsFault.Caption, "") << good;
  }
  for (const char* bad : {"AB", "-3", "C:\\GPS.TXT SAVE", "C:\\SAVED\\GPS.TXT"}) {
    TypeGps(*panel, bad);
    EXPECT_EQ(panel->Controls.GpsFault.Caption, fault) << bad;
  }
  // It is no reason not to start.
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(GpsFieldsTest, TheListOffersTheDevicesThatAreThere) {
  const auto panel = PanelOf("MODEM=4\r\n");
  EXPECT_EQ(panel->Controls.Text6.Items, (Lines{"/dev/ttyUSB0   FTDI FT232R", "/dev/ttyS0"}));
  devices.clear();
  panel->GpsDeviceListOpens();
  EXPECT_TRUE(panel->Controls.Text6.Items.empty());
  EXPECT_EQ(panel->Controls.GpsFault.Caption, "no serial device is there");
}

TEST_F(GpsFieldsTest, AChosenDeviceIsKeptByItsLastingNameUnderANumberOfItsOwn) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=3\r\nCOM=4\r\n");
  TypeGps(*panel, "/dev/ttyUSB0   FTDI FT232R");
  EXPECT_EQ(panel->Controls.Text6.Text, "/dev/ttyUSB0");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=5"));
  EXPECT_EQ(Ports(), "COM5=/dev/serial/by-id/usb-FTDI_A1-if00\r\n");
  // Shown again by its name, and left as it is.
  const auto next = MakePanel();
  EXPECT_EQ(next->Controls.Text6.Text, "/dev/serial/by-id/usb-FTDI_A1-if00");
  EXPECT_EQ(next->Controls.Text6.ListIndex, 0);
  next->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=5"));
  // Another one takes its number; the word behind it stays.
  const auto third = MakePanel();
  TypeGps(*third, "ttyS0 SAVE");
  third->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=5 SAVE"));
  EXPECT_EQ(Ports(), "COM5=/dev/ttyS0\r\n");
  EXPECT_EQ(MakePanel()->Controls.Text6.Text, "/dev/ttyS0 SAVE");
}

TEST_F(GpsFieldsTest, APortWithTheWordBehindItIsKeptAsItsNumberAndTheWord) {
  for (const auto& [typed, stored] :
       {std::pair{"COM5 SAVE", "5 SAVE"}, std::pair{"com 5save", "5save"},
        std::pair{"12 SAVE", "12 SAVE"}, std::pair{"COM99999 SAVE", "COM99999 SAVE"}}) {
    const auto panel = PanelOf("MODEM=4\r\n");
    TypeGps(*panel, typed);
    panel->Controls.Command1.Click();
    EXPECT_TRUE(Has("NMEA=" + std::string(stored))) << typed;
    EXPECT_EQ(MakePanel()->Controls.Text6.Text, stored);
  }
  EXPECT_EQ(Ports(), "(none)");
  const auto panel = PanelOf("MODEM=4\r\n");
  TypeGps(*panel, "ttyUSB0 SAVE");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=4 SAVE"));
  EXPECT_EQ(Ports(), "COM4=/dev/serial/by-id/usb-FTDI_A1-if00\r\n");
  // One that is not plugged in.
  const auto next = MakePanel();
  TypeGps(*next, "ttyACM3 SAVE");
  next->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=4 SAVE"));
  EXPECT_EQ(Ports(), "COM4=/dev/ttyACM3\r\n");
}

TEST_F(GpsFieldsTest, TheModemsNumberIsNeverTakenForTheGps) {
  const auto panel = PanelOf("MODEM=4\r\nSCOMP=4\r\nCOM=5\r\nNMEA=4\r\n");
  files.Write("C:\\Z\\PORTS.TXT", "COM4=/dev/ttyUSB9\r\nCOM6=/dev/ttyUSB8\r\n");
  TypeGps(*panel, "ttyS0");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("NMEA=7"));
  EXPECT_EQ(Ports(), "COM4=/dev/ttyUSB9\r\nCOM6=/dev/ttyUSB8\r\nCOM7=/dev/ttyS0\r\n");
}

// ---- One port for two -------------------------------------------------------------------------

TEST_F(GpsFieldsTest, StartRefusesThePortOfTheModem) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=3\r\nDIST=7\r\n");
  const std::string before = Ini();
  TypeGps(*panel, "3 SAVE");
  panel->Controls.Text5.Text = "QX1AB";
  panel->Controls.SetClockBox.Value = 1;
  ExpectConflict();
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_EQ(Ini(), before);
  EXPECT_EQ(Ports(), "(none)");
  EXPECT_EQ(WindowFile(), "(none)");
  EXPECT_TRUE(modem.Notes.empty());
  EXPECT_EQ(panel->Controls.Command1.Caption, "START");
  EXPECT_TRUE(panel->Controls.Text6.Enabled);
  EXPECT_EQ(panel->Controls.Text6.Text, "3 SAVE");
  EXPECT_FALSE(panel->Starting());
  // Mended, it starts.
  TypeGps(*panel, "4");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(GpsFieldsTest, AnotherModemsNumberIsNone) {
  const auto panel = PanelOf("MODEM=1\r\nCOM=2\r\nSCOMP=3\r\nNMEA=3\r\n");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(GpsFieldsTest, EveryModemIsAskedForItsOwnPort) {
  for (const char* settings : {"MODEM=1\r\nCOM=3\r\nSCOMP=9\r\n", "MODEM=5\r\nSCOMP=3\r\nCOM=9\r\n",
                               "MODEM=6\r\nSCOMP=3\r\nCOM=9\r\n"}) {
    const auto panel = PanelOf(std::string(settings) + "NMEA=3\r\n");
    ExpectConflict();
    panel->Controls.Command1.Click();
    EXPECT_EQ(starts, 0) << settings;
  }
  for (const char* settings : {"MODEM=0\r\n", "MODEM=3\r\nHOSTC=x\r\n", "MODEM=4\r\n"}) {
    starts = 0;
    const auto panel = PanelOf(std::string(settings) + "COM=3\r\nSCOMP=3\r\nNMEA=3\r\n");
    panel->Controls.Command1.Click();
    EXPECT_EQ(starts, 1) << settings;
  }
}

TEST_F(GpsFieldsTest, AFileCountsAsPortZero) {
  const auto panel = PanelOf("MODEM=1\r\nCOM=0\r\nNMEA=C:\\GPS.TXT\r\n");
  ExpectConflict();
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  const auto other = PanelOf("MODEM=1\r\nCOM=2\r\nNMEA=C:\\GPS.TXT\r\n");
  other->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(GpsFieldsTest, OneDeviceUnderTwoNumbersIsOnePortToo) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=3\r\n");
  Type(*panel, "/dev/ttyUSB0");
  TypeGps(*panel, "/dev/serial/by-id/usb-FTDI_A1-if00");
  ExpectConflict();
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_EQ(Ports(), "(none)");
  // The first device of the list, by its place.
  TypeGps(*panel, "1");
  ExpectConflict();
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  TypeGps(*panel, "2");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
  EXPECT_EQ(Ports(), "COM3=/dev/serial/by-id/usb-FTDI_A1-if00\r\n");
}

// ---- Clock ------------------------------------------------------------------------------------

TEST_F(GpsFieldsTest, TheClockIsSetOnlyByWishAndTheWishIsKept) {
  files.MakeFolder("C:\\Z");
  files.Write("C:\\Z\\WINDOW.TXT", "GRID=1\r\n");
  const auto panel = PanelOf("MODEM=4\r\n");
  panel->Controls.Command1.Click();
  EXPECT_EQ(WindowFile(), "GRID=1\r\n");
  const auto next = MakePanel();
  next->Controls.SetClockBox.Value = 1;
  next->Controls.Command1.Click();
  EXPECT_EQ(WindowFile(), "GRID=1\r\nSETCLOCK=1\r\n");
  const auto third = MakePanel();
  EXPECT_EQ(third->Controls.SetClockBox.Value, 1);
  third->Controls.SetClockBox.Value = 0;
  third->Controls.Command1.Click();
  EXPECT_EQ(WindowFile(), "GRID=1\r\nSETCLOCK=0\r\n");
}

TEST_F(GpsFieldsTest, AWishThatCantBeKeptIsSaid) {
  const auto panel = PanelOf("MODEM=4\r\n");
  files.MakeFolder("C:\\Z\\WINDOW.TXT.new~");
  panel->Controls.SetClockBox.Value = 1;
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\WINDOW.TXT");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
}

}  // namespace
}  // namespace zepril
