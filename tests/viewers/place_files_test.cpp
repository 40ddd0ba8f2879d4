// Place files: listed, loaded, made, edited, damaged; their panel and its links.
#include "viewers/place_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/point_files_world.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kHut = "\xFE 5378.123  412.345  HUT";
constexpr const char* kLake = "\xFE 5380.000-  10.517  LAKE";
constexpr const char* kPeak = "\xFE 5390.000  400.000 PEAK {www.example.org}";

struct PlaceWorld : PointFilesWorld {
  explicit PlaceWorld(Files& disk)
      : Room(Identity, View, Settings, Places, Controls, Map, {disk, Boxes, Up, Up, Up, LongWork}) {
    View.CentreNorthKm = 5378.123;
    View.CentreEastKm = 412.345;
    Controls.PoiPanel.Visible = false;
    Controls.Command67.Visible = false;
  }
  PlaceWorld() : PlaceWorld(Disk) {}
  // With the file HUTS of these lines loaded.
  explicit PlaceWorld(const std::vector<std::string>& lines) : PlaceWorld() {
    Put("HUTS.POI", FileOf(lines));
    Settings.PoiFile = "HUTS";
    Room.RestoreAtStart();
  }

  static std::string PathOf(const std::string& name) { return R"(C:\Z\U33\POI\)" + name; }
  void Put(const std::string& name, const std::string& text) { Disk.Contents[PathOf(name)] = text; }
  std::string File(const std::string& name = "HUTS.POI") const { return Disk.Of(PathOf(name)); }
  void Choose(const std::string& name) { ChooseIn(Controls.Combo2, name); }
  void Type(const std::string& name) { TypeIn(Controls.Combo2, name); }
  void Enter() { Controls.Combo2.KeyDown({13, 0}); }
  void Name(const std::string& text) {
    Controls.Text4.Text = text;
    Controls.Text4.Change();
  }

  PlaceControls Controls;
  PlaceFiles Room;
};

// ---- Files ----------------------------------------------------------------------------------

TEST(PlaceList, HoldsTheNamesUpperCasedAndWithoutExtension) {
  PlaceWorld world;
  world.Put("Lakes.poi", "");
  world.Put("HUTS.POI", "");
  world.Put("HUTS.TXT", "");
  world.Room.ListPoiFiles();
  EXPECT_THAT(world.Controls.Combo2.Items, ElementsAre("HUTS", "LAKES"));
}

