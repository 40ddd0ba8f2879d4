// The station against a real packet engine: direwolf decodes the sound of made packets, the station
// is connected to it over TCP, and what was heard is read back from its log. In the other direction
// the sound of what the station sends is decoded and compared.
#include <gtest/gtest.h>

#include <QApplication>
#include <QtTest/QTest>

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "desktop/desktop_program.h"
#include "links/agw_local.h"
#include "platform/absent_devices.h"
#include "platform/native/native_files.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_socket.h"
#include "platform/quiet_machine.h"
#include "station/station_program.h"
#include "tests/doubles/hurried_clock.h"
#include "tests/doubles/machine.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/recorded_surfaces.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/temp_folder.h"
#include "tests/integration/engine_support.h"
#include "tool/aprs_is_server.h"
#include "transmit/position_beacon.h"

namespace zepril {
namespace {

constexpr const char* kFolder = "C:\\ZEPRIL";
constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

// A socket that finds the engine of the test whatever port is asked for: the engine on this
// computer has a usual one.
class EngineSocket final : public TcpSocket {
 public:
  EngineSocket() {
    socket_.Connected = [this] {
      if (Connected) Connected();
    };
    socket_.DataArrived = [this](std::string_view bytes) {
      if (DataArrived) DataArrived(bytes);
    };
  }
  void Connect(const std::string& host, int) override { socket_.Connect(host, EnginePort); }
  void Close() override { socket_.Close(); }
  void Drop() override { socket_.Drop(); }
  SocketState State() const override { return socket_.State(); }
  bool Send(std::string_view bytes) override { return socket_.Send(bytes); }
  std::size_t UnsentBytes() const override { return socket_.UnsentBytes(); }

  int EnginePort = 0;

 private:
  QtSocket socket_;
};

// An engine that runs, and a loop.
class EngineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    const std::string missing = MissingOfTheEngine();
    if (!missing.empty()) GTEST_SKIP() << missing << " (package direwolf) is not installed";
    engine = std::make_unique<Engine>(folder);
    socket.EnginePort = engine->Port;
    ASSERT_TRUE(Until([this] { return !engine->Runs() || Listens(engine->Port); }))
        << engine->Log();
    ASSERT_TRUE(engine->Runs()) << engine->Log();
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
  // All that was on the air, as soon as it is this many packets.
  std::vector<OnAir> OnAirWhen(std::size_t packets) {
    std::vector<OnAir> decoded;
    Until([&] {
      decoded = engine->Transmitted();
      return decoded.size() >= packets;
    });
    return decoded;
  }

  TempFolder folder;
  NativeFiles files{folder.Path()};
  QtLoop loop;
  ScriptedDialogs dialogs;
  EngineSocket socket;
  std::unique_ptr<Engine> engine;
};

class DirewolfTest : public EngineTest, protected RecordedSurfaces {
 protected:
  void SetUp() override {
    EngineTest::SetUp();
    if (IsSkipped() || HasFatalFailure()) return;
    MakeStation(RadioMode::AgwRemote);
  }
  void MakeStation(RadioMode mode, const std::string& more_settings = {}) {
    files.MakeFolder(kFolder);
    files.Write(
        std::string(kFolder) + "\\ZEPRIL.INI",
        "USER=QX7KB\r\nTXID=10\r\nMSYS=U33\r\nUMAPS=C:\\ZEPRIL\\U33\r\n"
        "TEMP=C:\\ZEPRIL\\TEMP\r\nMODEM=" +
            WholeNumber(static_cast<int>(mode)) +
            "\r\nHOSTC=127.0.0.1\r\nHOSTP=" + WholeNumber(engine->Port) +
            "\r\nHBAUD=1200\r\nCALL=QX1AB-9\r\nLOGS=1\r\nIONA=0\r\nUTN=5800\r\nUTE=400\r\n"
            "UUN=5395.276\r\nUUE=-10.523\r\nTXON=10\r\nTXTO=ZEPR\r\n"
            "TXPA=WIDE1-1,WIDE2-1\r\nTXSY=30\r\nTXI1=Test\r\nTXI1A=1\r\nTXI2A=0\r\nTXI3A=0\r\n"
            "TXI4A=0\r\nTXI5A=0\r\nTXI6A=0\r\nONAM=WORKS\r\nOTXT=one lane\r\nOSYM=82\r\n"
            "OUTN=5817.860\r\nOUTE=391.394\r\n" +
            more_settings);
    program = std::make_unique<StationProgram>(MachineOf(
        files, loop, loop, dialogs, desktop, {{&socket, &server_socket}, {&modem}, Surfaces()}));
  }

