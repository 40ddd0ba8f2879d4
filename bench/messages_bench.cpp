// A flood of messages for the station, all different, 500 in a tick: each moves the lines of the
// chat and is written to its log on a real disk.
#include <benchmark/benchmark.h>

#include <string>

#include "core/text_fields.h"
#include "tests/station/station_support.h"

namespace zepril {
namespace {

constexpr int kMessages = 10000;
constexpr int kAtOnce = 500;  // in a pass; more than fits into a link's buffer would be lost

void MessageFlood(benchmark::State& state) {
  StationHarness station;
  station.Start();
  int number = 0;
  for (auto _ : state) {
    for (int count = 1; count <= kMessages; ++count) {
      station.Hear("N0CALL", ":QX7KB    :flood{" + WholeNumber(++number));
      if (count % kAtOnce == 0) station.program->Timer1().Elapsed();
    }
  }
  state.SetItemsProcessed(state.iterations() * kMessages);
}
BENCHMARK(MessageFlood)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace zepril
