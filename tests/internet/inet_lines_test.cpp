// Replies of both databases as lines, and a line as a frame.
#include "internet/inet_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/clock.h"

namespace zepril {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kPacket = "QX7GW>APRS,WIDE1-1,qAR,QX7AB:!4830.15N/00805.20E>Test";
const std::string kPlain = "20240514123000," + kPacket;
const std::string kDashed = "2024-05-14 12:30:00 " + kPacket;

std::vector<std::string> TextsOf(const std::string& text) {
  std::vector<std::string> texts;
  for (const InetLine& line : CutInetLines(text))
    texts.emplace_back(line.Text);
  return texts;
}

AnalysedFrame FrameOf(const std::string& line) {
  AnalysedFrame frame;
  EXPECT_TRUE(ReadInetLine(line, frame)) << line;
  return frame;
}

// ---- Replies --------------------------------------------------------------------------------

TEST(RestReply, LinesAreBroughtToTheFormOfTheOtherService) {
  EXPECT_EQ(LinesOfRestReply(kDashed + "\n"), kPlain + "\r\n");
  EXPECT_EQ(LinesOfRestReply(kDashed + "\r\n" + kDashed), kPlain + "\r\n" + kPlain + "\r\n");
}

TEST(RestReply, TextBeforeTheFirstLineIsDropped) {
  EXPECT_EQ(LinesOfRestReply("packets of QX7GW\n" + kDashed), kPlain + "\r\n");
  EXPECT_EQ(LinesOfRestReply("2 packets\n" + kDashed), kPlain + "\r\n");
}

TEST(RestReply, OfFortyCharactersIsNothing) {
  const std::string head = "2024-05-14 12:30:00 QX7GW>APRS:>";
  EXPECT_EQ(LinesOfRestReply("\n" + head + std::string(39 - head.size(), 'x')), "");
  EXPECT_NE(LinesOfRestReply("\n" + head + std::string(40 - head.size(), 'x')), "");
}

TEST(RestReply, WithoutALineBreakBeforeItNeedsMoreThanSixty) {
  const std::string head = "2024-05-14 12:30:00 QX7GW>APRS:>";
  EXPECT_EQ(LinesOfRestReply(head + std::string(60 - head.size(), 'x')), "");
  EXPECT_NE(LinesOfRestReply(head + std::string(61 - head.size(), 'x')), "");
}

TEST(RestReply, NulCharactersGo) {
  EXPECT_EQ(LinesOfRestReply(std::string("\0", 1) + kDashed + std::string("\0\0\n", 3)),
            kPlain + "\r\n");
}

TEST(RestReply, OfAnotherFormIsNothing) {
  for (const std::string& body :
       {std::string(), std::string("[]"), std::string(500, 'x'), std::string(500, '\n'),
        std::string(500, '\0'), std::string("<html><body>404</body></html>")}) {
    EXPECT_EQ(LinesOfRestReply(body), "") << body;
  }
}

TEST(CgiReply, LinesStandBehindTheMark) {
  EXPECT_EQ(LinesOfCgiReply("<title>x RAW DATA: QX7GW\r\n" + kPlain + "\r\n", "QX7GW"),
            "\r\n" + kPlain + "\r\n");
  EXPECT_EQ(LinesOfCgiReply("RAW DATA: QX7GW for 72 hours\r\n" + kPlain, "QX7GW"),
            " for 72 hours\r\n" + kPlain + "\r\n");
}

TEST(CgiReply, TheCallIsComparedWithoutRegardToItsCase) {
  EXPECT_NE(LinesOfCgiReply("RAW DATA: QX7GW\r\n" + kPlain, "qx7gw"), "");
  EXPECT_NE(LinesOfCgiReply("RAW DATA: qx7gw\r\n" + kPlain, "QX7GW"), "");
}

TEST(CgiReply, WithoutTheMarkIsPassedOver) {
  EXPECT_EQ(LinesOfCgiReply(kPlain, "QX7GW"), "");
  EXPECT_EQ(LinesOfCgiReply("RAW DATA: N0CALL\r\n" + kPlain, "QX7GW"), "");
  EXPECT_EQ(LinesOfCgiReply("raw data: QX7GW\r\n" + kPlain, "QX7GW"), "");
}

TEST(CgiReply, NeedsMoreThanSixtyCharactersAndALineStart) {
  const std::string mark = "RAW DATA: QX7GW";
  EXPECT_EQ(LinesOfCgiReply(mark + "20" + std::string(58, 'x'), "QX7GW"), "");
  EXPECT_NE(LinesOfCgiReply(mark + "20" + std::string(59, 'x'), "QX7GW"), "");
  EXPECT_EQ(LinesOfCgiReply(mark + std::string(100, 'x'), "QX7GW"), "");
}

TEST(CgiReply, ThatThereIsNothingIsSaidInAnyCase) {
  EXPECT_TRUE(SaysNoData("No data found for QX7GW"));
  EXPECT_TRUE(SaysNoData("<b>NO DATA FOUND FOR</b>"));
  EXPECT_FALSE(SaysNoData("RAW DATA: QX7GW"));
}

// ---- Lines ----------------------------------------------------------------------------------

TEST(CutInetLines, TakesEveryLineWithItsTime) {
  const std::string text = kPlain + "\r\n" + kDashed + "\n";
  const auto lines = CutInetLines(text);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[0].Text, kPlain);
  EXPECT_EQ(lines[1].Text, kDashed);
  for (const InetLine& line : lines)
    EXPECT_EQ(line.Seconds, SecondsOf({2024, 5, 14, 12, 30, 0}));
}

