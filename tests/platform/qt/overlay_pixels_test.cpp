// Tracks and places leave out what can't show: the picture is the same as when everything is drawn.
#include <QImage>
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "core/position_text.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/poi_layer.h"
#include "map/track_layer.h"
#include "platform/qt/qt_surface.h"

namespace zepril {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 200;

// Every segment, each as five lines.
void EverySegment(DrawingSurface& surface, const MapViewState& view, const PointList& track) {
  bool has_last = false;
  PixelPoint last;
  for (int i = 1; i <= track.Count(); ++i) {
    const bool broken = track.NorthKm(i) == 0.0 && track.EastKm(i) == 0.0;
    const PixelPoint at{
        DrawPixel((track.EastKm(i) - view.ViewWestKm) * view.PixelsPerKm, 32000.0),
        DrawPixel((view.ViewNorthKm - track.NorthKm(i)) * view.PixelsPerKm, 32000.0)};
    if (!broken && has_last) {
      const Colour colour = track.Line(i).size() > 34 ? 0xD0FF90 : GpsColour;
      surface.Line(last.X - 1, last.Y, at.X - 1, at.Y, colour);
      surface.Line(last.X + 1, last.Y, at.X + 1, at.Y, colour);
      surface.Line(last.X, last.Y - 1, at.X, at.Y - 1, colour);
      surface.Line(last.X, last.Y + 1, at.X, at.Y + 1, colour);
      surface.Line(last.X, last.Y, at.X, at.Y, colour);
    }
    has_last = !broken;
    last = at;
  }
}

// Every place that is not too far away, wherever it shows.
void EveryPlace(DrawingSurface& surface, const MapViewState& view, const PointList& places) {
  for (int i = 1; i <= places.Count(); ++i) {
    const PixelPoint at = MarkPixel(view, places.NorthKm(i), places.EastKm(i));
    if (std::abs(at.X) > 3200 || std::abs(at.Y) > 3200) continue;
    for (int dx = -12; dx <= -10; ++dx) {
      for (int dy = -14; dy <= -12; ++dy)
        surface.Text(at.X + dx, at.Y + dy, "n", FontFace::Marks, kBlack);
    }
    surface.Text(at.X - 11, at.Y - 13, "n", FontFace::Marks, 0x00E0FF);
    const std::string name(places.Name(i));
    if (name.empty()) continue;
    surface.FilledBox(at.X + 16, at.Y - 7, at.X + 16 + 8 * static_cast<int>(name.size()), at.Y + 5,
                      kBlack);
    surface.Text(at.X + 17, at.Y - 9, name, FontFace::Text, 0x00E0FF);
  }
}

class OverlayPixels : public testing::Test {
 protected:
  OverlayPixels()
      : random_(17), quick_(kWidth, kHeight, fonts_), literal_(kWidth, kHeight, fonts_) {
    fonts_.LoadFonts(QStringLiteral(ZEPRIL_SOURCE_DIR "/data/fonts"));
    view_.ViewWidthPx = kWidth;
    view_.ViewHeightPx = kHeight;
    view_.MapTileKm = 50.0;
    view_.CentreNorthKm = 5825.0;
    view_.CentreEastKm = 425.0;
  }

  double Spread(double middle, double reach) {
    return middle + reach * (static_cast<double>(random_() % 20001) / 10000.0 - 1.0);
  }
  std::string LineAt(double north, double east, const std::string& text) {
    return "\xFE" + RecordNorthText(north * 1000.0) + RecordEastText(east * 1000.0) + text;
  }
  void ClearBoth() {
    // No colour of the layers, so that black rims show too.
    quick_.Clear(0x404040);
    literal_.Clear(0x404040);
  }

  std::mt19937 random_;
  MapFonts fonts_;
  QtSurface quick_;
  QtSurface literal_;
  MapViewState view_;
};

TEST_F(OverlayPixels, OfATrackAreThoseOfEverySegment) {
  for (int round = 0; round < 60; ++round) {
    view_.ZoomFactor = std::pow(2.0, round % 6 - 2);
    ComputeViewEdges(view_);
    PointList track(10000, 256);
    // Steps from none to far out of the window and beyond the reach of pixels, breaks, two colours.
    const double step = std::pow(10.0, round % 7 - 3);
    double north = 5825.0;
    double east = 425.0;
    for (int i = 0; i < 400; ++i) {
      if (random_() % 3 != 0) {
        north = Spread(north, step);
        east = Spread(east, step);
      }
      if (random_() % 50 == 0) {
        north = Spread(5825.0, 20.0);
        east = Spread(425.0, 20.0);
      }
      // Now and then, or so often that points stand alone.
      if (random_() % (round % 2 == 0 ? 40 : 3) == 0) track.Append("\xFE    0.000    0.000");
      track.Append(LineAt(north, east, random_() % 10 == 0 ? std::string(16, ' ') : ""));
    }
    ClearBoth();
    TrackLayer(quick_, view_, track);
    EverySegment(literal_, view_, track);
    ASSERT_TRUE(quick_.Picture() == literal_.Picture()) << "round " << round;
  }
}

TEST_F(OverlayPixels, OfPlacesAreThoseOfEveryPlace) {
  view_.PoiLevel = 2;
  for (int round = 0; round < 40; ++round) {
    ComputeViewEdges(view_);
    PointList places(30010, 1024);
    const double reach = round % 2 == 0 ? 12.0 : 60.0;
    for (int i = 0; i < 60; ++i) {
      places.Append(LineAt(Spread(5825.0, reach), Spread(425.0, reach),
                           "  " + std::string(random_() % 60, 'A')));
    }
    ClearBoth();
    PoiLayer(quick_, view_, places);
    EveryPlace(literal_, view_, places);
    ASSERT_TRUE(quick_.Picture() == literal_.Picture()) << "round " << round;
  }
}

}  // namespace
}  // namespace zepril
