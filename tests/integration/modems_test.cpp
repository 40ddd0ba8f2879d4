// Serial modems over real pseudo-terminals: the sequences of the program against the models of the
// companion tool, and against lines that misbehave. The program's clock runs faster than the
// world's.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/state/identity.h"
#include "core/state/internet.h"
#include "core/state/radio.h"
#include "core/state/reception.h"
#include "core/state/transmission.h"
#include "links/modem_script.h"
#include "links/setup_sequences.h"
#include "platform/absent_devices.h"
#include "platform/qt/qt_loop.h"
#include "platform/qt/qt_serial_port.h"
#include "reception/collector.h"
#include "tests/doubles/babbler.h"
#include "tests/doubles/hurried_clock.h"
#include "tests/doubles/pseudo_terminal.h"
#include "tests/doubles/served_modem.h"
#include "tests/doubles/temp_folder.h"
#include "tests/integration/child_process_support.h"
#include "tests/links/open_modem_script.h"
#include "tool/pk232_model.h"
#include "tool/scs_ptc_model.h"
#include "tool/scs_tnc_model.h"
#include "tool/tnc2.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

constexpr double kPatience = 20.0;  // seconds for what a busy computer does in one

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The radio side of a program, set up for a station.
class ModemsTest : public ::testing::Test {
 protected:
  explicit ModemsTest(double hurry = 20.0) : clock(loop, hurry) {
    identity.MyCall = "QX7KB";
    identity.MySsid = "10";
    identity.MyCallFull = "QX7KB-10";
    radio.BaudMode = "300R";
    radio.CrossMode = "300";
    radio.TxAudioLevel = 250;
    radio.DigiOn = Digipeater::On;
    transmission.TxDestination = "ZEPR";
    transmission.TxPath = "WIDE1-1,WIDE2-1";
    ::setenv("ZEPRIL_COM1", folder.Sub("modem").c_str(), 1);
    ::setenv("ZEPRIL_COM3", folder.Sub("modem").c_str(), 1);
  }
  ~ModemsTest() override {
    ::unsetenv("ZEPRIL_COM1");
    ::unsetenv("ZEPRIL_COM3");
  }

  ModemSections Sections() const { return {identity, radio, transmission}; }
  ModemSections Sections(RadioMode mode) {
    radio.RadioMode = static_cast<int>(mode);
    return Sections();
  }
  void Run(const ModemScript& script) { RunModemScript(script, port, clock); }
  // Lets the loop run until `done`.
  bool Comes(const std::function<bool()>& done) {
    const double end = loop.MonotonicSeconds() + kPatience;
    while (!done()) {
      if (loop.MonotonicSeconds() > end) return false;
      loop.Wait(0.005);
    }
    return true;
  }

  TempFolder folder;
  QtLoop loop;
  HurriedClock clock;
  QtSerialPort port;
  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
};

// ---- Against modems that do what they should --------------------------------------------------

class ModelsTest : public ModemsTest {
 protected:
  template <class Model>
  void TurnOn() {
    modem = std::make_unique<ServedModem>(folder.Sub("modem"), std::make_unique<Model>());
    ASSERT_TRUE(modem->Stands());
  }
  // The modem has dealt with everything that was said to it.
  void Settle() {
    std::size_t before = 0;
    ASSERT_TRUE(Comes([&] {
      const std::size_t taken = modem->BytesTaken();
      const bool settled = port.BytesToWrite() == 0 && taken == before;
      before = taken;
      return settled;
    }));
  }
  void Start() {
    Run(TncSetupScript(Sections()));
    EXPECT_FALSE(port.IsOpen());
    Settle();
  }
  void OpenForTheRun() {
    Run(OpenModemScript(Sections()));
    ASSERT_TRUE(port.IsOpen()) << port.Trouble();
    Settle();
    EXPECT_TRUE(modem->Runs());
    port.ReadAll();
  }
  // Every packet as reception collects it.
  std::string Received(const Lines& packets) {
    for (const std::string& packet : packets)
      modem->Hear(ReadAirScript(packet).Packets.at(0));
    std::string normal;
    HeardTexts heard(radio, reception, engine, port, clock);
    Collector collector(radio, internet, heard, nullptr);
    const std::string expected = Normal(packets);
    Comes([&] {
      std::string collected;
      collector.Collect(collected);
      normal += collected;
      return normal.size() >= expected.size();
    });
    return normal;
  }
  static std::string Normal(const Lines& packets) {
    std::string normal;
    for (const std::string& packet : packets) {
      std::string frame;
      EXPECT_TRUE(Tnc2ToNormal(packet, frame));
      normal += frame;
    }
    return normal;
  }
  // What the modem says it was asked to transmit when `text` goes out.
  Lines SentFor(const std::string& text) {
    const std::size_t before = modem->Sent().size();
    port.Write(text + '\r');
    Comes([&] { return modem->Sent().size() > before; });
    const Lines sent = modem->Sent();
    return {sent.begin() + static_cast<std::ptrdiff_t>(before), sent.end()};
  }
  void ExpectSettings(const std::vector<std::pair<std::string, std::string>>& expected) {
    for (const auto& [name, value] : expected)
      EXPECT_EQ(modem->Setting(name), value) << name;
  }

