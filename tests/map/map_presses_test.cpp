// What a press on the map does, and the order in which it looks for what is there.
#include "map/map_interaction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/map/map_interaction_support.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(LeftPress, CentresTheMapAndEndsFollowing) {
  InteractionWorld world;
  world.View().CentreFollow = Following::Station;
  world.Controls.Map.Option2.Value = true;
  world.View().MapLockedOnRecord = 1;
  world.Press(1, 100, 50);
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, 5837.45);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, 410.0);
  EXPECT_EQ(world.View().CentreFollow, Following::Nobody);
  EXPECT_FALSE(world.Controls.Map.Option1.Value);
  EXPECT_FALSE(world.Controls.Map.Option2.Value);
  EXPECT_TRUE(world.View().ManualMapMove);
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP");
}

TEST(LeftPress, OnAPictureGoesToWhereItWasTaken) {
  InteractionWorld world;
  world.View().PictureNames = {"57000400.JPG", "A123@050.JPG"};
  world.View().SelectedPicture = 2;
  world.View().PictureMode = MapShows::Picture;
  world.Press(1, 100, 50);
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, -1122.501);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, -49.501);
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
  EXPECT_FALSE(world.View().ManualMapMove);
  EXPECT_THAT(world.Join.Calls, ElementsAre("close picture", "redraw"));
}

TEST(LeftPress, OnAPictureThatHasLeftTheListOnlyClosesIt) {
  InteractionWorld world;
  world.View().SelectedPicture = 2;
  world.View().PictureMode = MapShows::Picture;
  world.View().CentreFollow = Following::OwnPosition;
  world.Press(1, 100, 50);
  EXPECT_EQ(world.View().CentreNorthKm, 5825.0);
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
  EXPECT_EQ(world.View().CentreFollow, Following::Nobody);
}

TEST(LeftPress, AShortPictureNameReadsWhatIsThere) {
  InteractionWorld world;
  world.View().PictureNames = {"62.JPG"};
  world.View().SelectedPicture = 1;
  world.View().PictureMode = MapShows::Picture;
  world.Press(1, 100, 50);
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, 62.499);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, 0.499);
}

TEST(RightPress, LookupsStopAtTheFirstHit) {
  InteractionWorld world;
  world.View().StationLabelLevel = LabelLevel::MarksAndLines;
  world.View().PicturesOn = world.View().TracksOn = true;
  world.View().PoiLevel = 1;
  world.Join.Finds = "TRK";
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("PIC", "TRK"));
  EXPECT_TRUE(world.View().LookupHit);
  EXPECT_DOUBLE_EQ(world.View().ClickNorthKm, 5825.0);
  EXPECT_DOUBLE_EQ(world.View().ClickEastKm, 425.0);
  world.Join.Calls.clear();
  world.Join.Finds.clear();
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("PIC", "TRK", "POI", "SUN"));
}

TEST(RightPress, EachLookupStopsTheCycleForThreeSeconds) {
  InteractionWorld world;
  world.View().PicturesOn = world.View().TracksOn = true;
  world.View().PoiLevel = 1;
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.TimersAtLookups, ElementsAre("PIC Timer2", "TRK Timer2", "POI Timer2"));
}

TEST(RightPress, ALookupForStationsAloneStopsTheCycleToo) {
  InteractionWorld world;
  world.View().StationLabelLevel = LabelLevel::Marks;
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("SUN"));
  EXPECT_FALSE(world.Timer1.Enabled());
  EXPECT_TRUE(world.Timer2.Enabled());
  EXPECT_EQ(world.Timer2.IntervalMs(), 3000);
}

TEST(RightPress, RunsOnlyTheLookupsOfWhatIsShown) {
  InteractionWorld world;
  world.View().PicturesOn = true;
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("PIC", "SUN"));
  world.Join.Calls.clear();
  world.View().PicturesOn = false;
  world.View().TracksOn = true;
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("TRK", "SUN"));
  world.Join.Calls.clear();
  world.View().TracksOn = false;
  world.View().PoiLevel = 2;
  world.Join.Finds = "POI";
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("POI"));
}

TEST(RightPress, AHitUnderAMapTypeLeavesTheMapShown) {
  InteractionWorld world;
  world.View().ActiveFolderPath = "C:\\Z\\U33\\M0050TOPO";
  world.View().PicturesOn = true;
  world.Join.Finds = "PIC";
  world.Press(2, 400, 299);
  EXPECT_TRUE(world.Controls.Map.Picture1.Visible);
}

TEST(RightPress, AStationComesFirst) {
  InteractionWorld world;
  world.View().StationLabelLevel = LabelLevel::MarksAndLines;
  world.View().PicturesOn = true;
  world.Hear({});
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("record panel"));
  EXPECT_EQ(world.State.Stores.SelectedStationCall, "N0CALL");
  EXPECT_EQ(world.State.Stores.SelectedRecordIndex, 1);
}

TEST(RightPress, InANarrowWindowNothingIsLookedUp) {
  InteractionWorld world;
  world.Controls.Window.WidthPx = 629;
  world.View().StationLabelLevel = LabelLevel::MarksAndLines;
  world.Hear({});
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("SUN"));
  EXPECT_TRUE(world.Timer1.Enabled());
  world.Controls.Window.WidthPx = 630;
  world.Press(2, 400, 299);
  EXPECT_EQ(world.Join.Calls.back(), "record panel");
}

TEST(RightPress, WithAllLookupsOffOpensTheSunCurve) {
  InteractionWorld world;
  world.Press(2, 400, 299);
  EXPECT_THAT(world.Join.Calls, ElementsAre("SUN"));
  world.Controls.Map.Picture1.MouseUp({2, 0, 400, 299});
  EXPECT_EQ(world.Join.Calls.back(), "hide SUN");
}

TEST(RightPress, ShowsThePlainMapUnderAMapTypeUntilTheRelease) {
  InteractionWorld world;
  world.AddTile("M0050TOPO", "58000400.BMP", FourBitTile());
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.View().StoredVariants[3] = "TOPO";
  world.Scan();
  world.Redraw();
  world.Press(2, 400, 299);
  EXPECT_FALSE(world.Controls.Map.Picture1.Visible);
  EXPECT_THAT(world.Join.Calls, IsEmpty());
  // Whatever is heard meanwhile.
  world.Redraw();
  EXPECT_FALSE(world.Controls.Map.Picture1.Visible);
  world.Controls.Map.Picture1.MouseUp({2, 0, 400, 299});
  EXPECT_TRUE(world.Controls.Map.Picture1.Visible);
}

TEST(MouseMove, ShowsTheCursorsPosition) {
  InteractionWorld world;
  world.Controls.Map.Picture1.MouseMove({0, 0, 100, 50});
  EXPECT_EQ(world.Controls.Readouts.Label3.Caption, "UTMcrs 5837.450");
}

}  // namespace
}  // namespace zepril
