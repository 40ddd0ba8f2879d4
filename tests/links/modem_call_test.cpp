// What a serial modem is asked for its call, and what counts as its answer.
#include "links/modem_call.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "tests/doubles/fake_serial.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Call = std::optional<std::string>;

// The call told in `text`, and what is left of it.
std::pair<Call, std::string> Taken(RadioMode mode, std::string text) {
  Call call = TakeCallAnswer(*ModemKindOf(mode), text);
  return {call, text};
}

TEST(TakeCallAnswerTest, EachModemTellsItsCallInItsWay) {
  EXPECT_EQ(Taken(RadioMode::ScsTnc, "* I QX7KB-10 *\r\n"),
            std::pair(Call("QX7KB-10"), std::string()));
  EXPECT_EQ(Taken(RadioMode::ScsTnc, "* QX7KB *\r\n").first, "QX7KB");
  EXPECT_EQ(Taken(RadioMode::ScsPtc, "*** MYCALL: QX7KB-10\r\n"),
            std::pair(Call("QX7KB-10"), std::string()));
  EXPECT_EQ(Taken(RadioMode::ScsPtc, "cmd: *** MyCall: NOCALL\r\ncmd: "),
            std::pair(Call("NOCALL"), std::string()));
  EXPECT_EQ(Taken(RadioMode::Pk232, "\r\ncmd:?What?\r\ncmd:MYCALL\r\nMYCALL   QX7KB-10\r\ncmd:"),
            std::pair(Call("QX7KB-10"), std::string()));
  EXPECT_EQ(Taken(RadioMode::Pk232, "Mycall   PK232 \r\n").first, "PK232");
}

TEST(TakeCallAnswerTest, WhatIsHeardOnTheAirStays) {
  EXPECT_EQ(
      Taken(RadioMode::ScsTnc, "fm N0CALL to APRS ctl UI pid F0\r\n* I QX7KB *\r\n!tst\r\nfm N"),
      std::pair(Call("QX7KB"), std::string("fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\nfm N")));
  EXPECT_EQ(Taken(RadioMode::Pk232,
                  "\r\ncmd:MYCALL\r\nN0CALL>APRS <UI>:\r\n!tst\r\nMYCALL   QX7KB\r\ncmd:"),
            std::pair(Call("QX7KB"), std::string("N0CALL>APRS <UI>:\r\n!tst\r\n")));
}

TEST(TakeCallAnswerTest, AModemMayEndItsLinesInOneCharacterAlone) {
  EXPECT_EQ(Taken(RadioMode::Pk232, "\rcmd:MYCALL\rMYCALL    PK232\rcmd:").first, "PK232");
  EXPECT_EQ(Taken(RadioMode::Pk232, "cmd:MYCALL\rMYCALL    PK232\r\ncmd:").first, "PK232");
  EXPECT_EQ(Taken(RadioMode::ScsTnc, "* I NOCALL *\r").first, "NOCALL");
  EXPECT_EQ(Taken(RadioMode::ScsPtc, "MYCALL\n*** MYCALL: NOCALL\n").first, "NOCALL");
  EXPECT_EQ(Taken(RadioMode::ScsTnc, "fm N0CALL to APRS\r* I QX7KB *\r!tst\r"),
            std::pair(Call("QX7KB"), std::string("fm N0CALL to APRS\r!tst\r")));
}

TEST(TakeCallAnswerTest, OtherWordsAreNoAnswerAndStay) {
  for (const char* text : {"* OK *\r\n", "* INVALID COMMAND: I *\r\n", "*\r\n", "**\r\n",
                           "* I QX7KB *", "MYCALL\r\n", "MYCALL now QX7KB\r\n", "\r\ncmd:", ""}) {
    for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc})
      EXPECT_EQ(Taken(mode, text), std::pair(Call(), std::string(text))) << text;
  }
}

