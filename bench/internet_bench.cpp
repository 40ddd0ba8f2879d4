// Replies of the internet databases, decoded and stored with their logs on a real disk: an area of
// 5,000 stations, and three days of packets of one station that drives, or stands.
#include <benchmark/benchmark.h>

#include <string>

#include "core/text_fields.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr int kStations = 5000;
constexpr int kLines = 20000;

// `round`: each moves every station by 120 m, so that all of it is new.
std::string AreaReplyOf(int round) {
  std::string reply = "[";
  for (int number = 0; number < kStations; ++number) {
    const double lat = 47.0 + number * 0.0012 + round * 0.0011;
    reply +=
        R"({"callsign":"Q)" + WholeNumber(number) +
        R"(","type":"S","posreceived":"2024-01-15 12:30:00","lat":)" + FixedNumber(lat, 5) +
        R"(,"lon":13.4052,"symbolcode":">","symboltable":"/","speed":0,"comment":"somewhere"},)";
  }
  return reply + "{" + std::string(110, ' ') + "}]";
}

std::string LinesOf(bool drives) {
  constexpr std::int64_t kSpan = 259200;
  const std::int64_t end = SecondsOf({2024, 1, 15, 12, 33, 0});
  std::string lines;
  for (int number = 0; number < kLines; ++number) {
    const LocalTime t = TimeOfSeconds(end - kSpan + number * kSpan / kLines);
    const int place = drives ? number % 6000 : 0;
    lines += WholeNumber(t.Year) + "-" + ZeroPadded(t.Month, 2) + "-" + ZeroPadded(t.Day, 2) + " " +
             ZeroPadded(t.Hour, 2) + ":" + ZeroPadded(t.Minute, 2) + ":" + ZeroPadded(t.Second, 2) +
             " QX1AB-9>APRS,WIDE1-1*,qAR,QX7AB:!52" + ZeroPadded(place / 100, 2) + "." +
             ZeroPadded(place % 100, 2) + "N/01324.00E>" + "on the road " + WholeNumber(number) +
             "\r\n";
  }
  return lines;
}

// A station that waits for the page of the switch that is clicked.
void Await(StationHarness& station, CheckBox& box) {
  station.State().Services.AprsRestService = "http://h";
  station.State().Internet.LastMoni1InternetMinute = -5000;
  station.State().Internet.LastMoniAllInternetMinute = 0;
  box.Value = 1;
  box.Click();
  station.program->Timer1().Elapsed();
}

void AreaOf5000Stations(benchmark::State& state) {
  StationHarness station;
  station.Start();
  int round = 0;
  for (auto _ : state) {
    state.PauseTiming();
    Await(station, station.Controls().MoniAll.Check23);
    const std::string reply = AreaReplyOf(++round);
    state.ResumeTiming();
    station.pages->Answer(reply);
  }
}
BENCHMARK(AreaOf5000Stations)->Unit(benchmark::kMillisecond)->Iterations(20);

void LinesOfOneStation(benchmark::State& state) {
  const std::string lines = LinesOf(state.range(0) == 1);
  for (auto _ : state) {
    state.PauseTiming();
    StationHarness station;
    station.Start();
    Await(station, station.Controls().Moni1.Check22);
    state.ResumeTiming();
    station.pages->Answer(lines);
    state.PauseTiming();
    if (station.State().Stores.MoniAllRecords.Count() < 1) state.SkipWithError("nothing stored");
    state.ResumeTiming();
  }
}
BENCHMARK(LinesOfOneStation)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace zepril
