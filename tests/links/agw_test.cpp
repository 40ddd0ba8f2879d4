// Frames, streams and both links of a packet engine, and the lamp that tells of them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/link_lamp.h"
#include "core/text_fields.h"
#include "links/agw_frame.h"
#include "links/agw_link.h"
#include "links/agw_local.h"
#include "links/agw_stream.h"
#include "tests/doubles/fake_socket.h"
#include "tests/doubles/noted_end.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

std::string Bytes(std::initializer_list<int> codes) {
  std::string text;
  for (int code : codes)
    text += Chr(code);
  return text;
}

std::string MonitorFrameOf(std::string_view text) {
  return MakeAgwFrame(0, 'U', "QX1AB", "APRS", text);
}

TEST(AgwFrame, RegistrationHasThirtySixBytes) {
  EXPECT_EQ(MakeAgwFrame(0, 'X', "QX7KB", "APRS", {}),
            Bytes({0,    0, 0, 0, 0x58, 0, 0,    0,    0x51, 0x58, 0x37, 0x4B,
                   0x42, 0, 0, 0, 0,    0, 0x41, 0x50, 0x52, 0x53, 0,    0,
                   0,    0, 0, 0, 0,    0, 0,    0,    0x5A, 0x45, 0x50, 0x52}));
}

TEST(AgwFrame, UnprotoCarriesItsDigipeaters) {
  const std::string frame =
      MakeAgwFrame(0, 'V', "QX7KB-9", "ZEPR", AgwUnprotoData("WIDE1-1,WIDE2-1", "Hi"));
  EXPECT_EQ(frame.size(), 59U);
  EXPECT_EQ(frame.substr(28, 4), Bytes({0x17, 0, 0, 0}));
  EXPECT_EQ(frame[36], 2);
  EXPECT_EQ(frame.substr(37, 10), std::string("WIDE1-1\0\0\0", 10));
  EXPECT_EQ(frame.substr(47, 10), std::string("WIDE2-1\0\0\0", 10));
  EXPECT_EQ(frame.substr(57), "Hi");
}

TEST(AgwFrame, AnEmptyPathHasNoDigipeaterField) {
  EXPECT_EQ(AgwUnprotoData("", "Hi"), std::string("\0Hi", 3));
}

TEST(AgwFrame, EmptyElementsOfAPathAreLeftOut) {
  EXPECT_EQ(AgwUnprotoData("A,B,", "Hi"), AgwUnprotoData("A,B", "Hi"));
  EXPECT_EQ(AgwUnprotoData(",,A, ,\x1B,B", "Hi"), AgwUnprotoData("A,B", "Hi"));
  EXPECT_EQ(AgwUnprotoData(",,", "Hi"), std::string("\0Hi", 3));
}

TEST(AgwFrame, ControlBytesOfACallAreBlanks) {
  EXPECT_EQ(MakeAgwFrame(0, 'V',
                         "QX\x1B"
                         "7",
                         "\x03ZEPR\r",
                         AgwUnprotoData("A\x07"
                                        "B",
                                        "Hi")),
            MakeAgwFrame(0, 'V', "QX 7", "ZEPR", AgwUnprotoData("A B", "Hi")));
}

TEST(AgwFrame, LengthIsWrittenLowByteFirstAndStaysInTwoBytes) {
  const std::string frame = MakeAgwFrame(1, 'V', "A", "B", std::string(70000, 'x'));
  EXPECT_EQ(frame.size(), 36U + 65535U);
  EXPECT_EQ(frame.substr(28, 4), Bytes({0xFF, 0xFF, 0, 0}));
  EXPECT_EQ(ReadAgwHeader(frame).DataLength, 65535U);
}

TEST(AgwFrame, PortFollowsTheRadioMode) {
  EXPECT_EQ(AgwPortOf("1200", 0), 1);
  EXPECT_EQ(AgwPortOf("300", 1), 0);
  EXPECT_EQ(AgwPortOf("300R", 1), 0);
  EXPECT_EQ(AgwPortOf("9600", 1), 1);
  EXPECT_EQ(AgwPortOf("9600", 0), 0);
}

