// Positions of every form, objects, times, comments and symbols of packets.
#include "reception/packet_decoder.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/position_text.h"
#include "core/text_fields.h"
#include "reception/mic_e.h"
#include "reception/position_forms.h"

namespace zepril {
namespace {

struct Decoded {
  DecodeResult Result;
  DecodedPacket Packet;
};

AnalysedFrame FrameOf(const std::string& information) {
  AnalysedFrame frame;
  frame.PacketCall = "N0CALL";
  frame.PacketDestination = "APRS";
  frame.PacketInfo = information;
  frame.PacketType = information.empty() ? '\0' : information.front();
  return frame;
}

Decoded DecodeFrame(AnalysedFrame frame, int utc_offset = 0,
                    const LocalTime& now = {2024, 1, 15, 12, 34, 0}) {
  static const SymbolTable symbols;
  DecodeContext context;
  context.Now = now;
  context.UtcOffsetHours = utc_offset;
  Decoded decoded;
  decoded.Result = DecodePacket(frame, context, symbols, decoded.Packet);
  return decoded;
}

Decoded Decode(const std::string& information, int utc_offset = 0) {
  return DecodeFrame(FrameOf(information), utc_offset);
}

Decoded DecodeMicE(const std::string& destination, const std::string& information) {
  AnalysedFrame frame = FrameOf(information);
  frame.PacketDestination = destination;
  return DecodeFrame(std::move(frame));
}

bool IsPacket(const Decoded& decoded) {
  return decoded.Result.Outcome == DecodeOutcome::Packet;
}

bool IsDropped(const Decoded& decoded, DropReason reason) {
  return decoded.Result.Outcome == DecodeOutcome::Dropped && decoded.Result.Reason == reason;
}

// ---- Plain positions ------------------------------------------------------------------------

TEST(PlainPosition, GivesDegreesSymbolCommentAndGrid) {
  const Decoded decoded = Decode("!4903.50N/07201.75W-Test");
  ASSERT_TRUE(IsPacket(decoded));
  const DecodedPacket& packet = decoded.Packet;
  EXPECT_NEAR(packet.PacketLat, 49.0583333, 1e-7);
  EXPECT_NEAR(packet.PacketLon, -72.0291667, 1e-7);
  EXPECT_EQ(packet.PacketLatText, "4903.50N");
  EXPECT_EQ(packet.PacketLonText, "07201.75W");
  EXPECT_EQ(packet.PacketSymbol, "/-");
  EXPECT_EQ(packet.PacketInfoText, "Test");
  EXPECT_EQ(packet.PacketMessageCapable, ' ');
  EXPECT_EQ(RecordNorthText(packet.NorthMetres), " 9711.263");
  EXPECT_EQ(RecordEastText(packet.EastMetres), "-4499.276");
  EXPECT_EQ(packet.PacketDate, "240115");
  EXPECT_EQ(packet.PacketTime, "1234");
}

TEST(PlainPosition, EqualsAndAtMarkAStationThatTakesMessages) {
  EXPECT_EQ(Decode("=4903.50N/07201.75W-Test").Packet.PacketMessageCapable, '\'');
  EXPECT_EQ(Decode("@151234z4903.50N/07201.75W-").Packet.PacketMessageCapable, '\'');
  EXPECT_EQ(Decode("/151234z4903.50N/07201.75W-").Packet.PacketMessageCapable, ' ');
}

TEST(PlainPosition, IsFoundBehindAnyPrefixByItsPoint) {
  const Decoded decoded = Decode("/151234z4903.50N/07201.75W>Mobile");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_EQ(decoded.Packet.PacketLatText, "4903.50N");
  EXPECT_EQ(decoded.Packet.PacketInfoText, "Mobile");
}

TEST(PlainPosition, EarlyPointHidesTheLatitude) {
  EXPECT_FALSE(IsPacket(Decode("!v1.0 4903.50N/07201.75W-")));
}

TEST(PlainPosition, LowerCaseHemispheresAreTaken) {
  EXPECT_NEAR(Decode("!4903.50s/07201.75w-").Packet.PacketLat, -49.0583333, 1e-7);
  EXPECT_EQ(Decode("!4903.50s/07201.75w-").Packet.PacketLonText, "07201.75W");
}

TEST(PlainPosition, BlanksOfAmbiguityAreTakenOnlyAtTheEnd) {
  const Decoded decoded = Decode("!4903.  N/07201.  W-");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, 49.05, 1e-9);
  DecodedPacket packet;
  packet.PacketType = '!';
  packet.PacketInfo = "!49  .  N/07201.  W-";
  ReadPlainPosition(packet);
  EXPECT_EQ(packet.PacketLatText, "");
  EXPECT_NE(packet.PacketLonText, "");
}

TEST(PlainPosition, SecondPointRightBehindTheFirstEndsIt) {
  DecodedPacket packet;
  packet.PacketType = '!';
  packet.PacketInfo = "!4903..5N/07201.75W-";
  ReadPlainPosition(packet);
  EXPECT_EQ(packet.PacketLonText, "");
}

TEST(PlainPosition, WithoutSymbolCodeItIsKeptUnderTheLastSymbol) {
  for (const char* info : {"!5201.50N/01301.75E", "!5201.50N/01301.75E ", "!5201.50N\\01301.75E",
                           "!5201.50NS01301.75E", "=5201.50N/01301.75E  hello"}) {
    const Decoded decoded = Decode(info);
    ASSERT_TRUE(IsPacket(decoded)) << info;
    EXPECT_EQ(decoded.Packet.PacketSymbol, "\\~") << info;
    EXPECT_NEAR(decoded.Packet.PacketLat, 52.025, 1e-9) << info;
    EXPECT_NEAR(decoded.Packet.PacketLon, 13.0291666, 1e-6) << info;
  }
  EXPECT_EQ(Decode("=5201.50N\\01301.75E  hello").Packet.PacketInfoText, "hello");
  EXPECT_EQ(Decode("=5201.50N\\01301.75E  hello").Packet.PacketSymbol, "\\~");
}

// ---- NMEA -----------------------------------------------------------------------------------

Decoded DecodeNmea(const std::string& call, const std::string& information) {
  AnalysedFrame frame = FrameOf(information);
  frame.PacketCall = call;
  return DecodeFrame(std::move(frame));
}

TEST(NmeaPosition, OtherThanTwoDecimalsLoseTheSign) {
  const Decoded decoded =
      DecodeNmea("N0CALL-9", "$GPRMC,123456,A,4903.5012,S,07201.7523,W,000.0,000.0,150124");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, 49.0583333, 1e-7);
  EXPECT_NEAR(decoded.Packet.PacketLon, 72.0291667, 1e-7);
  EXPECT_EQ(decoded.Packet.PacketSymbol, "/>");
  EXPECT_EQ(decoded.Packet.PacketInfoText, "");
}

