// Tracks, marks, symbols and labels of all stations, and the sheets they come from.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "map/all_stations_layer.h"
#include "map/map_colours.h"
#include "map/map_view.h"
#include "map/record_age.h"
#include "map/station_marks.h"
#include "map/symbol_sheets.h"
#include "tests/map/station_world.h"

namespace zepril {
namespace {

using testing::ElementsAre;
using Operation = RecorderSurface::Operation;

// ---- All stations ---------------------------------------------------------------------------

TEST(AllStationsDraw, AMovingStationIsADiamondOfThreeColours) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200));
  world.Draw(1);
  std::vector<Colour> rings;
  for (const Operation& line : world.Surface.Of("line")) {
    // The line from the right corner up tells the radius.
    if (line.X1 > 100 && line.Y1 == 200 && line.Y2 < 200) rings.push_back(line.Ink);
  }
  EXPECT_THAT(rings, ElementsAre(ColourMoniAll, ColourMoniAll, 0xFFFFFFu, 0xFFFFFFu, 0u, 0u));
}

TEST(AllStationsDraw, FixedStationsAreSquaresAndNetworkStationsCircles) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200, "FIXED", "/-"));
  world.Draw(1);
  const auto boxes = world.Surface.Of("box");
  ASSERT_EQ(boxes.size(), 5u);
  EXPECT_EQ(boxes[4], (Operation{"box", 95, 195, 105, 205, 0, {}, FontFace::Text, {}}));
  EXPECT_EQ(boxes[2].Ink, 0xFFFFFFu);
  StationWorld other;
  other.Hear(StationWorld::At(100, 200, "DIGI", "/#"));
  other.Draw(1);
  EXPECT_EQ(other.Surface.Of("circle").size(), 6u);
}

TEST(AllStationsDraw, AWeatherStationIsACircleWithABar) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200, "WX", "/_"));
  world.Draw(2);
  EXPECT_EQ(world.Surface.Of("circle").size(), 6u);
  EXPECT_EQ(world.Surface.Of("circle")[2].Ink, ColourMoniAll);
  EXPECT_EQ(world.Surface.Of("circle")[3].Ink, 0xFFFFFFu);
  EXPECT_THAT(world.Surface.Of("line"), ElementsAre(Line(96, 200, 104, 200, 0xFFFFFF)));
}

TEST(AllStationsDraw, CircleMarksHaveNoHoles) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200, "WX", "/_"));
  world.Draw(1);
  for (int dy = -6; dy <= 6; ++dy) {
    for (int dx = -6; dx <= 6; ++dx) {
      const bool inside = std::lround(std::hypot(dx, dy)) <= 6;
      EXPECT_EQ(IsFilledAt(world.Surface, 100 + dx, 200 + dy), inside) << dx << " " << dy;
    }
  }
}

TEST(AllStationsDraw, TheCoreGreysWithAgeAtLevelOneOnly) {
  const auto core_at = [](const std::string& stamp, int level) {
    StationWorld world;  // the clock stands at 2024-01-15 12:34
    RecordMaker first = StationWorld::At(100, 200);
    first.DateAndTime = stamp;
    RecordMaker second = StationWorld::At(150, 200);
    second.DateAndTime = stamp;
    world.Hear(first);
    world.Hear(second);
    world.Draw(level);
    for (const Operation& line : world.Surface.Of("line")) {
      if (line.X1 == 100 && line.Y1 == 200 && line.X2 == 150) return line.Ink;
    }
    return 0x123456u;
  };
  EXPECT_EQ(core_at("240115 1054", 1), 0x9B9B9Bu);  // 100 minutes
  EXPECT_EQ(core_at("240115 0819", 1), 0u);         // 255
  EXPECT_EQ(core_at("240101 0819", 1), 0u);
  EXPECT_EQ(core_at("240115 1234", 1), 0xFFFFFFu);
  EXPECT_EQ(core_at("240101 0819", 2), 0xFFFFFFu);
}

