// Frames cut from the bytes of a packet engine, with the ending of each.
#include "links/agw_stream.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "links/agw_frame.h"
#include "tests/links/agw_support.h"

namespace zepril {
namespace {

class AgwStreamTest : public ::testing::Test {
 protected:
  std::vector<std::string> frames;
  AgwStream stream{[this](std::string_view frame) { frames.emplace_back(frame); }};
};

TEST_F(AgwStreamTest, FramesCutAnywhereOrJoinedComeOutWhole) {
  const std::string one = MonitorFrameOf("1:Fm QX1AB To APRS <UI >[1]\r!x\r\r");
  const std::string two = MonitorFrameOf("1:Fm QX2CD To APRS <UI >[2]\r!yy\r\r");
  const std::string both = one + two;
  for (std::size_t cut = 0; cut <= both.size(); ++cut) {
    frames.clear();
    stream.Feed(both.substr(0, cut));
    stream.Feed(both.substr(cut));
    ASSERT_EQ(frames, (std::vector<std::string>{one, two})) << cut;
    ASSERT_EQ(stream.PendingBytes(), 0U);
  }
}

TEST_F(AgwStreamTest, MonitorTextThatEndsInNulGetsTheUsualEnding) {
  stream.Feed(MonitorFrameOf(std::string("1:Fm A To B <UI >[1]\r!x\r\0", 25)));
  ASSERT_EQ(frames.size(), 1U);
  EXPECT_EQ(frames[0].substr(36), "1:Fm A To B <UI >[1]\r!x\r\r");
  EXPECT_EQ(ReadAgwHeader(frames[0]).DataLength, frames[0].size() - 36);
  frames.clear();
  stream.Feed(MonitorFrameOf(std::string("1:Fm A To B <UI >[1]\r!x\r\r\0", 26)));
  EXPECT_EQ(frames[0].substr(36), "1:Fm A To B <UI >[1]\r!x\r\r");
}

TEST_F(AgwStreamTest, BehindTheInformationStandsExactlyOnePairOfReturns) {
  const std::string header = "1:Fm A To B <UI >[1]\r";
  const struct {
    std::string Sent;
    std::string HandedOn;
  } rows[] = {
      {"!x\r\r", "!x\r\r"},        // as most engines send it
      {"!x\r\r\r", "!x\r\r"},      // the information itself ends in a return
      {"!x\r\r\r\r\r", "!x\r\r"},  //
      {"!x\r\n\r\r", "!x\r\r"},    // or in a line end
      {"!x\r\n\r" + std::string(1, '\0'), "!x\r\r"},
      {"!x\n\r\n\r", "!x\r\r"},
      {"!x\r" + std::string(2, '\0') + "\r", "!x\r\r"},
      {"!x\r", "!x\r\r"},            // an ending that is too short would swallow the next frame
      {"!x", "!x\r\r"},              //
      {"!x\ry\r\r\r", "!x\ry\r\r"},  // a return inside stays; the parser refuses it
      {"\r\r", "\r\r"},              // no information at all
      {"\r\r\r", "\r\r"},            //
      {std::string(1, '\0'), "\r\r"},
  };
  for (const auto& row : rows) {
    frames.clear();
    stream.Feed(MonitorFrameOf(header + row.Sent));
    ASSERT_EQ(frames.size(), 1U);
    EXPECT_EQ(frames[0].substr(36), header + row.HandedOn);
    EXPECT_EQ(ReadAgwHeader(frames[0]).DataLength, frames[0].size() - 36);
  }
}

TEST_F(AgwStreamTest, FramesOfConnectionsKeepTheirEnding) {
  const std::string supervisory = MonitorFrameOf("1:Fm A To B <RR R1 >[1]\r");
  stream.Feed(supervisory);
  EXPECT_EQ(frames, (std::vector<std::string>{supervisory}));
}

TEST_F(AgwStreamTest, OtherFramesKeepTheirZeros) {
  const std::string reply = MakeAgwFrame(0, 'G', "", "", std::string("1;Port1;\0", 9));
  stream.Feed(reply);
  EXPECT_EQ(frames, (std::vector<std::string>{reply}));
}

TEST_F(AgwStreamTest, ASenselessHeaderIsHandedOnRawAndTheStreamStartsAfresh) {
  const std::string noise(100, '\xFF');
  stream.Feed(noise);
  EXPECT_EQ(frames, (std::vector<std::string>{noise}));
  std::string lying = MonitorFrameOf("x");
  lying[30] = 2;  // 128 KiB
  frames.clear();
  stream.Feed(lying);
  EXPECT_EQ(frames, (std::vector<std::string>{lying}));
  frames.clear();
  const std::string good = MonitorFrameOf("1:Fm A To B <UI >\r!\r\r");
  stream.Feed(good);
  EXPECT_EQ(frames, (std::vector<std::string>{good}));
}

}  // namespace
}  // namespace zepril
