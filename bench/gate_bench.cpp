// A flood on its way to the internet: blocks of heard text, made into lines.
#include <benchmark/benchmark.h>

#include <string>

#include "core/text_fields.h"
#include "gate/gate_lines.h"

namespace zepril {
namespace {

constexpr int kFrames = 10000;

std::string FrameOf(std::string_view dialect, const std::string& number) {
  const std::string data = "!5232.00N/01324.00E[a report like many others, no. " + number;
  if (dialect == "AGW") {
    return "1:Fm QX2CD-7 To APRS Via QX0DIG*,WIDE2-1 <UI pid=F0 Len=60 >[12:34:56]\r" + data +
           "\r\r";
  }
  if (dialect == "PK-232") return "QX2CD-7>QX0DIG*>WIDE2-1>APRS <UI>:\r\n" + data + "\r\n";
  return "1:fm QX2CD-7 to APRS via QX0DIG* WIDE2-1 ctl UI pid F0\r\n" + data + "\r\n";
}

// All frames in one block.
void GateFlood(benchmark::State& state, const char* dialect) {
  std::string block;
  for (int frame = 0; frame < kFrames; ++frame)
    block += FrameOf(dialect, WholeNumber(frame));
  const GateForm form = GateFormOf(dialect);
  for (auto _ : state) {
    const GateLines gated = GateLinesOf(form, block, "QX7KB-10");
    if (gated.Lines.size() != kFrames) state.SkipWithError("frames are missing");
    benchmark::DoNotOptimize(gated.Lines.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(block.size()));
}

BENCHMARK_CAPTURE(GateFlood, engine, "AGW")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GateFlood, pk232, "PK-232")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(GateFlood, scs, "SCS PTC")->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zepril
