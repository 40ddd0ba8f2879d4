// The track field and its buttons: listed, loaded, stepped, made, shown.
#include "gps/track_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/native/native_files.h"
#include "tests/doubles/point_files_world.h"
#include "tests/doubles/temp_folder.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFirst = "\xFE 5378.123  412.345 20240514 1230";
constexpr const char* kSecond = "\xFE 5379.123  413.345 20240514 1231";

struct TrackWorld : PointFilesWorld {
  explicit TrackWorld(Files& disk)
      : Room(Identity, View, Settings, Places, Controls, Map, {disk, Boxes, Up, Up, LongWork}) {}
  TrackWorld() : TrackWorld(Disk) {}

  void Put(const std::string& name, const std::string& text) {
    Disk.Contents[R"(C:\Z\U33\TRK\)" + name] = text;
  }
  void Choose(const std::string& name) { ChooseIn(Controls.Combo1, name); }
  void Type(const std::string& name) { TypeIn(Controls.Combo1, name); }
  void Enter() { Controls.Combo1.KeyDown({13, 0}); }

  TrackControls Controls;
  TrackFiles Room;
};

TEST(TrackList, HoldsTheNamesUpperCasedAndWithoutExtension) {
  TrackWorld world;
  world.Put("20240515.TRK", "");
  world.Put("holiday.trk", "");
  world.Put("20240514.TRK", "");
  world.Put("NOTES.TXT", "");
  world.Room.ListTrackFiles();
  EXPECT_THAT(world.Controls.Combo1.Items, ElementsAre("20240514", "20240515", "HOLIDAY"));
  EXPECT_EQ(world.Controls.Combo1.ListIndex, -1);
}

TEST(TrackList, IsEmptyWithoutTheFolder) {
  TrackWorld world;
  world.Room.ListTrackFiles();
  EXPECT_THAT(world.Controls.Combo1.Items, IsEmpty());
}

TEST(TrackStart, LoadsTheLastFileWithoutDrawing) {
  TrackWorld world;
  world.Put("20240514.TRK", FileOf({kFirst, kSecond}));
  world.Settings.TrackFile = "20240514";
  world.Room.RestoreAtStart();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 2);
  EXPECT_EQ(world.Controls.Combo1.Text, "20240514");
  EXPECT_EQ(world.Controls.Combo1.ListIndex, 0);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(TrackStart, AFileThatHasGoneIsSilentlyEmptyAndItsNameStays) {
  TrackWorld world;
  world.Settings.TrackFile = "20240514";
  world.Room.RestoreAtStart();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 0);
  EXPECT_EQ(world.Settings.TrackFile, "20240514");
  EXPECT_EQ(world.Controls.Combo1.Text, "20240514");
}

TEST(TrackStart, ANameThatLeadsOutOfTheFolderIsNotRead) {
  TrackWorld world;
  world.Put("..\\LOG\\X.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "..\\LOG\\X";
  world.Room.RestoreAtStart();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 0);
}

TEST(TrackChoice, LoadsSavesAndDrawsWhenTheDisplayIsOn) {
  TrackWorld world;
  world.Put("20240514.TRK", FileOf({kFirst, kSecond}));
  world.Room.ListTrackFiles();
  world.View.TracksOn = true;
  world.Choose("20240514");
  EXPECT_EQ(world.Places.TrackPoints.Count(), 2);
  EXPECT_EQ(world.Settings.TrackFile, "20240514");
  EXPECT_THAT(world.Up.Calls, ElementsAre("save", "redraw"));
  EXPECT_EQ(world.LongWork.What, "Reading track 20240514");
  EXPECT_EQ(world.LongWork.Ended, 1);
}

TEST(TrackChoice, IsNotDrawnWhenTheDisplayIsOff) {
  TrackWorld world;
  world.Put("20240514.TRK", FileOf({kFirst}));
  world.Room.ListTrackFiles();
  world.Choose("20240514");
  EXPECT_THAT(world.Up.Calls, ElementsAre("save"));
}