TEST(AgwFrame, HeaderReadsBackWhatWasWritten) {
  const AgwFrameFields fields = ReadAgwHeader(MakeAgwFrame(1, 'V', " qx7kb-9 ", "zepr", "abc"));
  EXPECT_EQ(fields.Port, 1);
  EXPECT_EQ(fields.Kind, 'V');
  EXPECT_EQ(fields.From, "QX7KB-9");
  EXPECT_EQ(fields.To, "ZEPR");
  EXPECT_EQ(fields.DataLength, 3U);
  EXPECT_EQ(fields.User, "ZEPR");
}

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

class AgwLinkTest : public ::testing::Test {
 protected:
  AgwLinkTest() {
    identity.MyCallFull = "QX7KB";
    clock.Drive(reopen, false);
  }
  // The engine answers the registration after `seconds` with `reply`.
  void EngineAnswers(std::string reply, double seconds = 0.5) {
    socket.OnConnect = [this] {
      clock.Schedule(0.1, [this] { socket.SetState(SocketState::Connected); });
    };
    socket.OnSend = [this, reply, seconds](std::string_view bytes) {
      if (bytes[4] == 'X') clock.Schedule(seconds, [this, reply] { socket.Deliver(reply); });
    };
  }
  static std::string Accepted() { return MakeAgwFrame(0, 'X', "QX7KB", "", "\x01"); }

  RadioState radio;
  IdentityState identity;
  TransmissionState transmission;
  FakeSocket socket;
  VirtualClock clock;
  ScriptedDialogs dialogs;
  NotedEnd program;
  AgwLink link{radio, identity, transmission, socket, clock, dialogs, program};
  Timer& reopen = link.LookTimer();
};

TEST_F(AgwLinkTest, ConnectsRegistersAndMonitors) {
  EngineAnswers(Accepted());
  radio.BaudMode = "1200";
  EXPECT_TRUE(link.ConnectAgw());
  EXPECT_EQ(socket.Host, "QX7KB0");
  EXPECT_EQ(socket.Port, 8000);
  EXPECT_EQ(radio.AgwConnected, 1);
  ASSERT_EQ(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0], MakeAgwFrame(1, 'X', "QX7KB", "APRS", {}));
  EXPECT_EQ(socket.Sent[1], MakeAgwFrame(1, 'm', "QX7KB", "APRS", {}));
  EXPECT_TRUE(radio.AgwRxBuffer.empty());
}

TEST_F(AgwLinkTest, ARefusedConnectionSaysSoAndEndsTheProgram) {
  socket.OnConnect = [this] {
    clock.Schedule(1.0, [this] { socket.SetState(SocketState::Error); });
  };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(AgwLinkTest, AHostThatHangsUpAtOnceDoesNotHoldTheStart) {
  socket.OnConnect = [this] {
    clock.Schedule(0.01, [this] { socket.SetState(SocketState::PeerClosed); });
  };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE HOST NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
}

TEST_F(AgwLinkTest, ASilentEngineIsGivenTenSeconds) {
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
  EXPECT_NEAR(clock.MonotonicSeconds(), 10.0, 0.1);
}

TEST_F(AgwLinkTest, ARefusedRegistrationEndsTheProgram) {
  EngineAnswers(MakeAgwFrame(0, 'X', "QX7KB", "", std::string(1, '\0')));
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE NOT FOUND !");
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_TRUE(program.Ended);
}

TEST_F(AgwLinkTest, DataOfAnyKindReachesTheBuffer) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const std::string text = "1:Fm QX1AB To APRS <UI >[1]\r!x\r\r";
  socket.Deliver(MonitorFrameOf(text) + MakeAgwFrame(0, 'G', "", "", "ports"));
  EXPECT_EQ(radio.AgwRxBuffer, text + "ports");
  EXPECT_EQ(radio.AgwFrame, MakeAgwFrame(0, 'G', "", "", "ports"));
  EXPECT_EQ(radio.LastDataSeconds, clock.MonotonicSeconds());
}

TEST_F(AgwLinkTest, AnEventOfTwoJoinedFramesAppendsEverythingBehindTheFirstHeader) {
  const std::string one = MonitorFrameOf("1:Fm A To B <UI >\r!\r\r");
  const std::string two = MonitorFrameOf("1:Fm C To D <UI >\r!\r\r");
  link.FrameArrived(one + two);
  EXPECT_EQ(radio.AgwRxBuffer, one.substr(36) + two);
}

