// When long work of START shows on the panel, and what it shows.
#include "station/start/start_progress.h"

#include <gtest/gtest.h>

#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class StartProgressTest : public ::testing::Test {
 protected:
  StartProgressTest() {
    controls.SetupText.Visible = false;
    controls.SetupBar.Visible = false;
    controls.SetupBar.FullWidthPx = 1000;
  }
  StartPanelControls controls;
  VirtualClock clock;
  StartProgress progress{clock, controls};
};

TEST_F(StartProgressTest, WhatIsDoneAtOnceDoesNotShow) {
  progress.Report("Taking over A.VEC", 0.0);
  clock.Run(0.29);
  progress.Report("Taking over A.VEC", 1.0);
  progress.Done();
  EXPECT_FALSE(controls.SetupText.Visible || controls.SetupBar.Visible);
  EXPECT_EQ(clock.HandOvers, 0);
}

TEST_F(StartProgressTest, WhatTakesLongerShowsAndIsRenewedTenTimesASecond) {
  progress.Report("Taking over A.VEC", 0.0);
  clock.Run(0.31);
  progress.Report("Taking over A.VEC", 0.256);
  EXPECT_TRUE(controls.SetupText.Visible && controls.SetupBar.Visible);
  EXPECT_EQ(controls.SetupText.Caption, "Taking over A.VEC  25 %");
  EXPECT_EQ(controls.SetupBar.FilledPx, 256);
  EXPECT_EQ(clock.HandOvers, 1);
  clock.Run(0.05);
  progress.Report("Taking over A.VEC", 0.5);
  EXPECT_EQ(controls.SetupBar.FilledPx, 256);
  clock.Run(0.06);
  progress.Report("Taking over B.VEC", 2.0);
  EXPECT_EQ(controls.SetupText.Caption, "Taking over B.VEC  100 %");
  EXPECT_EQ(controls.SetupBar.FilledPx, 1000);
  progress.Done();
  EXPECT_FALSE(controls.SetupText.Visible || controls.SetupBar.Visible);
  // The next work begins anew.
  progress.Report("Taking over C.VEC", 0.0);
  EXPECT_FALSE(controls.SetupText.Visible);
}

}  // namespace
}  // namespace zepril
