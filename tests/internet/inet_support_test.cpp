// When pages are asked for, what is shown meanwhile, what is told of it, and pages that come late,
// for somebody else, broken or not at all.
#include "internet/inet_support.h"

#include <gtest/gtest.h>

#include "tests/internet/internet_world.h"

namespace zepril {
namespace {

class InetSupportTest : public ::testing::Test {
 protected:
  InetSupport& Support() { return world.Net.Support; }
  // The page of a fetch that was begun, one line of the followed station.
  static std::string OneLine() { return "\n" + InternetWorld::Line("2024-05-14 12:30:00"); }
  static std::string OneStation() {
    return InternetWorld::Area(InternetWorld::Station("QX7AA", "2024-05-14 12:30:00", "52.5041"));
  }
  // The watchdog as the main cycle has it.
  void Timer2Fires() {
    world.Timer2.Stop();
    world.Timer1.Enable();
    world.Controls.Moni1.Check22.Value = 0;
    world.Controls.Status.Text10.Visible = false;
    world.Controls.Window.Pointer = PointerShape::Default;
    world.Controls.Map.Picture1.Pointer = PointerShape::Default;
  }
  void SelectCgi() { world.Controls.Moni1.Check22.RightClick(); }

  InternetWorld world;
  CheckBox& moni1 = world.Controls.Moni1.Check22;
  CheckBox& area = world.Controls.MoniAll.Check23;
  Label& banner = world.Controls.Status.Text10;
};

// ---- Switches -------------------------------------------------------------------------------

TEST_F(InetSupportTest, TheSwitchTellsItsSourceAndARightClickTakesTheOther) {
  EXPECT_EQ(moni1.Caption, "i  1");
  moni1.RightClick();
  EXPECT_EQ(moni1.Caption, "i  2");
  EXPECT_EQ(world.Internet.InetSource, InternetSource::CgiService);
  moni1.RightClick();
  EXPECT_EQ(moni1.Caption, "i  1");
}

TEST_F(InetSupportTest, EachOperationOfASwitchStartsTheQuarterOfAnHour) {
  const double now = world.Time.SecondsSinceMidnight();
  world.SwitchOn();
  EXPECT_EQ(world.Internet.InetSwitchTime, now);
  world.Internet.InetSwitchTime = 0.0;
  world.SwitchAreaOn();
  EXPECT_EQ(world.Internet.InetSwitchTime, now);
  world.Internet.InetSwitchTime = 0.0;
  moni1.RightClick();
  EXPECT_EQ(world.Internet.InetSwitchTime, now);
}

TEST_F(InetSupportTest, WithoutAnAddressASwitchStaysOffAndSaysSo) {
  world.Services = {};
  world.SwitchOn();
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_EQ(world.Words(), "MONI 1: off, no APRSRESTSERVICE in SERVICES.TXT");
  world.SwitchAreaOn();
  EXPECT_EQ(area.Value, 0);
  EXPECT_EQ(world.AreaWords(), "AREA: off, no APRSRESTSERVICE in SERVICES.TXT");
  SelectCgi();
  world.SwitchOn();
  EXPECT_EQ(world.Words(), "MONI 1: off, no APRSCGISERVICE in SERVICES.TXT");
}

TEST_F(InetSupportTest, ChangingToASourceWithoutAnAddressSwitchesOff) {
  world.Services.AprsCgiService.clear();
  world.SwitchOn();
  world.FetchMoni1();
  SelectCgi();
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Pages.Abandoned, 1);
}

TEST_F(InetSupportTest, SwitchedOnItWaitsForItsMinute) {
  EXPECT_EQ(world.Words(), "MONI 1: off");
  world.Internet.LastMoni1InternetMinute = 1235;
  world.SwitchOn();
  EXPECT_EQ(world.Words(), "MONI 1: waits for 12:36");
  world.Internet.LastMoniAllInternetMinute = 1235;
  world.SwitchAreaOn();
  EXPECT_EQ(world.AreaWords(), "AREA: waits for 12:36");
  world.Internet.LastMoniAllInternetMinute = 1236;
  world.Time.SetNow({2024, 5, 14, 12, 57, 0});
  world.Internet.LastMoniAllInternetMinute = 1257;
  Support().Renew();
  EXPECT_EQ(world.AreaWords(), "AREA: waits for 13:00");
}

TEST_F(InetSupportTest, TheTimeLimitIsTold) {
  world.SwitchOn();
  world.SwitchAreaOn();
  world.Time.SetNow({2024, 5, 14, 12, 50, 1});
  moni1.Value = area.Value = 0;  // as the tick does
  Support().Renew();
  EXPECT_EQ(world.Words(), "MONI 1: off after 15 min");
  EXPECT_EQ(world.AreaWords(), "AREA: off after 15 min");
}

TEST_F(InetSupportTest, SwitchedOffByHandItIsOff) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(OneLine());
  world.Click(moni1, 0);
  EXPECT_EQ(world.Words(), "MONI 1: off");
}

