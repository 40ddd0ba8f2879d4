// Decoding of 100,000 varied packets, in process. What is to be kept is the speed of the field's
// usual decoder, decode_aprs, whole process against whole process: bench/compare measures that.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/tnc2_lines.h"
#include "tool/decode_station.h"
#include "tool/tnc2.h"

namespace {

constexpr int kLines = 100000;

std::vector<std::string> Frames() {
  zepril::Tnc2Lines lines;
  std::vector<std::string> frames(kLines);
  for (std::string& frame : frames)
    zepril::Tnc2ToNormal(lines.Next(), frame);
  return frames;
}

void DecodePackets(benchmark::State& state) {
  const std::vector<std::string> frames = Frames();
  zepril::DecodeSettings settings;
  settings.Now = {2024, 1, 15, 12, 34, 0};
  for (auto _ : state) {
    zepril::DecodeStation station(settings);
    for (const std::string& frame : frames) {
      station.Receive(frame);
      station.LongLog().clear();
    }
    benchmark::DoNotOptimize(station.Counts().Stored);
  }
  state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(DecodePackets)->Unit(benchmark::kMillisecond);

}  // namespace
