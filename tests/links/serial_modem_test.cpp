// The life of a serial modem: opened, lost, found again, set up anew, led back.
#include "links/serial_modem.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "links/agw_link.h"
#include "tests/doubles/fake_serial.h"
#include "tests/doubles/recorded_progress.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class SerialModemTest : public ::testing::Test {
 protected:
  SerialModemTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB";
    Use(RadioMode::Pk232);
    clock.Drive(reopen, true);
  }
  void Use(RadioMode mode) { radio.RadioMode = static_cast<int>(mode); }
  // What START says.
  std::string SetUp() const {
    std::string bytes;
    const ModemScript script = TncSetupScript({identity, radio, transmission});
    for (const ModemStep& step : script.Steps())
      bytes += step.Act == ModemAct::Send ? step.Text : "";
    return bytes;
  }
  void SendFrame(const std::string& text) {
    port.Write(text);
    modem.FrameWritten();
  }
  // From now on the line takes nothing.
  void Stall() {
    port.OnWrite = [this](std::string_view bytes) { port.Waiting += bytes.size(); };
  }
  void Unstall() { port.OnWrite = nullptr; }

  // What leads each out of converse, and what it is told when the port is opened for the run.
  const std::vector<std::tuple<RadioMode, std::string, std::string>> kModems{
      {RadioMode::Pk232, "\x03", "ECHO ON\rK\r"},
      {RadioMode::ScsTnc, "\x18", ""},
      {RadioMode::ScsPtc, "\x1BQ\r", "K\r"}};

  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
  FakeSerial port;
  VirtualClock clock;
  RecordedProgress progress;
  SerialModem modem{identity, radio, transmission, {port, clock, progress}};
  Timer& reopen = modem.ReopenTimer;
};

TEST_F(SerialModemTest, ItOpensThePortOfTheMode) {
  radio.TncPort = 2;
  radio.TncBaud = "1200";
  modem.Open();
  EXPECT_EQ(port.Device, "2");
  EXPECT_EQ(port.Baud, 1200);
  EXPECT_EQ(port.Written, "ECHO ON\rK\r");
  EXPECT_TRUE(modem.LinkIsUp());
  Use(RadioMode::ScsTnc);
  radio.ScsPort = 4;
  radio.ScsBaud = "38400";
  modem.Open();
  EXPECT_EQ(port.Device, "4");
  EXPECT_EQ(port.Baud, 38400);
}

// It may have lost its power, and its call and speed with it; or it may have stayed in converse,
// where its commands would go on the air.
TEST_F(SerialModemTest, AVanishedModemIsLedOutOfConverseAndSetUpWholeAgain) {
  for (const auto& [mode, way_out, opening] : kModems) {
    Use(mode);
    modem.Open();
    port.Close();
    port.Written.clear();
    clock.Run(9.9);
    EXPECT_FALSE(modem.LinkIsUp());
    clock.Run(60.0);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_EQ(port.Written, way_out + SetUp() + opening);
    // Once.
    port.Written.clear();
    clock.Run(60.0);
    EXPECT_EQ(port.Written, "");
  }
}

