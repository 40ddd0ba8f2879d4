// The whole program with each of the three serial modems, over real pseudo-terminals: what it hears
// from them, what they are asked to transmit, what they are set to, and what they are left in.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/text_fields.h"
#include "tests/integration/modem_station_support.h"
#include "tool/tnc2.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

class ModemStationTest : public ::testing::TestWithParam<RadioMode> {
 protected:
  RadioMode Mode() const { return GetParam(); }
  // A modem that START has set up lies on the line.
  void PlugIn() {
    modem =
        std::make_unique<ServedModem>(station.Link(), MakeModelSetUpBy(Mode(), station.SetUp()));
    ASSERT_TRUE(modem->Stands());
    modem->NewCommands();
  }
  // One as it comes from the shop.
  void PlugInUntouched() {
    modem = std::make_unique<ServedModem>(station.Link(), MakeModel(Mode()));
    ASSERT_TRUE(modem->Stands());
  }
  void Unplug() { modem.reset(); }
  // Packets that the modem was asked to transmit, under whatever call.
  int Aired() { return static_cast<int>(modem->Sent().size()); }
  int AiredUnderItsCall() {
    return modem->Ask<int>([](PtyModem& pty) { return pty.Model().Aired("QX7KB-10"); });
  }
  void PlugInAndStart() {
    PlugIn();
    ASSERT_TRUE(station.Start());
    ASSERT_TRUE(station.port.IsOpen()) << station.port.Trouble();
    ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  }
  void Hear(const std::string& packet) { modem->Hear(ReadAirScript(packet).Packets.at(0)); }
  // The packet is heard and becomes the newest station of the store.
  void ExpectHeard(const std::string& call, const std::string& text) {
    const int before = station.Records();
    Hear(call + ">APRS,QX0DIG*,WIDE2-1:=5230." + ZeroPadded(before, 2) + "N/01324.00E>" + text);
    ASSERT_TRUE(station.RunUntil([&] { return station.Records() > before; }));
    const StationRecord& record = station.State().Stores.MoniAllRecords.At(before + 1);
    EXPECT_EQ(Trim(record.Columns(33, 41)), call);
    EXPECT_EQ(Trim(record.Columns(43, 89)), text);
    EXPECT_EQ(Trim(record.Columns(91, 99)), "QX0DIG");
    EXPECT_EQ(station.Records(), before + 1);
  }
  // What the modem was asked to transmit since the last look, as soon as it is anything.
  Lines Sent() {
    station.Comes([this] { return modem->Sent().size() > seen; });
    const Lines all = modem->Sent();
    const Lines fresh(all.begin() + static_cast<std::ptrdiff_t>(seen), all.end());
    seen = all.size();
    return fresh;
  }
  // "SENT pk232 300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:text".
  Lines SentLineOf(const std::string& path, const std::string& text) const {
    return {std::string("SENT ") + Word() + " 300 QX7KB-10>" + path + ":" + text + "\n"};
  }
  const char* Word() const {
    if (Mode() == RadioMode::Pk232) return "pk232";
    return Mode() == RadioMode::ScsTnc ? "scs-tnc" : "scs-ptc";
  }
  LampState Lamp() const { return station.program->Lamp().State; }
  TransmitControls& Transmit() { return station.Controls().Transmit; }
  TerminalControls& Terminal() { return station.Controls().Terminal; }
  void Type(const std::string& text) {
    for (const char character : text)
      Terminal().Text19.KeyTyped(character);
  }

  ModemStation station{GetParam()};
  std::unique_ptr<ServedModem> modem;
  std::size_t seen = 0;
};

INSTANTIATE_TEST_SUITE_P(EveryModem, ModemStationTest,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOfModem);

constexpr const char* kReport = "=4830.15N/00805.20E> Test";

TEST_P(ModemStationTest, AnUntouchedModemIsSetUpHeardMadeToSendAndLeft) {
  modem = std::make_unique<ServedModem>(station.Link(), MakeModel(Mode()));
  ASSERT_TRUE(station.PressStart());
  EXPECT_FALSE(station.port.IsOpen());
  ASSERT_TRUE(station.Start());
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  EXPECT_NE(Lamp(), LampState::Lost);
  EXPECT_FALSE(station.Controls().Status.LinkNotice.Visible);
  ExpectHeard("QX2CD", "hello");
  EXPECT_EQ(Lamp(), LampState::Data);
  EXPECT_EQ(modem->Sent(), Lines{});

  EXPECT_TRUE(station.Switch(Transmit().Check6, 1));
  station.RunATick();
  EXPECT_EQ(Sent(), SentLineOf("ZEPR,WIDE1-1,WIDE2-1", kReport));
  // What the modem answers to it, its echo too, stands in nobody's way.
  ExpectHeard("QX3EF", "behind the report");

  modem->NewCommands();
  station.program->Stop(true);
  EXPECT_FALSE(station.port.IsOpen());
  const Lines farewell = Mode() == RadioMode::Pk232    ? Lines{}
                         : Mode() == RadioMode::ScsTnc ? Lines{"%ZL"}
                                                       : Lines{"Q", "RESET"};
  Lines commands;
  EXPECT_TRUE(station.Comes([&] {
    for (const std::string& command : modem->NewCommands())
      commands.push_back(command);
    return commands.size() >= farewell.size() && (Mode() == RadioMode::ScsTnc || !modem->Runs());
  }));
  EXPECT_EQ(commands, farewell);
  EXPECT_EQ(modem->Sent().size(), seen);
}

