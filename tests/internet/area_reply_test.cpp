// The stations of an area reply by the places of their keys, and their records.
#include "internet/area_reply.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "platform/clock.h"

namespace zepril {
namespace {

// A station as the service writes it, and more behind it than the end of a reply needs.
struct Told {
  std::string Call = "QX7GW";
  std::string Type = "S";
  std::string Time = "2024-05-14 12:30:00";
  std::string Lat = "52.5041";
  std::string Lon = "13.4052";
  std::string Code = ">";
  std::string Table = "/";
  std::string Gap;  // between time and latitude

  std::string Text() const {
    return R"({"callsign":")" + Call + R"(","type":")" + Type + R"(","posreceived":")" + Time +
           R"(",)" + Gap + R"("lat":)" + Lat + R"(,"lon":)" + Lon + R"(,"symbolcode":")" + Code +
           R"(","symboltable":")" + Table + R"(","comment":"x"})";
  }
};

std::string Reply(const std::string& stations) {
  return "[" + stations + ",{" + std::string(110, ' ') + "}]";
}

std::vector<AreaStation> StationsIn(const std::string& reply) {
  std::vector<AreaStation> stations;
  AreaReply area(reply);
  while (auto station = area.Next())
    stations.push_back(*station);
  return stations;
}

std::size_t Count(const Told& told) {
  return StationsIn(Reply(told.Text())).size();
}

std::string SymbolOf(const std::string& table, const std::string& code) {
  Told told;
  told.Table = table;
  told.Code = code;
  const auto stations = StationsIn(Reply(told.Text()));
  return stations.empty() ? "(none)" : stations[0].Symbol;
}

TEST(AreaReply, TellsCallTimePlaceAndSymbol) {
  const auto stations = StationsIn(Reply(Told{}.Text()));
  ASSERT_EQ(stations.size(), 1U);
  EXPECT_EQ(stations[0].Call, "QX7GW");
  EXPECT_EQ(stations[0].Seconds, SecondsOf({2024, 5, 14, 12, 30, 0}));
  EXPECT_DOUBLE_EQ(stations[0].Lat, 52.5041);
  EXPECT_DOUBLE_EQ(stations[0].Lon, 13.4052);
  EXPECT_EQ(stations[0].Symbol, "/>");
}

TEST(AreaReply, ReadsOneStationAfterTheOther) {
  Told second;
  second.Call = "n0call-9";
  second.Lat = "-8.5";
  second.Lon = "-72.029";
  const auto stations = StationsIn(Reply(Told{}.Text() + "," + second.Text()));
  ASSERT_EQ(stations.size(), 2U);
  EXPECT_EQ(stations[1].Call, "N0CALL-9");
  EXPECT_DOUBLE_EQ(stations[1].Lat, -8.5);
  EXPECT_DOUBLE_EQ(stations[1].Lon, -72.029);
}

TEST(AreaReply, WithoutABracketOrACallIsEmpty) {
  EXPECT_TRUE(StationsIn(Told{}.Text() + std::string(200, ' ')).empty());
  EXPECT_TRUE(StationsIn(std::string(200, '[')).empty());
  EXPECT_TRUE(StationsIn("").empty());
}

TEST(AreaReply, ACallInTheLastHundredCharactersIsNotRead) {
  const std::string station = Told{}.Text();
  const std::string text = "[" + station;
  const std::size_t behind = text.size() - text.find("callsign");
  ASSERT_GT(behind, 100U);
  EXPECT_EQ(StationsIn(text).size(), 1U);
  const std::string shorter = "[" + std::string(300, ' ') + station.substr(0, 102);
  EXPECT_TRUE(StationsIn(shorter).empty());
}

TEST(AreaReply, AnObjectIsSkipped) {
  Told object;
  object.Type = "O";
  EXPECT_EQ(Count(object), 0U);
  EXPECT_EQ(StationsIn(Reply(object.Text() + "," + Told{}.Text())).size(), 1U);
}

TEST(AreaReply, TheTypeOfAnObjectIsLookedForFromColumn16To39) {
  Told object;
  object.Type = "O";
  for (const auto& [call, read] : {std::pair{2, false}, {1, true}, {25, false}, {26, true}}) {
    object.Call = std::string(static_cast<std::size_t>(call), 'A');
    EXPECT_EQ(Count(object), read ? 1U : 0U) << call;
  }
}

TEST(AreaReply, ACallWithABlankIsNoStation) {
  Told told;
  for (const char* call : {"QX 7GW", " QX7GW", "QX7\nGW", ""}) {
    told.Call = call;
    EXPECT_EQ(Count(told), 0U) << call;
  }
}

TEST(AreaReply, TheLatitudeStandsFromColumn16To29OfTheTime) {
  Told told;
  told.Gap = std::string(7, ' ');
  EXPECT_EQ(Count(told), 1U);
  told.Gap = std::string(8, ' ');
  EXPECT_EQ(Count(told), 0U);
  told.Gap.clear();
  told.Time = "2024-05-14 12";  // the key stands in column 16
  EXPECT_EQ(Count(told), 0U) << "no minutes";
}

