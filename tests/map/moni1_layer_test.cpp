// The followed station: its track by age and style, its mark, label, gauge and captions
#include "map/moni1_layer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "map/map_colours.h"
#include "map/station_marks.h"
#include "tests/map/station_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using Operation = RecorderSurface::Operation;

struct FollowedWorld : StationWorld {
  void DrawFollowed() {
    Surface.Operations.clear();
    Room.Sheets.BeginRedraw();
    Moni1Draw(Surface, View(), State.Followed, State.Stores.Moni1Records, Room.Symbols, Room.Sheets,
              Clock.Now(), Controls.Moni1);
  }
  void Add(int x, int y, const std::string& stamp = "240115 1234") {
    RecordMaker maker = At(x, y, "QX7KB");
    maker.DateAndTime = stamp;
    Follow(maker);
    View().StationAnchorX = x;
    View().StationAnchorY = y;
  }
  void AddMessageCapable(int x, int y) {
    RecordMaker maker = At(x, y, "QX7KB");
    maker.Message = '\'';
    Follow(maker);
  }
  void AddWeather(int x, int y) {
    Add(x, y);
    Follow(At(x, y, "QX7KB", "/_"));
  }
};

Colour ColourOf(RecordMaker maker, const std::string& stamp) {
  maker.DateAndTime = stamp;
  return TrackColour(maker.Make(), false, {2024, 1, 15, 12, 34, 0});
}

TEST(TrackColour, TellsTheAge) {
  EXPECT_EQ(ColourOf({}, "240115 1234"), ColourTrackRecent);
  EXPECT_EQ(ColourOf({}, "240115 1134"), ColourTrackRecent);  // 60 minutes
  EXPECT_EQ(ColourOf({}, "240115 1133"), ColourTrackHours);   // 61
  EXPECT_EQ(ColourOf({}, "240115 0635"), ColourTrackHours);   // 359
  EXPECT_EQ(ColourOf({}, "240115 0634"), ColourTrackOld);     // 360
  EXPECT_EQ(ColourOf({}, "xx0115 0634"), ColourTrackOld);
}

TEST(TrackColour, PersonsAndLateRecordsHaveTheirOwn) {
  for (const char* symbol : {"/,", "/C", "/[", "/b", "\\,"}) {
    RecordMaker maker;
    maker.Symbol = symbol;
    EXPECT_EQ(ColourOf(maker, "240115 0634"), 0xD0FF60u) << symbol;
    maker.Stale = 'T';
    EXPECT_EQ(ColourOf(maker, "240115 0634"), 0xD0D0D0u) << symbol;
    EXPECT_EQ(TrackColour(maker.Make(), true, {2024, 1, 15, 12, 34, 0}), 0x00FFFFu);
  }
}

TEST(Moni1Draw, ASegmentIsFourLinesAroundABlackCore) {
  FollowedWorld world;
  world.Add(100, 200, "240115 0000");
  world.Add(150, 220, "240115 0000");
  world.DrawFollowed();
  const auto lines = world.Surface.Of("line");
  // The first point's mark comes before the line that leaves it.
  const auto side = std::find(lines.begin(), lines.end(), Line(99, 200, 149, 220, ColourTrackOld));
  ASSERT_NE(side, lines.end());
  EXPECT_EQ(side[1], Line(101, 200, 151, 220, ColourTrackOld));
  EXPECT_EQ(side[2], Line(100, 199, 150, 219, ColourTrackOld));
  EXPECT_EQ(side[3], Line(100, 201, 150, 221, ColourTrackOld));
  EXPECT_EQ(side[4], Line(100, 200, 150, 220, kBlack));
}

TEST(Moni1Draw, PointMarksAlternateInPairsAndTheLastPointHasNone) {
  FollowedWorld world;
  world.Add(100, 200);
  world.Add(300, 200);
  world.DrawFollowed();
  std::vector<Colour> at_first;
  for (const Operation& line : world.Surface.Of("line")) {
    if (line.X1 > 100 && line.X1 <= 106 && line.X2 == 100 && line.Y1 == 200 && line.Y2 < 200) {
      at_first.push_back(line.Ink);
    }
  }
  EXPECT_THAT(at_first, ElementsAre(0u, 0u, ColourTrackRecent, ColourTrackRecent, 0u, 0u));
}