TEST(PlaceStart, LoadsTheLastFileWithoutDrawing) {
  PlaceWorld world({kHut, kLake});
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
  EXPECT_EQ(world.Controls.Combo2.Text, "HUTS");
  EXPECT_EQ(world.Controls.Combo2.ListIndex, 0);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(PlaceStart, AFileThatHasGoneIsSilentlyEmptyAndItsNameStays) {
  PlaceWorld world;
  world.Settings.PoiFile = "HUTS";
  world.Room.RestoreAtStart();
  EXPECT_EQ(world.Places.PoiPoints.Count(), 0);
  EXPECT_EQ(world.Settings.PoiFile, "HUTS");
}

TEST(PlaceChoice, LoadsSavesAndDrawsWhenPlacesAreShown) {
  PlaceWorld world({kHut});
  world.Put("LAKES.POI", FileOf({kLake, kLake}));
  world.Room.ListPoiFiles();
  world.Choose("LAKES");
  EXPECT_EQ(world.Settings.PoiFile, "LAKES");
  EXPECT_EQ(world.Places.PoiPoints.Count(), 2);
  EXPECT_THAT(world.Up.Calls, ElementsAre("save"));
  world.View.PoiLevel = 1;
  world.Choose("HUTS");
  EXPECT_THAT(world.Up.Calls, ElementsAre("save", "save", "redraw"));
}

TEST(PlaceChoice, OfTheNameThatIsHeldInAnyCaseReadsNothing) {
  PlaceWorld world({kHut});
  world.Put("HUTS.POI", FileOf({kHut, kLake}));
  world.Controls.Combo2.Text = "huts";
  world.Room.SelectPoiFile();
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
  world.Controls.Combo2.Text = " ";
  world.Room.SelectPoiFile();
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
  EXPECT_EQ(world.Controls.Combo2.Text, "HUTS");
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(PlaceChoice, AFieldThatIsEmptiedForTypingStaysEmpty) {
  PlaceWorld world;
  world.Settings.PoiFile = "GONE";
  world.Room.RestoreAtStart();
  world.Controls.Combo2.Text.clear();
  world.Controls.Combo2.Change();
  EXPECT_EQ(world.Controls.Combo2.Text, "");
}

TEST(PlaceChoice, AnUnreadableFileLeavesSelectionAndPlaces) {
  PlaceWorld world({kHut});
  world.Put("BAD.POI", FileOf({kLake, kLake}));
  world.Room.ListPoiFiles();
  world.Disk.UnreadableEnding = "BAD.POI";
  world.Boxes.Expect("ZEP RIL", "The place file BAD can't be read.");
  world.Choose("BAD");
  EXPECT_EQ(world.Settings.PoiFile, "HUTS");
  EXPECT_EQ(world.Controls.Combo2.Text, "HUTS");
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
}

TEST(PlaceChoice, ClosesThePanelOfAPlaceOfTheFileBefore) {
  PlaceWorld world({kHut});
  world.Put("LAKES.POI", FileOf({kLake}));
  world.Room.ListPoiFiles();
  world.Room.EditPlace(1);
  world.Choose("LAKES");
  EXPECT_FALSE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Places.PoiEditIndex, 0);
}

TEST(PlaceChoice, KeepsANewPlaceThatIsBeingTyped) {
  PlaceWorld world({kHut});
  world.Put("LAKES.POI", FileOf({kLake}));
  world.Room.ListPoiFiles();
  world.Controls.PoiNew.Click();
  world.Name("CABIN");
  world.Choose("LAKES");
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  EXPECT_EQ(world.Controls.Text4.Text, "CABIN");
}

TEST(PlaceCreation, MakesTheFileListsAndLoadsIt) {
  PlaceWorld world;
  world.Type("huts");
  EXPECT_THAT(world.Up.Calls, IsEmpty());  // typing alone makes nothing
  world.Enter();
  EXPECT_TRUE(world.Disk.Contents.contains(PlaceWorld::PathOf("HUTS.POI")));
  EXPECT_THAT(world.Controls.Combo2.Items, ElementsAre("HUTS"));
  EXPECT_EQ(world.Settings.PoiFile, "HUTS");
  EXPECT_THAT(world.Up.Calls, ElementsAre("save"));
}

TEST(PlaceCreation, ARightClickMakesTheFileToo) {
  PlaceWorld world;
  world.Type("huts");
  world.Controls.Combo2.RightClick();
  EXPECT_EQ(world.Settings.PoiFile, "HUTS");
}

TEST(PlaceCreation, OfAFileThatIsThereKeepsItsPlaces) {
  PlaceWorld world;
  world.Put("HUTS.POI", FileOf({kHut}));
  world.Type("huts");
  world.Enter();
  EXPECT_EQ(world.File(), FileOf({kHut}));
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
}

TEST(PlaceCreation, WithoutANameAsksForOne) {
  PlaceWorld world;
  world.Boxes.Expect("ZEP RIL", "Type the name of the new place file first.");
  world.Controls.Combo2.RightClick();
  EXPECT_TRUE(world.Controls.Combo2.FocusWanted);
}

TEST(PlaceCreation, ANameThatLeadsOutOfTheFolderIsRefused) {
  for (const char* name : {"..\\A", "../A", "C:A", "A..B", "A*", "A\"B"}) {
    PlaceWorld world({kHut});
    world.Boxes.Expect("ZEP RIL",
                       "\"" + std::string(name) + "\" can't be the name of a place file.");
    world.Type(name);
    world.Enter();
    EXPECT_EQ(world.Settings.PoiFile, "HUTS");
    EXPECT_EQ(world.Controls.Combo2.Text, "HUTS");
    EXPECT_THAT(world.Disk.Contents, SizeIs(1));
  }
}

TEST(PlaceCreation, ThatFailsIsTold) {
  PlaceWorld world({kHut});
  world.Disk.RefusedEnding = "NEW.POI";
  world.Boxes.Expect("ZEP RIL", "The place file NEW can't be created.");
  world.Type("new");
  world.Enter();
  EXPECT_EQ(world.Settings.PoiFile, "HUTS");
  EXPECT_EQ(world.Places.PoiPoints.Count(), 1);
}

TEST(PlaceLevel, GoesFromNothingOverMarksToNames) {
  PlaceWorld world;
  std::vector<int> levels;
  for (int i = 0; i < 4; ++i) {
    world.Map.Command73.Click();
    levels.push_back(world.View.PoiLevel);
  }
  EXPECT_THAT(levels, ElementsAre(1, 2, 0, 1));
  EXPECT_THAT(world.Up.Calls, SizeIs(4));
}

// ---- Panel ----------------------------------------------------------------------------------

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

// ---- Editing --------------------------------------------------------------------------------

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

// ---- Place to the map centre ----------------------------------------------------------------

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

// ---- Limits ---------------------------------------------------------------------------------

std::vector<std::string> ManyPlaces(int count) {
  std::vector<std::string> lines;
  for (int i = 1; i <= count; ++i)
    lines.push_back("\xFE 5378.123  412.345  P" + WholeNumber(i));
  return lines;
}

TEST(PlaceLimits, MoreLinesThanAreReadAreCutAndLostOnlyOnceConfirmed) {
  PlaceWorld world(ManyPlaces(30002));
  EXPECT_EQ(world.Places.PoiPoints.Count(), 30000);
  const std::string before = world.File();
  const std::string question =
      "The file HUTS holds more than 30000 places, or longer lines than are read.  "
      "WRITE IT WITHOUT THE REST?";
  world.Room.EditPlace(1);
  world.Name("FIRST");
  world.Boxes.Expect("ZEP RIL", question, DialogAnswer::Cancel);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Boxes.LastDefault, DialogAnswer::Cancel);
  EXPECT_EQ(world.File(), before);
  EXPECT_TRUE(world.Controls.PoiPanel.Visible);
  world.Boxes.Expect("ZEP RIL", question, DialogAnswer::Ok);
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Disk.LineCount(PlaceWorld::PathOf("HUTS.POI")), 30000);
  // Nothing is lost by the next one, which is not asked about.
  world.Room.EditPlace(1);
  world.Name("AGAIN");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Places.PoiPoints.Name(1), "AGAIN");
}

