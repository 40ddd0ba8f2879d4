// Lines of positions through every grid, and back.
#include "tool/coords_command.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(CoordsCommand, LineHoldsEveryGrid) {
  EXPECT_EQ(
      CoordsLine(13.4, 52.5, 33),
      "391390.7313\t5817855.2407\t4\t4595177.7632\t5819456.5651\t33\t391390.7313\t5817855.2407\t"
      "1336664.5983\t5821067.5302\tJO62QM\t 52:30.00\t 13:24.00");
}

TEST(CoordsCommand, MapZoneMayDifferFromThatOfThePosition) {
  EXPECT_TRUE(CoordsLine(18.0685, 59.3293, 33).starts_with("674566.1801\t6580742.7461\t6\t"));
  EXPECT_NE(CoordsLine(18.0685, 59.3293, 33).find("\t34\t333224"), std::string::npos);
  EXPECT_NE(CoordsLine(18.0685, 59.3293, 33).find("1628826.8552\t6580908.4473"), std::string::npos);
}

TEST(CoordsCommand, InverseGivesDegrees) {
  EXPECT_EQ(InverseCoordsLine(391390.7313, 5817855.2407, 33), "13.399999999\t52.500000000");
  EXPECT_EQ(InverseCoordsLine(500000.0, 0.0, 33), "15.000000000\t0.000000000");
}

TEST(CoordsCommand, LineMustHoldTwoNumbers) {
  const auto pair = ReadNumberPair(" 13.4\t-52.5 \r");
  ASSERT_TRUE(pair);
  EXPECT_EQ(pair->First, 13.4);
  EXPECT_EQ(pair->Second, -52.5);
  for (std::string_view line : {"", "13.4", "13.4 x", "1 2 3", "- -"}) {
    EXPECT_FALSE(ReadNumberPair(line)) << line;
  }
}

}  // namespace
}  // namespace zepril
