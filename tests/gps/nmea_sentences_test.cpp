// Fields, pairs, positions, times and the line of NMEA sentences.
#include "gps/nmea_sentences.h"

#include <gtest/gtest.h>

#include <string>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "geodesy/conversions.h"
#include "geodesy/coordinate_texts.h"
#include "tests/doubles/nmea_lines.h"

namespace zepril {
namespace {

constexpr const char* kWest = "4830.1500,N,12205.2000,W";

std::string TimeText(const std::optional<LocalTime>& time) {
  if (!time) return "none";
  return WholeNumber(time->Year) + "-" + ZeroPadded(time->Month, 2) + "-" +
         ZeroPadded(time->Day, 2) + " " + ZeroPadded(time->Hour, 2) + ":" +
         ZeroPadded(time->Minute, 2) + ":" + ZeroPadded(time->Second, 2);
}

std::string KindOf(const std::string& text) {
  const auto pair = LastNmeaPair(FinishedNmea(text));
  return pair ? std::string(pair->Kind->Word) : "none";
}

bool Agrees(const std::string& older, const std::string& newer) {
  const std::string text = older + newer;
  const auto pair = LastNmeaPair(text);
  return pair && PairAgrees(*pair);
}

NmeaPosition PlaceOf(const std::string& place) {
  const std::string text = GgaLine("123040", place) + GgaLine("123050", place);
  return PositionOf(*LastNmeaPair(text));
}

std::string ClockOf(const std::string& time, const std::string& date, int offset) {
  const std::string text = RmcLine(time, kSomewhere, date) + RmcLine(time, kSomewhere, date);
  return TimeText(ClockTimeOf(*LastNmeaPair(text), offset));
}

std::string InfoOf(const std::string& text) {
  return GpsInfoLine(text, PlaceOf(kSomewhere));
}

bool Has(const std::string& line, const std::string& piece) {
  return line.find(piece) != std::string::npos;
}

// ---- Fields -----------------------------------------------------------------------------------

TEST(NmeaField, StandsBetweenCommasOrStars) {
  const std::string_view sentence = "RMC,123040,A,,N*10\r\n$GPGGA,1";
  EXPECT_EQ(GetNmeaField(sentence, 0), "RMC");
  EXPECT_EQ(GetNmeaField(sentence, 1), "123040");
  EXPECT_EQ(GetNmeaField(sentence, 3), "");
  EXPECT_EQ(GetNmeaField(sentence, 4), "N");
  EXPECT_EQ(GetNmeaField(sentence, 5), "10\r\n$GPGGA");
  EXPECT_EQ(GetNmeaField(sentence, 6), "1");
  EXPECT_EQ(GetNmeaField(sentence, 7), "");
  EXPECT_EQ(GetNmeaField("", 1), "");
}

TEST(FinishedNmeaText, EndsAtTheLastLineEnd) {
  EXPECT_EQ(FinishedNmea("abc\r\ndef"), "abc\r\n");
  EXPECT_EQ(FinishedNmea("abc\rdef\n"), "abc\rdef\n");
  EXPECT_EQ(FinishedNmea("abc"), "");
  EXPECT_EQ(FinishedNmea(""), "");
}

// ---- The last two of a kind -------------------------------------------------------------------

TEST(LastPair, IsOfTheKindThatTellsMost) {
  const std::string rmc = RmcLine("123040") + RmcLine("123041");
  const std::string gga = GgaLine("123040") + GgaLine("123041");
  const std::string gll = GllLine("123040") + GllLine("123041");
  EXPECT_EQ(KindOf(rmc + gga + gll), "RMC,");
  EXPECT_EQ(KindOf(RmcLine("123040") + gga + gll), "GGA,");
  EXPECT_EQ(KindOf(RmcLine("123040") + GgaLine("123041") + gll), "GLL,");
}

TEST(LastPair, OneSentenceProvesNothing) {
  EXPECT_EQ(KindOf(RmcLine("123040") + GgaLine("123040") + GllLine("123040")), "none");
  EXPECT_EQ(KindOf(""), "none");
}

TEST(LastPair, TheSearchEndsWhenAKindWasSeenFourTimes) {
  const std::string gga = GgaLine("123041");
  EXPECT_EQ(KindOf(RmcLine("123040") + gga + gga + gga + RmcLine("123042")), "RMC,");
  EXPECT_EQ(KindOf(RmcLine("123040") + gga + gga + gga + gga + RmcLine("123042")), "GGA,");
}

TEST(LastPair, WhatIsNotFinishedDoesNotCount) {
  EXPECT_EQ(KindOf(RmcLine("123040") + "$GPRMC,123041,A,4830.1500,N,00805.2000,E,1,2,140524"),
            "none");
}

TEST(LastPair, HoldsTheLastTwo) {
  const std::string text = RmcLine("123040") + RmcLine("123041") + RmcLine("123042");
  const auto pair = LastNmeaPair(text);
  ASSERT_TRUE(pair);
  EXPECT_EQ(GetNmeaField(pair->Older, 1), "123041");
  EXPECT_EQ(GetNmeaField(pair->Newer, 1), "123042");
}

// ---- Agreement --------------------------------------------------------------------------------

TEST(PairAgreement, OfTimesThatDifferByTenAsNumbers) {
  EXPECT_TRUE(Agrees(RmcLine("123040"), RmcLine("123050")));
  EXPECT_FALSE(Agrees(RmcLine("123040"), RmcLine("123051")));
  EXPECT_FALSE(Agrees(RmcLine("123059"), RmcLine("123100")));  // 41 as numbers
  EXPECT_FALSE(Agrees(RmcLine("235959"), RmcLine("000000")));
  EXPECT_TRUE(Agrees(GgaLine("123040"), GgaLine("153051")));  // its time is not looked at
}

TEST(PairAgreement, OfPlacesWithinAMinuteOfArc) {
  const auto at = [](const std::string& place) { return RmcLine("123040", place); };
  EXPECT_TRUE(Agrees(at("4830.1500,N,00805.2000,E"), at("4831.1000,N,00806.1000,E")));
  EXPECT_FALSE(Agrees(at("4830.1500,N,00805.2000,E"), at("4831.2000,N,00805.2000,E")));
  EXPECT_FALSE(Agrees(at("4830.1500,N,00805.2000,E"), at("4830.1500,N,00806.3000,E")));
  // As numbers, which the next full degree is far from.
  EXPECT_FALSE(Agrees(at("4959.9990,N,00805.2000,E"), at("5000.0010,N,00805.2000,E")));
}

TEST(PairAgreement, OfLettersAndDate) {
  const auto at = [](const std::string& place) { return RmcLine("123040", place); };
  EXPECT_FALSE(Agrees(at("4830.1500,N,00805.2000,E"), at("4830.1500,S,00805.2000,E")));
  EXPECT_FALSE(Agrees(at("4830.1500,N,00805.2000,E"), at("4830.1500,N,00805.2000,W")));
  EXPECT_FALSE(
      Agrees(RmcLine("123040", kSomewhere, "140524"), RmcLine("123041", kSomewhere, "150524")));
  EXPECT_FALSE(Agrees(GgaLine("1", "4830.1,N,00805.2,E"), GgaLine("1", "4830.1,S,00805.2,E")));
  EXPECT_FALSE(Agrees(GllLine("1", "4830.1,N,00805.2,E"), GllLine("1", "4830.1,N,00805.2,W")));
}

TEST(PairAgreement, NeedsANumberOtherThanZero) {
  for (const char* place : {",N,00805.2000,E", "0000.0000,N,00805.2000,E", "4830.1500,N,,E",
                            "4830.1500,N,00000.0000,E", "x,N,00805.2000,E"}) {
    EXPECT_FALSE(Agrees(RmcLine("123040", place), RmcLine("123041", place))) << place;
    EXPECT_FALSE(Agrees(GgaLine("123040", place), GgaLine("123041", place))) << place;
    EXPECT_FALSE(Agrees(GllLine("123040", place), GllLine("123041", place))) << place;
  }
}

TEST(PairAgreement, AsksNeitherForAStatusNorForAChecksumNorForATalker) {
  const std::string warned =
      "$GPRMC,123040,V,4830.1500,N,00805.2000,E,12.4,90.0,140524,,*00\r\n"
      "$GNRMC,123041,V,4830.1500,N,00805.2000,E,12.4,90.0,140524,,*FF\r\n";
  const auto pair = LastNmeaPair(warned);
  ASSERT_TRUE(pair);
  EXPECT_TRUE(PairAgrees(*pair));
}

// ---- Position ---------------------------------------------------------------------------------

TEST(NmeaPositionTexts, AreDegreesCutToTheirWidth) {
  const NmeaPosition place = PlaceOf("4830.1500,N,00805.2000,E");
  EXPECT_EQ(place.Latitude, " 48.50250");
  EXPECT_EQ(place.Longitude, " 8.08666");
  EXPECT_EQ(place.LatitudeShown, " 48.50N");
  EXPECT_EQ(place.LongitudeShown, " 8.0866E");
}

TEST(NmeaPositionTexts, HaveASignInTheSouthAndInTheWest) {
  const NmeaPosition place = PlaceOf("0530.0000,S,01324.3100,E");
  EXPECT_EQ(place.Latitude, "-5.50000");
  EXPECT_EQ(place.LatitudeShown, "-5.500S");
  EXPECT_EQ(place.Longitude, " 13.40516");
  EXPECT_EQ(place.LongitudeShown, " 13.405E");
  EXPECT_EQ(PlaceOf(kWest).Longitude, "-122.08666");
  EXPECT_EQ(PlaceOf("0030.0000,N,00030.0000,W").Latitude, " 0.50000");
  EXPECT_EQ(PlaceOf("0030.0000,N,00030.0000,W").Longitude, "-0.50000");
}

TEST(NmeaPositionTexts, KeepTheirWidthWithWhateverMinutes) {
  EXPECT_EQ(PlaceOf("0099.0000,N,000600.0000,E").Latitude, " 01.6500");
  EXPECT_EQ(PlaceOf("0099.0000,N,000600.0000,E").Longitude, " 010.000");
  EXPECT_EQ(PlaceOf("4830.1500,N,00099999,E").Longitude.size(), 8U);
}

TEST(NmeaPositionTexts, AreNeverWrittenWithAnExponent) {
  EXPECT_EQ(PlaceOf("4800.0030,N,00805.2000,E").Latitude, " 48.00005");
  EXPECT_EQ(PlaceOf("4800.00001,N,00805.2000,E").Latitude, " 48.00000");
}

TEST(NmeaPositionTexts, FullDegreesHaveZerosBehindThePoint) {
  const NmeaPosition place = PlaceOf("4800.0000,N,01300.0000,E");
  EXPECT_EQ(place.Latitude, " 48.00000");
  EXPECT_EQ(place.Longitude, " 13.00000");
}

TEST(NmeaPositionTexts, LeadToThePlaceOnTheGrid) {
  const NmeaPosition place = PlaceOf("5230.2430,N,01324.3096,E");
  const GridMetres at =
      GeodeticToUtm(Val(place.Longitude), Val(place.Latitude), 15.0, kUtmFalseEasting);
  const PositionTexts texts = FormatGpsPositionTexts(at.North / 1000.0, at.East / 1000.0);
  EXPECT_EQ(texts.North, " 5818.297");
  EXPECT_EQ(texts.East, "  391.750");
}

// ---- Clock ------------------------------------------------------------------------------------

TEST(NmeaClock, IsFiveSecondsLaterAndInLocalTime) {
  EXPECT_EQ(ClockOf("123050", "140524", 2), "2024-05-14 14:30:55");
  EXPECT_EQ(ClockOf("123009.00", "140524", 2), "2024-05-14 14:30:14");
  EXPECT_EQ(ClockOf("123000.94", "140524", -7), "2024-05-14 05:30:05");
}

TEST(NmeaClock, RollsOverDayMonthAndYear) {
  EXPECT_EQ(ClockOf("235954", "311224", 1), "2025-01-01 00:59:59");
  EXPECT_EQ(ClockOf("233000", "280224", 1), "2024-02-29 00:30:05");
  EXPECT_EQ(ClockOf("233000", "280223", 1), "2023-03-01 00:30:05");
  EXPECT_EQ(ClockOf("003000", "010124", -1), "2023-12-31 23:30:05");
}

TEST(NmeaClock, RestsInTheLastSecondsOfAMinute) {
  EXPECT_EQ(ClockOf("123054", "140524", 0), "2024-05-14 12:30:59");
  for (const char* time : {"123055", "123056", "123059", "123055.00"})
    EXPECT_EQ(ClockOf(time, "140524", 0), "none") << time;
}

TEST(NmeaClock, TakesNoDateThatTheCalendarDoesNotKnow) {
  for (const char* date :
       {"310224", "290223", "001224", "151324", "", "1405", "14052024", "14 524", "-40524"}) {
    EXPECT_EQ(ClockOf("123010", date, 0), "none") << date;
  }
  for (const char* time : {"243010", "126010", "", "1230", "12:30:10", "-23010"})
    EXPECT_EQ(ClockOf(time, "140524", 0), "none") << time;
  EXPECT_EQ(ClockOf("123010", "290224", 0), "2024-02-29 12:30:15");
}

// ---- The line ---------------------------------------------------------------------------------

TEST(GpsInfo, ShowsAllPiecesInTheirOrder) {
  const std::string text = "$PGRME,15.0,M,45.0,F,25.0,M*1C\r\n" + RmcLine("123040") +
                           GgaLine("123040") + "$GPGSV,3,1,11,03,03,111,00*74\r\n";
  EXPECT_EQ(InfoOf(text),
            "   GPS-INFO:  GLN:___ 48.50N GLE:__ 8.0866E ALT:_____545.4_m Vkm:________22_km/h"
            " Vnm:______12.4_nm/h ERh:______15.0_m ERv:________13_m USE:_____08/11_sats");
}

TEST(GpsInfo, LeavesOutWhatNobodyTells) {
  EXPECT_EQ(InfoOf(GllLine("123040") + GllLine("123041")),
            "   GPS-INFO:  GLN:___ 48.50N GLE:__ 8.0866E");
  EXPECT_FALSE(Has(InfoOf(GgaLine("123040", kSomewhere, ",M")), "ALT"));
}

TEST(GpsInfo, FeetBecomeWholeMetres) {
  EXPECT_TRUE(Has(InfoOf("$PGRMZ,246,f,3*1B\r\n"), " ALT:________74_m"));
  EXPECT_TRUE(Has(InfoOf("$PGRMA,246,F,3*1B\r\n"), " ALT:________74_m"));
  EXPECT_TRUE(Has(InfoOf("$PGRMZ,246,M,3*1B\r\n"), " ALT:_______246_m"));
  EXPECT_TRUE(Has(InfoOf("$PGRMZ,-10,F,3*1B\r\n"), " ALT:________-4_m"));
}

TEST(GpsInfo, OneHeightOverridesTheOtherInAFixedOrder) {
  const std::string rma = "$PGRMA,1,M*00\r\n";
  const std::string rmz = "$PGRMZ,2,M*00\r\n";
  EXPECT_TRUE(Has(InfoOf(rmz + rma), " ALT:_________2_m"));
  EXPECT_TRUE(Has(InfoOf(rmz + GgaLine("123040") + rma), " ALT:_____545.4_m"));
  EXPECT_TRUE(Has(InfoOf(GgaLine("123040", kSomewhere, ",M") + rma), " ALT:_________1_m"));
}

TEST(GpsInfo, TakesTheSpeedsOfACourseSentenceTheOtherWayRound) {
  const std::string line = InfoOf(RmcLine("123040") + "$GPVTG,90,T,91,M,005.5,N,010.2,K*48\r\n");
  EXPECT_TRUE(Has(line, " Vkm:_____005.5_km/h"));
  EXPECT_TRUE(Has(line, " Vnm:_____010.2_nm/h"));
}

TEST(GpsInfo, AWordIsReadWhereItStandsFirst) {
  const std::string line =
      InfoOf(GgaLine("123040", kSomewhere, "100,M") + GgaLine("123041", kSomewhere, "200,M"));
  EXPECT_TRUE(Has(line, " ALT:_______100_m"));
}

TEST(GpsInfo, ShowsNothingOfTornSentences) {
  EXPECT_FALSE(Has(InfoOf("$PGRMZ,24\r\n$GPGGA,x,F\r\n"), "ALT"));
  EXPECT_FALSE(Has(InfoOf("$PGRMZ," + std::string(2000, '9') + ",M*1B\r\n"), "ALT"));
  EXPECT_FALSE(Has(InfoOf("$GPGSV,3,1\r\n"), "USE"));
}

}  // namespace
}  // namespace zepril
