// The program with its windows and the companion tool's modem, as an operator plays them: START in
// the start window, a report by the TX button, a station on the map, the end by closing the window.
// In the world's own time.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPlainTextEdit>
#include <QTimer>
#include <QtTest/QTest>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <iterator>
#include <set>
#include <string>

#include "core/text_fields.h"
#include "desktop/desktop_program.h"
#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"
#include "tests/integration/child_process_support.h"

namespace zepril {
namespace {

constexpr const char* kFolder = "C:\\ZEPRIL";
constexpr int kPatienceMilliseconds = 20000;

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class DesktopModemTest : public ::testing::Test {
 protected:
  DesktopModemTest() {
    ::setenv("ZEPRIL_DRIVE_C", folder.Path().c_str(), 1);
    ::setenv("ZEPRIL_COM3", folder.Sub("modem").c_str(), 1);
    files.MakeFolder(std::string(kFolder) + "\\U33\\M0050");  // maps are there: none is drawn
    files.Write(std::string(kFolder) + "\\ZEPRIL.INI",
                "LANG=1\r\nUSER=QX7KB\r\nTXID=10\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\n"
                "TEMP=C:\\ZEPRIL\\TEMP\r\nMODEM=5\r\nSCOMP=3\r\nSBAUD=38400\r\nHBAUD=300R\r\n"
                "CALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5800\r\nUTE=400\r\nTXON=0\r\nTXTO=ZEPR\r\n"
                "TXPA=WIDE1-1\r\nTXSY=30\r\nTXI1=Test\r\nTXI1A=1\r\nTXI2A=0\r\nTXI3A=0\r\n"
                "TXI4A=0\r\nTXI5A=0\r\nTXI6A=0\r\nUUN=5395.276\r\nUUE=-10.523\r\n");
    std::ofstream(folder.Sub("play")) << "QX2CD>APRS,QX0DIG*:=5230.00N/01324.00E>Test\n";
  }
  ~DesktopModemTest() override {
    ::unsetenv("ZEPRIL_DRIVE_C");
    ::unsetenv("ZEPRIL_COM3");
  }
  std::string Reported() const { return ReadWhole(folder.Sub("air.log")); }
  bool IsReported(const std::string& line) const {
    return Reported().find(line + "\n") != std::string::npos;
  }
  static bool Comes(const std::function<bool()>& done) {
    return QTest::qWaitFor(done, kPatienceMilliseconds);
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
};

TEST_F(DesktopModemTest, AnScsTncFromStartToTheEnd) {
  const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  const ChildProcess tool({ZEPRIL_TOOL, "air", "--scs-tnc", folder.Sub("modem"), "--play",
                           folder.Sub("play"), "--rate", "20", "--repeat"},
                          nothing, folder.Sub("air.log"));
  ::close(nothing);
  ASSERT_TRUE(Comes([this] { return Reported().starts_with("READY scs-tnc "); })) << Reported();

  DesktopProgram whole({kFolder, std::string(ZEPRIL_SOURCE_DIR) + "/data"});
  ASSERT_TRUE(whole.LoadFonts());
  whole.ShowStartWindow();
  // What the operator sees while the modem is set up.
  auto* const start = whole.Starting()->findChild<QAbstractButton*>(QStringLiteral("Command1"));
  auto* const bar = whole.Starting()->findChild<QWidget*>(QStringLiteral("SetupBar"));
  ASSERT_NE(start, nullptr);
  ASSERT_NE(bar, nullptr);
  std::set<std::string> captions;
  bool bar_shown = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    captions.insert(start->text().toStdString());
    bar_shown = bar_shown || bar->isVisible();
  });
  look.start(100);
  QTest::mouseClick(start, Qt::LeftButton);
  look.stop();
  EXPECT_TRUE(captions.contains("12 s ..."));
  EXPECT_TRUE(bar_shown);
  ASSERT_NE(whole.Window(), nullptr) << Reported();
  EXPECT_TRUE(IsReported("COMMAND scs-tnc %AMQX7KB-10")) << Reported();
  EXPECT_EQ(Reported().find("\nSENT "), std::string::npos) << Reported();

  // One report by hand.
  auto* const tx = whole.Window()->findChild<QAbstractButton*>(QStringLiteral("Check6"));
  ASSERT_NE(tx, nullptr);
  EXPECT_EQ(tx->text().toStdString(), "TX !");
  QCoreApplication::processEvents();  // a press right behind START's waits counts as made in them
  QTest::mouseClick(tx, Qt::LeftButton);
  EXPECT_TRUE(Comes([this] {
    return IsReported("SENT scs-tnc R300 QX7KB-10>ZEPR,WIDE1-1:=4830.15N/00805.20E> Test");
  })) << Reported();
  EXPECT_FALSE(tx->isChecked());

  // A station of the play.
  StationProgram& station = *whole.Station();
  EXPECT_TRUE(Comes([&] {
    whole.Loop().RunStep(station.Timer1().Elapsed);
    return station.State().Stores.MoniAllRecords.Count() > 0;
  })) << Reported();
  EXPECT_EQ(station.Lamp().State, LampState::Data);

  // In the terminal its print is seen at once: the timers, of which any would bring it out some
  // seconds later, stand still here.
  auto* const opens = whole.Window()->findChild<QAbstractButton*>(QStringLiteral("Command65"));
  auto* const printed = whole.Window()->findChild<QPlainTextEdit*>(QStringLiteral("Text20"));
  QCoreApplication::processEvents();
  QTest::mouseClick(opens, Qt::LeftButton);
  ASSERT_TRUE(station.Controls().Terminal.Frame19.Visible);
  QCoreApplication::processEvents();  // the map has its new size
  for (const DrivenTimer& timer : station.Timers())
    timer.Subject->Stop();
  EXPECT_TRUE(Comes([&] { return printed->toPlainText().contains(QStringLiteral("fm ")); }));
  auto* const closes = whole.Window()->findChild<QAbstractButton*>(QStringLiteral("Command66"));
  QTest::mouseClick(closes, Qt::LeftButton);
  EXPECT_FALSE(station.Controls().Terminal.Frame19.Visible);

  bool ended = false;
  whole.Ended = [&] { ended = true; };
  whole.Window()->close();
  EXPECT_TRUE(Comes([&] { return ended; }));
  EXPECT_TRUE(Comes([this] { return IsReported("COMMAND scs-tnc %ZL"); })) << Reported();
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
