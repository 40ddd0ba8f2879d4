// The conversions against the `proj` program of the PROJ project, which computes the same
// projection by another method.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

constexpr double kMeridian = 15.0;
constexpr double kTolerance = 1e-5;  // metres: 0.01 mm
// The short sums of the way back leave 0.0124 mm at the edge of the zone.
constexpr double kToleranceBack = 2e-5;
constexpr double kMetresADegree = 111319.49079327358;  // on the equator

struct Pair {
  double First = 0;
  double Second = 0;
};

// A grid of points within 6 degrees of the meridian, both ends, no round numbers between.
std::vector<Pair> PointsAroundTheMeridian() {
  std::vector<Pair> points;
  for (double lat = 0.0; lat <= 84.0; lat += 0.4375) {
    for (double offset = -6.0; offset <= 6.0; offset += 0.46875) {
      points.push_back({kMeridian + offset, lat});
    }
  }
  return points;
}

class ProjTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (std::system("command -v proj >/dev/null 2>&1") != 0) {
      GTEST_SKIP() << "the program proj (package proj-bin) is not installed";
    }
  }

  // All points through one run of proj.
  std::vector<Pair> Projected(const std::vector<Pair>& points, int decimals,
                              const std::string& options) {
    std::string input;
    for (const Pair& point : points) {
      input += FixedNumber(point.First, 9) + " " + FixedNumber(point.Second, 9) + "\n";
    }
    std::ofstream(folder.Sub("in"), std::ios::binary) << input;
    const std::string command = "proj " + options + " -f %." + WholeNumber(decimals) +
                                "f +proj=utm +zone=33 +ellps=GRS80 <'" + folder.Sub("in") + "' >'" +
                                folder.Sub("out") + "'";
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    std::ifstream output(folder.Sub("out"), std::ios::binary);
    std::vector<Pair> results;
    for (std::string line; std::getline(output, line);) {
      const auto fields = Split(line, '\t');
      if (fields.size() == 2) results.push_back({Val(fields[0]), Val(fields[1])});
    }
    return results;
  }

  TempFolder folder;
};

TEST_F(ProjTest, UtmAgreesToAHundredthOfAMillimetre) {
  const std::vector<Pair> points = PointsAroundTheMeridian();
  const std::vector<Pair> expected = Projected(points, 7, "");
  ASSERT_EQ(expected.size(), points.size());
  double worst = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const GridMetres here =
        GeodeticToUtm(points[i].First, points[i].Second, kMeridian, kUtmFalseEasting);
    worst = std::max({worst, std::abs(here.East - expected[i].First),
                      std::abs(here.North - expected[i].Second)});
  }
  RecordProperty("worst_nanometres", static_cast<int>(worst * 1e9));
  EXPECT_LT(worst, kTolerance);
}

TEST_F(ProjTest, TheWayBackAgreesToTwoHundredthsOfAMillimetre) {
  std::vector<Pair> points;
  for (const Pair& point : PointsAroundTheMeridian()) {
    const GridMetres grid = GeodeticToUtm(point.First, point.Second, kMeridian, kUtmFalseEasting);
    // Both programs get the same rounded metres.
    points.push_back({RoundHalfEven(grid.East * 1e4) / 1e4, RoundHalfEven(grid.North * 1e4) / 1e4});
  }
  const std::vector<Pair> expected = Projected(points, 13, "-I");
  ASSERT_EQ(expected.size(), points.size());
  double worst = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Geodetic here =
        UtmToGeodetic(kMeridian, points[i].First, points[i].Second, kUtmFalseEasting);
    const double shrink = std::cos(here.Lat * kConversionPi / 180.0);
    worst = std::max({worst, std::abs(here.Lon - expected[i].First) * kMetresADegree * shrink,
                      std::abs(here.Lat - expected[i].Second) * kMetresADegree});
  }
  RecordProperty("worst_nanometres", static_cast<int>(worst * 1e9));
  EXPECT_LT(worst, kToleranceBack);
}

}  // namespace
}  // namespace zepril
