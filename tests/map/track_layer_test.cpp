// The track's line, its texts and its breaks, and the point at a press.
#include "map/track_layer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

#include "geodesy/coordinate_texts.h"
#include "map/line_batch.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "tests/map/kilometre_window.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Operation = RecorderSurface::Operation;

struct TrackWindow : KilometreWindow {
  void Add(double x, double y, const std::string& text = "") {
    const PositionTexts at = FormatGpsPositionTexts(1000.0 - y, x);
    Track.Append("\xFE" + at.North + at.East + text);
  }
  const std::vector<Operation>& Draw() {
    Surface.Operations.clear();
    TrackLayer(Surface, View, Track);
    return Surface.Operations;
  }

  PointList Track{1000000, 256};
};

TEST(TrackLayer, IsALineOfThreePixelsFromPointToPoint) {
  TrackWindow window;
  window.Add(100, 200);
  window.Add(110, 205);
  EXPECT_THAT(window.Draw(),
              ElementsAre(Line(99, 200, 109, 205, GpsColour), Line(101, 200, 111, 205, GpsColour),
                          Line(100, 199, 110, 204, GpsColour), Line(100, 201, 110, 206, GpsColour),
                          Line(100, 200, 110, 205, GpsColour)));
}

TEST(TrackLayer, ALineOfMoreThan34CharactersHasAColourOfItsOwn) {
  TrackWindow window;
  window.Add(100, 200);
  window.Add(110, 205, " 20240514 1230 ");  // 34 characters
  window.Add(120, 205, " 20240514 1230 x");
  window.Draw();
  const auto lines = window.Surface.Of("line");
  ASSERT_THAT(lines, SizeIs(10));
  EXPECT_EQ(lines[4].Ink, GpsColour);
  EXPECT_EQ(lines[5].Ink, 0xD0FF90u);
}

TEST(TrackLayer, APointAtZeroBreaksTheLine) {
  TrackWindow window;
  window.Add(100, 200);
  window.Add(110, 205);
  window.Track.Append("\xFE    0.000    0.000");
  window.Add(120, 205);
  window.Track.Append("");
  window.Add(130, 205);
  EXPECT_THAT(window.Draw(), SizeIs(5));
}

TEST(TrackLayer, ShortLinesAreDrawnWhateverTheFirstOneIs) {
  TrackWindow window;
  window.Track.Append("\xFE  800.000  100.000");
  window.Track.Append("\xFE  800.000  110.000 20240514 1230");
  EXPECT_THAT(window.Draw(), SizeIs(7));
}

TEST(TrackLayer, TheLastPointsTextStandsInABlackBox) {
  TrackWindow window;
  window.Add(100, 200, " first");
  window.Add(110, 205, " 20240514 1230");
  window.Draw();
  EXPECT_THAT(window.Surface.Of("filled"),
              ElementsAre(Filled(126, 198, 126 + 8 * 13, 210, kBlack)));
  EXPECT_THAT(window.Surface.Of("text"), ElementsAre(Words(127, 196, "20240514 1230", GpsColour)));
}

TEST(TrackLayer, ALastTextOfItsOwnIsInTheColourOfItsLine) {
  TrackWindow window;
  window.Add(100, 200);
  window.Add(110, 205, " 20240514 1230 STOP");
  window.Track.Append("");  // no point
  window.Draw();
  EXPECT_THAT(window.Surface.Of("text"),
              ElementsAre(Words(127, 196, "20240514 1230 STOP", 0xD0FF90)));
}

TEST(TrackLayer, OneOrNoPointDrawsNoLine) {
  TrackWindow window;
  EXPECT_THAT(window.Draw(), IsEmpty());
  window.Add(100, 200);
  EXPECT_THAT(window.Draw(), IsEmpty());
}

TEST(TrackLayer, PixelsAreHeldWithin32000) {
  TrackWindow window;
  window.View.PixelsPerKm = 500.0;  // two metres a pixel
  window.View.ViewNorthKm = 1000.0;
  window.View.ViewWestKm = 0.0;
  window.Track.Append("\xFE 1000.000 9999.000");
  window.Track.Append("\xFE  999.800    0.100");
  window.Draw();
  ASSERT_THAT(window.Surface.Of("line"), SizeIs(5));
  EXPECT_EQ(window.Surface.Of("line")[0], Line(31999, 0, 49, 100, GpsColour));
}

