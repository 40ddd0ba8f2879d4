// Updates by two pages that come whole, in part, changed or not at all.
#include "internet/iono_update.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/doubles/fake_pages.h"
#include "tests/doubles/recorded_actions.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

const std::string kK = "KIEL 3-HOUR K 3\r\nKIEL CURRENT K 4\r\n";
const std::string kSunspots = "SUNSPOT NUMBER 88\r\n";
const std::string kDay = std::string(300, '.') + "\r\n10 cm 178  SSN 101  Afr/Ap 008/012\r\n";
const std::string kPlanetary = "Boulder 1 2 Planetary 2 3 2 2 3 3 2 5\r\n";

ServicesState PagesAt(const std::string& a, const std::string& b) {
  ServicesState services;
  services.IonoPageA = a;
  services.IonoPageB = b;
  return services;
}

class IonoUpdateTest : public ::testing::Test {
 protected:
  IonoUpdateTest() {
    services = PagesAt("http://a", "http://b");
    internet.SunspotNumber = 40.0;
    internet.KpIndex = 2.0;
  }
  const std::string& Status() const { return status.IonoLabel.Caption; }
  void ExpectValues(double sunspots, double k) const {
    EXPECT_EQ(internet.SunspotNumber, sunspots);
    EXPECT_EQ(internet.KpIndex, k);
  }
  int Saves() const { return actions.CountOf("save"); }
  void Seconds(int count) {
    for (int second = 0; second < count; ++second) {
      clock.Run(1);
      update.SecondPassed();
    }
  }

  InternetState internet;
  MapViewState view;
  ServicesState services;
  IonoControls controls;
  StatusControls status;
  RecordedActions actions;
  FakePages pages;
  VirtualClock clock{{2024, 5, 14, 12, 5, 0}};
  IonoUpdate update{internet, view, services, controls, status, {pages, clock, actions, actions}};
};

TEST_F(IonoUpdateTest, BeginsWithTheObservatorysPage) {
  EXPECT_TRUE(update.StartIonoUpdate());
  EXPECT_EQ(Status(), "UPDATING...");
  EXPECT_EQ(status.IonoLabel.ToolTip, "Asking http://a");
  EXPECT_EQ(pages.Asked, std::vector<std::string>{"http://a"});
  EXPECT_EQ(internet.LastIonoTimer, clock.SecondsSinceMidnight());
  EXPECT_TRUE(internet.IonoNeedSunspot);
  EXPECT_TRUE(internet.IonoNeedK);
}

TEST_F(IonoUpdateTest, OnePageWithBothIsEnough) {
  update.StartIonoUpdate();
  pages.Answer(kK + kSunspots);
  ExpectValues(88.0, 3.5);
  EXPECT_EQ(Status(), "12:05 UPDATED (1) ");
  EXPECT_EQ(status.IonoLabel.ToolTip, "12:05: sunspot number 88, K 3.5");
  EXPECT_EQ(controls.Text11.Text, "88 (INET)");
  EXPECT_EQ(controls.Text12.Text, "3.5 (INET)");
  EXPECT_EQ(Saves(), 1);
  EXPECT_EQ(pages.Asked.size(), 1U);
  EXPECT_FALSE(internet.IonoNeedSunspot || internet.IonoNeedK);
}

TEST_F(IonoUpdateTest, AnHtmlPageIsReadByItsText) {
  update.StartIonoUpdate();
  pages.Answer(
      "<html><style>KIEL 3-HOUR K 9</style><table><tr><td>Kiel 3-hour K</td><td>3</td></tr><tr>"
      "<td>Kiel&nbsp;current K</td><td> 4</td></tr></table><b>Sunspot</b> number 88</html>");
  ExpectValues(88.0, 3.5);
}

TEST_F(IonoUpdateTest, TheDailyTextAddsSunspotsToK) {
  update.StartIonoUpdate();
  pages.Answer(kK);
  EXPECT_EQ(Status(), "UPDATE FAILED");  // for the moment
  EXPECT_EQ(Saves(), 0);
  EXPECT_EQ(pages.Asked.back(), "http://b");
  EXPECT_FALSE(internet.IonoNeedK);
  pages.Answer(kDay);
  ExpectValues(101.0, 3.5);
  EXPECT_EQ(Status(), "12:05 UPDATED (M) ");
  EXPECT_EQ(Saves(), 1);
}