// ---- Asking ---------------------------------------------------------------------------------

TEST_F(InetSupportTest, AnEmptyHistoryIsAskedForThreeDays) {
  world.SwitchOn();
  world.FetchMoni1();
  ASSERT_EQ(world.Pages.Asked.size(), 1U);
  EXPECT_EQ(world.Pages.Asked[0], "http://rest.example/aprs/raw?callsign=QX7GW&seconds=259200");
  EXPECT_EQ(world.Internet.WebRequestUrl, world.Pages.Asked[0]);
  EXPECT_EQ(world.Internet.LastMoni1InternetMinute, 1235);
  EXPECT_EQ(world.Words(), "MONI 1: asking since 12:35");
}

TEST_F(InetSupportTest, TheNewestRecordTellsHowFarBackIsAsked) {
  world.Stores.Moni1Records.Append(RecordOf("QX7GW", "240514 0735"));
  world.SwitchOn();
  SelectCgi();
  world.FetchMoni1();
  EXPECT_EQ(world.Pages.Asked.at(0),
            "http://cgi.example/cgi-bin/raw.cgi?call=QX7GW&start=6&time=1");
}

TEST_F(InetSupportTest, WhileAPageIsUnderWayTheCycleRests) {
  world.SwitchOn();
  world.FetchMoni1();
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_TRUE(world.Timer2.Enabled());
  EXPECT_EQ(world.Timer2.IntervalMs(), 60000);
  EXPECT_TRUE(banner.Visible);
  EXPECT_EQ(banner.BackColour, 0xC0C0U);
}

TEST_F(InetSupportTest, TriesAreCountedToThree) {
  world.SwitchOn();
  for (int tries : {1, 2, 3, 3}) {
    world.FetchMoni1();
    world.Pages.Answer("");
    EXPECT_EQ(world.Internet.InetTries, tries);
  }
  world.SwitchOn();
  EXPECT_EQ(world.Internet.InetTries, 0);
}

TEST_F(InetSupportTest, TheAreaIsAskedForAroundTheMapCentre) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  ASSERT_EQ(world.Pages.Asked.size(), 1U);
  EXPECT_TRUE(world.Pages.Asked[0].starts_with("http://rest.example/aprs/area?lat=52.3"))
      << world.Pages.Asked[0];
  EXPECT_NE(world.Pages.Asked[0].find("&lon=13.5"), std::string::npos);
  EXPECT_TRUE(world.Pages.Asked[0].ends_with("&distance=100000&seconds=3600"));
  EXPECT_EQ(world.Internet.LastMoniAllInternetMinute, 1235);
  EXPECT_EQ(world.AreaWords(), "AREA: asking since 12:35");
}

