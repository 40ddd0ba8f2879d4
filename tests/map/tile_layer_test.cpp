// Tiles in their places, their palettes and inks, and the cache that keeps them.
#include "map/tile_layer.h"

#include <gtest/gtest.h>

#include "map/map_view.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

PixelRect PlaceOf(const MapViewState& view, double south, double west) {
  PixelRect found;
  ForEachTileInView(view, [&](const TilePlace& place) {
    if (place.SouthKm == south && place.WestKm == west) found = place.Target;
  });
  return found;
}

TEST(TilePlaces, FollowTheViewToThePixel) {
  MapWorld world;
  ComputeViewEdges(world.View());
  EXPECT_EQ(PlaceOf(world.View(), 5800, 400), (PixelRect{-100, -200, 1000, 1000}));
  // The neighbour to the north would end just above the window.
  world.View().CentreNorthKm = 5840.0;
  ComputeViewEdges(world.View());
  EXPECT_EQ(PlaceOf(world.View(), 5850, 400).Y, -1200 + 300);
  world.View().CentreNorthKm = 5825.0;
  world.View().ZoomFactor = 2.0;
  ComputeViewEdges(world.View());
  EXPECT_EQ(PlaceOf(world.View(), 5800, 400), (PixelRect{150, 49, 500, 500}));
}

TEST(TilePlaces, RunSouthToNorthAndWestToEast) {
  MapWorld world;
  world.View().ZoomFactor = 2.0;
  ComputeViewEdges(world.View());
  std::vector<std::pair<double, double>> visited;
  ForEachTileInView(world.View(), [&](const TilePlace& place) {
    visited.emplace_back(place.SouthKm, place.WestKm);
  });
  EXPECT_EQ(visited, (std::vector<std::pair<double, double>>{{5750, 350},
                                                             {5750, 400},
                                                             {5750, 450},
                                                             {5800, 350},
                                                             {5800, 400},
                                                             {5800, 450},
                                                             {5850, 350},
                                                             {5850, 400},
                                                             {5850, 450}}));
}

TEST(PaletteWork, BrightnessRoundsHalfToEvenAndStopsAtWhite) {
  EXPECT_EQ(BrightnessOf(255, 1), 153);
  EXPECT_EQ(BrightnessOf(128, 1), 77);
  EXPECT_EQ(BrightnessOf(5, 1), 3);
  EXPECT_EQ(BrightnessOf(128, 2), 205);
  EXPECT_EQ(BrightnessOf(159, 2), 254);
  EXPECT_EQ(BrightnessOf(160, 2), 255);
  EXPECT_EQ(BrightnessOf(255, 2), 255);
}

TEST(PaletteWork, OnlyTheTwoPaletteTilesAreWorkedOn) {
  EXPECT_EQ(WorkForTile(500118, 1, "3"), (PaletteWork{1, 3}));
  EXPECT_EQ(WorkForTile(1001078, 1, "3"), (PaletteWork{1, std::nullopt}));
  EXPECT_EQ(WorkForTile(700000, 1, "3"), (PaletteWork{0, std::nullopt}));
  EXPECT_EQ(WorkForTile(500118, 0, ""), (PaletteWork{0, std::nullopt}));
  EXPECT_EQ(WorkForTile(500118, 0, "16"), (PaletteWork{0, std::nullopt}));
}

TEST(PaletteWork, TheInkIsYellowWhateverTheBrightness) {
  const auto palette = WorkedPalette({0xFF0A0A0A, 0xFF646464}, {1, 1});
  EXPECT_EQ(palette, (std::vector<std::uint32_t>{0xFF060606, 0xFFFFFF00}));
}

TEST(Tiles, AMissingOneIsGreyAndWhiteOnceTheMapWasSaved) {
  MapWorld world;
  world.AddTile("M0050", "90000400.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  auto filled = world.Surface.Of("filled");
  ASSERT_FALSE(filled.empty());
  EXPECT_EQ(filled[0], (RecorderSurface::Operation{
                           "filled", -100, -200, 899, 799, 0x505050, {}, FontFace::Text, {}}));
  world.View().MapSavedThisRun = true;
  world.View().CentreNorthKm = 7000.0;  // never seen before
  world.Redraw();
  for (const auto& box : world.Surface.Of("filled"))
    EXPECT_EQ(box.Ink, 0xFFFFFFu);
}

TEST(Tiles, ADamagedOneIsTreatedAsMissing) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "BM no bitmap");
  world.Scan();
  world.Redraw();
  EXPECT_TRUE(world.Surface.Of("image").empty());
  EXPECT_EQ(world.Surface.Of("filled")[0].Ink, 0x505050u);
}

TEST(Tiles, OutsideTheGridAreGreySquares) {
  MapWorld world;
  world.View().MapTileKm = 5000.0;
  world.View().CentreNorthKm = 9999.0;
  world.AddTile("M5000", "50000000.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  EXPECT_EQ(world.Surface.Of("image").size(), 1u);
  const auto grey = world.Surface.Of("filled");
  ASSERT_FALSE(grey.empty());
  for (const auto& box : grey)
    EXPECT_EQ(box.Ink, 0x505050u);
}

TEST(Tiles, AreReadOnceAndAgainWhenTheFileChanges) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  world.Redraw();
  EXPECT_EQ(world.Surface.Of("image").size(), 1u);
  EXPECT_EQ(world.Room.Tiles.FilesRead(), 1);
  world.AddTile("M0050", "58000400.BMP", EightBitTile());
  world.Redraw();
  EXPECT_EQ(world.Room.Tiles.FilesRead(), 2);
}

