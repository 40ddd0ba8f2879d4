// The view's geometry, the order of the layers, following, position marks, scale and bars.
#include "map/map_redraw.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "map/fill_bars.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/position_marks.h"
#include "map/scale_text.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using Operation = RecorderSurface::Operation;

// Writes a text for each layer it is asked for, so that its place in the order can be seen.
class MarkedOverlays final : public OverlayLayers {
 public:
  void GridLayer(DrawingSurface& surface, const MapViewState&, DisplayMode mode,
                 PixelPoint last_tile) override {
    surface.Text(last_tile.X, last_tile.Y, "grid " + WholeNumber(static_cast<int>(mode)),
                 FontFace::Text, 0);
  }
  void CirclesLayer(DrawingSurface& s, const MapViewState&) override { Mark(s, "circles"); }
  void PictureMarksLayer(DrawingSurface& s, const MapViewState&) override { Mark(s, "pictures"); }
  void TrackLayer(DrawingSurface& s, const MapViewState&) override { Mark(s, "tracks"); }
  void PoiLayer(DrawingSurface& s, const MapViewState&) override { Mark(s, "places"); }
  void ShowPicture(DrawingSurface& s, const MapViewState&) override { Mark(s, "picture"); }

 private:
  static void Mark(DrawingSurface& surface, std::string_view name) {
    surface.Text(0, 0, name, FontFace::Text, 0);
  }
};

// The kinds of operations in their order, each run of one kind told once; texts by their words.
std::vector<std::string> Story(const RecorderSurface& surface) {
  std::vector<std::string> story;
  for (const Operation& operation : surface.Operations) {
    std::string step = operation.Kind == "text" ? operation.Words : operation.Kind;
    if (operation.Kind == "line") step += operation.Ink == kBlack ? " black" : " coloured";
    if (story.empty() || story.back() != step) story.push_back(step);
  }
  return story;
}

TEST(MapView, EdgesAreAsymmetricByOnePixel) {
  MapWorld world;
  ComputeViewEdges(world.View());
  EXPECT_DOUBLE_EQ(world.View().ViewSouthKm, 5810.0);
  EXPECT_DOUBLE_EQ(world.View().ViewNorthKm, 5839.95);
  EXPECT_DOUBLE_EQ(world.View().ViewWestKm, 405.0);
  EXPECT_DOUBLE_EQ(world.View().ViewEastKm, 444.95);
}

TEST(MapView, ZoomZeroActsAsOneAndAnUnknownScaleAsTheCoarsest) {
  MapWorld world;
  world.View().ZoomFactor = 0.0;
  ComputeViewEdges(world.View());
  EXPECT_EQ(world.View().MetresPerPixel, 50.0);
  world.View().MapTileKm = 123.0;
  ComputeViewEdges(world.View());
  EXPECT_EQ(world.View().MetresPerPixel, 5000.0);
}

TEST(MapView, TheCentreIsHeldOnTheMap) {
  MapViewState view;
  view.CentreNorthKm = 9999.999;
  view.CentreEastKm = -20000.0;
  ClampCentre(view);
  EXPECT_EQ(view.CentreNorthKm, 9999.999);
  EXPECT_EQ(view.CentreEastKm, -9999.999);
  view.CentreNorthKm = 10000.0;
  ClampCentre(view);
  EXPECT_EQ(view.CentreNorthKm, 9999.999);
}

TEST(MapView, PixelsAreHeldWithinFourThousand) {
  EXPECT_EQ(DrawPixel(4000.4), 4000);
  EXPECT_EQ(DrawPixel(1e30), 4000);
  EXPECT_EQ(DrawPixel(-1e30), -4000);
  EXPECT_EQ(DrawPixel(0.0 / 0.0), 0);
  EXPECT_EQ(DrawPixel(2.5), 2);
  EXPECT_EQ(DrawPixel(-5000.0, 32000.0), -5000);
}

