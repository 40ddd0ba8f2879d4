// The followed station's history in list and file: entered, thinned, reloaded, never lost.
#include "reception/followed_history.h"

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

const std::string kPath = R"(C:\ZEPRIL\U33\LOG\QX7KB.TXT)";

std::string Place(int metres) {
  return PadLeft(WholeNumber(metres), 5) + ".000";
}

StationRecord Position(int place, const std::string& date_time = "240115 1234",
                       const std::string& info = "Test") {
  return RecordOf("QX7KB", date_time, Place(place), "  391.394", "", info);
}

std::string LineOf(const StationRecord& record) {
  return std::string(record.RightTrimmed()) + "\r\n";
}

TEST(FollowedHistory, NewPositionGoesToListFileAndMonitorValues) {
  Reception station;
  StationRecord record = Position(100);
  record.Put(42, 42, "!");
  record.Put(90, 90, "_");
  record.Put(91, 100, "DIGIPEATRX");
  EXPECT_TRUE(station.History.Enter(record));
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.Stores.Moni1Records.At(1).EmergencyMark(), ' ');
  EXPECT_EQ(station.Stores.Moni1Records.At(1).ObjectMark(), ' ');
  EXPECT_EQ(station.Disk.Of(kPath), LineOf(station.Stores.Moni1Records.At(1)));
  EXPECT_EQ(station.Followed.MonitorDate, "240115");
  EXPECT_EQ(station.Followed.MonitorTime, "1234");
  EXPECT_DOUBLE_EQ(station.Followed.MonitorNorthKm, 100.0);
  EXPECT_DOUBLE_EQ(station.Followed.MonitorEastKm, 391.394);
  EXPECT_EQ(station.Followed.MonitorHeardVia, "DIGIPEATR");
  EXPECT_EQ(station.Followed.MonitorInfo, "Test");
  EXPECT_EQ(station.Followed.MonitorSymbol, "/>");
  EXPECT_EQ(station.Followed.MonitorSymbolText, "Car        0");
}

TEST(FollowedHistory, SamePlaceAndTextOnlyRenewsTheTime) {
  Reception station;
  station.History.Enter(Position(100, "240115 1234"));
  StationRecord later = Position(100, "240115 1244");
  later.Put(12, 12, "T");
  station.History.Enter(later);
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.Stores.Moni1Records.At(1).Time(), "1244");
  EXPECT_EQ(station.Disk.LineCount(kPath), 1);
  station.History.Enter(Position(100, "240115 1245", "other text"));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
}

TEST(FollowedHistory, FullHistoryLosesAThousandAtOnce) {
  Reception station;
  for (int i = 0; i < 9998; ++i)
    station.Stores.Moni1Records.Append(Position(i % 9000));
  station.History.Enter(Position(9990));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 8999);
  EXPECT_EQ(station.Stores.Moni1Records.At(1).NorthText(), Place(1000));
}

TEST(FollowedHistory, ThinningStartsAboveOneAndATenthOfTheLimit) {
  Reception station;
  station.Followed.Moni1ThinningOn = 1;
  station.Stores.Moni1Records.Limit = 100;
  for (int i = 0; i < 109; ++i) {
    station.Stores.Moni1Records.Append(
        RecordOf("QX7KB", "240115 1234", " 5817.86" + WholeNumber(i % 10)));
  }
  station.History.Enter(Position(1));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 110);
  station.History.Enter(Position(2));
  EXPECT_LE(station.Stores.Moni1Records.Count(), 80);
  EXPECT_EQ(station.Disk.LineCount(kPath), station.Stores.Moni1Records.Count());
}

TEST(FollowedHistory, WithoutThinningTheHistoryGrows) {
  Reception station;
  station.Stores.Moni1Records.Limit = 10;
  for (int i = 0; i < 50; ++i)
    station.History.Enter(Position(i));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 50);
}

