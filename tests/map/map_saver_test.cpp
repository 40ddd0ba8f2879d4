// Saving the map: its number, its question, its picture.
#include "map/map_saver.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/scripted_dialogs.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SaverWorld : MapWorld, MapActions {
  void MapRedraw() override {
    Happened.push_back(View().MapSavedThisRun ? "redraw, white" : "redraw");
    if (SavedNow()) Happened.back() += ", saved";
    Room.Redrawer.MapRedraw();
  }
  void MapRefresh() override {}
  void Ask(const std::string& name, DialogAnswer answer = DialogAnswer::Ok) {
    path_ = R"(C:\Z\MY_MAPS\)" + name;
    Boxes.Expect("ZEP RIL", "SAVE MAP WINDOW TO FILE...  " + path_, answer);
  }
  bool SavedNow() const { return Disk.Exists(path_); }
  std::string Saved(const std::string& name) const {
    return Disk.ReadAll(R"(C:\Z\MY_MAPS\)" + name, 1 << 20).value_or("(missing)");
  }

  ScriptedDialogs Boxes;
  MapSaver Saver{State.Identity, State.Map, {Disk, Boxes, Surface, *this}};
  std::vector<std::string> Happened;

 private:
  std::string path_;
};

TEST(SaveMapWindow, AsksWithTheFirstNumberAndSavesAFreshMap) {
  SaverWorld world;
  world.Ask("MAP_0001.BMP");
  world.Saver.SaveMapWindow();
  EXPECT_EQ(world.Boxes.LastButtons, DialogButtons::OkCancel);
  EXPECT_EQ(world.Boxes.LastDefault, DialogAnswer::Cancel);
  EXPECT_THAT(world.Happened, ElementsAre("redraw, white", "redraw, white, saved"));
  EXPECT_EQ(world.Saved("MAP_0001.BMP").substr(0, 2), "BM");
}

TEST(SaveMapWindow, ClearsTheWindowBeforeItDraws) {
  SaverWorld world;
  world.Ask("MAP_0001.BMP");
  world.Saver.SaveMapWindow();
  ASSERT_GE(world.Surface.Operations.size(), 2u);
  EXPECT_EQ(world.Surface.Operations[0].Kind, "clear");
  EXPECT_EQ(world.Surface.Operations[1].Kind, "clear");  // the redraw's own
}

TEST(SaveMapWindow, TakesTheFirstFreeNumber) {
  SaverWorld world;
  world.Disk.MakeFolder(R"(C:\Z\MY_MAPS)");
  world.Disk.Write(R"(C:\Z\MY_MAPS\map_0001.bmp)", "old");
  world.Disk.Write(R"(C:\Z\MY_MAPS\MAP_0003.BMP)", "old");
  world.Ask("MAP_0002.BMP");
  world.Saver.SaveMapWindow();
  world.Ask("MAP_0004.BMP");
  world.Saver.SaveMapWindow();
  EXPECT_EQ(world.Saved("map_0001.bmp"), "old");
  EXPECT_EQ(world.Saved("MAP_0003.BMP"), "old");
}

TEST(FirstFreeMapName, FillsGapsAndGoesOnBehindFourFigures) {
  std::vector<FolderEntry> entries;
  EXPECT_EQ(FirstFreeMapName(entries), "MAP_0001.BMP");
  for (int number = 1; number <= 9999; ++number)
    entries.push_back({"map_" + ZeroPadded(number, 4) + ".bmp", false});
  EXPECT_EQ(FirstFreeMapName(entries), "MAP_10000.BMP");
  entries.erase(entries.begin() + 41);
  EXPECT_EQ(FirstFreeMapName(entries), "MAP_0042.BMP");
}

TEST(SaveMapWindow, CancelLeavesEverythingAsItIs) {
  SaverWorld world;
  world.View().PictureMode = MapShows::Picture;
  world.Ask("MAP_0001.BMP", DialogAnswer::Cancel);
  world.Saver.SaveMapWindow();
  EXPECT_FALSE(world.View().MapSavedThisRun);
  EXPECT_EQ(world.View().PictureMode, MapShows::Picture);
  EXPECT_THAT(world.Happened, IsEmpty());
  EXPECT_FALSE(world.SavedNow());
}

TEST(SaveMapWindow, MissingTilesAreWhiteFromThenOn) {
  SaverWorld world;
  world.AddTile("M0050", "10000100.BMP", FourBitTile());  // a library without a tile here
  world.Scan();
  const auto missing_tile = [&world] {
    world.Redraw();
    return world.Surface.Of("filled").front().Ink;
  };
  EXPECT_EQ(missing_tile(), 0x505050u);
  world.Ask("MAP_0001.BMP");
  world.Saver.SaveMapWindow();
  EXPECT_EQ(missing_tile(), 0xFFFFFFu);
  world.View().CentreNorthKm = 3000.0;  // a view that was never saved
  EXPECT_EQ(missing_tile(), 0xFFFFFFu);
}

TEST(SaveMapWindow, APictureInFrontOfTheMapIsClosed) {
  SaverWorld world;
  world.View().PictureMode = MapShows::Picture;
  world.Ask("MAP_0001.BMP");
  world.Saver.SaveMapWindow();
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
}

TEST(SaveMapWindow, WhatCannotBeSavedIsPassedOverInSilence) {
  SaverWorld world;
  world.Disk.Write(R"(C:\Z\MY_MAPS)", "a file in the folder's place");
  world.Ask("MAP_0001.BMP");
  world.Saver.SaveMapWindow();
  EXPECT_EQ(world.Happened.size(), 2u);
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\MY_MAPS)", 100), "a file in the folder's place");
}

}  // namespace
}  // namespace zepril
