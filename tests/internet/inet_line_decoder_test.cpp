// Lines of the net in the stores: times, repeats, overlaps with the history, marks, messages.
#include "internet/inet_line_decoder.h"

#include <gtest/gtest.h>

#include "tests/internet/internet_world.h"

namespace zepril {
namespace {

class InetLineDecoderTest : public ::testing::Test {
 protected:
  DecodedLines Decode(const std::string& lines) {
    return decoder.DecodeInetLines(LinesOfRestReply("\n" + lines));
  }
  // A packet of the followed station at 12:30.
  DecodedLines DecodePacketOf(const std::string& info, const std::string& header = "QX7GW>APRS") {
    return decoder.DecodeInetLines("20240514123000," + header + ":" + info + "\r\n");
  }
  static std::string Line(const std::string& time) { return InternetWorld::Line(time); }
  const StationRecord& Last() const { return world.Last(); }

  InternetWorld world;
  InetLineDecoder decoder{{world.Identity, world.Map, world.Settings},
                          {world.Room.Keeper, world.Symbols, world.Time}};
};

TEST_F(InetLineDecoderTest, ALineIsStoredAmongAllStationsAndInTheHistory) {
  const DecodedLines decoded = Decode(Line("2024-05-14 12:30:00"));
  EXPECT_EQ(decoded.Lines, 1);
  EXPECT_EQ(decoded.Stored, 1);
  EXPECT_EQ(decoded.Level, FrameLevel::Moni1);
  ASSERT_EQ(world.Heard(), 1);
  EXPECT_EQ(Last().Call(), "QX7GW");
  EXPECT_EQ(Last().DateAndTime(), "240514 1230");
  EXPECT_EQ(Last().HeardViaField(), "qx7ab");
  EXPECT_EQ(Last().Info(), "Test");
  EXPECT_EQ(Last().Symbol(), "/>");
  EXPECT_EQ(world.HistoryCount(), 1);
  EXPECT_EQ(world.Disk.LineCount(world.Log("QX7GW.TXT")), 1);
  EXPECT_EQ(world.Followed.MonitorTime, "1230");
}

TEST_F(InetLineDecoderTest, TheTimeMovesToTheLocalClock) {
  world.Settings.UtcOffsetHours = 2;
  Decode(Line("2024-05-14 12:30:00"));
  EXPECT_EQ(Last().DateAndTime(), "240514 1430");
  Decode(Line("2024-05-14 23:31:00"));
  EXPECT_EQ(Last().DateAndTime(), "240515 0131");
}

TEST_F(InetLineDecoderTest, TheTimeMovesOverTheTurnOfAYearAndALeapDay) {
  world.Settings.UtcOffsetHours = -3;
  Decode(Line("2024-01-01 01:30:00"));
  EXPECT_EQ(Last().DateAndTime(), "231231 2230");
  world.Settings.UtcOffsetHours = 1;
  Decode(Line("2024-02-28 23:31:00"));
  EXPECT_EQ(Last().DateAndTime(), "240229 0031");
  Decode(Line("2023-12-31 23:32:00"));
  EXPECT_EQ(Last().DateAndTime(), "240101 0032");
}

TEST_F(InetLineDecoderTest, WhatTheHistoryHasIsNotEnteredAgain) {
  world.Stores.Moni1Records.Append(RecordOf("QX7GW", "240514 1230"));
  Decode(Line("2024-05-14 12:29:00") + Line("2024-05-14 12:30:00") + Line("2024-05-14 12:31:00"));
  EXPECT_EQ(world.HistoryCount(), 2);
  EXPECT_EQ(world.NewestOfHistory().DateAndTime(), "240514 1231");
  EXPECT_EQ(world.Heard(), 3) << "among all stations they are";
}

TEST_F(InetLineDecoderTest, TwoLinesOfAMinuteAreOneRecordOfTheHistory) {
  const std::string north = "QX7GW>APRS,WIDE1-1*,qAR,QX7AB:!4831.15N/00805.20E>Test\r\n";
  Decode(Line("2024-05-14 12:30:00") + "2024-05-14 12:30:40 " + north);
  EXPECT_EQ(world.HistoryCount(), 1);
}

TEST_F(InetLineDecoderTest, ARepeatIsLeftOut) {
  Decode(Line("2024-05-14 12:30:00"));
  const DecodedLines again = Decode(Line("2024-05-14 12:30:00"));
  EXPECT_EQ(again.Lines, 1);
  EXPECT_EQ(again.Stored, 0);
  EXPECT_EQ(again.Level, FrameLevel::Nothing);
  EXPECT_EQ(world.Heard(), 1);
}

TEST_F(InetLineDecoderTest, WhatWasHeardByRadioIsNotStoredOnceMore) {
  world.Time.SetNow({2024, 5, 14, 12, 31, 0});
  world.HearPacket("!4830.15N/00805.20E>Test", "QX7GW>WIDE1-1*>APRS");
  Decode(Line("2024-05-14 12:30:00"));
  EXPECT_EQ(world.Heard(), 1);
}

TEST_F(InetLineDecoderTest, AServerThatTellsTheNewestFirstFillsTheHistoryInOrder) {
  Decode(Line("2024-05-14 12:32:00") + Line("2024-05-14 12:31:00") + Line("2024-05-14 12:30:00"));
  ASSERT_EQ(world.HistoryCount(), 3);
  EXPECT_EQ(world.Stores.Moni1Records.At(1).Time(), "1230");
  EXPECT_EQ(world.NewestOfHistory().Time(), "1232");
}

TEST_F(InetLineDecoderTest, APacketOfAnotherCallIsNotInTheHistory) {
  Decode(InternetWorld::Line("2024-05-14 12:30:00", "N0CALL"));
  EXPECT_EQ(world.Heard(), 1);
  EXPECT_EQ(world.HistoryCount(), 0);
}

TEST_F(InetLineDecoderTest, CallsAreComparedWithoutRegardToTheirCase) {
  world.Followed.Moni1Call = "qx7gw";
  Decode(Line("2024-05-14 12:30:00"));
  EXPECT_EQ(world.HistoryCount(), 1);
  EXPECT_EQ(world.Followed.Moni1Call, "qx7gw");
}

TEST_F(InetLineDecoderTest, AStampIsComparedWithTheLinesOwnTime) {
  DecodePacketOf("@141230z4830.15N/00805.20E>Test");
  EXPECT_EQ(Last().StaleMark(), ' ');
  DecodePacketOf("@141226z4831.15N/00805.20E>Test");
  EXPECT_EQ(Last().StaleMark(), 'T');
  world.Settings.UtcOffsetHours = 2;
  DecodePacketOf("@141230z4832.15N/00805.20E>Test");
  EXPECT_EQ(Last().StaleMark(), ' ');
}

TEST_F(InetLineDecoderTest, TheFormsOfPositionsAreThoseOfTheRadio) {
  DecodePacketOf("!/5L!!<*e7>7P[comment");
  EXPECT_EQ(Last().Info(), "7P[comment");
  DecodePacketOf(";LEADER   *141230z4830.15N/00805.20E>Object");
  EXPECT_EQ(Last().Call(), "LEADER");
  EXPECT_EQ(Last().ObjectMark(), '_');
  EXPECT_EQ(Last().HeardViaField(), "QX7GW");
  DecodePacketOf("$GPRMC,123000,A,4833.15,N,00805.20,E,,,,,*00", "QX7GW-9>APRS");
  EXPECT_EQ(Last().Symbol(), "/>");
  EXPECT_EQ(world.Heard(), 3);
}

TEST_F(InetLineDecoderTest, TheShiftSouthAndWestIsThatOfTheRadio) {
  world.Map.MapCentralMeridian = -69.0;
  DecodePacketOf("!0830.00S/07201.75W>Test");
  const std::string by_net(Last().PositionKey());
  InternetWorld radio;
  radio.Map.MapCentralMeridian = -69.0;
  radio.HearPacket("!0830.00S/07201.75W>Test");
  EXPECT_EQ(by_net, radio.Last().PositionKey());
}

TEST_F(InetLineDecoderTest, AnItemCostsItsOwnLineOnly) {
  const std::string item =
      InternetWorld::Line("2024-05-14 12:29:00", "QX7GW", ")AID #2!4830.15N/00805.20EAfirst aid");
  Decode(item + Line("2024-05-14 12:30:00"));
  EXPECT_EQ(world.Heard(), 1);
}

TEST_F(InetLineDecoderTest, TheOwnRetransmissionIsLeftOut) {
  const std::string info = "/141230z4830.15N/00805.20E>";
  EXPECT_EQ(DecodePacketOf(info, "QX7KB>ZEPRRE,WIDE1-1").Stored, 0);
  EXPECT_EQ(DecodePacketOf(info, "QX7GW>ZEPRRE,,QX7KB*").Stored, 1);
}

TEST_F(InetLineDecoderTest, ATimeFarAheadIsNotBelieved) {
  Decode(Line("2024-05-15 12:34:00"));
  EXPECT_EQ(world.Heard(), 1);
  Decode(Line("2024-05-15 12:36:00") + Line("2099-01-01 00:00:00"));
  EXPECT_EQ(world.Heard(), 1);
}

// ---- Emergencies ----------------------------------------------------------------------------

TEST_F(InetLineDecoderTest, AnEmergencyHasItsOwnWordInTheLog) {
  const DecodedLines decoded = DecodePacketOf("!4830.15N\\00805.20E!help");
  EXPECT_EQ(decoded.Level, FrameLevel::Emergency);
  const std::string block = world.Disk.Of(world.Log("_ALARM_.TXT"));
  EXPECT_NE(block.find("STATION : QX7GW\r\nTIME    : 2024-05-14 12:30\r\nQTH GLL :  48:30.15"),
            std::string::npos)
      << block;
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 7);
  EXPECT_EQ(world.Alarms.AlarmCall, "QX7GW");
}

TEST_F(InetLineDecoderTest, AnEmergencyThatIsKnownIsNotToldOfAgain) {
  DecodePacketOf("!4830.15N\\00805.20E!help");
  EXPECT_EQ(DecodePacketOf("!4830.15N\\00805.20E!help").Level, FrameLevel::Nothing);
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 7);
}

