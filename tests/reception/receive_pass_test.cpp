// The receive pass over whole reads: stored, dropped, redrawn, gone on, given up.
#include "reception/receive_pass.h"

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

const std::string kPosition = "!5230.00N/01324.00E>";

TEST(ReceivePass, StoredPacketRedrawsTheMapOnce) {
  Reception station;
  station.HearPacket(kPosition + "Test");
  EXPECT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_EQ(station.Received.RxBuffer, "\n");
  EXPECT_TRUE(station.Timer1.Enabled());
}

TEST(ReceivePass, NothingReceivedDrawsNothing) {
  Reception station;
  station.Pass.Run();
  EXPECT_EQ(station.Actions.Redraws, 0);
  EXPECT_EQ(station.Actions.Refreshes, 0);
  EXPECT_TRUE(station.Timer1.Enabled());
}

TEST(ReceivePass, UndecodedPacketStartsTheTimerAndRefreshesTheActiveWindow) {
  Reception station;
  station.HearPacket(">status");
  EXPECT_EQ(station.Actions.Redraws, 0);
  EXPECT_EQ(station.Actions.Refreshes, 0);
  EXPECT_TRUE(station.Timer1.Enabled());
  station.Settings.WindowActive = true;
  station.HearPacket(">status");
  EXPECT_EQ(station.Actions.Refreshes, 1);
  station.Settings.WindowActive = false;
  station.Map.ColourDepthBits = 8;
  station.HearPacket(">status");
  EXPECT_EQ(station.Actions.Refreshes, 2);
}

TEST(ReceivePass, MapThatIsBehindIsRedrawnAfterAnUndecodedPacket) {
  Reception station;
  station.Map.MapDrawn = false;
  station.HearPacket(">status");
  EXPECT_EQ(station.Actions.Redraws, 1);
}

TEST(ReceivePass, AllFramesOfOneReadAreDecodedInTime) {
  Reception station;
  std::string text;
  for (int i = 0; i < 3; ++i)
    text += Reception::Frame(kPosition + WholeNumber(i));
  station.Modem.Reads.push_back(text);
  for (int pass = 0; pass < 3; ++pass)
    station.Pass.Run();
  EXPECT_EQ(station.Heard(), 3);
}

// A frame that leaves exactly `waiting` characters behind it in the buffer.
int HeardWithWaiting(const std::string& first, std::size_t waiting) {
  Reception station;
  const std::string second = Reception::Frame(kPosition + "second", "N0TWO*>WIDE1-1>APRS");
  // Behind the first frame the buffer keeps its closing line feed.
  const std::string fill(waiting - 1 - second.size() - 1, 'x');
  station.Received.RxBuffer += Reception::Frame(first) + second + fill + "\n";
  station.Pass.Run();
  EXPECT_TRUE(station.Timer1.Enabled());
  int heard = 0;
  for (const StationRecord& record : station.Stores.MoniAllRecords.All()) {
    heard += record.Call() == "N0TWO" ? 1 : 0;
  }
  return heard;
}

TEST(ReceivePass, NextFrameIsTakenAtOnceBehindARecordFrom151CharactersOn) {
  EXPECT_EQ(HeardWithWaiting(kPosition + "first", 150), 0);
  EXPECT_EQ(HeardWithWaiting(kPosition + "first", 151), 1);
}

TEST(ReceivePass, NextFrameIsTakenAtOnceBehindNothingFrom401CharactersOn) {
  EXPECT_EQ(HeardWithWaiting(">status", 400), 0);
  EXPECT_EQ(HeardWithWaiting(">status", 401), 1);
}

TEST(ReceivePass, MapShowsEarlierRecordsWhenTheLastFrameOfThePassGivesNothing) {
  Reception station;
  std::string text = Reception::Frame(kPosition + "first");
  text += Reception::Frame(">" + std::string(200, 'x'));
  station.Hear(text);
  EXPECT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Actions.Redraws, 1);
}

TEST(ReceivePass, OwnEchoIsDroppedAndTheNextFrameTakenAtOnce) {
  Reception station;
  station.Received.OwnHeaderPattern = "QX7KB*>WIDE1-1>ZEPR";
  station.Hear(Reception::Frame(kPosition, "QX7KB*>WIDE1-1>ZEPR") +
               Reception::Frame(kPosition + "other"));
  EXPECT_EQ(station.Drops(DropReason::OwnEcho), 1);
  EXPECT_EQ(station.Heard(), 1);
}

TEST(ReceivePass, ItemLosesWhatWaitsBehindItAndRedraws) {
  Reception station;
  station.Hear(Reception::Frame(")AIDV2!4903.50N/07201.75W-") +
               Reception::Frame(kPosition + "lost"));
  EXPECT_EQ(station.Received.RxBuffer, "\n");
  EXPECT_EQ(station.Heard(), 0);
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_EQ(station.Pass.Counts().Recoveries, 1);
}

