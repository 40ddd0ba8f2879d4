// Bytes over pseudo-terminals, vanished devices, and the names by which devices are found.
#include "platform/qt/qt_serial_port.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/qt_loop.h"
#include "tests/doubles/pseudo_terminal.h"
#include "tests/doubles/temp_folder.h"
#include "tests/platform/qt/application_support.h"

namespace zepril {
namespace {

constexpr double kShort = 0.03;  // seconds

class QtSerialPortTest : public ::testing::Test {
 protected:
  void SetUp() override {
    modem = std::make_unique<PseudoTerminal>();
    ASSERT_FALSE(modem->Path().empty());
  }
  bool Open() { return port.Open(modem->Path(), 9600); }
  // Reads until `size` bytes have come.
  std::string Read(std::size_t size) {
    std::string got;
    PumpUntil([&] {
      got += port.ReadAll();
      return got.size() >= size;
    });
    return got;
  }
  std::string Heard(std::size_t size) {
    std::string heard;
    PumpUntil([&] {
      heard += modem->Heard();
      return heard.size() >= size;
    });
    return heard;
  }
  static std::string AllBytes() {
    std::string bytes;
    for (int code = 0; code < 256; ++code)
      bytes += static_cast<char>(code);
    return bytes;
  }

  std::unique_ptr<PseudoTerminal> modem;
  QtLoop loop;
  QtSerialPort port;
};

TEST_F(QtSerialPortTest, EveryByteArrivesAsItIs) {
  ASSERT_TRUE(Open()) << port.Trouble();
  EXPECT_TRUE(port.IsOpen());
  EXPECT_EQ(modem->Say(AllBytes()), 256U);
  EXPECT_EQ(Read(256), AllBytes());
  EXPECT_EQ(port.ReadAll(), "");
}

TEST_F(QtSerialPortTest, EveryByteIsSentAsItIs) {
  ASSERT_TRUE(Open());
  port.Write(AllBytes());
  EXPECT_EQ(Heard(256), AllBytes());
  EXPECT_EQ(port.BytesToWrite(), 0U);
}

TEST_F(QtSerialPortTest, BytesComeAndGoWhileTheProgramWaits) {
  ASSERT_TRUE(Open());
  port.Write("MYCALL QX7KB\r");
  modem->Say("cmd:");
  loop.Wait(kShort);
  EXPECT_EQ(modem->Heard(), "MYCALL QX7KB\r");
  EXPECT_EQ(port.ReadAll(), "cmd:");
}

TEST_F(QtSerialPortTest, ArrivalIsToldWhileThePortIsOpen) {
  ASSERT_TRUE(Open());
  int told = 0;
  port.DataArrived = [&] { ++told; };
  modem->Say("x");
  EXPECT_TRUE(PumpUntil([&] { return told == 1; }));
  EXPECT_EQ(port.ReadAll(), "x");
}

TEST_F(QtSerialPortTest, TheSpeedIsSetAndMayBeAnotherOneNextTime) {
  ASSERT_TRUE(port.Open(modem->Path(), 1200));
  EXPECT_EQ(modem->Speed(), static_cast<speed_t>(B1200));
  ASSERT_TRUE(port.Open(modem->Path(), 38400));
  EXPECT_EQ(modem->Speed(), static_cast<speed_t>(B38400));
}

TEST_F(QtSerialPortTest, AMegabyteOfGarbageStaysBounded) {
  ASSERT_TRUE(Open());
  const std::string garbage(1 << 12, '\xA5');
  std::size_t said = 0;
  ASSERT_TRUE(PumpUntil([&] {
    said += modem->Say(garbage);
    return said >= 1 << 20;
  }));
  loop.Wait(kShort);
  modem->Say("end");
  loop.Wait(kShort);
  const std::string rest = port.ReadAll();
  EXPECT_LE(rest.size(), QtSerialPort::kLongestBuffer);
  EXPECT_TRUE(rest.ends_with("end"));
}

TEST_F(QtSerialPortTest, ALineThatTakesNothingHoldsNobodyUp) {
  ASSERT_TRUE(Open());
  for (int texts = 0; texts < 1000; ++texts)
    port.Write(std::string(1000, 'x'));
  loop.Wait(kShort);
  EXPECT_TRUE(port.IsOpen());
  EXPECT_GT(port.BytesToWrite(), 0U);
  EXPECT_LE(port.BytesToWrite(), QtSerialPort::kLongestBuffer + 1000);
  port.Close();
  EXPECT_EQ(port.BytesToWrite(), 0U);
}

TEST_F(QtSerialPortTest, DroppedBytesNeverLeave) {
  ASSERT_TRUE(Open());
  for (int texts = 0; texts < 60; ++texts)
    port.Write(std::string(1000, 'x'));
  EXPECT_EQ(port.BytesWritten(), 60000U);
  loop.Wait(kShort);  // the line is full by now
  port.DropUnsent();
  EXPECT_EQ(port.BytesToWrite(), 0U);
  EXPECT_TRUE(port.IsOpen());
  modem->Heard();
  port.Write("y");
  EXPECT_EQ(Heard(1), "y");
}

TEST_F(QtSerialPortTest, ThePowerOfAModemIsNotGuessed) {
  EXPECT_FALSE(port.ModemReady().has_value());
  ASSERT_TRUE(Open());
  // A pseudo-terminal has no such line.
  EXPECT_FALSE(port.ModemReady().has_value());
}

TEST_F(QtSerialPortTest, BytesThatTheLineTakesLaterAreNotLost) {
  ASSERT_TRUE(Open());
  std::string sent;
  for (int i = 0; i < 40000; ++i)
    sent += static_cast<char>(i % 251);
  port.Write(sent);
  loop.Wait(kShort);  // the line is full by now
  EXPECT_EQ(Heard(sent.size()), sent);
  EXPECT_TRUE(port.IsOpen());
}

TEST_F(QtSerialPortTest, AVanishedDeviceClosesThePortAndKeepsWhatCame) {
  ASSERT_TRUE(Open());
  modem->Say("last words");
  loop.Wait(kShort);
  modem->HangUp();
  EXPECT_TRUE(PumpUntil([this] { return !port.IsOpen(); }));
  EXPECT_EQ(port.Trouble(), modem->Path() + " is not there.");
  EXPECT_EQ(port.ReadAll(), "last words");
  port.Write("x");
  EXPECT_EQ(port.BytesToWrite(), 0U);
}

TEST_F(QtSerialPortTest, AVanishedDeviceIsNoticedByWritingToo) {
  ASSERT_TRUE(Open());
  modem->HangUp();
  port.Write("x");
  loop.Wait(kShort);
  EXPECT_TRUE(PumpUntil([this] { return !port.IsOpen(); }));
}

TEST_F(QtSerialPortTest, ThePortOpensAgainWhenTheDeviceIsBack) {
  const TempFolder folder;
  const std::string link = folder.Sub("modem");
  std::filesystem::create_symlink(modem->Path(), link);
  ASSERT_TRUE(port.Open(link, 9600)) << port.Trouble();
  modem->HangUp();
  ASSERT_TRUE(PumpUntil([this] { return !port.IsOpen(); }));
  std::filesystem::remove(link);
  EXPECT_FALSE(port.Open(link, 9600));
  EXPECT_EQ(port.Trouble(), link + " is not there.");

  modem = std::make_unique<PseudoTerminal>();
  std::filesystem::create_symlink(modem->Path(), link);
  ASSERT_TRUE(port.Open(link, 9600)) << port.Trouble();
  EXPECT_EQ(port.Trouble(), "");
  modem->Say("here again");
  EXPECT_EQ(Read(10), "here again");
}

TEST_F(QtSerialPortTest, ANumberOpensTheDeviceThatWasChosenForIt) {
  port.DeviceOfNumber = [this](int number) { return number == 77 ? modem->Path() : ""; };
  EXPECT_TRUE(port.Open("77", 9600)) << port.Trouble();
  EXPECT_FALSE(port.Open("200", 9600));
  EXPECT_EQ(port.Trouble(),
            "COM200 is not there: this computer has fewer serial devices, and none is chosen for "
            "that number.");
}

TEST_F(QtSerialPortTest, ASecondProgramIsToldThatThePortIsTaken) {
  ASSERT_TRUE(Open());
  QtSerialPort second;
  EXPECT_FALSE(second.Open(modem->Path(), 9600));
  EXPECT_FALSE(second.IsOpen());
  EXPECT_EQ(second.Trouble(), modem->Path() + " is used by another program.");
  port.Close();
  EXPECT_TRUE(second.Open(modem->Path(), 9600)) << second.Trouble();
}

TEST_F(QtSerialPortTest, WithoutPermissionTheGroupAndTheCommandAreNamed) {
  if (::geteuid() == 0) GTEST_SKIP() << "the administrator may open every device";
  ASSERT_EQ(::chmod(modem->Path().c_str(), 0), 0);
  EXPECT_FALSE(Open());
  EXPECT_NE(port.Trouble().find(" may not be opened by you"), std::string::npos) << port.Trouble();
}

TEST_F(QtSerialPortTest, WhatIsNoPortIsNotOpened) {
  const TempFolder folder;
  const std::string file = folder.Sub("file");
  std::ofstream(file) << "text";
  EXPECT_FALSE(port.Open(file, 9600));
  EXPECT_EQ(port.Trouble(), file + " is no serial device.");
  EXPECT_FALSE(port.Open("/dev/null", 9600));
  EXPECT_EQ(port.Trouble(), "/dev/null is no serial device.");
  EXPECT_FALSE(port.Open("no-such-device", 9600));
  EXPECT_EQ(port.Trouble(), "/dev/no-such-device is not there.");
  EXPECT_FALSE(port.Open("", 9600));
  EXPECT_EQ(port.Trouble(), "No serial port is set.");
  EXPECT_FALSE(port.Open(modem->Path(), 0));
  EXPECT_EQ(port.Trouble(), modem->Path() + " can't be opened at that speed.");
  EXPECT_FALSE(port.IsOpen());
}

TEST_F(QtSerialPortTest, AClosedPortDoesNothing) {
  port.Write("x");
  EXPECT_EQ(port.ReadAll(), "");
  EXPECT_EQ(port.BytesToWrite(), 0U);
  ASSERT_TRUE(Open());
  modem->Say("x");
  loop.Wait(kShort);
  port.Close();
  port.Close();
  EXPECT_EQ(port.ReadAll(), "");
  EXPECT_EQ(modem->Heard(), "");
}

// Whoever is told of arrival may close the port at once.
TEST_F(QtSerialPortTest, ThePortMayBeClosedWhenDataArrive) {
  ASSERT_TRUE(Open());
  port.DataArrived = [this] { port.Close(); };
  modem->Say("x");
  EXPECT_TRUE(PumpUntil([this] { return !port.IsOpen(); }));
  port.DataArrived = nullptr;
  EXPECT_TRUE(Open());
}

std::vector<SerialDevice> TwoDevices() {
  return {{"/dev/no-adapter", "Adapter", ""}, {"/dev/no-port", "", ""}};
}

TEST(SerialDevicePath, ANumberCountsTheDevicesThatAreThere) {
  EXPECT_EQ(SerialDevicePath("1", {}, TwoDevices), "/dev/no-adapter");
  EXPECT_EQ(SerialDevicePath(" com2 ", {}, TwoDevices), "/dev/no-port");
}

TEST(SerialDevicePath, ANumberThatNoDeviceHasIsNamedByItsTrouble) {
  const std::string path = SerialDevicePath("3", {}, TwoDevices);
  EXPECT_EQ(path, "COM3");
  EXPECT_EQ(SerialTroubleOf(path), SerialTrouble::Absent);
  EXPECT_EQ(SerialTroubleText(SerialTrouble::Absent, path),
            "COM3 is not there: this computer has fewer serial devices, and none is chosen for "
            "that number.");
}

// A file of that name in the folder where the program was started is no port.
TEST(SerialDevicePath, ANumbersNameIsNoPath) {
  const TempFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  std::ofstream("COM3") << "text";
  EXPECT_EQ(SerialDevicePath("3", {}, TwoDevices), "COM3");
  EXPECT_EQ(SerialTroubleOf("COM3"), SerialTrouble::Absent);
  std::filesystem::current_path(before);
}

TEST(SerialDevicePath, TheEnvironmentNamesAnotherDeviceForANumber) {
  ::setenv("ZEPRIL_COM3", "no-such-adapter", 1);
  EXPECT_EQ(SerialDevicePath("3", {}, TwoDevices), "/dev/no-such-adapter");
  ::setenv("ZEPRIL_COM3", "/no/such/adapter", 1);
  EXPECT_EQ(SerialDevicePath("COM3", {}, TwoDevices), "/no/such/adapter");
  // An empty one names none.
  ::setenv("ZEPRIL_COM2", "", 1);
  EXPECT_EQ(SerialDevicePath("2", {}, TwoDevices), "/dev/no-port");
  ::unsetenv("ZEPRIL_COM2");
  ::unsetenv("ZEPRIL_COM3");
}

TEST(SerialDevicePath, TheOperatorsChoiceHoldsUnlessTheEnvironmentNamesAnother) {
  const PortBook book = [](int number) {
    return number == 1 ? std::string("no-such-adapter") : std::string();
  };
  EXPECT_EQ(SerialDevicePath("1", book, TwoDevices), "/dev/no-such-adapter");
  EXPECT_EQ(SerialDevicePath("2", book, TwoDevices), "/dev/no-port");
  ::setenv("ZEPRIL_COM1", "other-adapter", 1);
  EXPECT_EQ(SerialDevicePath("1", book, TwoDevices), "/dev/other-adapter");
  ::unsetenv("ZEPRIL_COM1");
}

TEST(SerialDevicePath, ANumberBelowOneIsNoPort) {
  EXPECT_EQ(SerialDevicePath("0"), "");
  EXPECT_EQ(SerialDevicePath(""), "");
  EXPECT_EQ(SerialDevicePath("COM99999999999999999999"), "");
}

TEST(SerialDevicePath, OtherTextIsADevice) {
  EXPECT_EQ(SerialDevicePath("no-such-device"), "/dev/no-such-device");
  EXPECT_EQ(SerialDevicePath("/dev/no-such-device"), "/dev/no-such-device");
  EXPECT_EQ(SerialDevicePath("COMPUTER"), "/dev/COMPUTER");
}

// Else two programs would not notice that they share one.
TEST(SerialDevicePath, LinksAreFollowedToTheDevice) {
  const PseudoTerminal modem;
  const TempFolder folder;
  std::filesystem::create_symlink(modem.Path(), folder.Sub("usb-modem"));
  std::filesystem::create_symlink(folder.Sub("usb-modem"), folder.Sub("mine"));
  EXPECT_EQ(SerialDevicePath(folder.Sub("mine")), modem.Path());
  std::filesystem::create_symlink(folder.Sub("nowhere"), folder.Sub("broken"));
  EXPECT_EQ(SerialDevicePath(folder.Sub("broken")), folder.Sub("broken"));
}

// ---- The device that was chosen -----------------------------------------------------------------

// Two adapters, known by links as the system makes them.
class ChosenAdapterTest : public QtSerialPortTest {
 protected:
  void SetUp() override {
    QtSerialPortTest::SetUp();
    std::filesystem::create_directory(Folder());
    PlugIn(*modem, "usb-a");
    PlugIn(*other, "usb-b");
    ::setenv("ZEPRIL_SERIAL_BY_ID", Folder().c_str(), 1);
  }
  void TearDown() override { ::unsetenv("ZEPRIL_SERIAL_BY_ID"); }
  std::string Folder() const { return folder.Sub("by-id"); }
  std::string LinkOf(const std::string& name) const { return Folder() + "/" + name; }
  void PlugIn(const PseudoTerminal& device, const std::string& name) {
    std::filesystem::create_symlink(device.Path(), LinkOf(name));
  }
  void Unplug(std::unique_ptr<PseudoTerminal>& device, const std::string& name) {
    std::filesystem::remove(LinkOf(name));
    device.reset();
    PumpUntil([this] { return !port.IsOpen(); });
  }

