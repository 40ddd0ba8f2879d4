// Transcripts of the PK-232 model.
#include "tool/pk232_model.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "reception/pk232_monitor.h"
#include "tests/tool/modem_model_support.h"

namespace zepril {
namespace {

class Pk232ModelTest : public ModemModelTest<Pk232Model> {
 protected:
  void Converse() {
    Take("ECHO OFF\rMYCALL QX7KB-10\rUNPROTO ZEPR VIA WIDE1-1,WIDE2-1\rHB 300\r8B ON\rK\r");
  }
};

TEST_F(Pk232ModelTest, EchoesPromptsAndTellsOldAndNewValue) {
  EXPECT_EQ(Take("MYCALL QX7KB-10\r"),
            "MYCALL QX7KB-10\r\n"
            "MYCALL   was PK232\r\n"
            "MYCALL   now QX7KB-10\r\n"
            "cmd:");
  EXPECT_EQ(modem.Setting("MYCALL"), "QX7KB-10");
  EXPECT_EQ(commands, Lines{"MYCALL QX7KB-10"});
}

TEST_F(Pk232ModelTest, EchoOffEndsTheEcho) {
  Take("ECHO OFF\r");
  EXPECT_EQ(Take("\r"), "cmd:");
  EXPECT_EQ(Take("MYCALL\r"), "MYCALL   PK232\r\ncmd:");
}

TEST_F(Pk232ModelTest, ShortFormsMeanWhatTheirLettersBegin) {
  Take("HB 300\r8B ON\rAW 8\rTB 9600\rPA\rM 5\rmyalias wide1-1\r");
  EXPECT_EQ(modem.Setting("HBAUD"), "300");
  EXPECT_EQ(modem.Setting("8BITCONV"), "ON");
  EXPECT_EQ(modem.Setting("AWLEN"), "8");
  EXPECT_EQ(modem.Setting("TBAUD"), "9600");
  EXPECT_EQ(modem.Setting("PASSALL"), "OFF");
  EXPECT_EQ(modem.Setting("MONITOR"), "5");
  EXPECT_EQ(modem.Setting("MYALIAS"), "WIDE1-1");
}

TEST_F(Pk232ModelTest, UnknownWordsAndBadValuesChangeNothing) {
  Take("ECHO OFF\r");
  EXPECT_EQ(Take("NONSENSE 1\r"), "?What?\r\ncmd:");
  EXPECT_EQ(Take("VHF PERHAPS\r"), "?bad\r\ncmd:");
  EXPECT_EQ(modem.Setting("VHF"), "ON");
}

TEST_F(Pk232ModelTest, SwallowsWhatLeavesOtherModesAndTheStars) {
  Take("ECHO OFF\r");
  commands.clear();
  EXPECT_EQ(Take("**********"), "");
  EXPECT_EQ(Take("\xC0\xFF\xC0\r"), "cmd:");
  EXPECT_EQ(Take(std::string("\x01") + "OHON\x17\r"), "cmd:");
  EXPECT_EQ(commands, Lines{});
  Take("KISS OFF\r");
  EXPECT_EQ(commands, Lines{"KISS OFF"});
}

TEST_F(Pk232ModelTest, AHostBlockWithoutEndIsGivenUp) {
  Take(std::string("\x01") + std::string(400, 'x') + "\rMYCALL QX7KB\r");
  EXPECT_EQ(modem.Setting("MYCALL"), "QX7KB");
}

TEST_F(Pk232ModelTest, InConverseEachLineIsAPacket) {
  Converse();
  EXPECT_TRUE(modem.Runs());
  EXPECT_EQ(Take("=4830.15N/00805.20E> Test \xE4\r\r"), "");
  EXPECT_EQ(sent, Lines{"SENT pk232 300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E> Test "
                        "\xE4\n"});
}

TEST_F(Pk232ModelTest, WithoutEightBitsTheEighthIsLost) {
  Take("UNPROTO ZEPR\rK\r");
  Take("\xE4\r");
  EXPECT_EQ(sent, Lines{"SENT pk232 1200 PK232>ZEPR:d\n"});
}

TEST_F(Pk232ModelTest, TheBreakLeavesConverseAndTheLineUnderWay) {
  Converse();
  EXPECT_EQ(Take("half a li\x03"), "\r\ncmd:");
  EXPECT_FALSE(modem.Runs());
  Take("MYCALL QX8AB\r");
  EXPECT_EQ(sent, Lines{});
  EXPECT_EQ(modem.Setting("MYCALL"), "QX8AB");
}

TEST_F(Pk232ModelTest, TheEchoOfConverseIsAsReceptionKnowsIt) {
  EXPECT_EQ(Take("K\r"), "K\r\n");
}

TEST_F(Pk232ModelTest, PrintsPacketsInTheNormalForm) {
  EXPECT_EQ(modem.Heard(Packet("N0CALL>APRS,WIDE1-1:!tst")),
            "N0CALL*>WIDE1-1>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(modem.Heard(Packet("N0CALL>APRS,RELAY*,WIDE2-1:!tst")),
            "N0CALL>RELAY*>WIDE2-1>APRS <UI>:\r\n!tst\r\n");
  Take("MONITOR 0\r");
  EXPECT_EQ(modem.Heard(Packet("N0CALL>APRS:!tst")), "");
}

TEST_F(Pk232ModelTest, ReceptionReadsWhatItPrints) {
  const std::string text = modem.Heard(Packet("N0CALL>APRS,WIDE1-1:!tst"));
  EXPECT_EQ(Pk232Text(text), text);
  // Behind the echo of the line that began converse.
  EXPECT_EQ(Pk232Text("K\r\n" + text), text);
}

TEST_F(Pk232ModelTest, ALineWithoutEndDoesNotGrow) {
  Take(std::string(1 << 20, 'x'));
  Take("\r");
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0].size(), ModemModel::kLongestLine);
}

TEST_F(Pk232ModelTest, TheCancelByteForgetsHalfALine) {
  Take("K\r=half\x18=whole\r");
  ASSERT_EQ(sent.size(), 1U);
  EXPECT_TRUE(sent[0].ends_with(":=whole\n")) << sent[0];
}

TEST_F(Pk232ModelTest, WithoutPowerItForgetsAll) {
  Take("MYCALL QX7KB\rK\r=x\r");
  EXPECT_EQ(modem.Aired("QX7KB"), 1);
  modem.LosePower();
  EXPECT_FALSE(modem.Runs());
  EXPECT_EQ(modem.Setting("MYCALL"), "PK232");
  Take("K\r=x\r");
  EXPECT_EQ(modem.Aired("QX7KB"), 1);
  EXPECT_EQ(modem.Aired("PK232"), 1);
}

}  // namespace
}  // namespace zepril