TEST(AllStationsDraw, ATrackIsFourLinesAroundACore) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200));
  world.Hear(StationWorld::At(150, 220));
  world.Draw(2);
  const auto lines = world.Surface.Of("line");
  ASSERT_GE(lines.size(), 5u);
  EXPECT_EQ(lines[0], Line(99, 200, 149, 220, ColourMoniAll));
  EXPECT_EQ(lines[1], Line(101, 200, 151, 220, ColourMoniAll));
  EXPECT_EQ(lines[2], Line(100, 199, 150, 219, ColourMoniAll));
  EXPECT_EQ(lines[3], Line(100, 201, 150, 221, ColourMoniAll));
  EXPECT_EQ(lines[4], Line(100, 200, 150, 220, 0xFFFFFF));
}

TEST(AllStationsDraw, TwoPositionsOnOnePixelAreACross) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200, "HOME", "/-"));
  world.Hear(StationWorld::At(100, 200, "HOME", "/-"));
  world.Draw(2);
  const auto lines = world.Surface.Of("line");
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[0], Line(99, 200, 99, 200, ColourMoniAll));
  EXPECT_EQ(lines[4], Line(100, 200, 100, 200, 0xFFFFFF));
}

TEST(AllStationsDraw, ASinglePositionHasAMarkAndNoTrack) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 200, "HOME", "/-"));
  world.Draw(2);
  EXPECT_TRUE(world.Surface.Of("line").empty());
  EXPECT_EQ(world.Surface.Of("box").size(), 5u);
}

TEST(AllStationsDraw, TheLabelClearsTheMarkAndTheBiggerSymbol) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 100));
  world.Draw(2);
  EXPECT_THAT(world.Surface.Of("filled"), ElementsAre(Filled(108, 93, 156, 105, ColourMoniAll)));
  EXPECT_THAT(world.Surface.Of("text"), ElementsAre(Words(108, 91, "N0CALL", 0xFFFFFF)));
  world.Draw(4);
  EXPECT_THAT(world.Surface.Of("filled"), ElementsAre(Filled(114, 93, 162, 105, ColourMoniAll)));
  world.Draw(1);
  EXPECT_TRUE(world.Surface.Of("text").empty());
}

TEST(AllStationsDraw, TheLongLabelTellsTimeCommentSymbolViaAndCall) {
  StationWorld world;
  RecordMaker heard = StationWorld::At(100, 100);
  heard.Via = "WIDE1-1";
  world.Hear(heard);
  world.Draw(3);
  EXPECT_EQ(world.Surface.Of("text")[0].Words, "1234 Test /> WIDE1-1 N0CALL");
  heard.Object = '_';
  heard.Call = "OBJECT";
  world.Hear(heard);
  world.Draw(5);
  EXPECT_EQ(world.Surface.Of("text")[1].Words, "1234 Test /> WIDE1-1_OBJECT");
}

TEST(AllStationsDraw, ARecordWithTheObjectMarkDrawsNoTrack) {
  StationWorld world;
  RecordMaker heard = StationWorld::At(100, 200, "OBJ", "/-");
  heard.Object = '_';
  world.Hear(heard);
  heard.EastKm += 50;
  world.Hear(heard);
  world.Draw(2);
  EXPECT_TRUE(world.Surface.Of("line").empty());
}

TEST(AllStationsDraw, ASmallLetterInTheSourceFieldHasItsOwnColour) {
  StationWorld world;
  RecordMaker heard = StationWorld::At(100, 100);
  heard.Via = "inet";
  world.Hear(heard);
  world.Draw(2);
  EXPECT_EQ(world.Surface.Of("filled")[0].Ink, 0xE800C8u);
  for (const auto& [source, ink] : {std::pair{"a", 0xE800C8u}, {"`", 0xB80098u}}) {
    StationWorld edge;
    heard.Via = source;
    edge.Hear(heard);
    edge.Draw(2);
    EXPECT_EQ(edge.Surface.Of("filled")[0].Ink, ink) << source;
  }
}

TEST(AllStationsDraw, DirectlyHeardOnlyLeavesOutRecordsWithASource) {
  StationWorld world;
  RecordMaker heard = StationWorld::At(100, 100);
  heard.Via = "WIDE1-1";
  world.Hear(heard);
  world.View().HideObjects = true;
  EXPECT_TRUE(world.Draw(3).empty());
  world.Hear(StationWorld::At(300, 300));
  world.Draw(2);
  EXPECT_EQ(world.Surface.Of("text").size(), 1u);
  for (const Operation& line : world.Surface.Of("line"))
    EXPECT_GT(line.X1, 250);
}

