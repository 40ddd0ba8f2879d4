// Monitor lines of a packet engine in the normal form, and lines that are no frames.
#include "reception/agw_monitor.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

std::string Normal(const std::string& text) {
  std::string collected;
  AppendAgwFrame(text, collected);
  return collected;
}

TEST(AgwMonitor, RepeatedFrameKeepsItsDigipeatersInOrder) {
  EXPECT_EQ(Normal("1:Fm DL1TOM To APRS Via WIDE1-1*,WIDE2-1 <UI R pid=F0 Len=4 >[12:00:00]\r"
                   "!tst\r\r"),
            "DL1TOM>WIDE1-1*>WIDE2-1>APRS <UI>:\r\n!tst\r\n");
}

TEST(AgwMonitor, FrameNobodyRepeatedMarksItsSender) {
  EXPECT_EQ(Normal("1:Fm N0CALL To APRS Via WIDE1-1 <UI pid=F0 Len=4 >[12:00:00]\r!tst\r\r"),
            "N0CALL*>WIDE1-1>APRS <UI>:\r\n!tst\r\n");
}

TEST(AgwMonitor, FrameWithoutDigipeatersHasOnlyItsDestination) {
  EXPECT_EQ(Normal("2:Fm N0CALL To APRS <UI pid=F0 Len=4 >[12:00:00]\r!tst\r\r"),
            "N0CALL*>APRS <UI>:\r\n!tst\r\n");
}

TEST(AgwMonitor, WordsInTheInformationDoNotDisturb) {
  EXPECT_EQ(Normal("1:Fm DL1TOM To APRS <UI pid=F0 Len=9 >[12:00:00]\rcar To Via x * <b\r\r"),
            "DL1TOM*>APRS <UI>:\r\ncar To Via x * <b\r\n");
}

TEST(AgwMonitor, MarkerIsTheFirstWordOfTheDetails) {
  EXPECT_EQ(Normal("1:Fm N0CALL To APRS <I S R=3 >[12:00:00]\rx\r\r"),
            "N0CALL*>APRS <I>:\r\nx\r\n");
}

TEST(AgwMonitor, LineWithoutDestinationOrDetailsIsNoFrame) {
  EXPECT_EQ(Normal("1:Fm N0CALL APRS <UI pid=F0>\rx\r\r"), "");
  EXPECT_EQ(Normal("1:Fm N0CALL To APRS\rx\r\r"), "");
  EXPECT_EQ(Normal(""), "");
  EXPECT_EQ(Normal("1:"), "");
}

TEST(AgwMonitor, FormNeedsExactlyThreeReturns) {
  EXPECT_TRUE(HasAgwForm("a\rb\r\r"));
  EXPECT_FALSE(HasAgwForm("a\rb\rc\r\r"));
  EXPECT_FALSE(HasAgwForm("a\r\r"));
}

}  // namespace
}  // namespace zepril
