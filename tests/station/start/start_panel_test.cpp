// The start panel: fields by radio interface, START, devices, a modem's set-up.
#include "station/start/start_panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

// A modem's port that writes down what is done with it, between the waits of a clock.
class NotedPort final : public SerialPort {
 public:
  bool Open(const std::string& device, int baud) override {
    Notes.push_back("open " + device + " " + WholeNumber(baud));
    open_ = !Absent;
    return open_;
  }
  void Close() override {
    Notes.emplace_back("close");
    open_ = false;
  }
  bool IsOpen() const override { return open_; }
  void Write(std::string_view bytes) override { Notes.emplace_back(bytes); }
  void ForgetDevice() override { ++Forgotten; }
  std::string LastingName(const std::string& device) const override { return "usb-" + device; }
  std::string ReadAll() override { return {}; }
  std::size_t BytesToWrite() const override { return 0; }
  std::string Trouble() const override { return Absent ? "no such port" : ""; }

  bool Absent = false;
  int Forgotten = 0;
  Lines Notes;

 private:
  bool open_ = false;
};

class StartPanelTest : public ::testing::Test {
 protected:
  StartPanelTest() {
    clock.OnWait = [this](double seconds, bool pumping) {
      EXPECT_FALSE(pumping);
      waited += seconds;
      if (OnWait) OnWait();
    };
  }
  std::unique_ptr<StartPanel> MakePanel() {
    auto panel = std::make_unique<StartPanel>(
        StartPanelPlatform{files, clock, dialogs, modem, [this] { return devices; }}, "C:\\Z", "");
    panel->Started = [this] { ++starts; };
    return panel;
  }
  // A panel of a file with these lines.
  std::unique_ptr<StartPanel> PanelOf(const std::string& settings) {
    files.MakeFolder("C:\\Z");
    files.Write("C:\\Z\\ZEPRIL.INI", "USER=QX7KB\r\nTEMP=C:\\T\r\n" + settings);
    return MakePanel();
  }
  std::string Ports() { return files.ReadAll("C:\\Z\\PORTS.TXT", 1 << 20).value_or("(none)"); }
  static void Type(StartPanel& panel, const std::string& port) {
    panel.Controls.Text3.Text = port;
    panel.Controls.Text3.Change();
  }
  int CountOf(const std::string& note) const {
    return static_cast<int>(std::count(modem.Notes.begin(), modem.Notes.end(), note));
  }
  // What was written, without openings and closings.
  Lines Sent() const {
    Lines sent;
    for (const std::string& note : modem.Notes) {
      if (!note.starts_with("open ") && note != "close") sent.push_back(note);
    }
    return sent;
  }
  std::string Ini() { return files.ReadAll("C:\\Z\\ZEPRIL.INI", 1 << 20).value_or("(missing)"); }
  bool Has(const std::string& line) { return Ini().find(line + "\r\n") != std::string::npos; }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  ScriptedDialogs dialogs;
  VirtualClock clock;
  NotedPort modem;
  std::vector<SerialDevice> devices{
      {"/dev/ttyUSB0", "FTDI FT232R", "/dev/serial/by-id/usb-FTDI_A1-if00"},
      {"/dev/ttyS0", "", ""}};
  int starts = 0;
  double waited = 0.0;  // seconds
  std::function<void()> OnWait;
};

TEST_F(StartPanelTest, StartNeedsACallOfThreeCharacters) {
  const auto held = MakePanel();
  StartPanel& panel = *held;
  panel.Controls.Text8.Text = " QX ";
  dialogs.Expect("ZEP RIL  START", "SET USER CALL !");
  panel.Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_FALSE(panel.Controls.Fault.Caption.empty());
  EXPECT_TRUE(panel.Controls.Text8.FocusWanted);
  panel.Controls.Text8.Text = "qx7kb";
  panel.Controls.Text8.Change();
  EXPECT_TRUE(panel.Controls.Fault.Caption.empty());
  panel.Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
  EXPECT_TRUE(Has("USER=QX7KB"));
  EXPECT_EQ(panel.Controls.Command1.Caption, "...");
}

