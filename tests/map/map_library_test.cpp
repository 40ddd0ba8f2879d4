// The scan of the map folders, its index files, and what coverage and frames read there.
#include "map/map_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "map/map_view.h"
#include "map/scales.h"
#include "map/tile_coverage.h"
#include "map/tile_frames.h"
#include "tests/map/map_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kRow50 = 3;  // row of the scale of 50 km

TEST(Scales, RowsAreKnownByTheSideOfATile) {
  EXPECT_EQ(ScaleRow(5000), 0);
  EXPECT_EQ(ScaleRow(2), 5);
  EXPECT_EQ(ScaleRow(100), std::nullopt);
}

TEST(MapLibraryScan, IndexFilesListFoldersAndTiles) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.AddTile("M0050", "5850@050.BMP", "x");
  world.AddTile("m0050topo", "58000400.BMP", "x");
  world.Scan();
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\TEMP\ALLMDIRS.DIR)", 1000), "M0050\r\nM0050TOPO\r\n");
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\TEMP\M0050.DIR)", 1000), "58000400.BMP\r\n5850@050.BMP\r\n");
  EXPECT_EQ(world.Room.Library.ReadIndex("M0050TOPO"), "58000400.BMP\r\n");
}

TEST(MapLibraryScan, AScaleWithoutFolderStaysEmptyAndTheOthersGoOn) {
  MapWorld world;
  world.AddTile("M0002", "58000400.BMP", "x");
  world.Scan();
  EXPECT_THAT(world.Controls.Scales.Folder[kRow50].Items, IsEmpty());
  EXPECT_EQ(world.Controls.Scales.Folder[kRow50].Selected(), "");
  EXPECT_EQ(world.Controls.Scales.Folder[5].Selected(), "M0002");
}

TEST(MapLibraryScan, AMissingMapsFolderLeavesAllListsEmpty) {
  MapWorld world;
  world.State.Identity.MapsPath = R"(C:\NOWHERE)";
  world.Scan();
  for (const ComboBox& field : world.Controls.Scales.Folder)
    EXPECT_THAT(field.Items, IsEmpty());
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\TEMP\ALLMDIRS.DIR)", 1000), "");
}

TEST(MapLibraryScan, AnyExtensionOfThreeBecomesATileAndNothingIsOverwritten) {
  MapWorld world;
  world.AddTile("M0050", "12345678.jpg", "picture");
  world.AddTile("M0050", "22345678.bmp", "lower case");
  world.AddTile("M0050", "32345678.BMP", "first");
  world.AddTile("M0050", "32345678.JPG", "second");
  world.AddTile("M0050", "123456789.JPG", "longer");
  world.AddTile("M0050", "ABC.TXT", "shorter");
  world.Scan();
  const std::string folder = R"(C:\Z\U33\M0050\)";
  EXPECT_EQ(world.Disk.ReadAll(folder + "12345678.BMP", 100), "picture");
  EXPECT_EQ(world.Disk.ReadAll(folder + "22345678.BMP", 100), "lower case");
  EXPECT_EQ(world.Disk.ReadAll(folder + "32345678.BMP", 100), "first");
  EXPECT_EQ(world.Disk.ReadAll(folder + "32345678.JPG", 100), "second");
  EXPECT_EQ(world.Disk.ReadAll(folder + "123456789.JPG", 100), "longer");
  EXPECT_EQ(world.Disk.ReadAll(folder + "ABC.TXT", 100), "shorter");
  EXPECT_EQ(world.Room.Library.ReadIndex("M0050"),
            "12345678.BMP\r\n22345678.BMP\r\n32345678.BMP\r\n");
}

TEST(MapLibraryScan, TheStoredVariantIsSelectedElseTheFirst) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.AddTile("M0050TOPO", "58000400.BMP", "x");
  world.View().StoredVariants[kRow50] = "TOPO";
  world.Scan();
  EXPECT_EQ(world.Controls.Scales.Folder[kRow50].Selected(), "M0050TOPO");
  for (const char* other : {"TOP", "topo", ""}) {
    MapWorld again;
    again.AddTile("M0050", "58000400.BMP", "x");
    again.AddTile("M0050TOPO", "58000400.BMP", "x");
    again.View().StoredVariants[kRow50] = other;
    again.Scan();
    EXPECT_EQ(again.Controls.Scales.Folder[kRow50].Selected(), "M0050") << other;
  }
}