TEST(FollowedHistory, WithoutGpsTheMapFollowsTheStationAgain) {
  Reception station;
  station.Map.CentreFollow = Following::Nobody;
  station.Controls.Map.Option1.Value = true;
  station.History.Enter(Position(1));
  EXPECT_EQ(station.Map.CentreFollow, Following::Station);
  EXPECT_FALSE(station.Controls.Map.Option1.Value);
  EXPECT_TRUE(station.Controls.Map.Option2.Value);
  EXPECT_FALSE(station.Map.MapDrawn);
  station.Gps.GpsFixValid = 1;
  station.Map.CentreFollow = Following::Nobody;
  station.History.Enter(Position(2));
  EXPECT_EQ(station.Map.CentreFollow, Following::Nobody);
  station.Gps.GpsFixValid = 0;
  station.Gps.GpsFixValidBefore = 1;
  station.History.Enter(Position(3));
  EXPECT_EQ(station.Map.CentreFollow, Following::Nobody);
}

TEST(FollowedHistory, FileThatCannotBeWrittenIsAFailure) {
  Reception station;
  station.Disk.RefusedEnding = "QX7KB.TXT";
  EXPECT_FALSE(station.History.Enter(Position(1)));
}

// The disk is known to be full: what waits behind is not lost once more.
TEST(FollowedHistory, OnlyTheFirstFileThatFailsCostsWhatWaits) {
  Reception station;
  station.Stores.LogsOn = 1;
  station.Followed.Moni1Call = "N0CALL";
  station.Disk.RefusedEnding = ".TXT";
  const std::string packets = Reception::Frame("=5230.00N/01324.00E>a") +
                              Reception::Frame("=5231.00N/01324.00E>b") +
                              Reception::Frame("=5232.00N/01324.00E>c");
  station.Hear(packets);
  EXPECT_EQ(station.Heard(), 0);
  station.Hear(packets);
  for (int pass = 0; pass < 3; ++pass)
    station.Pass.Run();
  EXPECT_EQ(station.Heard(), 3);
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 3);
}

TEST(FollowedHistory, LoadingSkipsLinesThatAreNoRecords) {
  Reception station;
  const std::string line(Position(1).RightTrimmed());
  station.Disk.Contents[kPath] = line.substr(0, 102) + "\r\n" + line.substr(0, 103) + "\r\n" +
                                 line + std::string(120 - line.size(), 'x') + "\r\n" + line +
                                 std::string(121 - line.size(), 'x') + "\r\n\r\n";
  station.History.LoadAtStart();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
}

TEST(FollowedHistory, LoadingStopsAtTheMostLines) {
  Reception station;
  std::string text;
  for (int i = 0; i < 10050; ++i)
    text += LineOf(Position(i % 9000));
  station.Disk.Contents[kPath] = text;
  station.History.LoadAtStart();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 9998);
  EXPECT_EQ(station.Stores.Moni1Records.At(9998).NorthText(), Place(10049 % 9000));
  EXPECT_EQ(station.Disk.Of(kPath), text);
}

TEST(FollowedHistory, MissingFileIsCreated) {
  Reception station;
  station.History.LoadAtStart();
  EXPECT_TRUE(station.Disk.Exists(kPath));
  EXPECT_EQ(station.Followed.MonitorDate, "");
  EXPECT_EQ(station.Followed.MonitorNorthKm, 0.0);
}

TEST(FollowedHistory, GapOfMoreThanThirtyDaysCutsAtStartAndKeepsACopy) {
  Reception station;
  const std::string old = LineOf(Position(1, "240101 1200")) + LineOf(Position(2, "240202 1200")) +
                          LineOf(Position(3, "240302 1200"));
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_EQ(station.Stores.Moni1Records.At(1).Date(), "240202");
  EXPECT_EQ(station.Disk.LineCount(kPath), 2);
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), old);
}