TEST(ReceivePass, WhatComesAfterARecoveryIsNotLost) {
  Reception station;
  station.HearPacket(")AIDV2!4903.50N/07201.75W-");
  ASSERT_EQ(station.Pass.Counts().Recoveries, 1);
  station.HearPacket(kPosition + "next");
  EXPECT_EQ(station.Heard(), 1);
}

TEST(ReceivePass, ItemWithAnAsteriskInItsNameIsStored) {
  Reception station;
  station.HearPacket(")AB*C!4903.50N/07201.75W-");
  ASSERT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Last().Call(), "AB");
}

TEST(ReceivePass, TextWithoutHeaderIsResetAndLosesTheNextFrame) {
  Reception station;
  station.Received.RxBuffer.assign(2001, 'x');
  station.Pass.Run();
  EXPECT_EQ(station.Received.RxBuffer, "False");
  station.HearPacket(kPosition + "lost");
  EXPECT_EQ(station.Heard(), 0);
  station.HearPacket(kPosition + "found");
  EXPECT_EQ(station.Heard(), 1);
}

TEST(ReceivePass, StuckHeaderEndsThePassWithARedraw) {
  Reception station;
  station.Received.RxBuffer = "\nN0CALL*>APRS <UI>:\r\n" + std::string(500, 'x');
  station.Pass.Run();
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_TRUE(station.Timer1.Enabled());
}

TEST(ReceivePass, OverlongBufferIsEmptied) {
  Reception station;
  station.Received.RxBuffer.assign(65530, 'x');
  station.HearPacket(kPosition);
  EXPECT_EQ(station.Received.RxBuffer, "");
}

TEST(ReceivePass, LogThatCannotBeWrittenIsRecovered) {
  for (const char* log : {"_LOGRAW_.TXT", "_LOG_.TXT", "_LOGL_.TXT"}) {
    Reception station;
    station.Stores.LogsOn = 1;
    station.Disk.RefusedEnding = log;
    station.HearPacket(kPosition);
    EXPECT_EQ(station.Received.RxBuffer, "\n") << log;
    EXPECT_EQ(station.Actions.Redraws, 1) << log;
    EXPECT_EQ(station.Pass.Counts().Recoveries, 1) << log;
    EXPECT_TRUE(station.Timer1.Enabled()) << log;
  }
}

TEST(ReceivePass, LogsRestWhileTheyCannotBeWrittenAndDecodingGoesOn) {
  for (const char* log : {"_LOGRAW_.TXT", "_LOG_.TXT", "_LOGL_.TXT"}) {
    Reception station;
    station.Stores.LogsOn = 1;
    station.Disk.RefusedEnding = log;
    station.HearPacket(kPosition + "1");
    EXPECT_EQ(station.Pass.Counts().Recoveries, 1) << log;
    const int heard = station.Heard();
    EXPECT_TRUE(station.Notice().Visible);
    EXPECT_EQ(station.Notice().Caption,
              Reception::Log(log) +
                  " can't be written: the disk is full. Logs rest and are tried "
                  "again every 10 minutes; reception goes on.");
    station.HearPacket(kPosition + "2");
    station.HearPacket(kPosition + "3");
    EXPECT_EQ(station.Heard(), heard + 2) << log;
    EXPECT_EQ(station.Pass.Counts().Recoveries, 1) << log;
    // Closed by the operator, it does not come back with each attempt, nor does one cost a frame.
    station.Notice().Visible = false;
    for (int attempt = 0; attempt < 3; ++attempt) {
      station.Time.Wait(601.0);
      station.HearPacket(kPosition + "later " + WholeNumber(attempt));
    }
    EXPECT_EQ(station.Heard(), heard + 5) << log;
    EXPECT_EQ(station.Pass.Counts().Recoveries, 1) << log;
    EXPECT_FALSE(station.Notice().Visible);
    EXPECT_EQ(station.Stores.LogsOn, 1);  // the setting is the operator's
  }
}

TEST(ReceivePass, LogsGoOnTenMinutesLaterWhenThereIsRoomAgain) {
  Reception station;
  station.Stores.LogsOn = 1;
  station.Disk.RefusedEnding = "_LOGRAW_.TXT";
  station.HearPacket(kPosition + "1");
  station.Disk.RefusedEnding.clear();
  station.Time.Wait(590.0);
  station.HearPacket(kPosition + "2");
  EXPECT_FALSE(station.Disk.Exists(Reception::Log("_LOGL_.TXT")));
  EXPECT_TRUE(station.Notice().Visible);
  station.Time.Wait(11.0);
  station.HearPacket(kPosition + "3");
  EXPECT_EQ(station.Disk.LineCount(Reception::Log("_LOGL_.TXT")), 1);
  EXPECT_FALSE(station.Notice().Visible);
}