TEST_F(SerialModemTest, WhileAModemIsSetUpAgainTheProgramTellsHowFarItIsAndNoEventComesBetween) {
  modem.Open();
  port.Close();
  progress.Shares.clear();
  int fired = 0;
  Timer tick{6000};
  tick.Elapsed = [&] { fired += modem.IsBusy() || !modem.LinkIsUp() ? 1 : 0; };
  clock.Run(9.0);
  clock.Drive(tick, false);
  tick.Arm(6000);
  double longest = 0.0;
  clock.OnWait = [&](double seconds, bool pumping) {
    EXPECT_FALSE(pumping);
    longest = std::max(longest, seconds);
  };
  clock.Run(2.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(fired, 0);
  EXPECT_EQ(progress.What, "MODEM SET-UP");
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_GT(progress.Shares.back(), 0.9);
  EXPECT_GT(progress.Shares.size(), 100U);
  EXPECT_EQ(progress.Ended, 1);
  EXPECT_LE(longest, 0.5);
}

TEST_F(SerialModemTest, AReopenedPortIsToldBehindItsConversation) {
  modem.Open();
  port.Close();
  std::vector<std::string> written;
  modem.Reopened = [&] {
    written.push_back(port.Written);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_FALSE(modem.IsBusy());
  };
  port.Absent = true;
  clock.Run(15.0);
  EXPECT_TRUE(written.empty());
  port.Absent = false;
  port.Written.clear();
  clock.Run(30.0);
  ASSERT_EQ(written.size(), 1U);
  EXPECT_TRUE(written.front().ends_with("ECHO ON\rK\r"));
}

TEST_F(SerialModemTest, ALineThatIsLostWithinTheSetUpIsTriedAnew) {
  modem.Open();
  port.Close();
  int reopened = 0;
  modem.Reopened = [&] { ++reopened; };
  clock.Schedule(20.0, [this] { port.Close(); });
  port.OnWrite = [this](std::string_view bytes) {
    if (bytes == "MYCALL QX7KB\r" && !port.Absent) port.Vanish();
  };
  clock.Run(60.0);
  EXPECT_EQ(reopened, 0);
  // Nothing was waited for behind that.
  port.OnWrite = nullptr;
  port.Absent = false;
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(reopened, 1);
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

TEST_F(SerialModemTest, TheEndOfTheProgramIsNotHeldUpByASetUp) {
  modem.Open();
  port.Close();
  int reopened = 0;
  modem.Reopened = [&] { ++reopened; };
  double ended = 0.0;
  clock.Schedule(12.0, [&] {
    clock.EndIsAsked = true;
    ended = clock.MonotonicSeconds();
  });
  double last = 0.0;
  clock.OnWait = [&](double seconds, bool) { last = clock.MonotonicSeconds() + seconds; };
  clock.Run(10.5);
  ASSERT_GT(ended, 0.0);
  EXPECT_LE(last - ended, 1.0);
  EXPECT_EQ(reopened, 0);
  EXPECT_FALSE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, AnAbsentDeviceCostsNoTimeAtEachAttempt) {
  port.Absent = true;
  modem.Open();
  double waited = 0.0;
  clock.OnWait = [&](double seconds, bool) { waited += seconds; };
  clock.Run(60.0);
  EXPECT_EQ(waited, 0.0);
  EXPECT_FALSE(modem.LinkIsUp());
  port.Absent = false;
  clock.Run(10.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, AModemThatWasAwayAtStartIsSetUpWholeWhenItComes) {
  port.Absent = true;
  modem.Open();
  port.Absent = false;
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

// It came between START and the opening: it would send under the call that it has from the shop.
TEST_F(SerialModemTest, AModemThatStartHasNotReachedIsNotBroughtToConverseUnprogrammed) {
  modem.WasNotSetUp();
  modem.Open();
  EXPECT_EQ(port.Written, "");
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(modem.Trouble(), "START has not reached the modem.");
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  EXPECT_EQ(modem.Trouble(), "");
}

TEST_F(SerialModemTest, APortThatStandsIsLeftAlone) {
  modem.Open();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemTest, ItIsNotOpenedWhileTheProgramSaysNo) {
  modem.Open();
  port.Close();
  bool may = false;
  modem.MayReopen = [&] { return may; };
  clock.Run(30.0);
  EXPECT_FALSE(modem.LinkIsUp());
  may = true;
  clock.Run(10.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, ItIsNotOpenedInTheMiddleOfAConversation) {
  modem.Open();
  // The line is lost in the first wait, which lets timers run.
  bool busy = false;
  clock.OnWait = [&](double, bool pumping) {
    if (!pumping) return;
    port.Close();
    busy = modem.IsBusy();
    modem.ReopenElapsed();
    EXPECT_FALSE(port.IsOpen());
  };
  modem.Program(progress);
  EXPECT_TRUE(busy);
  EXPECT_FALSE(modem.IsBusy());
}

// Else it would go on under the old call and path.
TEST_F(SerialModemTest, SettingsConfirmedWhileTheLineWasLostAreToldWhenItIsBack) {
  for (const auto& [mode, way_out, opening] : kModems) {
    Use(mode);
    modem.Open();
    port.Vanish();
    transmission.TxDestination = "APZEP";
    transmission.TxPath = "";
    modem.Program(progress);
    port.Absent = false;
    port.Written.clear();
    clock.Run(60.0);
    EXPECT_EQ(port.Written, way_out + SetUp() + opening);
    EXPECT_NE(port.Written.find("APZEP"), std::string::npos);
  }
}

TEST_F(SerialModemTest, SettingsThatALostLineCutShortAreToldWhenItIsBack) {
  modem.Open();
  clock.OnWait = [&](double, bool) { port.Close(); };
  modem.Program(progress);
  clock.OnWait = nullptr;
  port.Written.clear();
  clock.Run(20.0);
  EXPECT_NE(port.Written.find("UNPROTO"), std::string::npos);
}

// The waits of its telling let the operator's presses through.
TEST_F(SerialModemTest, SettingsConfirmedWhileOthersAreToldFollowBehindThem) {
  transmission.TxPath = "";
  modem.Open();
  port.Written.clear();
  bool pressed = false;
  clock.OnWait = [&](double, bool pumping) {
    if (!pumping || pressed) return;
    pressed = true;
    transmission.TxDestination = "APZEP";
    modem.Program(progress);
  };
  modem.Program(progress);
  clock.OnWait = nullptr;
  ASSERT_TRUE(pressed);
  EXPECT_EQ(progress.Ended, 2);
  const std::size_t first = port.Written.find("UNPROTO ZEPR\r");
  const std::size_t second = port.Written.find("UNPROTO APZEP\r");
  ASSERT_NE(first, std::string::npos);
  ASSERT_NE(second, std::string::npos);
  EXPECT_LT(port.Written.find("K\r", first), second);
}

// The way out of converse is still to be told.
TEST_F(SerialModemTest, TheEndInTheMiddleOfTxSetupLosesNoLine) {
  modem.Open();
  clock.OnWait = [&](double, bool) { clock.EndIsAsked = true; };
  modem.Program(progress);
  EXPECT_TRUE(modem.LinkIsUp());
  clock.EndIsAsked = false;
  clock.OnWait = nullptr;
  port.Written.clear();
  modem.Leave();
  EXPECT_EQ(port.Written, "\x03");
}

// ---- A line that takes nothing ----------------------------------------------------------------

TEST_F(SerialModemTest, AFrameThatHasNotLeftWithinTenSecondsMakesTheLinkLost) {
  modem.Open();
  clock.Run(3.0);
  int given_up = 0;
  modem.GivenUp = [&] { ++given_up; };
  Stall();
  SendFrame("=report\r");
  clock.Run(9.9);
  EXPECT_TRUE(modem.LinkIsUp());
  clock.Run(0.2);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(given_up, 1);
  EXPECT_EQ(port.Drops, 1);
  EXPECT_EQ(port.Waiting, 0U);
  EXPECT_EQ(modem.Trouble(), "The modem's line takes no bytes.");
  // Opened again by the rules.
  Unstall();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  EXPECT_EQ(modem.Trouble(), "");
}

TEST_F(SerialModemTest, FramesThatLeaveSlowlyAreNoLoss) {
  modem.Open();
  Stall();
  // Each leaves 9 s after it was written, one in every 5 s.
  for (int frames = 0; frames < 20; ++frames) {
    SendFrame("0123456789");
    clock.Schedule(9.0, [this] { port.Waiting -= 10; });
    clock.Run(5.0);
    ASSERT_TRUE(modem.LinkIsUp()) << frames;
  }
  clock.Run(30.0);
  EXPECT_TRUE(modem.LinkIsUp());
  // The next one that stays is found out as fast as the first.
  SendFrame("0123456789");
  clock.Run(10.1);
  EXPECT_FALSE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, ALineThatStillTakesNothingIsNotSetUp) {
  modem.Open();
  Stall();
  SendFrame("=report\r");
  clock.Run(10.1);
  ASSERT_FALSE(modem.LinkIsUp());
  port.Written.clear();
  double waited = 0.0;
  clock.OnWait = [&](double seconds, bool) { waited += seconds; };
  clock.Run(100.0);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, std::string(10, '\x03'));
  EXPECT_LE(waited, 10.0);
}

TEST_F(SerialModemTest, ALineThatTakesNoSettingsIsGivenUp) {
  modem.Open();
  Stall();
  modem.Program(progress);
  EXPECT_FALSE(modem.LinkIsUp());
  EXPECT_EQ(modem.Trouble(), "The modem's line takes no bytes.");
}

TEST_F(SerialModemTest, DroppedIsWhatTheLineHoldsAndTheRestOfAHalfFrame) {
  for (const auto& [mode, wipe] :
       std::vector<std::pair<RadioMode, std::string>>{{RadioMode::Pk232, "\x18"},
                                                      {RadioMode::ScsTnc, "\x18"},
                                                      {RadioMode::ScsPtc, "\x1B\r"}}) {
    Use(mode);
    modem.Open();
    port.Written.clear();
    modem.DropUnsent();
    EXPECT_EQ(port.Written, "");
    port.Waiting = 12;
    modem.DropUnsent();
    EXPECT_EQ(port.Waiting, 0U);
    EXPECT_EQ(port.Written, wipe);
  }
}

TEST_F(SerialModemTest, ADroppedFrameMakesNoLoss) {
  modem.Open();
  Stall();
  SendFrame("=report\r");
  modem.DropUnsent();
  clock.Run(30.0);
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemTest, NothingIsDroppedOfAConversation) {
  modem.Open();
  port.Drops = 0;
  clock.OnWait = [&](double, bool) { modem.DropUnsent(); };
  modem.Program(progress);
  EXPECT_EQ(port.Drops, 0);
}

// ---- Power ------------------------------------------------------------------------------------

// A modem behind an adapter that stays: the device does not vanish with its power.
TEST_F(SerialModemTest, AModemThatWasOffAndOnAgainIsSetUpBeforeItSends) {
  port.Ready = true;
  modem.Open();
  clock.Run(30.0);
  EXPECT_TRUE(modem.MaySend());
  port.Ready = false;
  EXPECT_FALSE(modem.MaySend());
  EXPECT_EQ(modem.Trouble(), "The modem has lost its power.");
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
  // It was spoken to while it was off: once more when it is on.
  port.Written.clear();
  port.Ready = true;
  clock.Run(80.0);
  EXPECT_TRUE(modem.LinkIsUp());
  EXPECT_EQ(port.Written, "\x03" + SetUp() + "ECHO ON\rK\r");
}

TEST_F(SerialModemTest, WithoutThatLineTheModemItselfIsAsked) {
  modem.Open();
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, "");
  // One that never answered is sent to.
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(port.Written, "\x03*\rMYCALL\rK\r");
  EXPECT_TRUE(modem.LinkIsUp());
}

// ---- A modem that tells its call ----------------------------------------------------------------

// Answers with the call that it was given, as long as it has its power.
class SerialModemCallTest : public SerialModemTest {
 protected:
  SerialModemCallTest() {
    modem.HeardMeanwhile = [this](const std::string& text) { heard += text; };
    port.OnWrite = [this](std::string_view bytes) {
      line += bytes;
      for (std::size_t end; (end = line.find('\r')) != line.npos; line.erase(0, end + 1))
        Obey(line.substr(0, end));
    };
  }
  void OpenIn(RadioMode mode) {
    Use(mode);
    modem.Open();
    call = "QX7KB";
    clock.Run(30.0);
    port.Written.clear();
  }
  void SwitchOffAndOn() {
    call = "NOCALL";
    line.clear();
  }
  std::string Question() const {
    switch (static_cast<RadioMode>(radio.RadioMode)) {
      case RadioMode::Pk232:
        return "\x03*\rMYCALL\rK\r";
      case RadioMode::ScsTnc:
        return "\x1BI\r";
      default:
        return "\x1BMYCALL\r\n";
    }
  }

  std::string call = "NOCALL";
  bool has_power = true;
  std::string heard_by_modem;  // printed before its answer
  std::string heard;

 private:
  void Obey(std::string command) {
    if (!has_power) return;
    std::erase_if(command, [](char c) { return c < ' ' || c == '*'; });
    if (command == "I") port.Reads.push_back(heard_by_modem + "* I " + call + " *\r\n");
    if (command == "MYCALL") port.Reads.push_back("MYCALL   " + call + "\r\n");
    if (command == "IQX7KB" || command == "MYCALL QX7KB") call = "QX7KB";
  }
  std::string line;
};

TEST_F(SerialModemCallTest, ItIsAskedBeforeAFrameAndAnOwnCallHoldsForSomeSeconds) {
  for (const auto& [mode, way_out, opening] : kModems) {
    OpenIn(mode);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question());
    clock.Run(SerialModem::kAnswerHoldsSeconds - 0.5);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question());
    clock.Run(1.0);
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(port.Written, Question() + Question());
  }
}

TEST_F(SerialModemCallTest, OneThatLostItsPowerUnseenIsSetUpWholeBeforeItSends) {
  for (const auto& [mode, way_out, opening] : kModems) {
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    SwitchOffAndOn();
    port.Written.clear();
    EXPECT_FALSE(modem.MaySend());
    EXPECT_EQ(modem.Trouble(), "The modem has lost its power.");
    EXPECT_FALSE(modem.LinkIsUp());
    clock.Run(60.0);
    EXPECT_EQ(port.Written, Question() + way_out + SetUp() + opening);
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_TRUE(modem.MaySend());
    EXPECT_EQ(modem.Trouble(), "");
  }
}

// It may have been off when START spoke to it.
TEST_F(SerialModemCallTest, OneThatComesToItsPowerAfterStartIsSetUpBeforeItSends) {
  Use(RadioMode::ScsTnc);
  has_power = false;
  modem.Open();
  EXPECT_TRUE(modem.MaySend());
  clock.Run(30.0);
  has_power = true;
  EXPECT_FALSE(modem.MaySend());
  clock.Run(60.0);
  EXPECT_EQ(call, "QX7KB");
  EXPECT_TRUE(modem.MaySend());
}

TEST_F(SerialModemCallTest, OneThatDoesNotAnswerAnyMoreIsLostUntilItAnswers) {
  for (const auto& [mode, way_out, opening] : kModems) {
    has_power = true;
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    has_power = false;
    port.Written.clear();
    EXPECT_FALSE(modem.MaySend());
    EXPECT_EQ(port.Written, Question() + Question());
    EXPECT_EQ(modem.Trouble(), "The modem does not answer.");
    // No set-up for nobody.
    port.Written.clear();
    clock.Run(25.0);
    EXPECT_EQ(port.Written, Question() + Question());
    EXPECT_FALSE(modem.LinkIsUp());
    EXPECT_EQ(modem.Trouble(), "The modem does not answer.");
    // It kept its power: only its cable was off.
    has_power = true;
    port.Written.clear();
    clock.Run(10.0);
    EXPECT_EQ(port.Written, Question());
    EXPECT_TRUE(modem.LinkIsUp());
    EXPECT_EQ(modem.Trouble(), "");
  }
}

TEST_F(SerialModemCallTest, OneThatAnswersAgainUnderAnotherCallIsSetUpWhole) {
  for (const auto& [mode, way_out, opening] : kModems) {
    has_power = true;
    OpenIn(mode);
    ASSERT_TRUE(modem.MaySend());
    clock.Run(30.0);
    has_power = false;
    ASSERT_FALSE(modem.MaySend());
    SwitchOffAndOn();
    has_power = true;
    port.Written.clear();
    clock.Run(70.0);
    EXPECT_EQ(port.Written, Question() + way_out + SetUp() + opening);
    EXPECT_TRUE(modem.MaySend());
  }
}

TEST_F(SerialModemCallTest, SettingsConfirmedWhileItWasSilentAreToldWhenItAnswers) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(30.0);
  has_power = false;
  ASSERT_FALSE(modem.MaySend());
  transmission.TxPath = "RELAY";
  modem.Program(progress);
  has_power = true;
  port.Written.clear();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, Question() + "\x18" + SetUp());
  EXPECT_TRUE(modem.LinkIsUp());
}

