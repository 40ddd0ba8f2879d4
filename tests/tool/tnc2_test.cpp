// Packets of the common form brought to the normal one.
#include "tool/tnc2.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

std::string Normal(const std::string& line) {
  std::string normal;
  return Tnc2ToNormal(line, normal) ? normal : "none";
}

TEST(Tnc2, PathWithoutAsteriskWasHeardDirectly) {
  EXPECT_EQ(Normal("N0CALL>APRS,WIDE1-1,WIDE2-1:!x"),
            "N0CALL*>WIDE1-1>WIDE2-1>APRS <UI>:\r\n!x\r\n");
  EXPECT_EQ(Normal("N0CALL>APRS:!x"), "N0CALL*>APRS <UI>:\r\n!x\r\n");
}

TEST(Tnc2, DigipeatersKeepTheirAsterisksInOrder) {
  EXPECT_EQ(Normal("N0CALL>APRS,RELAY*,WIDE1-1:!x"), "N0CALL>RELAY*>WIDE1-1>APRS <UI>:\r\n!x\r\n");
  EXPECT_EQ(Normal("N0CALL>APRS,N0A*,N0B*:a:b>c"), "N0CALL>N0A*>N0B*>APRS <UI>:\r\na:b>c\r\n");
}

TEST(Tnc2, OtherLinesAreNone) {
  for (const std::string line : {"", "text", "N0CALL:x>y", ">APRS:x", "N0CALL>:x", "N0CALL>,A:x"}) {
    EXPECT_EQ(Normal(line), "none") << line;
  }
}

}  // namespace
}  // namespace zepril