TEST(CutInetLines, AHeadIsPassedOverAndNeverAPacket) {
  EXPECT_THAT(TextsOf(" for 72 hours\r\n" + kPlain + "\r\n"), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf("\r\n" + kPlain + "\r\n"), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf("\r\n\r\n" + kPlain + "\r\n"), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf("\r\nfor 72 hours\r\n" + kPlain + "\r\n"), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf("\r\nfor 72 hours\r\n\r\n" + kPlain), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf("x\n" + kPlain), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf(kPlain), ElementsAre(kPlain));
}

TEST(CutInetLines, ALineOfLessThanFortyCharactersEndsThem) {
  const std::string other = "20240514123100," + kPacket;
  const std::string short_line = "20240514123000," + std::string(24, 'x');
  EXPECT_EQ(short_line.size(), 39U);
  EXPECT_THAT(TextsOf(kPlain + "\r\n" + short_line + "\r\n" + other + "\r\n"), ElementsAre(kPlain));
  EXPECT_THAT(TextsOf(kPlain + "\r\n" + short_line + "x\r\n" + other + "\r\n"),
              ElementsAre(kPlain, short_line + "x", other));
  EXPECT_THAT(TextsOf(kPlain + "\r\n\r\n" + other + "\r\n"), ElementsAre(kPlain));
}

TEST(CutInetLines, LinesWithoutATimeAreLeftOut) {
  for (const char* date :
       {"2024051412300x,", "19990514123000,", "2024/05/14 12:30:00 ", "2024-05-14T12:3x:00 "}) {
    EXPECT_THAT(TextsOf("20\n" + std::string(date) + kPacket), IsEmpty()) << date;
  }
}

TEST(CutInetLines, TheNewestComesLastWhateverTheServersOrder) {
  const std::string second = "20240514123001," + kPacket;
  const std::string also_second = "20240514123001,Q" + kPacket;
  EXPECT_THAT(TextsOf(second + "\n" + also_second + "\n" + kPlain + "\n"),
              ElementsAre(kPlain, second, also_second));
}

TEST(CutInetLines, ImpossibleTimesRollOver) {
  const auto lines = CutInetLines("20240230250061," + kPacket);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].Seconds, SecondsOf({2024, 3, 2, 1, 1, 1}));
}

// ---- Frames ---------------------------------------------------------------------------------

