// Circles, their texts and frequencies, and what is left out beyond the window.
#include "map/circles_layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>
#include <string>

#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "map/map_view.h"
#include "map/scale_text.h"
#include "tests/doubles/recorder_surface.h"

namespace zepril {
namespace {

// A window so large that no circle and no text is left out.
struct Circles {
  explicit Circles(double metres_per_pixel, int width = 3000, int height = 2600)
      : Surface(width, height) {
    View.ViewWidthPx = width;
    View.ViewHeightPx = height;
    View.CentreNorthKm = 5800.0;
    View.CentreEastKm = 400.0;
    View.MetresPerPixel = metres_per_pixel;
    View.PixelsPerKm = 1000.0 / metres_per_pixel;
  }
  void Draw() { CirclesLayer(Surface, View, Inputs); }
  std::set<std::string> Words() const {
    std::set<std::string> words;
    for (const auto& text : Surface.Of("text"))
      words.insert(text.Words);
    return words;
  }
  // The black text at a place.
  std::string TextAt(int x, int y) const {
    for (const auto& text : Surface.Of("text")) {
      if (text.X1 == x && text.Y1 == y && text.Ink == kBlack) return text.Words;
    }
    return {};
  }

  RecorderSurface Surface;
  MapViewState View;
  PropagationInputs Inputs{40.0, 2.0, 6, 12.0};
};

TEST(CirclesLayer, TenBlackCirclesStandAroundTheCentre) {
  Circles circles(5000.0);
  circles.Draw();
  const auto drawn = circles.Surface.Of("circle");
  ASSERT_EQ(drawn.size(), 10u);
  for (int i = 0; i < 10; ++i) {
    const auto& circle = drawn[static_cast<std::size_t>(i)];
    EXPECT_EQ(circle.X1, 1500);
    EXPECT_EQ(circle.Y1, 1299);
    EXPECT_EQ(circle.X2, 100 * (i + 1));
    EXPECT_EQ(circle.Ink, kBlack);
  }
}

TEST(CirclesLayer, DistancesStandEastSouthWestAndNorth) {
  Circles circles(5000.0);
  circles.Draw();
  EXPECT_EQ(circles.TextAt(1500 + 100 - 14, 1299 - 14), "500 km");
  EXPECT_EQ(circles.TextAt(1500 - 14, 1299 + 100 - 14), "500 km");
  EXPECT_EQ(circles.TextAt(1500 - 100 - 14, 1299 - 14), "500 km");
  EXPECT_EQ(circles.TextAt(1500 - 14, 1299 - 100 - 14), "500 km");
  EXPECT_EQ(circles.TextAt(1500 + 1000 - 14, 1299 - 14), "5000 km");
}

TEST(CirclesLayer, TextsAreWhiteAtNinePlacesAndThenBlack) {
  Circles circles(5000.0);
  circles.Draw();
  const auto texts = circles.Surface.Of("text");
  const int x = 1500 + 100 - 14;
  const int y = 1299 - 14;
  std::set<std::pair<int, int>> white;
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(texts[i].Words, "500 km");
    EXPECT_EQ(texts[i].Ink, kWhite);
    white.insert({texts[i].X1 - x, texts[i].Y1 - y});
  }
  EXPECT_EQ(white.size(), 9u);
  EXPECT_EQ(white.count({-1, -1}), 1u);
  EXPECT_EQ(white.count({1, 1}), 1u);
  EXPECT_EQ(texts[9].Ink, kBlack);
  EXPECT_EQ(texts[9].X1, x);
  EXPECT_EQ(texts[9].Y1, y);
  // The frequency: 8 to the right, 15 lower.
  EXPECT_EQ(texts[19].X1, x + 8);
  EXPECT_EQ(texts[19].Y1, y + 15);
  EXPECT_EQ(texts[19].Words.substr(0, 5), "Fopt=");
}

TEST(CirclesLayer, FrequenciesEndBeforeThreeThousandAndOneKilometres) {
  Circles circles(5000.0);
  circles.Draw();
  EXPECT_EQ(circles.TextAt(1500 + 600 - 14, 1299 - 14), "3000 km");
  EXPECT_NE(circles.TextAt(1500 + 600 - 6, 1299 + 1), "");
  EXPECT_EQ(circles.TextAt(1500 + 700 - 14, 1299 - 14), "3500 km");
  EXPECT_EQ(circles.TextAt(1500 + 700 - 6, 1299 + 1), "");
  Circles a_little_more(5001.0);
  a_little_more.Draw();
  EXPECT_EQ(a_little_more.TextAt(1500 + 600 - 14, 1299 - 14), "3000.6 km");
  EXPECT_NE(a_little_more.TextAt(1500 + 600 - 6, 1299 + 1), "");
  Circles at_the_limit(3001.0);
  at_the_limit.Draw();
  EXPECT_EQ(at_the_limit.TextAt(1500 + 1000 - 14, 1299 - 14), "3001 km");
  EXPECT_EQ(at_the_limit.TextAt(1500 + 1000 - 6, 1299 + 1), "");
}

TEST(CirclesLayer, DistancesAreWrittenShort) {
  Circles circles(0.5);
  circles.Draw();
  const auto words = circles.Words();
  EXPECT_EQ(words.count("0.05 km"), 1u);
  EXPECT_EQ(words.count("0.15 km"), 1u);
  EXPECT_EQ(words.count("0.5 km"), 1u);
  Circles coarse(12.5);
  coarse.Draw();
  EXPECT_EQ(coarse.Words().count("1.25 km"), 1u);
}

TEST(CirclesLayer, TheFrequencyIsThatOfThePlaceOnTheGrid) {
  Circles circles(5000.0);
  circles.Draw();
  const auto geo = [](double north, double east) {
    return UtmToGeodetic(15.0, east * 1000.0, north * 1000.0, 500000.0);
  };
  const Geodetic centre = geo(5800.0, 400.0);
  const auto fopt = [&](double north, double east) {
    const Geodetic there = geo(north, east);
    return "Fopt=" + PlainNumber(PropagationEstimate(centre.Lat, centre.Lon, there.Lat + 0.01,
                                                     there.Lon + 0.01, circles.Inputs)
                                     .Fopt);
  };
  EXPECT_EQ(circles.TextAt(1500 + 600 - 6, 1299 + 1), fopt(5800.0, 3400.0));
  EXPECT_EQ(circles.TextAt(1500 - 6, 1299 + 600 + 1), fopt(2800.0, 400.0));
  EXPECT_EQ(circles.TextAt(1500 - 600 - 6, 1299 + 1), fopt(5800.0, -2600.0));
  EXPECT_EQ(circles.TextAt(1500 - 6, 1299 - 600 + 1), fopt(8800.0, 400.0));
}

TEST(CirclesLayer, TheDetailedModeShowsBothModelsAndTheirMean) {
  Circles circles(5000.0);
  circles.View.FoptDetailed = true;
  circles.Draw();
  const std::string text = circles.TextAt(1500 + 600 - 6, 1299 + 1);
  const auto parts = Split(text, ' ');
  ASSERT_EQ(parts.size(), 3u) << text;
  EXPECT_NEAR(Val(parts[2]), (2.0 * Val(parts[0]) + Val(parts[1])) / 3.0, 0.11);
  for (const std::string& word : circles.Words())
    EXPECT_EQ(word.find("Fopt"), std::string::npos);
}

TEST(CirclesLayer, WithoutAnEstimateOnlyTheDistanceIsShown) {
  Circles circles(5000.0);
  circles.Inputs.KpIndex = -1.0;
  circles.Draw();
  for (const std::string& word : circles.Words())
    EXPECT_NE(word.find(" km"), std::string::npos);
  EXPECT_EQ(circles.Surface.Of("text").size(), 400u);
}

TEST(CirclesLayer, WhatIsLeftOutLiesOutsideTheWindow) {
  for (const auto& [width, height] : {std::pair{1200, 800}, {300, 900}, {97, 41}, {2400, 100}}) {
    Circles small(200.0, width, height);
    small.Draw();
    // The same circles in the middle of a larger window, moved.
    Circles large(200.0, width + 4000, height + 4000);
    large.Draw();
    std::vector<RecorderSurface::Operation> seen;
    for (auto operation : large.Surface.Operations) {
      operation.X1 -= 2000;
      operation.Y1 -= 2000;
      const auto found =
          std::find(small.Surface.Operations.begin(), small.Surface.Operations.end(), operation);
      if (found != small.Surface.Operations.end()) {
        seen.push_back(operation);
        continue;
      }
      if (operation.Kind == "text") {
        const int right = operation.X1 + 8 * static_cast<int>(operation.Words.size());
        EXPECT_TRUE(right < 0 || operation.X1 >= width || operation.Y1 + 16 < 0 ||
                    operation.Y1 >= height)
            << operation.Words << " at " << operation.X1 << ", " << operation.Y1;
      } else {
        const double x = width / 2.0;
        const double y = height / 2.0 + 1.0;
        EXPECT_LT(std::hypot(x, y), operation.X2) << "circle";
      }
    }
    EXPECT_EQ(seen, small.Surface.Operations);  // in the same order
  }
}

}  // namespace
}  // namespace zepril
