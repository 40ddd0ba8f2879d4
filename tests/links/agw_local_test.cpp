// The packet engine on this computer: start, polls, reports, an engine that is away.
#include "links/agw_local.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "links/agw_frame.h"
#include "tests/links/agw_support.h"

namespace zepril {
namespace {

class AgwLocalTest : public ::testing::Test {
 protected:
  AgwLocalTest() {
    clock.Drive(looks, false);
    socket.OnConnect = [this] {
      clock.Schedule(0.01, [this] { socket.SetState(SocketState::Connected); });
    };
  }
  RadioState radio;
  FakeSocket socket;
  VirtualClock clock;
  AgwLocal engine{radio, socket, clock};
  Timer& looks = engine.LookTimer();
};

TEST_F(AgwLocalTest, StartRegistersAndMonitorsOnThisComputer) {
  EXPECT_TRUE(engine.AGWStartPoll("ZEPRIL", "QX7KB"));
  EXPECT_EQ(socket.Host, "127.0.0.1");
  EXPECT_EQ(socket.Port, 8000);
  ASSERT_EQ(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0][4], 'X');
  EXPECT_EQ(socket.Sent[1][4], 'm');
}

TEST_F(AgwLocalTest, PollsGiveOneMonitoredFrameEach) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  EXPECT_EQ(engine.AGWGetData(), "");
  const std::string text = "1:Fm A To B <UI >\r!\r\r";
  socket.Deliver(MakeAgwFrame(0, 'X', "QX7KB", "", "\x01") + MonitorFrameOf(text) +
                 MonitorFrameOf(text));
  EXPECT_EQ(engine.AGWGetData(), text);
  EXPECT_EQ(engine.AGWGetData(), text);
  EXPECT_EQ(engine.AGWGetData(), "");
}

TEST_F(AgwLocalTest, WhatAnEnginePutsBeforeThePortDigitIsLeftOut) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  const std::string text = "1:Fm A To B <UI >\r!\r\r";
  socket.Deliver(MonitorFrameOf(" " + text) + MonitorFrameOf(" 1" + text) +
                 MonitorFrameOf(text.substr(1)));
  EXPECT_EQ(engine.AGWGetData(), text);
  EXPECT_EQ(engine.AGWGetData(), text);
  EXPECT_EQ(engine.AGWGetData(), text.substr(1));
}

TEST_F(AgwLocalTest, InformationThatEndsInAReturnIsAFrameLikeAnyOther) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  socket.Deliver(MonitorFrameOf("1:Fm A To B <UI >\r!x\r\r\r"));
  EXPECT_EQ(engine.AGWGetData(), "1:Fm A To B <UI >\r!x\r\r");
}

TEST_F(AgwLocalTest, WaitingFramesAreBounded) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  for (int at = 0; at < 2000; ++at)
    socket.Deliver(MonitorFrameOf("1:Fm A To B <UI >\r!\r\r"));
  std::size_t frames = 0;
  while (!engine.AGWGetData().empty())
    ++frames;
  EXPECT_EQ(frames, AgwLocal::kMostWaitingFrames);
}

TEST_F(AgwLocalTest, AnAbsentEngineIsNoFailureAndIsTriedAgain) {
  socket.OnConnect = [this] { socket.SetState(SocketState::Error); };
  EXPECT_FALSE(engine.AGWStartPoll("ZEPRIL", "QX7KB"));
  EXPECT_EQ(engine.AGWGetData(), "");
  EXPECT_FALSE(engine.AGWPutData("ZEPR,WIDE1-1", "x"));
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  socket.OnSend = [this](std::string_view bytes) {
    if (bytes[4] == 'X') socket.Deliver(MakeAgwFrame(0, 'X', "QX7KB", "", "\x01"));
  };
  clock.Run(11.0);
  EXPECT_TRUE(engine.LinkIsUp());
  EXPECT_EQ(socket.Sent.size(), 2U);
}

TEST_F(AgwLocalTest, PutDataSendsOneFrameAndCloseUnregisters) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  EXPECT_TRUE(engine.AGWPutData("ZEPR,WIDE1-1,WIDE2-1", "Hi"));
  EXPECT_EQ(socket.Sent.back(),
            MakeAgwFrame(0, 'V', "QX7KB", "ZEPR", AgwUnprotoData("WIDE1-1,WIDE2-1", "Hi")));
  engine.AGWClose();
  EXPECT_EQ(socket.Sent.back()[4], 'x');
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(AgwLocalTest, TheSecondPortIsThatOf1200Bd) {
  engine.AGWStartPoll("ZEPRIL", "QX7KB");
  radio.AgwPort = 1;  // what the remote engine was last told has no say here
  const struct {
    const char* Speed;
    int Port;
  } rows[] = {{"300", 0}, {"300R", 0}, {"1200", 1}, {"9600", 0}, {"19200", 0}, {"", 0}};
  for (const auto& row : rows) {
    radio.BaudMode = row.Speed;
    engine.AGWPutData("ZEPR,", "Hi");
    EXPECT_EQ(socket.Sent.back()[0], row.Port) << row.Speed;
  }
}

}  // namespace
}  // namespace zepril