  std::unique_ptr<ServedModem> modem;
  ReceptionState reception;
  InternetState internet;
  AbsentEngine engine;
};

const Lines kPackets = {"N0CALL>APRS,WIDE1-1:!5230.00N/01324.00E>direct",
                        "QX1AB-9>APRS,QX0DIG*,WIDE2-1:=5405.39N/01208.37E>on the road",
                        "QX2CD>APRS,RELAY,QX0DIG*:>status"};

TEST_F(ModelsTest, APk232IsSetUpHeardAndMadeToSend) {
  TurnOn<Pk232Model>();
  radio.RadioMode = static_cast<int>(RadioMode::Pk232);
  radio.TncBaud = "9600";
  Start();
  ExpectSettings({{"MYCALL", "QX7KB-10"},
                  {"UNPROTO", "ZEPR VIA WIDE1-1,WIDE2-1"},
                  {"HBAUD", "300"},
                  {"VHF", "OFF"},
                  {"TBAUD", "9600"},
                  {"ECHO", "OFF"},
                  {"MONITOR", "5"},
                  {"MFILTER", "$0"},
                  {"AWLEN", "8"},
                  {"8BITCONV", "ON"},
                  {"DIGIPEAT", "ON"},
                  {"DFROM", "ALL"},
                  {"MYALIAS", "WIDE1-1"}});
  EXPECT_EQ(modem->Sent(), Lines{});
  OpenForTheRun();
  EXPECT_EQ(Received(kPackets), Normal(kPackets));
  EXPECT_EQ(SentFor("=4830.15N/00805.20E> Test"),
            Lines{"SENT pk232 300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test\n"});

  identity.MySsid = "7";
  identity.MyCallFull = "QX7KB-7";
  transmission.TxPath.clear();
  radio.DigiOn = Digipeater::Off;
  Run(ApplyTxSetupScript(Sections()));
  Settle();
  ExpectSettings({{"MYCALL", "QX7KB-7"},
                  {"UNPROTO", "ZEPR"},
                  {"DIGIPEAT", "OFF"},
                  {"DFROM", "NONE"},
                  {"MYALIAS", "NONE"}});
  EXPECT_EQ(SentFor(">status"), Lines{"SENT pk232 300 QX7KB-7>ZEPR:>status\n"});
  Run(LeaveModemScript(radio));
  Settle();
  EXPECT_FALSE(modem->Runs());
}

