// Many records at once: what goes into lists, logs and history, and when.
#include "reception/record_keeper.h"

#include <gtest/gtest.h>

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

class RecordKeeperTest : public ::testing::Test {
 protected:
  RecordKeeperTest() {
    station.Followed.Moni1Call = "QX7GW";
    station.Followed.Moni1LogPath = Reception::Log("QX7GW.TXT");
    station.Stores.LogsOn = 1;
  }
  std::optional<FrameLevel> StoreLine(const std::string& time, const std::string& north,
                                      const std::string& call = "QX7GW") {
    return keeper.StoreLine(RecordOf(call, "240115 " + time, north));
  }
  int Lines(const std::string& name) const { return station.Disk.LineCount(station.Log(name)); }

  Reception station;
  RecordKeeper& keeper = station.Room.Keeper;
};

TEST_F(RecordKeeperTest, FilesAreWrittenAtTheEndOfAPageEachOnce) {
  keeper.BeginPage();
  EXPECT_EQ(StoreLine("1230", " 5817.860"), FrameLevel::Moni1);
  EXPECT_EQ(StoreLine("1231", " 5817.960"), FrameLevel::Moni1);
  EXPECT_EQ(StoreLine("1231", " 5818.960", "N0CALL"), FrameLevel::MoniAll);
  EXPECT_EQ(station.Disk.Writes, 0);
  keeper.EndPage();
  EXPECT_EQ(station.Disk.Writes, 3);
  EXPECT_EQ(Lines("_LOG_.TXT"), 3);
  EXPECT_EQ(Lines("_LOGL_.TXT"), 3);
  EXPECT_EQ(Lines("QX7GW.TXT"), 2);
  EXPECT_EQ(station.Heard(), 3);
  EXPECT_EQ(keeper.Stored(), 3);
}

TEST_F(RecordKeeperTest, APageWithoutRecordsWritesNothing) {
  keeper.BeginPage();
  keeper.EndPage();
  EXPECT_EQ(station.Disk.Writes, 0);
  EXPECT_TRUE(station.Map.MapDrawn);
}

TEST_F(RecordKeeperTest, TheHistoryTakesOnlyWhatIsLaterByTheMinute) {
  station.Stores.Moni1Records.Append(RecordOf("QX7GW", "240115 1230"));
  keeper.BeginPage();
  EXPECT_EQ(StoreLine("1229", " 5817.960"), FrameLevel::MoniAll);
  EXPECT_EQ(StoreLine("1230", " 5818.060"), FrameLevel::MoniAll);
  EXPECT_EQ(StoreLine("1231", " 5818.160"), FrameLevel::Moni1);
  EXPECT_EQ(StoreLine("1231", " 5818.260"), FrameLevel::MoniAll);
  keeper.EndPage();
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 2);
  EXPECT_EQ(station.Heard(), 4);
}

TEST_F(RecordKeeperTest, ARepeatOfAPageIsNothing) {
  keeper.BeginPage();
  StoreLine("1230", " 5817.860");
  EXPECT_EQ(StoreLine("1230", " 5817.860"), FrameLevel::Nothing);
  keeper.EndPage();
  EXPECT_EQ(keeper.Repeats(), 1);
}

TEST_F(RecordKeeperTest, TheAlarmOfTheFollowedStationIsThatOfTheLastPosition) {
  station.Map.OwnNorthKm = 5817.0;
  station.Map.OwnEastKm = 391.0;
  keeper.BeginPage();
  StoreLine("1230", " 5817.860");
  StoreLine("1231", " 5990.000");
  keeper.EndPage();
  EXPECT_FALSE(station.Controls.Status.Frame12.Visible);
  keeper.BeginPage();
  StoreLine("1232", " 5817.860");
  keeper.EndPage();
  EXPECT_TRUE(station.Controls.Status.Frame12.Visible);
}

TEST_F(RecordKeeperTest, StationsOfAnAreaAreNotTestedForRepeatsAndLeaveTheHistoryAlone) {
  keeper.BeginPage();
  EXPECT_TRUE(keeper.StoreStation(RecordOf("QX7GW")));
  EXPECT_TRUE(keeper.StoreStation(RecordOf("QX7GW")));
  keeper.EndPage();
  EXPECT_EQ(station.Heard(), 2);
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 0);
  EXPECT_EQ(Lines("_LOGL_.TXT"), 2);
}

TEST_F(RecordKeeperTest, AHistoryThatOutgrowsItsLimitIsThinnedAtTheEnd) {
  station.Followed.Moni1ThinningOn = 1;
  station.Stores.Moni1Records.Limit = 50;
  keeper.BeginPage();
  for (int minute = 0; minute < 60; ++minute)
    StoreLine("12" + ZeroPadded(minute, 2), " 5817." + ZeroPadded(100 + minute, 3));
  EXPECT_EQ(station.Stores.Moni1Records.Count(), 60);
  keeper.EndPage();
  EXPECT_LE(station.Stores.Moni1Records.Count(), 40);
  EXPECT_EQ(Lines("QX7GW.TXT"), station.Stores.Moni1Records.Count());
}

}  // namespace
}  // namespace zepril
