// What is kept of a read of the PK-232.
#include "reception/pk232_monitor.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

TEST(Pk232Monitor, EchoAndShortTextAreNothing) {
  EXPECT_EQ(Pk232Text("K\r\n"), "");
  EXPECT_EQ(Pk232Text("123456789"), "");
  EXPECT_EQ(Pk232Text("1234567890"), "1234567890");
}

TEST(Pk232Monitor, FirstLineWithAMarkerStays) {
  EXPECT_EQ(Pk232Text("N0CALL*>APRS <UI>:\r\n!tst\r\n"), "N0CALL*>APRS <UI>:\r\n!tst\r\n");
  EXPECT_EQ(Pk232Text("N0CALL*>APRS [UI]:\r\n!tst\r\n"), "N0CALL*>APRS [UI]:\r\n!tst\r\n");
}

TEST(Pk232Monitor, FirstLineWithRoundMarkerIsLost) {
  EXPECT_EQ(Pk232Text("N0CALL*>APRS (UI):\r\nN0CALL*>APRS <UI>:\r\n!tst\r\n"),
            "N0CALL*>APRS <UI>:\r\n!tst\r\n");
}

TEST(Pk232Monitor, ShortRestBehindASkippedLineIsNothing) {
  EXPECT_EQ(Pk232Text("cmd: torn line\r\n1234567"), "");
}

TEST(Pk232Monitor, LineEndStaysWhereFewerThanTenWouldRemain) {
  EXPECT_EQ(Pk232Text("cmd: torn line\r\n12345678"), "\r\n12345678");
  EXPECT_EQ(Pk232Text("cmd: torn line\r\n123456789"), "\r\n123456789");
  EXPECT_EQ(Pk232Text("cmd: torn line\r\n1234567890"), "1234567890");
}

TEST(Pk232Monitor, PieceWithoutLineEndGoesOn) {
  EXPECT_EQ(Pk232Text("the rest of a torn information"), "the rest of a torn information");
}

}  // namespace
}  // namespace zepril