TEST_F(InetSupportTest, WhatIsStillAwaitedIsNotAskedForTwice) {
  world.SwitchOn();
  world.FetchMoni1();
  world.FetchMoni1();
  world.Pages.Answer(OneLine());
  EXPECT_EQ(world.Pages.Asked.size(), 1U);
}

TEST_F(InetSupportTest, SwitchedOffWhileTheWindowHadControlNothingIsAsked) {
  world.FetchMoni1();
  world.FetchMoniAll();
  EXPECT_TRUE(world.Pages.Asked.empty());
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(InetSupportTest, WithoutAStationNothingIsAsked) {
  world.Followed.Moni1Call = " ";
  world.SwitchOn();
  world.FetchMoni1();
  EXPECT_TRUE(world.Pages.Asked.empty());
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Words(), "MONI 1: no station is followed");
}

TEST_F(InetSupportTest, WhereTooManyPagesWaitItSaysSo) {
  for (std::size_t count = 0; count <= PageFetcher::kMostWaiting; ++count)
    world.Pages.Fetch("http://x", {});
  world.SwitchOn();
  world.FetchMoni1();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 too many pages wait");
}

// ---- Answers --------------------------------------------------------------------------------

TEST_F(InetSupportTest, LinesAreStoredAndTheCycleGoesOn) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(OneLine());
  EXPECT_EQ(world.HistoryCount(), 1);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(banner.BackColour, 49152U);
  EXPECT_EQ(world.Internet.InetRawText, "");
  EXPECT_EQ(world.Actions.Redraws, 1);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 1 lines, 1 new");
}

TEST_F(InetSupportTest, TheOtherServiceStoresThemToo) {
  world.SwitchOn();
  SelectCgi();
  world.FetchMoni1();
  EXPECT_EQ(banner.BackColour, std::nullopt) << "as the tick has set it";
  world.Pages.Answer(
      "<html><body><pre>RAW DATA: QX7GW for 72 hours\r\n"
      "20240514123000,QX7GW&gt;APRS,WIDE1-1*,qAR,QX7AB:!4830.15N/00805.20E&gt;Test\r\n"
      "</pre></body></html>");
  EXPECT_EQ(world.HistoryCount(), 1);
  EXPECT_EQ(world.NewestOfHistory().HeardViaField(), "qx7ab");
}

TEST_F(InetSupportTest, APageIsReadAsThatOfTheSourceThatWasAsked) {
  world.SwitchOn();
  world.FetchMoni1();
  SelectCgi();
  world.Pages.Answer(OneLine());
  EXPECT_EQ(world.HistoryCount(), 1);
}

TEST_F(InetSupportTest, NoDataChangesNothing) {
  world.SwitchOn();
  SelectCgi();
  world.FetchMoni1();
  world.Pages.Answer("No data found for QX7GW");
  EXPECT_TRUE(world.Internet.InetNoData);
  EXPECT_EQ(world.Heard(), 0);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(moni1.Value, 1);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 no data");
  world.FetchMoni1();
  world.Pages.Answer("RAW DATA: QX7GW\r\n20240514123000,QX7GW>APRS:!4830.15N/00805.20E>Test\r\n");
  EXPECT_FALSE(world.Internet.InetNoData);
}

TEST_F(InetSupportTest, APacketThatSpeaksOfNoDataIsOne) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer("\n" +
                     InternetWorld::Line("2024-05-14 12:29:00", "QX7GW", ">no data found for you") +
                     InternetWorld::Line("2024-05-14 12:30:00"));
  EXPECT_FALSE(world.Internet.InetNoData);
  EXPECT_EQ(world.HistoryCount(), 1);
}

TEST_F(InetSupportTest, PagesOfAnotherFormAreIgnored) {
  world.SwitchOn();
  for (const std::string& page :
       {std::string("[]"), std::string(5000, 'x'), std::string(5000, '\0'),
        std::string("<html><body>Welcome to the hotel's network</body></html>"), OneStation()}) {
    world.FetchMoni1();
    world.Pages.Answer(page);
    EXPECT_EQ(world.Heard(), 0);
    EXPECT_TRUE(world.IsAtRest());
    EXPECT_EQ(moni1.Value, 1);
    EXPECT_EQ(world.Words(), "MONI 1: 12:35 answer not understood");
  }
}