TEST(MapLibraryScan, ARescanKeepsTheChoiceThatStillExists) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.AddTile("M0050TOPO", "58000400.BMP", "x");
  world.View().StoredVariants[kRow50] = "TOPO";
  world.Scan();
  world.Controls.Scales.Folder[kRow50].Select(0);
  world.Scan();
  EXPECT_EQ(world.Controls.Scales.Folder[kRow50].Selected(), "M0050");
}

TEST(MapLibraryScan, AScaleIsKnownByItsPrefixAnywhereInTheName) {
  MapWorld world;
  world.AddTile("MYM0050", "58000400.BMP", "x");
  world.AddTile("XM0050Y", "58000400.BMP", "x");
  world.View().StoredVariants[kRow50] = "50";  // the text from the sixth character on
  world.Scan();
  EXPECT_THAT(world.Controls.Scales.Folder[kRow50].Items, ElementsAre("MYM0050"));
  EXPECT_EQ(world.Controls.Scales.Folder[kRow50].Selected(), "MYM0050");
}

TEST(MapLibraryScan, ANameWithTwoPrefixesServesBothScalesAndIsIndexedOnce) {
  MapWorld world;
  world.AddTile("M0050M0010", "58000400.BMP", "x");
  world.Scan();
  EXPECT_THAT(world.Controls.Scales.Folder[kRow50].Items, ElementsAre("M0050M0010"));
  EXPECT_THAT(world.Controls.Scales.Folder[4].Items, ElementsAre("M0050M0010"));
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\TEMP\ALLMDIRS.DIR)", 1000), "M0050M0010\r\n");
}

TEST(MapLibraryScan, APlainFilePassesAsFolderWithAnEmptyIndex) {
  MapWorld world;
  world.Disk.Write(R"(C:\Z\U33\M0050.OLD)", "a file");
  world.Disk.Write(R"(C:\Z\U33\MREADME)", "a file");
  world.Scan();
  EXPECT_THAT(world.Controls.Scales.Folder[kRow50].Items, ElementsAre("M0050.OLD"));
  EXPECT_EQ(world.Room.Library.ReadIndex("M0050.OLD"), "");
  EXPECT_EQ(world.Disk.ReadAll(R"(C:\Z\TEMP\ALLMDIRS.DIR)", 1000), "M0050.OLD\r\n");
}

TEST(MapLibraryScan, PictureNamesAreSortedAndThumbnailsLeftOut) {
  MapWorld world;
  world.AddTile("UTMPICS", "58000400.JPG", "x");
  world.AddTile("UTMPICS", "57000400.AVI", "x");
  world.AddTile("UTMPICS", "Thumbs.db", "x");
  world.Scan();
  EXPECT_THAT(world.View().PictureNames, ElementsAre("57000400.AVI", "58000400.JPG"));
}

// A picture folder with `count` empty files, written past the program's own file layer for speed.
void FillPictureFolder(MapWorld& world, const std::vector<std::string>& names) {
  world.Disk.MakeFolder(R"(C:\Z\U33\UTMPICS)");
  const std::filesystem::path folder = world.Disk.NativePath(R"(C:\Z\U33\UTMPICS)");
  for (const std::string& name : names)
    std::ofstream(folder / name);
}

TEST(MapLibraryScan, HoldsTheFirstFiveThousandPictures) {
  MapWorld world;
  std::vector<std::string> names{"THUMBS.DB", "00000000 thumb.bmp", "00000001_Thumb.jpg"};
  for (int number = 0; number < 5003; ++number)
    names.push_back(ZeroPadded(5002 - number, 4) + "0400.BMP");
  FillPictureFolder(world, names);
  world.Scan();
  const std::vector<std::string>& held = world.View().PictureNames;
  ASSERT_EQ(held.size(), 5000u);
  EXPECT_EQ(held.front(), "00000400.BMP");
  EXPECT_EQ(held.back(), "49990400.BMP");
  EXPECT_TRUE(std::is_sorted(held.begin(), held.end()));
  for (const std::string& name : held)
    EXPECT_EQ(name.size(), 12u);
}