  TempFolder folder;
  std::unique_ptr<PseudoTerminal> other = std::make_unique<PseudoTerminal>();
};

TEST_F(ChosenAdapterTest, ABareNumberStaysWithTheDeviceThatItMeant) {
  ASSERT_TRUE(port.Open("1", 9600)) << port.Trouble();
  Unplug(modem, "usb-a");
  // The other one is the first in the list now.
  ASSERT_EQ(PresentSerialDevices().front().Path, other->Path());
  EXPECT_FALSE(port.Reopen("1", 9600));
  EXPECT_EQ(port.Trouble(), LinkOf("usb-a") + " is not there.");
  EXPECT_FALSE(port.Open("1", 9600));
  port.Write("x");
  loop.Wait(kShort);
  EXPECT_EQ(other->Heard(), "");
  // Back under another path, it is the same one.
  modem = std::make_unique<PseudoTerminal>();
  PlugIn(*modem, "usb-a");
  ASSERT_TRUE(port.Reopen("1", 9600)) << port.Trouble();
  port.Write("x");
  EXPECT_TRUE(PumpUntil([this] { return modem->Heard() == "x"; }));
  EXPECT_EQ(port.LastingName("1"), LinkOf("usb-a"));
}

TEST_F(ChosenAdapterTest, WhatWasNotThereAtTheStartIsNotFoundByItsNumberLater) {
  std::unique_ptr<PseudoTerminal> third = std::make_unique<PseudoTerminal>();
  EXPECT_FALSE(port.Open("3", 9600));
  PlugIn(*third, "usb-c");
  EXPECT_FALSE(port.Reopen("3", 9600));
  EXPECT_EQ(port.Trouble(),
            "No serial device stood behind port 3 at START. Plug it in and start the "
            "program anew.");
  // START itself may still find it.
  EXPECT_TRUE(port.Open("3", 9600)) << port.Trouble();
}

TEST_F(ChosenAdapterTest, ANamedDeviceMayComeLater) {
  EXPECT_FALSE(port.Open(LinkOf("usb-c"), 9600));
  const PseudoTerminal third;
  PlugIn(third, "usb-c");
  EXPECT_TRUE(port.Reopen(LinkOf("usb-c"), 9600)) << port.Trouble();
}

TEST_F(ChosenAdapterTest, TheNextStartChoosesAnew) {
  ASSERT_TRUE(port.Open("1", 9600));
  Unplug(modem, "usb-a");
  port.ForgetDevice();
  ASSERT_TRUE(port.Open("1", 9600)) << port.Trouble();
  EXPECT_EQ(port.LastingName("1"), LinkOf("usb-b"));
}

std::vector<SerialDevice> ListOf(const std::string& path, const std::string& serial) {
  return {{path, "Adapter", "", serial}};
}

TEST(ChosenDevice, WithoutALinkItsPathAndSerialNumberTellIt) {
  const PseudoTerminal adapter;
  const TempFolder links;
  const std::string path = adapter.Path();
  const ChosenDevice chosen = ChooseSerialDevice(
      "1", {}, [&] { return ListOf(path, "A100"); }, links.Path());
  EXPECT_TRUE(chosen.Present);
  EXPECT_TRUE(chosen.Counted);
  EXPECT_EQ(chosen.LastingName(), path + " A100");
  EXPECT_EQ(PathOfChosen(chosen, [&] { return ListOf(path, "A100"); }), path);
  EXPECT_EQ(PathOfChosen(chosen, [&] { return ListOf(path, "B200"); }), "");
  EXPECT_EQ(PathOfChosen(chosen, [&] { return ListOf(path, ""); }), "");
  EXPECT_EQ(SerialTroubleText(SerialTrouble::OtherDevice, path),
            path + " is another device now. The one that was chosen is not there.");
}

TEST(ChosenDevice, OneThatTheOperatorNamedByALinkIsKnownByIt) {
  const PseudoTerminal adapter;
  const TempFolder folder;
  std::filesystem::create_symlink(adapter.Path(), folder.Sub("tnc"));
  const ChosenDevice chosen = ChooseSerialDevice(folder.Sub("tnc"));
  EXPECT_FALSE(chosen.Counted);
  EXPECT_EQ(chosen.LastingName(), folder.Sub("tnc"));
  EXPECT_EQ(PathOfChosen(chosen), adapter.Path());
}

TEST(SerialTroubleTexts, WhatIsNoDeviceIsFoundOutWithoutOpeningIt) {
  const TempFolder folder;
  std::ofstream(folder.Sub("file")) << "text";
  ASSERT_EQ(::mkfifo(folder.Sub("pipe").c_str(), 0600), 0);
  for (const std::string& path : {folder.Sub("file"), folder.Sub("pipe"), folder.Path()})
    EXPECT_EQ(SerialTroubleOf(path), SerialTrouble::NoDevice) << path;
  EXPECT_EQ(SerialTroubleOf(folder.Sub("nothing")), SerialTrouble::Absent);
  EXPECT_EQ(SerialTroubleOf(""), SerialTrouble::NoPort);
}

TEST(SerialTroubleTexts, NobodyIsToldToJoinTheAdministrators) {
  struct stat root {};
  ASSERT_EQ(::stat("/", &root), 0);
  if (root.st_gid != 0) GTEST_SKIP() << "the root folder belongs to somebody else here";
  EXPECT_NE(SerialTroubleText(SerialTrouble::NotPermitted, "/").find("usermod -aG dialout $USER"),
            std::string::npos);
}

TEST(SerialTroubleTexts, APortThatMayNotBeOpenedNamesTheCommandThatMendsIt) {
  EXPECT_EQ(
      SerialTroubleText(SerialTrouble::NotPermitted, "/dev/no-such-device"),
      "/dev/no-such-device may not be opened by you: it belongs to the group dialout. To join "
      "it: sudo usermod -aG dialout $USER, then log in again.");
}

TEST(StableSerialPath, IsTheLinkThatLeadsToTheDevice) {
  const PseudoTerminal modem;
  const PseudoTerminal other;
  const TempFolder folder;
  std::filesystem::create_symlink(other.Path(), folder.Sub("a-other"));
  std::filesystem::create_symlink(folder.Sub("nowhere"), folder.Sub("b-broken"));
  std::filesystem::create_symlink(modem.Path(), folder.Sub("usb-modem"));
  EXPECT_EQ(StableSerialPath(modem.Path(), folder.Path()), folder.Sub("usb-modem"));
  EXPECT_EQ(StableSerialPath("/dev/null", folder.Path()), "");
  EXPECT_EQ(StableSerialPath(modem.Path(), folder.Sub("no-folder")), "");
  EXPECT_EQ(StableSerialPath("/dev/no-such-device", folder.Path()), "");
}

TEST(PresentSerialDevices, AdaptersComeBeforeWhatIsBuiltIn) {
  const std::vector<std::string> order{"/dev/ttyUSB0", "/dev/ttyUSB9", "/dev/ttyUSB10",
                                       "/dev/ttyACM0", "/dev/rfcomm0", "/dev/ttyS0",
                                       "/dev/ttyAMA0"};
  for (std::size_t at = 0; at + 1 < order.size(); ++at) {
    const SerialDevice first{order[at], "", ""};
    const SerialDevice second{order[at + 1], "", ""};
    EXPECT_TRUE(ComesBefore(first, second)) << order[at];
    EXPECT_FALSE(ComesBefore(second, first)) << order[at];
    EXPECT_FALSE(ComesBefore(first, first));
  }
}

TEST(PresentSerialDevices, EachHasAPathThatIsThere) {
  for (const SerialDevice& device : PresentSerialDevices())
    EXPECT_TRUE(device.Path.starts_with("/dev/")) << device.Path;
}

}  // namespace
}  // namespace zepril
