// WX INFO: whom it is shown for, its title, its nine values, its remark, its button and its close.
#include "weather/wx_panel.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/doubles/recorder_surface.h"
#include "weather/wx_drawing.h"

namespace zepril {
namespace {

StationRecord RecordOf(const std::string& text, const std::string& symbol = "/_") {
  StationRecord record;
  record.Put(1, 11, "240514 1230");
  record.Put(33, 41, "QX7WX");
  record.Put(43, 89, text);
  record.Put(101, 103, symbol);
  record.Put(105, 120, "  WX Station 4");
  return record;
}

class WxPanelTest : public ::testing::Test {
 protected:
  WxPanelTest() { weather.Frame15.Visible = false; }
  void Select(const StationRecord& record) { panel.ShowWxPanel(&record); }
  std::string Value(std::size_t at) const { return weather.Values[at].Caption; }

  MapViewState view;
  WeatherControls weather;
  RecordPanelControls record_panel;
  RecorderSurface surface{kWxPicturePixels, kWxPicturePixels};
  WxPanel panel{view, weather, record_panel, surface};
};

TEST_F(WxPanelTest, AWeatherStationsReportIsShownWithTitleAndNineValues) {
  Select(RecordOf("220/004g005t077r000p000P000h50b10139"));
  EXPECT_TRUE(weather.Frame15.Visible);
  EXPECT_TRUE(record_panel.Command40.Visible);
  EXPECT_EQ(weather.WxTitle.Caption, "WX STATION  QX7WX  2024-05-14 1230");
  EXPECT_EQ(Value(0), "WIND DIR   deg:  220");
  EXPECT_EQ(Value(1), "WIND SPEED m/s:    2");
  EXPECT_EQ(Value(2), "GUST SPEED m/s:    3");
  EXPECT_EQ(Value(3),
            "TEMPERATURE \xB0"
            "C:   25");
  EXPECT_EQ(Value(4), "RAIN  1 h   mm:    0");
  EXPECT_EQ(Value(5), "RAIN 24 h   mm:    0");
  EXPECT_EQ(Value(6), "RAIN TODAY  mm:    0");
  EXPECT_EQ(Value(7), "HUMIDITY     %:   50");
  EXPECT_EQ(Value(8), "PRESSURE   hPa: 1014");
  EXPECT_EQ(weather.Label38.Caption, "");
}

TEST_F(WxPanelTest, WhatTheReportDoesNotTellIsNotShown) {
  Select(RecordOf("220/004g005t077r000p000P000h50b10139"));
  Select(RecordOf("c220s004g005t-05 R&D house"));
  EXPECT_EQ(Value(3),
            "TEMPERATURE \xB0"
            "C:  -21");
  EXPECT_EQ(Value(8), "");
  EXPECT_FALSE(weather.Values[8].Visible);
  EXPECT_TRUE(weather.Values[3].Visible);
  EXPECT_EQ(weather.Label38.Caption, "R&&D house");
}

TEST_F(WxPanelTest, AShortTextHasItsTitleAndNoValues) {
  Select(RecordOf("out of order"));
  EXPECT_EQ(weather.WxTitle.Caption, "WX STATION  QX7WX  2024-05-14 1230");
  for (std::size_t at = 0; at < WeatherControls::kValues; ++at)
    EXPECT_FALSE(weather.Values[at].Visible) << at;
  EXPECT_EQ(weather.Label38.Caption, "out of order");
  EXPECT_TRUE(weather.Frame15.Visible);
}

// What stands behind column 89 is no part of the report.
TEST_F(WxPanelTest, TheReportEndsWhereTheFieldEnds) {
  StationRecord record = RecordOf("");
  record.Put(91, 100, "c220s00000");
  Select(record);
  EXPECT_FALSE(weather.Values[0].Visible);
}

TEST_F(WxPanelTest, OtherStationsHideThePanelAndItsButton) {
  Select(RecordOf("220/004g005t077r000p000P000h50b10139"));
  Select(RecordOf("220/004g005t077r000p000P000h50b10139", "/>"));
  EXPECT_FALSE(weather.Frame15.Visible);
  EXPECT_FALSE(record_panel.Command40.Visible);
  Select(RecordOf("220/004g005t077h50b10139", "\\_"));
  EXPECT_TRUE(weather.Frame15.Visible);
  panel.ShowWxPanel(nullptr);
  EXPECT_FALSE(weather.Frame15.Visible);
  EXPECT_FALSE(record_panel.Command40.Visible);
}

TEST_F(WxPanelTest, ClosedItStaysClosedUntilItsButtonIsPressed) {
  Select(RecordOf("220/004g005t077r000p000P000h50b10139"));
  weather.Command27.Click();
  EXPECT_FALSE(weather.Frame15.Visible);
  const std::uint64_t painted = weather.Picture2.Revision;
  Select(RecordOf("100/004g005t050r000p000P000h50b10139"));
  EXPECT_FALSE(weather.Frame15.Visible);
  EXPECT_TRUE(record_panel.Command40.Visible);
  EXPECT_EQ(weather.Picture2.Revision, painted);
  record_panel.Command40.Click();
  EXPECT_TRUE(weather.Frame15.Visible);
  EXPECT_EQ(Value(0), "WIND DIR   deg:  100");
  EXPECT_EQ(Value(3),
            "TEMPERATURE \xB0"
            "C:   10");
  EXPECT_GT(weather.Picture2.Revision, painted);
  record_panel.Command40.Click();
  EXPECT_FALSE(weather.Frame15.Visible);
  Select(RecordOf("100/004g005t050r000p000P000h50b10139"));
  EXPECT_FALSE(weather.Frame15.Visible);
}

}  // namespace
}  // namespace zepril
