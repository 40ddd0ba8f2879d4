// The words beside the gate's switch, stage by stage.
#include "gate/gate_notice.h"

#include <gtest/gtest.h>

#include "tests/doubles/fake_socket.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class GateNoticeTest : public ::testing::Test {
 protected:
  GateNoticeTest() {
    identity.MyCall = "QX7KB";
    identity.MyCallFull = "QX7KB";
    internet.AprsIsPasscode = "22513";
    internet.AprsIsServer = "igate.example";
    internet.IGateOn = Gate::On;
    radio.RadioMode = static_cast<int>(RadioMode::AgwLocal);
  }
  std::string Words() {
    notice.Renew();
    return controls.GateWords.Caption;
  }

  InternetState internet;
  IdentityState identity;
  RadioState radio;
  GateControls controls;
  FakeSocket socket;
  VirtualClock clock{{2024, 1, 15, 12, 34, 0}};
  AprsIsLink link{internet, identity, socket};
  RadioGate gate{internet, identity, link, clock};
  GateNotice notice{internet, radio, link, gate, controls, clock};
};

TEST_F(GateNoticeTest, SaysWhyThereIsNoGate) {
  internet.IGateOn = Gate::Off;
  EXPECT_EQ(Words(), "IGATE off");
  internet.AprsIsPasscode = "0";
  EXPECT_EQ(Words(), "no gate: no passcode for this call");
  radio.RadioMode = static_cast<int>(RadioMode::AgwRemote);
  EXPECT_EQ(Words(), "no gate with this radio interface");
  radio.RadioMode = static_cast<int>(RadioMode::None);
  EXPECT_EQ(Words(), "no gate with this radio interface");
  radio.RadioMode = static_cast<int>(RadioMode::Pk232);
  internet.AprsIsPasscode = "22513";
  internet.IGateOn = Gate::On;
  internet.AprsIsServer.clear();
  EXPECT_EQ(Words(), "no gate: no server is set");
}

TEST_F(GateNoticeTest, TellsHowFarTheLinkIsAndSinceWhen) {
  EXPECT_EQ(Words(), "connecting to igate.example since 12:34");
  link.IGateTick();
  clock.Wait(120);
  EXPECT_EQ(Words(), "connecting to igate.example since 12:34");
  socket.SetState(SocketState::Connected);
  EXPECT_EQ(Words(), "igate.example has not answered the login since 12:36");
  socket.Deliver("# logresp QX7KB unverified, server X\r\n");
  clock.Wait(60);
  EXPECT_EQ(Words(), "igate.example does not accept the login since 12:37");
  socket.Deliver("# logresp QX7KB verified, server X\r\n");
  link.IGateTick();
  clock.Wait(60);
  EXPECT_EQ(Words(), "connected since 12:38, nothing gated yet");
  socket.SetState(SocketState::PeerClosed);
  EXPECT_EQ(Words(), "connecting to igate.example since 12:38");
}

TEST_F(GateNoticeTest, CountsLinesAndNamesWhatStayedLast) {
  internet.IGateConnected = GateLink::Up;
  socket.SetState(SocketState::Connected);
  Words();
  clock.Wait(60);
  gate.GateMonitorBlock("1:Fm QX7AB To ZEPR <UI >[12:30:15]\r!tst\r\r", "AGW");
  EXPECT_EQ(Words(), "connected since 12:34, 1 line gated since 12:35");
  EXPECT_EQ(controls.GateWords.ToolTip, "");
  clock.Wait(60);
  gate.GateMonitorBlock("1:Fm QX7AB To ZEPR <UI >[12:30:15]\r!tst two\r\r", "AGW");
  EXPECT_EQ(Words(), "connected since 12:34, 2 lines gated since 12:35");
  gate.GateMonitorBlock("1:Fm QX7AB To ZEPR <UI >[12:30:15]\r!tst two\r\r", "AGW");
  Words();
  EXPECT_EQ(controls.GateWords.ToolTip, "last not gated 12:36: like one of the last half minute");
}

TEST(GateNotice, EveryReasonHasItsWords) {
  GateTally tally;
  EXPECT_EQ(LastNotGatedWords(tally), "");
  tally.NotGated = 1;
  tally.LastNotAt = {2024, 1, 15, 9, 5, 0};
  const struct {
    NotGated Why;
    const char* Words;
  } kRows[] = {
      {NotGated::NoFrame, "last not gated 09:05: no whole frame"},
      {NotGated::ForbiddenPath,
       "last not gated 09:05: NOGATE, RFONLY, TCPIP or TCPXX in its header"},
      {NotGated::ForwardedOrQuery, "last not gated 09:05: forwarded, or a query"},
      {NotGated::SeveralLines, "last not gated 09:05: more than one line"},
      {NotGated::Repeat, "last not gated 09:05: like one of the last half minute"},
      {NotGated::NotTaken, "last not gated 09:05: the connection was lost or takes nothing"},
  };
  for (const auto& row : kRows) {
    tally.LastWhy = row.Why;
    EXPECT_EQ(LastNotGatedWords(tally), row.Words);
  }
}

}  // namespace
}  // namespace zepril