TEST(ReceivePass, SameSecondDigipeaterStoresOnce) {
  Reception station;
  station.HearPacket(kPosition, "N0CALL>DIGIA*>APRS");
  station.Time.Wait(9 * 60);
  station.HearPacket(kPosition, "N0CALL>DIGIB*>APRS");
  EXPECT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Pass.Counts().Repeats, 1);
  station.HearPacket(kPosition, "N0CALL>DIGIA*>APRS");
  EXPECT_EQ(station.Heard(), 2);
}

TEST(ReceivePass, StandingStationKeepsOnePositionButSeveralRecords) {
  Reception station;
  for (int i = 0; i < 3; ++i) {
    station.HearPacket(kPosition + "Test", "QX7KB*>WIDE1-1>APRS");
    station.Time.Wait(600);
  }
  EXPECT_EQ(station.Heard(), 3);
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.Stores.Moni1Records.At(1).Time(), "1254");
}

TEST(ReceivePass, BehindAPositionOfTheFollowedStationThePassGoesOn) {
  Reception station;
  const std::string own = Reception::Frame(kPosition + "Test", "QX7KB*>WIDE1-1>APRS");
  station.Hear(own + Reception::Frame(kPosition + std::string(200, 'x')));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.Heard(), 2);
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_EQ(station.Map.CentreFollow, Following::Station);
}

TEST(ReceivePass, PositionOfTheFollowedStationEndsThePassWithARedrawWhenLittleWaits) {
  Reception station;
  const std::string own = Reception::Frame(kPosition + "Test", "QX7KB*>WIDE1-1>APRS");
  const std::string other = Reception::Frame(kPosition + "other");
  station.Hear(own + other);
  EXPECT_EQ(station.Heard(), 1);
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_EQ(station.Received.RxBuffer, "\n" + other);
}

TEST(ReceivePass, ManyPositionsOfTheFollowedStationInOnePassDrawTheMapOnce) {
  Reception station;
  std::string text;
  for (int i = 0; i < 50; ++i) {
    text += Reception::Frame("!52" + ZeroPadded(i, 2) + ".00N/01324.00E>x", "QX7KB*>WIDE1-1>APRS");
  }
  station.Hear(text);
  EXPECT_GE(station.Stores.Moni1Records.Count(), 48);
  EXPECT_EQ(station.Actions.Redraws, 1);
}

TEST(ReceivePass, EmergencyLeavesThePassAndWhatWaitsComesInTheNextTick) {
  Reception station;
  std::string text = Reception::Frame("!5230.00N\\01324.00E!Help me");
  for (int i = 0; i < 50; ++i) {
    text += Reception::Frame("!52" + ZeroPadded(i, 2) + ".00N/01324.00E>x", "N0TWO*>WIDE1-1>APRS");
  }
  station.Hear(text);
  EXPECT_EQ(station.Actions.Emergencies, 1);
  EXPECT_EQ(station.Actions.Redraws, 0);  // the emergency's own display draws
  EXPECT_EQ(station.Heard(), 1);
  for (int pass = 0; pass < 3; ++pass)
    station.Pass.Run();
  EXPECT_EQ(station.Heard(), 51);
}

TEST(ReceivePass, FollowedStationsFileThatCannotBeWrittenIsRecovered) {
  Reception station;
  station.Disk.RefusedEnding = "QX7KB.TXT";
  station.HearPacket(kPosition + "Test", "QX7KB*>WIDE1-1>APRS");
  EXPECT_EQ(station.Pass.Counts().Recoveries, 1);
}

TEST(ReceivePass, EmergencyFillsTheAlarmWritesABlockAndShows) {
  Reception station;
  station.HearPacket("!5230.00N\\01324.00E!Help me");
  EXPECT_EQ(station.Actions.Emergencies, 1);
  EXPECT_EQ(station.Alarms.AlarmCall, "N0CALL");
  EXPECT_EQ(station.Alarms.AlarmTime, "2024-01-15 12:34");
  EXPECT_EQ(station.Alarms.AlarmLat, " 52:30.00");
  EXPECT_EQ(station.Alarms.AlarmLon, " 13:24.00");
  EXPECT_EQ(station.Alarms.AlarmNorth, " 5817.860");
  EXPECT_EQ(station.Alarms.AlarmEast, "  391.394");
  EXPECT_EQ(station.Alarms.AlarmInfo, "Help me");
  EXPECT_EQ(station.Alarms.AlarmFile, Reception::Log("_ALARM_.TXT"));
  EXPECT_EQ(station.Disk.LineCount(Reception::Log("_ALARM_.TXT")), 7);
  EXPECT_EQ(station.Last().EmergencyMark(), '!');
}