TEST(NmeaPosition, TwoDecimalsKeepTheSign) {
  const Decoded decoded = DecodeNmea("N0CALL", "$GPXYZ,4903.50,S,07201.75,W,1");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, -49.0583333, 1e-7);
  EXPECT_NEAR(decoded.Packet.PacketLon, -72.0291667, 1e-7);
  EXPECT_EQ(decoded.Packet.PacketSymbol, "/\"");
}

TEST(NmeaPosition, SymbolFollowsTheSsid) {
  const char* symbols[] = {"/\"", "/a", "/U", "/f", "/b", "/Y", "/X", "/'", "/s",
                           "/>",  "/<", "/O", "/j", "/R", "/k", "/v", "/\""};
  for (int ssid = 0; ssid <= 16; ++ssid) {
    EXPECT_EQ(
        DecodeNmea("N0CALL-" + WholeNumber(ssid), "$X,4903.50,N,07201.75,E,1").Packet.PacketSymbol,
        symbols[ssid])
        << ssid;
  }
}

TEST(NmeaPosition, BothHemispheresMustStand) {
  EXPECT_TRUE(IsDropped(Decode("$GPRMC,4903.50,N,07201.75,X,1"), DropReason::NoPosition));
  EXPECT_TRUE(IsDropped(Decode("$ULTW0000"), DropReason::NoPosition));
}

