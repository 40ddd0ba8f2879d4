// Places made, named, moved and removed in their panel, and its links.
#include "viewers/place_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/viewers/place_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(PlacePanel, OpensEmptyForANewPlace) {
  PlaceWorld world({kHut});
  world.Controls.Text4.Text = "rest";
  world.Controls.PoiNew.Click();
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_TRUE(world.Controls.Text4.FocusWanted);
  EXPECT_EQ(world.Controls.Text4.Text, "");
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
  EXPECT_FALSE(world.Controls.Command64.Visible);
  EXPECT_FALSE(world.Controls.Command67.Visible);
}

TEST(PlacePanel, WithoutAFileAsksForItsNameFirst) {
  PlaceWorld world;
  world.Boxes.Expect("ZEP RIL",
                     "There is no place file yet.  TYPE A FILE NAME FIRST AND PRESS ENTER.");
  world.Controls.PoiNew.Click();
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_TRUE(world.Controls.Combo2.FocusWanted);
}

TEST(PlacePanel, ShowsThePlaceThatWasPicked) {
  PlaceWorld world({kHut, kPeak});
  world.Room.EditPlace(1);
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Controls.Text4.Text, "HUT");
  EXPECT_TRUE(world.Controls.Text4.FocusWanted);
  EXPECT_EQ(world.Places.PoiEditIndex, 1);
  EXPECT_TRUE(world.Controls.Command64.Visible);
  EXPECT_FALSE(world.Controls.Command67.Visible);
  EXPECT_EQ(world.File(), FileOf({kHut, kPeak}));
}

TEST(PlacePanel, APlaceThatIsNotThereDoesNothing) {
  PlaceWorld world({kHut});
  for (int index : {-1, 0, 2, 40000})
    world.Room.EditPlace(index);
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
}

TEST(PlacePanel, ClosedLeavesEverything) {
  PlaceWorld world({kHut});
  world.Room.EditPlace(1);
  world.Name("OTHER");
  world.Controls.PoiClose.Click();
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
  EXPECT_EQ(world.File(), FileOf({kHut}));
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(PlaceLink, IsTheTextBetweenTheBraces) {
  EXPECT_EQ(LinkOf("PEAK { www.example.org } top"), "www.example.org");
  EXPECT_EQ(LinkOf("} {C:\\A.PDF}{second}"), "C:\\A.PDF");
  for (const char* none : {"", "PEAK", "{", "}", "}{", "{}", "{  }", "PEAK {open"})
    EXPECT_EQ(LinkOf(none), "") << none;
}

TEST(PlaceLink, IsOfferedAndOpenedByTheDesktop) {
  PlaceWorld world({kHut, kPeak});
  world.Room.EditPlace(2);
  EXPECT_TRUE(world.Controls.Command67.Visible);
  world.Controls.Command67.Click();
  EXPECT_THAT(world.Up.Calls, ElementsAre("open www.example.org"));
  world.Name("PEAK");
  EXPECT_FALSE(world.Controls.Command67.Visible);
  world.Controls.Command67.Click();
  EXPECT_THAT(world.Up.Calls, SizeIs(1));
}

// ---- Editing -----------------------------------------------------------------------------------

TEST(PlaceEdit, ANewPlaceStandsAtTheMapCentreWithItsNameInColumn22) {
  PlaceWorld world({kLake});
  world.View.PoiLevel = 2;
  world.Controls.PoiNew.Click();
  world.Name("  HUT ");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kLake, "\xFE 5378.123  412.345  HUT"}));
  EXPECT_EQ(world.File().find("HUT") - world.File().rfind('\xFE') + 1, 22u);
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
  EXPECT_EQ(world.Places.PoiPoints.Name(2), "HUT");
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_THAT(world.Up.Calls, ElementsAre("redraw"));
}

TEST(PlaceEdit, EnterInTheNameFieldCountsToo) {
  PlaceWorld world({kLake});
  world.Controls.PoiNew.Click();
  world.Name("HUT");
  world.Controls.Text4.KeyDown({'H', 0});
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
  world.Controls.Text4.KeyDown({13, 0});
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
}

TEST(PlaceEdit, ANewPlaceWithoutANameWritesNothing) {
  PlaceWorld world({kLake, "rubbish"});
  world.Controls.PoiNew.Click();
  world.Name("   ");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kLake, "rubbish"}));
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
}

