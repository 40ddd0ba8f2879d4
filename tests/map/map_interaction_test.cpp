// What each button, key and box of the map does.
#include "map/map_interaction.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "map/map_view.h"
#include "tests/map/map_interaction_support.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// ---- Scale and zoom -----------------------------------------------------------------------------

TEST(ScaleButtons, StepAlongTheChainAndStopAtItsEnds) {
  InteractionWorld world;
  world.View().ZoomFactor = 4.0;
  world.Controls.Map.Command1.Click();
  EXPECT_EQ(world.View().MapTileKm, 200.0);
  EXPECT_EQ(world.View().ZoomFactor, 1.0);
  world.Controls.Map.Command2.Click();
  world.Controls.Map.Command2.Click();
  EXPECT_EQ(world.View().MapTileKm, 10.0);
  world.View().MapTileKm = 2.0;
  world.Join.Calls.clear();
  world.Controls.Map.Picture1.FocusWanted = false;
  world.Controls.Map.Command2.Click();
  EXPECT_EQ(world.View().MapTileKm, 2.0);
  EXPECT_THAT(world.Join.Calls, IsEmpty());
  EXPECT_TRUE(world.Controls.Map.Picture1.FocusWanted);
  world.View().MapTileKm = 5000.0;
  world.Controls.Map.Command1.Click();
  EXPECT_EQ(world.View().MapTileKm, 5000.0);
}

TEST(ZoomButtons, DoubleAndHalveBetweenAQuarterAndEight) {
  InteractionWorld world;
  for (int i = 0; i < 3; ++i)
    world.Controls.Map.Command7.Click();
  EXPECT_EQ(world.View().ZoomFactor, 8.0);
  world.Join.Calls.clear();
  world.Controls.Map.Command7.Click();
  EXPECT_EQ(world.View().ZoomFactor, 8.0);
  EXPECT_THAT(world.Join.Calls, IsEmpty());
  world.Controls.Map.Command9.Click();
  EXPECT_EQ(world.View().ZoomFactor, 1.0);
  for (int i = 0; i < 3; ++i)
    world.Controls.Map.Command8.Click();
  EXPECT_EQ(world.View().ZoomFactor, 0.25);
  EXPECT_EQ(world.View().MapTileKm, 50.0);
}

TEST(ZoomButtons, AtTheirEndsOnlyKeepTheFocusOnTheMap) {
  InteractionWorld world;
  for (const auto& [factor, button] :
       {std::pair{8.0, &world.Controls.Map.Command7}, {0.25, &world.Controls.Map.Command8}}) {
    world.View().ZoomFactor = factor;
    world.Controls.Map.Picture1.FocusWanted = false;
    button->Click();
    EXPECT_EQ(world.View().ZoomFactor, factor);
    EXPECT_TRUE(world.Controls.Map.Picture1.FocusWanted);
    EXPECT_THAT(world.Join.Calls, IsEmpty());
  }
}

TEST(ZoomButtons, AFactorOfNoughtStepsAsOne) {
  InteractionWorld world;
  world.View().ZoomFactor = 0.0;
  world.Controls.Map.Command7.Click();
  EXPECT_EQ(world.View().ZoomFactor, 2.0);
  world.View().ZoomFactor = 0.0;
  world.Controls.Map.Command8.Click();
  EXPECT_EQ(world.View().ZoomFactor, 0.5);
}

TEST(CentreButton, ARightClickStepsTheScaleRound) {
  InteractionWorld world;
  world.View().MapTileKm = 10.0;
  world.View().ZoomFactor = 2.0;
  world.Controls.Map.Command12.RightClick();
  EXPECT_EQ(world.View().MapTileKm, 2.0);
  EXPECT_EQ(world.View().ZoomFactor, 1.0);
  world.Controls.Map.Command12.RightClick();
  EXPECT_EQ(world.View().MapTileKm, 5000.0);
}

TEST(Redraws, HappenWithTheCycleStopped) {
  InteractionWorld world;
  world.Controls.Map.Command7.Click();
  EXPECT_FALSE(world.Join.timer1_ran_while_redrawing_);
  EXPECT_TRUE(world.Timer1.Enabled());
}

