// The station against a real packet engine: direwolf decodes the sound of made packets, the station
// is connected to it over TCP, and what was heard is read back from its log.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QtTest/QTest>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "desktop/desktop_program.h"
#include "platform/absent_devices.h"
#include "platform/native/native_files.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_socket.h"
#include "station/station_program.h"
#include "tests/doubles/recorder_surface.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/integration/child_process_support.h"

namespace zepril {
namespace {

constexpr const char* kFolder = "C:\\ZEPRIL";
constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

class NoDesktop final : public DesktopActions {
 public:
  bool MainWindowActive() const override { return false; }
  bool WindowExists(const std::string&) const override { return false; }
  void Open(const std::string&) override {}
  bool MovePointerOnMap(int, int) override { return false; }
};

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// direwolf with two channels, fed with sound through a pipe.
class Engine {
 public:
  explicit Engine(const TempFolder& folder) : folder_(folder), Port(FreePort()) {
    std::ofstream(folder.Sub("engine.conf"))
        << "ADEVICE stdin null\nARATE 44100\nACHANNELS 2\n"
           "CHANNEL 0\nMYCALL N0DW\nMODEM 1200\nCHANNEL 1\nMYCALL N0DW\nMODEM 1200\n"
        << "AGWPORT " << WholeNumber(Port) << "\nKISSPORT 0\n";
    const std::string pipe = folder.Sub("sound");
    EXPECT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    // Held open for writing too, so that the engine never sees an end.
    sound_ = ::open(pipe.c_str(), O_RDWR | O_CLOEXEC);
    child_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"direwolf", "-t", "0", "-d", "a", "-c", folder.Sub("engine.conf"),
                                 "-"},
        sound_, folder.Sub("engine.log"));
  }
  ~Engine() {
    child_->End();
    ::close(sound_);
  }
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  bool Runs() { return child_->Runs(); }
  void End() { child_->End(); }
  std::string Log() const { return ReadWhole(folder_.Sub("engine.log")); }

  // The packet's sound on channel 1, with a pause behind it.
  void Play(const std::string& packet) {
    std::ofstream(folder_.Sub("packet"), std::ios::binary) << packet;
    const std::string wav = folder_.Sub("packet.wav");
    const std::string command = "gen_packets -r 44100 -o '" + wav + "' - <'" +
                                folder_.Sub("packet") + "' >'" + folder_.Sub("gen.log") + "' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0) << packet;
    constexpr std::size_t kWavHeader = 44;
    constexpr std::size_t kPause = 44100 / 5;
    const std::string samples = ReadWhole(wav).substr(kWavHeader);
    std::string stereo;
    for (std::size_t at = 0; at + 1 < samples.size(); at += 2) {
      stereo.append(2, '\0');
      stereo += samples.substr(at, 2);
    }
    stereo.append(4 * kPause, '\0');
    for (std::size_t at = 0; at < stereo.size();) {
      const ssize_t written = ::write(sound_, stereo.data() + at, stereo.size() - at);
      ASSERT_GT(written, 0);
      at += static_cast<std::size_t>(written);
    }
  }

 private:
  const TempFolder& folder_;
  int sound_ = -1;
  std::unique_ptr<ChildProcess> child_;

 public:
  const int Port;
};

class DirewolfTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* peer : {"direwolf", "gen_packets"}) {
      if (!IsInstalled(peer)) GTEST_SKIP() << peer << " (package direwolf) is not installed";
    }
    engine = std::make_unique<Engine>(folder);
    ASSERT_TRUE(Until([this] { return !engine->Runs() || Listens(engine->Port); }))
        << engine->Log();
    ASSERT_TRUE(engine->Runs()) << engine->Log();
    files.MakeFolder(kFolder);
    files.Write(std::string(kFolder) + "\\ZEPRIL.INI",
                "USER=QX7KB\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\nTEMP=C:\\ZEPRIL\\TEMP\r\n"
                "MODEM=3\r\nHOSTC=127.0.0.1\r\nHOSTP=" +
                    WholeNumber(engine->Port) +
                    "\r\nHBAUD=1200\r\nCALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5800\r\nUTE=400\r\n"
                    "UUN=5817.860\r\nUUE=391.394\r\n");
    program = std::make_unique<StationProgram>(
        StationPlatform{files, loop, dialogs, desktop, socket, modem, map_surface, base_surface,
                        sun_surface, tx_symbol_surface, object_symbol_surface});
  }

  // Serves the sockets until `reached`; false when that lasts too long.
  template <typename Condition>
  bool Until(Condition reached) {
    const double end = loop.MonotonicSeconds() + kPatience;
    while (!reached()) {
      if (loop.MonotonicSeconds() > end) return false;
      loop.Wait(0.02);
    }
    return true;
  }
  // The tick comes when the test says so, not every six seconds.
  void Tick() { loop.RunStep(program->Timer1().Elapsed); }
  // Plays, waits for the engine to hand the frame over, and lets one tick take it.
  void Hear(const std::string& packet) {
    engine->Play(packet);
    ASSERT_TRUE(Until([this] { return !program->State().Radio.AgwRxBuffer.empty(); }))
        << packet << "\n"
        << engine->Log();
    Tick();
  }
  std::vector<std::string> Heard() const {
    std::vector<std::string> records;
    files.ReadLines(std::string(kFolder) + "\\U33\\LOG\\_LOGL_.TXT", [&](std::string_view line) {
      records.emplace_back(line);
      return true;
    });
    return records;
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  QtLoop loop;
  ScriptedDialogs dialogs;
  NoDesktop desktop;
  QtSocket socket;
  AbsentSerialPort modem;
  RecorderSurface map_surface{800, 600};
  RecorderSurface base_surface{800, 600};
  RecorderSurface sun_surface{361, 91};
  RecorderSurface tx_symbol_surface{22, 22};
  RecorderSurface object_symbol_surface{22, 22};
  std::unique_ptr<Engine> engine;
  std::unique_ptr<StationProgram> program;
};