TEST_F(InetSupportTest, ARefusalAndTooLargeAPageAreTold) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(OneLine(), 503);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 refused (503)");
  EXPECT_EQ(world.Heard(), 0);
  EXPECT_TRUE(world.IsAtRest());
  world.FetchMoni1();
  world.Pages.Fail(PageOutcome::TooLarge);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 answer too large");
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(InetSupportTest, StationsOfTheAreaAreStoredAfterAPause) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  const double before = world.Time.MonotonicSeconds();
  world.Pages.Answer(OneStation());
  EXPECT_DOUBLE_EQ(world.Time.MonotonicSeconds() - before, 1.0);
  EXPECT_EQ(world.Heard(), 1);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Actions.Redraws, 1);
  EXPECT_EQ(world.AreaWords(), "AREA: 12:35 1 stations, 1 new");
}

TEST_F(InetSupportTest, AnAreaReplyOfAHundredCharactersIsNotDecoded) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Pages.Answer("[" + std::string(99, ' '));
  EXPECT_EQ(world.AreaWords(), "AREA: 12:35 no data");
  EXPECT_EQ(world.Actions.Redraws, 0);
  world.FetchMoniAll();
  world.Pages.Answer("[" + std::string(100, ' '));
  EXPECT_EQ(world.AreaWords(), "AREA: 12:35 0 stations, 0 new");
}

TEST_F(InetSupportTest, TheMinuteOfTheAreaIsThatOfItsAnswer) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Time.SetNow({2024, 5, 14, 12, 36, 10});
  world.Pages.Answer(OneStation());
  EXPECT_EQ(world.Internet.LastMoniAllInternetMinute, 1236);
}

TEST_F(InetSupportTest, AnEmergencyIsShown) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(
      "\n" + InternetWorld::Line("2024-05-14 12:30:00", "QX7GW", "!4830.15N\\00805.20E!help"));
  EXPECT_EQ(world.Actions.Emergencies, 1);
}

TEST_F(InetSupportTest, MessagesAreHandedOnWithTheWordThatTheyCameByTheNet) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer("\n" + InternetWorld::Line("2024-05-14 12:30:00", "QX7GW",
                                                ":QX7KB    :Hello from the net{07"));
  ASSERT_EQ(world.Actions.Messages.size(), 1U);
  EXPECT_TRUE(world.Actions.Messages[0].OverInternet);
  EXPECT_EQ(world.Actions.Messages[0].From, "QX7GW");
  EXPECT_EQ(world.Actions.Messages[0].AgeSeconds, 300);
  EXPECT_EQ(world.Actions.PassesBegun, 1);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 1 lines, 0 new");
}

TEST_F(InetSupportTest, TheBannerOfAMessageThatIsBeingSentStays) {
  world.SwitchOn();
  world.FetchMoni1();
  banner.Caption = "SENDING CHAT MESSAGE VIA INTERNET...";
  world.Pages.Answer(OneLine());
  EXPECT_TRUE(banner.Visible);
  EXPECT_EQ(world.HistoryCount(), 1);
}

// ---- Pages that do not come, or come too late -----------------------------------------------

TEST_F(InetSupportTest, AServiceThatCannotBeReachedEndsInTwoSeconds) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Fail();
  EXPECT_TRUE(banner.Visible);
  EXPECT_EQ(world.Timer2.IntervalMs(), 2000);
  Timer2Fires();
  Support().SecondPassed();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 no answer");
}

TEST_F(InetSupportTest, AFailedFetchEndsAlsoWhenTheWatchdogWasStopped) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Fail();
  world.Timer2.Stop();  // as a panel does
  world.Time.Run(1.0);
  Support().SecondPassed();
  EXPECT_TRUE(banner.Visible);
  world.Time.Run(1.0);
  Support().SecondPassed();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 no answer");
}

