// The whole program in virtual time on a busy frequency: 20 frames a second for 5 minutes, each
// 25th of the followed station, a click on the map every 3 s. Tells frames in, stored, repeats and
// lost.
#include <benchmark/benchmark.h>

#include "tests/station/busy_air.h"

namespace zepril {
namespace {

void BusyAirWithClicks(benchmark::State& state) {
  BusyAir air;
  air.Click = ClickOnMap;
  ReceptionCounts counts;
  for (auto _ : state) {
    StationHarness station;
    counts = PlayBusyAir(station, air);
  }
  const std::int64_t lost = air.Frames() - counts.Stored - counts.Repeats;
  state.counters["in"] = static_cast<double>(air.Frames());
  state.counters["stored"] = static_cast<double>(counts.Stored);
  state.counters["repeats"] = static_cast<double>(counts.Repeats);
  state.counters["lost"] = static_cast<double>(lost);
  if (lost != 0) state.SkipWithError("frames were lost");
}
BENCHMARK(BusyAirWithClicks)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
}  // namespace zepril
