// The numbers of the ionosphere in a whole station: updates by the hour, pages that fail in turn,
// the panel, and the end of the program.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

const std::string kPageA = "http://a.example/magnetogram/index.html";
const std::string kPageB = "http://b.example/text/sgas.txt";
const std::string kK = "KIEL 3-HOUR K 3\r\nKIEL CURRENT K 4\r\n";
const std::string kDay = std::string(300, '.') + "\r\n10 cm 178  SSN 101  Afr/Ap 008/012\r\n";
const std::string kPlanetary = "Boulder 1 2 Planetary 2 3 2 2 3 3 2 5\r\n";

class IonoStationTest : public ::testing::Test {
 protected:
  void Start(const std::string& settings = {}, bool with_addresses = true) {
    station = std::make_unique<StationHarness>("IONA=1\r\nSSPT=40\r\nKIND=2\r\n" + settings);
    if (with_addresses) {
      station->files.Write("C:\\ZEPRIL\\SERVICES.TXT",
                           "IONOPAGEA=" + kPageA + "\r\nIONOPAGEB=" + kPageB + "\r\n");
    }
    ASSERT_TRUE(station->Start());
  }
  void Second() {
    station->clock.Run(1.0);
    station->program->SecondPassed();
  }
  FakePages& Pages() { return *station->pages; }
  const std::string& Status() { return station->Controls().Status.IonoLabel.Caption; }
  const InternetState& Internet() { return station->State().Internet; }
  bool Saved(const std::string& line) {
    return station->File("ZEPRIL.INI").find(line + "\r\n") != std::string::npos;
  }

  std::unique_ptr<StationHarness> station;
};

TEST_F(IonoStationTest, TheStartUpdatesOnceAndTheCycleGoesOn) {
  Start();
  EXPECT_EQ(Status(), "UPDATING...");
  EXPECT_EQ(Pages().Asked, std::vector<std::string>{kPageA});
  station->Ticks(10);
  EXPECT_EQ(Pages().Asked.size(), 1U);
  EXPECT_TRUE(station->program->Timer1().Enabled());
  Pages().Answer(kK + "SUNSPOT NUMBER 88\r\n");
  EXPECT_EQ(Status(), "12:35 UPDATED (1) ");
  EXPECT_TRUE(Saved("SSPT=88"));
  EXPECT_TRUE(Saved("KIND=3.5"));
}

TEST_F(IonoStationTest, SwitchedOffNothingIsAsked) {
  Start("IONA=0\r\n");
  station->clock.Run(2 * 3600.0);
  EXPECT_TRUE(Pages().Asked.empty());
  EXPECT_EQ(Status(), "");
}

TEST_F(IonoStationTest, WithoutAddressesItIsOffAndSaysSo) {
  Start({}, false);
  EXPECT_EQ(Status(), "OFF: NO ADDRESS IN SERVICES.TXT");
  station->clock.Run(2 * 3600.0);
  EXPECT_TRUE(Pages().Asked.empty());
  EXPECT_EQ(Status(), "OFF: NO ADDRESS IN SERVICES.TXT");
}

// What the two pages hold in one hour of a day, and what follows. A page that says nothing never
// answers.
struct Hour {
  const char* A;
  const char* B;
  const char* Status;
  double Sunspots;
  double K;
};

TEST_F(IonoStationTest, ADayOfPagesThatFailInTurn) {
  const std::string both = kK + "SUNSPOT NUMBER 88\r\n";
  const std::string day_without_k = kDay + "no more\r\n";
  const std::string whole_day = kDay + kPlanetary;
  constexpr const char* kSilent = nullptr;
  constexpr const char* kFails = "fails";
  const Hour hours[] = {{both.c_str(), kSilent, " UPDATED (1) ", 88.0, 3.5},
                        {kFails, whole_day.c_str(), " UPDATED (2) ", 101.0, 5.0},
                        {kFails, kFails, "UPDATE FAILED", 101.0, 5.0},
                        {kK.c_str(), kDay.c_str(), " UPDATED (M) ", 101.0, 3.5},
                        {"", day_without_k.c_str(), "UPDATE FAILED", 101.0, 3.5},
                        {kSilent, whole_day.c_str(), " UPDATED (2) ", 101.0, 5.0},
                        {kSilent, kSilent, "UPDATE FAILED", 101.0, 5.0}};
  Start();
  std::size_t updates = 0;
  std::size_t answered = 0;
  std::map<std::string, int> asked;
  const auto answer = [&](const char* text) {
    if (text == kSilent) return;
    std::string(text) == kFails ? Pages().Fail() : Pages().Answer(text);
  };
  for (int second = 0; second < 24 * 3600; ++second) {
    Second();
    if (Pages().Asked.size() > answered) {
      const std::string page = Pages().Asked[answered++];
      ++asked[page];
      if (page == kPageA && updates > 0) {
        const Hour& before = hours[(updates - 1) % std::size(hours)];
        EXPECT_EQ(Internet().SunspotNumber, before.Sunspots) << updates;
        EXPECT_EQ(Internet().KpIndex, before.K) << updates;
      }
      if (page == kPageA) ++updates;
      const Hour& hour = hours[(updates - 1) % std::size(hours)];
      answer(page == kPageA ? hour.A : hour.B);
    }
    if (second % 3600 == 1800) {
      const Hour& hour = hours[(updates - 1) % std::size(hours)];
      EXPECT_TRUE(Status().ends_with(hour.Status)) << updates << ": " << Status();
    }
  }
  // By the hour, and once more behind midnight, where the time of day begins anew.
  EXPECT_GE(asked[kPageA], 24);
  EXPECT_LE(asked[kPageA], 25);
  EXPECT_TRUE(station->program->Timer1().Enabled());
  EXPECT_FALSE(Pages().IsBusy());
}

TEST_F(IonoStationTest, ThePanelsUpdateStopsTheCycleForSixSecondsAtMost) {
  Start();
  Pages().Answer(kK + "SUNSPOT NUMBER 88\r\n");
  station->Controls().Map.Check9.RightClick();
  EXPECT_EQ(Status(), "UPDATING...");
  EXPECT_FALSE(station->program->Timer1().Enabled());
  station->clock.Run(5.9);
  EXPECT_FALSE(station->program->Timer1().Enabled());
  station->clock.Run(0.2);
  EXPECT_TRUE(station->program->Timer1().Enabled());
  // The answer may come later.
  Pages().Answer(kK + "SUNSPOT NUMBER 90\r\n");
  EXPECT_EQ(station->Controls().Iono.Text11.Text, "90 (INET)");
  EXPECT_TRUE(Saved("SSPT=90"));
}

TEST_F(IonoStationTest, TheEndLeavesNoPageBehind) {
  Start();
  ASSERT_TRUE(Pages().IsBusy());
  station->program->Stop(true);
  EXPECT_FALSE(Pages().IsBusy());
  EXPECT_TRUE(Saved("SSPT=40"));
}

TEST_F(IonoStationTest, WhileThePageOfAFollowedStationLoadsTheEndWaitsAMoment) {
  Start();
  station->Controls().Moni1.Check22.Value = 1;
  std::vector<double> waits;
  station->clock.OnWait = [&waits](double seconds, bool) { waits.push_back(seconds); };
  station->program->Stop(true);
  ASSERT_FALSE(waits.empty());
  EXPECT_EQ(waits.front(), 0.2);
  EXPECT_FALSE(Pages().IsBusy());
}

}  // namespace
}  // namespace zepril
