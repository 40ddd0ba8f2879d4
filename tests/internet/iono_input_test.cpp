// The panel of sunspot number and K index: opened, taken, refused, closed.
#include "internet/iono_input.h"

#include <gtest/gtest.h>

#include "tests/doubles/fake_pages.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/scripted_dialogs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class IonoInputTest : public ::testing::Test {
 protected:
  IonoInputTest() {
    controls.Frame18.Visible = false;
    internet.SunspotNumber = 101.5;
    internet.KpIndex = 2.0;
    internet.IonoAutoOn = 0;
  }
  void Type(const std::string& sunspots, const std::string& k) {
    map.Check9.RightClick();
    controls.Text11.Text = sunspots;
    controls.Text12.Text = k;
    controls.IonoOk.Click();
  }

  InternetState internet;
  MapViewState view;
  ServicesState services;
  IonoControls controls;
  MapControls map;
  ScriptedDialogs boxes;
  StatusControls status;
  RecordedActions actions;
  FakePages pages;
  VirtualClock clock;
  Timer timer1{6000};
  Timer timer2{3000};
  IonoUpdate update{internet, view, services, controls, status, {pages, clock, actions, actions}};
  IonoInput input{internet, view, controls, map, {boxes, actions, actions, update, timer1, timer2}};
};

TEST_F(IonoInputTest, ARightClickOnTheCirclesOpensThePanelWithTheValuesInUse) {
  view.FoptDetailed = true;
  map.Check9.RightClick();
  EXPECT_TRUE(controls.Frame18.Visible);
  EXPECT_EQ(controls.Text11.Text, "101.5");
  EXPECT_EQ(controls.Text12.Text, "2");
  EXPECT_EQ(controls.FoptDetailed.Value, 1);
  EXPECT_TRUE(controls.Text11.FocusWanted);
}

TEST_F(IonoInputTest, TypedValuesAreUsedSavedAndDrawn) {
  view.CirclesOn = true;
  Type(" 80 ", "3.7");
  EXPECT_EQ(internet.SunspotNumber, 80.0);
  EXPECT_EQ(internet.KpIndex, 3.7);
  EXPECT_FALSE(controls.Frame18.Visible);
  EXPECT_EQ(actions.CountOf("save"), 1);
  EXPECT_EQ(actions.CountOf("redraw"), 1);
}

TEST_F(IonoInputTest, WithoutCirclesNothingIsDrawn) {
  Type("80", "3");
  EXPECT_EQ(actions.CountOf("save"), 1);
  EXPECT_EQ(actions.CountOf("redraw"), 0);
}

TEST_F(IonoInputTest, EnterInAFieldTakesTheValuesAndOtherKeysDoNot) {
  map.Check9.RightClick();
  controls.Text12.Text = "5";
  controls.Text12.KeyDown({53, 0});
  EXPECT_EQ(internet.KpIndex, 2.0);
  controls.Text12.KeyDown({13, 0});
  EXPECT_EQ(internet.KpIndex, 5.0);
}

TEST_F(IonoInputTest, WhatIsNoNumberInItsRangeIsToldAndNothingIsLost) {
  const struct {
    const char* Sunspots;
    const char* K;
    const char* Told;
  } rows[] = {{"", "2", "SUNSPOT(R) must be a number from 0 to 400."},
              {"many", "2", "SUNSPOT(R) must be a number from 0 to 400."},
              {"-1", "2", "SUNSPOT(R) must be a number from 0 to 400."},
              {"401", "2", "SUNSPOT(R) must be a number from 0 to 400."},
              {"80", "9.1", "K must be a number from 0 to 9."},
              {"80", "?", "K must be a number from 0 to 9."}};
  for (const auto& row : rows) {
    boxes.Expect("ZEP RIL", row.Told, DialogAnswer::Ok);
    Type(row.Sunspots, row.K);
    EXPECT_TRUE(controls.Frame18.Visible) << row.Sunspots << " / " << row.K;
    EXPECT_EQ(controls.Text11.Text, row.Sunspots);
    EXPECT_EQ(internet.SunspotNumber, 101.5);
    EXPECT_EQ(internet.KpIndex, 2.0);
  }
  EXPECT_EQ(actions.CountOf("save"), 0);
}