TEST_P(ModemStationTest, TxSetupProgramsTheModemAndTheNextReportTakesTheNewPath) {
  PlugInAndStart();
  station.Switch(Transmit().Check6, 1);
  Transmit().Check6.RightClick();
  ASSERT_TRUE(station.Controls().TxSetup.Frame4.Visible);
  // While the panel is open nothing goes out.
  station.RunATick();
  EXPECT_EQ(modem->Sent(), Lines{});
  modem->NewCommands();
  station.Controls().TxSetup.TxPathField.Text = "wide2-2";
  station.Controls().TxSetup.TxDestinationField.Text = "aprs";
  station.Controls().TxSetup.TxInterval.Text = "2";
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_FALSE(station.Controls().TxSetup.Frame4.Visible);
  EXPECT_EQ(Transmit().Check6.Caption, "TX 2");
  const std::string setting = Mode() == RadioMode::ScsTnc ? "C" : "UNPROTO";
  const std::string value = Mode() == RadioMode::Pk232 ? "APRS VIA WIDE2-2" : "APRS WIDE2-2";
  EXPECT_TRUE(station.Comes([&] { return modem->Setting(setting) == value; }));
  EXPECT_TRUE(modem->Runs());
  EXPECT_NE(station.files.ReadAll("C:\\ZEPRIL\\ZEPRIL.INI", 1 << 20)->find("TXPA=WIDE2-2\r\n"),
            std::string::npos);
  station.RunATick();
  EXPECT_EQ(Sent(), SentLineOf("APRS,WIDE2-2", kReport));
  ExpectHeard("QX2CD", "hello");
}

TEST_P(ModemStationTest, TheObjectGoesOutFirstAndTheReportInTheTickBehindIt) {
  PlugInAndStart();
  station.Switch(Transmit().Check6, 1);
  EXPECT_TRUE(station.Switch(Transmit().Check18, 1));
  station.RunATick();
  const Lines object = Sent();
  ASSERT_EQ(object.size(), 1U);
  const std::string begin = SentLineOf("ZEPR,WIDE1-1,WIDE2-1", ";WORKS    *").front();
  EXPECT_EQ(object[0].substr(0, begin.size() - 1), begin.substr(0, begin.size() - 1));
  EXPECT_TRUE(object[0].ends_with("z5230.00N/01324.00Er one lane\n")) << object[0];
  station.Run(2 * kTickSeconds);
  EXPECT_EQ(Sent(), SentLineOf("ZEPR,WIDE1-1,WIDE2-1", kReport));
}

TEST_P(ModemStationTest, InTheTerminalTheOperatorTalksToTheModemAndTheCycleStands) {
  PlugInAndStart();
  station.Switch(Transmit().Check6, 1);
  ASSERT_TRUE(Terminal().Command65.Enabled);
  Terminal().Command65.Click();
  ASSERT_TRUE(Terminal().Frame19.Visible);
  modem->NewCommands();
  // A command in the modem's own way, and what it answers.
  const std::string begin = Mode() == RadioMode::Pk232 ? "\x03" : "\x1B";
  const std::string command = Mode() == RadioMode::ScsTnc ? "I" : "MYCALL";
  Type(begin + command + "\r");
  EXPECT_TRUE(station.Comes([&] { return InStr(Terminal().Text20.Text, "QX7KB-10") > 0; }))
      << Terminal().Text20.Text;
  EXPECT_EQ(modem->NewCommands(), Lines{command});
  EXPECT_EQ(Terminal().Text19.Text, begin + command + "\r");
  if (Mode() == RadioMode::Pk232) Type("K\r");
  EXPECT_TRUE(station.Comes([this] { return modem->Runs(); }));
  // What is heard is shown here only, and no report goes out.
  Hear("QX2CD>APRS:=5231.00N/01324.00E>lost");
  EXPECT_TRUE(station.Comes([&] { return InStr(Terminal().Text20.Text, "E>lost") > 0; }));
  station.Run(2 * kTickSeconds);
  EXPECT_EQ(station.Records(), 0);
  EXPECT_EQ(modem->Sent(), Lines{});
  // A line typed in converse is a frame.
  Type(">by hand\r");
  EXPECT_EQ(Sent(), SentLineOf("ZEPR,WIDE1-1,WIDE2-1", ">by hand"));
  // Closed: the cycle goes on.
  Terminal().Command66.Click();
  EXPECT_FALSE(Terminal().Frame19.Visible);
  station.RunATick();
  EXPECT_EQ(Sent(), SentLineOf("ZEPR,WIDE1-1,WIDE2-1", kReport));
  ExpectHeard("QX3EF", "behind the terminal");
  EXPECT_EQ(station.Records(), 1);
}