// ---- Compressed -----------------------------------------------------------------------------

TEST(CompressedPosition, IsReadInBase91) {
  const Decoded decoded = Decode("!/5L!!<*e7>7P[x");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, 49.5, 1e-7);
  EXPECT_NEAR(decoded.Packet.PacketLon, -72.7500039, 1e-7);
  EXPECT_EQ(decoded.Packet.PacketSymbol, "/>");
  EXPECT_EQ(decoded.Packet.PacketInfoText, "7P[x");
  EXPECT_EQ(decoded.Packet.PacketLatText, "YYYY");
  EXPECT_EQ(decoded.Packet.PacketLonText, "XXXX");
}

TEST(CompressedPosition, StandsBehindTheStampForAtAndSlash) {
  const Decoded decoded = Decode("@151234z/5L!!<*e7>7P[x");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, 49.5, 1e-7);
  EXPECT_EQ(decoded.Packet.PacketInfoText, "7P[x");
  EXPECT_EQ(decoded.Packet.PacketMessageCapable, '\'');
}

TEST(CompressedPosition, AnyTextOfItsTypesIsReadSo) {
  const Decoded decoded = Decode("=Hello world this is text");
  EXPECT_NEAR(decoded.Packet.PacketLat, -46.1703, 1e-4);
  EXPECT_NEAR(decoded.Packet.PacketLon, -180.1797, 1e-4);
  EXPECT_TRUE(IsDropped(decoded, DropReason::OffTheGrid));
}

TEST(CompressedPosition, ShortTextDropsTheFrame) {
  EXPECT_TRUE(IsDropped(Decode("=test"), DropReason::TooShort));
  EXPECT_TRUE(IsDropped(Decode("!/5L!!<*e7"), DropReason::TooShort));
}

// ---- Mic-E ----------------------------------------------------------------------------------

TEST(MicE, LatitudeStandsInTheDestination) {
  const Decoded decoded = DecodeMicE("S32U6T", "`(_fn\"Oj/");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_NEAR(decoded.Packet.PacketLat, 33.4273333, 1e-7);
  EXPECT_NEAR(decoded.Packet.PacketLon, -12.129, 1e-7);
  EXPECT_EQ(decoded.Packet.PacketSymbol, "/j");
  EXPECT_FALSE(decoded.Packet.PacketIsEmergency);
}

TEST(MicE, ThreeLeadingDigitsAreAnEmergencyInTheSouth) {
  const Decoded decoded = DecodeMicE("332E6T", "`(_fn\"Oj/");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_TRUE(decoded.Packet.PacketIsEmergency);
  EXPECT_LT(decoded.Packet.PacketLat, 0.0);
}

TEST(MicE, NinetyFiveDegreesWithoutOffsetReadAsFive) {
  DecodedPacket packet;
  packet.PacketType = '`';
  packet.PacketDestination = "T2SP0W";
  // 95 degrees is code 123; 30 minutes code 58; 50 hundredths code 78.
  packet.PacketInfo = std::string("`") + static_cast<char>(123) + static_cast<char>(58) +
                      static_cast<char>(78) + "n\"Oj/";
  EXPECT_TRUE(ReadMicE(packet));
  EXPECT_NEAR(packet.PacketLon, -5.5083333, 1e-7);
}

