// Which texts are sunspot numbers and K indices.
#include "core/iono_numbers.h"

#include <gtest/gtest.h>

#include <optional>

namespace zepril {
namespace {

TEST(IonoNumbers, AreTakenInTheirRangeOnly) {
  EXPECT_EQ(NumberUpTo("0", kHighestK), 0.0);
  EXPECT_EQ(NumberUpTo(" 9 ", kHighestK), 9.0);
  EXPECT_EQ(NumberUpTo(".3", kHighestK), 0.3);
  EXPECT_EQ(NumberUpTo("400", kHighestSunspotNumber), 400.0);
  for (const char* text : {"", "  ", "9.1", "-1", "k", "3 k", "1e400"}) {
    EXPECT_EQ(NumberUpTo(text, kHighestK), std::nullopt) << text;
  }
  EXPECT_EQ(NumberUpTo("400.5", kHighestSunspotNumber), std::nullopt);
}

}  // namespace
}  // namespace zepril