TEST_F(IonoUpdateTest, TheDailyTextAddsKToSunspots) {
  update.StartIonoUpdate();
  pages.Answer(kSunspots);
  pages.Answer(kDay + kPlanetary);
  ExpectValues(88.0, 5.0);
  EXPECT_EQ(Status(), "12:05 UPDATED (2) ");
  EXPECT_EQ(controls.Text12.Text, "5 (INET)");
  EXPECT_EQ(Saves(), 1);
}

TEST_F(IonoUpdateTest, APageThatCantBeHadIsReplacedByTheOtherWhole) {
  for (const int status_of_a : {0, 404, 500}) {
    internet.SunspotNumber = 40.0;
    internet.KpIndex = 2.0;
    update.StartIonoUpdate();
    status_of_a == 0 ? pages.Fail() : pages.Answer(kK + kSunspots, status_of_a);
    EXPECT_EQ(pages.Asked.back(), "http://b");
    pages.Answer(kDay + kPlanetary);
    ExpectValues(101.0, 5.0);
    EXPECT_EQ(Status(), "12:05 UPDATED (2) ") << status_of_a;
  }
}

TEST_F(IonoUpdateTest, AfterAGoodUpdateBothAreWantedAgain) {
  update.StartIonoUpdate();
  pages.Answer(kK + kSunspots);
  update.StartIonoUpdate();
  pages.Fail();
  pages.Answer(kDay + kPlanetary);
  ExpectValues(101.0, 5.0);
}

TEST_F(IonoUpdateTest, WhereBothFailTheValuesStayAndNothingIsAskedAgain) {
  update.StartIonoUpdate();
  pages.Fail(PageOutcome::TooLarge);
  pages.Fail();
  ExpectValues(40.0, 2.0);
  EXPECT_EQ(Status(), "UPDATE FAILED");
  EXPECT_EQ(status.IonoLabel.ToolTip,
            "12:05: no answer, or a page without the numbers. The values stay; the next update is "
            "in an hour");
  EXPECT_EQ(Saves(), 0);
  Seconds(3000);
  EXPECT_EQ(pages.Asked.size(), 2U);
}

TEST_F(IonoUpdateTest, ADailyTextThatLacksAnythingFails) {
  const struct {
    std::string A;
    std::string B;
  } rows[] = {{"", ""},
              {"", " SSN 101 Planetary 2\r\n"},          // too short
              {"", std::string(400, '.') + kPlanetary},  // no sunspots
              {"", kDay},                                // no K
              {"", kDay + " Planetary 2 3"},             // a line without end
              {kSunspots, kDay + " Planetary x\r\n"}};
  for (const auto& row : rows) {
    update.StartIonoUpdate();
    pages.Answer(row.A);
    pages.Answer(row.B);
    EXPECT_EQ(Status(), "UPDATE FAILED") << row.B;
    EXPECT_EQ(internet.KpIndex, 2.0) << row.B;
  }
  EXPECT_EQ(Saves(), 0);
}

TEST_F(IonoUpdateTest, WhereOneOfBothCameTheWordsNameItAndTheOther) {
  update.StartIonoUpdate();
  pages.Answer(kK);
  pages.Fail();
  ExpectValues(40.0, 3.5);
  EXPECT_EQ(Status(), "UPDATE FAILED");
  EXPECT_EQ(status.IonoLabel.ToolTip,
            "12:05: K 3.5. No sunspot number came, the one in use stays; the next update is in an "
            "hour");
  internet.KpIndex = 2.0;
  update.StartIonoUpdate();
  pages.Fail();
  pages.Answer(kDay);
  ExpectValues(101.0, 2.0);
  EXPECT_EQ(Status(), "UPDATE FAILED");
  EXPECT_EQ(status.IonoLabel.ToolTip,
            "12:05: sunspot number 101. No K came, the one in use stays; the next update is in an "
            "hour");
}

