// Headers with and without the mark of a direct sender.
#include "reception/direct_marking.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

std::string Marked(std::string text) {
  MarkDirectSenders(text);
  return text;
}

TEST(DirectMarking, HeaderWithoutAsteriskGetsOneBehindItsSender) {
  EXPECT_EQ(Marked("N0CALL>APRS <UI>:\r\n!tst\r\n"), "N0CALL*>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(Marked("N0CALL>APRS [UI]:\r\n!tst\r\n"), "N0CALL*>APRS [UI]:\r\n!tst\r\n");
}

TEST(DirectMarking, HeaderWithAnAsteriskStays) {
  EXPECT_EQ(Marked("N0CALL>WIDE1-1*>APRS <UI>:\r\n!\r\n"), "N0CALL>WIDE1-1*>APRS <UI>:\r\n!\r\n");
}

TEST(DirectMarking, EveryHeaderOfTheTextIsMarked) {
  EXPECT_EQ(Marked("N0A>APRS <UI>:\r\na>*b\r\nN0B>APRS <UI>:\r\n\r\n"),
            "N0A*>APRS <UI>:\r\na>*b\r\nN0B*>APRS <UI>:\r\n\r\n");
}

TEST(DirectMarking, ManyFramesAreMarkedToTheLast) {
  std::string text;
  std::string expected;
  for (int i = 0; i < 50; ++i) {
    text += "N0A>APRS <UI>:\r\n\r\n";
    expected += "N0A*>APRS <UI>:\r\n\r\n";
  }
  EXPECT_EQ(Marked(text), expected);
}

TEST(DirectMarking, MarkerStandsAtColumnFiveOrBeyond) {
  EXPECT_EQ(Marked("A>B UI>:\r\n"), "A*>B UI>:\r\n");
  EXPECT_EQ(Marked("A>BUI>:\r\n"), "A>BUI>:\r\n");
}

TEST(DirectMarking, TextWithoutHeaderStays) {
  EXPECT_EQ(Marked(""), "");
  EXPECT_EQ(Marked("UI>:\r\n"), "UI>:\r\n");
  EXPECT_EQ(Marked("N0CALL <UI>:\r\n"), "N0CALL <UI>:\r\n");
}

}  // namespace
}  // namespace zepril