TEST_F(InetLineDecoderTest, AnEmergencyAtThePlaceOfAnEarlierPacketIsToldOfAndShown) {
  decoder.DecodeInetLines(
      "20240514120000,QX7GW>APRS,qAR,QX7AB:!4830.15N/00805.20E>Test of the net\r\n");
  const DecodedLines decoded =
      decoder.DecodeInetLines("20240514120500,QX7GW>APRS,qAR,QX7CD:!4830.15N\\00805.20E!help\r\n");
  EXPECT_EQ(decoded.Stored, 0) << "by its place a repeat";
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 7);
  EXPECT_EQ(decoded.Level, FrameLevel::Emergency);
  EXPECT_EQ(world.Alarms.AlarmCall, "QX7GW");
}

TEST_F(InetLineDecoderTest, AnotherWayOfAnEmergencyIsLoggedAndNotShownAgain) {
  const auto line = [](const char* gate) {
    return std::string("20240514123000,QX7GW>APRS,qAR,") + gate + ":!4830.15N\\00805.20E!help\r\n";
  };
  EXPECT_EQ(decoder.DecodeInetLines(line("QX7AB")).Level, FrameLevel::Emergency);
  world.Alarms.AlarmCall.clear();  // the operator has ended it
  EXPECT_EQ(decoder.DecodeInetLines(line("QX7CD")).Level, FrameLevel::Nothing);
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 14);
  EXPECT_EQ(world.Alarms.AlarmCall, "");
}