TEST_F(InetSupportTest, AFailedFetchEndsUnderAPanelWithoutTheCycle) {
  bool held = false;
  Support().CycleIsHeld = [&held] { return held; };
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Fail();
  world.Timer2.Stop();
  held = true;
  world.Time.Run(2.0);
  Support().SecondPassed();
  EXPECT_FALSE(banner.Visible);
  EXPECT_FALSE(world.Timer1.Enabled());
}

TEST_F(InetSupportTest, AFailedFetchDoesNotEndTheNextOne) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Fail();
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Time.Run(2.0);
  Support().SecondPassed();
  EXPECT_TRUE(banner.Visible);
  EXPECT_EQ(moni1.Value, 1);
}

TEST_F(InetSupportTest, AnAreaServiceThatCannotBeReachedIsAskedAgainLater) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Pages.Fail();
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(area.Value, 1);
  EXPECT_EQ(world.AreaWords(), "AREA: 12:35 no answer");
}

TEST_F(InetSupportTest, WhoIsSilentForAMinuteIsGivenUp) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Time.Run(59.0);
  Support().SecondPassed();
  EXPECT_EQ(moni1.Value, 1);
  EXPECT_EQ(world.Pages.Abandoned, 0);
  world.Time.Run(1.0);
  Support().SecondPassed();
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_EQ(world.Pages.Abandoned, 1);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.Words(), "MONI 1: 12:36 no answer");
}

TEST_F(InetSupportTest, ASilentAreaServiceIsGivenUpAndStaysOn) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Time.Run(60.0);
  Support().SecondPassed();
  EXPECT_EQ(area.Value, 1);
  EXPECT_EQ(world.Pages.Abandoned, 1);
  EXPECT_TRUE(world.IsAtRest());
  EXPECT_EQ(world.AreaWords(), "AREA: 12:36 no answer");
}

TEST_F(InetSupportTest, PatienceBeginsWithTheTurnOfThePage) {
  const std::int64_t other = world.Pages.Fetch("http://other", {});
  world.SwitchOn();
  world.SwitchAreaOn();
  world.FetchMoni1();
  world.FetchMoniAll();
  for (int second = 0; second < 90; ++second) {
    world.Time.Run(1.0);
    Support().SecondPassed();
  }
  EXPECT_EQ(world.Words(), "MONI 1: asking since 12:35");
  EXPECT_EQ(world.AreaWords(), "AREA: asking since 12:35");
  world.Pages.Drop(other);
  world.Time.Run(59.0);
  Support().SecondPassed();
  EXPECT_EQ(moni1.Value, 1);
  world.Time.Run(1.0);
  Support().SecondPassed();
  EXPECT_EQ(moni1.Value, 0);
  EXPECT_EQ(world.AreaWords(), "AREA: asking since 12:35") << "its turn has just come";
}

TEST_F(InetSupportTest, TheWatchdogIsThatOfTheFollowedStationAlone) {
  world.SwitchAreaOn();
  world.FetchMoniAll();
  EXPECT_FALSE(world.Timer2.Enabled() && world.Timer2.IntervalMs() == 60000);
  world.Pages.Answer(OneStation());
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(OneLine());
  EXPECT_FALSE(world.Timer2.Enabled()) << "or it fires while the area is awaited";
}