TEST_F(ModelsTest, AnScsTncIsSetUpHeardAndMadeToSend) {
  TurnOn<ScsTncModel>();
  radio.RadioMode = static_cast<int>(RadioMode::ScsTnc);
  radio.HfDualOn = 1;
  radio.TxAfc = 2;
  Start();
  ExpectSettings({{"I", "QX7KB-10"},
                  {"%AM", "QX7KB-10"},
                  {"C", "ZEPR WIDE1-1,WIDE2-1"},
                  {"%B", "R300"},
                  {"%X", "250"},
                  {"%F", "2000"},
                  {"%T", "2"},
                  {"%AG", "H"},
                  {"R", "1"},
                  {"%AD", "3"},
                  {"%AU", "1"},
                  {"M", "U"},
                  {"E", "0"},
                  {"X", "1"},
                  {"P", "255"}});
  EXPECT_EQ(modem->Sent(), Lines{});
  OpenForTheRun();
  EXPECT_EQ(Received(kPackets), Normal(kPackets));
  EXPECT_EQ(SentFor("=4830.15N/00805.20E> Test"),
            Lines{"SENT scs-tnc R300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test\n"});

  // The answers of the second mode's switching stand between two packets.
  Run(SecondModeScript(radio, false));
  Run(SecondModeScript(radio, true));
  EXPECT_EQ(Received(kPackets), Normal(kPackets));

  radio.BaudMode = "1200";
  radio.CrossMode = "NONE";
  radio.DigiOn = Digipeater::Off;
  radio.HfDualOn = 0;
  transmission.TxDestination = "APRS";
  Run(ApplyTxSetupScript(Sections()));
  Settle();
  ExpectSettings({{"%B", "1200"},
                  {"C", "APRS WIDE1-1,WIDE2-1"},
                  {"%AG", "NONE"},
                  {"R", "0"},
                  {"%AD", "0"},
                  {"%AU", "0"}});
  EXPECT_EQ(SentFor(">status"), Lines{"SENT scs-tnc 1200 QX7KB-10>APRS,WIDE1-1,WIDE2-1:>status\n"});
}

TEST_F(ModelsTest, AnScsPtcIsSetUpHeardAndMadeToSend) {
  TurnOn<ScsPtcModel>();
  radio.RadioMode = static_cast<int>(RadioMode::ScsPtc);
  Start();
  ExpectSettings({{"MYCALL", "QX7KB-10"},
                  {"MYCALL 2", "WIDE1-1"},
                  {"MYCALL 3", "RELAY"},
                  {"MYCALL 4", "ECHO"},
                  {"SETCHN", "1"},
                  {"UNPROTO", "ZEPR WIDE1-1 WIDE2-1"},
                  {"MONITOR", "1"},
                  {"B", "R300"},
                  {"TXL A", "250"},
                  {"TXL F", "250"},
                  {"TXDELAY", "1:300"},
                  {"DIGI", "ON"},
                  {"MFI", "128"},
                  {"TERM", "0"}});
  EXPECT_EQ(modem->Sent(), Lines{});
  OpenForTheRun();
  EXPECT_EQ(Received(kPackets), Normal(kPackets));
  EXPECT_EQ(SentFor("=4830.15N/00805.20E> Test"),
            Lines{"SENT scs-ptc R300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test\n"});

  radio.BaudMode = "300";
  radio.DigiOn = Digipeater::Off;
  transmission.TxPath = "WIDE1-1";
  Run(ApplyTxSetupScript(Sections()));
  Settle();
  ExpectSettings({{"B", "300"}, {"DIGI", "OFF"}, {"UNPROTO", "ZEPR WIDE1-1"}});
  EXPECT_EQ(SentFor(">status"), Lines{"SENT scs-ptc 300 QX7KB-10>ZEPR,WIDE1-1:>status\n"});
  Run(LeaveModemScript(radio));
  Settle();
  EXPECT_FALSE(modem->Runs());
  EXPECT_EQ(modem->Setting("TERM"), "4");
}

TEST_F(ModelsTest, TheToolPlaysAFileAndReportsWhatItIsAskedToSend) {
  const std::string play = folder.Sub("play");
  const std::string log = folder.Sub("log");
  {
    std::ofstream file(play);
    for (const std::string& packet : kPackets)
      file << packet << '\n';
  }
  const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
  ChildProcess tool(
      {ZEPRIL_TOOL, "air", "--scs-tnc", folder.Sub("modem"), "--play", play, "--rate", "20"},
      nothing, log);
  ASSERT_TRUE(Comes([&] { return ReadWhole(log).find("READY scs-tnc ") == 0; })) << ReadWhole(log);
  Run(TncSetupScript(Sections(RadioMode::ScsTnc)));
  Run(OpenModemScript(Sections()));
  ASSERT_TRUE(port.IsOpen()) << port.Trouble();

  HeardTexts heard(radio, reception, engine, port, clock);
  Collector collector(radio, internet, heard, nullptr);
  std::string collected;
  EXPECT_TRUE(Comes([&] {
    collector.Collect(collected);
    return collected.size() >= Normal(kPackets).size();
  }));
  EXPECT_EQ(collected, Normal(kPackets));
  port.Write("=4830.15N/00805.20E>\r");
  EXPECT_TRUE(Comes([&] {
    return ReadWhole(log).ends_with(
        "SENT scs-tnc R300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E>\n");
  })) << ReadWhole(log);
  EXPECT_NE(ReadWhole(log).find("\nCOMMAND scs-tnc %AMQX7KB-10\n"), std::string::npos);
  tool.AskToEnd();
  EXPECT_TRUE(Comes([&] { return !tool.Runs(); }));
  EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(folder.Sub("modem"))));
  EXPECT_TRUE(Comes([&] { return !port.IsOpen(); }));
}

