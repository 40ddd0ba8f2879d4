// What the operator is told of his reports and of the link, second by second
#include "core/state_colours.h"
#include "links/link_watch.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/station_support.h"
#include "transmit/tx_outcome.h"

namespace zepril {
namespace {

// A station on a packet engine that the test plays; TX is a button that sends one report.
class ToldStation : public ::testing::Test {
 protected:
  explicit ToldStation(const std::string& settings = "TXON=0\r\n") : station(settings) {
    station.Start();
    station.socket.Sent.clear();
  }
  TransmitControls& Transmit() { return station.Controls().Transmit; }
  const std::string& Outcome() { return Transmit().TxOutcome.Caption; }
  const Label& Notice() { return station.Controls().Status.LinkNotice; }
  LinkLamp Lamp() { return station.program->Lamp(); }
  void PressTx(int value = 1) {
    Transmit().Check6.Value = value;
    Transmit().Check6.Click();
  }
  void Seconds(int count) {
    for (int second = 0; second < count; ++second) {
      station.clock.Run(1.0);
      station.program->SecondPassed();
    }
  }
  // Takes connections and bytes, as its system does for it, and says nothing.
  void EngineStalls() {
    station.socket.AnswersVersion = false;
    station.socket.OnSend = nullptr;
  }
  void EngineWakes() {
    station.socket.AnswersVersion = true;
    station.EngineAccepts();
  }
  void EngineDies() {
    station.socket.OnConnect = [this] { station.socket.SetState(SocketState::Error); };
    station.socket.SetState(SocketState::PeerClosed);
  }
  int FramesForTheAir() const {
    int frames = 0;
    for (const std::string& bytes : station.socket.Sent)
      frames += bytes[4] == 'V' ? 1 : 0;
    return frames;
  }

  StationHarness station;
};

class ToldBeacon : public ToldStation {
 protected:
  ToldBeacon() : ToldStation("TXON=1\r\n") {}
};

TEST_F(ToldStation, AReportThatLeftSaysSoForSomeSeconds) {
  PressTx();
  EXPECT_EQ(Outcome(), "SENT 12:34");
  EXPECT_FALSE(Transmit().TxOutcome.ForeColour);
  Seconds(7);
  EXPECT_EQ(Outcome(), "SENT 12:34");
  Seconds(2);
  EXPECT_EQ(Outcome(), "");
}

TEST_F(ToldStation, TheSwitchIsRedWhileTheFrameLeaves) {
  std::optional<std::uint32_t> while_waiting;
  std::string words;
  station.clock.OnWait = [&](double seconds, bool) {
    if (seconds < 0.5) return;
    while_waiting = Transmit().Check6.BackColour;
    words = Outcome();
  };
  const auto before = Transmit().Check6.BackColour;
  PressTx();
  EXPECT_EQ(while_waiting, state_colours::kOnTheAir);
  EXPECT_EQ(words, "SENDING");
  EXPECT_EQ(Transmit().Check6.BackColour, before);
}

TEST_F(ToldStation, AReportOnALostLinkSaysThatItWasNotSent) {
  EngineDies();
  Seconds(3);
  PressTx();
  EXPECT_EQ(Outcome(), "NOT SENT: LINK LOST");
  EXPECT_EQ(Transmit().TxOutcome.ForeColour, state_colours::kOnTheAir);
  EXPECT_EQ(FramesForTheAir(), 0);
}

TEST_F(ToldStation, AReportToAStalledEngineSaysThatItWasNotSent) {
  EngineStalls();
  PressTx();
  EXPECT_EQ(Outcome(), "NOT SENT: LINK LOST");
  EXPECT_EQ(FramesForTheAir(), 0);
}

TEST_F(ToldStation, WithoutACallNothingIsSentAndThatIsSaid) {
  station.State().Identity.MyCall.clear();
  PressTx();
  EXPECT_EQ(Outcome(), "NOT SENT: NO CALL");
}

TEST_F(ToldStation, WithoutAPositionNothingIsSentAndThatIsSaid) {
  station.State().Map.OwnNorthKm = 0.0;
  station.State().Map.OwnEastKm = 0.0;
  PressTx();
  EXPECT_EQ(Outcome(), "NOT SENT: NO POSITION");
}

TEST_F(ToldStation, AReportByHandIsNotTakenWhileOneIsOnItsWay) {
  bool again = true;
  station.clock.OnWait = [&](double seconds, bool) {
    if (seconds < 0.5 || !again) return;
    again = false;
    PressTx();
  };
  PressTx();
  EXPECT_EQ(FramesForTheAir(), 1);
  station.clock.OnWait = nullptr;
  PressTx();
  EXPECT_EQ(FramesForTheAir(), 2);
}

TEST_F(ToldStation, ALostEngineIsToldByANoticeThatGoesWithTheLoss) {
  EXPECT_FALSE(Notice().Visible);
  EngineDies();
  Seconds(2);
  EXPECT_TRUE(Notice().Visible);
  EXPECT_NE(Notice().Caption.find("engine, port 8000"), std::string::npos) << Notice().Caption;
  EngineWakes();
  Seconds(12);
  EXPECT_FALSE(Notice().Visible);
}

TEST_F(ToldStation, TheNoticeOfALostEngineIsClosedByAClickAndComesOnce) {
  EngineDies();
  Seconds(2);
  station.Controls().Status.LinkNotice.Click();
  EXPECT_FALSE(Notice().Visible);
  Seconds(60);
  EXPECT_FALSE(Notice().Visible);
}

TEST_F(ToldStation, BesideTheLampStandsSinceWhenTheLinkIsLost) {
  EXPECT_EQ(Lamp().Words, "");
  EngineDies();
  Seconds(36);
  EXPECT_EQ(Lamp().State, LampState::Lost);
  EXPECT_EQ(Lamp().Words, "LOST 35 s");
  EngineWakes();
  Seconds(12);
  EXPECT_EQ(Lamp().Words, "");
}

TEST_F(ToldStation, TheLampReadsPausedWhileAPanelHoldsTheCycle) {
  MainWindowControls& controls = station.Controls();
  for (Frame* panel : {&controls.TxSetup.Frame4, &controls.ObjectSetup.Frame11}) {
    panel->Visible = true;
    EXPECT_EQ(Lamp().Words, "paused");
    EXPECT_EQ(Lamp().State, LampState::Paused);
    panel->Visible = false;
    EXPECT_EQ(Lamp().Words, "");
  }
  controls.Map.Option1.RightClick();
  EXPECT_EQ(Lamp().Words, "paused");
  controls.Qth.Command22.Click();
  EXPECT_EQ(Lamp().Words, "");
}

// The story of an engine that stands still for 200 seconds and wakes up.
TEST_F(ToldBeacon, NothingOfBeforeLeavesWhenAStalledEngineWakesUp) {
  PressTx();
  Seconds(70);
  const int before = FramesForTheAir();
  EXPECT_GE(before, 1);
  EngineStalls();
  Seconds(200);
  PressTx(0);
  EXPECT_EQ(FramesForTheAir(), before);
  EngineWakes();
  Seconds(300);
  EXPECT_EQ(FramesForTheAir(), before);
  EXPECT_EQ(Lamp().Words, "");
}

TEST_F(ToldBeacon, SwitchedOffWhatHasNotLeftIsDropped) {
  PressTx();
  station.socket.Unsent = 80;
  PressTx(0);
  EXPECT_EQ(station.socket.Drops, 1);
  Seconds(15);
  EXPECT_EQ(Lamp().Words, "");
}

}  // namespace
}  // namespace zepril