TEST(ReceivePass, EmergencyOverASecondDigipeaterIsLoggedButNotShownAgain) {
  Reception station;
  station.HearPacket("!5230.00N\\01324.00E!Help", "N0CALL>DIGIA*>APRS");
  station.HearPacket("!5230.00N\\01324.00E!Help", "N0CALL>DIGIB*>APRS");
  EXPECT_EQ(station.Actions.Emergencies, 1);
  EXPECT_EQ(station.Disk.LineCount(Reception::Log("_ALARM_.TXT")), 14);
}

TEST(ReceivePass, EmergencyLogThatCannotBeWrittenIsPassedOver) {
  Reception station;
  station.Disk.RefusedEnding = "_ALARM_.TXT";
  station.HearPacket("!5230.00N\\01324.00E!Help");
  EXPECT_EQ(station.Actions.Emergencies, 1);
  EXPECT_EQ(station.Pass.Counts().Recoveries, 0);
}

TEST(ReceivePass, MessageGoesToTheChatWithItsHeader) {
  Reception station;
  station.HearPacket(":QX7KB    :Hello{07 ", "n0call>WIDE1-1*>APRS");
  ASSERT_EQ(station.Actions.Messages.size(), 1u);
  EXPECT_EQ(station.Actions.Messages[0].From, "N0CALL");
  EXPECT_EQ(station.Actions.Messages[0].Info, ":QX7KB    :Hello{07");
  EXPECT_EQ(station.Actions.Messages[0].Header, "n0call>WIDE1-1*>APRS <UI>");
  EXPECT_EQ(station.Actions.Messages[0].Destination, "APRS");
  EXPECT_EQ(station.Heard(), 0);
}

TEST(ReceivePass, DistanceAlarmIsTestedForNewRecordsOnly) {
  Reception station;
  station.Alarms.MoniAllAlarmOn = 1;
  station.Map.StationLabelLevel = LabelLevel::Marks;
  station.Map.OwnNorthKm = 5817.860;
  station.Map.OwnEastKm = 391.394;
  station.HearPacket(kPosition);
  EXPECT_TRUE(station.Controls.Status.Frame12.Visible);
  station.Controls.Status.Frame12.Visible = false;
  station.HearPacket(kPosition);
  EXPECT_FALSE(station.Controls.Status.Frame12.Visible);
}

TEST(ReceivePass, FieldsOfThePacketAreClearedForEachFrame) {
  Reception station;
  station.HearPacket("@010101z5230.00N/01324.00E>Test");
  EXPECT_EQ(station.Received.PacketInfoText, "Test");
  EXPECT_EQ(station.Received.TimestampStale, 1);
  EXPECT_EQ(station.Received.SymbolIndex, 30);
  station.HearPacket("x", "N0CALL>APRS");
  EXPECT_EQ(station.Received.PacketInfoText, "");
  EXPECT_EQ(station.Received.TimestampStale, 0);
}

TEST(ReceivePass, RawListShowsWhatWasCollected) {
  Reception station;
  station.Hear("N0CALL>WIDE1-1>APRS <UI>:\r\n>status\r\n");
  EXPECT_EQ(station.Controls.Raw.RawList.Items,
            (std::vector<std::string>{"N0CALL*>WIDE1-1>APRS <UI>:", ">status", ""}));
}

TEST(ReceivePass, LimitOfTheListIsKept) {
  Reception station;
  station.Stores.MoniAllRecords.Limit = 50;
  for (int i = 0; i < 51; ++i) {
    station.HearPacket("!52" + ZeroPadded(i, 2) + ".00N/01324.00E>Test");
  }
  EXPECT_EQ(station.Heard(), 39);
}

TEST(ReceivePass, LinkWithoutEndDoesNotHoldTheTick) {
  class EndlessModem final : public SerialPort {
   public:
    bool Open(const std::string&, int) override { return true; }
    void Close() override {}
    bool IsOpen() const override { return true; }
    void Write(std::string_view) override {}
    std::string ReadAll() override {
      return Reception::Frame(">status") + Reception::Frame(">" + std::string(450, 'x'));
    }
    std::size_t BytesToWrite() const override { return 0; }
  };
  Reception station;
  EndlessModem modem;
  HeardTexts heard(station.Radio, station.Received, station.Engine, modem, station.Time);
  Collector link(station.Radio, station.Internet, heard, &station.Actions);
  ReceivePass pass({station.Identity, station.Received, station.Map, station.Settings},
                   {link, station.Room.Keeper, station.Actions, &station.Actions, station.Actions},
                   station.Symbols, station.Time, station.Timer1, nullptr);
  pass.Run();
  EXPECT_LE(pass.Counts().Frames, 5000);
  EXPECT_TRUE(station.Timer1.Enabled());
}

}  // namespace
}  // namespace zepril
