// The scan of all stations with a history: in turn, to its end, ended by hand, and what comes back.
#include "internet/station_scan.h"

#include <gtest/gtest.h>

#include "tests/internet/internet_world.h"

namespace zepril {
namespace {

class StationScanTest : public ::testing::Test {
 protected:
  StationScanTest() {
    world.Followed.Moni1Call = "qx7zz";
    for (const char* name : {"N0CALL", "QX7AA", "_LOG_"})
      world.Disk.Contents[world.Log(std::string(name) + ".TXT")] = "";
    world.Controls.Moni1.Combo9.Items = {"N0CALL", "QX7AA"};
  }
  void Begin() { world.Click(scan, 1); }
  // The tick counts, and calls at zero.
  void Ticks(int count) {
    for (; count > 0; --count) {
      if (--world.Internet.Moni1ScanTicks == 0) world.Net.Scan.RunScanSwitchHandler();
    }
  }
  const std::string& Followed() const { return world.Followed.Moni1Call; }

  InternetWorld world;
  CheckBox& scan = world.Controls.Moni1.Check27;
  CheckBox& moni1 = world.Controls.Moni1.Check22;
};

TEST_F(StationScanTest, BeginsWithTheFirstStationOfTheList) {
  Begin();
  EXPECT_EQ(Followed(), "N0CALL");
  EXPECT_EQ(world.Internet.Moni1ScanOn, 1);
  EXPECT_EQ(world.Internet.Moni1ScanTicks, 5);
  EXPECT_EQ(moni1.Value, 1);
  EXPECT_EQ(world.Internet.InetSwitchTime, world.Time.SecondsSinceMidnight());
  EXPECT_TRUE(world.Words().starts_with("MONI 1: scan 1/2, ")) << world.Words();
}

TEST_F(StationScanTest, TakesTheNextWhenTheTicksAreOver) {
  Begin();
  Ticks(4);
  EXPECT_EQ(Followed(), "N0CALL");
  world.Internet.InetSwitchTime = 0.0;
  Ticks(1);
  EXPECT_EQ(Followed(), "QX7AA");
  EXPECT_EQ(world.Internet.Moni1ScanTicks, 5);
  EXPECT_EQ(world.Internet.InetSwitchTime, world.Time.SecondsSinceMidnight());
  EXPECT_TRUE(world.Words().starts_with("MONI 1: scan 2/2, ")) << world.Words();
}

TEST_F(StationScanTest, BehindTheLastTheStationBeforeComesBack) {
  Begin();
  Ticks(10);
  EXPECT_EQ(Followed(), "qx7zz");
  EXPECT_EQ(world.Internet.Moni1ScanOn, 0);
  EXPECT_EQ(scan.Value, 0);
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_EQ(world.Actions.ConfigLines.back(),
            (std::pair<std::string, std::string>("CALL", "qx7zz")));
}

TEST_F(StationScanTest, EndedByHandItComesBackToo) {
  Begin();
  world.Click(scan, 0);
  EXPECT_EQ(Followed(), "qx7zz");
  EXPECT_EQ(world.Internet.Moni1ScanOn, 0);
  EXPECT_EQ(moni1.Value, 0);
}

TEST_F(StationScanTest, SupportSwitchedOffByHandEndsIt) {
  Begin();
  world.Click(moni1, 0);
  EXPECT_EQ(Followed(), "qx7zz");
  EXPECT_EQ(scan.Value, 0);
}

TEST_F(StationScanTest, AStationThatDoesNotAnswerCostsOnlyItsOwnTurn) {
  Begin();
  moni1.Value = 0;  // by the watchdog
  Ticks(5);
  EXPECT_EQ(Followed(), "QX7AA");
  EXPECT_EQ(moni1.Value, 1);
}

TEST_F(StationScanTest, AStationThatTheOperatorChoosesMeanwhileStays) {
  Begin();
  world.Room.Choice.Follow("QX7XX");
  Ticks(5);
  EXPECT_EQ(Followed(), "QX7XX");
  EXPECT_EQ(world.Internet.Moni1ScanOn, 0);
}

TEST_F(StationScanTest, ThePageOfTheStationBeforeIsNotTheNextOnes) {
  Begin();
  world.FetchMoni1();
  Ticks(5);
  world.Pages.Answer("\n" + InternetWorld::Line("2024-05-14 12:30:00", "N0CALL"));
  EXPECT_EQ(world.HistoryCount(), 0);
  EXPECT_EQ(Followed(), "QX7AA");
}

TEST_F(StationScanTest, FetchesTheHistoryOfEachStation) {
  Begin();
  for (const char* call : {"N0CALL", "QX7AA"}) {
    world.FetchMoni1();
    world.Pages.Answer("\n" + InternetWorld::Line("2024-05-14 12:30:00", call));
    Ticks(5);
  }
  for (const char* name : {"N0CALL.TXT", "QX7AA.TXT"})
    EXPECT_EQ(world.Disk.LineCount(world.Log(name)), 1) << name;
}

TEST_F(StationScanTest, WithoutStationsOrAnAddressThereIsNone) {
  world.Controls.Moni1.Combo9.Items.clear();
  Begin();
  EXPECT_EQ(scan.Value, 0);
  EXPECT_EQ(world.Words(), "MONI 1: no station to scan");
  world.Controls.Moni1.Combo9.Items = {"N0CALL"};
  world.Services = {};
  Begin();
  EXPECT_EQ(scan.Value, 0);
  EXPECT_EQ(world.Internet.Moni1ScanOn, 0);
  EXPECT_EQ(Followed(), "qx7zz");
}

TEST_F(StationScanTest, TheNextRunFollowsTheStationBefore) {
  Begin();
  world.Net.Stop();
  EXPECT_EQ(Followed(), "qx7zz");
  EXPECT_EQ(world.Actions.ConfigLines.back(),
            (std::pair<std::string, std::string>("CALL", "qx7zz")));
}

}  // namespace
}  // namespace zepril
