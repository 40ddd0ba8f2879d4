// The lamp that tells of a radio link.
#include "core/link_lamp.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(LinkLamp, ShowsDataSilenceAndLoss) {
  const auto lamp = [](bool up, double last) {
    return LampOf({true, up, false, last, -1.0, 100.0});
  };
  EXPECT_EQ(LampOf({false, false}).State, LampState::None);
  EXPECT_EQ(lamp(true, -1).State, LampState::Silent);
  EXPECT_EQ(lamp(true, 40).State, LampState::Data);
  EXPECT_EQ(lamp(true, 39.9).State, LampState::Silent);
  EXPECT_EQ(lamp(false, 95).State, LampState::Lost);
  EXPECT_EQ(lamp(true, 88.5).ToolTip, "last data 11 s ago");
}

TEST(LinkLamp, SaysLostWithItsAgeAndPaused) {
  const auto words = [](bool up, bool paused, double lost_since) {
    return LampOf({true, up, paused, 5.0, lost_since, 10000.0}).Words;
  };
  EXPECT_EQ(words(false, false, 9966.0), "LOST 34 s");
  EXPECT_EQ(words(false, false, 9280.0), "LOST 12 min");
  EXPECT_EQ(words(false, false, 1.0), "LOST 2 h");
  EXPECT_EQ(words(false, false, -1.0), "LOST 0 s");
  EXPECT_EQ(words(true, true, -1.0), "paused");
  EXPECT_EQ(words(false, true, 9999.0), "LOST 1 s");  // the harder news
  EXPECT_EQ(words(true, false, -1.0), "");
}

}  // namespace
}  // namespace zepril