TEST_F(SerialModemCallTest, AListenersModemIsAskedAfterFiveMinutesOfSilence) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  port.Written.clear();
  clock.Run(200.0);
  port.DataArrived();  // something is heard
  clock.Run(SerialModem::kLongestSilenceSeconds - 1.0);
  EXPECT_EQ(port.Written, "");
  SwitchOffAndOn();
  clock.Run(60.0);
  EXPECT_EQ(port.Written, Question() + "\x18" + SetUp());
  EXPECT_EQ(call, "QX7KB");
}

TEST_F(SerialModemCallTest, NothingIsAskedWhileTheOperatorTalksToIt) {
  OpenIn(RadioMode::ScsTnc);
  modem.MayReopen = [] { return false; };
  clock.Run(2.0 * SerialModem::kLongestSilenceSeconds);
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemCallTest, WhatIsHeardWhileItIsAskedIsNotLost) {
  OpenIn(RadioMode::ScsTnc);
  port.Reads = {"fm N0CALL to APRS ctl UI pid F0\r\n"};
  heard_by_modem = "!tst\r\n";
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(heard, "fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n");
}

TEST_F(SerialModemCallTest, BytesThatTheLineDoesNotTakeAreNotAskedBehind) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(6.0);
  port.Written.clear();
  port.Waiting = 10;
  EXPECT_TRUE(modem.MaySend());
  EXPECT_EQ(port.Written, "");
}