TEST(PlaceEdit, ANewPlaceWestOfTheGridKeepsItsColumns) {
  PlaceWorld world({kHut});
  world.View.CentreNorthKm = -0.001;
  world.View.CentreEastKm = 10000.0;
  world.Controls.PoiNew.Click();
  world.Name("FAR");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, "\xFE-    .  1           FAR"}));
  EXPECT_DOUBLE_EQ(world.Places.PoiPoints.NorthKm(2), -0.001);
  EXPECT_EQ(world.Places.PoiPoints.EastKm(2), 0.0);
}

TEST(PlaceEdit, ARenamedPlaceKeepsTwentyColumnsAndHasItsNameInColumn21) {
  PlaceWorld world({kLake, kHut});
  world.Room.EditPlace(2);
  world.Name(" CABIN ");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kLake, "\xFE 5378.123  412.345 CABIN"}));
  EXPECT_EQ(world.Places.PoiPoints.Name(2), "CABIN");
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
}

TEST(PlaceEdit, ARenamedPlaceMovesWithTheMapCentre) {
  PlaceWorld world({kHut, kLake});
  world.Room.EditPlace(1);
  world.View.CentreNorthKm = 5400.5;
  world.Name("CABIN");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({"\xFE 5400.500  412.345 CABIN", kLake}));
}

TEST(PlaceEdit, AMapThatFollowsAStationMovesNoPlace) {
  PlaceWorld world({kHut, kLake});
  world.View.CentreFollow = Following::Station;
  world.Room.EditPlace(1);
  world.View.CentreNorthKm = 5400.5;
  world.Name("CABIN");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({"\xFE 5378.123  412.345 CABIN", kLake}));
}

TEST(PlaceEdit, AnEmptyNameRemovesThePlaceOnceConfirmed) {
  PlaceWorld world({kHut, kLake, kPeak});
  world.Room.EditPlace(2);
  world.Name("");
  world.Boxes.Expect("ZEP RIL", "REMOVE THE PLACE  LAKE  FROM THE FILE HUTS?", DialogAnswer::Ok);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Boxes.LastButtons, DialogButtons::OkCancel);
  EXPECT_EQ(world.Boxes.LastDefault, DialogAnswer::Cancel);
  EXPECT_EQ(world.File(), FileOf({kHut, kPeak}));
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
}

TEST(PlaceEdit, ARemovalThatIsNotConfirmedLeavesEverything) {
  PlaceWorld world({kHut, kLake});
  world.Room.EditPlace(2);
  world.Name("");
  world.Boxes.Expect("ZEP RIL", "REMOVE THE PLACE  LAKE  FROM THE FILE HUTS?",
                     DialogAnswer::Cancel);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, kLake}));
  EXPECT_EQ(world.Controls.Text4.Text, "LAKE");
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 2);
}

TEST(PlaceEdit, TheWriteDropsLinesThatAreNoPlaces) {
  PlaceWorld world({"rubbish", kHut, "\xFE 5378.123  412.345", "\xFE 5378.123  412.345    ", "",
                    "\xFE 5378.123  412.345X", kLake});
  world.Controls.PoiNew.Click();
  world.Name("NEW");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, kLake, "\xFE 5378.123  412.345  NEW"}));
  EXPECT_EQ(world.Places.PoiPoints.Count(), 3);
}

TEST(PlaceEdit, ALineEndInANameCannotMakeASecondLine) {
  PlaceWorld world({kHut});
  world.Controls.PoiNew.Click();
  world.Name("A\r\n\xFE 1.000");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
  EXPECT_EQ(world.Places.PoiPoints.Name(2), "A  \xFE 1.000");
}

TEST(PlaceEdit, ANameIsHeldAtWhatIsReadAgain) {
  PlaceWorld world({kHut});
  world.Controls.PoiNew.Click();
  world.Name(std::string(5000, 'x'));
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Places.PoiPoints.Length(2), PlacesState::kLongestPlaceLine - 1);
  world.Room.EditPlace(2);  // and no loss is feared when it is written again
  world.Name("SHORT");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Places.PoiPoints.Name(2), "SHORT");
}

