// The start window's fields for the radio, and what it shows while a modem is set up.
#include "desktop/start_window.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "desktop/device_box.h"
#include "desktop/fill_bar_widget.h"
#include "platform/native/native_files.h"
#include "platform/qt/qt_serial_port.h"
#include "tests/desktop/desktop_support.h"
#include "tests/doubles/hurried_clock.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/recorded_desktop.h"
#include "tests/doubles/pseudo_terminal.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

constexpr double kHurry = 50.0;

class StartWindowTest : public ::testing::Test {
 protected:
  StartWindowTest() {
    EXPECT_TRUE(fonts.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts")));
  }
  ~StartWindowTest() override { loop.ControlsOut = nullptr; }

  void Show(const std::string& settings) {
    files.MakeFolder("C:\\Z");
    files.Write("C:\\Z\\ZEPRIL.INI", "USER=QX7KB\r\nTEMP=C:\\T\r\n" + settings);
    panel = std::make_unique<StartPanel>(MachineOf(files, clock, loop, dialogs, desktop,
                                                   {{}, {&modem}, {}}, [this] { return devices; }),
                                         "C:\\Z", "");
    panel->Started = [this] { ++starts; };
    window = std::make_unique<StartWindow>(*panel, loop, fonts);
    window->Closed = [this] { ++closed; };
    loop.ControlsOut = [this] { window->ControlsOut(); };
    window->show();
    window->activateWindow();
    EXPECT_TRUE(PumpUntil([this] { return QApplication::activeWindow() == window.get(); }));
  }
  DeviceBox* Port() { return Find<DeviceBox>(*window, "Text3"); }
  QLineEdit* Speed() { return Find<QLineEdit>(*window, "Text4"); }
  QPushButton* Start() { return Find<QPushButton>(*window, "Command1"); }
  void Press(const char* button) { QTest::mouseClick(Find<>(*window, button), Qt::LeftButton); }
  std::string Shown(const char* label) {
    QString text = Find<QLabel>(*window, label)->text();
    return text.remove(QChar(0x200B)).toStdString();
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  ScriptedDialogs dialogs;
  RecordedDesktop desktop;
  MapFonts fonts;
  QtLoop loop;
  HurriedClock clock{loop, kHurry};
  QtSerialPort modem;
  std::vector<SerialDevice> devices{{"/dev/ttyUSB0", "FTDI FT232R", ""}, {"/dev/ttyS0", "", ""}};
  std::unique_ptr<StartPanel> panel;
  std::unique_ptr<StartWindow> window;
  int starts = 0;
  int closed = 0;
};

TEST_F(StartWindowTest, TheGpsHasItsPortItsSpeedAndItsClock) {
  Show("MODEM=4\r\nNMEA=C:\\GPS.TXT\r\nNBAUD=9600\r\n");
  auto* port = Find<DeviceBox>(*window, "Text6");
  EXPECT_EQ(port->currentText(), QStringLiteral("C:\\GPS.TXT"));
  EXPECT_EQ(Find<QLineEdit>(*window, "Text17")->text(), QStringLiteral("9600"));
  EXPECT_EQ(port->accessibleName(), QStringLiteral("NMEA PORT"));
  port->lineEdit()->setFocus();
  port->lineEdit()->selectAll();
  QTest::keyClicks(port->lineEdit(), QStringLiteral("999"));
  EXPECT_EQ(Shown("GpsFault"), "port numbers go from 1 to 256");
  devices = {{"/dev/ttyACM3", "u-blox 7", ""}};
  port->showPopup();
  EXPECT_EQ(port->itemText(0), QStringLiteral("/dev/ttyACM3   u-blox 7"));
  port->hidePopup();
  EXPECT_FALSE(Find<QAbstractButton>(*window, "SetClockBox")->isChecked());
  Press("SetClockBox");
  EXPECT_EQ(panel->Controls.SetClockBox.Value, 1);
}

TEST_F(StartWindowTest, TheServerOfTheGateHasItsPanelAndStartWaits) {
  Show("MODEM=0\r\nAISRV=igate.example\r\n");
  const QSize size = window->size();
  EXPECT_FALSE(Find<>(*window, "AprsIsPanel")->isVisible());
  Press("Command14");
  EXPECT_TRUE(Find<>(*window, "AprsIsPanel")->isVisible());
  EXPECT_FALSE(Start()->isEnabled());
  auto* server = Find<QLineEdit>(*window, "AprsIsServerField");
  EXPECT_EQ(server->text(), "igate.example");
  EXPECT_TRUE(server->hasFocus());
  EXPECT_EQ(window->size(), size);
  server->selectAll();
  QTest::keyClicks(server, "rotate.example");
  QTest::keyClick(server, Qt::Key_Return);
  EXPECT_EQ(starts, 0);
  Press("Command15");
  EXPECT_FALSE(Find<>(*window, "AprsIsPanel")->isVisible());
  EXPECT_TRUE(Start()->isEnabled());
  EXPECT_EQ(panel->Settings().Internet.AprsIsServer, "rotate.example");
}

TEST_F(StartWindowTest, EachInterfaceShowsItsFieldsAndNothingMoves) {
  Show("MODEM=0\r\nCOM=4\r\nTBAUD=2400\r\nHOSTC=radio\r\nHOSTP=8123\r\n");
  EXPECT_FALSE(Port()->isVisible());
  EXPECT_FALSE(Speed()->isVisible());
  const QSize size = window->size();
  const QPoint place = Start()->pos();
  Press("Option1");
  EXPECT_TRUE(Port()->isVisible());
  EXPECT_EQ(Port()->currentText(), QStringLiteral("4"));
  EXPECT_EQ(Speed()->text(), QStringLiteral("2400"));
  EXPECT_EQ(Shown("PortLabel"), "COMM PORT");
  EXPECT_EQ(Shown("SpeedLabel"), "COMM BAUD");
  Press("Option9");
  EXPECT_EQ(Port()->currentText(), QStringLiteral("radio"));
  EXPECT_EQ(Speed()->text(), QStringLiteral("8123"));
  EXPECT_EQ(Shown("PortLabel"), "HOST NAME");
  EXPECT_EQ(Shown("SpeedLabel"), "HOST PORT");
  EXPECT_EQ(Port()->accessibleName(), QStringLiteral("HOST NAME"));
  Pump();
  EXPECT_EQ(window->size(), size);
  EXPECT_EQ(Start()->pos(), place);
}

TEST_F(StartWindowTest, EverythingHasRoomAtTheFirstSize) {
  Show("MODEM=5\r\n");
  EXPECT_EQ(window->size(), QSize(760, 640));
  EXPECT_LE(window->minimumSizeHint().width(), 700);
  EXPECT_LE(window->minimumSizeHint().height(), 540);
  for (const QLabel* label : window->findChildren<QLabel*>()) {
    if (label->wordWrap() || !label->isVisible()) continue;
    EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    EXPECT_GE(label->height(), label->sizeHint().height()) << label->text().toStdString();
  }
}

TEST_F(StartWindowTest, TheListIsMadeAnewWhenItOpensAndADeviceIsTaken) {
  Show("MODEM=5\r\n");
  devices = {{"/dev/ttyACM0", "Modem", ""}, {"/dev/ttyUSB3", "Adapter", ""}};
  Port()->setFocus();
  EXPECT_EQ(Port()->itemText(0), QStringLiteral("/dev/ttyACM0   Modem"));
  devices.erase(devices.begin());
  Port()->showPopup();
  ASSERT_EQ(Port()->count(), 1);
  EXPECT_EQ(Port()->currentText(), QStringLiteral("3"));  // what stood there stays
  // Enter in the open list takes the entry and starts nothing.
  QTest::keyClick(Port()->view(), Qt::Key_Down);
  QTest::keyClick(Port()->view(), Qt::Key_Return);
  EXPECT_TRUE(PumpUntil([this] { return Port()->currentText() == "/dev/ttyUSB3"; }));
  EXPECT_FALSE(panel->Starting());
  EXPECT_EQ(panel->Controls.Text3.Text, "/dev/ttyUSB3");
}

TEST_F(StartWindowTest, ArrowKeysStepThroughTheDevices) {
  Show("MODEM=5\r\n");
  Port()->setFocus();
  QTest::keyClick(Port(), Qt::Key_Down);
  EXPECT_EQ(Port()->currentText(), QStringLiteral("/dev/ttyUSB0"));
  QTest::keyClick(Port(), Qt::Key_Down);
  EXPECT_EQ(Port()->currentText(), QStringLiteral("/dev/ttyS0"));
}

TEST_F(StartWindowTest, WithoutADeviceTheOpenedListSaysSo) {
  devices.clear();
  Show("MODEM=5\r\n");
  EXPECT_EQ(Shown("PortFault"), "");
  Port()->showPopup();
  EXPECT_EQ(Shown("PortFault"), "no serial device is there");
  Port()->setFocus();
  QTest::keyClicks(Port(), QStringLiteral("7"));
  EXPECT_EQ(Shown("PortFault"), "");
}

TEST_F(StartWindowTest, AWrongNumberIsMarkedWhileItIsTyped) {
  Show("MODEM=5\r\nSCOMP=25\r\n");
  Port()->setFocus();
  Port()->lineEdit()->end(false);
  QTest::keyClicks(Port(), QStringLiteral("7"));
  EXPECT_EQ(Port()->currentText(), QStringLiteral("257"));
  EXPECT_EQ(Shown("PortFault"), "port numbers go from 1 to 256");
  QTest::keyClick(Port(), Qt::Key_Backspace);
  EXPECT_EQ(Shown("PortFault"), "");
}

TEST_F(StartWindowTest, ALongTroubleKeepsTheWindowsSize) {
  Show("MODEM=5\r\n");
  Pump();
  const QSize size = window->size();
  const QPoint place = Start()->pos();
  const std::string device = "/dev/serial/by-id/usb-" + std::string(100, 'x');
  panel->Controls.PortFault.Caption = SerialTroubleText(SerialTrouble::NotPermitted, device);
  panel->Controls.SetupText.Visible = true;
  panel->Controls.SetupText.Caption = device + device;
  window->ControlsOut();
  Pump();
  EXPECT_EQ(window->size(), size);
  EXPECT_EQ(Start()->pos(), place);
  EXPECT_EQ(Shown("PortFault"), panel->Controls.PortFault.Caption);
  // And it has room.
  auto* fault = Find<QLabel>(*window, "PortFault");
  EXPECT_LE(fault->heightForWidth(fault->width()), fault->height());
}

TEST_F(StartWindowTest, TheSetUpIsShownWhileItRuns) {
  const PseudoTerminal line;
  Show("MODEM=5\r\nSBAUD=9600\r\n");
  const QSize size = window->size();
  Port()->setFocus();
  Port()->lineEdit()->selectAll();
  QTest::keyClicks(Port(), QString::fromStdString(line.Path()));
  modem.DeviceOfNumber = [&](int number) { return number == 3 ? line.Path() : std::string(); };
  int seen = 0;
  QTimer watch;  // not the program's: it fires in its waits too
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (!panel->Controls.SetupBar.Visible || starts > 0) return;
    ++seen;
    EXPECT_EQ(Start()->text(), QStringLiteral("12 s ..."));
    EXPECT_FALSE(Start()->isEnabled());
    EXPECT_FALSE(Port()->isEnabled());
    EXPECT_TRUE(Find<FillBarWidget>(*window, "SetupBar")->isVisible());
    EXPECT_NE(Shown("SetupText").find(" s left   modem on "), std::string::npos);
    EXPECT_EQ(window->size(), size);
    EXPECT_EQ(window->cursor().shape(), Qt::BusyCursor);
  });
  watch.start(5);
  QTest::keyClick(Port(), Qt::Key_Return);
  EXPECT_GT(seen, 2);
  EXPECT_EQ(starts, 1);
  EXPECT_FALSE(modem.IsOpen());
  EXPECT_EQ(Shown("PortFault"), "");
  EXPECT_EQ(files.ReadAll("C:\\Z\\PORTS.TXT", 1000).value_or("?"), "COM3=" + line.Path() + "\r\n");
}

