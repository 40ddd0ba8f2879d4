// Runs the benchmarks that paint. The fonts need an application, which must be gone before the
// toolkit's own globals are.
#include <QGuiApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
}