TEST_F(StartPanelTest, ASecondPressIsIgnored) {
  const auto held = MakePanel();
  StartPanel& panel = *held;
  panel.Controls.Text8.Text = "QX7KB";
  panel.Controls.Command1.Click();
  panel.Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(StartPanelTest, TheInterfaceDecidesWhichFieldsAreTaken) {
  const auto held = MakePanel();
  StartPanel& panel = *held;
  EXPECT_TRUE(panel.Controls.Option2.Value);
  EXPECT_FALSE(panel.Controls.Text3.Visible);
  panel.Controls.Option9.Click();
  EXPECT_TRUE(panel.Controls.Text3.Visible);
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
  const auto held = MakePanel();
  StartPanel& panel = *held;
  panel.Controls.Text8.Text = "QX7KB";
  panel.Controls.Text1.Text = "c:\\zepril\\u08\\";
  panel.Controls.Command1.Click();
  EXPECT_TRUE(Has("UMAPS=C:\\ZEPRIL\\U08"));
  EXPECT_TRUE(Has("MSYS=U08"));
}

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

TEST_F(StartPanelTest, AFileThatCantBeWrittenIsSaidAndNothingIsLost) {
  const auto held = MakePanel();
  StartPanel& panel = *held;
  files.MakeFolder("C:\\Z\\ZEPRIL.INI.new~");
  panel.Controls.Text8.Text = "QX7KB";
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\ZEPRIL.INI");
  panel.Controls.Command1.Click();
  EXPECT_EQ(panel.Controls.Command1.Caption, "START");
  EXPECT_EQ(panel.Controls.Text8.Text, "QX7KB");
}

// ---- The radio interface --------------------------------------------------------------------

TEST_F(StartPanelTest, EveryInterfaceOfTheFileIsShownWithItsFields) {
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

TEST_F(StartPanelTest, InterfacesWithoutAPortHideItsFields) {
  for (const char* modem_line : {"MODEM=0\r\n", "MODEM=4\r\n", "MODEM=2\r\n", ""}) {
    const auto panel = PanelOf(modem_line);
    EXPECT_FALSE(panel->Controls.Text3.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.Text4.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.PortLabel.Visible) << modem_line;
    EXPECT_FALSE(panel->Controls.SpeedLabel.Visible) << modem_line;
  }
}

TEST_F(StartPanelTest, WhatWasTypedForAnInterfaceIsThereAgain) {
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

TEST_F(StartPanelTest, AnEmptyFieldLeavesTheHeldPort) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=6\r\nSBAUD=57600\r\n");
  Type(*panel, "  ");
  panel->Controls.Text4.Text = "";
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("SCOMP=6"));
  EXPECT_TRUE(Has("SBAUD=57600"));
  EXPECT_EQ(Ports(), "(none)");
}

TEST_F(StartPanelTest, AnOddPortOfTheFileStaysUntouched) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=3.5\r\n");
  EXPECT_EQ(panel->Controls.Text3.Text, "3.5");
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Has("SCOMP=3.5"));
  EXPECT_EQ(Ports(), "(none)");
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

// ---- Ports for people -----------------------------------------------------------------------