TEST(PlaceLimits, ThePlaceAfterTheLastIsWrittenAndGoneAfterwards) {
  PlaceWorld world(ManyPlaces(30000));
  world.Controls.PoiNew.Click();
  world.Name("ONE MORE");
  world.Boxes.Expect("ZEP RIL", "The file HUTS is full: only its first 30000 places are read.");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.Disk.LineCount(PlaceWorld::PathOf("HUTS.POI")), 30001);
  EXPECT_EQ(world.Places.PoiPoints.Count(), 30000);
  EXPECT_EQ(world.Places.PoiPoints.Name(30000), "P30000");
}

TEST(PlaceLimits, AnAddToAFullTableLeavesTheFile) {
  PlaceWorld world({kHut});
  while (world.Places.PoiPoints.Append(kLake)) {
  }
  ASSERT_EQ(world.Places.PoiPoints.Count(), 30010);
  world.Controls.PoiNew.Click();
  world.Name("ONE MORE");
  world.Boxes.Expect("ZEP RIL", "There is no room for another place.");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(world.File(), FileOf({kHut}));
  EXPECT_EQ(world.Controls.Text4.Text, "ONE MORE");
}

// ---- The real disk --------------------------------------------------------------------------

TEST(PlaceFile, IsReplacedWholeOnTheRealDisk) {
  TempFolder folder;
  NativeFiles disk(folder.Path());
  PlaceWorld world(disk);
  world.Type("Huts");
  world.Enter();
  world.Controls.PoiNew.Click();
  world.Name("H\xDCTTE");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(disk.ReadAll(R"(C:\Z\U33\POI\HUTS.POI)", 1000),
            FileOf({"\xFE 5378.123  412.345  H\xDCTTE"}));
  EXPECT_THAT(disk.List(R"(C:\Z\U33\POI)", "*.*"), SizeIs(1));  // nothing is left beside it
  world.Room.EditPlace(1);
  world.Name("HUT");
  world.Controls.PoiOk.Click();
  EXPECT_EQ(disk.ReadAll(R"(C:\Z\U33\POI\HUTS.POI)", 1000), FileOf({"\xFE 5378.123  412.345 HUT"}));
}

TEST(PlaceFile, AFolderInItsPlaceIsNeitherReadNorReplaced) {
  TempFolder folder;
  NativeFiles disk(folder.Path());
  PlaceWorld world(disk);
  disk.MakeFolder(R"(C:\Z\U33\POI\HUTS.POI)");
  world.Boxes.Expect("ZEP RIL", "The place file HUTS can't be created.");
  world.Type("huts");
  world.Enter();
  EXPECT_EQ(world.Settings.PoiFile, "");
}

}  // namespace
}  // namespace zepril
