// A timer that is held for a redraw keeps the moment at which it is due
#include "core/timer.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class TimerTest : public ::testing::Test {
 protected:
  TimerTest() {
    timer.FollowClock(clock);
    timer.Elapsed = [this] { fired.push_back(clock.MonotonicSeconds()); };
    clock.Drive(timer, false);
    timer.Arm(6000);
  }
  // The operator does something for which the timer stands still for `seconds`.
  void HoldFor(double seconds) {
    timer.Hold();
    clock.Wait(seconds);
    timer.Enable();
  }

  VirtualClock clock;
  Timer timer{6000};
  std::vector<double> fired;
};

using Moments = std::vector<double>;

TEST_F(TimerTest, HeldForAMomentItFiresWhenItWasDueAndGoesOnAtItsInterval) {
  clock.Run(2.0);
  HoldFor(0.5);
  clock.Run(20.0);
  EXPECT_EQ(fired, (Moments{6.0, 12.0, 18.0}));
}

TEST_F(TimerTest, FiresNoMatterHowOftenItIsHeld) {
  for (int click = 0; click < 20; ++click) {
    clock.Run(4.9);
    HoldFor(0.1);
  }
  EXPECT_GE(fired.size(), 16u);
}

TEST_F(TimerTest, DueWithinASecondOrPastItFiresASecondAfterTheStart) {
  clock.Run(5.0);
  HoldFor(0.4);
  clock.Run(2.0);
  EXPECT_EQ(fired, Moments{6.4});
  clock.Run(4.0);
  HoldFor(5.0);
  clock.Run(2.0);
  ASSERT_EQ(fired.size(), 2u);
  EXPECT_NEAR(fired[1], 7.4 + 4.0 + 5.0 + 1.0, 1e-9);
  clock.Run(6.0);
  EXPECT_EQ(fired.size(), 3u);
}

TEST_F(TimerTest, ALeanedOnKeyPutsItOffByThreeSecondsAtMost) {
  for (int press = 0; press < 100; ++press) {
    clock.Run(0.2);
    HoldFor(0.1);
  }
  ASSERT_GE(fired.size(), 3u);
  EXPECT_LE(fired[0], 9.4);
}

TEST_F(TimerTest, WhileItIsHeldItDoesNotFire) {
  clock.Run(5.0);
  timer.Hold();
  EXPECT_FALSE(timer.IsOverdue());
  clock.Run(20.0);
  EXPECT_TRUE(timer.IsOverdue());
  EXPECT_TRUE(fired.empty());
}

TEST_F(TimerTest, AStopForgetsTheMoment) {
  clock.Run(5.0);
  timer.Hold();
  timer.Stop();
  timer.Enable();
  clock.Run(5.9);
  EXPECT_TRUE(fired.empty());
  clock.Run(0.2);
  EXPECT_EQ(fired.size(), 1u);
}

TEST_F(TimerTest, AnIntervalThatIsSetStands) {
  clock.Run(2.0);
  timer.Hold();
  timer.Arm(30000);
  clock.Run(10.0);
  HoldFor(0.0);
  clock.Run(40.0);
  EXPECT_EQ(fired, Moments{32.0});
  timer.Hold();
  timer.SetInterval(12000);
  timer.Enable();
  clock.Run(11.9);
  EXPECT_EQ(fired.size(), 1u);
  clock.Run(0.2);
  EXPECT_EQ(fired.size(), 2u);
}

TEST_F(TimerTest, HoldingAStoppedTimerChangesNothing) {
  timer.Stop();
  HoldFor(1.0);
  clock.Run(5.9);
  EXPECT_TRUE(fired.empty());
}

TEST(Timer, WithoutAClockAHoldIsAStop) {
  VirtualClock clock;
  Timer timer(6000);
  clock.Drive(timer, false);
  int fired = 0;
  timer.Elapsed = [&fired] { ++fired; };
  timer.Arm(6000);
  clock.Run(5.0);
  timer.Hold();
  EXPECT_FALSE(timer.Enabled());
  EXPECT_FALSE(timer.IsOverdue());
  timer.Enable();
  clock.Run(5.0);
  EXPECT_EQ(fired, 0);
  clock.Run(1.1);
  EXPECT_EQ(fired, 1);
}

}  // namespace
}  // namespace zepril
