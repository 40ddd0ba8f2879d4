// Nothing is lost on a busy frequency, whatever the operator clicks
#include "tests/station/busy_air.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(BusyAir, NothingIsLostWhileTheOperatorClicksOnTheMap) {
  StationHarness station;
  BusyAir air;
  air.Click = ClickOnMap;
  const ReceptionCounts counts = PlayBusyAir(station, air);
  EXPECT_EQ(counts.Stored, air.Frames());
  EXPECT_EQ(counts.Frames, air.Frames());
  EXPECT_EQ(counts.Recoveries, 0);
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), air.Frames() / air.FollowedEvery);
}

TEST(BusyAir, NothingIsLostWithoutAnyClick) {
  StationHarness station;
  BusyAir air;
  air.Seconds = 120;
  EXPECT_EQ(PlayBusyAir(station, air).Stored, air.Frames());
}

TEST(BusyAir, NothingIsLostUnderRightPressesAndSwitches) {
  BusyAir air;
  air.Seconds = 60;
  for (double every : {0.3, 2.0, 2.9, 3.0, 5.0}) {
    StationHarness other;
    air.ClickEverySeconds = every;
    air.Click = [](StationHarness& at_work, int click) {
      MainWindowControls& controls = at_work.Controls();
      if (click % 3 == 0) {
        controls.Map.Picture1.MouseDown({2, 0, 10.0, 10.0});
        controls.Map.Picture1.MouseUp({2, 0, 10.0, 10.0});
      } else if (click % 3 == 1) {
        controls.MoniAll.Command13.Click();
      } else {
        ClickOnMap(at_work, click);
      }
    };
    EXPECT_EQ(PlayBusyAir(other, air).Stored, air.Frames()) << every;
  }
}

TEST(BusyAir, NothingIsLostUnderPressAfterPressOfTheRightButton) {
  for (double every : {0.5, 2.0, 2.9}) {
    StationHarness station;
    BusyAir air;
    air.Seconds = 60;
    air.ClickEverySeconds = every;
    air.Click = [](StationHarness& at_work, int) {
      at_work.Controls().Map.Picture1.MouseDown({2, 0, 10.0, 10.0});
      at_work.Controls().Map.Picture1.MouseUp({2, 0, 10.0, 10.0});
    };
    EXPECT_EQ(PlayBusyAir(station, air).Stored, air.Frames()) << every;
  }
}

TEST(BusyAir, AnOperatorWhoClicksEveryFiveSecondsReceivesAndSends) {
  StationHarness station("TXON= 1\r\nTXID=9\r\n");
  station.Start();
  station.Controls().Transmit.Check6.Value = 1;
  station.State().Transmission.TxIntervalMinutes = 1;
  for (int click = 0; click < 60; ++click) {
    station.Hear("QX2CD", "=5231." + ZeroPadded(click, 2) + "N/01324.00E>a");
    station.clock.Run(5.0);
    ClickOnMap(station, click);
    // A tick takes one frame when little waits, so a few may wait.
    ASSERT_GE(station.program->Counts().Stored, click - 4) << click;
  }
  int reports = 0;
  for (const std::string& sent : station.socket.Sent)
    reports += sent[4] == 'V' ? 1 : 0;
  EXPECT_GE(reports, 4);
}

}  // namespace
}  // namespace zepril