TEST(Tiles, OneThatAppearsIsShownAtTheNextRedraw) {
  MapWorld world;
  world.AddTile("M0050", "90000400.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  world.Clock.Run(60.0);
  world.Redraw();
  EXPECT_TRUE(world.Surface.Of("image").empty());
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Redraw();
  EXPECT_EQ(world.Surface.Of("image").size(), 1u);
  world.Disk.Remove(R"(C:\Z\U33\M0050\58000400.BMP)");
  world.Redraw();
  EXPECT_TRUE(world.Surface.Of("image").empty());
}

TEST(Tiles, OfAMapTypeAreDrawnOverThePlainOnesInTheSecondWindow) {
  MapWorld world;
  world.AddTile("M0050TOPO", "58000400.BMP", FourBitTile());
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Controls.Scales.Folder[3].Select(0);
  world.Redraw();
  EXPECT_TRUE(world.Base.Operations.empty());  // the plain folder needs no second picture
  world.Controls.Scales.Folder[3].Select(1);
  world.Redraw();
  EXPECT_EQ(world.View().ActiveFolderPath, R"(C:\Z\U33\M0050TOPO)");
  EXPECT_EQ(world.View().BaseFolderPath, R"(C:\Z\U33\M0050)");
  EXPECT_EQ(world.Base.Operations[0].Kind, "clear");
  EXPECT_EQ(world.Base.Of("image").size(), 1u);
}

TEST(InkState, ATileOfSixteenColoursTurnsItOnAndAnyLongOneOff) {
  MapWorld world;
  world.View().ZoomFactor = 2.0;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Controls.Palette.PalettePanel.Visible = true;
  world.View().SelectedInk = "3";
  world.Redraw();
  EXPECT_TRUE(world.View().InkStateOn);
  EXPECT_TRUE(world.Controls.Palette.PalettePanel.Visible);
  EXPECT_EQ(world.View().SelectedInk, "3");
  // Then a tile of 256 colours behind it in the same view.
  world.AddTile("M0050", "58500400.BMP", EightBitTile());
  world.Redraw();
  EXPECT_FALSE(world.View().InkStateOn);
  EXPECT_FALSE(world.Controls.Palette.PalettePanel.Visible);
  EXPECT_EQ(world.View().SelectedInk, "");
}

TEST(InkState, ATileOfAnotherLengthLeavesItAsItStands) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP",
                BmpMaker{10, 10, 4, TestPalette(16), std::string(80, '\1')}.Bytes());
  world.Scan();
  world.View().InkStateOn = true;
  world.View().SelectedInk = "3";
  world.Redraw();
  EXPECT_TRUE(world.View().InkStateOn);
  EXPECT_EQ(world.View().SelectedInk, "3");
}

TEST(InkState, TheButtonsShowThePaletteAsLastWorkedOn) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Controls.Palette.PalettePanel.Visible = true;
  world.View().InkStateOn = true;
  world.View().SelectedInk = "2";
  world.View().BrightnessStep = 1;
  world.Redraw();
  // Entry 1 is 0x010305 (red, green, blue): 60 % of it, as blue, green, red.
  EXPECT_EQ(world.Controls.Palette.Optionink[1].BackColour, 0x030201u);
  EXPECT_EQ(world.Controls.Palette.Optionink[2].BackColour, 0x00FFFFu);  // yellow
}

// ---- The cache's budget ---------------------------------------------------------------------

TEST(TileCache, StaysWithinItsBudgetAndDropsDecodedTilesFirst) {
  MapWorld world;
  for (const char* name : {"58000400.BMP", "58500400.BMP", "59000400.BMP"}) {
    world.AddTile("M0050", name, FourBitTile());
  }
  constexpr std::size_t kBudget = 2'300'000;  // two decoded tiles and some small drawn ones
  TileCache cache(world.Disk, world.Clock, kBudget);
  cache.BeginRedraw();
  const auto draw_all = [&] {
    for (const char* name : {"58000400.BMP", "58500400.BMP", "59000400.BMP"}) {
      const auto tile = cache.Find(R"(C:\Z\U33\M0050)", name);
      ASSERT_TRUE(tile);
      const auto drawn = cache.Drawn(*tile, 125, {});
      ASSERT_TRUE(drawn);
      EXPECT_EQ(drawn->Width, 125);
      EXPECT_LE(cache.BytesHeld(), kBudget);
    }
  };
  draw_all();
  EXPECT_EQ(cache.FilesRead(), 3);
  draw_all();
  EXPECT_EQ(cache.FilesRead(), 3);  // all three small pictures were kept
}

TEST(TileCache, APictureLargerThanTheBudgetIsDrawnAndNotKept) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  TileCache cache(world.Disk, world.Clock, 1000);
  cache.BeginRedraw();
  const auto tile = cache.Find(R"(C:\Z\U33\M0050)", "58000400.BMP");
  ASSERT_TRUE(tile);
  EXPECT_TRUE(cache.Drawn(*tile, 1000, {}));
  EXPECT_EQ(cache.BytesHeld(), 0u);
}

TEST(TileCache, FindsTilesWhateverTheSpellingOnTheDisk) {
  MapWorld world;
  world.AddTile("M0050", "5800a123.bmp", FourBitTile());
  TileCache cache(world.Disk, world.Clock);
  cache.BeginRedraw();
  EXPECT_TRUE(cache.Find(R"(C:\Z\U33\M0050)", "5800A123.BMP"));
  EXPECT_FALSE(cache.Find(R"(C:\Z\U33\M0050)", "5800A124.BMP"));
  EXPECT_FALSE(cache.Find(R"(C:\Z\U33\M9999)", "5800A123.BMP"));
}

}  // namespace
}  // namespace zepril