TEST(FollowedHistory, AfterACutTheHistoryIsWhatItsFileGivesBack) {
  Reception station;
  StationRecord short_line = Position(3, "240203 1200");
  short_line.Put(100, 120, "");
  station.Disk.Contents[kPath] = LineOf(Position(1, "240101 1200")) +
                                 LineOf(Position(2, "240202 1200")) +
                                 std::string(short_line.Text()) + "\r\n";
  station.History.LoadAtStart();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.Disk.LineCount(kPath), 2);
}

TEST(FollowedHistory, GapOfThirtyDaysIsKept) {
  Reception station;
  station.Disk.Contents[kPath] =
      LineOf(Position(1, "240101 1200")) + LineOf(Position(2, "240201 1200"));
  station.History.LoadAtStart();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_FALSE(station.Disk.Exists(kPath + ".BAK"));
}

TEST(FollowedHistory, FileStaysWhenItsCopyCannotBeKept) {
  Reception station;
  station.Disk.Contents[kPath] =
      LineOf(Position(1, "240101 1200")) + LineOf(Position(2, "240202 1200"));
  station.Disk.RefusedEnding = ".BAK";
  station.History.LoadAtStart();
  EXPECT_EQ(station.Disk.LineCount(kPath), 2);
  // The cut is put off, for what goes out of the list would go out of the file too.
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_TRUE(station.Notice().Visible);
  EXPECT_EQ(station.Notice().Caption,
            kPath +
                " is not shortened, for no copy of it can be kept: the disk is full. It stays "
                "whole; new positions are added at its end.");
  EXPECT_TRUE(station.History.Enter(Position(3, "240203 1200")));
  EXPECT_EQ(station.Disk.LineCount(kPath), 3);
}

TEST(FollowedHistory, WithoutItsCopyNoGapIsCutWhileItRunsEither) {
  Reception station;
  station.Followed.Moni1ThinningOn = 1;
  station.Stores.Moni1Records.Limit = 10;
  std::string old;
  for (int place = 0; place < 11; ++place)
    old += LineOf(Position(place, "240101 1200"));
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  station.Disk.RefusedEnding = ".BAK";
  EXPECT_TRUE(station.History.Enter(Position(500, "240201 1200")));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 12);
  EXPECT_EQ(station.Disk.Of(kPath), old + LineOf(Position(500, "240201 1200")));
  EXPECT_TRUE(station.Notice().Visible);
}

TEST(FollowedHistory, FileThatCannotBeReadIsNotWrittenOver) {
  Reception station;
  const std::string old = LineOf(Position(1, "240101 1200"));
  station.Disk.Contents[kPath] = old;
  station.Disk.UnreadableEnding = "QX7KB.TXT";
  station.History.LoadAtStart();
  EXPECT_FALSE(station.History.Enter(Position(2)));
  EXPECT_EQ(station.Disk.Of(kPath), old);
  EXPECT_EQ(station.Notice().Caption,
            kPath +
                " can't be read: the disk is full. It is left as it is; new positions are not "
                "stored in it.");
  station.History.ChangeStation("QX7KB");
  EXPECT_TRUE(station.History.Enter(Position(2)));  // told of once is enough
  EXPECT_EQ(station.Disk.Of(kPath), old);
  // Another station's file is not concerned.
  station.History.ChangeStation("N0NEW");
  EXPECT_TRUE(station.History.Enter(RecordOf("N0NEW")));
}

TEST(FollowedHistory, LinesThatAreNoRecordsStayInACopy) {
  Reception station;
  const std::string old = "my own note\r\n" + LineOf(Position(1, "240101 1200"));
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  EXPECT_TRUE(station.History.Enter(Position(2)));
  EXPECT_EQ(station.Disk.LineCount(kPath), 2);
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), old);
}

// ---- Nothing is lost ------------------------------------------------------------------------

TEST(FollowedHistory, ABackwardJumpOfTheClockIsNoGap) {
  Reception station;
  const std::string old = LineOf(Position(1, "240301 1200")) + LineOf(Position(2, "240101 1200")) +
                          LineOf(Position(3, "240302 1200"));
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 3);
  EXPECT_EQ(station.Disk.Of(kPath), old);
}

