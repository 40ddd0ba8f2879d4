// The look of the map over two runs, and what a broken file leaves.
#include "station/view_memory.h"

#include <gtest/gtest.h>

#include "tests/station/station_support.h"

namespace zepril {
namespace {

TEST(ViewMemory, TheLookOfTheMapOutlivesTheRun) {
  StationHarness station;
  ASSERT_TRUE(station.Start());
  MainWindowControls& controls = station.Controls();
  controls.MoniAll.Command13.RightClick();  // one level down
  const std::string level = controls.MoniAll.Label16.Caption;
  controls.Map.Check4.Value = 1;
  controls.Map.Check4.Click();
  controls.Map.Command2.Click();
  controls.Map.Command72.Click();
  controls.Map.Command73.Click();
  controls.Readouts.Label1.Click();
  const RuntimeState& before = station.State();
  const double scale = before.Map.MapTileKm;
  const int mode = before.Map.CentreDisplayMode;
  station.Restart();
  ASSERT_TRUE(station.Start());
  const RuntimeState& after = station.State();
  EXPECT_EQ(station.Controls().MoniAll.Label16.Caption, level);
  EXPECT_TRUE(after.Map.GridOn);
  EXPECT_EQ(station.Controls().Map.Check4.Value, 1);
  EXPECT_EQ(after.Map.MapTileKm, scale);
  EXPECT_EQ(after.Map.BrightnessStep, 1);
  EXPECT_EQ(after.Map.PoiLevel, 1);
  EXPECT_EQ(after.Map.CentreDisplayMode, mode);
  EXPECT_FALSE(after.Map.CirclesOn);
}

TEST(ViewMemory, EveryLevelComesBackTheWeatherToo) {
  for (int level = 0; level <= 6; ++level) {
    RuntimeState state;
    state.Map.WxCaption = level == 6;
    state.Map.StationLabelLevel = level == 6 ? LabelLevel::Marks : static_cast<LabelLevel>(level);
    RuntimeState next;
    ApplyViewValues(ViewValues(state), next);
    EXPECT_EQ(next.Map.WxCaption, state.Map.WxCaption) << level;
    EXPECT_EQ(next.Map.StationLabelLevel, state.Map.StationLabelLevel) << level;
  }
}

TEST(ViewMemory, MissingOrBrokenItIsAFirstStart) {
  StationHarness station;
  station.files.Write(
      "C:\\ZEPRIL\\WINDOW.TXT",
      "LABELS=99\r\nGRID=x\r\nSCALE=-1\r\nDIM=7\r\nREADOUTS=9,-1,a\r\nPLACES=3\r\n\x01\x02");
  ASSERT_TRUE(station.Start());
  const MapViewState& view = station.State().Map;
  EXPECT_EQ(view.StationLabelLevel, LabelLevel::MarksAndCalls);
  EXPECT_FALSE(view.GridOn);
  EXPECT_EQ(view.MapTileKm, 5000.0);
  EXPECT_EQ(view.BrightnessStep, 0);
  EXPECT_EQ(view.PoiLevel, 0);
  EXPECT_EQ(view.CentreDisplayMode, 0);
}

TEST(ViewMemory, LinesOfOthersStayInTheFile) {
  StationHarness station;
  station.files.Write("C:\\ZEPRIL\\WINDOW.TXT", "SETCLOCK=1\r\nMAIN=1,2,3,4\r\n");
  ASSERT_TRUE(station.Start());
  station.Restart();
  const std::string text = station.File("WINDOW.TXT");
  EXPECT_NE(text.find("SETCLOCK=1\r\n"), std::string::npos);
  EXPECT_NE(text.find("MAIN=1,2,3,4\r\n"), std::string::npos);
  EXPECT_NE(text.find("LABELS="), std::string::npos);
}

}  // namespace
}  // namespace zepril
