// Names, values, mistakes and zones of a command's arguments.
#include "tool/arguments.h"

#include <gtest/gtest.h>

#include <array>

namespace zepril {
namespace {

constexpr std::array<ArgumentRule, 2> kRules{{{"--zone", true}, {"--stats", false}}};

Arguments Read(std::vector<std::string_view> args) {
  return {args, kRules};
}

TEST(Arguments, NamesAndValuesAreReadInAnyOrder) {
  const Arguments arguments = Read({"--stats", "--zone", "U32"});
  EXPECT_FALSE(arguments.Failed());
  EXPECT_TRUE(arguments.Has("--stats"));
  EXPECT_EQ(arguments.Value("--zone"), "U32");
  EXPECT_FALSE(Read({}).Has("--stats"));
}

TEST(Arguments, MistakesFail) {
  EXPECT_TRUE(Read({"--other"}).Failed());
  EXPECT_TRUE(Read({"--zone"}).Failed());
  EXPECT_TRUE(Read({"--stats", "--stats"}).Failed());
  EXPECT_TRUE(Read({"word"}).Failed());
}

TEST(Arguments, WholeNumbersMustBeWholeAndInRange) {
  const auto whole = [](std::string_view text) {
    Arguments arguments = Read({"--zone", text});
    const int value = arguments.Whole("--zone", -5, 10, 3);
    return arguments.Failed() ? -99 : value;
  };
  EXPECT_EQ(whole("10"), 10);
  EXPECT_EQ(whole("-5"), -5);
  for (std::string_view text : {"11", "-6", "1.5", "x", "", "1x", "99999999999"}) {
    EXPECT_EQ(whole(text), -99) << text;
  }
  Arguments none = Read({});
  EXPECT_EQ(none.Whole("--zone", 0, 10, 3), 3);
}

TEST(Arguments, WrongCallExitsWithTwo) {
  EXPECT_EQ(Read({"--other"}).Report("decode"), 2);
}

TEST(Arguments, ZoneIsReadWithOrWithoutItsLetter) {
  EXPECT_EQ(ZoneNumber("U33"), 33);
  EXPECT_EQ(ZoneNumber("u08"), 8);
  EXPECT_EQ(ZoneNumber("60"), 60);
  for (std::string_view text : {"U0", "61", "U", "", "UU3", "-3"}) {
    EXPECT_FALSE(ZoneNumber(text)) << text;
  }
}

}  // namespace
}  // namespace zepril