TEST(Moni1Draw, TheOwnMarkHasBigRingsByClass) {
  FollowedWorld world;
  world.Add(300, 200);
  world.DrawFollowed();
  std::vector<Colour> rings;
  for (const Operation& line : world.Surface.Of("line")) {
    if (line.X1 > 300 && line.Y1 == 200 && line.Y2 < 200) rings.push_back(line.Ink);
  }
  ASSERT_EQ(rings.size(), 15u);
  EXPECT_EQ(rings[10], kBlack);
  EXPECT_EQ(rings[11], ColourTrackRecent);
  EXPECT_EQ(rings[12], ColourTrackRecent);
  EXPECT_EQ(rings[13], kBlack);
}

TEST(Moni1Draw, ABlankRecordKeepsThePreviousPoint) {
  FollowedWorld world;
  world.Add(100, 200);
  world.State.Stores.Moni1Records.Append(StationRecord());
  world.Add(150, 220);
  world.DrawFollowed();
  EXPECT_THAT(world.Surface.Of("line"), testing::Contains(Line(100, 200, 150, 220, kBlack)));
}

TEST(Moni1Draw, TrackStylesLeaveOutWhatTheyShould) {
  const auto lines_of = [](int style) {
    FollowedWorld world;
    world.Add(100, 200, "240115 0000");
    world.Add(150, 220, "240115 0000");
    world.State.Followed.TrackStyle = style;
    world.DrawFollowed();
    return world.Surface.Of("line");
  };
  const auto core = Line(100, 200, 150, 220, kBlack);
  EXPECT_THAT(lines_of(1), testing::Contains(Line(99, 200, 149, 220, ColourTrackRecent)));
  EXPECT_THAT(lines_of(1), testing::Not(testing::Contains(Line(101, 200, 100, 199, kBlack))));
  EXPECT_THAT(lines_of(0), testing::Contains(Line(101, 200, 100, 199, kBlack)));
  EXPECT_THAT(lines_of(2), testing::Contains(core));
  EXPECT_THAT(lines_of(2),
              testing::Not(testing::Contains(Line(99, 200, 149, 220, ColourTrackOld))));
  EXPECT_THAT(lines_of(6), testing::Not(testing::Contains(core)));
  EXPECT_FALSE(lines_of(6).empty());  // the last mark
}

TEST(Moni1Draw, StylesThreeToFivePassOverLateRecords) {
  FollowedWorld world;
  world.Add(100, 200);
  RecordMaker late = StationWorld::At(500, 500, "QX7KB");
  late.Stale = 'T';
  world.Follow(late);
  world.Add(150, 220);
  world.State.Followed.TrackStyle = 3;
  world.DrawFollowed();
  EXPECT_THAT(world.Surface.Of("line"), testing::Contains(Line(100, 200, 150, 220, kBlack)));
  EXPECT_EQ(world.State.Stores.Moni1Records.Count(), 3);
}

TEST(Moni1Draw, ThinningTakesLateRecordsOutOfTheStore) {
  FollowedWorld world;
  world.Add(100, 200);
  RecordMaker late = StationWorld::At(500, 500, "QX7KB");
  late.Stale = 'T';
  world.Follow(late);
  world.DrawFollowed();
  EXPECT_EQ(world.State.Stores.Moni1Records.Count(), 2);
  world.State.Followed.Moni1ThinningOn = 1;
  world.DrawFollowed();
  EXPECT_EQ(world.State.Stores.Moni1Records.Count(), 1);
}

TEST(Moni1Draw, CaptionsTellCallCountTimeAndText) {
  FollowedWorld world;
  world.Add(100, 200);
  FollowedStationState& followed = world.State.Followed;
  followed.Moni1Call = "QX7KB-12345";
  followed.MonitorDate = "240115";
  followed.MonitorTime = "1234";
  followed.MonitorSymbolText = "Car        0";
  followed.MonitorInfo = "You & me";
  world.DrawFollowed();
  EXPECT_EQ(world.Controls.Moni1.Combo9.Text, "QX7KB-123");
  EXPECT_EQ(world.Controls.Moni1.Label6.Caption, "1");
  EXPECT_EQ(world.Controls.Moni1.Label9.Caption, "2024-01-15 12:34  Car        0");
  EXPECT_EQ(world.Controls.Moni1.Label10.Caption, "TEXT: You && me");
}

