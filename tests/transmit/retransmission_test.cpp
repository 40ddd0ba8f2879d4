// A heard record sent again: the question, the frame, and when none goes out.
#include "transmit/retransmission.h"

#include "core/text_fields.h"

#include "tests/transmit/transmit_world.h"

namespace zepril {
namespace {

constexpr const char* kTitle = "ZEP RIL          RETRANSMIT STATION'S POSITION";
constexpr const char* kQuestion = "DO YOU WANT TO RETRANSMIT THIS STATION'S POSITION NOW ?";

class RetransmissionTest : public ::testing::Test {
 protected:
  RetransmissionTest() {
    world.Clock.SetNow({2024, 1, 20, 12, 0, 0});
    ShowRecord("TEST");
    world.Timer1.Arm(6000);
  }
  void ShowRecord(const std::string& comment) {
    StationRecord record;
    record.Put(1, 11, "240114 1230");
    record.Put(14, 22, " 5378.123");
    record.Put(23, 31, "  412.345");
    record.Put(33, 41, "QX7GW");
    record.Put(43, 89, comment);
    record.Put(101, 103, "/>");
    world.Controls.Record.Label20.Caption = DoubledAmpersands(record.Text());
  }
  void Click(DialogAnswer answer) {
    world.Boxes.Expect(kTitle, kQuestion, answer);
    world.Boxes.WhileAsking = [this] { asked_with_timer = world.Timer1.Enabled(); };
    world.Controls.Record.Label20.Click();
  }
  TransmitWorld world;
  bool asked_with_timer = true;
  Retransmission retransmission{world.State.Identity,
                                world.State.Radio,
                                world.State.Map,
                                world.Controls.Record,
                                {world.Sender, world.Boxes, world.Clock, world.Timer1}};
};

TEST_F(RetransmissionTest, ARecordGoesOutAfterAYes) {
  bool sent_with_timer = true;
  world.Clock.OnWait = [&](double, bool) { sent_with_timer = world.Timer1.Enabled(); };
  Click(DialogAnswer::Yes);
  ASSERT_EQ(world.Engine.Sent.size(), 1U);
  EXPECT_EQ(world.Engine.Sent[0],
            "ZEPR,WIDE1-1 | }QX7GW>ZEPRRE,QX7KB-10*:/141230z4833.00N/01348.73E> TEST" +
                std::string(43, ' '));
  EXPECT_EQ(world.Boxes.LastButtons, DialogButtons::YesNo);
  EXPECT_EQ(world.Boxes.LastDefault, DialogAnswer::No);
  EXPECT_FALSE(asked_with_timer);
  EXPECT_FALSE(sent_with_timer);
  EXPECT_TRUE(world.Timer1.Enabled());
  // Then events are let through.
  EXPECT_EQ(world.Clock.HandOvers, 1);
}

TEST_F(RetransmissionTest, ANoSendsNothing) {
  Click(DialogAnswer::No);
  EXPECT_TRUE(world.Engine.Sent.empty());
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(RetransmissionTest, TheSecondModeIsLeftAsItIs) {
  world.State.Radio.RadioMode = static_cast<int>(RadioMode::ScsTnc);
  world.State.Radio.HfDualOn = 1;
  world.Port.Open("3", 38400);
  Click(DialogAnswer::Yes);
  EXPECT_TRUE(world.Port.Written.starts_with("}QX7GW>")) << world.Port.Written;
}

TEST_F(RetransmissionTest, WithoutARadioOrARecordAClickDoesNothing) {
  world.State.Radio.RadioMode = static_cast<int>(RadioMode::None);
  world.Controls.Record.Label20.Click();
  world.State.Radio.RadioMode = 0;
  world.Controls.Record.Label20.Caption.clear();
  world.Controls.Record.Label20.Click();
  EXPECT_TRUE(world.Engine.Sent.empty());
}

TEST_F(RetransmissionTest, WithoutACallOrWithATornRecordNothingIsSent) {
  world.State.Identity.MyCall = " ";
  Click(DialogAnswer::Yes);
  world.State.Identity.MyCall = "QX7KB";
  world.Controls.Record.Label20.Caption = "240114 1230";
  Click(DialogAnswer::Yes);
  EXPECT_TRUE(world.Engine.Sent.empty());
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(RetransmissionTest, ARecordThatHoldsACallIsLongEnough) {
  std::string& line = world.Controls.Record.Label20.Caption;
  line = line.substr(0, 33);
  Click(DialogAnswer::Yes);
  ASSERT_EQ(world.Engine.Sent.size(), 1U);
  EXPECT_TRUE(world.Engine.Sent[0].starts_with("ZEPR,WIDE1-1 | }Q>ZEPRRE,"));
  line = line.substr(0, 32);
  Click(DialogAnswer::Yes);
  EXPECT_EQ(world.Engine.Sent.size(), 1U);
}

TEST_F(RetransmissionTest, AnAmpersandIsSentOnce) {
  ShowRecord("Tom & Jerry");
  Click(DialogAnswer::Yes);
  ASSERT_EQ(world.Engine.Sent.size(), 1U);
  EXPECT_NE(world.Engine.Sent[0].find(" Tom & Jerry "), std::string::npos);
}

}  // namespace
}  // namespace zepril
