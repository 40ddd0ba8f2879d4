// Senders, digipeaters and aliases of headers, the own echo, third-party packets.
#include "reception/header_analysis.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

struct Read {
  HeaderOutcome Outcome = HeaderOutcome::TooShort;
  AnalysedFrame Frame;
};

Read Analyse(const std::string& header, const std::string& information,
             const std::string& my_call = "QX7KB", const std::string& own = "") {
  Read read;
  read.Outcome = AnalyseHeader(header + ":\r\n" + information, my_call, own, read.Frame);
  return read;
}

TEST(HeaderAnalysis, DirectFrameHasNoVia) {
  const Read read = Analyse("n0call*>WIDE1-1>APRS <UI>", "!tst ");
  EXPECT_EQ(read.Outcome, HeaderOutcome::Frame);
  EXPECT_EQ(read.Frame.PacketCall, "N0CALL");
  EXPECT_EQ(read.Frame.PacketDestination, "APRS");
  EXPECT_EQ(read.Frame.PacketHeardVia, "");
  EXPECT_EQ(read.Frame.PacketType, '!');
  EXPECT_EQ(read.Frame.PacketInfo, "!tst");
  EXPECT_FALSE(read.Frame.ThirdParty);
}

TEST(HeaderAnalysis, FirstAsteriskTellsTheDigipeaterByItsColumn) {
  EXPECT_EQ(Analyse("N0A>ECHO*>APRS <UI>", "!x").Frame.PacketHeardVia, "");
  EXPECT_EQ(Analyse("N0AB>RELAY*>APRS <UI>", "!x").Frame.PacketHeardVia, "RELAY");
  EXPECT_EQ(Analyse("DL1TOM>WIDE1-1*>WIDE2-1>APRS <UI>", "!x").Frame.PacketHeardVia, "WIDE1-1");
}

TEST(HeaderAnalysis, SenderAndDigipeaterMarkedReadsAsDirect) {
  EXPECT_EQ(Analyse("N0CALL*>WIDE1-1*>APRS <UI>", "!x").Frame.PacketHeardVia, "");
}

TEST(HeaderAnalysis, UsedAliasIsNamedForDirectFrames) {
  const auto via = [](const std::string& path) {
    return Analyse("N0CALL*>" + path + ">APRS <UI>", "!x").Frame.PacketHeardVia;
  };
  EXPECT_EQ(via("WIDE2-1"), "ALIAS");
  EXPECT_EQ(via("WIDE1"), "ALIAS");
  EXPECT_EQ(via("WIDE1-1"), "");
  EXPECT_EQ(via("WIDE2-2"), "");
  EXPECT_EQ(via("WIDE"), "");
}

TEST(HeaderAnalysis, DigitsInTheSenderAreNoAlias) {
  EXPECT_EQ(Analyse("N0C2-1*>WIDE1-1>APRS <UI>", "!x").Frame.PacketHeardVia, "");
}

TEST(HeaderAnalysis, ShortHeaderIsDropped) {
  EXPECT_EQ(Analyse("* <UI", "!x").Outcome, HeaderOutcome::TooShort);
  EXPECT_NE(Analyse("* <UI>", "!x").Outcome, HeaderOutcome::TooShort);
}

TEST(HeaderAnalysis, HeaderWithoutAsteriskIsDropped) {
  EXPECT_EQ(Analyse("N0CALL>APRS <UI>", "!x").Outcome, HeaderOutcome::NotMarked);
}

TEST(HeaderAnalysis, PathThatIsNotWellFormedHasNoInformation) {
  const Read read = Analyse("N0CALL* <UI>", "!4903.50N/07201.75W-Test");
  EXPECT_EQ(read.Outcome, HeaderOutcome::Frame);
  EXPECT_EQ(read.Frame.PacketInfo, "");
  EXPECT_EQ(read.Frame.PacketType, '\0');
}

TEST(HeaderAnalysis, LeadingBlankIsTheDataType) {
  const Read read = Analyse("N0CALL*>WIDE1-1>APRS <UI>", " !4903.50N");
  EXPECT_EQ(read.Frame.PacketType, ' ');
  EXPECT_EQ(read.Frame.PacketInfo, "!4903.50N");
}

TEST(HeaderAnalysis, InformationIsCutAtAReturn) {
  EXPECT_EQ(Analyse("N0CALL*>WIDE1-1>APRS <UI>", "!abc \rdef").Frame.PacketInfo, "!abc");
}