TEST(MicE, OffsetBringsLongitudesFromAHundredOn) {
  const auto degrees = [](int code, const std::string& destination) {
    DecodedPacket packet;
    packet.PacketDestination = destination;
    packet.PacketInfo = std::string("`") + static_cast<char>(code) + static_cast<char>(88) +
                        static_cast<char>(28) + "n\"Oj/";
    ReadMicE(packet);
    return packet.PacketLon;
  };
  EXPECT_NEAR(degrees(28 + 12, "S32U60"), 12.0, 1e-9);
  EXPECT_NEAR(degrees(28 + 12, "S32UV0"), 112.0, 1e-9);  // offset bit
  EXPECT_NEAR(degrees(28 + 80, "S32UV0"), 100.0, 1e-9);  // 180 to 189: minus 80
  EXPECT_NEAR(degrees(28 + 89, "S32UV0"), 109.0, 1e-9);
  EXPECT_NEAR(degrees(118, "S32UV0"), 0.0, 1e-9);
  EXPECT_NEAR(degrees(127, "S32U60"), 9.0, 1e-9);
}

TEST(MicE, CharacterBeforeTheCommentBelongsToItWhenALetterOrDigit) {
  const auto comment = [](const std::string& tail) {
    return DecodeMicE("S32U6T", "`(_fn\"Oj/" + tail).Packet.PacketInfoText;
  };
  EXPECT_EQ(comment("Hello"), "Hello");
  EXPECT_EQ(comment("Zello"), "ello");
  EXPECT_EQ(comment("zello"), "zello");
  EXPECT_EQ(comment("]ello"), "ello");
  EXPECT_EQ(comment("7ello"), "7ello");
  EXPECT_EQ(comment("H"), "");
}

TEST(MicE, ShortDestinationOrInformationGivesNothing) {
  EXPECT_TRUE(IsDropped(DecodeMicE("S32U6", "`(_fn\"Oj/"), DropReason::NoPosition));
  EXPECT_TRUE(IsDropped(DecodeMicE("S32U6T", "`(_fn\"Oj"), DropReason::TooShort));
}

// ---- Objects --------------------------------------------------------------------------------

TEST(Objects, AreStoredUnderTheirNameWithTheirSender) {
  const Decoded decoded = Decode(";REPEATER *141230z4830.15N/00805.20Er Test");
  ASSERT_TRUE(IsPacket(decoded));
  const DecodedPacket& packet = decoded.Packet;
  EXPECT_EQ(packet.PacketCall, "REPEATER");
  EXPECT_EQ(packet.PacketHeardVia, "N0CALL");
  EXPECT_EQ(packet.PacketType, '@');
  EXPECT_EQ(packet.PacketMessageCapable, '\'');
  EXPECT_EQ(packet.PacketSymbol, "/r");
  EXPECT_EQ(packet.PacketInfoText, "Test");
  EXPECT_TRUE(packet.PacketIsObject);
  EXPECT_FALSE(packet.TimestampStale);
  EXPECT_EQ(RecordNorthText(packet.NorthMetres), " 5395.280");
  EXPECT_EQ(RecordEastText(packet.EastMetres), "  -10.520");
}

TEST(Objects, WithoutAStampReadAsPlainPosition) {
  const Decoded decoded = Decode(";abc*4830.15N/00805.20Er Test");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_EQ(decoded.Packet.PacketCall, "ABC");
  EXPECT_EQ(decoded.Packet.PacketType, '=');
}

TEST(Objects, KilledOnesAreLost) {
  EXPECT_FALSE(IsPacket(Decode(";REPEATER _141230z4830.15N/00805.20Er Test")));
}

TEST(Objects, ItemsFailByTheCutOfTheirName) {
  EXPECT_EQ(Decode(")AIDV2!4903.50N/07201.75W-").Result.Outcome, DecodeOutcome::Recovery);
  EXPECT_EQ(Decode(")AB*C!4903.50N/07201.75W-").Packet.PacketCall, "AB");
}

