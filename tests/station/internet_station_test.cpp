// Internet support of a whole station in virtual time: days of fetches, switches that go off by
// themselves, services that are silent, panels that are opened meanwhile.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

// A station with both services, which answers what `answer` says; an empty function is silence.
class InternetStation : public StationHarness {
 public:
  explicit InternetStation(LocalTime start, const std::string& settings = {})
      : StationHarness("CALL=QX7GW\r\n" + settings) {
    clock.SetNow(start);
    StationHarness::Start();
    SetServices();
    EverySecond();
  }

  void SetServices() {
    State().Services.AprsCgiService = "http://cgi";
    State().Services.AprsRestService = "http://rest";
  }
  void Click(CheckBox& box, int value = 1) {
    box.Value = value;
    box.Click();
  }
  CheckBox& Moni1() { return Controls().Moni1.Check22; }
  CheckBox& Area() { return Controls().MoniAll.Check23; }
  CheckBox& Scan() { return Controls().Moni1.Check27; }
  bool Collects() { return Controls().Status.Text10.Visible; }
  void Minutes(double count) { clock.Run(60.0 * count); }
  int AskedFor(const std::string& path) const {
    return static_cast<int>(std::count_if(
        pages->Asked.begin(), pages->Asked.end(),
        [&path](const std::string& url) { return url.find(path) != std::string::npos; }));
  }
  std::string History(const std::string& call) const { return File("U33\\LOG\\" + call + ".TXT"); }

  std::function<std::string(const std::string& url)> answer = [](const std::string& url) {
    return url.find("/aprs/area") != std::string::npos ? "[]" : "";
  };
  // Whether the service answers what is asked there; missing: it does.
  std::function<bool(const std::string& url)> answers;

 private:
  // What the program's owner does once a second, and the services.
  void EverySecond() {
    clock.Schedule(1.0, [this] {
      clock.Post([this] {
        program->SecondPassed();
        if (!pages->IsBusy() || !answer) return;
        const std::string url = pages->Asked.back();
        if (!answers || answers(url)) pages->Answer(answer(url));
      });
      EverySecond();
    });
  }
};

constexpr LocalTime kAfternoon{2024, 5, 14, 13, 2, 0};

std::string TimeText(const LocalTime& t) {
  return WholeNumber(t.Year) + "-" + ZeroPadded(t.Month, 2) + "-" + ZeroPadded(t.Day, 2) + " " +
         ZeroPadded(t.Hour, 2) + ":" + ZeroPadded(t.Minute, 2) + ":" + ZeroPadded(t.Second, 2);
}

// A line of the service, `minutes_ago` before the clock less the offset; it has moved with each.
std::string LineOf(const InternetStation& station, const std::string& call, int minutes_ago = 1,
                   int utc_offset = 0) {
  const std::int64_t seconds =
      SecondsOf(station.clock.Now()) - 60 * minutes_ago - 3600 * utc_offset;
  const LocalTime t = TimeOfSeconds(seconds);
  const std::string place = ZeroPadded((t.Hour * 60 + t.Minute) % 60, 2) + "." +
                            ZeroPadded((t.Hour * 60 + t.Minute) / 60, 2);
  return "\n" + TimeText(t) + " " + call + ">APRS,WIDE1-1*,qAR,QX7AB:!52" + place +
         "N/01324.00E>Test of the net\n";
}

std::string StationOf(const InternetStation& station, const std::string& call, double lat) {
  return R"([{"callsign":")" + call + R"(","type":"S","posreceived":")" +
         TimeText(station.clock.Now()) + R"(","lat":)" + FixedNumber(lat, 4) +
         R"(,"lon":13.4052,"symbolcode":">","symboltable":"/","x":")" + std::string(60, ' ') +
         R"("}])";
}

TEST(InternetStation, TheAreaIsAskedForAtOnceAndThenEveryFourthMinute) {
  InternetStation station(kAfternoon);
  station.Click(station.Area());
  station.Ticks(1);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 1);
  station.Minutes(1.5);  // 13:03
  EXPECT_EQ(station.AskedFor("/aprs/area"), 1);
  station.Minutes(1.0);  // 13:04
  EXPECT_EQ(station.AskedFor("/aprs/area"), 2);
  station.Minutes(3.0);  // 13:07
  EXPECT_EQ(station.AskedFor("/aprs/area"), 2);
  station.Minutes(1.0);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 3);
}