TEST(AllStationsDraw, AHiddenClassIsLeftOutAltogether) {
  struct Row {
    const char* Symbol;
    int Bit;
  };
  for (const Row& row : {Row{"/#", 0}, Row{"/-", 1}, Row{"/>", 2}, Row{"/_", 4}}) {
    StationWorld world;
    world.Hear(StationWorld::At(100, 100, "CALL", row.Symbol));
    world.Hear(StationWorld::At(200, 100, "CALL", row.Symbol));
    world.View().StationClassMask = 31 & ~(1 << row.Bit);
    EXPECT_TRUE(world.Draw(3).empty()) << row.Symbol;
    world.View().StationClassMask = 1 << row.Bit;
    EXPECT_FALSE(world.Draw(3).empty()) << row.Symbol;
  }
}

TEST(AllStationsDraw, AMovingStationThatStoodStillIsLeftOutWhenAsked) {
  StationWorld world;
  world.View().MovedOnly = true;
  world.Hear(StationWorld::At(100, 100, "STILL"));
  world.Hear(StationWorld::At(100, 100, "STILL"));
  EXPECT_TRUE(world.Draw(2).empty());
  EXPECT_TRUE(world.Draw(4).empty());
  world.Hear(StationWorld::At(110, 100, "STILL"));
  EXPECT_FALSE(world.Draw(2).empty());
  // Standing again later does not take the movement back.
  world.Hear(StationWorld::At(110, 100, "STILL"));
  world.Draw(2);
  EXPECT_FALSE(world.Surface.Of("filled").empty());
  StationWorld fixed;
  fixed.View().MovedOnly = true;
  fixed.Hear(StationWorld::At(100, 100, "HOME", "/-"));
  EXPECT_FALSE(fixed.Draw(2).empty());
}

TEST(AllStationsDraw, TheOneHeardLastLiesOnTopAndTheFollowedOneIsNotDrawn) {
  StationWorld world;
  world.State.Followed.Moni1Call = "QX7KB";
  world.Hear(StationWorld::At(100, 100, "FIRST"));
  world.Hear(StationWorld::At(100, 110, "SECOND"));
  world.Hear(StationWorld::At(100, 120, "QX7KB"));
  world.Hear(StationWorld::At(100, 130, "FIRST"));
  world.Draw(2);
  const auto labels = world.Surface.Of("text");
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_EQ(labels[0].Words, "SECOND");
  EXPECT_EQ(labels[1].Words, "FIRST");
}

TEST(AllStationsDraw, ALargerWindowIsDrawnToItsEdge) {
  StationWorld world;
  world.View().ViewWidthPx = 3840;
  world.Hear(StationWorld::At(1900, 100, "PAST", "/-"));
  world.Hear(StationWorld::At(3839, 100, "EDGE", "/-"));
  world.Hear(StationWorld::At(3840, 100, "BEYOND", "/-"));
  world.Draw(2);
  std::vector<std::string> labels;
  for (const Operation& text : world.Surface.Of("text"))
    labels.push_back(text.Words);
  EXPECT_THAT(labels, ElementsAre("PAST", "EDGE"));
}

TEST(AllStationsDraw, APixelOf1900IsTooFarForMarkAndLabel) {
  StationWorld world;
  world.Hear(StationWorld::At(1899, 100, "NEAR", "/-"));
  world.Hear(StationWorld::At(1900, 100, "FAR", "/-"));
  world.Draw(2);
  EXPECT_EQ(world.Surface.Of("text").size(), 1u);
  EXPECT_EQ(world.Surface.Of("text")[0].Words, "NEAR");
  EXPECT_EQ(world.Surface.Of("box").size(), 5u);
}

TEST(AllStationsDraw, AStationThatTakesMessagesHasAGreenDot) {
  StationWorld world;
  RecordMaker heard = StationWorld::At(100, 100, "CALL", "/#");
  heard.Message = '\'';
  world.Hear(heard);
  for (int level : {2, 3}) {
    world.Draw(level);
    EXPECT_THAT(world.Surface.Of("box"),
                ElementsAre(Operation{"box", 99, 99, 101, 101, 0x00FF00, {}, FontFace::Text, {}}));
  }
  for (int level : {1, 4, 5}) {
    world.Draw(level);
    EXPECT_TRUE(world.Surface.Of("box").empty());
  }
}