// One position heard twice within minutes counts as a repeat, so each packet has its own.
TEST_F(DirewolfTest, PacketsOfAllKindsReachTheLog) {
  ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
  Hear("N0CALL>APRS:=5230.00N/01324.00E>Test");
  Hear("QX2CD-7>APRS,QX0DIG*,WIDE2-1:!5232.00N/01324.00E[on foot");
  Hear("QX3EF>APRS:;WORKS A19*111111z5234.00N\\01324.00Ejone lane");
  Hear("QX4GH-9>UR3P00,WIDE1-1:`)4bl\"O>/>mobile");
  const std::vector<std::string> records = Heard();
  ASSERT_EQ(records.size(), 4U) << engine->Log();
  EXPECT_TRUE(Mid(records[0], 14).starts_with(" 5817.860  391.394'N0CALL    Test ")) << records[0];
  EXPECT_EQ(Mid(records[1], 14, 9), " 5821.568");
  EXPECT_TRUE(Mid(records[1], 33).starts_with("QX2CD-7   on foot ")) << records[1];
  EXPECT_EQ(Mid(records[2], 33, 9), "WORKS A19");
  EXPECT_EQ(Trim(Mid(records[3], 33, 9)), "QX4GH-9");
  for (const std::string& record : records)
    EXPECT_EQ(record.size(), 120U);
  EXPECT_EQ(program->State().Stores.MoniAllRecords.Count(), 4);
  program->Stop(true);
}

TEST_F(DirewolfTest, TheFollowedStationIsKeptApart) {
  ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
  Hear("QX1AB-9>APRS:=5230.00N/01324.00E>one");
  Hear("QX1AB-9>APRS:=5231.00N/01324.00E>two");
  EXPECT_EQ(program->State().Stores.Moni1Records.Count(), 2);
  EXPECT_EQ(program->State().Followed.MonitorInfo, "two");
  program->Stop(true);
}

TEST_F(DirewolfTest, AVanishedEngineShowsAsALostLinkWithoutABox) {
  ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
  Hear("N0CALL>APRS:=5230.00N/01324.00E>Test");
  EXPECT_EQ(program->Lamp().State, LampState::Data);
  engine->End();
  EXPECT_TRUE(Until([this] { return program->Lamp().State == LampState::Lost; }));
  Tick();
  EXPECT_EQ(program->State().Stores.MoniAllRecords.Count(), 1);
  program->Stop(true);
}

// As an operator runs it: the start window, Enter, ticks, the records in the log.
TEST_F(DirewolfTest, TheWholeProgramHearsItFromTheStartWindowOn) {
  ::setenv("ZEPRIL_DRIVE_C", folder.Path().c_str(), 1);
  files.MakeFolder(std::string(kFolder) + "\\U33\\M0050");  // maps are there: none is drawn
  DesktopProgram whole({kFolder, std::string(ZEPRIL_SOURCE_DIR) + "/data"});
  ASSERT_TRUE(whole.LoadFonts());
  whole.ShowStartWindow();
  QTest::keyClick(whole.Starting()->findChild<QWidget*>(QStringLiteral("Text8")), Qt::Key_Return);
  ASSERT_NE(whole.Window(), nullptr) << engine->Log();
  StationProgram& station = *whole.Station();
  engine->Play("N0CALL>APRS,QX0DIG*:=5230.00N/01324.00E>Test");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !station.State().Radio.AgwRxBuffer.empty(); },
                              static_cast<int>(kPatience * 1000)))
      << engine->Log();
  whole.Loop().RunStep(station.Timer1().Elapsed);
  const std::vector<std::string> records = Heard();
  ASSERT_EQ(records.size(), 1U);
  EXPECT_TRUE(Mid(records[0], 14).starts_with(" 5817.860  391.394'N0CALL    Test ")) << records[0];
  bool ended = false;
  whole.Ended = [&] { ended = true; };
  whole.Window()->close();
  EXPECT_TRUE(QTest::qWaitFor([&] { return ended; }, static_cast<int>(kPatience * 1000)));
  ::unsetenv("ZEPRIL_DRIVE_C");
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