TEST(FolderFields, ChoosingAnotherFolderMakesItsScaleActive) {
  InteractionWorld world;
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.AddTile("M0010", "58200420.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  world.Join.Calls.clear();
  world.View().ZoomFactor = 2.0;
  world.Controls.Scales.Folder[3].Change();  // the active one
  EXPECT_THAT(world.Join.Calls, IsEmpty());
  EXPECT_EQ(world.View().ZoomFactor, 2.0);
  world.Controls.Scales.Folder[4].Change();
  EXPECT_EQ(world.View().MapTileKm, 10.0);
  EXPECT_EQ(world.View().ZoomFactor, 1.0);
  EXPECT_EQ(world.View().ActiveFolderName, "M0010");
}

TEST(ScalePanel, AllBoxesOnAndOffAndANewScan) {
  InteractionWorld world;
  world.Controls.Scales.Command5.Click();
  for (const CheckBox& box : world.Controls.Scales.FrameBox)
    EXPECT_EQ(box.Value, 1);
  world.Controls.Scales.Command6.Click();
  for (const CheckBox& box : world.Controls.Scales.FrameBox)
    EXPECT_EQ(box.Value, 0);
  world.AddTile("M0002", "58000400.BMP", "x");
  world.Controls.Scales.Command37.Click();
  EXPECT_EQ(world.Controls.Scales.Folder[5].Selected(), "M0002");
  EXPECT_EQ(world.Join.Calls.size(), 3u);
}

// ---- Keys ---------------------------------------------------------------------------------------

TEST(MapKeys, ArrowsMoveThePointerByOneAndByTenWithShift) {
  InteractionWorld world;
  world.Controls.Map.Picture1.MouseMove({0, 0, 100, 100});
  world.Key(37);
  world.Key(38, 1);
  world.Key(39, 2);
  world.Key(40);
  EXPECT_THAT(world.Join.Pointer, ElementsAre(PixelPoint{99, 100}, PixelPoint{99, 90},
                                              PixelPoint{118, 90}, PixelPoint{118, 91}));
}

TEST(MapKeys, AMoveOutOfTheMapIsNotMade) {
  InteractionWorld world;
  world.Controls.Map.Picture1.MouseMove({0, 0, 5, 595});
  world.Key(37, 1);
  world.Key(40, 1);
  EXPECT_THAT(world.Join.Pointer, IsEmpty());
  EXPECT_EQ(world.View().CursorX, 5.0);
}

TEST(MapKeys, WhereThePointerCannotBeMovedAVirtualOneIsKept) {
  InteractionWorld world;
  world.Join.PointerMoves = false;
  world.Controls.Map.Picture1.MouseMove({0, 0, 100, 60});
  world.Key(38, 1);
  EXPECT_EQ(world.Controls.Readouts.Label3.Caption, "UTMcrs 5837.450");
  world.Key(13);
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, 5837.45);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, 410.0);
}

// ---- Centre button and follow options -----------------------------------------------------------

TEST(CentreButton, GoesToTheRecordInThePanelAndLocks) {
  InteractionWorld world;
  RecordMaker maker;
  maker.NorthKm = 5900.5;
  maker.EastKm = -12.5;
  world.Controls.Record.Label20.Caption = std::string(maker.Make().Text());
  world.View().CentreFollow = Following::Station;
  world.Controls.Map.Command12.Click();
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, 5900.5);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, -12.5);
  EXPECT_EQ(world.View().CentreFollow, Following::Nobody);
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP L");
}

TEST(CentreButton, WithoutARecordTheMapStaysWhereItIsAndFollowsNothing) {
  InteractionWorld world;
  world.View().CentreFollow = Following::OwnPosition;
  world.View().PictureMode = MapShows::Picture;
  world.Hands.ShowState();
  world.Controls.Map.Command12.Click();
  EXPECT_EQ(world.View().CentreNorthKm, 5825.0);
  EXPECT_EQ(world.View().CentreEastKm, 425.0);
  EXPECT_EQ(world.View().CentreFollow, Following::Nobody);
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
  EXPECT_FALSE(world.Controls.Map.Option1.Value);
  EXPECT_THAT(world.Join.Calls, ElementsAre("close picture", "redraw"));
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP");
}

TEST(CentreButton, ReadsAPositionWithItsBlanks) {
  InteractionWorld world;
  RecordMaker maker;
  maker.NorthKm = 0.042;
  maker.EastKm = -10.517;
  world.Controls.Record.Label20.Caption = std::string(maker.Make().Text());
  world.Controls.Map.Option2.Value = true;
  world.View().PictureMode = MapShows::Picture;
  world.Controls.Map.Command12.Click();
  EXPECT_DOUBLE_EQ(world.View().CentreNorthKm, 0.042);
  EXPECT_DOUBLE_EQ(world.View().CentreEastKm, -10.517);
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
  EXPECT_FALSE(world.Controls.Map.Option2.Value);
  EXPECT_EQ(world.View().MapLockedOnRecord, 1);
}

