// Whole days in virtual time: each transmission of the running program at its second, to the byte,
// and none else. What is expected is worked out here from the rules of the rhythm alone: the tick's
// grid, the doubled interval behind a transmission, the waits of modem and engine.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/station/on_air_support.h"

namespace zepril {

namespace {

constexpr double kDay = 86400.0;
constexpr std::int64_t kHour = 3600;
constexpr int kHoursAheadOfUtc = 2;

constexpr double kHandOver = 0.001;       // what one hand-over takes on the virtual clock
constexpr double kSecondModePause = 0.1;  // behind a switching of the second mode
constexpr double kListening = 0.01;       // in which a silent SCS modem is listened to
constexpr double kPauseBehindFrame = 0.8;
constexpr double kTick = 6.0;
constexpr double kTickBehindFrame = 12.0;

std::string TwoDigits(std::int64_t number) {
  return std::string(number < 10 ? "0" : "") + WholeNumber(number);
}

// Lines two and five take turns.
std::string ReportText(int count) {
  return std::string("=4830.15N/00805.20E> ") + (count % 2 == 0 ? "Test" : "QRV 144.800 MHz");
}

// The object carries the time of day in UTC. `seconds` of the local day before the leap day.
std::string ObjectText(std::int64_t seconds) {
  const std::int64_t utc = seconds - kHoursAheadOfUtc * kHour;
  const std::int64_t day = 28 + utc / (24 * kHour);
  return ";WORKS    *" + TwoDigits(day) + TwoDigits(utc / kHour % 24) + TwoDigits(utc / 60 % 60) +
         "z5230.00N/01324.00Er one lane";
}

// What the program says when it comes up and when it goes, by the radio interface; seconds from
// the beginning of each. The engine of the test connects in 0.05 s and registers in 0.3 s.
std::vector<Outgoing> Greeting(RadioMode mode) {
  switch (mode) {
    case RadioMode::AgwLocal:
      return {{0.05, EngineFrame('X', "APRS", "")}, {0.05, EngineFrame('m', "APRS", "")}};
    case RadioMode::AgwRemote:
      return {{0.05, EngineFrame('X', "APRS", "")}, {0.35, EngineFrame('m', "APRS", "")}};
    case RadioMode::Pk232:
      return {{0.0, "ECHO ON\r"}, {1.3, "K\r"}};
    case RadioMode::ScsPtc:
      return {{1.1, "K\r"}};
    default:
      return {};
  }
}

std::vector<Outgoing> Farewell(RadioMode mode) {
  switch (mode) {
    case RadioMode::AgwLocal:
    case RadioMode::AgwRemote:
      return {{0.0, EngineFrame('x', "APRS", "")}};
    case RadioMode::Pk232:
      return {{0.0, "\x03"}};
    case RadioMode::ScsTnc:
      return {{0.0, "\x1B%ZL\r"}};
    case RadioMode::ScsPtc:
      return {{0.0, "\x1BQ\r"}, {0.5, "\x1BRESET\r"}};
    default:
      return {};
  }
}

// What the rules say of a stretch of time.
struct Rhythm {
  RadioMode Mode = RadioMode::AgwRemote;
  bool HfDual = false;
  bool Object = false;
  int IntervalMinutes = 10;
  double Armed = 0.0;  // when the cycle's timer was started
  double End = kDay;
  std::vector<double> Presses;  // of the TX button, by hand

  std::vector<Outgoing> Transmissions() const;