// ---- Against lines that misbehave -------------------------------------------------------------

constexpr RadioMode kSerialModes[] = {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc};

class BadLinesTest : public ModemsTest {
 protected:
  BadLinesTest() : ModemsTest(200.0) {}

  // Runs what the program says at START and at the opening; how long it asked to wait.
  double WaitedFor(RadioMode mode) {
    const double before = clock.Waited;
    Run(TncSetupScript(Sections(mode)));
    Run(OpenModemScript(Sections(mode)));
    return clock.Waited - before;
  }
  double DescribedWaits(RadioMode mode) {
    return TncSetupScript(Sections(mode)).Seconds() + OpenModemScript(Sections(mode)).Seconds();
  }
  void Link(const PseudoTerminal& line) {
    std::filesystem::remove(folder.Sub("modem"));
    std::filesystem::create_symlink(line.Path(), folder.Sub("modem"));
  }
};

TEST_F(BadLinesTest, AnAbsentModemCostsTheWaitsAndNoMore) {
  for (const RadioMode mode : kSerialModes) {
    EXPECT_NEAR(WaitedFor(mode), DescribedWaits(mode), 1e-6);
    EXPECT_FALSE(port.IsOpen());
  }
}

TEST_F(BadLinesTest, AModemThatNeverAnswersCostsTheWaitsAndNoMore) {
  PseudoTerminal line;
  Link(line);
  for (const RadioMode mode : kSerialModes) {
    EXPECT_NEAR(WaitedFor(mode), DescribedWaits(mode), 1.0);
    EXPECT_TRUE(port.IsOpen());
    EXPECT_FALSE(line.Heard().empty());
    port.Close();
  }
}

TEST_F(BadLinesTest, GarbageWithoutEndCostsTheWaitsAndNoMore) {
  PseudoTerminal line;
  Link(line);
  const Babbler babbler(line, "\xFF\x1B%fm \r\n* to via ctl UI pid F0\r\n");
  for (const RadioMode mode : kSerialModes) {
    EXPECT_NEAR(WaitedFor(mode), DescribedWaits(mode), 1.0);
    port.Close();
  }
}

TEST_F(BadLinesTest, PromptsWithoutEndAreGivenUp) {
  PseudoTerminal line;
  Link(line);
  const Babbler babbler(line, "cmd:");
  const double waited = WaitedFor(RadioMode::Pk232);
  EXPECT_LE(waited, DescribedWaits(RadioMode::Pk232) + kMostPrompts + 1.0);
}

TEST_F(BadLinesTest, AModemThatHangsUpInTheMiddleCostsTheWaitsAndNoMore) {
  for (const RadioMode mode : kSerialModes) {
    ServedModem modem(folder.Sub("modem"), std::make_unique<Pk232Model>());
    ASSERT_TRUE(modem.Stands());
    modem.HangUpBehind(30);
    EXPECT_NEAR(WaitedFor(mode), DescribedWaits(mode), 1.0);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_FALSE(port.Trouble().empty());
  }
}

TEST_F(BadLinesTest, APortOfAnotherProgramIsLeftAlone) {
  PseudoTerminal line;
  Link(line);
  QtSerialPort other;
  ASSERT_TRUE(other.Open(line.Path(), 9600)) << other.Trouble();
  for (const RadioMode mode : kSerialModes) {
    EXPECT_NEAR(WaitedFor(mode), DescribedWaits(mode), 1e-6);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(port.Trouble(), line.Path() + " is used by another program.");
  }
  EXPECT_EQ(line.Heard(), "");
  other.Write("still mine");
  EXPECT_TRUE(Comes([&] { return line.Heard() == "still mine"; }));
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