TEST_F(AgwLinkTest, TheBufferDoesNotGrowWithoutBound) {
  for (int at = 0; at < 20; ++at)
    link.FrameArrived(MonitorFrameOf(std::string(60000, 'x')));
  EXPECT_LE(radio.AgwRxBuffer.size(), kLongestReceiveBuffer);
}

TEST_F(AgwLinkTest, WhatIsNotCollectedForLongIsNotLost) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  std::string sent;
  for (int at = 0; at < 2000; ++at) {
    const std::string text =
        "1:Fm QX" + std::to_string(at) + " To APRS <UI >[1]\r!" + std::string(60, 'x') + "\r\r";
    sent += text;
    socket.Deliver(MonitorFrameOf(text));
    EXPECT_LE(radio.AgwRxBuffer.size(), AgwLink::kMostHandedOn);
  }
  ASSERT_GT(sent.size(), 2 * kLongestReceiveBuffer);
  std::string collected;
  for (int tick = 0; tick < 60 && collected.size() < sent.size(); ++tick) {
    collected += radio.AgwRxBuffer;
    radio.AgwRxBuffer.clear();
    clock.Wait(1.0);
    reopen.Fired();
    if (reopen.Elapsed) reopen.Elapsed();
  }
  EXPECT_EQ(collected, sent);
}

TEST_F(AgwLinkTest, WhatWaitsDoesNotGrowWithoutBoundAndLosesTheOldest) {
  for (int at = 0; at < 40; ++at)
    link.FrameArrived(
        MonitorFrameOf(" " + std::to_string(at) + ":" + std::string(50000, 'x') + "\r\r"));
  std::string collected;
  for (int taken = 0; taken < 40; ++taken) {
    collected += radio.AgwRxBuffer;
    radio.AgwRxBuffer.clear();
    link.FrameArrived(MonitorFrameOf("?\r\r"));
  }
  EXPECT_LE(collected.size(), AgwLink::kMostWaiting + kLongestReceiveBuffer);
  EXPECT_EQ(collected.find(" 5:"), std::string::npos);
  for (int at = 25; at < 40; ++at)
    EXPECT_NE(collected.find(" " + std::to_string(at) + ":"), std::string::npos) << at;
}

TEST_F(AgwLinkTest, AnEngineThatRefusesTheCallLaterIsNoLinkAndIsAskedAgain) {
  EngineAnswers(Accepted(), 0.0);
  int changes = 0;
  link.ConnectAgw();
  link.LinkChanged = [&] { ++changes; };
  socket.SetState(SocketState::PeerClosed);
  EngineAnswers(MakeAgwFrame(0, 'X', "QX7KB", "", std::string(1, '\0')), 0.1);
  const auto pass = [this](int seconds) {
    for (int second = 0; second < seconds; ++second) {
      clock.Wait(1.0);
      if (reopen.Elapsed) reopen.Elapsed();
    }
  };
  pass(40);
  EXPECT_FALSE(link.LinkIsUp());
  EXPECT_EQ(radio.AgwConnected, 0);
  EXPECT_EQ(changes, 1);
  EXPECT_GE(socket.Connects, 3);
  transmission.AgwTxText = "Test";
  const std::size_t sent = socket.Sent.size();
  EXPECT_FALSE(link.SendAgwUnproto());
  EXPECT_EQ(socket.Sent.size(), sent);
  EngineAnswers(Accepted(), 0.1);
  pass(15);
  EXPECT_TRUE(link.LinkIsUp());
  EXPECT_EQ(changes, 2);
}

TEST_F(AgwLinkTest, DisconnectUnregistersAndWaitsASecond) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const double before = clock.MonotonicSeconds();
  link.DisconnectAgw();
  EXPECT_EQ(socket.Sent.back(), MakeAgwFrame(0, 'x', "QX7KB", "APRS", {}));
  EXPECT_NEAR(clock.MonotonicSeconds() - before, 1.0, 1e-9);
  EXPECT_EQ(radio.AgwConnected, 0);
  EXPECT_EQ(socket.State(), SocketState::Closed);
}