// A history with one gap, told apart by its place.
std::string WithGap(int place) {
  return LineOf(Position(place, "240101 1200")) + LineOf(Position(place + 1, "240202 1200"));
}

TEST(FollowedHistory, NoCopyIsWrittenOver) {
  Reception station;
  std::vector<std::string> copies{kPath + ".BAK"};
  for (int number = 1; number <= 9; ++number)
    copies.push_back(kPath + ".BA" + WholeNumber(number));
  for (int cut = 0; cut < 10; ++cut) {
    station.Disk.Contents[kPath] = WithGap(10 * cut);
    station.History.LoadAtStart();
    EXPECT_EQ(station.Stores.Moni1Records.Count(), 1) << cut;
  }
  for (int cut = 0; cut < 10; ++cut)
    EXPECT_EQ(station.Disk.Of(copies[static_cast<std::size_t>(cut)]), WithGap(10 * cut)) << cut;
  // Ten stand there, each with something of its own: the next cut is put off.
  station.Disk.Contents[kPath] = WithGap(500);
  station.History.LoadAtStart();
  EXPECT_EQ(station.Disk.Of(kPath), WithGap(500));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_NE(station.Notice().Caption.find("ten copies stand beside it already"), std::string::npos);
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), WithGap(0));
}

TEST(FollowedHistory, TheOldestCopyGoesWhenNewerOnesHoldAllOfIt) {
  Reception station;
  station.Disk.Contents[kPath + ".BAK"] = WithGap(0);
  for (int number = 1; number <= 9; ++number) {
    station.Disk.Contents[kPath + ".BA" + WholeNumber(number)] = WithGap(0) + WithGap(10 * number);
  }
  station.Disk.Contents[kPath] = WithGap(500);
  station.History.LoadAtStart();
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), WithGap(500));
  EXPECT_EQ(station.Disk.LineCount(kPath), 1);
  EXPECT_EQ(station.Disk.Of(kPath + ".BA1"), WithGap(0) + WithGap(10));
}

// The file of now becomes the newest copy.
TEST(FollowedHistory, TheOldestCopyGoesWhenTheFileOfNowHoldsAllOfIt) {
  Reception station;
  station.Disk.Contents[kPath + ".BAK"] = WithGap(0);
  for (int number = 1; number <= 9; ++number)
    station.Disk.Contents[kPath + ".BA" + WholeNumber(number)] = WithGap(10 * number);
  const std::string now = WithGap(0) + LineOf(Position(500, "240402 1200"));
  station.Disk.Contents[kPath] = now;
  station.History.LoadAtStart();
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), now);
  EXPECT_EQ(station.Disk.LineCount(kPath), 1);
}

// A history of more records than are read.
std::string LongHistory(int records) {
  std::string text;
  for (int i = 0; i < records; ++i)
    text += LineOf(Position(i % 9000));
  return text;
}

TEST(FollowedHistory, AHistoryThatIsTooLongIsAppendedTo) {
  for (int records : {9999, 10050, 30000}) {
    Reception station;
    const std::string old = LongHistory(records);
    station.Disk.Contents[kPath] = old;
    station.History.LoadAtStart();
    EXPECT_EQ(station.Stores.Moni1Records.Count(), 9998);
    EXPECT_NE(station.Notice().Caption.find("longer than is read"), std::string::npos);
    EXPECT_TRUE(station.History.Enter(Position(9100)));
    EXPECT_TRUE(station.History.Enter(Position(9200)));
    EXPECT_EQ(station.Disk.Of(kPath), old + LineOf(Position(9100)) + LineOf(Position(9200)));
    EXPECT_FALSE(station.Disk.Exists(kPath + ".BAK"));
  }
}

