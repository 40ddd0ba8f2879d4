// Marks and names of places, damaged lines included.
#include "map/poi_layer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "geodesy/coordinate_texts.h"
#include "map/map_view.h"
#include "tests/map/kilometre_window.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Operation = RecorderSurface::Operation;

constexpr Colour kYellow = 0x00E0FF;

struct PlaceWindow : KilometreWindow {
  explicit PlaceWindow(int level = 2) { View.PoiLevel = level; }
  void Add(double x, double y, const std::string& name) {
    const PositionTexts at = FormatPoiPositionTexts(1000.0 - y, x);
    Places.Append("\xFE" + at.North + at.East + "  " + name);
  }
  const std::vector<Operation>& Draw() {
    Surface.Operations.clear();
    PoiLayer(Surface, View, Places);
    return Surface.Operations;
  }

  PointList Places{30010, 1024};
};

TEST(PoiLayer, AMarkIsPrintedNineTimesInBlackAndOnceInYellow) {
  PlaceWindow window(1);
  window.Add(100, 200, "HUT");
  std::vector<Operation> expected;
  for (int x = 88; x <= 90; ++x) {
    for (int y = 186; y <= 188; ++y)
      expected.push_back({"text", x, y, 0, 0, kBlack, "n", FontFace::Marks, {}});
  }
  expected.push_back({"text", 89, 187, 0, 0, kYellow, "n", FontFace::Marks, {}});
  EXPECT_THAT(window.Draw(), testing::ElementsAreArray(expected));
}

TEST(PoiLayer, TheSecondLevelHasNamesInBlackBoxes) {
  PlaceWindow window;
  window.Add(100, 200, "HUT");
  window.Draw();
  EXPECT_THAT(
      window.Surface.Of("filled"),
      ElementsAre(Operation{"filled", 116, 193, 116 + 8 * 3, 205, kBlack, {}, FontFace::Text, {}}));
  EXPECT_EQ(window.Surface.Operations.back(),
            (Operation{"text", 117, 191, 0, 0, kYellow, "HUT", FontFace::Text, {}}));
}

TEST(PoiLayer, ANameIsTheSameFromColumn21And22) {
  PlaceWindow window;
  window.Places.Append("\xFE  800.000  100.000 CABIN");
  window.Draw();
  EXPECT_EQ(window.Surface.Operations.back().Words, "CABIN");
}

TEST(PoiLayer, APlaceWithoutANameIsAMarkAlone) {
  PlaceWindow window;
  window.Add(100, 200, "");
  EXPECT_THAT(window.Draw(), SizeIs(10));
}

TEST(PoiLayer, PlacesBeyond3200PixelsAreLeftOut) {
  PlaceWindow window;
  // So long a name that it would reach into the window.
  window.Add(-3201, 200, std::string(1000, 'x'));
  EXPECT_THAT(window.Draw(), IsEmpty());
  window.Add(-3200, 200, std::string(1000, 'x'));
  EXPECT_THAT(window.Draw(), SizeIs(12));
}

TEST(PoiLayer, WhatDoesNotReachTheWindowIsNotDrawn) {
  PlaceWindow window;
  window.Add(-400, 200, "HUT");
  window.Add(1200, 200, "HUT");
  window.Add(100, -100, "HUT");
  window.Add(100, 800, "HUT");
  EXPECT_THAT(window.Draw(), IsEmpty());
  window.Add(-20, 200, "HUT");  // the name shows
  window.Add(805, 200, "HUT");  // the left of the mark shows
  window.Add(100, -5, "HUT");
  window.Add(100, 605, "HUT");
  EXPECT_THAT(window.Draw(), SizeIs(4 * 12));
}

TEST(PoiLayer, DamagedLinesAndViewsAreHarmless) {
  std::mt19937 random(5);
  PlaceWindow window;
  for (int i = 0; i < 2000; ++i) {
    std::string line(random() % 60, ' ');
    for (char& c : line)
      c = static_cast<char>(random() % 256);
    window.Places.Append(line);
  }
  window.Places.Append(
      "\xFE"
      "9999e9999-9e99.999  X");
  EXPECT_LE(window.Draw().size(), 12u * 2001u);
  window.View.PixelsPerKm = std::numeric_limits<double>::infinity();
  EXPECT_LE(window.Draw().size(), 12u * 2001u);
  window.View.ViewWestKm = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(window.Draw(), IsEmpty());
}

}  // namespace
}  // namespace zepril