TEST_F(AgwLinkTest, DisconnectOfALostLinkOnlyCloses) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  socket.SetState(SocketState::PeerClosed);
  const std::size_t sent = socket.Sent.size();
  link.DisconnectAgw();
  EXPECT_EQ(socket.Sent.size(), sent);
  EXPECT_EQ(radio.AgwConnected, 0);
}

TEST_F(AgwLinkTest, UnprotoGoesOutOnlyWhenConnectedAndSaysWhenItFails) {
  transmission.TxPath = "WIDE1-1";
  transmission.AgwTxText = "=test";
  link.SendAgwUnproto();
  EXPECT_TRUE(socket.Sent.empty());
  EngineAnswers(Accepted());
  link.ConnectAgw();
  link.SendAgwUnproto();
  EXPECT_EQ(socket.Sent.back(),
            MakeAgwFrame(0, 'V', "QX7KB", "ZEPR", AgwUnprotoData("WIDE1-1", "=test")));
  socket.FailSends = true;
  dialogs.Expect("ZEP RIL  TCP/IP AGWPE", "TCP/IP AGWPE ERROR !");
  link.SendAgwUnproto();
}

TEST_F(AgwLinkTest, OnALinkThatIsLostNothingIsSentAndNoBoxAppears) {
  transmission.AgwTxText = "=test";
  EngineAnswers(Accepted());
  link.ConnectAgw();
  const std::size_t before = socket.Sent.size();
  socket.SetState(SocketState::PeerClosed);
  socket.FailSends = true;
  link.SendAgwUnproto();
  EXPECT_EQ(socket.Sent.size(), before);
}

TEST_F(AgwLinkTest, ALostLinkIsOpenedAgainQuietlyEveryTenSeconds) {
  EngineAnswers(Accepted());
  link.ConnectAgw();
  socket.SetState(SocketState::PeerClosed);
  socket.OnConnect = nullptr;  // nobody answers yet
  EXPECT_FALSE(link.LinkIsUp());
  clock.Run(35.0);
  EXPECT_EQ(socket.Connects, 4);
  EXPECT_EQ(radio.AgwConnected, 0);
  EngineAnswers(Accepted());
  socket.Sent.clear();
  clock.Run(21.0);
  EXPECT_TRUE(link.LinkIsUp());
  ASSERT_GE(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0][4], 'X');
  EXPECT_EQ(socket.Sent[1][4], 'm');
  EXPECT_FALSE(program.Ended);
}

class AgwLocalTest : public ::testing::Test {
 protected:
  AgwLocalTest() {
    clock.Drive(reopen, false);
    socket.OnConnect = [this] {
      clock.Schedule(0.01, [this] { socket.SetState(SocketState::Connected); });
    };
  }
  RadioState radio;
  FakeSocket socket;
  VirtualClock clock;
  AgwLocal engine{radio, socket, clock};
  Timer& reopen = engine.LookTimer();
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

TEST(LinkLamp, ShowsDataSilenceAndLoss) {
  const auto lamp = [](bool up, double last) {
    return LampOf({true, up, false, last, -1.0, 100.0});
  };
  EXPECT_EQ(LampOf({false, false}).State, LampState::None);
  EXPECT_EQ(lamp(true, -1).State, LampState::Silent);
  EXPECT_EQ(lamp(true, 40).State, LampState::Data);
  EXPECT_EQ(lamp(true, 39.9).State, LampState::Silent);
  EXPECT_EQ(lamp(false, 95).State, LampState::Lost);
  EXPECT_EQ(lamp(true, 88.5).ToolTip, "last data 11 s ago");
}

TEST(LinkLamp, SaysLostWithItsAgeAndPaused) {
  const auto words = [](bool up, bool paused, double lost_since) {
    return LampOf({true, up, paused, 5.0, lost_since, 10000.0}).Words;
  };
  EXPECT_EQ(words(false, false, 9966.0), "LOST 34 s");
  EXPECT_EQ(words(false, false, 9280.0), "LOST 12 min");
  EXPECT_EQ(words(false, false, 1.0), "LOST 2 h");
  EXPECT_EQ(words(false, false, -1.0), "LOST 0 s");
  EXPECT_EQ(words(true, true, -1.0), "paused");
  EXPECT_EQ(words(false, true, 9999.0), "LOST 1 s");  // the harder news
  EXPECT_EQ(words(true, false, -1.0), "");
}

}  // namespace
}  // namespace zepril