TEST_F(IonoInputTest, CloseChangesNothing) {
  map.Check9.RightClick();
  controls.Text11.Text = "7";
  controls.IonoClose.Click();
  EXPECT_FALSE(controls.Frame18.Visible);
  EXPECT_EQ(internet.SunspotNumber, 101.5);
}

TEST_F(IonoInputTest, ByHandTheFieldsAreOpenAndNothingIsAsked) {
  services.IonoPageA = "http://a";
  timer1.Arm(6000);
  map.Check9.RightClick();
  EXPECT_TRUE(controls.Text11.Enabled);
  EXPECT_TRUE(controls.Text12.Enabled);
  EXPECT_EQ(status.IonoLabel.Caption, "NO AUTOMATIC UPDATE");
  EXPECT_TRUE(pages.Asked.empty());
  EXPECT_TRUE(timer1.Enabled());
}

TEST_F(IonoInputTest, WithAutomaticUpdateTheFieldsAreLockedAndTheUpdateBeginsAtOnce) {
  internet.IonoAutoOn = 1;
  services.IonoPageA = "http://a";
  timer1.Arm(6000);
  map.Check9.RightClick();
  EXPECT_TRUE(controls.Frame18.Visible);
  EXPECT_EQ(controls.Text11.Text, "101.5 (INET)");
  EXPECT_EQ(controls.Text12.Text, "2 (INET)");
  EXPECT_FALSE(controls.Text11.Enabled);
  EXPECT_FALSE(controls.Text12.Enabled);
  EXPECT_TRUE(controls.IonoOk.FocusWanted);
  EXPECT_EQ(status.IonoLabel.Caption, "UPDATING...");
  EXPECT_EQ(pages.Asked, std::vector<std::string>{"http://a"});
  EXPECT_TRUE(internet.IonoNeedSunspot);
  EXPECT_TRUE(internet.IonoNeedK);
  EXPECT_EQ(internet.LastIonoTimer, clock.SecondsSinceMidnight());
  EXPECT_FALSE(timer1.Enabled());
  EXPECT_TRUE(timer2.Enabled());
  EXPECT_EQ(timer2.IntervalMs(), 6000);
}

TEST_F(IonoInputTest, TheLockedFieldsShowWhatCame) {
  internet.IonoAutoOn = 1;
  services.IonoPageA = "http://a";
  map.Check9.RightClick();
  pages.Answer("KIEL 3-HOUR K 3 KIEL CURRENT K 4 SUNSPOT NUMBER 88");
  EXPECT_EQ(controls.Text11.Text, "88 (INET)");
  EXPECT_EQ(controls.Text12.Text, "3.5 (INET)");
  controls.IonoOk.Click();
  EXPECT_FALSE(controls.Frame18.Visible);
  EXPECT_EQ(internet.SunspotNumber, 88.0);
  EXPECT_EQ(actions.CountOf("save"), 1);
}

TEST_F(IonoInputTest, WithoutAnAddressTheFieldsStayOpenAndThePanelSaysWhy) {
  internet.IonoAutoOn = 1;
  timer1.Arm(6000);
  map.Check9.RightClick();
  EXPECT_EQ(controls.Text11.Text, "101.5");
  EXPECT_TRUE(controls.Text11.Enabled);
  EXPECT_EQ(status.IonoLabel.Caption, "OFF: NO ADDRESS IN SERVICES.TXT");
  EXPECT_TRUE(timer1.Enabled());
  controls.Text11.Text = "80";
  controls.IonoOk.Click();
  EXPECT_EQ(internet.SunspotNumber, 80.0);
}

TEST_F(IonoInputTest, TheSwitchForThreeValuesActsAtOnce) {
  view.CirclesOn = true;
  map.Check9.RightClick();
  controls.FoptDetailed.Value = 1;
  controls.FoptDetailed.Click();
  EXPECT_TRUE(view.FoptDetailed);
  EXPECT_EQ(actions.CountOf("redraw"), 1);
}

}  // namespace
}  // namespace zepril