TEST(AreaReply, TheLongitudeStandsFromColumn6To29OfTheLatitude) {
  Told told;
  told.Lat = "52." + std::string(24, '5');
  EXPECT_EQ(Count(told), 1U);
  told.Lat += '5';
  EXPECT_EQ(Count(told), 0U);
  told.Lat = "52.5";
  EXPECT_EQ(Count(told), 1U);
  told.Lat = "52.";
  EXPECT_EQ(Count(told), 0U);
}

TEST(AreaReply, TheSymbolStandsFromColumn21To59AndItsTableFrom36To89) {
  Told told;
  std::string text = told.Text();
  const std::size_t code = text.find(R"("symbolcode")");
  // The keys stand in columns 24 and 41.
  text.insert(code, 35, ' ');
  EXPECT_EQ(StationsIn(Reply(text)).size(), 1U);
  text.insert(code, 1, ' ');
  EXPECT_EQ(StationsIn(Reply(text)).size(), 0U);
  text = told.Text();
  const std::size_t table = text.find(R"("symboltable")");
  text.insert(table, 48, ' ');
  EXPECT_EQ(StationsIn(Reply(text)).size(), 1U);
  text.insert(table, 1, ' ');
  EXPECT_EQ(StationsIn(Reply(text)).size(), 0U);
}

TEST(AreaReply, NumbersEndAtACommaFromColumn2To29) {
  Told told;
  for (const auto& [lon, read] : {std::pair{std::string("13.5"), true},
                                  {"13." + std::string(25, '5'), true},
                                  {"13." + std::string(26, '5'), false},
                                  {std::string(), false}}) {
    told.Lon = lon;
    EXPECT_EQ(Count(told), read ? 1U : 0U) << lon;
  }
}

TEST(AreaReply, SymbolsAreReadByTheirColumns) {
  EXPECT_EQ(SymbolOf("/", ">"), "/>");
  EXPECT_EQ(SymbolOf("\\", ">"), "\\>");
  EXPECT_EQ(SymbolOf("7", ">"), "\\>7") << "an overlay";
  EXPECT_EQ(SymbolOf("/", "j"), "/j");
}

TEST(AreaReply, AQuoteInPlaceOfASymbolIsPassedOver) {
  Told told;
  std::string text = told.Text();
  // One blank more before both values.
  text.replace(text.find(R"("symbolcode":">")"), 16, R"("symbolcode": ">")");
  text.replace(text.find(R"("symboltable":"/")"), 17, R"("symboltable": "/")");
  const auto stations = StationsIn(Reply(text));
  ASSERT_EQ(stations.size(), 1U);
  EXPECT_EQ(stations[0].Symbol, "/>");
}

TEST(AreaReply, SignsThatTheServerHasMarkedAreThemselves) {
  EXPECT_EQ(SymbolOf(R"(\/)", ">"), "/>");
  EXPECT_EQ(SymbolOf(R"(\\)", ">"), "\\>");
  EXPECT_EQ(SymbolOf("/", R"(\")"), "/\"");
}

TEST(AreaReply, NearTheEquatorOrTheMeridianIsNoPosition) {
  for (const auto& [value, read] : {std::pair{"0.01", false},
                                    {"-0.01", false},
                                    {"0", false},
                                    {"0.0101", true},
                                    {"-0.0101", true}}) {
    Told lat;
    lat.Lat = value;
    EXPECT_EQ(Count(lat), read ? 1U : 0U) << "lat " << value;
    Told lon;
    lon.Lon = value;
    EXPECT_EQ(Count(lon), read ? 1U : 0U) << "lon " << value;
  }
}

TEST(AreaReply, NothingIsTakenFromTheNextStation) {
  const std::string without_place = R"({"callsign":"N0CALL","type":"S","x":1})";
  const auto stations = StationsIn(Reply(without_place + "," + Told{}.Text()));
  ASSERT_EQ(stations.size(), 1U);
  EXPECT_EQ(stations[0].Call, "QX7GW");
}

TEST(AreaReply, CutAnywhereItTellsOfWholeStationsOnly) {
  Told second;
  second.Call = "N0CALL";
  const std::string whole = Reply(Told{}.Text() + "," + second.Text());
  const auto all = StationsIn(whole);
  ASSERT_EQ(all.size(), 2U);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto stations = StationsIn(whole.substr(0, length));
    ASSERT_LE(stations.size(), 2U);
    for (std::size_t at = 0; at < stations.size(); ++at) {
      EXPECT_EQ(stations[at].Call, all[at].Call) << length;
      EXPECT_EQ(stations[at].Lat, all[at].Lat) << length;
      EXPECT_EQ(stations[at].Lon, all[at].Lon) << length;
    }
  }
}

// ---- Records --------------------------------------------------------------------------------