TEST(Objects, ItemsWithoutPointOrOfTenCharactersDoNotFail) {
  EXPECT_EQ(Decode(")AIDV2!/5L!!<*e7>7P[").Result.Outcome, DecodeOutcome::Dropped);
  EXPECT_EQ(Decode(")AID!4903.").Result.Outcome, DecodeOutcome::Dropped);
}

// ---- Time stamps ----------------------------------------------------------------------------

TEST(TimeStamp, IsStaleFromThreeMinutesOn) {
  EXPECT_FALSE(Decode("@151232z4903.50N/07201.75W-").Packet.TimestampStale);
  EXPECT_TRUE(Decode("@151231z4903.50N/07201.75W-").Packet.TimestampStale);
  EXPECT_FALSE(Decode("@151236z4903.50N/07201.75W-").Packet.TimestampStale);
  EXPECT_TRUE(Decode("@151237z4903.50N/07201.75W-").Packet.TimestampStale);
}

TEST(TimeStamp, SecondsOfTheClockAreCut) {
  const Decoded decoded =
      DecodeFrame(FrameOf("@151158z4903.50N/07201.75W-"), 0, {2024, 1, 15, 12, 0, 59});
  EXPECT_FALSE(decoded.Packet.TimestampStale);
}

TEST(TimeStamp, IsMovedToLocalTime) {
  EXPECT_FALSE(Decode("@151034z4903.50N/07201.75W-", 2).Packet.TimestampStale);
  EXPECT_TRUE(Decode("@151234z4903.50N/07201.75W-", 2).Packet.TimestampStale);
}

TEST(TimeStamp, HoursFormMeansToday) {
  EXPECT_FALSE(Decode("@123400h4903.50N/07201.75W-").Packet.TimestampStale);
  EXPECT_TRUE(Decode("@113400h4903.50N/07201.75W-").Packet.TimestampStale);
}

TEST(TimeStamp, OtherFormsHaveNoEffect) {
  EXPECT_FALSE(Decode("@010101/4903.50N/07201.75W-").Packet.TimestampStale);
}

TEST(TimeStamp, ImpossibleDateRollsOver) {
  EXPECT_TRUE(Decode("@009999z4903.50N/07201.75W-").Packet.TimestampStale);
  EXPECT_TRUE(Decode("@xxxxxxz4903.50N/07201.75W-").Packet.TimestampStale);
}

TEST(TimeStamp, RecordKeepsTheTimeOfReception) {
  const Decoded decoded = Decode("@010101z4903.50N/07201.75W-");
  EXPECT_EQ(decoded.Packet.PacketDate, "240115");
  EXPECT_EQ(decoded.Packet.PacketTime, "1234");
}

TEST(TimeStamp, OfAThirdPartyBecomesTheRecordsTime) {
  AnalysedFrame frame = FrameOf("@092215z4903.50N/07201.75W-");
  frame.ThirdParty = true;
  const Decoded decoded = DecodeFrame(std::move(frame), 2);
  EXPECT_EQ(decoded.Packet.PacketDate, "240109");
  EXPECT_EQ(decoded.Packet.PacketTime, "2215");
  EXPECT_FALSE(decoded.Packet.TimestampStale);
}

// ---- Comment, symbol, plausibility ----------------------------------------------------------

TEST(Comment, PrefixUpToABraceGoes) {
  EXPECT_EQ(CleanComment("abc}Test"), "Test");
  EXPECT_EQ(CleanComment("abcde}Test"), "Test");
  EXPECT_EQ(CleanComment("abcdef}Test"), "abcdef}Test");
}

TEST(Comment, AltitudeGoesWithTheTextBeforeIt) {
  EXPECT_EQ(CleanComment("Hi /A=001234 mobile"), "mobile");
  EXPECT_EQ(CleanComment("/A=x"), "x");
}

TEST(Comment, LongTextIsCutWithATilde) {
  EXPECT_EQ(HeldComment(std::string(47, 'x')), std::string(47, 'x'));
  EXPECT_EQ(HeldComment(std::string(48, 'x')), std::string(46, 'x') + "~");
  EXPECT_EQ(Decode("!4903.50N/07201.75W-" + std::string(48, 'x')).Packet.PacketInfoText,
            std::string(46, 'x') + "~");
}

