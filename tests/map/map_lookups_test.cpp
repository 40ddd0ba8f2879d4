// What a right press finds of tracks and places, and in which order.
#include "map/map_lookups.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "map/map_colours.h"
#include "map/map_interaction.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// The map with lookups over a track and places, each switched on, and the joins upward written
// down.
struct LookupWorld : MapWorld, PlacePanel, SunPanel, MapActions, DesktopActions {
  LookupWorld()
      : Lookups(State.Map, State.Places, Controls.Map, {Surface, Shown, Timer1}),
        Interaction(State.Map, State.Stores, State.Followed,
                    {ControlsAnew().Window, Controls.Map, Controls.Readouts, Controls.Scales,
                     Controls.Palette, Controls.Moni1, Controls.MoniAll, Controls.Record},
                    {*this, Room.Library, Room.ReadoutTexts, Quiet, Lookups, Shown, *this, Timer1,
                     Timer2}) {
    Interaction.RecordPicked = [this] { Calls.push_back("station"); };
    View().TracksOn = true;
    View().PoiLevel = 1;
    Redraw();
    Surface.Operations.clear();
  }
  void EditPlace(int index) override { Calls.push_back("place " + WholeNumber(index)); }
  void ShowSunCurve() override { Calls.push_back("sun"); }
  void MoveSunCurve() override {}
  void HideSunCurve() override {}
  void MapRedraw() override { Calls.push_back("redraw"); }
  void MapRefresh() override {}
  bool MainWindowActive() const override { return true; }
  void Open(const std::string&) override {}
  bool MovePointerOnMap(int, int) override { return true; }

  // The centre, 5825 / 425, is pixel (400, 299); 50 m a pixel, so a point counts within 0.5 km.
  void RightPress(double x, double y) { Controls.Map.Picture1.MouseDown({2, 0, x, y}); }
  void AddTrackPoint(const std::string& position) {
    State.Places.TrackPoints.Append("\xFE" + position + " 20240514 1230");
  }
  void AddPlace(const std::string& position) {
    State.Places.PoiPoints.Append("\xFE" + position + "  HUT");
  }

  MapPanels Shown{nullptr, this, this};
  PressLookups Lookups;
  MapInteraction Interaction;
  std::vector<std::string> Calls;
};

TEST(TrackLookup, PrintsTheTextOfTheFirstPointAtTheCursor) {
  LookupWorld world;
  world.AddTrackPoint(" 5900.000  425.000");
  world.AddTrackPoint(" 5825.400  424.600");
  const auto revision = world.Controls.Map.Picture1.Revision;
  world.RightPress(400, 299);
  EXPECT_TRUE(world.View().LookupHit);
  const auto words = world.Surface.Of("text");
  ASSERT_EQ(words.size(), 1u);
  EXPECT_EQ(words[0].Words, "20240514 1230");
  EXPECT_EQ(words[0].X1, 416);
  EXPECT_EQ(world.Surface.Of("filled")[0].Ink, GpsColour);
  EXPECT_GT(world.Controls.Map.Picture1.Revision, revision);
  EXPECT_THAT(world.Calls, IsEmpty());
}

TEST(TrackLookup, FindsNothingOutsideTheTolerance) {
  LookupWorld world;
  world.AddTrackPoint(" 5825.501  425.000");
  world.AddTrackPoint(" 5825.000  424.499");
  world.RightPress(400, 299);
  EXPECT_FALSE(world.View().LookupHit);
  EXPECT_THAT(world.Surface.Of("text"), IsEmpty());
  EXPECT_THAT(world.Calls, ElementsAre("sun"));
}

TEST(PlaceLookup, OpensThePanelOfThePlace) {
  LookupWorld world;
  world.AddPlace(" 5900.000  425.000");
  world.AddPlace(" 5825.000  425.100");
  world.RightPress(400, 299);
  EXPECT_TRUE(world.View().LookupHit);
  EXPECT_THAT(world.Calls, ElementsAre("place 2"));
}

TEST(PlaceLookup, ComesAfterTheTrackAndOnlyWhenPlacesAreShown) {
  LookupWorld world;
  world.AddTrackPoint(" 5825.000  425.000");
  world.AddPlace(" 5825.000  425.000");
  world.RightPress(400, 299);
  EXPECT_THAT(world.Calls, IsEmpty());
  world.View().TracksOn = false;
  world.RightPress(400, 299);
  EXPECT_THAT(world.Calls, ElementsAre("place 1"));
  world.View().PoiLevel = 0;
  world.RightPress(400, 299);
  EXPECT_THAT(world.Calls, ElementsAre("place 1", "sun"));
}

TEST(PlaceLookup, AStationUnderTheCursorComesFirst) {
  LookupWorld world;
  world.View().StationLabelLevel = LabelLevel::Marks;
  world.Hear({});
  world.AddTrackPoint(" 5825.000  425.000");
  world.AddPlace(" 5825.000  425.000");
  world.RightPress(400, 299);
  EXPECT_THAT(world.Calls, ElementsAre("station"));
  EXPECT_THAT(world.Surface.Of("text"), IsEmpty());
}

TEST(PlaceLookup, RunsInNoNarrowWindow) {
  LookupWorld world;
  world.AddPlace(" 5825.000  425.000");
  world.Controls.Window.WidthPx = 629;
  world.RightPress(400, 299);
  EXPECT_FALSE(world.View().LookupHit);
  EXPECT_THAT(world.Calls, ElementsAre("sun"));
  world.Controls.Window.WidthPx = 630;
  world.RightPress(400, 299);
  EXPECT_THAT(world.Calls, ElementsAre("sun", "place 1"));
}

}  // namespace
}  // namespace zepril
