// Place files: listed, loaded, replaced whole, damaged, too long.
#include "viewers/place_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/text_fields.h"
#include "platform/native/native_files.h"
#include "tests/doubles/temp_folder.h"
#include "tests/viewers/place_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

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

// ---- Limits ------------------------------------------------------------------------------------

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

// ---- The real disk -----------------------------------------------------------------------------

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