  // The tick comes when the test says so, not every six seconds.
  void Tick() { loop.RunStep(program->Timer1().Elapsed); }
  // Plays, waits for the engine to hand the frame over, and lets one tick take it.
  void Hear(const std::string& packet) {
    // What is heard before the engine has taken the request to monitor is lost.
    ASSERT_TRUE(Until([&] { return engine->Monitors(); })) << engine->Log();
    loop.HandOver();
    ASSERT_TRUE(engine->Play(packet)) << packet;
    const double before = program->State().Radio.LastDataSeconds;
    ASSERT_TRUE(Until([&] { return program->State().Radio.LastDataSeconds > before; }))
        << packet << "\n"
        << engine->Log();
    Tick();
  }
  // The operator's press, as a step of the program.
  void Switch(CheckBox& box, int value) {
    box.Value = value;
    loop.RunStep(box.Click);
  }
  // Position and object on the air, TX SETUP, and what is heard meanwhile.
  void ExpectASessionOnTheAir() {
    TransmitControls& transmit = program->Controls().Transmit;
    TxSetupControls& setup = program->Controls().TxSetup;
    Switch(transmit.Check6, 1);
    Tick();
    const std::string report = "QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test";
    EXPECT_EQ(OnAirWhen(1), (std::vector<OnAir>{{1, report}})) << engine->Log();
    Hear("QX2CD-7>APRS,QX0DIG*,WIDE2-1:!5232.00N/01324.00E[on foot");
    // The object first; the position, which is due too, a tick later.
    Switch(transmit.Check18, 1);
    program->State().Transmission.LastBeaconTime = 0;
    Tick();
    const std::vector<OnAir> object = OnAirWhen(2);
    ASSERT_EQ(object.size(), 2U) << engine->Log();
    EXPECT_TRUE(object[1].Packet.starts_with("QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:;WORKS    *"));
    EXPECT_TRUE(object[1].Packet.ends_with("z5230.00N/01324.00Er one lane"));
    Tick();
    EXPECT_EQ(OnAirWhen(3).back(), (OnAir{1, report}));
    // What the engine shows of the own transmissions is no station.
    Tick();
    // Another name and path, and a speed of the other channel.
    loop.RunStep(transmit.Check6.RightClick);
    setup.TxSsid.Text = "7";
    setup.TxPathField.Text = "wide2-2";
    for (OptionButton& speed : setup.Speeds)
      speed.Value = &speed == &setup.Speeds[1];
    loop.RunStep(setup.Speeds[1].Click);
    loop.RunStep(setup.TxOk.Click);
    Switch(transmit.Check18, 0);
    Tick();
    EXPECT_EQ(OnAirWhen(4).front(), (OnAir{0, "QX7KB-7>ZEPR,WIDE2-2:=4830.15N/00805.20E> Test"}))
        << engine->Log();
    // The link still hears.
    Hear("QX3EF>APRS:=5234.00N/01324.00E>afterwards");
    Tick();
    const std::vector<std::string> records = Heard();
    ASSERT_EQ(records.size(), 2U) << ::testing::PrintToString(records);
    EXPECT_TRUE(Mid(records[0], 33).starts_with("QX2CD-7   on foot "));
    EXPECT_TRUE(Mid(records[1], 33).starts_with("QX3EF     afterwards "));
  }
  std::vector<std::string> Heard() const {
    std::vector<std::string> records;
    files.ReadLines(std::string(kFolder) + "\\U33\\LOG\\_LOGL_.TXT", [&](std::string_view line) {
      records.emplace_back(line);
      return true;
    });
    return records;
  }

  QuietDesktop desktop;
  QtSocket server_socket;  // to the APRS-IS server
  AbsentSerialPort modem;
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

TEST_F(DirewolfTest, ASessionOnTheAirThroughARemoteEngine) {
  ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
  ExpectASessionOnTheAir();
  program->Stop(true);
}

TEST_F(DirewolfTest, ASessionOnTheAirThroughALocalEngine) {
  MakeStation(RadioMode::AgwLocal);
  ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
  ExpectASessionOnTheAir();
  program->Stop(true);
}

// ---- Gate ------------------------------------------------------------------------------------

// The station between the engine that hears and a server that writes down what it gets.
class GateTest : public DirewolfTest {
 protected:
  void SetUp() override {
    DirewolfTest::SetUp();
    if (IsSkipped() || HasFatalFailure()) return;
    server = AprsIsServer::Open(0, {}, loop);
    ASSERT_NE(server, nullptr);
    server->Line = [this](std::string_view line) {
      // What the station says of itself comes every twenty minutes, whenever the test runs.
      if (line.find("IGate R->I") == std::string_view::npos) lines.emplace_back(line);
    };
    MakeStation(RadioMode::AgwLocal,
                "IGATE=1\r\nAISRV=127.0.0.1\r\nAIPRT=" + WholeNumber(server->Port()) + "\r\n");
  }
  template <typename Condition>
  bool Served(Condition reached) {
    return Until([&] {
      server->Serve(0);
      return reached();
    });
  }
  InternetState& Internet() { return program->State().Internet; }
  void LogIn() {
    ASSERT_TRUE(program->Start(kFolder, 32)) << engine->Log();
    Tick();
    ASSERT_TRUE(Served([this] { return server_socket.State() == SocketState::Connected; }));
    Tick();
    ASSERT_TRUE(Served(
        [this] { return Internet().AprsIsRxBuffer.find(" verified") != std::string::npos; }));
    Tick();
    ASSERT_EQ(Internet().IGateConnected, GateLink::Up);
    lines.clear();
  }
  // What the operator is told of the last that stayed behind, without its time.
  std::string LastReason() {
    program->SecondPassed();
    const std::string& words = program->Controls().Gate.GateWords.ToolTip;
    const std::size_t colon = words.find(": ");
    return colon == std::string::npos ? words : words.substr(colon + 2);
  }