TEST(FollowOptions, ChooseWhatTheCentreFollowsAndCloseThePicture) {
  InteractionWorld world;
  world.View().PictureMode = MapShows::Picture;
  world.View().MapLockedOnRecord = 1;
  world.View().OwnNorthKm = 5800.0;
  world.View().OwnEastKm = 400.0;
  world.Controls.Map.Option1.Click();
  EXPECT_EQ(world.View().CentreFollow, Following::OwnPosition);
  EXPECT_EQ(world.View().PictureMode, MapShows::Map);
  EXPECT_EQ(world.View().CentreNorthKm, 5800.0);
  EXPECT_EQ(world.Controls.Map.Command12.Caption, "MAP");
  EXPECT_FALSE(world.View().ManualMapMove);
  world.Controls.Map.Option2.Click();
  // Which the GPS leaves alone for a while.
  EXPECT_TRUE(world.View().ManualMapMove);
  EXPECT_EQ(world.View().CentreFollow, Following::Station);
  EXPECT_TRUE(world.Controls.Map.Option2.Value);
  EXPECT_FALSE(world.Controls.Map.Option1.Value);
}

// ---- What is shown ------------------------------------------------------------------------------

TEST(LayerBoxes, SwitchGridCirclesAndPictures) {
  InteractionWorld world;
  MapControls& map = world.Controls.Map;
  const auto layers = [&world] {
    return std::vector<bool>{world.View().GridOn, world.View().CirclesOn, world.View().PicturesOn};
  };
  map.Check4.Value = 1;
  map.Check4.Click();
  EXPECT_EQ(layers(), (std::vector<bool>{true, false, false}));
  map.Check9.Value = 1;
  map.Check9.Click();
  EXPECT_EQ(layers(), (std::vector<bool>{true, true, false}));
  map.Check12.Value = 1;
  map.Check12.Click();
  EXPECT_EQ(layers(), (std::vector<bool>{true, true, true}));
  map.Check4.Value = 0;
  map.Check4.Click();
  EXPECT_EQ(layers(), (std::vector<bool>{false, true, true}));
  EXPECT_THAT(world.Join.Calls, ElementsAre("redraw", "redraw", "redraw", "redraw"));
  EXPECT_FALSE(world.Join.timer1_ran_while_redrawing_);
}

TEST(LayerBoxes, ShowWhatWasLoaded) {
  InteractionWorld world;
  MapControls& map = world.Controls.Map;
  world.View().GridOn = world.View().CirclesOn = true;
  world.View().PicturesOn = world.View().TracksOn = true;
  world.Hands.ShowState();
  for (const CheckBox* box : {&map.Check4, &map.Check9, &map.Check12, &map.Check14})
    EXPECT_EQ(box->Value, 1);
  world.View().GridOn = world.View().CirclesOn = false;
  world.View().PicturesOn = world.View().TracksOn = false;
  world.Hands.ShowState();
  for (const CheckBox* box : {&map.Check4, &map.Check9, &map.Check12, &map.Check14})
    EXPECT_EQ(box->Value, 0);
}

TEST(LabelLevel, TheSixthPressShowsWxAndTheSeventhNothing) {
  InteractionWorld world;
  std::vector<std::string> captions;
  for (int i = 0; i < 7; ++i) {
    world.Controls.MoniAll.Command13.Click();
    captions.push_back(world.Controls.MoniAll.Label16.Caption);
    if (captions.back() == "WX") {
      EXPECT_EQ(world.View().StationLabelLevel, LabelLevel::Marks);
      EXPECT_TRUE(world.View().WxCaption);
    }
  }
  EXPECT_THAT(captions, ElementsAre("1", "2", "3", "4", "5", "WX", "0"));
  EXPECT_FALSE(world.View().WxCaption);
  world.Controls.MoniAll.Command13.RightClick();
  EXPECT_EQ(world.Controls.MoniAll.Label16.Caption, "WX");
  world.Controls.MoniAll.Label16.RightClick();
  EXPECT_EQ(world.Controls.MoniAll.Label16.Caption, "5");
}

TEST(ClassBoxes, SetTheBitsOfTheMask) {
  InteractionWorld world;
  MoniAllControls& all = world.Controls.MoniAll;
  world.Hands.ShowState();
  const auto mask_without = [&](CheckBox& box) {
    box.Value = 0;
    box.Click();
    const int mask = world.View().StationClassMask;
    box.Value = 1;
    box.Click();
    return mask;
  };
  EXPECT_EQ(mask_without(all.Check10), 30);
  EXPECT_EQ(mask_without(all.Check11), 29);
  EXPECT_EQ(mask_without(all.Check13), 27);
  EXPECT_EQ(mask_without(all.Check19), 23);
  EXPECT_EQ(mask_without(all.Check25), 15);
  EXPECT_EQ(world.View().StationClassMask, 31);
}

