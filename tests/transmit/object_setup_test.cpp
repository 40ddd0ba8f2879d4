// OBJECT SETUP: fields, the centre, symbols, delete, cancel.
#include "transmit/object_setup.h"

#include "tests/transmit/transmit_world.h"

namespace zepril {
namespace {

class ObjectSetupTest : public ::testing::Test {
 protected:
  ObjectSetupTest() {
    world.State.Map.CentreNorthKm = 5378.123;
    world.State.Map.CentreEastKm = 412.345;
    world.State.Transmission.ObjectSymbol = 82;
  }
  ObjectSetupControls& Panel() { return world.Controls.ObjectSetup; }
  TransmissionState& Own() { return world.State.Transmission; }
  void Open() { world.Controls.Transmit.Check18.RightClick(); }

  TransmitWorld world;
  SymbolPreview preview{world.Cell, world.Controls.ObjectSetup.ObjectSymbolPicture, world.Sheets,
                        world.Symbols};
  ObjectSetup setup{world.State.Transmission,
                    world.State.Map,
                    world.Controls.ObjectSetup,
                    world.Controls.Map,
                    world.Controls.Transmit,
                    {world.Actions, world.Actions, world.Symbols, preview, world.Switches,
                     world.Timer1, world.Timer2}};
};

TEST_F(ObjectSetupTest, ItOpensWithTheTimersStopped) {
  world.Timer1.Arm(6000);
  world.Timer2.Arm(3000);
  Open();
  EXPECT_TRUE(Panel().Frame11.Visible);
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_FALSE(world.Timer2.Enabled());
  EXPECT_TRUE(Panel().ObjectNameField.FocusWanted);
  EXPECT_EQ(Panel().SymbolIndex, 82);
  // With no object there is nothing to go to.
  EXPECT_FALSE(world.State.Map.ObjectCenterPending);
  EXPECT_EQ(world.Actions.CountOf("redraw"), 0);
}

TEST_F(ObjectSetupTest, ASecondRightClickLeavesWhatWasTyped) {
  Own().ObjectText = "old";
  Open();
  Panel().ObjectTextField.Text = "new";
  Open();
  EXPECT_EQ(Panel().ObjectTextField.Text, "new");
}

TEST_F(ObjectSetupTest, TheMapGoesToAnObjectThatIsThere) {
  Own().ObjectName = "ABC      ";
  world.State.Map.CentreFollow = Following::OwnPosition;
  world.Controls.Map.Option1.Value = true;
  world.Controls.Map.Option2.Value = true;
  Open();
  EXPECT_TRUE(world.State.Map.ObjectCenterPending);
  EXPECT_EQ(world.State.Map.CentreFollow, Following::Nobody);
  EXPECT_FALSE(world.Controls.Map.Option1.Value);
  EXPECT_FALSE(world.Controls.Map.Option2.Value);
  EXPECT_EQ(world.Actions.CountOf("redraw"), 1);
  EXPECT_EQ(Panel().ObjectNameField.Text, "ABC");
}

TEST_F(ObjectSetupTest, OkTakesFieldsAndTheMapsCentre) {
  Open();
  Panel().ObjectNameField.Text = " abc ";
  Panel().ObjectTextField.Text = " Test ";
  Panel().ObjectOverlayField.Text = "x7";
  Panel().ObjectSymbolUp.Click();
  Own().LastObjectTime = 12345;
  Panel().ObjectOk.Click();
  EXPECT_EQ(Own().ObjectName, "ABC      ");
  EXPECT_EQ(Own().ObjectText, "Test");
  EXPECT_EQ(Own().ObjectOverlay, "7");
  EXPECT_EQ(Own().ObjectSymbol, 83);
  EXPECT_EQ(Own().ObjectNorth, 5378.123);
  EXPECT_EQ(Own().ObjectEast, 412.345);
  // It is not on the air: its rhythm is left alone.
  EXPECT_EQ(Own().LastObjectTime, 12345);
  EXPECT_EQ(world.Actions.CountOf("save"), 1);
  EXPECT_EQ(world.Actions.CountOf("redraw"), 1);
  EXPECT_FALSE(Panel().Frame11.Visible);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(ObjectSetupTest, ALongNameIsNotCut) {
  Open();
  Panel().ObjectNameField.Text = "longnamexyz";
  Panel().ObjectOk.Click();
  EXPECT_EQ(Own().ObjectName, "LONGNAMEXYZ");
}

TEST_F(ObjectSetupTest, AnObjectOnTheAirIsSentAgainAtOnce) {
  Own().ObjectName = "ABC      ";
  Own().ObjectTxOn = 1;
  Own().LastObjectTime = 12345;
  Open();
  Panel().ObjectOk.Click();
  EXPECT_EQ(Own().LastObjectTime, 0);
}

TEST_F(ObjectSetupTest, AnObjectWithoutANameGoesOffTheAir) {
  Own().ObjectName = "ABC      ";
  Own().ObjectTxOn = 1;
  world.Controls.Transmit.Check18.Value = 1;
  Open();
  Panel().ObjectNameField.Text = "  ";
  Panel().ObjectOk.Click();
  EXPECT_EQ(Own().ObjectName, "");
  EXPECT_EQ(Own().ObjectTxOn, 0);
  EXPECT_EQ(world.Controls.Transmit.Check18.Value, 0);
}

TEST_F(ObjectSetupTest, DeletingSendsNothing) {
  Own().ObjectName = "ABC      ";
  Own().ObjectTxOn = 1;
  world.Controls.Transmit.Check18.Value = 1;
  Open();
  Panel().ObjectTextField.Text = "gone";
  Own().LastObjectTime = 12345;
  const int redraws = world.Actions.CountOf("redraw");
  Panel().Command31.Click();
  EXPECT_EQ(Own().ObjectName, "");
  EXPECT_EQ(Own().ObjectTxOn, 0);
  EXPECT_EQ(world.Controls.Transmit.Check18.Value, 0);
  EXPECT_EQ(Own().ObjectText, "gone");
  EXPECT_EQ(Own().ObjectNorth, 5378.123);
  EXPECT_TRUE(world.Engine.Sent.empty());
  EXPECT_EQ(Own().LastObjectTime, 12345);
  EXPECT_EQ(world.Actions.CountOf("save"), 1);
  EXPECT_EQ(world.Actions.CountOf("redraw"), redraws + 1);
  EXPECT_FALSE(Panel().Frame11.Visible);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST_F(ObjectSetupTest, CancelLeavesTheObject) {
  Own().ObjectName = "ABC      ";
  Own().ObjectText = "old";
  Own().ObjectOverlay = "5";
  Own().ObjectNorth = 1.0;
  Open();
  EXPECT_EQ(Panel().ObjectOverlayField.Text, "5");
  Panel().ObjectNameField.Text = "OTHER";
  Panel().ObjectTextField.Text = "new";
  Panel().ObjectOverlayField.Text = "6";
  Panel().ObjectSymbolUp.Click();
  Panel().Command32.Click();
  EXPECT_EQ(Own().ObjectName, "ABC      ");
  EXPECT_EQ(Own().ObjectText, "old");
  EXPECT_EQ(Own().ObjectNorth, 1.0);
  EXPECT_EQ(Panel().ObjectNameField.Text, "ABC");
  EXPECT_EQ(Panel().ObjectTextField.Text, "old");
  EXPECT_EQ(Panel().ObjectOverlayField.Text, "5");
  EXPECT_EQ(Panel().SymbolIndex, 82);
  EXPECT_FALSE(Panel().Frame11.Visible);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.Actions.CountOf("save"), 0);
}

TEST_F(ObjectSetupTest, TheOverlayIsSeenWhileItIsTyped) {
  Own().ObjectSymbol = 103;  // "\\#" takes one
  Open();
  EXPECT_EQ(world.Cell.Operations.back().Kind, "clear");  // there is no sheet in this world
  Panel().ObjectOverlayField.Text = "x7";
  Panel().ObjectOverlayField.Change();
  EXPECT_EQ(world.Cell.Operations.back().Words, "7");
}

TEST_F(ObjectSetupTest, TheSymbolPickerLeapsOverTheGap) {
  Own().ObjectSymbol = 94;
  Open();
  Panel().ObjectSymbolUp.Click();
  EXPECT_EQ(Panel().SymbolIndex, 101);
  EXPECT_EQ(Panel().ObjectSymbolName.Caption, world.Symbols.Name(101));
  Panel().ObjectSymbolDown.Click();
  EXPECT_EQ(Panel().SymbolIndex, 94);
}

}  // namespace
}  // namespace zepril