TEST(InetLine, IsAFrame) {
  const AnalysedFrame frame = FrameOf(kPlain);
  EXPECT_EQ(frame.PacketCall, "QX7GW");
  EXPECT_EQ(frame.PacketDestination, "APRS");
  EXPECT_EQ(frame.PacketType, '!');
  EXPECT_EQ(frame.PacketInfo, "!4830.15N/00805.20E>Test");
  EXPECT_FALSE(frame.ThirdParty);
}

TEST(InetLine, MayHaveEitherFormOfDate) {
  const AnalysedFrame frame = FrameOf("2024-05-14 12:30:00," + kPacket);
  EXPECT_EQ(frame.PacketCall, "QX7GW");
  EXPECT_EQ(frame.PacketInfo, "!4830.15N/00805.20E>Test");
}

TEST(InetLine, IsHeardViaTheLastOfItsPathInSmallLetters) {
  EXPECT_EQ(FrameOf(kPlain).PacketHeardVia, "qx7ab");
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS,QX7AB-10:!4830.15N/00805.20E>").PacketHeardVia,
            "qx7ab-10");
}

TEST(InetLine, WithoutAPathIsHeardViaTheNet) {
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS:!4830.15N/00805.20E>").PacketHeardVia, "inet");
}

TEST(InetLine, ThatTellsOfTcpipIsHeardViaThat) {
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS,TCPIP*,qAC,T2X:!4830.15N/00805.20E>").PacketHeardVia,
            "tcpip");
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS,TCPIP,qAC,T2X:!4830.15N/00805.20E>").PacketHeardVia,
            "t2x");
}

TEST(InetLine, OfAThirdPartyIsThatPartys) {
  const AnalysedFrame frame =
      FrameOf("20240514123000,QX7GW>APRS,qAR,QX7AB:}n0call*>APZ,WIDE1-1*:=5230.00N/01324.00E>Test");
  EXPECT_EQ(frame.PacketCall, "N0CALL");
  EXPECT_EQ(frame.PacketDestination, "APZ");
  EXPECT_EQ(frame.PacketHeardVia, "qx7ab");
  EXPECT_EQ(frame.PacketInfo, "=5230.00N/01324.00E>Test");
  EXPECT_TRUE(frame.ThirdParty);
}

TEST(InetLine, OfAMessageHasAHeaderInNormalForm) {
  const std::string message = "::N0CALL   :Hello{1";
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS,WIDE1-1*,qAR,X:" + message.substr(1)).Header,
            "QX7GW>WIDE1-1*,qAR,X>APRS <UI>");
  EXPECT_EQ(FrameOf("20240514123000,QX7GW>APRS:" + message.substr(1)).Header, "QX7GW*>APRS <UI>");
}

TEST(InetLine, WithoutAHeaderIsNone) {
  AnalysedFrame frame;
  for (const char* packet : {"", "x", "QX7GW>APRS", ">APRS:!", "QX7GW:a>b", ":>"})
    EXPECT_FALSE(ReadInetLine("20240514123000," + std::string(packet), frame)) << packet;
  EXPECT_FALSE(ReadInetLine("", frame));
}

TEST(InetLine, OfTheOwnRetransmissionIsKnownByItsFirstColumns) {
  const std::string own = "20240514123000,QX7KB>ZEPRRE,WIDE1-1:/141230z4830.15N/00805.20E>";
  EXPECT_TRUE(IsOwnRetransmission(own, FrameOf(own), "QX7KB"));
  EXPECT_FALSE(IsOwnRetransmission(own, FrameOf(own), "QX7AB"));
  EXPECT_FALSE(IsOwnRetransmission(own, FrameOf(own), ""));
  const std::string later = "20240514123000,QX7GW>ZEPRRE,,QX7KB*:/141230z4830.15N/00805.20E>";
  EXPECT_EQ(later.find("QX7KB"), 29U);
  EXPECT_FALSE(IsOwnRetransmission(later, FrameOf(later), "QX7KB"));
  const std::string usual = "20240514123000,QX7KB>ZEPR,WIDE1-1:=4830.15N/00805.20E>";
  EXPECT_FALSE(IsOwnRetransmission(usual, FrameOf(usual), "QX7KB"));
}

}  // namespace
}  // namespace zepril