TEST(HeaderAnalysis, OwnEchoIsToldByTheBeginningOfTheHeader) {
  const std::string own = "QX7KB*>WIDE1-1>ZEPR";
  EXPECT_EQ(Analyse("QX7KB*>WIDE1-1>ZEPR <UI>", "!x", "QX7KB", own).Outcome,
            HeaderOutcome::OwnEcho);
  EXPECT_EQ(Analyse("QX7KB*>WIDE1-1>ZEPRRE <UI>", "!x", "QX7KB", own).Outcome,
            HeaderOutcome::OwnEcho);
  EXPECT_EQ(Analyse("QX7KB*>WIDE1-1>APRS <UI>", "!x", "QX7KB", own).Outcome, HeaderOutcome::Frame);
}

TEST(HeaderAnalysis, PromptOfTheModemIsCutBeforeTheOwnEchoIsTold) {
  const std::string own = "QX7KB*>WIDE1-1>ZEPR";
  EXPECT_EQ(Analyse("cmd:QX7KB*>WIDE1-1>ZEPR <UI>", "!x", "QX7KB", own).Outcome,
            HeaderOutcome::OwnEcho);
  const Read other = Analyse("cmd:n0call*>WIDE1-1>ZEPR <UI>", "!x", "QX7KB", own);
  EXPECT_EQ(other.Outcome, HeaderOutcome::Frame);
  EXPECT_EQ(other.Frame.PacketCall, "N0CALL");
}

TEST(HeaderAnalysis, ThirdPartyPacketOverTheInternet) {
  const Read read =
      Analyse("QX9GW*>APRS <UI>", "}n0call*>APRS,TCPIP,GATE1*:=5230.00N/01324.00E>Hi ");
  EXPECT_EQ(read.Outcome, HeaderOutcome::Frame);
  EXPECT_TRUE(read.Frame.ThirdParty);
  EXPECT_EQ(read.Frame.PacketCall, "N0CALL");
  EXPECT_EQ(read.Frame.PacketDestination, "APRS");
  EXPECT_EQ(read.Frame.PacketHeardVia, "TCPIP");
  EXPECT_EQ(read.Frame.PacketType, '=');
  EXPECT_EQ(read.Frame.PacketInfo, "=5230.00N/01324.00E>Hi");
}

TEST(HeaderAnalysis, ThirdPartyPacketNamesItsLastDigipeaterOrDestination) {
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}QX9ZZ>ZEPRRE,N0GATE*:!x").Frame.PacketHeardVia, "N0GATE");
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}N0CALL>APRS:=x*").Frame.PacketHeardVia, "APRS");
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}N0CALL>APRS:TCPIP").Frame.PacketHeardVia, "APRS");
}

TEST(HeaderAnalysis, ThirdPartyAsteriskCountsBeyondColumnElevenOnly) {
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}N0C>APRS,A*:!x").Frame.PacketHeardVia, "APRS");
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}N0CA>APRS,A*:!x").Frame.PacketHeardVia, "A");
}

TEST(HeaderAnalysis, OwnPacketGatedBackIsDropped) {
  EXPECT_EQ(Analyse("QX7KB-9*>APRS <UI>", "}N0CALL>APRS:!x").Outcome, HeaderOutcome::OwnGatedBack);
  EXPECT_EQ(Analyse("N0CAL*>QX7KB>A <UI>", "}N0CALL>APRS:!x").Outcome, HeaderOutcome::OwnGatedBack);
  EXPECT_EQ(Analyse("N0CALL*>QX7KB>A <UI>", "}N0CALL>APRS:!x").Outcome, HeaderOutcome::Frame);
  EXPECT_EQ(Analyse("QX9GW*>APRS <UI>", "}N0CALL>APRS:!x", "").Outcome, HeaderOutcome::Frame);
}

TEST(HeaderAnalysis, BraceWithoutInnerHeaderIsANormalFrame) {
  for (const std::string information : {"}no colon here>", "}no arrow: a>b", "}"}) {
    const Read read = Analyse("N0CALL*>WIDE1-1>APRS <UI>", information);
    EXPECT_EQ(read.Outcome, HeaderOutcome::Frame);
    EXPECT_FALSE(read.Frame.ThirdParty);
    EXPECT_EQ(read.Frame.PacketCall, "N0CALL");
    EXPECT_EQ(read.Frame.PacketType, '}');
  }
}

}  // namespace
}  // namespace zepril
