// What the fields of TX SETUP make of each other: intervals, symbols, speeds, paths, memories.
#include "transmit/tx_setup_rules.h"

#include <gtest/gtest.h>

#include "core/baud_mode.h"
#include "core/radio_rules.h"

#include <vector>

namespace zepril {
namespace {

TEST(Interval, OnlyOneToSixtyMinutesStay) {
  EXPECT_EQ(IntervalText("1"), "1");
  EXPECT_EQ(IntervalText("60"), "60");
  EXPECT_EQ(IntervalText("15"), "15");
  for (const char* manual : {"61", "0", "abc", "", "MANUAL", "1e9"}) {
    EXPECT_EQ(IntervalText(manual), "MANUAL") << manual;
  }
  EXPECT_EQ(IntervalText("-1"), "60");
}

TEST(Interval, StepsGoRoundByManual) {
  EXPECT_EQ(SteppedInterval("60", +1), "MANUAL");
  EXPECT_EQ(SteppedInterval("MANUAL", +1), "1");
  EXPECT_EQ(SteppedInterval("MANUAL", -1), "60");
  EXPECT_EQ(SteppedInterval("1", -1), "MANUAL");
  EXPECT_EQ(SteppedInterval("10", +1), "11");
}

TEST(Interval, TheButtonNamesIt) {
  EXPECT_EQ(TxCaption(10), "TX 10");
  EXPECT_EQ(TxCaption(0), "TX !");
}

TEST(SymbolPicker, ItStopsAtTheEndsAndLeapsOverTheGap) {
  EXPECT_EQ(SteppedSymbol(101, -1), 94);
  EXPECT_EQ(SteppedSymbol(94, +1), 101);
  EXPECT_EQ(SteppedSymbol(1, -1), 1);
  EXPECT_EQ(SteppedSymbol(194, +1), 194);
  EXPECT_EQ(SteppedSymbol(37, +1), 38);
  EXPECT_EQ(SteppedSymbol(37, -1), 36);
  EXPECT_EQ(SteppedSymbol(-5, -1), 1);
  EXPECT_EQ(SteppedSymbol(500, +1), 194);
}

TEST(SymbolPicker, OfALongerOverlayTheLastCharacterCounts) {
  EXPECT_EQ(OverlayOf("a"), "A");
  EXPECT_EQ(OverlayOf("ab7"), "7");
  EXPECT_EQ(OverlayOf("x "), "X");
  EXPECT_EQ(OverlayOf(""), "");
}

// ---- Speeds ---------------------------------------------------------------------------------

TEST(SpeedRules, AnySpeedSwitchesTheDigipeaterOff) {
  for (const char* speed : {"300", "300R", "1200", "9600", "19200"}) {
    EXPECT_FALSE(WithSpeed({"1200", "NONE", false, true}, speed).Digi) << speed;
  }
}

TEST(SpeedRules, FastSpeedsHaveNoSecondMode) {
  for (const char* speed : {"1200", "9600", "19200"}) {
    EXPECT_EQ(WithSpeed({"300R", "300", true, true}, speed),
              (SpeedChoice{speed, "NONE", false, false}));
  }
}

TEST(SpeedRules, HfSpeedsKeepTheOtherOfThePair) {
  EXPECT_EQ(WithSpeed({"300", "300", true, false}, "300R"),
            (SpeedChoice{"300R", "300", true, false}));
  EXPECT_EQ(WithSpeed({"300R", "R300", true, false}, "300"),
            (SpeedChoice{"300", "R300", true, false}));
  EXPECT_EQ(WithSpeed({"300R", "300", true, false}, "300"),
            (SpeedChoice{"300", "NONE", false, false}));
  EXPECT_EQ(WithSpeed({"300", "1200", false, false}, "300R"),
            (SpeedChoice{"300R", "NONE", false, false}));
}

TEST(SpeedRules, TheSecondModeGoesRoundBothWays) {
  SpeedChoice choice{"1200", "NONE", false, false};
  std::vector<std::string> seen;
  for (int step = 0; step < 6; ++step) {
    choice = WithSecondModeStepped(choice, +1);
    seen.push_back(choice.CrossMode);
  }
  EXPECT_EQ(seen, (std::vector<std::string>{"19200", "9600", "1200", "300", "R300", "NONE"}));
  EXPECT_EQ(WithSecondModeStepped(choice, -1).CrossMode, "R300");
  EXPECT_EQ(WithSecondModeStepped({"1200", "19200", false, false}, -1).CrossMode, "NONE");
  EXPECT_EQ(WithSecondModeStepped({"1200", "odd", false, false}, +1).CrossMode, "19200");
}

TEST(SpeedRules, SteppingKeepsHfDualOnlyOnThePair) {
  EXPECT_TRUE(WithSecondModeStepped({"300R", "1200", true, false}, +1).HfDual);  // "300"
  EXPECT_FALSE(WithSecondModeStepped({"300", "1200", true, false}, +1).HfDual);  // "300"
  EXPECT_TRUE(WithSecondModeStepped({"300", "300", true, false}, +1).HfDual);    // "R300"
  EXPECT_FALSE(WithSecondModeStepped({"300R", "300", true, false}, +1).HfDual);  // "R300"
  EXPECT_FALSE(WithSecondModeStepped({"300R", "1200", false, false}, +1).HfDual);
}

TEST(SpeedRules, HfDualOnSetsWhatItNeeds) {
  EXPECT_EQ(WithHfDualOn({{"1200", "NONE", false, false}, "", "1"}),
            (HfDualFields{{"300R", "300", true, false}, "", "2"}));
  EXPECT_EQ(WithHfDualOn({{"300", "NONE", false, true}, "WIDE2-2", "10"}),
            (HfDualFields{{"300", "R300", true, true}, "WIDE1-1", "10"}));
}

TEST(SpeedRules, HfDualOffTakesDigipeaterAndSecondModeAlong) {
  EXPECT_EQ(WithHfDualOff({"300R", "300", true, true}),
            (SpeedChoice{"300R", "NONE", false, false}));
}

TEST(SpeedRules, EachSpeedHasItsLabel) {
  EXPECT_EQ(BaudModeLabelOf("300"), "300 Bd");
  EXPECT_EQ(BaudModeLabelOf("300R"), "RPR 300");
  EXPECT_EQ(BaudModeLabelOf("19200"), "19200 Bd");
}

// ---- Path and texts -------------------------------------------------------------------------

TEST(PathButtons, TheyAppendWithAComma) {
  EXPECT_EQ(PathWith(" WIDE1-1 ", "ECHO"), "WIDE1-1,ECHO");
  EXPECT_EQ(PathWith("", "GATE"), "GATE");
}

TEST(InfoMemories, AFrequencyGoesToTheLastLineWithOne) {
  const std::array<std::string, 6> lines{"a", "145.500 mhz", "b", "434 MHz", "c", "d"};
  EXPECT_EQ(LineForMemory("145.500MHz", lines, 5), 3U);
  EXPECT_EQ(LineForMemory("Hello", lines, 5), 5U);
  EXPECT_EQ(LineForMemory("Hello", lines, std::nullopt), std::nullopt);
  EXPECT_EQ(LineForMemory("145.500MHz", {"a", "b", "c", "d", "e", "f"}, 2), 2U);
  EXPECT_EQ(LineForMemory("145.500MHz", {"a", "b", "c", "d", "e", "f"}, std::nullopt),
            std::nullopt);
}

TEST(OwnHeaderPattern, CommasBecomeArrows) {
  EXPECT_EQ(OwnHeaderPatternOf("QX7KB-10", "WIDE1-1,WIDE2-1", "ZEPR"),
            "QX7KB-10*>WIDE1-1>WIDE2-1>ZEPR");
  EXPECT_EQ(OwnHeaderPatternOf("QX7KB-10", "", "ZEPR"), "QX7KB-10*>ZEPR");
}

}  // namespace
}  // namespace zepril