class AreaRecord : public ::testing::Test {
 protected:
  std::string Record(const AreaStation& told, int utc_offset = 0) const {
    const auto record = RecordOfStation(told, {utc_offset, 15.0, 500000.0}, symbols);
    return record ? std::string(record->Text()) : "(none)";
  }
  AreaStation station{"QX7GW", SecondsOf({2024, 5, 14, 12, 30, 0}), 52.5041, 13.4052, "/>"};
  SymbolTable symbols;
};

TEST_F(AreaRecord, HasTheColumnsOfAPosition) {
  const GridMetres grid = GeodeticToUtm(13.40525, 52.50415, 15.0, 500000.0);
  const std::string record = Record(station);
  EXPECT_EQ(record.substr(0, 13), "240514 1230 \xFE");
  EXPECT_EQ(record.substr(13, 18),
            RecordNorthText(Fix(grid.North)) + RecordEastText(Int(grid.East)));
  EXPECT_EQ(record.substr(31, 11), " QX7GW     ");
  EXPECT_EQ(record.substr(42, 48), std::string(48, ' ')) << "no text, no object";
  EXPECT_EQ(record.substr(90, 10), "inet      ");
  EXPECT_EQ(record.substr(100, 20), "/>    Car        0  ");
}

TEST_F(AreaRecord, TimesMoveWithTheClockOverMidnightAndYear) {
  EXPECT_EQ(Record(station, 2).substr(0, 11), "240514 1430");
  station.Seconds = SecondsOf({2023, 12, 31, 23, 30, 0});
  EXPECT_EQ(Record(station, 2).substr(0, 11), "240101 0130");
  station.Seconds = SecondsOf({2024, 3, 1, 0, 30, 0});
  EXPECT_EQ(Record(station, -1).substr(0, 11), "240229 2330");
}

TEST_F(AreaRecord, TheShiftGoesAwayFromZeroInTheSouthAndWestToo) {
  station.Lat = -8.5;
  station.Lon = -72.0291667;
  const GridMetres grid = GeodeticToUtm(-72.0292167, -8.50005, -69.0, 500000.0);
  const auto record = RecordOfStation(station, {0, -69.0, 500000.0}, symbols);
  ASSERT_TRUE(record);
  EXPECT_EQ(record->NorthText(), RecordNorthText(Fix(grid.North)));
  EXPECT_EQ(record->EastText(), RecordEastText(Int(grid.East)));
}

TEST_F(AreaRecord, AnOverlayStandsBehindTheSymbolAndBeforeItsName) {
  station.Symbol = "\\>7";
  const std::string record = Record(station);
  EXPECT_EQ(record.substr(100, 3), "\\>7");
  EXPECT_EQ(record.substr(104, 2), "7 ");
}

TEST_F(AreaRecord, AnUnknownSymbolIsThatOfRow2) {
  for (const char* symbol : {"/\x7F", "/ ", "\\\x01", "\\\n\n"}) {
    station.Symbol = symbol;
    const std::string record = Record(station);
    EXPECT_EQ(record.substr(100, 3), "\\~ ") << symbol;
    EXPECT_EQ(record.substr(106, 12), PadRight(symbols.NameAndClass(2), 12)) << symbol;
  }
}

TEST_F(AreaRecord, OffTheGridIsNone) {
  station.Lat = 95.0;
  EXPECT_EQ(Record(station), "(none)");
  station.Lat = 52.0;
  station.Lon = 1e300;
  EXPECT_EQ(Record(station), "(none)");
  station.Lon = 15.0 + 150.0;
  EXPECT_EQ(Record(station), "(none)");
}

StationRecord At(const char* time, int north_metres, int east_metres) {
  StationRecord record;
  record.Put(1, 11, time);
  record.Put(14, 22, RecordNorthText(5'000'000 + north_metres));
  record.Put(23, 31, RecordEastText(400'000 + east_metres));
  return record;
}

TEST(AreaReport, IsTheSameLessThanTwoMinutesApart) {
  const StationRecord stored = At("240514 1230", 0, 0);
  EXPECT_TRUE(IsSameReport(stored, At("240514 1231", 900, 900)));
  EXPECT_TRUE(IsSameReport(stored, At("240514 1229", 900, 900)));
  EXPECT_FALSE(IsSameReport(stored, At("240514 1232", 900, 900)));
  EXPECT_FALSE(IsSameReport(stored, At("240514 1228", 900, 900)));
  EXPECT_FALSE(IsSameReport(stored, At("240515 1230", 900, 900))) << "the next day";
  EXPECT_TRUE(IsSameReport(At("240229 2359", 0, 0), At("240301 0000", 900, 900)));
}

TEST(AreaReport, IsTheSameLessThanFiftyMetresAwayInBothAxes) {
  const StationRecord stored = At("240514 1230", 0, 0);
  EXPECT_TRUE(IsSameReport(stored, At("240514 1240", 49, -49)));
  EXPECT_FALSE(IsSameReport(stored, At("240514 1240", 60, 0)));
  EXPECT_FALSE(IsSameReport(stored, At("240514 1240", 0, 60)));
  EXPECT_FALSE(IsSameReport(stored, At("240514 1240", 50, 50)));
}

}  // namespace
}  // namespace zepril