TEST(InternetStation, TheFollowedStationIsAskedForEveryMinuteAloneAndEverySecondWithTheArea) {
  InternetStation station(kAfternoon);
  station.Click(station.Moni1());
  station.Minutes(4.9);  // 13:02 to 13:06
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 5);
  station.Click(station.Area());
  station.Minutes(6.0);  // to 13:12
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 8);
}

TEST(InternetStation, WithTheAreaOnTheEvenMinutesAreAsked) {
  InternetStation station({2024, 5, 14, 13, 4, 10});
  station.Click(station.Moni1());
  station.Click(station.Area());
  station.Minutes(0.5);
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 1);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 1);
  station.Minutes(1.0);  // 13:05
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 1);
  station.Minutes(0.8);  // 13:06
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 2);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 1);
  station.Minutes(2.0);  // 13:08
  EXPECT_EQ(station.AskedFor("/aprs/area"), 2);
}

TEST(InternetStation, WhatIsAskedForReachesBackToTheNewestRecord) {
  InternetStation station(kAfternoon);
  station.answer = [&station](const std::string&) { return LineOf(station, "QX7GW", 130); };
  station.Click(station.Moni1());
  station.Minutes(1.5);
  ASSERT_GE(station.pages->Asked.size(), 2U);
  EXPECT_TRUE(station.pages->Asked[0].ends_with("&seconds=259200"));
  EXPECT_TRUE(station.pages->Asked[1].ends_with("&seconds=10800")) << station.pages->Asked[1];
}

TEST(InternetStation, SupportEndsBehindAQuarterOfAnHour) {
  InternetStation station(kAfternoon);
  station.Click(station.Moni1());
  station.Click(station.Area());
  station.Minutes(14.9);
  EXPECT_EQ(station.Moni1().Value, 1);
  station.Minutes(0.3);
  EXPECT_EQ(station.Moni1().Value, 0);
  EXPECT_EQ(station.Area().Value, 0);
  EXPECT_EQ(station.Controls().Inet.Moni1State.Caption, "MONI 1: off after 15 min");
  EXPECT_EQ(station.Controls().Inet.MoniAllState.Caption, "AREA: off after 15 min");
  const std::size_t asked = station.pages->Asked.size();
  station.Minutes(30.0);
  EXPECT_EQ(station.pages->Asked.size(), asked);
}

TEST(InternetStation, SupportOverMidnightEndsThere) {
  InternetStation station({2024, 12, 31, 23, 55, 0});
  station.Click(station.Moni1());
  station.Minutes(4.9);
  EXPECT_EQ(station.Moni1().Value, 1);
  station.Minutes(0.3);
  EXPECT_EQ(station.Moni1().Value, 0);
}

TEST(InternetStation, WithoutARadioTheChatEndsWithIt) {
  InternetStation station(kAfternoon, "MODEM=4\r\n");
  station.Click(station.Controls().Chat.Check7);
  station.Click(station.Moni1());
  station.Minutes(15.2);
  EXPECT_EQ(station.Controls().Chat.Check7.Value, 0);
}

TEST(InternetStation, ADayOfBothFillsHistoryAndListInOrder) {
  InternetStation station({2024, 2, 28, 12, 0, 30}, "LOGS=0\r\nUTCD=2\r\n");
  // What is drawn does not matter, and takes most of the time.
  station.State().Followed.TrackStyle = 6;
  station.State().Map.StationLabelLevel = LabelLevel::NoStations;
  int asked_of_area = 0;
  station.answer = [&](const std::string& url) {
    if (url.find("/aprs/area") == std::string::npos) return LineOf(station, "QX7GW", 1, 2);
    ++asked_of_area;
    return StationOf(station, "QX7AA", 50.0 + asked_of_area * 0.005);
  };
  for (int quarter = 0; quarter < 24 * 5; ++quarter) {  // each of 12 minutes
    station.Click(station.Moni1());
    station.Click(station.Area());
    station.Minutes(12.0);
  }
  EXPECT_NEAR(station.AskedFor("/aprs/raw"), 24 * 30, 30);
  EXPECT_NEAR(station.AskedFor("/aprs/area"), 24 * 15, 15);
  const auto& history = station.State().Stores.Moni1Records.All();
  EXPECT_NEAR(static_cast<double>(history.size()), 24.0 * 30.0, 30.0);
  EXPECT_TRUE(std::is_sorted(history.begin(), history.end(), [](const auto& a, const auto& b) {
    return a.DateAndTime() < b.DateAndTime();
  }));
  EXPECT_TRUE(std::any_of(history.begin(), history.end(),
                          [](const auto& record) { return record.Date() == "240229"; }));
  const std::string file = station.History("QX7GW");
  EXPECT_EQ(std::count(file.begin(), file.end(), '\n'),
            static_cast<std::ptrdiff_t>(history.size()));
}

