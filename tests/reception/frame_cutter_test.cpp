// Frames cut out of text that comes in any pieces, and text that is given up.
#include "reception/frame_cutter.h"

#include <gtest/gtest.h>

namespace zepril {
namespace {

const std::string kHeader = "N0CALL*>APRS <UI>:\r\n";

TEST(FrameCutter, FrameIsCutBetweenFirstAndThirdLineFeed) {
  std::string buffer = "\n" + kHeader + "!tst\r\n";
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Frame);
  EXPECT_EQ(frame, kHeader + "!tst");
  EXPECT_EQ(buffer, "\n");
}

TEST(FrameCutter, ClosingLineFeedOpensTheNextFrame) {
  std::string buffer = "\n" + kHeader + "one\r\n" + kHeader + "two\r\n";
  std::string frame;
  CutFrame(buffer, frame);
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Frame);
  EXPECT_EQ(frame, kHeader + "two");
}

TEST(FrameCutter, AllThreeMarkersEndAHeader) {
  EXPECT_EQ(FindHeaderEnd("A <UI>:\r\n"), 1u);
  EXPECT_EQ(FindHeaderEnd("A [UI]:\r\n"), 1u);
  EXPECT_EQ(FindHeaderEnd("A (UI):\r\n"), 1u);
  EXPECT_EQ(FindHeaderEnd("A {UI}:\r\n"), std::string::npos);
  EXPECT_EQ(FindHeaderEnd("A <UI>:\r"), std::string::npos);
  EXPECT_EQ(FindHeaderEnd(":\r\n <UI>:\r\n"), 3u);
}

TEST(FrameCutter, LinesBeforeTheHeaderAreDropped) {
  std::string buffer = "\njunk\njunk\n" + kHeader + "!tst\r\n";
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Frame);
  EXPECT_EQ(frame, kHeader + "!tst");
}

TEST(FrameCutter, TextWithoutHeaderIsResetBeyondTwoThousand) {
  std::string buffer(2000, 'x');
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::NoHeader);
  EXPECT_EQ(buffer.size(), 2000u);
  buffer += 'x';
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::NoHeader);
  EXPECT_EQ(buffer, "False");
}

TEST(FrameCutter, FrameBehindTheResetIsLostAndTheOneAfterIsCut) {
  std::string buffer = "False" + kHeader + "one\r\n" + kHeader + "two\r\n";
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Dropped);
  EXPECT_EQ(buffer, "one\r\n" + kHeader + "two\r\n");
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Frame);
  EXPECT_EQ(frame, kHeader + "two");
}

TEST(FrameCutter, HeaderWithoutItsInformationWaits) {
  std::string buffer = "\n" + kHeader + "!ts";
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Incomplete);
  EXPECT_EQ(buffer, "\n" + kHeader + "!ts");
}

TEST(FrameCutter, InformationWithoutEndIsStuckBeyondFourHundred) {
  std::string buffer = "\n" + kHeader;
  buffer.resize(400, 'x');
  std::string frame;
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Incomplete);
  buffer += 'x';
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Stuck);
  buffer += "\r\n";
  EXPECT_EQ(CutFrame(buffer, frame), CutOutcome::Frame);
}

}  // namespace
}  // namespace zepril