TEST(Moni1Draw, TheCallFieldIsLeftAloneWhileTheOperatorTypes) {
  FollowedWorld world;
  world.Controls.Moni1.Combo9.HasFocus = true;
  world.Controls.Moni1.Combo9.Text = "QX";
  world.DrawFollowed();
  EXPECT_EQ(world.Controls.Moni1.Combo9.Text, "QX");
}

TEST(Moni1Draw, AnEmptyHistoryDrawsNothing) {
  FollowedWorld world;
  world.DrawFollowed();
  EXPECT_TRUE(world.Surface.Operations.empty());
  EXPECT_EQ(world.Controls.Moni1.Label9.Caption, "");
}

TEST(Moni1Draw, TheLabelFollowsTheLevel) {
  FollowedWorld world;
  world.Add(300, 200);
  world.View().StationLabelLevel = LabelLevel::MarksAndCalls;
  world.DrawFollowed();
  EXPECT_THAT(world.Surface.Of("text"), ElementsAre(Words(317, 191, "QX7KB", kBlack)));
  world.View().StationLabelLevel = LabelLevel::MarksAndLines;
  world.DrawFollowed();
  EXPECT_EQ(world.Surface.Of("text")[0].Words, "1234 Test />  QX7KB");
  world.View().StationLabelLevel = LabelLevel::Marks;
  world.DrawFollowed();
  EXPECT_TRUE(world.Surface.Of("text").empty());
}

TEST(Moni1Draw, FindRepeatsTheLabelInItsOwnColour) {
  FollowedWorld world;
  world.Add(300, 200);
  world.View().FindCall = "QX7KB";
  world.View().StationLabelLevel = LabelLevel::MarksAndCalls;
  world.DrawFollowed();
  EXPECT_THAT(world.Surface.Of("text"),
              ElementsAre(Words(317, 191, "QX7KB", kBlack), Words(317, 191, "! QX7KB !", kBlack)));
  EXPECT_EQ(world.Surface.Of("filled").back(), Filled(317, 193, 317 + 9 * 8, 205, 0x0080FF));
  world.View().StationLabelLevel = LabelLevel::MarksAndLines;
  world.DrawFollowed();
  EXPECT_EQ(world.Surface.Of("text")[1].Words, "1234 Test />  QX7KB");
  world.View().FindCall = "QX1AB";
  world.DrawFollowed();
  EXPECT_EQ(world.Surface.Of("text").size(), 1u);
}

TEST(Moni1Draw, AMessageCapableStationHasTheGreenPoint) {
  FollowedWorld world;
  world.Add(300, 200);
  const auto has_point = [&world](int level) {
    world.View().StationLabelLevel = static_cast<LabelLevel>(level);
    world.DrawFollowed();
    for (const Operation& box : world.Surface.Of("box")) {
      if (box.X1 == 299 && box.Y1 == 199 && box.X2 == 301 && box.Ink == kMessageDotColour) {
        return true;
      }
    }
    return false;
  };
  EXPECT_FALSE(has_point(2));
  world.AddMessageCapable(300, 200);
  EXPECT_TRUE(has_point(2));
  EXPECT_TRUE(has_point(3));
  EXPECT_FALSE(has_point(4));  // the bitmap symbol stands there
}

TEST(Moni1Draw, AroundTheGaugeTheStationKeepsARing) {
  FollowedWorld world;
  world.AddWeather(300, 200);
  world.View().StationLabelLevel = LabelLevel::Marks;
  world.View().WxCaption = true;
  world.DrawFollowed();
  const auto circles = world.Surface.Of("circle");
  const auto of_radius = [&circles](int radius) {
    for (const Operation& circle : circles) {
      if (circle.X2 == radius && circle.Ink == ColourTrackRecent) return true;
    }
    return false;
  };
  EXPECT_TRUE(of_radius(16));
  EXPECT_TRUE(of_radius(17));
  EXPECT_TRUE(IsFilledAt(world.Surface, 300 + 16, 200));
  // Without the gauge the mark itself is seen.
  world.View().WxCaption = false;
  world.DrawFollowed();
  EXPECT_EQ(world.Surface.Of("circle").size(), 14u);
}

}  // namespace
}  // namespace zepril
