// Monitor text of both SCS modems in the normal form, with other text between.
#include "reception/scs_monitor.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

struct Taken {
  std::string Normal;
  std::string Rest;
};

Taken Take(const std::string& text, ScsDialect dialect = ScsDialect::Tnc) {
  Taken taken;
  taken.Rest = text.substr(TakeScsFrames(text, dialect, taken.Normal));
  return taken;
}

TEST(ScsMonitor, DigipeatersBecomePathElements) {
  const Taken taken = Take("fm N0CALL to APRS via WIDE1-1* WIDE2-1 ctl UI pid F0\r\n!tst\r\n");
  EXPECT_EQ(taken.Normal, "N0CALL>WIDE1-1*>WIDE2-1>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(taken.Rest, "\r\n");
}

TEST(ScsMonitor, UnusedDigipeatersMarkTheSender) {
  EXPECT_EQ(Take("fm N0CALL to APRS via WIDE1-1 ctl UI pid F0\r\n!tst\r\n").Normal,
            "N0CALL*>WIDE1-1>APRS <UI>:\r\n!tst\r\n");
}

TEST(ScsMonitor, FrameWithoutDigipeatersIsLeftUnmarked) {
  EXPECT_EQ(Take("fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n").Normal,
            "N0CALL>APRS <UI>:\r\n!tst\r\n");
}

TEST(ScsMonitor, UnfinishedFrameIsLeft) {
  for (const std::string text : {"fm N0CALL to APRS ctl UI pid F0\r\n!ts",
                                 "fm N0CALL to APRS ctl U", "no frame at all\r\n", ""}) {
    const Taken taken = Take(text);
    EXPECT_EQ(taken.Normal, "");
    EXPECT_EQ(taken.Rest, text);
  }
}

TEST(ScsMonitor, OtherPidEndsTheTakingAndIsPassedOver) {
  const std::string good = "fm N0GOOD to APRS ctl UI pid F0\r\n!tst\r\n";
  Taken taken = Take("fm N0BAD to APRS ctl UI pid CF\r\nxxx\r\n" + good);
  EXPECT_EQ(taken.Normal, "");
  taken = Take(taken.Rest);
  EXPECT_EQ(taken.Normal, "N0GOOD>APRS <UI>:\r\n!tst\r\n");
}

TEST(ScsMonitor, ConnectedFramesInBetweenDoNotBlock) {
  Taken taken = Take("fm N0A to N0B ctl RR1-\r\nfm N0GOOD to APRS ctl UI pid F0\r\n!tst\r\n");
  EXPECT_EQ(taken.Normal, "");
  EXPECT_EQ(Take(taken.Rest).Normal, "N0GOOD>APRS <UI>:\r\n!tst\r\n");
}

TEST(ScsMonitor, FollowingFramesAreTakenUpToTen) {
  std::string text;
  for (int i = 0; i < 11; ++i)
    text += "fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n";
  const Taken taken = Take(text);
  std::string ten;
  for (int i = 0; i < 10; ++i)
    ten += "N0CALL>APRS <UI>:\r\n!tst\r\n";
  EXPECT_EQ(taken.Normal, ten);
  EXPECT_EQ(Take(taken.Rest).Normal, "N0CALL>APRS <UI>:\r\n!tst\r\n");
}

TEST(ScsMonitor, ChannelNumberBeginsAFrameOfThePtcOnly) {
  const std::string text = "a long line of junk 1:fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n";
  EXPECT_EQ(Take(text, ScsDialect::Ptc).Normal, "N0CALL>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(Take(text, ScsDialect::Tnc).Normal, "");
}

TEST(ScsMonitor, JunkBeforeColumnTenIsPassedOver) {
  EXPECT_EQ(Take("xxxxxxxxfm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n").Normal,
            "N0CALL>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(Take("xxxxxxxxxfm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n").Normal, "");
  EXPECT_EQ(Take("a long line of junk\nfm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n").Normal,
            "N0CALL>APRS <UI>:\r\n!tst\r\n");
}

}  // namespace
}  // namespace zepril