TEST(FollowedHistory, OfAFileThatIsTooLargeOnlyWholeLinesOfItsEndAreRead) {
  Reception station;
  constexpr std::size_t kTorn = 1;  // characters of a record that lie before the end that is read
  const std::string torn = LineOf(Position(2, "240115 1234", std::string(40, 'x')));
  ASSERT_GE(torn.size(), StationRecord::kShortestLine + std::string("\r\n").size() + kTorn);
  const std::string last = LineOf(Position(3));
  const std::size_t notes =
      static_cast<std::size_t>(HistoryFile::kLargestRead) - (torn.size() - kTorn) - last.size();
  const std::string old = LineOf(Position(1)) + torn + std::string(notes - 2, 'x') + "\r\n" + last;
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(LineOf(station.Stores.Moni1Records.At(1)), last);
  EXPECT_TRUE(station.History.Enter(Position(4)));
  EXPECT_EQ(station.Disk.Of(kPath), old + LineOf(Position(4)));
}

TEST(FollowedHistory, AHistoryThatIsTooLongIsThinnedBesideItsOldFile) {
  Reception station;
  station.Followed.Moni1ThinningOn = 1;
  station.Stores.Moni1Records.Limit = 1000;
  const std::string old = LongHistory(30000);
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  EXPECT_TRUE(station.History.Enter(Position(9100)));
  EXPECT_EQ(station.Disk.Of(kPath + ".BAK"), old);
  EXPECT_LE(station.Disk.LineCount(kPath), 800);
  EXPECT_TRUE(station.Disk.Of(kPath).ends_with(LineOf(Position(9100))));
  EXPECT_EQ(station.Disk.LineCount(kPath), station.Stores.Moni1Records.Count());
}

TEST(FollowedHistory, WithoutRoomForItsCopyATooLongHistoryIsOnlyAppendedTo) {
  Reception station;
  station.Followed.Moni1ThinningOn = 1;
  station.Stores.Moni1Records.Limit = 1000;
  const std::string old = LongHistory(30000);
  station.Disk.Contents[kPath] = old;
  station.Disk.NoRoomToReplace = true;
  station.History.LoadAtStart();
  EXPECT_TRUE(station.History.Enter(Position(9100)));
  EXPECT_TRUE(station.History.Enter(Position(9200)));
  EXPECT_EQ(station.Disk.Of(kPath), old + LineOf(Position(9100)) + LineOf(Position(9200)));
  EXPECT_TRUE(station.Notice().Visible);
  EXPECT_NE(station.Notice().Caption.find("no copy of it can be kept: the disk is full"),
            std::string::npos);
}

TEST(FollowedHistory, ATooLongHistoryIsOnlyAppendedToAtAChangeOfStation) {
  Reception station;
  const std::string path = R"(C:\ZEPRIL\U33\LOG\N0NEW.TXT)";
  std::string old;
  for (int i = 0; i < 20000; ++i)
    old += LineOf(RecordOf("N0NEW", "240115 1100", Place(i % 9000)));
  station.Disk.Contents[path] = old;
  station.Stores.MoniAllRecords.Append(RecordOf("N0NEW", "240115 1201", Place(9500)));
  station.History.ChangeStation("N0NEW");
  EXPECT_EQ(station.Disk.Of(path), old + LineOf(RecordOf("N0NEW", "240115 1201", Place(9500))));
}

TEST(FollowedHistory, WithoutRoomToWriteItAnewItIsAppendedToAndThatIsTold) {
  Reception station;
  station.History.Enter(Position(1));
  station.Disk.NoRoomToReplace = true;
  EXPECT_TRUE(station.History.Enter(Position(2)));
  EXPECT_EQ(station.Disk.Of(kPath), LineOf(Position(1)) + LineOf(Position(2)));
  EXPECT_TRUE(station.Notice().Visible);
  EXPECT_EQ(station.Notice().Caption, kPath +
                                          " can't be written anew: the disk is full. New "
                                          "positions are added at its end; nothing is lost.");
  station.Disk.NoRoomToReplace = false;
  EXPECT_TRUE(station.History.Enter(Position(3)));
  EXPECT_EQ(station.Disk.LineCount(kPath), 3);
  EXPECT_FALSE(station.Notice().Visible);
}