class AskForCallTest : public ::testing::Test {
 protected:
  AskForCallTest() { port.Open("3", 38400); }
  CallHeld Ask(RadioMode mode, const std::string& own) {
    heard.clear();
    port.Written.clear();
    return AskForCall(*ModemKindOf(mode), own, port, clock, heard);
  }
  // The modem's answer to the question; not before it.
  void Answer(const std::string& text) {
    port.OnWrite = [this, text](std::string_view bytes) {
      if (bytes.find('I') != bytes.npos || bytes.find("MYCALL") != bytes.npos)
        port.Reads.push_back(text);
    };
  }

  FakeSerial port;
  VirtualClock clock;
  std::string heard;
};

TEST_F(AskForCallTest, TheOwnCallIsKnownWithoutWhatStandsBehindTheHyphen) {
  Answer("* I QX7KB-10 *\r\n");
  EXPECT_EQ(Ask(RadioMode::ScsTnc, "QX7KB"), CallHeld::Own);
  EXPECT_EQ(port.Written, "\x1BI\r");
  EXPECT_EQ(Ask(RadioMode::ScsTnc, "qx7kb-3"), CallHeld::Own);
  EXPECT_EQ(Ask(RadioMode::ScsTnc, "QX7K"), CallHeld::Another);
  Answer("*** MYCALL: NOCALL\r\n");
  EXPECT_EQ(Ask(RadioMode::ScsPtc, "QX7KB"), CallHeld::Another);
  EXPECT_EQ(port.Written, "\x1BMYCALL\r\n");
}

TEST_F(AskForCallTest, APk232IsLedOutOfConverseAndBack) {
  Answer("MYCALL   QX7KB\r\ncmd:");
  EXPECT_EQ(Ask(RadioMode::Pk232, "QX7KB"), CallHeld::Own);
  EXPECT_EQ(port.Written, "\x03*\rMYCALL\rK\r");
  // Also one that does not answer.
  port.OnWrite = nullptr;
  EXPECT_EQ(Ask(RadioMode::Pk232, "QX7KB"), CallHeld::NotTold);
  EXPECT_EQ(port.Written, "\x03*\rMYCALL\rK\r");
}

TEST_F(AskForCallTest, TheAnswerIsAwaitedForTwoSeconds) {
  const double begin = clock.MonotonicSeconds();
  EXPECT_EQ(Ask(RadioMode::ScsTnc, "QX7KB"), CallHeld::NotTold);
  EXPECT_NEAR(clock.MonotonicSeconds() - begin, kLongestAnswerSeconds, 0.05);
}

TEST_F(AskForCallTest, WhatCameBeforeTheQuestionIsNoAnswerAndIsKept) {
  port.Reads = {"* I QX7KB *\r\nfm N0CALL to APRS ctl UI pid F0\r\n", "!tst\r\n"};
  EXPECT_EQ(Ask(RadioMode::ScsTnc, "QX7KB"), CallHeld::NotTold);
  EXPECT_EQ(heard, "* I QX7KB *\r\nfm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n");
}

TEST_F(AskForCallTest, APulledPortEndsTheQuestion) {
  port.OnWrite = [this](std::string_view) { port.Close(); };
  const double begin = clock.MonotonicSeconds();
  EXPECT_EQ(Ask(RadioMode::ScsPtc, "QX7KB"), CallHeld::NotTold);
  EXPECT_LT(clock.MonotonicSeconds() - begin, 0.05);
}

TEST(ModemKindOfTest, AnInterfaceWithoutACallOfItsOwnIsNoModem) {
  for (const RadioMode mode : {RadioMode::AgwLocal, RadioMode::AgwRemote, RadioMode::None})
    EXPECT_EQ(ModemKindOf(mode), nullptr);
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    ASSERT_NE(ModemKindOf(mode), nullptr);
    EXPECT_FALSE(ModemKindOf(mode)->Call.Ask.empty());
  }
}

}  // namespace
}  // namespace zepril