TEST_F(IonoUpdateTest, CirclesThatAreShownAreDrawnAnew) {
  update.StartIonoUpdate();
  pages.Answer(kK + kSunspots);
  EXPECT_EQ(actions.CountOf("redraw"), 0);
  view.CirclesOn = true;
  update.StartIonoUpdate();
  pages.Answer(kK + kSunspots);
  EXPECT_EQ(actions.CountOf("redraw"), 1);
  // What came stays in use where the rest is missing.
  update.StartIonoUpdate();
  pages.Answer(kK);
  pages.Fail();
  EXPECT_EQ(Status(), "UPDATE FAILED");
  EXPECT_EQ(actions.CountOf("redraw"), 2);
}

TEST_F(IonoUpdateTest, APageWithoutAnAddressIsPassedOver) {
  services.IonoPageA.clear();
  EXPECT_TRUE(update.StartIonoUpdate());
  EXPECT_EQ(pages.Asked, std::vector<std::string>{"http://b"});
  pages.Answer(kDay + kPlanetary);
  EXPECT_EQ(Status(), "12:05 UPDATED (2) ");
  services = PagesAt("http://a", "");
  update.StartIonoUpdate();
  pages.Answer(kK);
  EXPECT_EQ(Status(), "UPDATE FAILED");
}

TEST_F(IonoUpdateTest, WithoutAnyAddressItIsOffAndSaysSo) {
  services = {};
  EXPECT_FALSE(update.StartIonoUpdate());
  EXPECT_EQ(Status(), "OFF: NO ADDRESS IN SERVICES.TXT");
  EXPECT_TRUE(pages.Asked.empty());
  EXPECT_EQ(internet.LastIonoTimer, clock.SecondsSinceMidnight());
}

TEST_F(IonoUpdateTest, WhoDoesNotAnswerIsGivenUpAfterHalfAMinute) {
  update.StartIonoUpdate();
  Seconds(30);
  EXPECT_EQ(pages.Asked.size(), 1U);
  Seconds(1);
  EXPECT_EQ(pages.Asked.back(), "http://b");
  EXPECT_EQ(pages.Abandoned, 1);
  Seconds(31);
  EXPECT_EQ(Status(), "UPDATE FAILED");
  EXPECT_FALSE(pages.IsBusy());
}

TEST_F(IonoUpdateTest, TimeThatAPageWaitsForItsTurnIsNotCounted) {
  pages.Fetch("http://another", {});
  update.StartIonoUpdate();
  Seconds(60);
  EXPECT_EQ(pages.Asked, std::vector<std::string>{"http://another"});
  pages.Answer("");
  Seconds(20);
  pages.Answer(kK + kSunspots);
  EXPECT_EQ(Status(), "12:06 UPDATED (1) ");
}

TEST_F(IonoUpdateTest, ASecondStartTakesThePlaceOfTheFirst) {
  update.StartIonoUpdate();
  update.StartIonoUpdate();
  EXPECT_EQ(pages.Asked.size(), 2U);
  EXPECT_EQ(pages.Abandoned, 1);
  pages.Answer(kK + kSunspots);
  EXPECT_FALSE(pages.IsBusy());
  EXPECT_EQ(Saves(), 1);
}

TEST_F(IonoUpdateTest, APageThatFindsNoPlaceHasFailed) {
  for (std::size_t page = 0; page <= PageFetcher::kMostWaiting; ++page)
    pages.Fetch("http://another", {});
  update.StartIonoUpdate();
  EXPECT_EQ(Status(), "UPDATE FAILED");
}

TEST(IonoUpdateEnd, NobodyIsToldBehindItsEnd) {
  InternetState internet;
  MapViewState view;
  const ServicesState services = PagesAt("http://a", "http://b");
  IonoControls controls;
  StatusControls status;
  RecordedActions actions;
  FakePages pages;
  VirtualClock clock;
  {
    IonoUpdate update(internet, view, services, controls, status, {pages, clock, actions, actions});
    update.StartIonoUpdate();
  }
  EXPECT_FALSE(pages.IsBusy());
  EXPECT_TRUE(actions.Calls.empty());
}

}  // namespace
}  // namespace zepril
