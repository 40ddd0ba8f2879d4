// A packet engine that stalls, dies without a word, or cuts its frames: what is noticed, and that
// nothing meant for the air is kept for later.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "links/agw_connection.h"
#include "links/agw_frame.h"
#include "links/agw_local.h"
#include "tests/links/agw_support.h"

namespace zepril {
namespace {

// A link to another computer's engine that stands.
class WatchedLink : public RemoteLinkTest {
 protected:
  WatchedLink() {
    identity.MyCallFull = "QX7KB";
    transmission.TxPath = "WIDE1-1";
    transmission.AgwTxText = "=test";
    clock.Drive(looks, true);
    Wakes();
    link.LinkChanged = [this] { changes.push_back(link.LinkIsUp()); };
    link.ConnectAgw();
    socket.Sent.clear();
  }
  void Wakes() {
    socket.AnswersVersion = true;
    socket.OnConnect = [this] {
      clock.Schedule(0.05, [this] { socket.SetState(SocketState::Connected); });
    };
    socket.OnSend = [this](std::string_view bytes) {
      if (bytes[4] != 'X') return;
      clock.Schedule(0.3, [this] { socket.Deliver(MakeAgwFrame(0, 'X', "QX7KB", "", "\x01")); });
    };
  }
  // Takes connections and bytes, as the system does for it, and says nothing.
  void Stalls() {
    socket.AnswersVersion = false;
    socket.OnSend = nullptr;
  }
  int FramesForTheAir() const {
    int frames = 0;
    for (const std::string& bytes : socket.Sent)
      frames += bytes[4] == 'V' ? 1 : 0;
    return frames;
  }

