// Rows, ages and orders of the station list, and what a press on a row opens.
#include "reception/heard_stations.h"

#include "core/text_fields.h"

#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

TEST(HeardStations, EveryCallStandsOnceTheLastHeardOnTop) {
  StationStore store(3000);
  for (const char* call : {"N0A", "N0B", "N0A", "N0C"})
    store.Append(RecordOf(call));
  store.Append(StationRecord());
  EXPECT_EQ(HeardStations(store), (std::vector<HeardStation>{{"N0C", 4}, {"N0A", 3}, {"N0B", 2}}));
  EXPECT_EQ(HeardStations(store, 2).size(), 2u);
}

TEST(HeardStations, AgesAreMinutesThenHoursThenDays) {
  EXPECT_EQ(AgeText(-5), "0 min");
  EXPECT_EQ(AgeText(0), "0 min");
  EXPECT_EQ(AgeText(119), "119 min");
  EXPECT_EQ(AgeText(120), "2 h");
  EXPECT_EQ(AgeText(47 * 60 + 59), "47 h");
  EXPECT_EQ(AgeText(48 * 60), "2 d");
}

// The clock stands at 2024-01-15 12:34, the own position 10 km south of N0A.
struct HeardList : Reception {
  HeardList() {
    Map.OwnNorthKm = 5807.860;
    Map.OwnEastKm = 391.394;
    Controls.MoniAll.HeardPanel.Visible = false;
  }
  MoniAllControls& All() { return Controls.MoniAll; }
  std::vector<std::string> Calls() {
    std::vector<std::string> calls;
    for (const std::string& item : All().HeardList.Items)
      calls.emplace_back(Trim(Left(item, 9)));
    return calls;
  }
  void Add(const char* call, const char* time = "240115 1234", const char* north = " 5817.860") {
    Stores.MoniAllRecords.Append(RecordOf(call, time, north));
  }
  void Order(HeardColumn column) { All().HeardOrder[static_cast<std::size_t>(column)].Click(); }
  using Rows = std::vector<std::string>;

  HeardStationsPanel& Panel = Room.Heard;
};

TEST(HeardStations, RowOpensTheRecordOfItsStation) {
  HeardList list;
  list.Add("N0A");
  list.Add("N0B");
  list.Panel.Command3Click();
  EXPECT_TRUE(list.All().HeardPanel.Visible);
  EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0B", "N0A"}));
  list.Panel.HeardListClick();
  EXPECT_FALSE(list.Controls.Record.Frame1.Visible);
  list.All().HeardList.ListIndex = 1;
  list.Panel.HeardListClick();
  EXPECT_EQ(list.Stores.SelectedStationCall, "N0A");
  EXPECT_EQ(list.Stores.SelectedRecordIndex, 1);
  list.Panel.Command3Click();
  EXPECT_FALSE(list.All().HeardPanel.Visible);
}

TEST(HeardStations, RowsTellAgeDistanceAndDirection) {
  HeardList list;
  list.Add("QX1AB-12", "240115 1204");
  list.Panel.Command3Click();
  ASSERT_EQ(list.All().HeardList.Items.size(), 1U);
  const std::string row = list.All().HeardList.Items[0];
  EXPECT_EQ(row.substr(0, 18), "QX1AB-12    30 min");
  EXPECT_EQ(row.substr(18, 8), "    10.0");
  // Due north on the map's grid, which leans to the west here.
  EXPECT_EQ(row.substr(26), "  359");
}

TEST(HeardStations, WithoutAnOwnPositionThereIsNoDistance) {
  HeardList list;
  list.Map.OwnNorthKm = list.Map.OwnEastKm = 0.0;
  list.Add("N0A");
  list.Panel.Command3Click();
  EXPECT_EQ(list.All().HeardList.Items[0], "N0A          0 min             ");
}

TEST(HeardStations, EachColumnOrdersAndTurnsTheOrderRound) {
  HeardList list;
  list.Add("N0C", "240115 1200", " 5900.000");
  list.Add("N0A", "240115 1100", " 5700.000");
  list.Add("N0B", "240115 1230", " 5808.000");
  list.Add("N0D", "240115 1220", "     .   ");
  list.Panel.Command3Click();
  EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0B", "N0D", "N0C", "N0A"}));
  EXPECT_TRUE(list.All().HeardOrder[1].Value);
  list.Order(HeardColumn::Age);
  EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0A", "N0C", "N0D", "N0B"}));
  list.Order(HeardColumn::Call);
  EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0A", "N0B", "N0C", "N0D"}));
  EXPECT_FALSE(list.All().HeardOrder[1].Value);
  EXPECT_TRUE(list.All().HeardOrder[0].Value);
  list.Order(HeardColumn::Distance);
  EXPECT_EQ(list.Calls()[0], "N0B");
  EXPECT_EQ(list.Calls()[1], "N0C");
  list.Order(HeardColumn::Distance);
  EXPECT_EQ(list.Calls().back(), "N0B");
  list.Order(HeardColumn::Direction);
  EXPECT_EQ(list.Calls()[0], "N0A");  // 181 degrees before 358 and 359
}

TEST(HeardStations, StationsWithoutAPlaceStandLastEitherWay) {
  HeardList list;
  list.Add("N0A");
  list.Stores.MoniAllRecords.Append(RecordOf("N0B", "240115 1234", "    0.000", "    0.000"));
  list.Panel.Command3Click();
  for (int turn = 0; turn < 2; ++turn) {
    list.Order(HeardColumn::Distance);
    EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0A", "N0B"})) << turn;
  }
}

TEST(HeardStations, RenewedTheListKeepsItsSelectionAndItsPlace) {
  HeardList list;
  for (const char* call : {"N0A", "N0B", "N0C", "N0D"})
    list.Add(call);
  list.Panel.Command3Click();
  ListBox& box = list.All().HeardList;
  box.ListIndex = 2;  // N0B
  box.TopIndex = 1;   // N0C
  list.Add("N0E");
  list.Time.Wait(120.0);
  list.Panel.Renew();
  EXPECT_EQ(list.Calls(), (HeardList::Rows{"N0E", "N0D", "N0C", "N0B", "N0A"}));
  EXPECT_EQ(box.ListIndex, 3);
  EXPECT_EQ(box.TopIndex, 2);
  EXPECT_NE(box.Items[3].find("2 min"), std::string::npos);
  // Who looks at the top sees what comes.
  box.TopIndex = 0;
  list.Add("N0F");
  list.Panel.Renew();
  EXPECT_EQ(box.TopIndex, 0);
  EXPECT_EQ(box.ListIndex, 4);
}

TEST(HeardStations, NothingMovesUnderAPressAndNothingIsMadeForAClosedList) {
  HeardList list;
  list.Add("N0A");
  list.Panel.Command3Click();
  ListBox& box = list.All().HeardList;
  box.Held = true;
  list.Add("N0B");
  list.Panel.Renew();
  EXPECT_EQ(list.Calls(), HeardList::Rows{"N0A"});
  box.ListIndex = 0;
  list.Panel.HeardListClick();
  EXPECT_EQ(list.Stores.SelectedStationCall, "N0A");
  box.Held = false;
  list.Panel.Command3Click();
  const std::uint64_t revision = box.Revision;
  list.Panel.Renew();
  EXPECT_EQ(box.Revision, revision);
}

}  // namespace
}  // namespace zepril