TEST(AllStationsDraw, TheStationLookedForIsLabelledAgain) {
  StationWorld world;
  world.View().FindCall = "N0CALL";
  world.Hear(StationWorld::At(100, 100));
  world.Draw(2);
  EXPECT_THAT(world.Surface.Of("text"),
              ElementsAre(Words(108, 91, "N0CALL", 0xFFFFFF), Words(108, 91, "! N0CALL !", 0)));
  EXPECT_EQ(world.Surface.Of("filled")[1], Filled(108, 93, 188, 105, 0x0080FF));
  world.Draw(3);
  EXPECT_EQ(world.Surface.Of("text")[1].Words, "1234 Test />  N0CALL");
}

TEST(AllStationsDraw, BitmapSymbolsCarryTheirOverlay) {
  StationWorld world;
  world.AddSheet(0);
  world.AddSheet(1);
  world.Hear(StationWorld::At(100, 100, "CAR", "/>"));
  world.Hear(StationWorld::At(200, 100, "OVER", "\\nX"));
  world.Draw(4);
  const auto images = world.Surface.Of("image");
  ASSERT_EQ(images.size(), 2u);
  EXPECT_EQ(images[0].X1, 89);
  EXPECT_EQ(images[0].Y1, 90);
  EXPECT_EQ(images[0].X2, 22);
  EXPECT_EQ(images[0].Source, (PixelRect{(30 - 1) % 16 * 21, (30 - 1) / 16 * 21, 22, 22}));
  EXPECT_THAT(world.Surface.Of("text"), testing::Contains(Words(196, 93, "X", 0)));
}

TEST(AllStationsDraw, AMissingSheetDrawsNoSymbolAndKeepsTheLabel) {
  StationWorld world;
  world.Hear(StationWorld::At(100, 100));
  world.Draw(4);
  EXPECT_TRUE(world.Surface.Of("image").empty());
  EXPECT_EQ(world.Surface.Of("text").size(), 1u);
}

TEST(AllStationsDraw, AnImpossibleTimeLosesThatStationOnly) {
  StationWorld world;
  RecordMaker broken = StationWorld::At(100, 100, "BROKEN");
  broken.DateAndTime = "249915 1234";
  world.Hear(broken);
  world.Hear(StationWorld::At(200, 100, "GOOD", "/-"));
  world.Draw(1);
  EXPECT_TRUE(world.Surface.Of("line").empty());
  EXPECT_EQ(world.Surface.Of("box").size(), 5u);
}

TEST(AllStationsDraw, TheWxCaptionPutsAGaugeAroundWeatherStations) {
  StationWorld world;
  RecordMaker wx = StationWorld::At(300, 300, "WX", "/_");
  wx.Info = "220/004g005t077r000p000P000h50b10139";
  world.Hear(wx);
  world.Draw(1);
  EXPECT_TRUE(world.Surface.Of("arc").empty());
  world.View().WxCaption = true;
  world.Draw(1);
  EXPECT_FALSE(world.Surface.Of("arc").empty());
}

// The plain way of the layer, call by call over the whole store, as a check of the index.
std::vector<StationTrail> LiteralTrails(const StationStore& store) {
  std::vector<std::string> calls;
  for (int i = store.Count(); i >= 1 && calls.size() < kMostStations; --i) {
    if (store.At(i).IsBlank()) continue;
    const std::string call(store.At(i).Call());
    if (std::find(calls.begin(), calls.end(), call) == calls.end()) calls.push_back(call);
  }
  std::reverse(calls.begin(), calls.end());
  std::vector<StationTrail> trails;
  for (const std::string& call : calls) {
    trails.push_back({call, {}});
    for (int i = 1; i <= store.Count(); ++i) {
      if (!store.At(i).IsBlank() && store.At(i).Call() == call) trails.back().Records.push_back(i);
    }
  }
  return trails;
}