  std::unique_ptr<AprsIsServer> server;
  std::vector<std::string> lines;
};

TEST_F(GateTest, WhatTheEngineHearsReachesTheServerOrStaysForItsReason) {
  const struct {
    const char* Heard;
    const char* Line;  // without its end; empty: stays
    const char* Why;
  } kRows[] = {
      {"QX2CD-7>APRS:!5232.00N/01324.00E[on foot",
       "QX2CD-7>APRS,qAR,QX7KB-10:!5232.00N/01324.00E[on foot", ""},
      {"QX2CD-7>APRS:!5232.00N/01324.00E[on foot", "", "like one of the last half minute"},
      {"QX3EF>APRS,WIDE1-1,WIDE2-1:=5234.00N/01324.00E>by way of",
       "QX3EF>APRS,WIDE1-1,WIDE2-1,qAR,QX7KB-10:=5234.00N/01324.00E>by way of", ""},
      {"QX4GH-9>UR3P00:`)4bl\"O>/>mobile", "QX4GH-9>UR3P00,qAR,QX7KB-10:`)4bl\"O>/>mobile", ""},
      {"QX5IJ>APRS,NOGATE:>not for the internet", "",
       "NOGATE, RFONLY, TCPIP or TCPXX in its header"},
      {"QX5IJ>APRS,RFONLY:>nor this", "", "NOGATE, RFONLY, TCPIP or TCPXX in its header"},
      {"QX5IJ>APRS,TCPIP:>nor this", "", "NOGATE, RFONLY, TCPIP or TCPXX in its header"},
      {"QX5IJ>APRS:}QX6KL>APRS,NET:>forwarded", "", "forwarded, or a query"},
      {"QX5IJ>APRS:?APRS?", "", "forwarded, or a query"},
      {"QX7KB-10>ZEPR,WIDE1-1:=4830.15N/00805.20E> Test",
       "QX7KB-10>ZEPR,WIDE1-1,qAR,TCPIP:=4830.15N/00805.20E> Test", ""},
      {"QX8MN>APRS:>caf\xE9 <0xe4><0xfe><0x1c><0x1d><0x7f><0x07> end<0x20><0x20>",
       "QX8MN>APRS,qAR,QX7KB-10:>caf\xE9 \xE4\xFE\x1C\x1D\x7F\x07 end  ", ""},
      {"QX9OP>APRS::QX7KB-10 :Hello{01", "QX9OP>APRS,qAR,QX7KB-10::QX7KB-10 :Hello{01", ""},
  };
  LogIn();
  std::vector<std::string> expected;
  for (const auto& row : kRows) {
    Hear(row.Heard);
    const std::string line = row.Line;
    if (!line.empty()) expected.push_back(line + "\r\n");
    ASSERT_TRUE(Served([&] { return lines.size() >= expected.size(); })) << row.Heard;
    if (line.empty()) {
      EXPECT_EQ(LastReason(), row.Why) << row.Heard;
    }
  }
  EXPECT_EQ(lines, expected) << engine->Log();
  program->Stop(true);
  EXPECT_TRUE(Served([this] { return server->Clients() == 0; }));
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
  // What is heard before the engine has taken the request to monitor is lost.
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return engine->Monitors(); }, static_cast<int>(kPatience * 1000)))
      << engine->Log();
  ASSERT_TRUE(engine->Play("N0CALL>APRS,QX0DIG*:=5230.00N/01324.00E>Test"));
  // A tick of its own may take it before this one does.
  ASSERT_TRUE(QTest::qWaitFor(
      [&] { return !station.State().Radio.AgwRxBuffer.empty() || !Heard().empty(); },
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

// ---- What is sent ----------------------------------------------------------------------------

// The rooms through which a report goes out by an engine.
class SendingTest : public EngineTest {
 protected:
  SendingTest() {
    state.Identity.MyCall = "QX7KB";
    state.Identity.MySsid = "10";
    state.Identity.MyCallFull = "QX7KB-10";
    state.Map.OwnNorthKm = 5395.276;
    state.Map.OwnEastKm = -10.523;
    state.Transmission.TxPath = "WIDE1-1,WIDE2-1";
    state.Transmission.TxSymbolIndex = 30;
    state.Transmission.InfoLine[0] = "Test";
    state.Transmission.InfoLineActive = {1, 0, 0, 0, 0, 0};
  }
  void ConnectRemote(const std::string& baud_mode) {
    state.Radio.RadioMode = static_cast<int>(RadioMode::AgwRemote);
    state.Radio.BaudMode = baud_mode;
    state.Radio.AgwHost = "127.0.0.1";
    state.Radio.AgwTcpPort = WholeNumber(engine->Port);
    remote.emplace(state.Radio, state.Identity, state.Transmission, socket, loop, dialogs, nobody);
    ASSERT_TRUE(remote->ConnectAgw()) << engine->Log();
    MakeBeacon();
  }
  void ConnectLocal(const std::string& baud_mode) {
    state.Radio.RadioMode = static_cast<int>(RadioMode::AgwLocal);
    state.Radio.BaudMode = baud_mode;
    remote.emplace(state.Radio, state.Identity, state.Transmission, unused, loop, dialogs, nobody);
    ASSERT_TRUE(local.AGWStartPoll("ZEPRIL", state.Identity.MyCallFull)) << engine->Log();
    MakeBeacon();
  }
  void MakeBeacon() {
    links.emplace(
        RadioLinksSections{state.Identity, state.Radio, state.Reception, state.Transmission},
        RadioLinksTools{local, *remote, no_modem, modem, hurried});
    sender.emplace(*links, hurried);
    beacon.emplace(
        BeaconSections{state.Identity, state.Transmission, state.Map, state.Gps, state.Settings},
        BeaconTools{*sender, symbols, files, loop, window, map});
  }

  RuntimeState state;
  WindowControls window;
  MapControls map;
  SymbolTable symbols;
  NotedEnd nobody;
  AbsentSerialPort modem;
  HurriedClock hurried{loop, 20.0};  // for the pause behind each frame
  QtSocket unused;
  AgwLocal local{state.Radio, socket, loop};
  std::optional<AgwLink> remote;
  RecordedProgress work;
  SerialModem no_modem{state.Identity, state.Radio, state.Transmission, {modem, loop, work}};
  std::optional<RadioLinks> links;
  std::optional<FrameSender> sender;
  std::optional<PositionBeacon> beacon;
};

TEST_F(SendingTest, ARemoteEnginePutsTheReportOnTheAir) {
  ConnectRemote("1200");
  beacon->SendPositionBeacon();
  EXPECT_EQ(OnAirWhen(1),
            (std::vector<OnAir>{{1, "QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test"}}))
      << engine->Log();
  // Another speed keeps the engine's port but for 300 Bd; an empty path is no path.
  state.Radio.BaudMode = "9600";
  state.Transmission.TxPath.clear();
  state.Transmission.TxDestination = "APRS";
  beacon->SendPositionBeacon();
  EXPECT_EQ(OnAirWhen(2).back(), (OnAir{1, "QX7KB-10>APRS:=4830.15N/00805.20E> Test"}))
      << engine->Log();
  state.Radio.BaudMode = "300R";
  state.Transmission.InfoLine[0].clear();
  beacon->SendPositionBeacon();
  EXPECT_EQ(OnAirWhen(3).front(), (OnAir{0, "QX7KB-10>APRS:=4830.15N/00805.20E>"}))
      << engine->Log();
  remote->DisconnectAgw();
}

TEST_F(SendingTest, ALocalEnginePutsTheReportOnTheAir) {
  ConnectLocal("1200");
  beacon->SendPositionBeacon();
  EXPECT_EQ(OnAirWhen(1),
            (std::vector<OnAir>{{1, "QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test"}}))
      << engine->Log();
  // Every other speed goes out on the first port.
  state.Radio.BaudMode = "9600";
  state.Transmission.TxPath.clear();
  beacon->SendPositionBeacon();
  EXPECT_EQ(OnAirWhen(2).front(), (OnAir{0, "QX7KB-10>ZEPR:=4830.15N/00805.20E> Test"}))
      << engine->Log();
  local.AGWClose();
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const QApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