TEST(InternetStation, TimesCrossTheTurnOfTheYearWithTheOffset) {
  InternetStation station({2024, 1, 1, 0, 20, 0}, "UTCD=2\r\n");
  station.answer = [&station](const std::string&) { return LineOf(station, "QX7GW", 5, 2); };
  station.Click(station.Moni1());
  station.Ticks(2);
  ASSERT_EQ(station.State().Stores.Moni1Records.Count(), 1);
  EXPECT_EQ(station.State().Stores.Moni1Records.At(1).DateAndTime(), "240101 0015");
}

TEST(InternetStation, ASilentServiceHoldsReceptionForAMinuteAtMost) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Moni1());
  station.Ticks(1);
  EXPECT_TRUE(station.Collects());
  station.Hear("N0CALL", "!5230.00N/01324.00E>Test");
  station.Minutes(0.9);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  station.Minutes(0.3);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 1);
  EXPECT_FALSE(station.Collects());
  EXPECT_EQ(station.Moni1().Value, 0);
  EXPECT_EQ(station.Controls().Window.Pointer, PointerShape::Default);
  EXPECT_FALSE(station.pages->IsBusy());
  EXPECT_NE(station.Controls().Inet.Moni1State.Caption.find("no answer"), std::string::npos);
}

TEST(InternetStation, ASilentAreaServiceDoesNotStopTheStationForGood) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Area());
  station.Minutes(2.0);
  EXPECT_EQ(station.Area().Value, 1);
  EXPECT_FALSE(station.Collects());
  EXPECT_TRUE(station.program->Timer1().Enabled());
  station.Minutes(2.5);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 2);
}

TEST(InternetStation, AServiceThatWaitsForItsTurnIsNotGivenUp) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  const std::int64_t other = station.pages->Fetch("http://other", {});
  station.Click(station.Moni1());
  station.Minutes(1.5);
  EXPECT_EQ(station.Moni1().Value, 1);
  station.pages->Drop(other);
  station.Minutes(0.9);
  EXPECT_EQ(station.Moni1().Value, 1);
  station.pages->Answer(LineOf(station, "QX7GW"));
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 1);
}

TEST(InternetStation, ASilentAreaServiceLeavesTheFollowedStationOn) {
  InternetStation station({2024, 5, 14, 13, 4, 10});
  station.answers = [](const std::string& url) {
    return url.find("/aprs/area") == std::string::npos;
  };
  station.Click(station.Moni1());
  station.Click(station.Area());
  station.Minutes(2.0);
  EXPECT_EQ(station.AskedFor("/aprs/area"), 1);
  EXPECT_EQ(station.Moni1().Value, 1);
  EXPECT_EQ(station.AskedFor("/aprs/raw"), 2);
}

TEST(InternetStation, AWatchdogThatFiresEarlyBringsNoHalfPage) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Moni1());
  station.Ticks(1);
  station.program->Timer2().Arm(3000);  // as a press on the map does
  station.clock.Run(3.5);
  EXPECT_FALSE(station.Collects());
  EXPECT_EQ(station.Moni1().Value, 0);
  station.clock.Run(3.0);
  EXPECT_FALSE(station.pages->IsBusy());
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 0);
}

