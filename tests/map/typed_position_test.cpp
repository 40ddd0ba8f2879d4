// Positions as operators type them: kilometres, degrees, locators, and what is refused.
#include "map/typed_position.h"

#include <gtest/gtest.h>

#include <string>

namespace zepril {
namespace {

constexpr double kMetre = 0.001;
// 52:30.24 north, 13:24.31 east in zone 33, by an independent computation of the projection.
constexpr double kNorthKm = 5818.29237;
constexpr double kEastKm = 391.75125;

TypedPosition Read(const std::string& north, const std::string& east) {
  return ReadTypedPosition({north, true}, {east, true}, MapViewState());
}

void ExpectAt(const TypedPosition& read, double north_km, double east_km, double within_km,
              const std::string& typed) {
  ASSERT_TRUE(read.Place) << typed << ": " << read.Note;
  EXPECT_NEAR(read.Place->NorthKm, north_km, within_km) << typed;
  EXPECT_NEAR(read.Place->EastKm, east_km, within_km) << typed;
}

TEST(TypedPosition, KilometresInTheirFields) {
  ExpectAt(Read("5817.860", "391.394"), 5817.860, 391.394, 1e-9, "both");
  ExpectAt(Read(" 5900.5 ", "410"), 5900.5, 410.0, 1e-9, "short");
  ExpectAt(Read("-12.5", "-.25"), -12.5, -0.25, 1e-9, "south and west of the origin");
  EXPECT_TRUE(Read("5817.860", "391.394").Note.empty());
}

TEST(TypedPosition, KilometresInOneField) {
  ExpectAt(Read("5817.860 391.394", ""), 5817.860, 391.394, 1e-9, "");
}

TEST(TypedPosition, DegreesInAllTheirForms) {
  for (const char* typed : {"52.504 13.40517", "52.504, 13.40517", "52.504,13.40517",
                            "52.504N 13.40517E", "52:30.24N 13:24.31E", "52:30.24 13:24.31",
                            "52:30:14.4N 13:24:18.6E", "N52:30.24 E13:24.31",
                            "52:30.24 N 13:24.31 E", "N 52:30.24 E 13:24.31", "13:24.31E 52:30.24N",
                            "52\xB0"
                            "30.24'N 13\xB0"
                            "24.31'E",
                            "52\xB0 30.24' N 13\xB0 24.31' E",
                            "52\xB0"
                            "30'14.4\"N, 13\xB0"
                            "24'18.6\"E",
                            "52:30.24n 13:24.31e"}) {
    ExpectAt(Read(typed, ""), kNorthKm, kEastKm, 0.003, typed);
    ExpectAt(Read("", typed), kNorthKm, kEastKm, 0.003, typed);
  }
}

TEST(TypedPosition, DegreesInBothFields) {
  ExpectAt(Read("52:30.24N", "13:24.31E"), kNorthKm, kEastKm, 0.003, "marked");
  ExpectAt(Read("52.5040", "13.4052"), kNorthKm, kEastKm, 0.01, "four decimals");
  ExpectAt(Read("52.504N", "13.4052E"), kNorthKm, kEastKm, 0.01, "letters");
}

// Metres have three decimals: that is what it reads as, with a word of warning.
TEST(TypedPosition, SmallKilometresStayKilometresAndSaySo) {
  const TypedPosition read = Read("52.504", "13.405");
  ExpectAt(read, 52.504, 13.405, 1e-9, "");
  EXPECT_NE(read.Note.find("KILOMETRES"), std::string::npos);
}

TEST(TypedPosition, SouthAndWestAreNegative) {
  MapViewState view;
  view.MapCentralMeridian = -63.0;
  const auto one = ReadTypedPosition({"-10.5 -64.25", true}, {"", true}, view);
  const auto other = ReadTypedPosition({"10.5S", true}, {"64.25W", true}, view);
  ASSERT_TRUE(one.Place && other.Place);
  EXPECT_LT(one.Place->NorthKm, 0.0);
  EXPECT_LT(one.Place->EastKm, 500.0);
  EXPECT_NEAR(one.Place->NorthKm, other.Place->NorthKm, 1e-9);
  EXPECT_NEAR(one.Place->EastKm, other.Place->EastKm, 1e-9);
}

TEST(TypedPosition, ALocatorIsTheMiddleOfItsField) {
  const auto six = Read("JO62QM", "");
  ExpectAt(six, Read("52.520833 13.375", "").Place->NorthKm,
           Read("52.520833 13.375", "").Place->EastKm, kMetre, "JO62QM");
  ExpectAt(Read("", "jo62qm"), six.Place->NorthKm, six.Place->EastKm, kMetre, "small letters");
  // The finer ones lie inside it.
  for (const char* finer : {"JO62QM55", "JO62QM55AA"}) {
    const auto read = Read(finer, "");
    ASSERT_TRUE(read.Place) << finer;
    EXPECT_NEAR(read.Place->NorthKm, six.Place->NorthKm, 2.4);
    EXPECT_NEAR(read.Place->EastKm, six.Place->EastKm, 2.9);
  }
}

// What stands in a field that was not touched is no part of it.
TEST(TypedPosition, AWholePositionInOneFieldPassesOverTheOldTextOfTheOther) {
  const MapViewState view;
  const auto read = ReadTypedPosition({"5817.860", false}, {"JO62QM", true}, view);
  EXPECT_TRUE(read.Place);
  EXPECT_FALSE(ReadTypedPosition({"5817.860", true}, {"JO62QM", true}, view).Place);
}

TEST(TypedPosition, WhatIsNoPositionIsRefusedWithAReason) {
  struct Row {
    const char* North;
    const char* East;
    const char* Reason;
  };
  for (const Row& row : {Row{"", "", "NORTH AND EAST"},
                         Row{"5817.860", "", "NORTH AND EAST"},
                         Row{"", "391.394", "NORTH AND EAST"},
                         Row{"5817,860", "391,394", "POINT"},
                         Row{"52,5041 13,4051", "", "POINT"},
                         Row{"abc", "391.394", "NOT A POSITION"},
                         Row{"5817.860km", "391.394", "NOT A POSITION"},
                         Row{"1e400", "1e400", "NOT A POSITION"},
                         Row{"58..17", "391", "NOT A POSITION"},
                         Row{".", "-", "NOT A POSITION"},
                         Row{"1 2 3", "", "NOT A POSITION"},
                         Row{"52:30.24N 13:24.31N", "", "NOT A POSITION"},
                         Row{"-52:30N 13:24E", "", "NOT A POSITION"},
                         Row{"52:30:1:2N 13E", "", "NOT A POSITION"},
                         Row{"91N 13E", "", "90"},
                         Row{"52:60N 13E", "", "NOT A POSITION"},
                         Row{"52N 181E", "", "90"},
                         Row{"99999", "391", "OUTSIDE"},
                         Row{"5817", "10000", "OUTSIDE"},
                         Row{"52:30.24N", "391.394", "BOTH IN DEGREES"},
                         Row{"JO62", "", "6 CHARACTERS"},
                         Row{"JO62QM", "JO62QM", "CLEAR ONE"},
                         Row{"N", "E", "NOT A POSITION"}}) {
    const TypedPosition read = Read(row.North, row.East);
    EXPECT_FALSE(read.Place) << row.North << " | " << row.East;
    EXPECT_NE(read.Note.find(row.Reason), std::string::npos)
        << row.North << " | " << row.East << ": " << read.Note;
  }
  EXPECT_FALSE(Read(std::string(5000, '5'), "391").Place);
}

}  // namespace
}  // namespace zepril