TEST(TrackLayer, WhatLiesBeyondAnEdgeOrStandsStillIsNotDrawnAgain) {
  TrackWindow window;
  for (int i = 0; i < 1000; ++i)
    window.Add(-500 - i, 100 + i % 2);
  EXPECT_THAT(window.Draw(), IsEmpty());
  window.Track.Clear();
  for (int i = 0; i < 1000; ++i)
    window.Add(100, 200);
  EXPECT_THAT(window.Draw(), SizeIs(5));
}

TEST(TrackLayer, ALongTrackIsSentInPieces) {
  TrackWindow window;
  for (int i = 0; i < 20000; ++i)
    window.Add(100 + i % 500, 200 + i % 2);
  EXPECT_THAT(window.Draw(), SizeIs(5 * 19999));
}

TEST(TrackLayer, DamagedLinesAndViewsAreHarmless) {
  std::mt19937 random(5);
  TrackWindow window;
  for (int i = 0; i < 2000; ++i) {
    std::string line(random() % 60, ' ');
    for (char& c : line)
      c = static_cast<char>(random() % 256);
    window.Track.Append(line);
  }
  window.Track.Append(
      "\xFE"
      "9999e9999-9e99.999");
  EXPECT_LE(window.Draw().size(), 8100u);
  window.View.PixelsPerKm = std::numeric_limits<double>::infinity();
  EXPECT_LE(window.Draw().size(), 8100u);
  window.View.ViewNorthKm = std::numeric_limits<double>::quiet_NaN();
  EXPECT_LE(window.Draw().size(), 8100u);
}

// ---- Texts of points ------------------------------------------------------------------------

TEST(TrackPointText, IsBlackInABoxOfTheTracksColourBesideTheCursor) {
  TrackWindow window;
  window.Add(100, 200, " 20240514 1230");
  DrawTrackPointText(window.Surface, window.Track, 1, 100, 200);
  EXPECT_THAT(window.Surface.Operations, ElementsAre(Filled(116, 193, 116 + 8 * 13, 205, GpsColour),
                                                     Words(116, 191, "20240514 1230", kBlack)));
}

TEST(TrackPointText, IsMovedIntoTheWindow) {
  TrackWindow window;
  window.Add(100, 200, " 20240514 1230");
  for (const PixelPoint at : {PixelPoint{799, 599}, PixelPoint{0, 0}, PixelPoint{799, 0}}) {
    window.Surface.Operations.clear();
    DrawTrackPointText(window.Surface, window.Track, 1, at.X, at.Y);
    const Operation box = window.Surface.Of("filled").front();
    EXPECT_GE(box.X1, 0);
    EXPECT_LE(box.X2, 799);
    EXPECT_GE(window.Surface.Of("text").front().Y1, 0);
    EXPECT_LE(box.Y2, 599);
  }
}

TEST(TrackPointText, APointWithoutTextDrawsNothing) {
  TrackWindow window;
  window.Add(100, 200);
  DrawTrackPointText(window.Surface, window.Track, 1, 100, 200);
  EXPECT_THAT(window.Surface.Operations, IsEmpty());
}

// ---- Points near a press --------------------------------------------------------------------

TEST(PointNear, IsTheFirstWithinTheToleranceBothWays) {
  TrackWindow window;
  window.Track.Append("");
  window.Add(100.0, 200.0);
  window.Add(100.5, 200.0);
  EXPECT_EQ(FindPointNear(window.Track, 800.0, 100.4, 1.0), 2);
  EXPECT_EQ(FindPointNear(window.Track, 800.0, 101.2, 1.0), 3);
  EXPECT_EQ(FindPointNear(window.Track, 801.5, 100.0, 1.0), std::nullopt);
  EXPECT_EQ(FindPointNear(window.Track, 800.0, 98.5, 1.0), std::nullopt);
}

TEST(PointNear, TheToleranceItselfIsTooFar) {
  TrackWindow window;
  window.Add(100.0, 200.0);
  EXPECT_EQ(FindPointNear(window.Track, 800.0, 101.0, 1.0), std::nullopt);
  EXPECT_EQ(FindPointNear(window.Track, 799.0, 100.0, 1.0), std::nullopt);
  EXPECT_EQ(FindPointNear(window.Track, 800.0, 100.0, 0.0), std::nullopt);
  EXPECT_EQ(FindPointNear(window.Track, std::numeric_limits<double>::quiet_NaN(), 100.0, 1.0),
            std::nullopt);
}

}  // namespace
}  // namespace zepril