TEST(MapRedraw, LayersStandInTheirOrder) {
  MarkedOverlays overlays;
  MapWorld world(overlays);
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Controls.Scales.FrameBox[3].Value = 1;
  MapViewState& view = world.View();
  view.GridOn = view.CirclesOn = view.PicturesOn = view.TracksOn = true;
  view.PoiLevel = 1;
  view.StationLabelLevel = LabelLevel::MarksAndCalls;
  RecordMaker heard;
  heard.Symbol = "/-";
  world.Hear(heard);
  heard.Call = "QX7KB";
  world.Follow(heard);
  view.OwnNorthKm = 5820.0;
  view.OwnEastKm = 420.0;
  world.State.Transmission.ObjectName = "OBJECT";
  world.State.Transmission.ObjectNorth = 5820.0;
  world.State.Transmission.ObjectEast = 430.0;
  world.Redraw();
  EXPECT_THAT(Story(world.Surface),
              ElementsAre("clear", "image", "grid 0", "grid 1", "grid 2", "grid 3", "grid 4",
                          "circles", "line black", "box",  // tile frames, and on:
                          "filled", "N0CALL",              // all stations
                          "pictures", "tracks", "places",
                          "line coloured",                       // centre
                          "box", "filled", "QX7KB",              // monitored station
                          "box", "line black", "line coloured",  // own position
                          "i", "filled", "OBJECT"));
}

TEST(MapRedraw, LayersThatAreOffAreNotAskedFor) {
  MarkedOverlays overlays;
  MapWorld world(overlays);
  world.Hear({});
  world.Redraw();
  EXPECT_TRUE(world.Surface.Of("text").empty());
}

TEST(MapRedraw, TheGridStartsAtTheLastTilePlace) {
  MarkedOverlays overlays;
  MapWorld world(overlays);
  world.View().GridOn = true;
  world.View().ZoomFactor = 2.0;
  world.Redraw();
  // The last of 5750..5850 / 350..450.
  EXPECT_EQ(world.Surface.Of("text")[0].X1, 650);
  EXPECT_EQ(world.Surface.Of("text")[0].Y1, -451);
}

TEST(MapRedraw, APictureTakesThePlaceOfTheMapAndKeepsTheCycleGoing) {
  MarkedOverlays overlays;
  MapWorld world(overlays);
  world.View().PictureMode = MapShows::Picture;
  world.View().MapLockedOnRecord = 1;
  world.Redraw();
  EXPECT_THAT(Story(world.Surface), ElementsAre("clear", "picture"));
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP L");
  EXPECT_FALSE(world.View().MapDrawn);
}

TEST(MapRedraw, TellsTheCentreButtonAndMarksTheMapAsDrawn) {
  MapWorld world;
  world.Redraw();
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP");
  EXPECT_TRUE(world.View().MapDrawn);
  EXPECT_TRUE(world.Timer1.Enabled());
  EXPECT_EQ(world.Controls.Map.Picture1.Pointer, PointerShape::Default);
  EXPECT_GT(world.Controls.Map.Picture1.Revision, 0u);
}