TEST_F(SerialModemCallTest, TheEndOfTheProgramDoesNotWaitForAnAnswer) {
  OpenIn(RadioMode::ScsTnc);
  ASSERT_TRUE(modem.MaySend());
  clock.Run(6.0);
  has_power = false;
  clock.EndIsAsked = true;
  const double begin = clock.MonotonicSeconds();
  EXPECT_FALSE(modem.MaySend());
  EXPECT_LT(clock.MonotonicSeconds() - begin, 0.1);
  // Its silence tells nothing: the line stays for the way out of converse.
  EXPECT_TRUE(modem.LinkIsUp());
}

// ---- Converse beyond the end of a run ---------------------------------------------------------

TEST_F(SerialModemTest, ConverseIsRememberedBeforeItsFirstByteUntilBehindTheLastOneOfTheWayOut) {
  for (const auto& [mode, before, after] :
       std::vector<std::tuple<RadioMode, std::string, std::string>>{
           {RadioMode::Pk232, "ECHO ON\r", "\x03"},
           {RadioMode::ScsTnc, "", "\x1B%ZL\r"},
           {RadioMode::ScsPtc, "", "\x1BQ\r\x1BRESET\r"}}) {
    Use(mode);
    std::string noted = "never";
    std::string ended = "never";
    modem.Memory.Begins = [&] { noted = port.Written; };
    modem.Memory.Ended = [&] { ended = port.Written; };
    port.Written.clear();
    modem.Open();
    EXPECT_EQ(noted, before);
    port.Written.clear();
    modem.Leave();
    EXPECT_EQ(ended, after);
  }
}