  std::vector<bool> changes;
};

TEST_F(WatchedLink, AFrameFollowsASignOfLife) {
  EXPECT_TRUE(link.SendAgwUnproto());
  EXPECT_EQ(socket.VersionQuestions, 1);
  EXPECT_EQ(FramesForTheAir(), 1);
}

TEST_F(WatchedLink, AnEngineThatGivesNoSignGetsNoFrame) {
  Stalls();
  const double before = clock.MonotonicSeconds();
  EXPECT_FALSE(link.SendAgwUnproto());
  EXPECT_NEAR(clock.MonotonicSeconds() - before, AgwPulse::kAnswerSeconds, 0.05);
  EXPECT_EQ(FramesForTheAir(), 0);
}

TEST_F(WatchedLink, ALateSignIsNoLoss) {
  Stalls();
  link.SendAgwUnproto();
  clock.Run(5.0);
  socket.Deliver(MakeAgwFrame(0, 'R', "", "", std::string(8, '\0')));
  clock.Run(60.0);
  EXPECT_TRUE(link.LinkIsUp());
  EXPECT_EQ(socket.Drops, 0);
  EXPECT_TRUE(changes.empty());
}

TEST_F(WatchedLink, AStalledEngineIsLostAfterTenSeconds) {
  Stalls();
  link.SendAgwUnproto();
  clock.Run(9.0);
  EXPECT_TRUE(link.LinkIsUp());
  clock.Run(3.0);
  EXPECT_FALSE(link.LinkIsUp());
  EXPECT_EQ(socket.Drops, 1);
  EXPECT_EQ(changes, (std::vector<bool>{false}));
}

TEST_F(WatchedLink, WhatAStalledEngineMissedIsNeverSent) {
  Stalls();
  for (int minute = 0; minute < 4; ++minute) {
    EXPECT_FALSE(link.SendAgwUnproto());
    clock.Run(50.0);
  }
  Wakes();
  clock.Run(120.0);
  EXPECT_TRUE(link.LinkIsUp());
  EXPECT_EQ(FramesForTheAir(), 0);
  EXPECT_TRUE(link.SendAgwUnproto());
  EXPECT_EQ(FramesForTheAir(), 1);
}

TEST_F(WatchedLink, BytesThatDoNotLeaveForTenSecondsMakeTheLinkLost) {
  socket.Unsent = 40;
  clock.Run(8.0);
  socket.Unsent = 0;  // they did
  clock.Run(1.0);
  socket.Unsent = 40;
  clock.Run(9.5);
  EXPECT_EQ(socket.Drops, 0);
  clock.Run(2.0);
  EXPECT_EQ(socket.Drops, 1);
}

TEST_F(WatchedLink, SwitchedOffWhatHasNotLeftIsDropped) {
  link.DropUnsent();
  EXPECT_EQ(socket.Drops, 0);
  socket.Unsent = 40;
  link.DropUnsent();
  EXPECT_EQ(socket.Drops, 1);
  EXPECT_FALSE(link.LinkIsUp());
  clock.Run(11.0);
  EXPECT_TRUE(link.LinkIsUp());
}

TEST_F(WatchedLink, AfterFiveMinutesOfSilenceTheEngineIsAsked) {
  clock.Run(290.0);
  EXPECT_EQ(socket.VersionQuestions, 0);
  clock.Run(15.0);
  EXPECT_EQ(socket.VersionQuestions, 1);
  clock.Run(290.0);
  EXPECT_EQ(socket.VersionQuestions, 1);
  EXPECT_TRUE(link.LinkIsUp());
}

TEST_F(WatchedLink, AHostThatLostItsPowerIsNoticedInSilence) {
  Stalls();
  clock.Run(305.0);
  EXPECT_TRUE(link.LinkIsUp());
  clock.Run(10.0);
  EXPECT_FALSE(link.LinkIsUp());
  EXPECT_EQ(radio.AgwConnected, 0);
}

TEST_F(WatchedLink, AnEngineThatTalksIsNotAsked) {
  for (int minute = 0; minute < 20; ++minute) {
    clock.Run(60.0);
    socket.Deliver(MakeAgwFrame(0, 'U', "QX1AB", "", "1:Fm QX1AB To APRS <UI >[1]\r!x\r\r"));
  }
  EXPECT_EQ(socket.VersionQuestions, 0);
}

TEST_F(WatchedLink, ItsAnswersAreNoMonitorText) {
  radio.AgwRxBuffer.clear();
  radio.LastDataSeconds = -1.0;
  link.SendAgwUnproto();
  EXPECT_EQ(radio.AgwRxBuffer, "");
  EXPECT_EQ(radio.LastDataSeconds, -1.0);
}

TEST_F(WatchedLink, AnEngineThatComesBackIsGreetedWithinElevenSeconds) {
  socket.SetState(SocketState::PeerClosed);
  socket.OnConnect = [this] { socket.SetState(SocketState::Error); };
  clock.Run(15.0);
  Wakes();
  clock.Run(11.0);
  EXPECT_TRUE(link.LinkIsUp());
  ASSERT_EQ(socket.Sent.size(), 2U);
  EXPECT_EQ(socket.Sent[0][4], 'X');
  EXPECT_EQ(socket.Sent[1][4], 'm');
  EXPECT_EQ(changes, (std::vector<bool>{false, true}));
}

TEST_F(WatchedLink, ConnectedIsNotUpBeforeTheEngineSaysAWord) {
  socket.SetState(SocketState::PeerClosed);
  socket.AnswersVersion = false;
  socket.OnSend = nullptr;
  clock.Run(12.0);
  ASSERT_EQ(socket.State(), SocketState::Connected);
  EXPECT_FALSE(link.LinkIsUp());
  EXPECT_FALSE(link.SendAgwUnproto());
  // One that stays silent is dropped and tried again.
  const int connects = socket.Connects;
  clock.Run(25.0);
  EXPECT_GT(socket.Connects, connects);
}

TEST_F(WatchedLink, HalfAFrameIsGivenUpAfterFiveSeconds) {
  // A header that could be one, of a frame that never comes whole.
  std::string lying = MakeAgwFrame(0, 'U', "QX1AB", "", std::string(60000, 'x')).substr(0, 40);
  socket.Deliver(lying);
  clock.Run(4.0);
  EXPECT_EQ(radio.AgwRxBuffer, "");
  clock.Run(2.0);
  EXPECT_EQ(radio.AgwRxBuffer, "xxxx");
  radio.AgwRxBuffer.clear();
  const std::string text = "1:Fm QX1AB To APRS <UI >[1]\r!x\r\r";
  socket.Deliver(MakeAgwFrame(0, 'U', "QX1AB", "", text));
  EXPECT_EQ(radio.AgwRxBuffer, text);
}

TEST_F(WatchedLink, ALongFrameThatGoesOnComingIsWaitedFor) {
  const std::string text = "1:Fm QX1AB To APRS <UI >[1]\r!" + std::string(30, 'x') + "\r\r";
  const std::string frame = MakeAgwFrame(0, 'U', "QX1AB", "", text);
  for (const char byte : frame) {
    socket.Deliver(std::string(1, byte));
    clock.Run(0.08);
  }
  EXPECT_EQ(radio.AgwRxBuffer, text);
}

TEST_F(WatchedLink, ALyingLengthOnABusyChannelIsGivenUpToo) {
  const std::string lying =
      MakeAgwFrame(0, 'U', "QX1AB", "", std::string(60000, 'x')).substr(0, 40);
  socket.Deliver(lying);
  const std::string good = MakeAgwFrame(0, 'U', "QX1AB", "", "1:Fm QX1AB To APRS <UI >[1]\r!x\r\r");
  for (int frame = 0; frame < 4; ++frame) {
    clock.Run(3.0);
    socket.Deliver(good);
  }
  radio.AgwRxBuffer.clear();
  radio.AgwFrame.clear();
  socket.Deliver(good);
  EXPECT_EQ(radio.AgwFrame, good);
}

TEST_F(WatchedLink, AsksNoMoreWhenItIsClosed) {
  link.DisconnectAgw();
  clock.Run(1000.0);
  EXPECT_EQ(socket.VersionQuestions, 0);
  EXPECT_EQ(socket.Connects, 1);
}

// ---- The start -------------------------------------------------------------------------------

class StartedLink : public RemoteLinkTest {
 protected:
  void EndsAt(double seconds) {
    clock.Schedule(seconds, [this] { clock.EndIsAsked = true; });
  }
  AgwLocal local{radio, socket, clock};
};

TEST_F(StartedLink, ASilentHostDoesNotKeepTheProgramFromItsEnd) {
  EndsAt(1.0);
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_LT(clock.MonotonicSeconds(), 1.1);
  EXPECT_TRUE(program.Ended);
}

TEST_F(StartedLink, ASilentEngineDoesNotKeepTheProgramFromItsEnd) {
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  EndsAt(1.0);
  EXPECT_FALSE(link.ConnectAgw());
  EXPECT_LT(clock.MonotonicSeconds(), 1.1);
}

TEST_F(StartedLink, ALocalEngineDoesNotKeepTheProgramFromItsEnd) {
  EndsAt(1.0);
  EXPECT_FALSE(local.AGWStartPoll("ZEPRIL", "QX7KB"));
  EXPECT_LT(clock.MonotonicSeconds(), 1.1);
}

TEST_F(StartedLink, AStalledLocalEngineGetsNoFrameAndIsLost) {
  clock.Drive(local.LookTimer(), true);
  socket.OnConnect = [this] { socket.SetState(SocketState::Connected); };
  socket.AnswersVersion = false;
  ASSERT_TRUE(local.AGWStartPoll("ZEPRIL", "QX7KB"));
  EXPECT_TRUE(local.LinkIsUp());
  const std::size_t before = socket.Sent.size();
  EXPECT_FALSE(local.AGWPutData("ZEPR,", "Hi"));
  EXPECT_EQ(socket.Sent.size(), before);
  bool up = true;
  local.LinkChanged = [&] { up = local.LinkIsUp(); };
  clock.Run(12.0);
  EXPECT_FALSE(up);
  EXPECT_EQ(socket.Drops, 1);
}

}  // namespace
}  // namespace zepril
