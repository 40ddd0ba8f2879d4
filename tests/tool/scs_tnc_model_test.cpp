// Transcripts of the SCS TNC model.
#include "tool/scs_tnc_model.h"

#include <gtest/gtest.h>

#include <string>

#include "reception/scs_monitor.h"
#include "tests/tool/modem_model_support.h"

namespace zepril {
namespace {

using ScsTncModelTest = ModemModelTest<ScsTncModel>;

TEST_F(ScsTncModelTest, ObeysLinesThatBeginWithEscape) {
  EXPECT_EQ(Take("\x1B%R\r"), "%R\r\n\r\nZEPRIL model of an SCS TNC\r\n");
  EXPECT_EQ(Take("\x1B"
                 "E0\r"),
            "E0\r\n* OK *\r\n");
  EXPECT_EQ(Take("\x1BIQX7KB-10\r"), "* OK *\r\n");
  EXPECT_EQ(Take("\x1BI\r"), "* I QX7KB-10 *\r\n");
  EXPECT_EQ(Take("\x1B?\r"), "* INVALID COMMAND: ? *\r\n");
  EXPECT_EQ(commands, (Lines{"%R", "E0", "IQX7KB-10", "I", "?"}));
  EXPECT_EQ(sent, Lines{});
}

TEST_F(ScsTncModelTest, TheLongestNameIsMeant) {
  Take("\x1B%A1\r\x1B%AMQX7KB\r\x1B%AD3\r\x1B%AGH\r\x1B%AU1\r\x1B%BR300\r\x1B%X 300\r\x1BX0\r");
  EXPECT_EQ(modem.Setting("%A"), "1");
  EXPECT_EQ(modem.Setting("%AM"), "QX7KB");
  EXPECT_EQ(modem.Setting("%AD"), "3");
  EXPECT_EQ(modem.Setting("%AG"), "H");
  EXPECT_EQ(modem.Setting("%AU"), "1");
  EXPECT_EQ(modem.Setting("%B"), "R300");
  EXPECT_EQ(modem.Setting("%X"), "300");
  EXPECT_EQ(modem.Setting("X"), "0");
}

TEST_F(ScsTncModelTest, OtherLinesArePackets) {
  Take(
      "\x1BIQX7KB-10\r\x1B"
      "CZEPR WIDE1-1,WIDE2-1\r\x1B%B300\r");
  Take("=4830.15N/00805.20E>\r\r");
  Take(
      "\x1B"
      "CZEPR \r>status\r");
  EXPECT_EQ(sent, (Lines{"SENT scs-tnc 300 QX7KB-10>ZEPR,WIDE1-1,WIDE2-1:=4830.15N/00805.20E>\n",
                         "SENT scs-tnc 300 QX7KB-10>ZEPR:>status\n"}));
}

TEST_F(ScsTncModelTest, WithItsTransmitterOffItSendsNothing) {
  Take("\x1BX0\r>status\r");
  EXPECT_EQ(sent, Lines{});
}

TEST_F(ScsTncModelTest, PrintsPacketsWhenItMonitorsUnnumberedFrames) {
  const AirPacket packet = Packet("N0CALL>APRS,WIDE1-1*,WIDE2-1:!tst");
  EXPECT_FALSE(modem.Runs());
  EXPECT_EQ(modem.Heard(packet), "");
  Take("\x1BMU\r");
  EXPECT_TRUE(modem.Runs());
  EXPECT_EQ(modem.Heard(packet),
            "fm N0CALL to APRS via WIDE1-1* WIDE2-1 ctl UI pid F0\r\n!tst\r\n");
  EXPECT_EQ(modem.Heard(Packet("N0CALL>APRS:!tst")), "fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n");
}

TEST_F(ScsTncModelTest, ReceptionReadsWhatItPrintsBetweenItsAnswers) {
  Take(
      "\x1B"
      "E0\r\x1BMU\r");
  const std::string text = modem.Heard(Packet("N0CALL>APRS,WIDE1-1*,WIDE2-1:!tst")) +
                           Take("\x1B%AU1\r") + modem.Heard(Packet("QX1AB>APRS,WIDE1-1:>on"));
  std::string normal;
  EXPECT_EQ(TakeScsFrames(text, ScsDialect::Tnc, normal), text.size() - 2);
  EXPECT_EQ(normal,
            "N0CALL>WIDE1-1*>WIDE2-1>APRS <UI>:\r\n!tst\r\n"
            "QX1AB*>WIDE1-1>APRS <UI>:\r\n>on\r\n");
}

TEST_F(ScsTncModelTest, TheCancelByteForgetsHalfALine) {
  Take("=half\x18\x1BIQX7KB\r");
  EXPECT_EQ(sent, Lines{});
  EXPECT_EQ(modem.Setting("I"), "QX7KB");
}

TEST_F(ScsTncModelTest, WithoutPowerItForgetsAllAndSendsUnderTheCallOfTheShop) {
  Take("\x1BIQX7KB\r=x\r=half");
  const std::string shop = ScsTncModel().Setting("I");
  modem.LosePower();
  EXPECT_EQ(modem.Setting("I"), shop);
  Take("=x\r");
  EXPECT_EQ(modem.Aired("QX7KB"), 1);
  EXPECT_EQ(modem.Aired(shop), 1);
}

}  // namespace
}  // namespace zepril
