// Which lines count as gated already, for how long, and how they are forgotten.
#include "gate/recent_lines.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

constexpr std::int64_t kNow = 1'000'000;
constexpr const char* kLine = "QX7AB>ZEPR,qAR,QX7KB:!5230.00N/01324.00E>one\r\n";

class RecentLinesTest : public ::testing::Test {
 protected:
  // True when the line goes out.
  bool Hand(const std::string& line, std::int64_t now = kNow) {
    if (IsRepeat(recent, line, now)) return false;
    Remember(recent, line, now);
    return true;
  }
  void AgeTimes(int ticks) {
    for (int tick = 0; tick < ticks; ++tick)
      Age(recent);
  }
  RecentLines recent;
};

TEST_F(RecentLinesTest, TheSameLineTwiceInATickIsARepeat) {
  EXPECT_TRUE(Hand(kLine));
  EXPECT_FALSE(Hand(kLine));
}

TEST_F(RecentLinesTest, OnlyTheLastLineOfATickIsRemembered) {
  const std::string a = kLine;
  const std::string b = "QX1CD>ZEPR,qAR,QX7KB:!5230.00N/01324.00E>another\r\n";
  std::string sent;
  for (const char* which : {"A", "A", "B", "A", "B"}) {
    if (Hand(which == std::string("A") ? a : b)) sent += which;
  }
  EXPECT_EQ(sent, "ABAB");
}

TEST_F(RecentLinesTest, TheFirstAndTheLastEightCharactersAreCompared) {
  ASSERT_TRUE(Hand("QX7AB>ZEPR,qAR,QX7KB:one 123456\r\n"));
  EXPECT_FALSE(Hand("QX7AB>ZE middle 123456\r\n"));
  EXPECT_TRUE(IsRepeat(recent, "QX7AB>ZEAPRS 123456\r\n", kNow));
  // One character of either end.
  EXPECT_FALSE(IsRepeat(recent, "QX7AB>ZPPR,qAR,QX7KB:one 123456\r\n", kNow));
  EXPECT_FALSE(IsRepeat(recent, "QX7AB>ZEPR,qAR,QX7KB:one 023456\r\n", kNow));
  EXPECT_FALSE(IsRepeat(recent, "QX7AB>Zepr,qAR,QX7KB:one 123456\r\n", kNow));
}

TEST_F(RecentLinesTest, ALineIsARepeatForThirtySeconds) {
  ASSERT_TRUE(Hand(kLine));
  AgeTimes(1);
  EXPECT_FALSE(Hand(kLine, kNow + 29));
  EXPECT_TRUE(Hand(kLine, kNow + 30));
}

TEST_F(RecentLinesTest, ALineIsForgottenAfterFiveTicksHoweverYoung) {
  ASSERT_TRUE(Hand(kLine));
  AgeTimes(4);
  EXPECT_FALSE(Hand(kLine, kNow + 24));
  AgeTimes(1);
  EXPECT_TRUE(Hand(kLine, kNow + 29));
}

TEST_F(RecentLinesTest, LinesOfFiveTicksAreRemembered) {
  for (char which = 'a'; which <= 'e'; ++which) {
    AgeTimes(1);
    EXPECT_TRUE(Hand(std::string(kLine) + which));
  }
  for (char which = 'a'; which <= 'e'; ++which)
    EXPECT_TRUE(IsRepeat(recent, std::string(kLine) + which, kNow)) << which;
  AgeTimes(1);
  EXPECT_FALSE(IsRepeat(recent, std::string(kLine) + 'a', kNow));
  EXPECT_TRUE(IsRepeat(recent, std::string(kLine) + 'b', kNow));
}

}  // namespace
}  // namespace zepril
