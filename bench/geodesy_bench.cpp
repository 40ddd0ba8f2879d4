// GeodeticToUtm against the same projection of the PROJ library (proj_trans_array, +proj=utm), the
// same points in the same run.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <limits>
#include <vector>

#include "geodesy/conversions.h"

#ifdef ZEPRIL_HAVE_PROJ
#include <proj.h>
#endif

namespace {

constexpr int kPoints = 100000;
constexpr double kMeridian = 15.0;
constexpr int kRounds = 15;

// Points over zone 33 that no two of share a latitude.
std::vector<zepril::Geodetic> Points() {
  std::vector<zepril::Geodetic> points(kPoints);
  for (int i = 0; i < kPoints; ++i) {
    points[static_cast<std::size_t>(i)] = {9.0 + (i % 1201) * 0.01, i * 84.0 / kPoints};
  }
  return points;
}

double ConvertHere(const std::vector<zepril::Geodetic>& points) {
  double sum = 0;
  for (const zepril::Geodetic& point : points) {
    const auto grid =
        zepril::GeodeticToUtm(point.Lon, point.Lat, kMeridian, zepril::kUtmFalseEasting);
    sum += grid.East + grid.North;
  }
  return sum;
}

void GeodeticToUtm(benchmark::State& state) {
  const auto points = Points();
  for (auto _ : state)
    benchmark::DoNotOptimize(ConvertHere(points));
  state.SetItemsProcessed(state.iterations() * kPoints);
}
BENCHMARK(GeodeticToUtm)->Unit(benchmark::kMillisecond);

#ifdef ZEPRIL_HAVE_PROJ

class Proj {
 public:
  Proj() : context_(proj_context_create()) {
    projection_ = proj_create(context_, "+proj=utm +zone=33 +ellps=GRS80");
    for (const auto& point : Points())
      points_.push_back(proj_coord(proj_torad(point.Lon), proj_torad(point.Lat), 0, 0));
  }
  ~Proj() {
    proj_destroy(projection_);
    proj_context_destroy(context_);
  }
  Proj(const Proj&) = delete;
  Proj& operator=(const Proj&) = delete;

  // The array is converted in place, so each round starts from a copy; the copy is not timed.
  void Prepare() { work_ = points_; }
  double Convert() {
    proj_trans_array(projection_, PJ_FWD, work_.size(), work_.data());
    return work_.front().xy.x + work_.back().xy.y;
  }

 private:
  PJ_CONTEXT* context_;
  PJ* projection_ = nullptr;
  std::vector<PJ_COORD> points_;
  std::vector<PJ_COORD> work_;
};

void ProjTransArray(benchmark::State& state) {
  Proj proj;
  for (auto _ : state) {
    state.PauseTiming();
    proj.Prepare();
    state.ResumeTiming();
    benchmark::DoNotOptimize(proj.Convert());
  }
  state.SetItemsProcessed(state.iterations() * kPoints);
}
BENCHMARK(ProjTransArray)->Unit(benchmark::kMillisecond);

template <typename Work>
double Seconds(Work work) {
  const auto start = std::chrono::steady_clock::now();
  benchmark::DoNotOptimize(work());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Both in turn, the best round of each: how many times as fast as PROJ.
void TimesAsFastAsProj(benchmark::State& state) {
  const auto points = Points();
  Proj proj;
  double here = std::numeric_limits<double>::max();
  double there = here;
  for (auto _ : state) {
    for (int round = 0; round < kRounds; ++round) {
      proj.Prepare();
      there = std::min(there, Seconds([&] { return proj.Convert(); }));
      here = std::min(here, Seconds([&] { return ConvertHere(points); }));
    }
  }
  state.counters["times_as_fast_as_proj"] = there / here;
}
BENCHMARK(TimesAsFastAsProj)->Iterations(3)->Unit(benchmark::kMillisecond);

#endif

}  // namespace
