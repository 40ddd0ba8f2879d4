// Transcripts of the SCS PTC model.
#include "tool/scs_ptc_model.h"

#include <gtest/gtest.h>

#include <string>

#include "reception/scs_monitor.h"
#include "tests/tool/modem_model_support.h"

namespace zepril {
namespace {

class ScsPtcModelTest : public ModemModelTest<ScsPtcModel> {
 protected:
  void Converse() {
    Take(
        "TERM 0\r\nMYCALL QX7KB-10\r\nPAC\r\n\x1BMYCALL QX7KB-10\r\n"
        "\x1BUNPROTO ZEPR WIDE1-1 WIDE2-1\r\n\x1BMONITOR 1\r\n\x1B"
        "B R300\r\nK\r");
  }
};

TEST_F(ScsPtcModelTest, GoesFromItsMainMenuToThePacketMenu) {
  EXPECT_EQ(Take("\r\n"), "\r\ncmd: ");
  EXPECT_EQ(Take("TERM 0\r\n"), "TERM 0\r\n*** TERM: 0\r\ncmd: ");
  EXPECT_EQ(Take("UNPROTO ZEPR\r\n"), "*** UNKNOWN COMMAND: UNPROTO ZEPR\r\ncmd: ");
  EXPECT_EQ(Take("PAC\r\n"), "pac: ");
  EXPECT_EQ(Take("\x1BUNPROTO ZEPR WIDE1-1\r\n"), "*** UNPROTO: ZEPR WIDE1-1\r\npac: ");
  EXPECT_EQ(commands, (Lines{"TERM 0", "UNPROTO ZEPR", "PAC", "UNPROTO ZEPR WIDE1-1"}));
}

TEST_F(ScsPtcModelTest, EachChannelHasItsCall) {
  Take("PAC\r\n\x1BMYCALL QX7KB\r\n\x1BSETCHN  2\r\n\x1BMYCALL WIDE1-1\r\n\x1BSETCHN 1\r\n");
  EXPECT_EQ(modem.CallOfChannel(1), "QX7KB");
  EXPECT_EQ(modem.CallOfChannel(2), "WIDE1-1");
  EXPECT_EQ(modem.CallOfChannel(3), "");
  EXPECT_EQ(modem.Setting("SETCHN"), "1");
}

TEST_F(ScsPtcModelTest, CommandsTakeEitherLineEnd) {
  Take(
      "PAC\r\n\x1BTXL A 300\r\x1BTXL F 200\r\n\x1B"
      "DIGI ON\r");
  EXPECT_EQ(modem.Setting("TXL A"), "300");
  EXPECT_EQ(modem.Setting("TXL F"), "200");
  EXPECT_EQ(modem.Setting("DIGI"), "ON");
}

TEST_F(ScsPtcModelTest, InConverseLinesArePacketsAndEscapeBeginsACommand) {
  Converse();
  EXPECT_TRUE(modem.Runs());
  EXPECT_EQ(Take("=4830.15N/00805.20E>\r"), "");
  EXPECT_EQ(Take("\x1B"
                 "B 300\r"),
            "*** B: 300\r\n");
  Take(">status\r\n\r\n");
  EXPECT_EQ(sent, (Lines{"SENT scs-ptc R300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E>\n",
                         "SENT scs-ptc 300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:>status\n"}));
}

TEST_F(ScsPtcModelTest, QuitAndResetLeadBackToTheBeginning) {
  Converse();
  EXPECT_EQ(Take("\x1BQ\r"), "cmd: ");
  EXPECT_FALSE(modem.Runs());
  EXPECT_EQ(Take("\x1BRESET\r"), "\r\nZEPRIL model of an SCS PTC\r\ncmd: ");
  EXPECT_EQ(modem.Setting("TERM"), "4");
  EXPECT_EQ(sent, Lines{});
}

TEST_F(ScsPtcModelTest, PrintsPacketsBehindTheNumberOfTheirPort) {
  const AirPacket packet = Packet("N0CALL>APRS,WIDE1-1*,WIDE2-1:!tst");
  EXPECT_EQ(modem.Heard(packet), "");
  Converse();
  EXPECT_EQ(modem.Heard(packet),
            "1:fm N0CALL to APRS via WIDE1-1* WIDE2-1 ctl UI pid F0\r\n!tst\r\n");
}

TEST_F(ScsPtcModelTest, ReceptionReadsWhatItPrints) {
  Converse();
  const std::string text = modem.Heard(Packet("N0CALL>APRS,WIDE1-1*,WIDE2-1:!tst")) +
                           modem.Heard(Packet("QX1AB>APRS,WIDE1-1:>on"));
  std::string normal;
  EXPECT_EQ(TakeScsFrames(text, ScsDialect::Ptc, normal), text.size() - 2);
  EXPECT_EQ(normal,
            "N0CALL>WIDE1-1*>WIDE2-1>APRS <UI>:\r\n!tst\r\n"
            "QX1AB*>WIDE1-1>APRS <UI>:\r\n>on\r\n");
}

TEST_F(ScsPtcModelTest, EscapeForgetsHalfALineOfText) {
  Take("PAC\r\nMYCALL QX7KB\r\nK\r\n=half\x1BQ\r");
  EXPECT_EQ(sent, Lines{});
  EXPECT_FALSE(modem.Runs());
}

TEST_F(ScsPtcModelTest, WithoutPowerItForgetsAll) {
  Take("PAC\r\nMYCALL QX7KB\r\nK\r\n=x\r");
  EXPECT_EQ(modem.Aired("QX7KB"), 1);
  modem.LosePower();
  EXPECT_FALSE(modem.Runs());
  EXPECT_EQ(modem.CallOfChannel(1), "NOCALL");
  Take("PAC\r\nK\r\n=x\r");
  EXPECT_EQ(modem.Aired("QX7KB"), 1);
  EXPECT_EQ(modem.Aired("NOCALL"), 1);
}

}  // namespace
}  // namespace zepril