TEST_F(InetLineDecoderTest, AKnownEmergencyThatTheListHasLostIsNotToldOfAgain) {
  DecodePacketOf("!4830.15N\\00805.20E!help");
  world.Alarms.AlarmCall.clear();  // the operator has ended it
  world.Stores.MoniAllRecords.Clear();
  const DecodedLines again = DecodePacketOf("!4830.15N\\00805.20E!help");
  EXPECT_EQ(again.Stored, 1);
  EXPECT_EQ(again.Level, FrameLevel::MoniAll);
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 7);
  EXPECT_EQ(world.Alarms.AlarmCall, "");
}

TEST_F(InetLineDecoderTest, AnEmergencyOfMoreThanADayIsStoredAndNotShown) {
  const auto line = [](const char* time) {
    return InternetWorld::Line(time, "QX7GW", "!4830.15N\\00805.20E!help");
  };
  world.Settings.UtcOffsetHours = 2;  // the local clock shows 12:35
  const DecodedLines old = Decode(line("2024-05-13 10:34:59"));
  EXPECT_EQ(old.Stored, 1);
  EXPECT_EQ(old.Level, FrameLevel::MoniAll);
  EXPECT_EQ(world.Alarms.AlarmCall, "");
  EXPECT_EQ(world.Disk.LineCount(world.Log("_ALARM_.TXT")), 7);
  EXPECT_EQ(Decode(line("2024-05-13 10:35:00")).Level, FrameLevel::Emergency);
}

// ---- Messages -------------------------------------------------------------------------------

