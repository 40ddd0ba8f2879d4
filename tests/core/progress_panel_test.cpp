// When the progress is shown, renewed and hidden.
#include "core/progress_panel.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

struct PanelWorld {
  PanelWorld() : Panel(Clock, Controls) {
    Controls.ProgressPanel.Visible = false;
    Clock.OnWait = [this](double seconds, bool pumping) {
      Waits.push_back(seconds);
      EXPECT_FALSE(pumping);
    };
  }
  void ReportAfter(double seconds, double share) {
    Clock.Schedule(seconds, [] {});
    Clock.Run(seconds);
    Panel.Report("Reading X", share);
  }

  VirtualClock Clock;
  ProgressControls Controls;
  std::vector<double> Waits;
  ProgressPanel Panel;
};

TEST(ProgressPanel, ShortWorkIsNotShown) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(0.2, 0.5);
  world.ReportAfter(0.09, 0.9);
  EXPECT_FALSE(world.Controls.ProgressPanel.Visible);
  EXPECT_TRUE(world.Waits.empty());
  world.Panel.Done();
  EXPECT_FALSE(world.Controls.ProgressPanel.Visible);
}

TEST(ProgressPanel, IsShownFromThreeTenthsOfASecondOn) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(0.35, 0.5);
  EXPECT_TRUE(world.Controls.ProgressPanel.Visible);
  EXPECT_EQ(world.Controls.ProgressText.Caption, "Reading X  50 %");
  EXPECT_EQ(world.Controls.ProgressBar.FilledPx, 60);
  EXPECT_EQ(world.Waits.size(), 1u);  // the window was painted
}

TEST(ProgressPanel, IsRenewedTenTimesASecondAtMost) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(0.35, 0.1);
  for (int i = 0; i < 100; ++i)
    world.ReportAfter(0.0101, 0.2);
  EXPECT_GE(world.Waits.size(), 9u);
  EXPECT_LE(world.Waits.size(), 11u);
}

TEST(ProgressPanel, TellsTheTimeLeftAfterThreeSeconds) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(2.5, 0.2);
  EXPECT_EQ(world.Controls.ProgressText.Caption, "Reading X  20 %");
  world.ReportAfter(1.5, 0.25);  // 4 s for a quarter
  EXPECT_EQ(world.Controls.ProgressText.Caption, "Reading X  25 %  12 s left");
}

TEST(ProgressPanel, SenselessSharesAreHeld) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(4.0, std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(world.Controls.ProgressText.Caption, "Reading X  0 %");
  world.ReportAfter(1.0, -5.0);
  EXPECT_EQ(world.Controls.ProgressBar.FilledPx, 0);
  world.ReportAfter(1.0, 7.0);
  EXPECT_EQ(world.Controls.ProgressText.Caption, "Reading X  100 %  0 s left");
  EXPECT_EQ(world.Controls.ProgressBar.FilledPx, 120);
}

TEST(ProgressPanel, IsHiddenAtTheEndAndTheNextWorkBeginsAnew) {
  PanelWorld world;
  world.Panel.Report("Reading X", 0.0);
  world.ReportAfter(1.0, 0.5);
  world.Panel.Done();
  EXPECT_FALSE(world.Controls.ProgressPanel.Visible);
  world.ReportAfter(1.0, 0.5);
  EXPECT_FALSE(world.Controls.ProgressPanel.Visible);
}

}  // namespace
}  // namespace zepril
