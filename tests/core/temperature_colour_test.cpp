// Colours of temperatures: the ends, the joints, the break that stays, and the runs between them.
#include "core/temperature_colour.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

constexpr Colour Bgr(int blue, int green, int red) {
  return static_cast<Colour>(blue << 16 | green << 8 | red);
}

TEST(TemperatureColour, EndsAndJoints) {
  EXPECT_EQ(TemperatureColour(-40), Bgr(250, 250, 0));
  EXPECT_EQ(TemperatureColour(-35), Bgr(250, 125, 0));
  EXPECT_EQ(TemperatureColour(-30), Bgr(250, 0, 0));
  EXPECT_EQ(TemperatureColour(-29), Bgr(249, 16, 0));
  EXPECT_EQ(TemperatureColour(-27), Bgr(247, 48, 0));
  EXPECT_EQ(TemperatureColour(-26), Bgr(250, 64, 0));
  EXPECT_EQ(TemperatureColour(-25), Bgr(245, 80, 0));
  EXPECT_EQ(TemperatureColour(-10), Bgr(230, 150, 0));
  EXPECT_EQ(TemperatureColour(0), Bgr(190, 190, 0));
  EXPECT_EQ(TemperatureColour(1), Bgr(180, 196, 0));
  EXPECT_EQ(TemperatureColour(10), Bgr(0, 250, 0));
  EXPECT_EQ(TemperatureColour(15), Bgr(0, 240, 190));
  EXPECT_EQ(TemperatureColour(20), Bgr(0, 220, 220));
  EXPECT_EQ(TemperatureColour(30), Bgr(0, 0, 250));
  EXPECT_EQ(TemperatureColour(31), Bgr(0, 0, 225));
  EXPECT_EQ(TemperatureColour(40), Bgr(0, 0, 0));
}

TEST(TemperatureColour, BeyondTheEndsItStays) {
  EXPECT_EQ(TemperatureColour(-41), TemperatureColour(-40));
  EXPECT_EQ(TemperatureColour(-2000), TemperatureColour(-40));
  EXPECT_EQ(TemperatureColour(41), TemperatureColour(40));
  EXPECT_EQ(TemperatureColour(2000), TemperatureColour(40));
}

// Within each run a colour goes one way only.
TEST(TemperatureColour, RunsAreEven) {
  for (int celsius = -40; celsius < -30; ++celsius)
    EXPECT_EQ(TemperatureColour(celsius) - TemperatureColour(celsius + 1), Bgr(0, 25, 0));
  for (int celsius = -19; celsius < -9; ++celsius)
    EXPECT_EQ((TemperatureColour(celsius) >> 16) - (TemperatureColour(celsius + 1) >> 16),
              celsius == -10 ? 4U : 1U);
  for (int celsius = 30; celsius < 40; ++celsius)
    EXPECT_EQ(TemperatureColour(celsius) - TemperatureColour(celsius + 1), 25U);
  for (int celsius = 10; celsius < 30; ++celsius) {
    EXPECT_GT(TemperatureColour(celsius) >> 8, TemperatureColour(celsius + 1) >> 8) << celsius;
    EXPECT_LT(TemperatureColour(celsius) & 0xFF, TemperatureColour(celsius + 1) & 0xFF) << celsius;
  }
}

}  // namespace
}  // namespace zepril
