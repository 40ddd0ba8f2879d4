// Lines of a play file and the frames made of them.
#include "tool/air_script.h"

#include <gtest/gtest.h>

#include <string>

#include "links/agw_frame.h"
#include "reception/agw_monitor.h"

namespace zepril {
namespace {

AirPacket OnlyPacket(std::string_view text) {
  AirScript script = ReadAirScript(text);
  EXPECT_EQ(script.Packets.size(), 1U);
  return script.Packets.empty() ? AirPacket{} : script.Packets.front();
}

TEST(AirScript, ReadsThePartsOfAPacket) {
  const AirPacket packet = OnlyPacket("@4.5 QX1AB-9>U3SS65,QX0HHX,QX0DIG*,WIDE2:`&]Nr\\N>:/A1\n");
  EXPECT_EQ(packet.Seconds, 4.5);
  EXPECT_EQ(packet.From, "QX1AB-9");
  EXPECT_EQ(packet.To, "U3SS65");
  EXPECT_EQ(packet.Via, "QX0HHX,QX0DIG*,WIDE2");
  EXPECT_EQ(packet.Information, "`&]Nr\\N>:/A1");
  EXPECT_EQ(packet.Header, "");
}

TEST(AirScript, UntimedPacketsFollowASecondApart) {
  const AirScript script = ReadAirScript("A1>B:x\n@10 A2>B:x\r\nA3>B:x");
  ASSERT_EQ(script.Packets.size(), 3U);
  EXPECT_EQ(script.Packets[0].Seconds, 0.0);
  EXPECT_EQ(script.Packets[1].Seconds, 10.0);
  EXPECT_EQ(script.Packets[2].Seconds, 11.0);
  EXPECT_EQ(script.Packets[1].Information, "x");
}

TEST(AirScript, TimesNeverFall) {
  const AirScript script = ReadAirScript("@9 A1>B:x\n@3 A2>B:x\n");
  ASSERT_EQ(script.Packets.size(), 2U);
  EXPECT_EQ(script.Packets[1].Seconds, 9.0);
}

TEST(AirScript, MonitorTextTakesItsInformationFromTheLineBelow) {
  const std::string header = "1:Fm QX2CD-1 To APRS Via WIDE1-1* <UI pid=F0 Len=4 PF=0 >[12:00:00]";
  const AirPacket packet = OnlyPacket("@7 " + header + "\n!tst\n");
  EXPECT_EQ(packet.Header, header);
  EXPECT_EQ(packet.Information, "!tst");
  EXPECT_EQ(packet.From, "QX2CD-1");
  EXPECT_EQ(packet.To, "APRS");
  EXPECT_EQ(packet.Via, "WIDE1-1*");
}

TEST(AirScript, MonitorTextMayHoldItsInformationBehindACarriageReturn) {
  const AirScript script =
      ReadAirScript("1:Fm QX2CD To APRS <UI Len=4 >[12:00:00]\r!tst\r\r\nA1>B:x\n");
  ASSERT_EQ(script.Packets.size(), 2U);
  EXPECT_EQ(script.Packets[0].Information, "!tst");
  EXPECT_EQ(script.Packets[1].From, "A1");
}

TEST(AirScript, PassesOverAndCountsWhatIsNoPacket) {
  const AirScript script =
      ReadAirScript("# a remark\n\nno packet: here\n>B:x\nTOOLONGCALL>B:x\nA>B:x\n");
  EXPECT_EQ(script.Packets.size(), 1U);
  EXPECT_EQ(script.Refused, 4U);
}

TEST(AirScript, InformationHasALimit) {
  const AirScript script = ReadAirScript("A>B:" + std::string(kLongestInformation + 1, 'x'));
  EXPECT_TRUE(script.Packets.empty());
  EXPECT_EQ(script.Refused, 1U);
}

TEST(AirScript, AFrameIsWhatAnEngineSends) {
  const AirPacket packet = OnlyPacket("QX1AB-9>APRS,QX0DIG*,WIDE2-1:!tst");
  const std::string frame = MonitorFrame(packet, {2026, 5, 4, 9, 8, 7});
  const std::string text =
      "1:Fm QX1AB-9 To APRS Via QX0DIG*,WIDE2-1 <UI pid=F0 Len=4 PF=0 >[09:08:07]\r!tst\r\r";
  ASSERT_EQ(frame.size(), kAgwHeaderLength + text.size());
  const AgwFrameFields fields = ReadAgwHeader(frame);
  EXPECT_EQ(fields.Kind, 'U');
  EXPECT_EQ(fields.From, "QX1AB-9");
  EXPECT_EQ(fields.To, "APRS");
  EXPECT_EQ(fields.DataLength, text.size());
  EXPECT_EQ(frame.substr(kAgwHeaderLength), text);
}

TEST(AirScript, APacketWithoutDigipeatersHasNoVia) {
  const std::string frame = MonitorFrame(OnlyPacket("QX1AB>APRS:!tst"), {});
  EXPECT_EQ(frame.substr(kAgwHeaderLength, 25), "1:Fm QX1AB To APRS <UI pi");
}

TEST(AirScript, ReceptionReadsWhatIsPlayed) {
  const AirPacket packet = OnlyPacket("DL1TOM>APRS,WIDE1-1*,WIDE2-1:!tst");
  const std::string text = MonitorFrame(packet, {}).substr(kAgwHeaderLength);
  std::string normal;
  EXPECT_TRUE(HasAgwForm(text));
  EXPECT_TRUE(AppendAgwFrame(text, normal));
  EXPECT_EQ(normal, "DL1TOM>WIDE1-1*>WIDE2-1>APRS <UI>:\r\n!tst\r\n");
}

}  // namespace
}  // namespace zepril
