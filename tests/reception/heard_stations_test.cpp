#include "reception/heard_stations.h"

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

TEST(HeardStations, RowOpensTheRecordOfItsStation) {
  Reception station;
  HeardStationsPanel panel(station.Stores, station.Controls.MoniAll, station.Browser);
  station.Controls.MoniAll.HeardPanel.Visible = false;
  for (const char* call : {"N0A", "N0B"})
    station.Stores.MoniAllRecords.Append(RecordOf(call));
  panel.Command3Click();
  EXPECT_TRUE(station.Controls.MoniAll.HeardPanel.Visible);
  EXPECT_EQ(station.Controls.MoniAll.HeardList.Items, (std::vector<std::string>{"N0B", "N0A"}));
  panel.HeardListClick();
  EXPECT_FALSE(station.Controls.Record.Frame1.Visible);
  station.Controls.MoniAll.HeardList.ListIndex = 1;
  panel.HeardListClick();
  EXPECT_EQ(station.Stores.SelectedStationCall, "N0A");
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 1);
  panel.Command3Click();
  EXPECT_FALSE(station.Controls.MoniAll.HeardPanel.Visible);
}

}  // namespace
}  // namespace zepril