TEST(MapLibraryScan, PictureNamesHoldTwelveCharacters) {
  MapWorld world;
  FillPictureFolder(world, {"62.JPG", "62000400 the harbour in winter.JPG", "63000400.jpeg", "NONE",
                            std::string(200, '7') + ".BMP"});
  world.Disk.MakeFolder(R"(C:\Z\U33\UTMPICS\64000400.BMP)");
  world.Scan();
  EXPECT_THAT(world.View().PictureNames,
              ElementsAre("62.JPG", "62000400 the", "63000400.jpe", "777777777777", "NONE"));
}

TEST(DeleteIndexFiles, TakesOnlyWhatThisRunMade) {
  MapWorld world;
  world.Disk.Write(R"(C:\Z\TEMP\MINE.DIR)", "the operator's");
  world.AddTile("M0050", "58000400.BMP", "x");
  world.Scan();
  world.Room.Library.DeleteIndexFiles();
  EXPECT_TRUE(world.Disk.Exists(R"(C:\Z\TEMP\MINE.DIR)"));
  EXPECT_FALSE(world.Disk.Exists(R"(C:\Z\TEMP\ALLMDIRS.DIR)"));
  EXPECT_FALSE(world.Disk.Exists(R"(C:\Z\TEMP\M0050.DIR)"));
  EXPECT_TRUE(world.Disk.Exists(R"(C:\Z\U33\M0050\58000400.BMP)"));
}

// ---- Coverage -------------------------------------------------------------------------------

void MarkCoverage(MapWorld& world) {
  TileCoverageMarks(world.View(), world.Room.Library, world.Controls.Scales, world.Controls.Record);
}

TEST(TileCoverageMarks, TellsWhichScalesHaveATileUnderTheCentre) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.AddTile("M0010", "58000400.BMP", "x");
  world.Scan();
  MarkCoverage(world);
  const ScaleControls& scales = world.Controls.Scales;
  EXPECT_TRUE(scales.Covered[kRow50]);
  EXPECT_EQ(scales.FrameBox[kRow50].BackColour, 0xC0C0A0u);
  EXPECT_FALSE(scales.Covered[4]);  // the centre lies in 58200420.BMP there
  EXPECT_EQ(scales.FrameBox[4].BackColour, 0x808080u);
  EXPECT_EQ(scales.Folder[kRow50].BackColour, 0x00E0E0u);
  EXPECT_EQ(scales.Folder[4].BackColour, 0xC0C0C0u);
}

TEST(TileCoverageMarks, LeavesTheScalePanelAloneWhileTheRecordPanelIsOpen) {
  MapWorld world;
  world.Controls.Record.Frame1.Visible = true;
  world.Controls.Scales.ScalePanel.Visible = false;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.Scan();
  MarkCoverage(world);
  EXPECT_FALSE(world.Controls.Scales.ScalePanel.Visible);
  EXPECT_FALSE(world.Controls.Scales.FrameBox[kRow50].BackColour.has_value());
}

TEST(TileCoverageMarks, AnUnreadableIndexFileBringsANewScan) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.Scan();
  world.Disk.Remove(R"(C:\Z\TEMP\M0050.DIR)");
  world.AddTile("M0010", "58200420.BMP", "x");
  MarkCoverage(world);
  EXPECT_EQ(world.Room.Library.ReadIndex("M0050"), "58000400.BMP\r\n");
  EXPECT_EQ(world.Controls.Scales.Folder[4].Selected(), "M0010");
}

TEST(TileCoverageMarks, AScaleWithoutFolderBringsNoScan) {
  MapWorld world;
  world.Scan();
  world.AddTile("M0010", "58200420.BMP", "x");
  MarkCoverage(world);
  EXPECT_THAT(world.Controls.Scales.Folder[4].Items, IsEmpty());
}

// ---- Frames ---------------------------------------------------------------------------------