 private:
  struct Progress {
    std::vector<Outgoing> Sent;
    double Now = 0.0;
    int Reports = 0;
  };
  void Send(Progress& progress, const std::string& text) const;
  static std::int64_t SecondsOfDay(double seconds) {
    return 12 * kHour + static_cast<std::int64_t>(std::floor(seconds));
  }
};

void Rhythm::Send(Progress& progress, const std::string& text) const {
  if (HfDual) {
    progress.Sent.push_back({progress.Now, "\x1B%AU0\r"});
    progress.Now += kSecondModePause;
  }
  progress.Sent.push_back({progress.Now, Framed(Mode, text)});
  progress.Now += kPauseBehindFrame;
}

std::vector<Outgoing> Rhythm::Transmissions() const {
  Progress progress;
  progress.Now = Armed;
  std::int64_t last_report = -1'000'000;
  std::int64_t last_object = -1'000'000;
  auto press = Presses.begin();
  double next = Armed + kTick;
  for (;;) {
    // By hand, between two ticks.
    if (press != Presses.end() && *press < next) {
      progress.Now = *press++;
      Send(progress, ReportText(progress.Reports++));
      continue;
    }
    // A tick that fell due while the program stood still follows at once.
    if (next > End) return progress.Sent;
    progress.Now = std::max(next, progress.Now) + kHandOver;
    if (HfDual) {
      progress.Sent.push_back({progress.Now, "\x1B%AU1\r"});
      progress.Now += kSecondModePause;
    }
    const std::int64_t now = SecondsOfDay(progress.Now);
    const bool object = IntervalMinutes > 0 && Object && now - last_object > 120 * IntervalMinutes;
    const bool report = IntervalMinutes > 0 && !object && now - last_report > 60 * IntervalMinutes;
    next = progress.Now + (object || report ? kTickBehindFrame : kTick);
    // A frame that is heard moves no tick.
    if (Mode == RadioMode::ScsTnc || Mode == RadioMode::ScsPtc) progress.Now += kListening;
    if (object) {
      Send(progress, ObjectText(SecondsOfDay(progress.Now)));
      last_object = SecondsOfDay(progress.Now);
    }
    if (report) {
      Send(progress, ReportText(progress.Reports++));
      last_report = SecondsOfDay(progress.Now);
    }
  }
}

class DayOnTheAir : public OnAirStation {
 protected:
  using OnAirStation::OnAirStation;
};

INSTANTIATE_TEST_SUITE_P(EveryRadio, DayOnTheAir,
                         ::testing::Values(RadioMode::AgwLocal, RadioMode::Pk232,
                                           RadioMode::AgwRemote, RadioMode::ScsTnc,
                                           RadioMode::ScsPtc),
                         NameOf);

TEST_P(DayOnTheAir, ReportsAndObjectGoOutAtTheirSecondsAndNothingElse) {
  ASSERT_TRUE(station.Start());
  ExpectSent(Greeting(GetParam()));
  Rhythm rhythm;
  rhythm.Mode = GetParam();
  rhythm.Object = true;
  rhythm.Armed = Now();
  rhythm.End = Now() + kDay;
  SwitchOn(Transmit().Check6);
  SwitchOn(Transmit().Check18);
  RunTo(rhythm.End);
  const std::vector<Outgoing> expected = rhythm.Transmissions();
  EXPECT_GT(expected.size(), 200U);
  ExpectSent(expected);
  const double end = Now();
  station.program->Stop(true);
  ExpectSent(Farewell(GetParam()), end);
}

// A frame as the engine or modem tells of it.
std::string MonitorTextOf(RadioMode mode, const std::string& text) {
  if (mode == RadioMode::Pk232) return "N0CALL*>APRS <UI>:\r\n" + text + "\r\n";
  const std::string port = mode == RadioMode::ScsPtc ? "1:" : "";
  return port + "fm N0CALL to APRS ctl UI pid F0\r\n" + text + "\r\n";
}

TEST_P(DayOnTheAir, WhatIsHeardKeepsNoTransmissionBack) {
  constexpr double kBetweenFrames = 600.0;
  ASSERT_TRUE(station.Start());
  ExpectSent(Greeting(GetParam()));
  Rhythm rhythm;
  rhythm.Mode = GetParam();
  rhythm.Object = true;
  rhythm.Armed = Now();
  rhythm.End = Now() + kDay;
  SwitchOn(Transmit().Check6);
  SwitchOn(Transmit().Check18);
  for (int frames = 1; frames * kBetweenFrames < kDay; ++frames) {
    RunTo(rhythm.Armed + frames * kBetweenFrames);
    const std::string text =
        "=" + TwoDigits(40 + frames / 60) + TwoDigits(frames % 60) + ".00N/01324.00E>Test";
    if (IsEngine(GetParam())) {
      station.Hear("N0CALL", text);
    } else {
      station.modem.Reads.push_back(MonitorTextOf(GetParam(), text));
    }
  }
  RunTo(rhythm.End);
  EXPECT_EQ(station.State().Stores.MoniAllRecords.Count(), 143);
  ExpectSent(rhythm.Transmissions());
}

// With a digipeater on, three times an hour, by the third character of the call; neither TX switch
// nor interval count.
class DayAsDigipeater : public OnAirStation {
 protected:
  DayAsDigipeater() : OnAirStation("DIGI=1\r\n") {}
};

INSTANTIATE_TEST_SUITE_P(EveryModem, DayAsDigipeater,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOf);

TEST_P(DayAsDigipeater, ItIdentifiesItselfInItsMinutesAndSaysNothingElse) {
  ASSERT_TRUE(station.Start());
  sent.clear();
  RunTo(Now() + kDay);
  ASSERT_EQ(sent.size(), 72U);
  for (std::size_t at = 0; at < sent.size(); ++at) {
    const auto second = static_cast<std::int64_t>(sent[at].Seconds);
    EXPECT_EQ(second / 60, 7 + 20 * static_cast<std::int64_t>(at));
    EXPECT_LT(second % 60, static_cast<std::int64_t>(kTick) + 1);
    EXPECT_EQ(sent[at].Bytes, "=4830.15N/00805.20E> ZEPRIL  Digi active\r");
  }
}

TEST_P(DayOnTheAir, WithTheSwitchOffNothingGoesOut) {
  ASSERT_TRUE(station.Start());
  ExpectSent(Greeting(GetParam()));
  RunTo(Now() + kDay);
  ExpectSent({});
}

TEST_P(DayOnTheAir, WithoutAPositionNothingGoesOut) {
  ASSERT_TRUE(station.Start());
  station.State().Map.OwnNorthKm = 0.0;
  station.State().Map.OwnEastKm = 0.0;
  sent.clear();
  SwitchOn(Transmit().Check6);
  station.Controls().Qth.Command22.Click();  // it asks for the position, and is not answered
  RunTo(Now() + kDay / 8);
  // Nor when the switch was on already.
  Transmit().Check6.Value = 1;
  SwitchOn(Transmit().Check18);
  EXPECT_EQ(station.State().Transmission.ObjectTxOn, 1);
  RunTo(Now() + kDay / 8);
  ExpectSent({});
  // The rhythm goes on as if something had been sent.
  EXPECT_GT(station.State().Transmission.LastBeaconTime, 0);
  EXPECT_GT(station.State().Transmission.LastObjectTime, 0);
}

// The same with reports by hand: at the press, and nothing by timer.
class DayByHand : public DayOnTheAir {
 protected:
  DayByHand() : DayOnTheAir("TXON=0\r\n") {}
};

INSTANTIATE_TEST_SUITE_P(EveryRadio, DayByHand,
                         ::testing::Values(RadioMode::AgwLocal, RadioMode::Pk232,
                                           RadioMode::AgwRemote, RadioMode::ScsTnc,
                                           RadioMode::ScsPtc),
                         NameOf);

TEST_P(DayByHand, AReportGoesOutAtEachPressAndAtNoOtherTime) {
  ASSERT_TRUE(station.Start());
  ExpectSent(Greeting(GetParam()));
  EXPECT_EQ(Transmit().Check6.Caption, "TX !");
  Rhythm rhythm;
  rhythm.Mode = GetParam();
  rhythm.IntervalMinutes = 0;
  rhythm.Armed = Now();
  rhythm.End = Now() + kDay;
  rhythm.Presses = {100.25, 101.5, 20000.0, 43199.9, 43200.9, 80000.0};
  for (const double press : rhythm.Presses) {
    RunTo(press);
    SwitchOn(Transmit().Check6);
    EXPECT_EQ(Transmit().Check6.Value, 0);
  }
  RunTo(rhythm.End);
  const std::vector<Outgoing> expected = rhythm.Transmissions();
  EXPECT_EQ(expected.size(), 6U);
  ExpectSent(expected);
}

// An SCS TNC on two modes: listening on the second one is asked for in every tick.
class DayOnTwoModes : public DayOnTheAir {};

INSTANTIATE_TEST_SUITE_P(ScsTnc, DayOnTwoModes, ::testing::Values(RadioMode::ScsTnc), NameOf);

TEST_P(DayOnTwoModes, EachFrameSwitchesTheSecondModeOffAndEachTickOnAgain) {
  ASSERT_TRUE(station.Start());
  SwitchOn(Transmit().Check6);
  SwitchOn(Transmit().Check18);
  Transmit().Check6.RightClick();
  Press(Transmit().Check2, 1);
  station.Controls().TxSetup.TxPathField.Text = "WIDE1-1,WIDE2-1";
  station.Controls().TxSetup.TxOk.Click();
  ASSERT_EQ(station.State().Radio.HfDualOn, 1);
  sent.clear();
  Rhythm rhythm;
  rhythm.Mode = RadioMode::ScsTnc;
  rhythm.HfDual = true;
  rhythm.Object = true;
  rhythm.Armed = Now();
  rhythm.End = Now() + kDay;
  RunTo(rhythm.End);
  const std::vector<Outgoing> expected = rhythm.Transmissions();
  EXPECT_GT(expected.size(), 14000U);
  ExpectSent(expected);
}

// Without radio the switches are hidden. Even pressed they send nothing.
class DayWithoutRadio : public DayOnTheAir {};

INSTANTIATE_TEST_SUITE_P(None, DayWithoutRadio, ::testing::Values(RadioMode::None), NameOf);

TEST_P(DayWithoutRadio, NothingGoesOutWhateverIsPressed) {
  ASSERT_TRUE(station.Start());
  EXPECT_FALSE(Transmit().Check6.Visible);
  EXPECT_FALSE(Transmit().Check6.Enabled);
  SwitchOn(Transmit().Check6);
  SwitchOn(Transmit().Check18);
  RunTo(Now() + kDay / 2);
  station.State().Transmission.TxIntervalMinutes = 0;
  const double press = Now();
  SwitchOn(Transmit().Check6);
  EXPECT_EQ(Now(), press);  // nor is anything waited for
  RunTo(kDay);
  station.program->Stop(true);
  ExpectSent({});
  EXPECT_EQ(station.socket.Connects, 0);
  EXPECT_EQ(station.modem.Device, "");
}

}  // namespace
}  // namespace zepril
