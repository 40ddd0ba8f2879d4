// What of heard text reaches the server, and what is counted.
#include "gate/radio_gate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

std::string Heard(const std::string& data, const std::string& source = "QX7AB") {
  return "1:Fm " + source + " To ZEPR <UI pid=F0 Len=4 >[12:30:15]\r" + data + "\r\r";
}

class RadioGateTest : public ::testing::Test {
 protected:
  RadioGateTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB-10";
    internet.IGateOn = Gate::On;
    internet.IGateConnected = GateLink::Up;
    socket.SetState(SocketState::Connected);
  }
  void Hear(const std::string& data) { gate.GateMonitorBlock(Heard(data), "AGW"); }

  InternetState internet;
  IdentityState identity;
  FakeSocket socket;
  VirtualClock clock;
  AprsIsLink link{internet, identity, socket};
  RadioGate gate{internet, identity, link, clock};
};

TEST_F(RadioGateTest, ALineLeavesInOnePieceAndIsRemembered) {
  Hear("!tst");
  EXPECT_EQ(socket.Sent, Lines{"QX7AB>ZEPR,qAR,QX7KB-10:!tst\r\n"});
  EXPECT_EQ(internet.RecentlyGated.back().Text, "QX7AB>ZEPR,qAR,QX7KB-10:!tst\r\n");
  EXPECT_EQ(internet.RecentlyGated.back().Seconds, SecondsOf(clock.Now()));
  EXPECT_EQ(gate.Tally().Lines, 1);
  EXPECT_EQ(gate.Tally().NotGated, 0);
}

TEST_F(RadioGateTest, TheFormIsThatOfTheDialect) {
  gate.GateMonitorBlock("QX7AB*>ZEPR <UI>:\r\n!tst\r\n", "PK-232");
  EXPECT_EQ(socket.Sent, Lines{"QX7AB>ZEPR,qAR,QX7KB-10:!tst\r\n"});
  gate.GateMonitorBlock(Heard("another"), "unheard of");
  EXPECT_EQ(socket.Sent.size(), 1U);
}

TEST_F(RadioGateTest, ARepeatStays) {
  Hear("!tst");
  Hear("!tst");
  EXPECT_EQ(socket.Sent.size(), 1U);
  EXPECT_EQ(gate.Tally().LastWhy, NotGated::Repeat);
  clock.Wait(29);
  Hear("!tst");
  EXPECT_EQ(socket.Sent.size(), 1U);
  clock.Wait(1);
  Hear("!tst");
  EXPECT_EQ(socket.Sent.size(), 2U);
}

TEST_F(RadioGateTest, NothingLeavesOnceItIsSwitchedOff) {
  internet.IGateOn = Gate::Off;
  Hear("!tst");
  EXPECT_TRUE(socket.Sent.empty());
}

TEST_F(RadioGateTest, ALineGoesUnderTheCallOfItsMoment) {
  Hear("one");
  identity.MyCallFull = "QX7KB-7";
  Hear("two");
  gate.GateMonitorBlock(Heard("three", "QX7KB-7"), "AGW");
  gate.GateMonitorBlock(Heard("four", "QX7KB-10"), "AGW");
  EXPECT_EQ(socket.Sent,
            (Lines{"QX7AB>ZEPR,qAR,QX7KB-10:one\r\n", "QX7AB>ZEPR,qAR,QX7KB-7:two\r\n",
                   "QX7KB-7>ZEPR,qAR,TCPIP:three\r\n", "QX7KB-10>ZEPR,qAR,QX7KB-7:four\r\n"}));
}

TEST_F(RadioGateTest, WhatIsNotTakenIsCountedAndStaysAway) {
  socket.FailSends = true;
  Hear("!tst");
  EXPECT_EQ(gate.Tally().Lines, 0);
  EXPECT_EQ(gate.Tally().LastWhy, NotGated::NotTaken);
  socket.FailSends = false;
  // A frame of later leaves, what could not leave does not come back.
  Hear("another");
  EXPECT_EQ(socket.Sent, Lines{"QX7AB>ZEPR,qAR,QX7KB-10:another\r\n"});
}

TEST_F(RadioGateTest, CountsWhatStaysAndWhy) {
  gate.GateMonitorBlock("1:Fm QX7AB To ZEPR Via NOGATE <UI >[12:30:15]\r!tst\r\r", "AGW");
  EXPECT_EQ(gate.Tally().LastWhy, NotGated::ForbiddenPath);
  Hear("?APRS?");
  EXPECT_EQ(gate.Tally().LastWhy, NotGated::ForwardedOrQuery);
  gate.GateMonitorBlock("no frame at all", "AGW");
  EXPECT_EQ(gate.Tally().LastWhy, NotGated::NoFrame);
  EXPECT_EQ(gate.Tally().NotGated, 3);
  EXPECT_TRUE(socket.Sent.empty());
}

TEST_F(RadioGateTest, AFloodOfTenThousandFramesIsGatedInOrder) {
  std::string block;
  for (int at = 0; at < 10000; ++at)
    block += Heard("frame number " + WholeNumber(100000 + at));
  gate.GateMonitorBlock(block, "AGW");
  ASSERT_EQ(socket.Sent.size(), 10000U);
  EXPECT_EQ(socket.Sent.back(), "QX7AB>ZEPR,qAR,QX7KB-10:frame number 109999\r\n");
  EXPECT_EQ(gate.Tally().Lines, 10000);
}

}  // namespace
}  // namespace zepril