TEST(ClassBoxes, TheThirdStateOfTheMovingClassAsksForMovement) {
  InteractionWorld world;
  CheckBox& moving = world.Controls.MoniAll.Check13;
  moving.Value = 2;
  moving.Click();
  EXPECT_TRUE(world.View().MovedOnly);
  world.Hands.ShowState();
  EXPECT_EQ(moving.Value, 2);
  moving.Value = 1;
  moving.Click();
  EXPECT_FALSE(world.View().MovedOnly);
}

TEST(StationSwitches, DirectlyHeardOnlyAndTrackStyle) {
  InteractionWorld world;
  world.Controls.MoniAll.Check24.Value = 1;
  world.Controls.MoniAll.Check24.Click();
  EXPECT_TRUE(world.View().HideObjects);
  for (int style : {1, 2, 3, 4, 5, 6, 0}) {
    world.Controls.Moni1.Command17.Click();
    EXPECT_EQ(world.State.Followed.TrackStyle, style);
  }
}

TEST(Brightness, StepsThroughThreeWithTheButtonInTheirColours) {
  InteractionWorld world;
  world.Hands.ShowState();
  EXPECT_EQ(world.Controls.Map.Command72.BackColour, 0xC0C0A0u);
  world.Controls.Map.Command72.Click();
  EXPECT_EQ(world.View().BrightnessStep, 1);
  EXPECT_EQ(world.Controls.Map.Command72.BackColour, 0x606046u);
  world.Controls.Map.Command72.Click();
  EXPECT_EQ(world.Controls.Map.Command72.BackColour, 0xFFFFD6u);
  world.View().PictureMode = MapShows::Picture;
  world.Join.Calls.clear();
  world.Controls.Map.Command72.Click();
  EXPECT_EQ(world.View().BrightnessStep, 0);
  EXPECT_THAT(world.Join.Calls, IsEmpty());
}

TEST(Palette, OpensOnlyOverTilesWithInksAndChoosesOne) {
  InteractionWorld world;
  world.Controls.Map.Command72.RightClick();
  EXPECT_FALSE(world.Controls.Palette.PalettePanel.Visible);
  world.AddTile("M0050", "58000400.BMP", FourBitTile());
  world.Scan();
  world.Redraw();
  world.Controls.Map.Command72.RightClick();
  EXPECT_TRUE(world.Controls.Palette.PalettePanel.Visible);
  world.Controls.Palette.Optionink[5].Click();
  EXPECT_EQ(world.View().SelectedInk, "5");
  EXPECT_TRUE(world.Controls.Palette.Optionink[5].Value);
  EXPECT_EQ(world.Controls.Palette.Optionink[5].BackColour, 0x00FFFFu);
  world.Controls.Palette.Command42.Click();
  EXPECT_EQ(world.View().SelectedInk, "");
  EXPECT_TRUE(world.Controls.Palette.PalettePanel.Visible);
  world.Controls.Palette.Optionink[0].Click();
  world.Controls.Palette.Command43.Click();
  EXPECT_EQ(world.View().SelectedInk, "");
  EXPECT_FALSE(world.Controls.Palette.PalettePanel.Visible);
}

TEST(Captions, AClickStepsTheSystemAndRedrawsOnlyUnderAGrid) {
  InteractionWorld world;
  world.Controls.Readouts.Label4.Click();
  EXPECT_EQ(world.View().CursorDisplayMode, 1);
  EXPECT_EQ(world.Controls.Readouts.Label3.Caption.substr(0, 6), "GLLcrs");
  EXPECT_THAT(world.Join.Calls, IsEmpty());
  world.View().GridOn = true;
  world.Controls.Readouts.Label1.Click();
  world.Controls.Readouts.Label8.Click();
  EXPECT_EQ(world.View().CentreDisplayMode, 1);
  EXPECT_EQ(world.View().MonitorDisplayMode, 1);
  EXPECT_THAT(world.Join.Calls, ElementsAre("redraw", "redraw"));
}

TEST(Captions, ARightClickOnTheStationOpensItsRecords) {
  InteractionWorld world;
  RecordMaker maker;
  maker.Call = "QX7KB";
  world.Follow(maker);
  world.Follow(maker);
  world.Controls.Readouts.Label7.RightClick();
  EXPECT_EQ(world.State.Stores.SelectedStationCall, "QX7KB");
  EXPECT_EQ(world.State.Stores.SelectedRecordIndex, 2);
  EXPECT_THAT(world.Join.Calls, ElementsAre("record panel"));
}

}  // namespace
}  // namespace zepril