TEST_F(StartWindowTest, AModemHearsItsSetUp) {
  PseudoTerminal line;
  Show("MODEM=5\r\nSBAUD=9600\r\nTXTO=ZEPR\r\nTXPA=WIDE1-1\r\n");
  modem.DeviceOfNumber = [&](int) { return line.Path(); };
  QTest::keyClick(window.get(), Qt::Key_Return);
  const std::string heard = line.Heard();
  EXPECT_TRUE(
      heard.starts_with("\x1B%R\r\x1B"
                        "E0\r\x1BZ1\r"))
      << heard;
  EXPECT_NE(heard.find("\x1B"
                       "CZEPR WIDE1-1\r\x1BIQX7KB\r"),
            std::string::npos)
      << heard;
  EXPECT_TRUE(heard.ends_with("\x1B%AU0\r")) << heard;
}

TEST_F(StartWindowTest, APortThatIsNotThereIsMarkedWhileTheSetUpRuns) {
  Show("MODEM=5\r\n");
  modem.DeviceOfNumber = [](int) { return std::string("no-such-device"); };
  std::string marked;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] { marked = Shown("PortFault"); });
  watch.start(5);
  Press("Command1");
  EXPECT_EQ(marked, "/dev/no-such-device is not there.");
  EXPECT_EQ(starts, 1);
}

TEST_F(StartWindowTest, TheWindowStaysWhileTheSetUpRunsAndTheCloseIsTold) {
  Show("MODEM=5\r\n");
  QTimer::singleShot(10, window.get(), [this] {
    ASSERT_TRUE(panel->Starting());
    window->close();
    EXPECT_TRUE(window->isVisible());
  });
  Press("Command1");
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(starts, 1);  // what follows is for the program to decide
  EXPECT_TRUE(window->isVisible());
}

TEST_F(StartWindowTest, KeysAndPressesDuringTheSetUpChangeNothing) {
  Show("MODEM=5\r\n");
  QTimer::singleShot(10, window.get(), [this] {
    ASSERT_TRUE(panel->Starting());
    QTest::keyClick(window.get(), Qt::Key_Return);
    Press("Option2");
    QTest::keyClicks(Port(), QStringLiteral("9"));
  });
  Press("Command1");
  EXPECT_EQ(starts, 1);
  EXPECT_EQ(panel->Settings().Radio.RadioMode, 5);
  EXPECT_EQ(panel->Controls.Text3.Text, "3");
}

}  // namespace
}  // namespace zepril