TEST(PlaceEdit, ARefusedWriteIsToldAndLosesNothing) {
  PlaceWorld world({kHut, kLake});
  world.Disk.RefusedEnding = "HUTS.POI";
  world.Room.EditPlace(2);
  world.Name("CABIN");
  world.Boxes.Expect("ZEP RIL", "The place file HUTS can't be written.  NOTHING WAS CHANGED.");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, kLake}));
  EXPECT_EQ(world.Places.PoiPoints.Name(2), "LAKE");
  EXPECT_EQ(world.Controls.Text4.Text, "CABIN");
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 2);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(PlaceEdit, WithoutAFileAsksForItsNameAndKeepsTheTyping) {
  PlaceWorld world;
  world.Name("HUT");
  world.Boxes.Expect("ZEP RIL",
                     "There is no place file yet.  TYPE A FILE NAME FIRST AND PRESS ENTER.");
  world.Room.ApplyPoiEdit();
  EXPECT_EQ(world.Controls.Text4.Text, "HUT");
  EXPECT_THAT(world.Disk.Contents, IsEmpty());
}

TEST(PlaceEdit, AFileThatHasGoneIsMadeAnew) {
  PlaceWorld world({kHut});
  world.Disk.Contents.clear();
  world.Controls.PoiNew.Click();
  world.Name("NEW");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, "\xFE 5378.123  412.345  NEW"}));
}

TEST(PlaceEdit, WhatAnotherProgramHasWrittenIsNotOverwrittenUnasked) {
  PlaceWorld world({kHut});
  world.Put("HUTS.POI", FileOf({kHut, kLake}));
  world.Room.EditPlace(1);
  world.Name("CABIN");
  const std::string question =
      "The file HUTS on the disk is no longer the one that was read.  WRITE OVER IT?";
  world.Boxes.Expect("ZEP RIL", question, DialogAnswer::Cancel);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut, kLake}));
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);  // what is there now counts
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);

  world.Put("HUTS.POI", FileOf({kLake}));
  world.Room.EditPlace(1);
  world.Name("CABIN");
  world.Boxes.Expect("ZEP RIL", question, DialogAnswer::Ok);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({"\xFE 5378.123  412.345 CABIN", kLake}));
}

TEST(PlaceEdit, AnIndexThatIsNotThereAddsNoRubbish) {
  PlaceWorld world({kHut});
  world.Places.PoiEditIndex = 7;
  world.Controls.Text4.Text = "X";
  world.Controls.PoiOk.Click();
  world.Places.PoiEditIndex = 7;
  world.Controls.Command64.Click();
  EXPECT_EQ(world.File(), FileOf({kHut}));
}

// ---- Place to the map centre -------------------------------------------------------------------

TEST(PlaceToCentre, MovesThePlaceAtOnceAndKeepsItsName) {
  PlaceWorld world({"rubbish", kLake, kPeak});
  world.View.PoiLevel = 1;
  world.Room.EditPlace(3);
  world.Name("TYPED");
  world.View.CentreNorthKm = 5400.5;
  world.Controls.Command64.Click();
  EXPECT_EQ(world.File(), FileOf({kLake, "\xFE 5400.500  412.345 PEAK {www.example.org}"}));
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Controls.Text4.Text, "TYPED");
  EXPECT_EQ(world.Places.PoiEditIndex, 2);  // the line that was no place is gone
  EXPECT_THAT(world.Up.Calls, ElementsAre("redraw"));
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kLake, "\xFE 5400.500  412.345 TYPED"}));
}

TEST(PlaceToCentre, ThatCannotBeWrittenLeavesThePlace) {
  PlaceWorld world({kLake});
  world.Room.EditPlace(1);
  world.Disk.RefusedEnding = ".POI";
  world.Boxes.Expect("ZEP RIL", "The place file HUTS can't be written.  NOTHING WAS CHANGED.");
  world.Controls.Command64.Click();
  EXPECT_EQ(world.File(), FileOf({kLake}));
  EXPECT_DOUBLE_EQ(world.Places.PoiPoints.EastKm(1), -10.517);
}

TEST(PlaceToCentre, OfALineWithoutANameClosesThePanel) {
  PlaceWorld world({"\xFE 5378.123  412.345", kLake});
  world.Room.EditPlace(1);
  world.Controls.Command64.Click();
  EXPECT_EQ(world.File(), FileOf({kLake}));
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
}

}  // namespace
}  // namespace zepril