TEST_F(StartPanelTest, TheListOffersTheDevicesThatAreThereNow) {
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

TEST_F(StartPanelTest, AChosenDeviceIsKeptUnderItsStableNameForTheHeldNumber) {
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

TEST_F(StartPanelTest, ATypedDeviceIsKeptAsAPath) {
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

TEST_F(StartPanelTest, ADeviceNeedsANumberThatItCanBeKeptUnder) {
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

TEST_F(StartPanelTest, TheKeptDeviceIsShownInPlaceOfItsNumber) {
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

TEST_F(StartPanelTest, TheListPointsAtTheKeptDevice) {
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

TEST_F(StartPanelTest, WhatCanBeNoPortIsMarkedWhileItIsTyped) {
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

TEST_F(StartPanelTest, APortFileThatCantBeWrittenIsSaidAndNothingIsStored) {
  const auto panel = PanelOf("MODEM=1\r\nCOM=4\r\n");
  files.MakeFolder("C:\\Z\\PORTS.TXT.new~");
  Type(*panel, "ttyS0");
  dialogs.Expect("ZEP RIL  START", "CAN'T WRITE  C:\\Z\\PORTS.TXT");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_FALSE(panel->Starting());
  EXPECT_TRUE(panel->Controls.Text3.Enabled);
  EXPECT_TRUE(Has("TEMP=C:\\T"));
  EXPECT_FALSE(Has("COM=4") && Has("LANG=11"));
  EXPECT_TRUE(modem.Notes.empty());
  // The same choice once more, when it can be.
  std::filesystem::remove(files.NativePath("C:\\Z\\PORTS.TXT.new~"));
  panel->Controls.Command1.Click();
  EXPECT_EQ(Ports(), "COM4=/dev/ttyS0\r\n");
  EXPECT_EQ(starts, 1);
}

// ---- The modem's set-up ---------------------------------------------------------------------

TEST_F(StartPanelTest, ThePk232IsSetUpFromTheFile) {
  const auto panel = PanelOf(
      "MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\nHBAUD=1200\r\nTXID=10\r\nTXTO=ZEPR\r\n"
      "TXPA=WIDE1-1\r\nDIGI=1\r\n");
  panel->Controls.Command1.Click();
  const Lines sent = Sent();
  ASSERT_EQ(sent.size(), 63U);
  const Lines parameters(sent.begin() + 44, sent.end());
  EXPECT_EQ(parameters,
            (Lines{"ECHO OFF\r", "ACRDISP 0\r", "ALFDISP ON\r", "CONOK OFF\r", "PASSALL OFF\r",
                   "PA\r", "HB 1200\r", "VHF ON\r", "8B ON\r", "AW 8\r", "MFILTER $0\r",
                   "MONITOR 5\r", "MFROM ALL\r", "MYCALL QX7KB-10\r", "UNPROTO ZEPR VIA WIDE1-1\r",
                   "DIGIPEAT ON\r", "DFROM ALL\r", "MYALIAS WIDE1-1\r", "\r"}));
  EXPECT_NEAR(waited, 30.2, 1e-6);
  EXPECT_EQ(CountOf("open 2 1200"), 4);
  EXPECT_EQ(CountOf("open 2 9600"), 1);
  EXPECT_EQ(modem.Notes.back(), "close");
  EXPECT_EQ(starts, 1);
}

TEST_F(StartPanelTest, TheScsTncIsSetUpFromTheFile) {
  const auto panel = PanelOf(
      "MODEM=5\r\nSCOMP=6\r\nSBAUD=57600\r\nHBAUD=300R\r\nXBAUD=300\r\nTXID=10\r\n"
      "TXTO=APZEP\r\nTXPA=WIDE1-1,WIDE2-1\r\nTXAF=450\r\nTXAFC=1\r\nDIGI=1\r\n");
  panel->Controls.Command1.Click();
  Lines commands;
  for (const std::string& text : Sent()) {
    ASSERT_TRUE(text.starts_with('\x1B') && text.ends_with('\r')) << text;
    commands.push_back(text.substr(1, text.size() - 2));
  }
  EXPECT_EQ(commands, (Lines{"%R",
                             "E0",
                             "Z1",
                             "A1",
                             "S0",
                             "Y0",
                             "CAPZEP WIDE1-1,WIDE2-1",
                             "IQX7KB-10",
                             "%AMQX7KB-10",
                             "K0",
                             "MU",
                             "P255",
                             "T25",
                             "U0",
                             "W0",
                             "X1",
                             "%A0",
                             "%BR300",
                             "%X 450",
                             "%F 2000",
                             "%T 1",
                             "%AGH",
                             "R1",
                             "%AD3",
                             "%AU0"}));
  EXPECT_EQ(modem.Notes.front(), "open 6 57600");
  EXPECT_EQ(modem.Notes.back(), "close");
  EXPECT_NEAR(waited, 1.0 + 0.5 + 24 * 0.1 + 1.0, 1e-6);
}

TEST_F(StartPanelTest, TheScsPtcIsSetUpFromTheFile) {
  const auto panel = PanelOf("MODEM=6\r\nSCOMP=6\r\nTXPA=WIDE1-1,WIDE2-1\r\nHBAUD=9600\r\n");
  panel->Controls.Command1.Click();
  const Lines sent = Sent();
  ASSERT_EQ(sent.size(), 24U);
  EXPECT_EQ(sent[1], "TERM 0\r\n");
  EXPECT_EQ(sent[9], "\x1BSETCHN  2\r\n");
  EXPECT_EQ(sent[16], "\x1BUNPROTO ZEPR WIDE1-1 WIDE2-1\r\n");
  EXPECT_EQ(sent[18],
            "\x1B"
            "B 9600\r\n");
  EXPECT_EQ(modem.Notes.front(), "open 6 38400");
  EXPECT_EQ(modem.Notes.back(), "close");
}

TEST_F(StartPanelTest, NothingIsSentWithoutASerialModem) {
  for (const char* mode : {"0", "3", "4"}) {
    const auto panel = PanelOf(std::string("MODEM=") + mode + "\r\n");
    panel->Controls.Command1.Click();
    EXPECT_EQ(panel->Controls.Command1.Caption, "...");
    EXPECT_FALSE(panel->Controls.SetupBar.Visible);
  }
  EXPECT_TRUE(modem.Notes.empty());
  EXPECT_EQ(waited, 0.0);
  EXPECT_EQ(starts, 3);
}

TEST_F(StartPanelTest, TheSetUpRunsBehindTheStoredFile) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=6\r\n");
  Type(*panel, "8");
  bool stored = false;
  OnWait = [&] { stored = Has("SCOMP=8"); };
  panel->Controls.Command1.Click();
  EXPECT_TRUE(stored);
  EXPECT_EQ(modem.Notes.front(), "open 8 38400");
}

TEST_F(StartPanelTest, TheWindowTellsHowFarTheSetUpIs) {
  const struct {
    const char* Mode;
    const char* Caption;
  } rows[] = {{"1", "40 s ..."}, {"5", "12 s ..."}, {"6", "25 s ..."}};
  for (const auto& row : rows) {
    const auto panel =
        PanelOf(std::string("MODEM=") + row.Mode + "\r\nCOM=3\r\nTBAUD=38400\r\nSCOMP=3\r\n");
    const StartPanelControls& c = panel->Controls;
    std::vector<int> steps;
    Lines texts;
    OnWait = [&] {
      EXPECT_EQ(c.Command1.Caption, row.Caption);
      EXPECT_TRUE(panel->Starting());
      EXPECT_TRUE(c.SetupBar.Visible && c.SetupText.Visible);
      EXPECT_FALSE(c.Command1.Enabled || c.Text1.Enabled || c.Text3.Enabled || c.Text4.Enabled ||
                   c.Text5.Enabled || c.Text8.Enabled || c.Option2.Enabled);
      steps.push_back(c.SetupBar.FilledPx);
      texts.push_back(c.SetupText.Caption);
      panel->Controls.Command1.Click();  // ignored
    };
    panel->Controls.Command1.Click();
    OnWait = nullptr;
    ASSERT_FALSE(steps.empty());
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_EQ(steps.front(), 0);
    EXPECT_GT(steps.back(), 800);
    EXPECT_LE(steps.back(), c.SetupBar.FullWidthPx);
    EXPECT_TRUE(texts.front().ends_with(" s left   modem on port 3, 38400 Bd")) << texts.front();
    EXPECT_TRUE(texts.back().starts_with("1 s left ")) << texts.back();
    EXPECT_TRUE(panel->Starting());
  }
  EXPECT_EQ(starts, 3);
}

// What the operator asked for in between, such as the end, is heard before the main window opens.
TEST_F(StartPanelTest, TheOperatorIsHeardBeforeAndBehindTheSetUp) {
  const auto panel = PanelOf("MODEM=5\r\n");
  std::vector<std::size_t> notes;
  clock.Schedule(0.0, [&] {
    notes.push_back(modem.Notes.size());
    // Nothing can be changed any more.
    EXPECT_FALSE(panel->Controls.Option2.Enabled || panel->Controls.Text3.Enabled);
  });
  panel->Started = [&] { EXPECT_EQ(clock.HandOvers, 2); };
  panel->Controls.Command1.Click();
  EXPECT_EQ(notes, std::vector<std::size_t>{0});
  EXPECT_EQ(clock.HandOvers, 2);
}

TEST_F(StartPanelTest, OfAPortThatIsNotThereOnlyTheWaitsRemain) {
  modem.Absent = true;
  const auto panel = PanelOf("MODEM=1\r\nCOM=9\r\n");
  std::string marked;
  OnWait = [&] { marked = panel->Controls.PortFault.Caption; };
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Sent().empty());
  EXPECT_NEAR(waited, 30.2, 1e-6);
  EXPECT_EQ(marked, "no such port");
  EXPECT_EQ(starts, 1);
}

// ---- A modem that an earlier run could not leave in order --------------------------------------

class LeftModemTest : public StartPanelTest {
 protected:
  // What is done with the port at START when `left` stands in the file.
  Lines NotesOfStart(const std::string& settings, const std::string& left) {
    const auto panel = PanelOf(settings);
    if (!left.empty()) files.Write("C:\\Z\\MODEM.RUN", left);
    modem.Notes.clear();
    panel->Controls.Command1.Click();
    set_up = panel->ModemIsSetUp();
    return modem.Notes;
  }
  std::string Left() { return files.ReadAll("C:\\Z\\MODEM.RUN", 1 << 16).value_or("(none)"); }
  bool set_up = false;
};

TEST_F(LeftModemTest, IsLedOutOfConverseAtItsSpeedAndThenToldTheSame) {
  struct Case {
    const char* Settings;
    const char* Run;
    Lines WayOut;
  };
  for (const Case& one :
       {Case{"MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "1 9600 usb-2\r\n", {"open 2 9600", "\x03"}},
        Case{
            "MODEM=5\r\nSCOMP=3\r\nSBAUD=38400\r\n", "5 19200 usb-3\r\n", {"open 3 19200", "\x18"}},
        Case{"MODEM=6\r\nSCOMP=3\r\nSBAUD=38400\r\n",
             "6 38400 usb-3\r\n",
             {"open 3 38400", "\x1BQ\r"}}}) {
    const Lines clean = NotesOfStart(one.Settings, "");
    ASSERT_FALSE(clean.empty());
    Lines expected = one.WayOut;
    expected.emplace_back("close");
    expected.insert(expected.end(), clean.begin(), clean.end());
    EXPECT_EQ(NotesOfStart(one.Settings, one.Run), expected);
    EXPECT_TRUE(set_up);
    EXPECT_EQ(Left(), "(none)");
  }
}

TEST_F(LeftModemTest, EachStartChoosesItsDeviceAnew) {
  NotesOfStart("MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "");
  EXPECT_EQ(modem.Forgotten, 1);
}

TEST_F(LeftModemTest, AnotherInterfaceOrDeviceIsToldNothingElse) {
  const std::string settings = "MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n";
  const Lines clean = NotesOfStart(settings, "");
  for (const char* other : {"6 9600 usb-2\r\n", "1 9600 usb-3\r\n", "rubbish\r\n"}) {
    EXPECT_EQ(NotesOfStart(settings, other), clean);
    EXPECT_EQ(Left(), other);
  }
}

TEST_F(LeftModemTest, OneThatIsAwayIsStillRemembered) {
  modem.Absent = true;
  NotesOfStart("MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "1 9600 usb-2\r\n");
  EXPECT_FALSE(set_up);
  EXPECT_EQ(Left(), "1 9600 usb-2\r\n");
}

}  // namespace
}  // namespace zepril