TEST_F(SerialModemTest, AModemThatCouldNotBeLedBackStaysRemembered) {
  int ended = 0;
  modem.Memory.Ended = [&] { ++ended; };
  modem.Open();
  port.Vanish();
  modem.Leave();
  port.Absent = false;
  modem.Open();
  Stall();
  modem.Leave();
  EXPECT_EQ(ended, 0);
}

TEST_F(SerialModemTest, NothingIsRememberedOfAModemThatIsAway) {
  int noted = 0;
  modem.Memory.Begins = [&] { ++noted; };
  port.Absent = true;
  modem.Open();
  EXPECT_EQ(noted, 0);
}

TEST_F(SerialModemTest, AModemLeftAtAnotherSpeedIsLedOutOfConverseThere) {
  modem.Memory.SpeedLeftAt = [] { return std::optional<int>(9600); };
  modem.Open();
  port.Close();
  std::vector<int> speeds;
  port.OnWrite = [&](std::string_view bytes) {
    if (bytes == "\x03") speeds.push_back(port.Baud);
  };
  clock.Run(30.0);
  EXPECT_EQ(speeds, (std::vector<int>{9600, 1200}));
}

TEST_F(SerialModemTest, ProgrammingTellsHowFarItIs) {
  modem.Open();
  modem.Program(progress);
  EXPECT_EQ(progress.What, "TX SETUP");
  EXPECT_EQ(progress.Shares.front(), 0.0);
  EXPECT_EQ(progress.Shares.back(), 1.0);
  EXPECT_EQ(progress.Ended, 1);
}

TEST_F(SerialModemTest, TheLastDataIsNoted) {
  modem.Open();
  clock.Run(5.0);
  int told = 0;
  modem.DataArrived = [&] { ++told; };
  port.DataArrived();
  EXPECT_EQ(radio.LastDataSeconds, clock.MonotonicSeconds());
  EXPECT_EQ(told, 1);
}

TEST_F(SerialModemTest, LeavingEndsTheAttemptsToo) {
  Use(RadioMode::ScsPtc);
  modem.Open();
  port.Written.clear();
  modem.Leave();
  EXPECT_EQ(port.Written, "\x1BQ\r\x1BRESET\r");
  port.Close();
  clock.Run(60.0);
  EXPECT_FALSE(modem.LinkIsUp());
}

}  // namespace
}  // namespace zepril