TEST(FollowedHistory, WhatCouldNotBeWrittenFollowsAsSoonAsItCan) {
  Reception station;
  const std::string old = LongHistory(10050);
  station.Disk.Contents[kPath] = old;
  station.History.LoadAtStart();
  station.Disk.RefusedEnding = "QX7KB.TXT";
  EXPECT_FALSE(station.History.Enter(Position(9100)));
  EXPECT_TRUE(station.History.Enter(Position(9200)));
  EXPECT_NE(station.Notice().Caption.find("can't be written: the disk is full"), std::string::npos);
  station.Disk.RefusedEnding.clear();
  EXPECT_TRUE(station.History.Enter(Position(9300)));
  EXPECT_EQ(station.Disk.Of(kPath),
            old + LineOf(Position(9100)) + LineOf(Position(9200)) + LineOf(Position(9300)));
}

TEST(FollowedHistory, ChangeOfStationTakesWhatWasHeardSince) {
  Reception station;
  const std::string path = R"(C:\ZEPRIL\U33\LOG\N0NEW.TXT)";
  station.Disk.Contents[path] = LineOf(RecordOf("N0NEW", "240115 1200", Place(1)));
  StationRecord marked = RecordOf("N0NEW", "240115 1201", Place(3));
  marked.Put(42, 42, "!");
  marked.Put(90, 90, "_");
  for (const StationRecord& record :
       {RecordOf("N0NEW", "240115 1200", Place(2)), marked, RecordOf("N0OLD", "240115 1202")}) {
    station.Stores.MoniAllRecords.Append(record);
  }
  station.History.ChangeStation("n0new");
  EXPECT_EQ(station.Followed.Moni1Call, "n0new");
  // The path is as typed; names of files are found without regard to case by the files below.
  EXPECT_EQ(station.Followed.Moni1LogPath, R"(C:\ZEPRIL\U33\LOG\n0new.TXT)");
  station.History.ChangeStation("N0NEW");
  ASSERT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_EQ(station.Stores.Moni1Records.At(2).NorthText(), Place(3));
  EXPECT_EQ(station.Stores.Moni1Records.At(2).EmergencyMark(), ' ');
  EXPECT_EQ(station.Stores.Moni1Records.At(2).ObjectMark(), ' ');
  EXPECT_EQ(station.Disk.LineCount(path), 2);
  EXPECT_DOUBLE_EQ(station.Followed.MonitorNorthKm, 3.0);
  ASSERT_EQ(station.Actions.ConfigLines.size(), 2u);
  EXPECT_EQ(station.Actions.ConfigLines[1], (std::pair<std::string, std::string>("CALL", "N0NEW")));
}

TEST(FollowedHistory, EmptyInternetRecordsStayOutWhileTheInternetIsAsked) {
  Reception station;
  station.Stores.MoniAllRecords.Append(
      RecordOf("N0NEW", "240115 1200", Place(1), "  391.394", "inet", ""));
  station.Stores.MoniAllRecords.Append(
      RecordOf("N0NEW", "240115 1201", Place(2), "  391.394", "inet", "text"));
  station.Controls.Moni1.Check22.Value = 1;
  station.History.ChangeStation("N0NEW");
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 1);
  station.Disk.Contents.clear();
  station.Controls.Moni1.Check22.Value = 0;
  station.History.ChangeStation("N0NEW");
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
}

TEST(FollowedHistory, StationWithoutNameHasAnEmptyHistoryAndNoFile) {
  Reception station;
  station.History.ChangeStation("");
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 0);
  EXPECT_TRUE(station.Disk.Contents.empty());
  EXPECT_FALSE(station.History.IsFollowed(""));
}

TEST(FollowedHistory, CallIsFollowedWithoutRegardToCase) {
  Reception station;
  station.Followed.Moni1Call = "qx7kb";
  EXPECT_TRUE(station.History.IsFollowed("QX7KB"));
  EXPECT_FALSE(station.History.IsFollowed("QX7KB-9"));
}

}  // namespace
}  // namespace zepril