TEST(InternetStation, AScanFetchesEveryStationAndComesBack) {
  InternetStation station(kAfternoon);
  station.files.Write("C:\\ZEPRIL\\U33\\LOG\\N0CALL.TXT", "");
  station.files.Write("C:\\ZEPRIL\\U33\\LOG\\QX7AA.TXT", "");
  station.Restart();
  station.SetServices();
  station.answer = [&station](const std::string& url) {
    const std::size_t call = url.find("callsign=") + 9;
    return LineOf(station, url.substr(call, url.find('&') - call));
  };
  station.Click(station.Scan());
  EXPECT_EQ(station.State().Followed.Moni1Call, "N0CALL");
  station.Minutes(5.0);
  EXPECT_EQ(station.Scan().Value, 0);
  EXPECT_EQ(station.Moni1().Value, 0);
  EXPECT_EQ(station.State().Followed.Moni1Call, "QX7GW");
  for (const char* call : {"N0CALL", "QX7AA", "QX7GW"}) {
    EXPECT_GE(station.AskedFor(std::string("callsign=") + call), 4) << call;
    const std::string history = station.History(call);
    EXPECT_NE(history.find(call), std::string::npos) << call;
    for (const char* other : {"N0CALL", "QX7AA", "QX7GW"})
      EXPECT_EQ(history.find(other) == std::string::npos, call != std::string(other)) << call;
  }
}

TEST(InternetStation, AnotherStationChosenMeanwhileKeepsItsHistoryToItself) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Moni1());
  station.Ticks(1);
  ASSERT_TRUE(station.pages->IsBusy());
  station.Controls().Moni1.Combo9.Text = "N0CALL";
  station.Controls().Moni1.Combo9.KeyDown({13, 0});
  station.pages->Answer(LineOf(station, "QX7GW") + LineOf(station, "N0CALL"));
  EXPECT_EQ(station.State().Stores.Moni1Records.Count(), 0);
  EXPECT_EQ(station.History("N0CALL"), "");
  EXPECT_TRUE(station.program->Timer1().Enabled());
}

TEST(InternetStation, UnderASetUpPanelAPageIsPassedOver) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Area());
  station.Ticks(1);
  ASSERT_TRUE(station.pages->IsBusy());
  station.Controls().Transmit.Check6.RightClick();  // TX SETUP
  ASSERT_TRUE(station.Controls().TxSetup.Frame4.Visible);
  station.pages->Answer(StationOf(station, "QX7AA", 52.0));
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 0);
  EXPECT_FALSE(station.Collects());
}

TEST(InternetStation, EndedMeanwhileNothingIsAwaited) {
  InternetStation station(kAfternoon);
  station.answer = nullptr;
  station.Click(station.Area());
  station.Ticks(1);
  ASSERT_TRUE(station.pages->IsBusy());
  station.program->Stop(true);
  EXPECT_FALSE(station.pages->IsBusy());
}

TEST(InternetStation, EndedInAScanTheNextRunFollowsTheStationBefore) {
  InternetStation station(kAfternoon);
  station.files.Write("C:\\ZEPRIL\\U33\\LOG\\N0CALL.TXT", "");
  station.Restart();
  station.SetServices();
  station.Click(station.Scan());
  station.Ticks(2);
  ASSERT_EQ(station.State().Followed.Moni1Call, "N0CALL");
  station.Restart();
  EXPECT_EQ(station.State().Followed.Moni1Call, "QX7GW");
}

TEST(InternetStation, AMessageByTheNetIsShownAndAnsweredByTheWebForm) {
  InternetStation station(kAfternoon);
  station.answer = [&station](const std::string& url) {
    if (url.find("sendmsg") != std::string::npos) return std::string("thanks");
    const std::string line = LineOf(station, "QX7GW");
    return line.substr(0, line.find(":!")) + "::QX7KB    :Hello{07\n";
  };
  station.Click(station.Moni1());
  station.Ticks(2);
  EXPECT_EQ(station.State().Chat.Lines.back().Text, "QX7GW    :QX7KB    :Hello{07");
  EXPECT_EQ(station.AskedFor("/cgi-bin/sendmsg.cgi?fromcall=QX7KB&tocall=QX7GW&msg=mok07"), 1);
  station.Ticks(3);
  EXPECT_TRUE(station.program->Timer1().Enabled());
  EXPECT_FALSE(station.Collects());
}

}  // namespace
}  // namespace zepril