// ---- Found again -------------------------------------------------------------------------------

// The commands that a modem which lies ready takes from these scripts.
Lines CommandsOf(RadioMode mode, const ModemScript& set_up, const ModemScript& opening) {
  const std::unique_ptr<ModemModel> model = MakeModel(mode);
  Lines commands;
  model->CommandCame = [&](const std::string& command) { commands.push_back(command); };
  if (mode == RadioMode::ScsPtc) model->Take("\x1BQ\r");
  for (const ModemScript* script : {&set_up, &opening}) {
    for (const ModemStep& step : script->Steps())
      if (step.Act == ModemAct::Send) model->Take(step.Text);
  }
  return commands;
}

// It has lost its power with its line: it comes back with the call and the speed of the shop.
TEST_P(ModemStationTest, AModemThatLostItsPowerIsSetUpWholeBeforeItSends) {
  PlugInAndStart();
  ExpectHeard("QX2CD", "before");
  Unplug();
  EXPECT_TRUE(station.Comes([this] { return Lamp() == LampState::Lost; }));
  // The program goes on, and what it would send goes nowhere.
  station.Switch(Transmit().Check6, 1);
  station.Run(3 * kTickSeconds);
  EXPECT_EQ(Lamp(), LampState::Lost);
  EXPECT_TRUE(station.program->Timer1().Enabled());
  PlugInUntouched();
  station.Run(kReopenSeconds + 0.1);
  EXPECT_NE(Lamp(), LampState::Lost) << station.port.Trouble();
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  EXPECT_EQ(modem->NewCommands(), CommandsOf(Mode(), station.SetUp(), station.Opening()));
  ExpectHeard("QX3EF", "after");
  EXPECT_EQ(Lamp(), LampState::Data);
  station.State().Transmission.LastBeaconTime = 0;
  EXPECT_TRUE(station.RunUntil([this] { return Aired() > 0; }));
  EXPECT_EQ(Aired(), AiredUnderItsCall());
}

// Only the adapter was pulled: the modem has kept its settings, takes every line for a packet and
// holds half a one.
TEST_P(ModemStationTest, AModemThatWasLeftTransmittingGetsNoCommandOnTheAir) {
  PlugInAndStart();
  Unplug();
  ASSERT_TRUE(station.Comes([this] { return Lamp() == LampState::Lost; }));
  std::unique_ptr<ModemModel> model = MakeModelSetUpBy(Mode(), station.SetUp());
  if (Mode() != RadioMode::ScsTnc) model->Take("K\r");
  model->Take("=4830.15N/008");
  ASSERT_TRUE(model->Runs());
  modem = std::make_unique<ServedModem>(station.Link(), std::move(model));
  station.Run(kReopenSeconds + 0.1);
  EXPECT_NE(Lamp(), LampState::Lost) << station.port.Trouble();
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  ExpectHeard("QX3EF", "after");
  EXPECT_EQ(modem->Sent(), Lines{});
}

TEST_P(ModemStationTest, AModemThatIsPluggedInAfterStartSendsUnderItsCallOnly) {
  ASSERT_TRUE(station.PressStart());
  // Just before the main window opens its port.
  PlugInUntouched();
  ASSERT_TRUE(station.Start());
  station.Switch(Transmit().Check6, 1);
  station.State().Transmission.LastBeaconTime = 0;
  station.Run(kReopenSeconds + 0.1);
  station.State().Transmission.LastBeaconTime = 0;
  EXPECT_TRUE(station.RunUntil([this] { return Aired() > 0; }));
  EXPECT_EQ(Aired(), AiredUnderItsCall());
}