TEST(Symbol, OverlayStandsBehindTheCode) {
  const Decoded decoded = Decode("!4903.50NS07201.75W#");
  EXPECT_EQ(decoded.Packet.PacketSymbol, "\\#S");
  EXPECT_TRUE(decoded.Packet.PacketSymbolText.starts_with("S "));
  EXPECT_EQ(decoded.Packet.SymbolIndex, 103);
}

TEST(Symbol, TextHoldsNameAndClass) {
  EXPECT_EQ(Decode("!4903.50N/07201.75W>").Packet.PacketSymbolText, "  Car        0");
}

TEST(Symbol, IndexIsHeldInTheTable) {
  EXPECT_EQ(Decode("!4903.50N\\07201.75W\x7F").Packet.PacketSymbol, "\\~");
  EXPECT_EQ(Decode("!4903.50N/07201.75W\x7F").Packet.SymbolIndex, 95);
}

TEST(Symbol, EmergencySymbolMarksTheStation) {
  EXPECT_TRUE(Decode("!4903.50N\\07201.75W!").Packet.PacketIsEmergency);
  EXPECT_FALSE(Decode("!4903.50N/07201.75W!").Packet.PacketIsEmergency);
}

TEST(Plausibility, PositionNearTheEquatorIsDropped) {
  EXPECT_TRUE(IsDropped(Decode("!0001.20N/01324.00E-"), DropReason::NearEquator));
  EXPECT_TRUE(IsDropped(Decode("!0001.20S/01324.00E-"), DropReason::NearEquator));
  EXPECT_TRUE(IsPacket(Decode("!0001.21N/01324.00E-")));
}

TEST(Plausibility, LongitudeZeroIsKeptUnshifted) {
  const Decoded decoded = Decode("!5230.00N/00000.00E-");
  ASSERT_TRUE(IsPacket(decoded));
  EXPECT_EQ(decoded.Packet.PacketLon, 0.0);
}

TEST(Plausibility, FrameWithoutCallOrDestinationIsDropped) {
  AnalysedFrame frame = FrameOf("!4903.50N/07201.75W-");
  frame.PacketDestination.clear();
  EXPECT_TRUE(IsDropped(DecodeFrame(frame), DropReason::NoPosition));
  frame = FrameOf("!4903.50N/07201.75W-");
  frame.PacketCall.clear();
  EXPECT_TRUE(IsDropped(DecodeFrame(frame), DropReason::NoPosition));
}

TEST(Plausibility, NumbersBeyondAllRangesAreDropped) {
  EXPECT_FALSE(IsPacket(Decode("$X,9E9999,N,9E9999,E,1")));
  EXPECT_FALSE(IsPacket(Decode("$X,999E999,N,9999E99,E,1")));
}

TEST(Decoder, EmptyInformationIsDropped) {
  EXPECT_TRUE(IsDropped(Decode(""), DropReason::NoPosition));
}

TEST(Decoder, MessageIsToldByItsColons) {
  EXPECT_TRUE(Decode(":QX7KB    :Hello{07").Packet.IsMessage);
  EXPECT_FALSE(Decode(":QX7KB   :Hello{07").Packet.IsMessage);
  EXPECT_TRUE(IsDropped(Decode(":QX7KB    :Hello{07"), DropReason::Message));
}

TEST(Decoder, StatusTelemetryAndBareWeatherAreNotDecoded) {
  for (const std::string information : {">Status", "T#005,199,000,255,073,123,01101001",
                                        "_10090556c220s004g005t077r000p000P000h50b09900"}) {
    EXPECT_TRUE(IsDropped(Decode(information), DropReason::NoPosition)) << information;
  }
}

}  // namespace
}  // namespace zepril