TEST(MapRedraw, AJumpToTheOwnObjectLeavesTheTimerOffOnce) {
  MapWorld world;
  world.State.Transmission.ObjectNorth = 5900.0;
  world.State.Transmission.ObjectEast = 500.0;
  world.View().ObjectCenterPending = true;
  world.Redraw();
  EXPECT_EQ(world.View().CentreNorthKm, 5900.0);
  EXPECT_EQ(world.View().CentreEastKm, 500.0);
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_FALSE(world.View().ObjectCenterPending);
  world.Redraw();
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST(MapRedraw, FollowsTheStationUnlessItIsNowhere) {
  MapWorld world;
  world.View().CentreFollow = Following::Station;
  world.Redraw();
  EXPECT_EQ(world.View().CentreNorthKm, 5825.0);
  RecordMaker maker;
  maker.NorthKm = 5900.0;
  maker.EastKm = 500.0;
  world.Follow(maker);
  world.Redraw();
  EXPECT_EQ(world.View().CentreNorthKm, 5900.0);
  EXPECT_EQ(world.View().StationAnchorX, 400.0);
  EXPECT_EQ(world.View().StationAnchorY, 299.0);
}

TEST(MapRedraw, FollowsTheOwnPositionAndTakesItFromGps) {
  MapWorld world;
  world.View().CentreFollow = Following::OwnPosition;
  world.State.Gps.GpsNorthKm = 5950.0;
  world.State.Gps.GpsEastKm = 510.0;
  world.View().OwnNorthKm = 5800.0;
  world.View().OwnEastKm = 400.0;
  world.Redraw();
  EXPECT_EQ(world.View().CentreNorthKm, 5800.0);
  world.State.Gps.GpsFixValidBefore = 1;
  world.Redraw();
  EXPECT_EQ(world.View().OwnNorthKm, 5950.0);
  EXPECT_EQ(world.View().CentreEastKm, 510.0);
}

TEST(MapRedraw, OneJumpToTheTypedPositionEndsAllFollowing) {
  MapWorld world;
  world.Controls.Map.Option1.Value = true;
  world.Controls.Map.Option2.Value = true;
  world.View().QthNorthText = " 5837.450";
  world.View().QthEastText = "-  10.517";
  world.View().CentreFollow = Following::TypedPosition;
  world.Redraw();
  EXPECT_EQ(world.View().CentreNorthKm, 5837.45);
  EXPECT_EQ(world.View().CentreEastKm, -10.517);
  EXPECT_EQ(world.View().CentreFollow, Following::Nobody);
  EXPECT_FALSE(world.Controls.Map.Option1.Value);
  EXPECT_FALSE(world.Controls.Map.Option2.Value);
}

TEST(MapRedraw, TakesTheFocusUnlessAMessageIsBeingTyped) {
  MapWorld world;
  world.Controls.Chat.Text3.HasFocus = true;
  world.Redraw();
  EXPECT_FALSE(world.Controls.Map.Picture1.FocusWanted);
  world.Controls.Chat.Text3.HasFocus = false;
  world.Redraw();
  EXPECT_TRUE(world.Controls.Map.Picture1.FocusWanted);
}

TEST(MapRedraw, ANegativeCentreFindsTilesWithLetters) {
  MapWorld world;
  world.View().CentreNorthKm = -12.3;
  world.View().CentreEastKm = -0.5;
  world.AddTile("M0050", "@050@050.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  EXPECT_EQ(world.Surface.Of("image").size(), 1u);
}

TEST(MapRedraw, TheReadoutsKnowTheZoneOfTheMaps) {
  MapWorld world;
  world.State.Identity.MapZoneName = "U08";
  world.View().MapCentralMeridian = -135.0;
  world.Redraw();
  EXPECT_EQ(world.Controls.Readouts.Label2.Caption, "08!135  425.000");
  EXPECT_EQ(world.Room.ReadoutTexts.Values().UtmZoneText, " 8");
  // Later redraws leave the strips that a caption has chosen.
  world.Room.ReadoutTexts.Values().GkMeridianText = " 12";
  world.Redraw();
  EXPECT_EQ(world.Room.ReadoutTexts.Values().GkMeridianText, " 12");
}

TEST(MapRedraw, WithoutALibraryItIsAGreyFieldWithItsMarks) {
  MapWorld world;
  world.Redraw();
  EXPECT_TRUE(world.Surface.Of("image").empty());
  EXPECT_EQ(world.Surface.Of("filled")[0].Ink, 0x505050u);
  EXPECT_FALSE(world.Surface.Of("line").empty());
}

TEST(MapRedraw, ReadoutsScaleTextBarsAndCoverageAreUpToDate) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Hear({});
  world.Redraw();
  EXPECT_EQ(world.Controls.Readouts.Label1.Caption, "UTMcen 5825.000");
  EXPECT_EQ(world.Controls.Map.ScaleText.Caption, " \x96-   5 km  -\x96");
  EXPECT_EQ(world.Controls.Map.ScaleText.ForeColour, 0xC0C0C0u);
  EXPECT_TRUE(world.Controls.Scales.Covered[3]);
}

// ---- Marks of single positions --------------------------------------------------------------

TEST(CentreMark, IsAYellowXAroundTheCentrePixel) {
  MapWorld world;
  ComputeViewEdges(world.View());
  DrawCentreMark(world.Surface, world.View());
  EXPECT_THAT(world.Surface.Operations,
              ElementsAre(Operation{"line", 391, 290, 410, 309, 0x00FFFF, {}, FontFace::Text, {}},
                          Operation{"line", 391, 308, 410, 289, 0x00FFFF, {}, FontFace::Text, {}}));
}

TEST(CentreMark, IsNotDrawnWhileSomethingIsFollowed) {
  MapWorld world;
  world.View().CentreFollow = Following::OwnPosition;
  world.Redraw();
  for (const Operation& line : world.Surface.Of("line"))
    EXPECT_NE(line.X1, 391);
}

TEST(OwnPosition, IsARingOfBoxesWithTicksInTheColourOfItsSource) {
  MapWorld world;
  world.View().OwnNorthKm = 5825.0;
  world.View().OwnEastKm = 425.0;
  ComputeViewEdges(world.View());
  for (const auto& [from_gps, colour] : {std::pair{false, 0x00FFFFu}, {true, 0xFFFF00u}}) {
    world.Surface.Operations.clear();
    DrawOwnPosition(world.Surface, world.View(), from_gps);
    const auto boxes = world.Surface.Of("box");
    ASSERT_EQ(boxes.size(), 4u);
    EXPECT_EQ(boxes[0], (Operation{"box", 387, 286, 413, 312, 0, {}, FontFace::Text, {}}));
    EXPECT_EQ(boxes[1].Ink, colour);
    EXPECT_EQ(boxes[2].Ink, colour);
    EXPECT_EQ(boxes[3], (Operation{"box", 390, 289, 410, 309, 0, {}, FontFace::Text, {}}));
    const auto lines = world.Surface.Of("line");
    EXPECT_EQ(lines.size(), (25u + 9u) * 4u);
    EXPECT_EQ(lines[0], (Operation{"line", 398, 284, 398, 289, 0, {}, FontFace::Text, {}}));
    EXPECT_EQ(lines.back().Ink, colour);
  }
}

TEST(OwnObject, IsAMarkWithABlackRimAndItsName) {
  MapWorld world;
  ComputeViewEdges(world.View());
  DrawOwnObject(world.Surface, world.View(), 5825.0, 425.0, "OBJ 1  ", false);
  const auto texts = world.Surface.Of("text");
  ASSERT_EQ(texts.size(), 11u);
  EXPECT_EQ(texts[0], (Operation{"text", 388, 286, 0, 0, 0, "i", FontFace::Marks, {}}));
  EXPECT_EQ(texts[8], (Operation{"text", 390, 288, 0, 0, 0, "i", FontFace::Marks, {}}));
  EXPECT_EQ(texts[9], (Operation{"text", 389, 287, 0, 0, 0x00C0C0, "i", FontFace::Marks, {}}));
  EXPECT_EQ(texts[10].Words, "OBJ 1");
  EXPECT_EQ(world.Surface.Of("filled")[0],
            (Operation{"filled", 416, 292, 456, 304, 0, {}, FontFace::Text, {}}));
  world.Surface.Operations.clear();
  DrawOwnObject(world.Surface, world.View(), 5825.0, 425.0, "OBJ 1", true);
  EXPECT_EQ(world.Surface.Of("text")[9].Ink, 0x00FFFFu);
  world.Surface.Operations.clear();
  DrawOwnObject(world.Surface, world.View(), 5825.0, 425.0, "", true);
  EXPECT_TRUE(world.Surface.Operations.empty());
}

// ---- Scale text and bars --------------------------------------------------------------------

TEST(ScaleText, IsAlwaysFourteenCharacters) {
  EXPECT_EQ(ScaleText(5000), " \x96-  500 km -\x96");
  EXPECT_EQ(ScaleText(50), " \x96-   5 km  -\x96");
  EXPECT_EQ(ScaleText(12.5), " \x96- 1.25 km -\x96");
  EXPECT_EQ(ScaleText(0.5), " \x96- 0.05 km -\x96");
  for (double tile : {5000.0, 1000.0, 200.0, 50.0, 10.0, 2.0}) {
    for (double zoom : {0.25, 0.5, 1.0, 2.0, 4.0, 8.0}) {
      EXPECT_EQ(ScaleText(tile * zoom).size(), 14u) << tile * zoom;
    }
  }
}

TEST(FillBars, ShowTheShareOfTheLimit) {
  FillBar bar;
  ShowMoniAllBar(bar, 333, 666);
  EXPECT_EQ(bar.FilledPx, 60);
  ShowMoniAllBar(bar, 5, 0);
  EXPECT_EQ(bar.FilledPx, 0);
}

TEST(FillBars, TheHistoryIsCappedAndChangesItsColour) {
  FillBar bar;
  ShowMoni1Bar(bar, 3330, 3330);
  EXPECT_EQ(bar.FilledPx, 120);
  EXPECT_EQ(bar.Colour, 0xC0C078u);
  ShowMoni1Bar(bar, 3331, 3330);
  EXPECT_EQ(bar.Colour, 0x0080D0u);
  ShowMoni1Bar(bar, 3996, 3330);
  EXPECT_EQ(bar.Colour, 0x0080D0u);
  ShowMoni1Bar(bar, 4000, 3330);
  EXPECT_EQ(bar.FilledPx, 120);
  EXPECT_EQ(bar.Colour, 0x0040FFu);
}

}  // namespace
}  // namespace zepril
