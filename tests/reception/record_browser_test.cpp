// The record panel: what it shows, steps to and deletes.
#include "reception/record_browser.h"

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

std::string Place(int metres) {
  return PadLeft(WholeNumber(metres), 5) + ".000";
}

class RecordBrowserTest : public ::testing::Test {
 protected:
  RecordBrowserTest() {
    for (int i = 1; i <= 4; ++i) {
      station.Stores.Moni1Records.Append(
          RecordOf("QX7KB", "240115 120" + WholeNumber(i), Place(100 + i)));
    }
    station.Map.MetresPerPixel = 50.0;
  }
  RecordPanelControls& Panel() { return station.Controls.Record; }
  StationStore& History() { return station.Stores.Moni1Records; }

  Reception station;
};

TEST_F(RecordBrowserTest, ToleranceFollowsTheScale) {
  EXPECT_DOUBLE_EQ(PickToleranceKm(50.0), 0.5);
  EXPECT_DOUBLE_EQ(PickToleranceKm(199.0), 0.5);
  EXPECT_DOUBLE_EQ(PickToleranceKm(199.9), 0.5);
  EXPECT_DOUBLE_EQ(PickToleranceKm(200.0), 1.5);
  EXPECT_DOUBLE_EQ(PickToleranceKm(1250.0), 6.5);
  EXPECT_DOUBLE_EQ(PickToleranceKm(5000.0), 25.5);
}

TEST_F(RecordBrowserTest, OpensWithTheCaptionsOfItsStation) {
  station.Browser.Open("QX7KB", 4, 0.0, 0.0);
  EXPECT_TRUE(Panel().Frame1.Visible);
  EXPECT_EQ(Panel().Command18.Caption, "<X");
  EXPECT_EQ(Panel().Command19.Caption, "X>");
  EXPECT_EQ(Panel().Label19.Caption, "DELETE");
  EXPECT_EQ(Panel().Label20.Caption, History().At(4).Text());
  station.Stores.MoniAllRecords.Append(RecordOf("N0CALL"));
  EXPECT_TRUE(station.Browser.OpenNewest("n0call"));
  EXPECT_EQ(Panel().Command18.Caption, "<");
  EXPECT_EQ(Panel().Command19.Caption, ">");
  EXPECT_EQ(Panel().Label19.Caption, "QTH=");
  EXPECT_FALSE(station.Browser.OpenNewest("N0BODY"));
}

TEST_F(RecordBrowserTest, PanelOfAStationWithoutRecordsShowsNoneOfAnother) {
  station.Stores.MoniAllRecords.Append(RecordOf("N0CALL"));
  station.Browser.Open("N0CALL", 1, 0.0, 0.0);
  EXPECT_FALSE(station.Controls.Record.Label20.Caption.empty());
  station.Stores.Moni1Records.Clear();
  station.Browser.Open("QX7KB", 0, 0.0, 0.0);
  EXPECT_EQ(station.Controls.Record.Label20.Caption, "");
}

TEST_F(RecordBrowserTest, AmpersandIsDoubledForTheCaption) {
  station.Stores.MoniAllRecords.Append(
      RecordOf("N0CALL", "240115 1234", Place(1), "  391.394", "", "you & me"));
  station.Browser.OpenNewest("N0CALL");
  EXPECT_NE(Panel().Label20.Caption.find("you && me"), std::string::npos);
}

TEST_F(RecordBrowserTest, OlderPositionsGoAfterTheQuestion) {
  station.Browser.Open("QX7KB", 3, 0.0, 0.0);
  const std::string key(1, StationRecord::kKeyMark);
  station.Boxes.Expect("ZEP RIL         DELETE OLDER POSITIONS",
                       "DELETE ALL POSITIONS OLDER THAN THIS ONE:  240115 1203 " + key +
                           "  103.000" + "  391.394  ?",
                       DialogAnswer::Yes);
  station.Controls.Map.Command12.Caption = "MAP L";
  station.Map.MapLockedOnRecord = 1;
  station.Browser.Command18Click();
  ASSERT_EQ(History().Count(), 2);
  EXPECT_EQ(History().At(1).NorthText(), Place(103));
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
  EXPECT_EQ(station.Disk.LineCount(station.Followed.Moni1LogPath), 2);
  EXPECT_FALSE(Panel().Frame1.Visible);
  EXPECT_EQ(station.Controls.Map.Command12.Caption, "MAP");
  EXPECT_EQ(station.Map.MapLockedOnRecord, 0);
  EXPECT_EQ(station.Actions.Redraws, 1);
  EXPECT_EQ(station.Boxes.LastButtons, DialogButtons::YesNo);
  EXPECT_EQ(station.Boxes.LastDefault, DialogAnswer::No);
}