// It is in converse, with the program gone: START is another one's.
TEST_P(ModemStationTest, AfterACrashNothingOfTheNextStartGoesOnTheAir) {
  PlugInAndStart();
  modem->Ask<bool>([](PtyModem& pty) { return pty.Model().Take("=4830.15N/008").empty(); });
  station.Crash();
  EXPECT_TRUE(station.files.Exists("C:\\ZEPRIL\\MODEM.RUN"));
  modem->NewCommands();
  ASSERT_TRUE(station.PressStart());
  EXPECT_EQ(modem->Sent(), Lines{});
  EXPECT_EQ(Aired(), 0);
  ASSERT_TRUE(station.Start());
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  EXPECT_EQ(Aired(), 0);
  EXPECT_EQ(modem->Setting(Mode() == RadioMode::ScsTnc ? "I" : "MYCALL"), "QX7KB-10");
  station.program->Stop(true);
  EXPECT_FALSE(station.files.Exists("C:\\ZEPRIL\\MODEM.RUN"));
}

// Two adapters lie on the computer, and the operator has told a number only.
TEST_P(ModemStationTest, AnotherAdapterIsNeverFoundInPlaceOfTheModem) {
  station.PlayAdapters();
  const auto mine = [this](bool fresh) {
    return std::make_unique<ServedModem>(
        station.Adapter("usb-a"),
        fresh ? MakeModel(Mode()) : MakeModelSetUpBy(Mode(), station.SetUp()));
  };
  modem = mine(false);
  ServedModem other(station.Adapter("usb-b"), MakeModelSetUpBy(Mode(), station.SetUp()));
  ASSERT_TRUE(station.Start());
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  Unplug();
  ASSERT_TRUE(station.Comes([this] { return Lamp() == LampState::Lost; }));
  station.Switch(Transmit().Check6, 1);
  station.Run(10 * kReopenSeconds);
  EXPECT_EQ(Lamp(), LampState::Lost);
  EXPECT_EQ(other.BytesTaken(), 0U);
  EXPECT_EQ(other.Sent(), Lines{});
  // The modem itself comes back, behind the other one in the list of the system.
  modem = mine(true);
  station.Run(kReopenSeconds + 0.1);
  EXPECT_NE(Lamp(), LampState::Lost) << station.port.Trouble();
  ASSERT_TRUE(station.Comes([this] { return modem->Runs(); }));
  EXPECT_EQ(other.BytesTaken(), 0U);
}

TEST_P(ModemStationTest, AModemThatComesBackUnderAnOpenTerminalWaitsForItsEnd) {
  PlugInAndStart();
  Terminal().Command65.Click();
  Unplug();
  ASSERT_TRUE(station.Comes([this] { return !station.port.IsOpen(); }));
  Type("nobody listens\r");
  PlugIn();
  station.Run(2 * kReopenSeconds);
  EXPECT_FALSE(station.port.IsOpen());
  EXPECT_EQ(modem->BytesTaken(), 0U);
  Terminal().Command66.Click();
  station.Run(kReopenSeconds + 0.1);
  EXPECT_TRUE(station.port.IsOpen()) << station.port.Trouble();
  ExpectHeard("QX3EF", "after");
}

class TwoModesTest : public ModemStationTest {};

INSTANTIATE_TEST_SUITE_P(ScsTnc, TwoModesTest, ::testing::Values(RadioMode::ScsTnc), NameOfModem);

TEST_P(TwoModesTest, TheSecondModeListensInEachTickAndIsOffForAFrame) {
  PlugInAndStart();
  Transmit().Check6.RightClick();
  station.Switch(Transmit().Check2, 1);
  station.Controls().TxSetup.TxOk.Click();
  EXPECT_TRUE(station.Comes([this] { return modem->Setting("%AU") == "1"; }));
  EXPECT_EQ(modem->Setting("%AG"), "H");
  EXPECT_EQ(modem->Setting("C"), "ZEPR WIDE1-1");
  modem->NewCommands();
  station.RunATick();
  ExpectHeard("QX2CD", "between the answers");
  for (const std::string& command : modem->NewCommands())
    EXPECT_EQ(command, "%AU1");
  station.Switch(Transmit().Check6, 1);
  EXPECT_TRUE(station.RunUntil([this] { return modem->Sent().size() == 1; }));
  EXPECT_EQ(Sent(), SentLineOf("ZEPR,WIDE1-1", kReport));
  EXPECT_TRUE(station.Comes([this] { return modem->Setting("%AU") == "0"; }));
  EXPECT_EQ(modem->NewCommands().back(), "%AU0");
  station.Run(2 * kTickSeconds + 0.1);
  EXPECT_TRUE(station.Comes([this] { return modem->Setting("%AU") == "1"; }));
  ExpectHeard("QX3EF", "and again");
}

}  // namespace
}  // namespace zepril

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