TEST(TrailsOfStore, AgreeWithALiteralScanOnRandomStores) {
  std::mt19937 random(11);
  for (int round = 0; round < 200; ++round) {
    StationStore store(3000);
    const int calls = 1 + static_cast<int>(random() % 40);
    const int records = static_cast<int>(random() % 300);
    for (int i = 0; i < records; ++i) {
      RecordMaker maker;
      maker.Call = "QX" + WholeNumber(static_cast<int>(random()) % calls);
      store.Append(random() % 17 == 0 ? StationRecord() : maker.Make());
    }
    const auto fast = TrailsOfStore(store);
    const auto plain = LiteralTrails(store);
    ASSERT_EQ(fast.size(), plain.size());
    for (std::size_t i = 0; i < fast.size(); ++i) {
      ASSERT_EQ(fast[i].Call, plain[i].Call);
      ASSERT_EQ(fast[i].Records, plain[i].Records);
    }
  }
}

TEST(AllStationsDraw, RecordsOfRandomBytesAreSurvived) {
  std::mt19937 random(3);
  StationWorld world;
  for (int i = 0; i < 2000; ++i) {
    std::string bytes(120, ' ');
    for (char& c : bytes)
      c = static_cast<char>(random());
    world.State.Stores.MoniAllRecords.Append(StationRecord(bytes));
    world.State.Stores.Moni1Records.Append(StationRecord(bytes));
  }
  for (int level = 1; level <= 5; ++level) {
    world.Draw(level);
    for (const Operation& operation : world.Surface.Operations) {
      ASSERT_LE(std::abs(operation.X1), 4100);
      ASSERT_LE(std::abs(operation.Y1), 4100);
    }
  }
  world.Redraw();
}

// ---- Symbols and ages -----------------------------------------------------------------------

TEST(SymbolCells, LieInSixteenColumnsAndSixRows) {
  struct Row {
    int Index, Sheet, X, Y;
  };
  for (const Row& row : {Row{1, 0, 0, 0}, Row{16, 0, 315, 0}, Row{17, 0, 0, 21}, Row{37, 0, 84, 42},
                         Row{94, 0, 273, 105}, Row{101, 1, 0, 0}, Row{194, 1, 273, 105},
                         Row{0, 0, 0, 0}, Row{100, 1, 0, 105}}) {
    const SymbolCell cell = CellOfSymbol(row.Index);
    EXPECT_EQ(cell.Sheet, row.Sheet) << row.Index;
    EXPECT_EQ(cell.X, row.X) << row.Index;
    EXPECT_EQ(cell.Y, row.Y) << row.Index;
  }
}

TEST(SymbolIndex, BringsEveryPairIntoTheTable) {
  EXPECT_EQ(SymbolIndex('/', '!'), 1);
  EXPECT_EQ(SymbolIndex('/', '~'), 94);
  EXPECT_EQ(SymbolIndex('\\', '!'), 101);
  EXPECT_EQ(SymbolIndex('/', ' '), 194);
  EXPECT_EQ(SymbolIndex('\\', '\x7F'), 194);
  for (int table = 0; table < 256; ++table) {
    for (int code = 0; code < 256; ++code) {
      const int index = SymbolIndex(Chr(table), Chr(code));
      ASSERT_GE(index, 1);
      ASSERT_LE(index, 194);
    }
  }
}

TEST(SymbolSheets, ASheetTooSmallForItsCellsDrawsNothing) {
  StationWorld world;
  world.Disk.Write(R"(C:\Z\ZEPRSYM0.BMP)",
                   BmpMaker{21, 21, 8, TestPalette(256), std::string(24 * 21, '\7')}.Bytes());
  world.Room.Sheets.DrawSymbol(world.Surface, 1, 0, 0);
  EXPECT_TRUE(world.Surface.Operations.empty());
}

TEST(RecordAge, CountsWholeMinutesAndRefusesImpossibleTimes) {
  RecordMaker maker;
  maker.DateAndTime = "231231 2359";
  EXPECT_EQ(RecordAgeMinutes(maker.Make(), {2024, 1, 1, 0, 1, 59}), 2);
  EXPECT_EQ(RecordAgeMinutes(maker.Make(), {2023, 12, 31, 23, 0, 0}), 0);  // from the future
  for (const char* stamp : {"230031 2359", "231332 2359", "231231 2460", "231231 9959", ""}) {
    maker.DateAndTime = stamp;
    EXPECT_EQ(RecordAgeMinutes(maker.Make(), {2024, 1, 1, 0, 1, 0}), std::nullopt) << stamp;
  }
}

}  // namespace
}  // namespace zepril