TEST_F(RecordBrowserTest, NewerPositionsGoAfterTheQuestion) {
  station.Browser.Open("QX7KB", 3, 0.0, 0.0);
  const std::string key(1, StationRecord::kKeyMark);
  station.Boxes.Expect("ZEP RIL         DELETE NEWER POSITIONS",
                       "DELETE ALL POSITIONS NEWER THAN THIS ONE:  240115 1203 " + key +
                           "  103.000" + "  391.394  ?",
                       DialogAnswer::Yes);
  station.Browser.Command19Click();
  ASSERT_EQ(History().Count(), 3);
  EXPECT_EQ(History().At(3).NorthText(), Place(103));
  EXPECT_DOUBLE_EQ(station.Followed.MonitorNorthKm, 103.0);
}

TEST_F(RecordBrowserTest, NoChangesNothing) {
  station.Browser.Open("QX7KB", 3, 0.0, 0.0);
  const std::string key(1, StationRecord::kKeyMark);
  station.Boxes.Expect("ZEP RIL         DELETE OLDER POSITIONS",
                       "DELETE ALL POSITIONS OLDER THAN THIS ONE:  240115 1203 " + key +
                           "  103.000" + "  391.394  ?",
                       DialogAnswer::No);
  station.Browser.Command18Click();
  EXPECT_EQ(History().Count(), 4);
  EXPECT_TRUE(Panel().Frame1.Visible);
  EXPECT_EQ(station.Actions.Redraws, 0);
}

TEST_F(RecordBrowserTest, ButtonsWithoutASelectionDoNothing) {
  station.Stores.SelectedStationCall = "QX7KB";
  for (int index : {0, 5, -1}) {
    station.Stores.SelectedRecordIndex = index;
    station.Browser.Command18Click();
    station.Browser.Command19Click();
  }
  EXPECT_EQ(History().Count(), 4);
}

TEST_F(RecordBrowserTest, ARecordAtTheToleranceIsNotNear) {
  for (const auto& [north, east] : {std::pair{" 5800.500", "  400.000"},
                                    {" 5800.000", "  400.500"},
                                    {" 5800.000", "  400.000"}}) {
    station.Stores.MoniAllRecords.Append(RecordOf("N0A", "240115 1234", north, east));
  }
  station.Browser.Open("N0A", 3, 5800.0, 400.0);
  station.Browser.Command18Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 3);
}

TEST_F(RecordBrowserTest, StepsGoByPlaceAndNotByCall) {
  const char* norths[] = {" 5817.860", " 5818.359", " 5818.361", " 5817.900", " 5817.861"};
  const char* calls[] = {"N0A", "N0B", "N0C", "N0D", "N0E"};
  for (int i = 0; i < 5; ++i) {
    station.Stores.MoniAllRecords.Append(RecordOf(calls[i], "240115 1234", norths[i]));
  }
  station.Browser.Open("N0D", 4, 5817.860, 391.394);
  station.Browser.Command18Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
  station.Browser.Command18Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 1);
  station.Browser.Command18Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 1);
  station.Browser.Command19Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
  station.Browser.Command19Click();
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 4);
  EXPECT_EQ(Panel().Label20.Caption, station.Stores.MoniAllRecords.At(4).Text());
}

TEST_F(RecordBrowserTest, StoredPacketMovesTheOpenPanelToIt) {
  station.HearPacket("!5230.00N/01324.00E>one");
  station.Browser.OpenNewest("N0CALL");
  station.HearPacket("!5231.00N/01324.00E>two");
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
  EXPECT_NE(Panel().Label20.Caption.find("two"), std::string::npos);
  station.HearPacket("!5231.00N/01324.00E>other", "N0BODY*>WIDE1-1>APRS");
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
}

TEST_F(RecordBrowserTest, ClosedPanelKeepsItsTextButMovesItsSelection) {
  station.HearPacket("!5230.00N/01324.00E>one");
  station.Browser.OpenNewest("N0CALL");
  station.Browser.Close();
  station.HearPacket("!5231.00N/01324.00E>two");
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 2);
  EXPECT_NE(Panel().Label20.Caption.find("one"), std::string::npos);
}

TEST_F(RecordBrowserTest, FollowedStationMovesToTheEndOfItsHistory) {
  station.Browser.Open("QX7KB", 1, 0.0, 0.0);
  station.HearPacket("!5230.00N/01324.00E>one", "QX7KB*>WIDE1-1>APRS");
  EXPECT_EQ(station.Stores.SelectedRecordIndex, 5);
}

}  // namespace
}  // namespace zepril