TEST(TrackChoice, OfTheNameThatIsHeldInAnyCaseReadsNothing) {
  TrackWorld world;
  world.Put("20240514.TRK", FileOf({kFirst}));
  world.Put("ABC.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "ABC";
  world.Room.RestoreAtStart();
  world.Put("ABC.TRK", FileOf({kFirst, kSecond}));
  world.Type("abc");
  world.Enter();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 1);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
  EXPECT_EQ(world.Controls.Combo1.Text, "ABC");
}

TEST(TrackChoice, OfTheNameThatIsHeldReadsAFileThatWasMissing) {
  TrackWorld world;
  world.Settings.TrackFile = "ABC";
  world.Room.RestoreAtStart();
  world.Put("ABC.TRK", FileOf({kFirst}));
  world.Type("abc");
  world.Enter();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 1);
}

TEST(TrackChoice, OfAnEmptyNameDoesNothing) {
  TrackWorld world;
  world.Put("ABC.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "ABC";
  world.Room.RestoreAtStart();
  world.Controls.Combo1.Text = "  ";
  world.Room.SelectTrack();
  EXPECT_EQ(world.Places.TrackPoints.Count(), 1);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
  EXPECT_EQ(world.Controls.Combo1.Text, "ABC");
}

TEST(TrackChoice, TypingAloneChoosesNothing) {
  TrackWorld world;
  world.Put("A.TRK", FileOf({kFirst}));
  world.Put("AB.TRK", FileOf({kFirst, kSecond}));
  world.Room.ListTrackFiles();
  world.Type("AB");
  EXPECT_THAT(world.Up.Calls, IsEmpty());
  world.Enter();
  EXPECT_EQ(world.Settings.TrackFile, "AB");
}

TEST(TrackChoice, AFieldThatIsEmptiedForTypingStaysEmpty) {
  TrackWorld world;
  world.Settings.TrackFile = "GONE";
  world.Room.RestoreAtStart();
  world.Controls.Combo1.Text.clear();
  world.Controls.Combo1.Change();
  EXPECT_EQ(world.Controls.Combo1.Text, "");
}

TEST(TrackChoice, ANewNameIsOfferedAndNoKeepsTheOldSelection) {
  TrackWorld world;
  world.Put("ABC.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "ABC";
  world.Room.RestoreAtStart();
  world.Boxes.Expect("ZEP RIL", "There is no track file NEW.  CREATE AN EMPTY ONE?",
                     DialogAnswer::No);
  world.Type("new");
  world.Enter();
  EXPECT_EQ(world.Boxes.LastButtons, DialogButtons::YesNo);
  EXPECT_EQ(world.Boxes.LastDefault, DialogAnswer::No);
  EXPECT_EQ(world.Settings.TrackFile, "ABC");
  EXPECT_EQ(world.Controls.Combo1.Text, "ABC");
  EXPECT_EQ(world.Places.TrackPoints.Count(), 1);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
  EXPECT_FALSE(world.Disk.Contents.contains(R"(C:\Z\U33\TRK\NEW.TRK)"));
}

TEST(TrackChoice, ANewNameThatIsAcceptedMakesAnEmptyFileAndChoosesIt) {
  TrackWorld world;
  world.Boxes.Expect("ZEP RIL", "There is no track file NEW.  CREATE AN EMPTY ONE?",
                     DialogAnswer::Yes);
  world.Type("new");
  world.Enter();
  EXPECT_TRUE(world.Disk.Contents.contains(R"(C:\Z\U33\TRK\NEW.TRK)"));
  EXPECT_EQ(world.Settings.TrackFile, "NEW");
  EXPECT_THAT(world.Controls.Combo1.Items, ElementsAre("NEW"));
  EXPECT_EQ(world.Controls.Combo1.ListIndex, 0);
}

TEST(TrackChoice, AFileThatCannotBeCreatedIsTold) {
  TrackWorld world;
  world.Disk.RefusedEnding = "NEW.TRK";
  world.Boxes.Expect("ZEP RIL", "There is no track file NEW.  CREATE AN EMPTY ONE?",
                     DialogAnswer::Yes);
  world.Boxes.Expect("ZEP RIL", "The track file NEW can't be created.");
  world.Type("new");
  world.Enter();
  EXPECT_EQ(world.Settings.TrackFile, "");
}

TEST(TrackChoice, AnUnreadableFileLeavesSelectionAndPoints) {
  TrackWorld world;
  world.Put("ABC.TRK", FileOf({kFirst}));
  world.Put("BAD.TRK", FileOf({kFirst, kSecond}));
  world.Disk.UnreadableEnding = "BAD.TRK";
  world.Settings.TrackFile = "ABC";
  world.Room.RestoreAtStart();
  world.Boxes.Expect("ZEP RIL", "The track file BAD can't be read.");
  world.Choose("BAD");
  EXPECT_EQ(world.Settings.TrackFile, "ABC");
  EXPECT_EQ(world.Controls.Combo1.Text, "ABC");
  EXPECT_EQ(world.Controls.Combo1.ListIndex, 0);
  EXPECT_EQ(world.Places.TrackPoints.Count(), 1);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(TrackChoice, ANameThatLeadsOutOfTheFolderIsRefused) {
  for (const char* name : {"..\\A", "../A", "C:A", "A*"}) {
    TrackWorld world;
    world.Boxes.Expect("ZEP RIL",
                       "\"" + std::string(name) + "\" can't be the name of a track file.");
    world.Type(name);
    world.Enter();
    EXPECT_EQ(world.Settings.TrackFile, "");
    EXPECT_TRUE(world.Disk.Contents.empty());
  }
}

TEST(TrackButtons, StepThroughTheListAndStopAtItsEnds) {
  TrackWorld world;
  for (const char* name : {"A.TRK", "B.TRK", "C.TRK"})
    world.Put(name, FileOf({kFirst}));
  world.Settings.TrackFile = "B";
  world.Room.RestoreAtStart();
  world.Controls.Command69.Click();
  EXPECT_EQ(world.Settings.TrackFile, "C");
  world.Map.Picture1.FocusWanted = false;
  world.Controls.Command69.Click();
  EXPECT_EQ(world.Settings.TrackFile, "C");
  EXPECT_TRUE(world.Map.Picture1.FocusWanted);
  EXPECT_THAT(world.Up.Calls, ElementsAre("save"));  // the end was not read again
  world.Controls.Command68.Click();
  world.Controls.Command68.Click();
  world.Controls.Command68.Click();
  EXPECT_EQ(world.Settings.TrackFile, "A");
}

TEST(TrackButtons, FindTheFileOfToday) {
  TrackWorld world;
  world.Put("A.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "A";
  world.Room.RestoreAtStart();
  world.Put("B.TRK", FileOf({kFirst}));
  world.Controls.Command69.Click();
  EXPECT_EQ(world.Settings.TrackFile, "B");
}

TEST(TrackButtons, GoOnFromWhereAFileThatHasGoneWouldStand) {
  TrackWorld world;
  world.Put("A.TRK", FileOf({kFirst}));
  world.Put("C.TRK", FileOf({kFirst}));
  world.Settings.TrackFile = "B";
  world.Room.RestoreAtStart();
  world.Controls.Command68.Click();
  EXPECT_EQ(world.Settings.TrackFile, "A");
  world.Settings.TrackFile = "B";
  world.Controls.Command69.Click();
  EXPECT_EQ(world.Settings.TrackFile, "C");
}

TEST(TrackButtons, EnterTheListFromItsNearEnd) {
  TrackWorld world;
  world.Controls.Command68.Click();  // an empty list
  world.Controls.Command69.Click();
  EXPECT_EQ(world.Settings.TrackFile, "");
  world.Put("A.TRK", FileOf({kFirst}));
  world.Put("C.TRK", FileOf({kFirst}));
  world.Controls.Command68.Click();
  EXPECT_EQ(world.Settings.TrackFile, "C");
}

TEST(TrackEnd, CentresOnTheLastPointThatHasAPosition) {
  TrackWorld world;
  world.Put("A.TRK", FileOf({kFirst, kSecond, "\xFE    0.000    0.000 20240514 1232", "", "x"}));
  world.Settings.TrackFile = "A";
  world.Room.RestoreAtStart();
  world.View.CentreFollow = Following::OwnPosition;
  world.View.MapLockedOnRecord = 1;
  world.View.PictureMode = MapShows::Picture;
  world.Map.Option1.Value = true;
  world.Map.Option2.Value = true;
  world.Controls.Frame10.Click();
  EXPECT_DOUBLE_EQ(world.View.CentreNorthKm, 5379.123);
  EXPECT_DOUBLE_EQ(world.View.CentreEastKm, 413.345);
  EXPECT_EQ(world.View.CentreFollow, Following::Nobody);
  EXPECT_EQ(world.View.MapLockedOnRecord, 0);
  EXPECT_EQ(world.View.PictureMode, MapShows::Map);
  EXPECT_TRUE(world.View.ManualMapMove);
  EXPECT_FALSE(world.Map.Option1.Value);
  EXPECT_FALSE(world.Map.Option2.Value);
  EXPECT_THAT(world.Up.Calls, ElementsAre("redraw"));
}

TEST(TrackEnd, OfATrackWithoutPointsLeavesTheMap) {
  TrackWorld world;
  world.View.CentreNorthKm = 5825.0;
  world.View.CentreFollow = Following::OwnPosition;
  world.Controls.Frame10.Click();
  EXPECT_DOUBLE_EQ(world.View.CentreNorthKm, 5825.0);
  EXPECT_EQ(world.View.CentreFollow, Following::OwnPosition);
  EXPECT_THAT(world.Up.Calls, IsEmpty());
}

TEST(TrackDisplay, FollowsItsBox) {
  TrackWorld world;
  world.Map.Check14.Value = 1;
  world.Map.Check14.Click();
  EXPECT_TRUE(world.View.TracksOn);
  world.Map.Check14.Value = 0;
  world.Map.Check14.Click();
  EXPECT_FALSE(world.View.TracksOn);
  EXPECT_THAT(world.Up.Calls, ElementsAre("redraw", "redraw"));
}

TEST(TrackDisplay, ARightClickOpensTheList) {
  TrackWorld world;
  world.Put("A.TRK", "");
  world.Map.Check14.RightClick();
  EXPECT_THAT(world.Controls.Combo1.Items, ElementsAre("A"));
  EXPECT_TRUE(world.Controls.Combo1.DropDownWanted);
  EXPECT_TRUE(world.Controls.Combo1.FocusWanted);
  EXPECT_FALSE(world.View.TracksOn);
}

TEST(TrackFile, OfMoreLinesThanATrackHoldsIsCut) {
  TrackWorld world;
  std::string& text = world.Disk.Contents[R"(C:\Z\U33\TRK\LONG.TRK)"];
  for (int i = 0; i < PlacesState::kMostTrackLines + 5; ++i)
    text += "\r\n";
  world.Room.ListTrackFiles();
  world.Choose("LONG");
  EXPECT_EQ(world.Places.TrackPoints.Count(), 999999);
}

TEST(TrackFile, OfAnyBytesIsReadFromTheRealDisk) {
  TempFolder folder;
  NativeFiles disk(folder.Path());
  TrackWorld world(disk);
  disk.MakeFolder(R"(C:\Z\U33\TRK)");
  std::string bytes;
  for (int i = 0; i < 5000; ++i)
    bytes += static_cast<char>(i * 37 % 256);
  disk.Write(R"(C:\Z\U33\TRK\odd.trk)", bytes + "\r\n" + FileOf({kFirst}));
  disk.MakeFolder(R"(C:\Z\U33\TRK\FOLDER.TRK)");
  world.Room.ListTrackFiles();
  EXPECT_THAT(world.Controls.Combo1.Items, ElementsAre("ODD"));
  world.Choose("ODD");
  const PointList& track = world.Places.TrackPoints;
  ASSERT_GT(track.Count(), 1);
  EXPECT_EQ(track.Line(track.Count()), kFirst);
  // The file vanishes: what is loaded stays.
  disk.Remove(R"(C:\Z\U33\TRK\odd.trk)");
  EXPECT_GT(world.Places.TrackPoints.Count(), 1);
}

TEST(TrackFile, AFolderInPlaceOfAFileCannotBeRead) {
  TempFolder folder;
  NativeFiles disk(folder.Path());
  TrackWorld world(disk);
  disk.MakeFolder(R"(C:\Z\U33\TRK\X.TRK)");
  world.Boxes.Expect("ZEP RIL", "The track file X can't be read.");
  world.Type("X");
  world.Enter();
  EXPECT_EQ(world.Settings.TrackFile, "");
}

}  // namespace
}  // namespace zepril