TEST_F(InetSupportTest, APageBehindTheWatchdogIsPassedOverWhole) {
  world.SwitchOn();
  world.FetchMoni1();
  Timer2Fires();
  world.Pages.Answer(OneLine());
  EXPECT_EQ(world.Heard(), 0);
  EXPECT_EQ(world.HistoryCount(), 0);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 answer passed over");
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(InetSupportTest, BehindTheWatchdogNothingIsAwaited) {
  world.SwitchOn();
  world.FetchMoni1();
  Timer2Fires();
  Support().SecondPassed();
  EXPECT_EQ(world.Pages.Abandoned, 1);
  EXPECT_EQ(world.Words(), "MONI 1: 12:35 no answer");
}

TEST_F(InetSupportTest, SwitchedOffThePageIsDropped) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Click(moni1, 0);
  EXPECT_EQ(world.Pages.Abandoned, 1);
  EXPECT_TRUE(world.IsAtRest());
  world.SwitchAreaOn();
  world.FetchMoniAll();
  world.Click(area, 0);
  EXPECT_EQ(world.Pages.Abandoned, 2);
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(InetSupportTest, APageOfAStationThatIsLeftIsPassedOver) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Room.Choice.Follow("N0CALL");
  world.Pages.Answer(OneLine() + InternetWorld::Line("2024-05-14 12:31:00", "N0CALL"));
  EXPECT_EQ(world.HistoryCount(), 0);
  EXPECT_EQ(world.Heard(), 0);
  EXPECT_TRUE(world.IsAtRest());
}

TEST_F(InetSupportTest, AStationChosenMeanwhileIsAskedForAnew) {
  world.SwitchOn();
  world.FetchMoni1();
  world.Room.Choice.Follow("N0CALL");
  world.FetchMoni1();
  EXPECT_EQ(world.Pages.Abandoned, 1);
  ASSERT_EQ(world.Pages.Asked.size(), 2U);
  EXPECT_NE(world.Pages.Asked[1].find("callsign=N0CALL&"), std::string::npos);
}

TEST_F(InetSupportTest, UnderAPanelThatHoldsTheCycleNothingIsAskedOrTaken) {
  bool held = true;
  Support().CycleIsHeld = [&held] { return held; };
  world.SwitchOn();
  world.SwitchAreaOn();
  world.FetchMoni1();
  world.FetchMoniAll();
  EXPECT_TRUE(world.Pages.Asked.empty());
  held = false;
  world.FetchMoni1();
  held = true;
  world.Pages.Answer(OneLine());
  held = false;
  world.FetchMoniAll();
  held = true;
  world.Pages.Answer(OneStation());
  EXPECT_EQ(world.Pages.Asked.size(), 2U);
  EXPECT_EQ(world.Heard(), 0);
  EXPECT_EQ(world.Actions.Redraws, 0);
  EXPECT_FALSE(banner.Visible);
}

TEST_F(InetSupportTest, AtTheEndOfTheProgramNothingIsAwaited) {
  world.SwitchOn();
  world.SwitchAreaOn();
  world.FetchMoni1();
  world.FetchMoniAll();
  world.Net.Stop();
  EXPECT_EQ(world.Pages.Abandoned, 2);
  EXPECT_FALSE(world.Pages.IsBusy());
}

TEST_F(InetSupportTest, APageCutAnywhereStoresWholeLinesOnly) {
  const std::string page = OneLine() + InternetWorld::Line("2024-05-14 12:31:00");
  world.SwitchOn();
  world.FetchMoni1();
  world.Pages.Answer(page);
  ASSERT_EQ(world.HistoryCount(), 2);
  for (std::size_t length = 0; length <= page.size(); ++length) {
    InternetWorld cut;
    cut.SwitchOn();
    cut.FetchMoni1();
    cut.Pages.Answer(page.substr(0, length));
    ASSERT_LE(cut.HistoryCount(), 2) << length;
    for (int at = 1; at <= cut.HistoryCount(); ++at) {
      ASSERT_EQ(cut.Stores.Moni1Records.At(at).Call(), "QX7GW") << length;
      ASSERT_EQ(cut.Stores.Moni1Records.At(at).PositionKey(),
                world.Stores.Moni1Records.At(at).PositionKey())
          << length;
    }
    ASSERT_TRUE(cut.IsAtRest()) << length;
  }
}

}  // namespace
}  // namespace zepril