TEST(TileFrames, FramesTheTilesOfTheIndexAndDrawsTheBoundaries) {
  MapWorld world;
  world.AddTile("M0050", "58000400.BMP", "x");
  world.AddTile("M0050", "10000400.BMP", "x");  // far out of the view
  world.Scan();
  ComputeViewEdges(world.View());
  world.Controls.Scales.FrameBox[kRow50].Value = 1;
  TileFrames(world.Surface, world.View(), world.Room.Library, world.Controls.Scales);
  const auto boxes = world.Surface.Of("box");
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0], (RecorderSurface::Operation{
                          "box", -100, -200, 899, 799, 0x4040E0, {}, FontFace::Text, {}}));
  // One boundary of each kind lies at the tile's edge, 100 pixels to the left and 799 down.
  int at_west_edge = 0;
  int at_south_edge = 0;
  for (const auto& line : world.Surface.Of("line")) {
    EXPECT_EQ(line.Ink, kBlack);
    at_west_edge += line.X1 == -100 && line.X2 == -100 && line.Y1 == 0 && line.Y2 == 3000;
    at_south_edge += line.Y1 == 799 && line.Y2 == 799 && line.X1 == 0 && line.X2 == 3000;
  }
  EXPECT_EQ(at_west_edge, 1);
  EXPECT_EQ(at_south_edge, 1);
}

TEST(TileFrames, LinesReachAcrossTheWholeWindow) {
  MapWorld world;
  ComputeViewEdges(world.View());
  world.Controls.Scales.FrameBox[4].Value = 1;  // 10 km: 200 pixels
  TileFrames(world.Surface, world.View(), world.Room.Library, world.Controls.Scales);
  int right_half = 0;
  for (const auto& line : world.Surface.Of("line")) {
    right_half += line.X1 == line.X2 && line.X1 > 400 && line.X1 < 800;
  }
  EXPECT_EQ(right_half, 2);
}

TEST(TileFrames, BoundariesStandOnTheFramesWhenATileIsNoWholeNumberOfPixels) {
  MapWorld world;
  world.View().MapTileKm = 200.0;
  world.View().ZoomFactor = 8.0;
  world.View().CentreEastKm = 2425.0;
  world.View().CentreNorthKm = 7825.0;
  ComputeViewEdges(world.View());
  world.Controls.Scales.FrameBox[kRow50].Value = 1;  // 50 km are 31.25 pixels
  TileFrames(world.Surface, world.View(), world.Room.Library, world.Controls.Scales);
  const auto off_grid_px = [](double km, double pixels_per_km) {
    return std::fabs(std::remainder(km, 50.0)) * pixels_per_km;
  };
  int upright = 0;
  for (const auto& line : world.Surface.Of("line")) {
    const MapViewState& view = world.View();
    const bool is_upright = line.X1 == line.X2;
    const int pixel = is_upright ? line.X1 : line.Y1;
    if (pixel < 0 || pixel > 600) continue;
    upright += is_upright ? 1 : 0;
    const double km = is_upright ? view.ViewWestKm + pixel / view.PixelsPerKm
                                 : view.ViewNorthKm - pixel / view.PixelsPerKm;
    EXPECT_LE(off_grid_px(km, view.PixelsPerKm), 0.51) << pixel;
  }
  EXPECT_GE(upright, 19);
}

TEST(TileFrames, ATileOfNinePixelsIsTooNarrow) {
  MapWorld world;
  world.Controls.Scales.FrameBox[kRow50].Value = 1;
  ComputeViewEdges(world.View());
  world.View().MetresPerPixel = 50000.0 / 9.0;
  TileFrames(world.Surface, world.View(), world.Room.Library, world.Controls.Scales);
  EXPECT_THAT(world.Surface.Of("line"), IsEmpty());
}

TEST(TileFrames, NarrowTilesGetNoBoundaries) {
  MapWorld world;
  world.Controls.Scales.FrameBox[kRow50].Value = 1;
  for (const auto& [zoom, lines_drawn] : {std::pair{1.0, true}, {2.0, false}}) {
    world.View().MapTileKm = 5000.0;
    world.View().ZoomFactor = zoom;
    ComputeViewEdges(world.View());  // 50 km are 10 pixels, then 5
    world.Surface.Operations.clear();
    TileFrames(world.Surface, world.View(), world.Room.Library, world.Controls.Scales);
    EXPECT_EQ(!world.Surface.Of("line").empty(), lines_drawn);
  }
}

}  // namespace
}  // namespace zepril
