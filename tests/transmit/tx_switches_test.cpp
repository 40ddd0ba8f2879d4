// The TX and OBJECT TX switches and what goes with them.
#include "core/state_colours.h"
#include "transmit/tx_switches.h"

#include "tests/transmit/transmit_world.h"

namespace zepril {
namespace {

class TxSwitchesTest : public ::testing::Test {
 protected:
  TransmitControls& Transmit() { return world.Controls.Transmit; }
  ChatControls& Chat() { return world.Controls.Chat; }
  void ClickTx(int value) {
    Transmit().Check6.Value = value;
    Transmit().Check6.Click();
  }
  void ClickObject(int value) {
    Transmit().Check18.Value = value;
    Transmit().Check18.Click();
  }
  TransmitWorld world;
};

TEST_F(TxSwitchesTest, TheCaptionNamesTheInterval) {
  world.Switches.ShowInterval();
  EXPECT_EQ(Transmit().Check6.Caption, "TX 10");
  world.State.Transmission.TxIntervalMinutes = 0;
  Transmit().Check6.Value = 1;
  world.Switches.ShowInterval();
  EXPECT_EQ(Transmit().Check6.Caption, "TX !");
  EXPECT_EQ(Transmit().Check6.Value, 0);
}

TEST_F(TxSwitchesTest, WithoutAnIntervalAClickSendsOneReportAtOnce) {
  world.State.Transmission.TxIntervalMinutes = 0;
  ClickTx(1);
  EXPECT_EQ(world.Engine.Sent.size(), 1U);
  EXPECT_EQ(Transmit().Check6.Value, 0);
  EXPECT_FALSE(world.Controls.Record.Command10.Enabled);
  EXPECT_FALSE(world.Controls.Record.Command41.Enabled);
}

TEST_F(TxSwitchesTest, SwitchedOnTheFirstReportIsDueAtOnce) {
  world.State.Transmission.LastBeaconTime = 12345;
  ClickTx(1);
  EXPECT_TRUE(world.Engine.Sent.empty());
  EXPECT_EQ(world.State.Transmission.LastBeaconTime, 0);
  EXPECT_TRUE(world.Controls.Record.Command10.Enabled);
  EXPECT_TRUE(world.Controls.Record.Command41.Enabled);
  EXPECT_FALSE(Transmit().Check18.BackColour.has_value());
  EXPECT_EQ(world.State.Chat.AutoAnswerOn, 0);
}

TEST_F(TxSwitchesTest, ItTellsWheneverTxGoesOff) {
  int told = 0;
  world.Switches.TurnedOff = [&told] { ++told; };
  ClickTx(1);
  EXPECT_EQ(told, 0);
  ClickTx(0);
  EXPECT_EQ(told, 1);
  ClickTx(1);
  world.State.Transmission.TxIntervalMinutes = 0;
  world.Switches.ShowInterval();
  EXPECT_EQ(told, 2);
  // One report by hand is no switching off: it must still leave.
  ClickTx(1);
  EXPECT_EQ(told, 2);
  world.State.Transmission.TxIntervalMinutes = 10;
  ClickTx(1);
  world.State.Map.OwnNorthKm = world.State.Map.OwnEastKm = 0.0;
  world.Switches.ShowInterval();
  EXPECT_EQ(told, 3);
}

TEST_F(TxSwitchesTest, AMovingStationAnswersByItself) {
  world.State.Gps.GpsFixValidBefore = 1;
  ClickTx(1);
  EXPECT_EQ(world.State.Chat.AutoAnswerOn, 1);
  EXPECT_EQ(Chat().Check16.Value, 1);
}

TEST_F(TxSwitchesTest, AFixIsEnoughForItAndAnAnswerThatIsOnStaysSo) {
  world.State.Gps.GpsFixValid = 1;
  ClickTx(1);
  EXPECT_EQ(world.State.Chat.AutoAnswerOn, 1);
  ClickTx(0);
  Chat().Check16.Value = 0;
  ClickTx(1);
  EXPECT_EQ(Chat().Check16.Value, 0);
}

TEST_F(TxSwitchesTest, SwitchedOffEverythingGoesOffWithIt) {
  ClickTx(1);
  world.State.Transmission.ObjectName = "ABC      ";
  ClickObject(1);
  Chat().Check7.Value = 1;
  Chat().Frame3.Visible = true;
  const int redraws = world.Actions.CountOf("redraw");
  ClickTx(0);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  EXPECT_EQ(world.State.Transmission.ObjectTxOn, 0);
  EXPECT_EQ(Chat().Check7.Value, 0);
  EXPECT_FALSE(Chat().Frame3.Visible);
  EXPECT_FALSE(world.Controls.Record.Command10.Enabled);
  EXPECT_EQ(Transmit().Check18.BackColour, state_colours::kOwnObjectDimmed);
  EXPECT_EQ(world.Actions.CountOf("redraw"), redraws + 1);
}

TEST_F(TxSwitchesTest, WithTheSwitchTheObjectGoesOffWhenThePositionIsLost) {
  world.State.Transmission.ObjectName = "ABC      ";
  ClickTx(1);
  ClickObject(1);
  world.State.Map.OwnNorthKm = 0.0;
  world.State.Map.OwnEastKm = 0.0;
  world.Switches.ShowInterval();
  EXPECT_EQ(Transmit().Check6.Value, 0);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  EXPECT_EQ(world.State.Transmission.ObjectTxOn, 0);
  EXPECT_EQ(Transmit().Check6.Caption, "TX 10");
}

TEST_F(TxSwitchesTest, TheObjectIsSeenDimmedUntilTxIsOn) {
  EXPECT_EQ(Transmit().Check18.BackColour, 28784U);
}

TEST_F(TxSwitchesTest, WithoutAPositionTheSwitchesAreHeldOff) {
  world.State.Map.OwnNorthKm = 0.0;
  world.State.Map.OwnEastKm = 0.0;
  ClickTx(1);
  EXPECT_EQ(Transmit().Check6.Value, 0);
  Chat().Check7.Value = 1;
  world.Switches.ShowInterval();
  EXPECT_EQ(Chat().Check7.Value, 0);
  EXPECT_FALSE(Chat().Check7.Enabled);
}

TEST_F(TxSwitchesTest, WithoutAPositionAPressAsksForIt) {
  int asked = 0;
  world.Switches.PositionMissing = [&] { ++asked; };
  CheckBox& tx = world.Controls.Transmit.Check6;
  tx.Value = 1;
  tx.Click();
  EXPECT_EQ(asked, 0);
  world.State.Map.OwnNorthKm = 0.0;
  world.State.Map.OwnEastKm = 0.0;
  tx.Value = 1;
  tx.Click();
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(tx.Value, 0);
  // By hand too.
  world.State.Transmission.TxIntervalMinutes = 0;
  tx.Value = 1;
  tx.Click();
  EXPECT_EQ(asked, 2);
}

TEST_F(TxSwitchesTest, TheObjectGoesOnTheAirOnlyWithTxAndAName) {
  world.State.Transmission.ObjectName = "ABC      ";
  ClickObject(1);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  ClickTx(1);
  world.State.Transmission.ObjectName = "";
  ClickObject(1);
  EXPECT_EQ(Transmit().Check18.Value, 0);
  world.State.Transmission.ObjectName = "ABC      ";
  world.State.Transmission.LastObjectTime = 12345;
  ClickObject(1);
  EXPECT_EQ(Transmit().Check18.Value, 1);
  EXPECT_EQ(world.State.Transmission.ObjectTxOn, 1);
  EXPECT_EQ(world.State.Transmission.LastObjectTime, 0);
  // The map shows whether it is on the air.
  EXPECT_EQ(world.Actions.CountOf("redraw"), 1);
  ClickObject(0);
  EXPECT_EQ(world.State.Transmission.ObjectTxOn, 0);
  EXPECT_EQ(world.Actions.CountOf("redraw"), 2);
}

}  // namespace
}  // namespace zepril