TEST_F(InetLineDecoderTest, AMessageIsHandedOnOnceHoweverOftenItsLineComes) {
  const std::string message = ":QX7KB    :Hello{07";
  const DecodedLines first = DecodePacketOf(message, "QX7GW>APRS,WIDE1-1*,qAR,QX7AB");
  ASSERT_EQ(first.Messages.size(), 1U);
  EXPECT_EQ(first.Messages[0].From, "QX7GW");
  EXPECT_EQ(first.Messages[0].Info, message);
  EXPECT_EQ(first.Messages[0].Destination, "APRS");
  EXPECT_EQ(first.Messages[0].Header, "QX7GW>WIDE1-1*,qAR,QX7AB>APRS <UI>");
  EXPECT_TRUE(DecodePacketOf(message, "QX7GW>APRS,WIDE1-1*,qAR,QX7AB").Messages.empty());
  EXPECT_EQ(world.Heard(), 0);
}

TEST_F(InetLineDecoderTest, AMessageThatIsSentAgainIsHandedOnAgain) {
  const auto line = [](const char* time) {
    return InternetWorld::Line(time, "QX7GW", ":QX7KB    :Hello{07");
  };
  EXPECT_EQ(Decode(line("2024-05-14 12:30:00")).Messages.size(), 1U);
  EXPECT_EQ(Decode(line("2024-05-14 12:30:00") + line("2024-05-14 12:30:30")).Messages.size(), 1U);
}

TEST_F(InetLineDecoderTest, OfAFloodOfMessagesTheNewestCount) {
  std::string lines;
  for (int number = 0; number < 1000; ++number) {
    const std::string text = ":QX7KB    :Hello{" + WholeNumber(number);
    lines += InternetWorld::Line("2024-05-14 12:30:00", "QX7GW", text);
  }
  const DecodedLines decoded = Decode(lines);
  ASSERT_EQ(decoded.Messages.size(), InetLineDecoder::kMostMessages);
  EXPECT_EQ(decoded.Messages.back().Info, ":QX7KB    :Hello{999");
}

// ---- Many lines -----------------------------------------------------------------------------

TEST_F(InetLineDecoderTest, LogsAndHistoryAreWrittenOnceForAllLines) {
  world.Stores.LogsOn = 1;
  std::string lines;
  for (int minute = 10; minute < 35; ++minute)
    lines += Line("2024-05-14 12:" + WholeNumber(minute) + ":00");
  const int writes_before = world.Disk.Writes;
  Decode(lines);
  EXPECT_EQ(world.HistoryCount(), 25);
  EXPECT_EQ(world.Disk.LineCount(world.Log("_LOG_.TXT")), 25);
  EXPECT_EQ(world.Disk.LineCount(world.Log("_LOGL_.TXT")), 25);
  EXPECT_EQ(world.Disk.LineCount(world.Log("QX7GW.TXT")), 25);
  EXPECT_EQ(world.Disk.Writes - writes_before, 3);
}

TEST_F(InetLineDecoderTest, TheOpenPanelOfTheStationGoesToItsNewestRecord) {
  world.Stores.SelectedStationCall = "QX7GW";
  Decode(Line("2024-05-14 12:30:00") + Line("2024-05-14 12:31:00"));
  EXPECT_EQ(world.Stores.SelectedRecordIndex, 2);
}

TEST_F(InetLineDecoderTest, TheOpenPanelOfAnotherStationStaysWithItsRecordWhenTheListIsCut) {
  world.Stores.MoniAllRecords.Limit = 8;
  Decode(Line("2024-05-14 12:01:00") + Line("2024-05-14 12:02:00") + Line("2024-05-14 12:03:00") +
         Line("2024-05-14 12:04:00") + InternetWorld::Line("2024-05-14 12:05:00", "N0CALL"));
  world.Browser.Open("N0CALL", 5, 0.0, 0.0);
  Decode(Line("2024-05-14 12:10:00") + Line("2024-05-14 12:11:00") + Line("2024-05-14 12:12:00") +
         Line("2024-05-14 12:13:00") + Line("2024-05-14 12:14:00"));
  ASSERT_LT(world.Stores.SelectedRecordIndex, 5);
  EXPECT_EQ(world.Stores.MoniAllRecords.At(world.Stores.SelectedRecordIndex).Call(), "N0CALL");
  EXPECT_EQ(world.Controls.Record.Label20.Caption.find("N0CALL"), 32U);
}

TEST_F(InetLineDecoderTest, AFullDiskLosesNoLineOfTheLists) {
  world.Disk.RefusedEnding = ".TXT";
  world.Stores.LogsOn = 1;
  Decode(Line("2024-05-14 12:30:00") + Line("2024-05-14 12:31:00"));
  EXPECT_EQ(world.HistoryCount(), 2);
  EXPECT_EQ(world.Heard(), 2);
  EXPECT_TRUE(world.Notice().Visible);
}

}  // namespace
}  // namespace zepril
