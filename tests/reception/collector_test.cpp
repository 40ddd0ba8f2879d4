// What each radio interface brings into a pass, in pieces, too long, too late.
#include "reception/collector.h"

#include <algorithm>

#include "core/text_fields.h"
#include "tests/reception/reception_support.h"

namespace zepril {
namespace {

const std::string kAgw = "1:Fm N0CALL To APRS <UI pid=F0 Len=4 >[12:00:00]\r!tst\r\r";
const std::string kNormal = "N0CALL*>APRS <UI>:\r\n!tst\r\n";
const std::string kScs = "fm N0CALL to APRS ctl UI pid F0\r\n!tst\r\n";

std::string CollectIn(Reception& station, int mode) {
  station.Radio.RadioMode = mode;
  std::string collected;
  station.Link.Collect(collected);
  return collected;
}

TEST(Collector, LocalEngineIsEmptiedFrameByFrame) {
  Reception station;
  station.Engine.Texts = {kAgw, kAgw};
  EXPECT_EQ(CollectIn(station, 0), kNormal + kNormal);
}

TEST(Collector, TextWithAReturnInItsInformationIsDroppedAndLaterFramesWait) {
  Reception station;
  station.Engine.Texts = {kAgw, "1:Fm N0CALL To APRS <UI >\ra\rb\r\r", kAgw};
  EXPECT_EQ(CollectIn(station, 0), kNormal);
  EXPECT_EQ(CollectIn(station, 0), kNormal);
}

TEST(Collector, GateGetsTheRawTextWhileLoggedIn) {
  Reception station;
  station.Engine.Texts = {kAgw};
  CollectIn(station, 0);
  EXPECT_TRUE(station.Actions.Gated.empty());
  station.Internet.IGateConnected = GateLink::Up;
  station.Engine.Texts = {kAgw, "1234567890"};
  CollectIn(station, 0);
  EXPECT_EQ(station.Actions.Gated, std::vector<std::string>{kAgw});
  EXPECT_EQ(station.Actions.GatedDialect, "AGW");
  station.Engine.Texts = {"12345678901"};
  CollectIn(station, 0);
  EXPECT_EQ(station.Actions.Gated.size(), 2U);
}

TEST(Collector, RemoteEngineIsNeverGated) {
  Reception station;
  station.Internet.IGateConnected = GateLink::Up;
  station.Radio.AgwRxBuffer = kAgw;
  EXPECT_EQ(CollectIn(station, 3), kNormal);
  EXPECT_TRUE(station.Actions.Gated.empty());
}

TEST(Collector, RemoteTextWithoutFrameIsThrownAway) {
  Reception station;
  station.Radio.AgwRxBuffer = "something else\r\r" + kAgw;
  EXPECT_EQ(CollectIn(station, 3), kNormal);
  EXPECT_EQ(station.Radio.AgwRxBuffer, "");
}

TEST(Collector, RemoteHeaderBytesBetweenFramesDoNotDisturb) {
  Reception station;
  const std::string header(36, '\0');
  station.Radio.AgwRxBuffer = kAgw + header + kAgw;
  EXPECT_EQ(CollectIn(station, 3), kNormal + kNormal);
}

TEST(Collector, RemoteTextWithFourReturnsEndsTheCollecting) {
  Reception station;
  station.Radio.AgwRxBuffer = "1:Fm N0CALL To APRS <UI >\ra\rb\r\r" + kAgw;
  EXPECT_EQ(CollectIn(station, 3), "");
  EXPECT_EQ(CollectIn(station, 3), kNormal);
}

TEST(Collector, RemoteTextWaitsForItsPairOfReturns) {
  Reception station;
  station.Radio.AgwRxBuffer = kAgw.substr(0, kAgw.size() - 1);
  EXPECT_EQ(CollectIn(station, 3), "");
  station.Radio.AgwRxBuffer += "\r";
  EXPECT_EQ(CollectIn(station, 3), kNormal);
}

TEST(Collector, RemoteTextOfTwentyCharactersIsTheShortestTaken) {
  Reception station;
  station.Radio.AgwRxBuffer = "1:Fm A To B <U\r!t\r\r";
  EXPECT_EQ(CollectIn(station, 3), "");
  station.Radio.AgwRxBuffer = "1:Fm A To B <U\r!ts\r\r";
  EXPECT_EQ(CollectIn(station, 3), "A*>B <U>:\r\n!ts\r\n");
}

TEST(Collector, RemoteTextOfAClosedLinkIsLeft) {
  Reception station;
  station.Radio.AgwConnected = 0;
  station.Radio.AgwRxBuffer = kAgw;
  EXPECT_EQ(CollectIn(station, 3), "");
  EXPECT_EQ(station.Radio.AgwRxBuffer, kAgw);
}

TEST(Collector, OverlongRemoteBufferIsEmptied) {
  Reception station;
  station.Radio.AgwRxBuffer.assign(65537, 'x');
  EXPECT_EQ(CollectIn(station, 3), "");
  EXPECT_EQ(station.Radio.AgwRxBuffer, "");
}

TEST(Collector, Pk232TextGoesToTheGateAsItIsKept) {
  Reception station;
  station.Internet.IGateConnected = GateLink::Up;
  station.Modem.Reads = {"torn line\r\n" + kNormal};
  EXPECT_EQ(CollectIn(station, 1), kNormal);
  EXPECT_EQ(station.Actions.Gated, std::vector<std::string>{kNormal});
  EXPECT_EQ(station.Actions.GatedDialect, "PK-232");
}

// What the passes of a PK-232 give that delivers `reads`, one a tick.
std::string CollectTicks(Reception& station, const std::vector<std::string>& reads) {
  station.Radio.RadioMode = 1;
  std::string collected;
  for (const std::string& read : reads) {
    if (!read.empty()) station.Modem.Reads.push_back(read);
    station.Link.PassBegins();
    station.Link.Collect(collected);
  }
  return collected;
}

TEST(Collector, Pk232FrameCutByATickAnywhereComesWhole) {
  const std::string other = "N0TWO*>WIDE1-1>APRS [UI]:\r\n!5230.00N/01324.00E>other\r\n";
  const std::string text = kNormal + other + kNormal;
  for (std::size_t cut = 1; cut < text.size(); ++cut) {
    Reception station;
    EXPECT_EQ(CollectTicks(station, {text.substr(0, cut), text.substr(cut)}), text) << cut;
  }
}

TEST(Collector, HalvesOfACutPk232LineMakeNoRecords) {
  const std::string one = Reception::Frame("!5230.00N/01324.00E>one", "N0ONE*>WIDE1-1>APRS");
  const std::string two = Reception::Frame("!5300.00N/01300.00E>two", "N0TWO*>WIDE1-1>APRS");
  const std::string text = one + two;
  for (std::size_t cut = 1; cut < text.size(); ++cut) {
    Reception station;
    station.Hear(text.substr(0, cut));
    station.Hear(text.substr(cut));
    station.Pass.Run();
    ASSERT_EQ(station.Heard(), 2) << cut;
    EXPECT_EQ(station.Stores.MoniAllRecords.At(1).Call(), "N0ONE") << cut;
    EXPECT_EQ(station.Stores.MoniAllRecords.At(1).Info(), "one") << cut;
    EXPECT_EQ(station.Stores.MoniAllRecords.At(2).Call(), "N0TWO") << cut;
    EXPECT_EQ(station.Stores.MoniAllRecords.At(2).Info(), "two") << cut;
  }
}

TEST(Collector, UnfinishedPk232LineIsHandedOnClosedAfterThreeTicks) {
  Reception station;
  const std::string half = "N0CALL*>APRS <UI>:\r\n!ts";
  EXPECT_EQ(CollectTicks(station, {half, "", ""}), "");
  EXPECT_EQ(CollectTicks(station, {""}), half + "\r\n");
  EXPECT_EQ(CollectTicks(station, {kNormal}), kNormal);
}

TEST(Collector, Pk232TextOverAThousandCharactersWithoutEndDoesNotWait) {
  Reception station;
  EXPECT_EQ(CollectTicks(station, {std::string(1000, 'x')}), "");
  EXPECT_EQ(station.Received.ModemText.size(), 1000u);
  EXPECT_EQ(CollectTicks(station, {"x"}), "");  // a line without a marker
  EXPECT_EQ(station.Received.ModemText, "");
  EXPECT_EQ(CollectTicks(station, {kNormal}), kNormal);
}

// Frames of an SCS modem that are told apart by their numbers.
std::string ManyScsFrames(int count, const std::string& comment = "scs") {
  std::string text;
  for (int i = 0; i < count; ++i) {
    text += "fm N" + WholeNumber(1000 + i) + " to APRS ctl UI pid F0\r\n!52" +
            ZeroPadded(i % 60, 2) + ".00N/01324.00E>" + comment + "\r\n";
  }
  return text;
}

void Passes(Reception& station, int count) {
  for (int i = 0; i < count; ++i)
    station.Pass.Run();
}

TEST(Collector, MoreThanAThousandCharactersOfAnScsModemAreDecodedInOnePass) {
  for (int mode : {5, 6}) {
    Reception station;
    station.Radio.RadioMode = mode;
    // A minute of 1200 Bd.
    station.Hear(ManyScsFrames(130));
    EXPECT_GE(station.Heard(), 125) << mode;
    Passes(station, 5);
    EXPECT_EQ(station.Heard(), 130) << mode;
    EXPECT_EQ(station.Stores.MoniAllRecords.At(130).Call(), "N1129") << mode;
  }
}

TEST(Collector, AThousandCharactersOfAnScsModemAreTakenInOneGoAndEndAtALine) {
  Reception station;
  const std::string text = ManyScsFrames(40, std::string(100, 'c'));
  station.Modem.Reads = {text};
  const std::string collected = CollectIn(station, 5);
  EXPECT_EQ(std::count(collected.begin(), collected.end(), '!'), 6);
  EXPECT_LE(text.size() - station.Received.ModemText.size(), 1000u);
  EXPECT_TRUE(text.ends_with(station.Received.ModemText));
  EXPECT_TRUE(station.Received.ModemText.starts_with("!52") ||
              station.Received.ModemText.starts_with("fm "));
}

TEST(Collector, ScsTextThatIsNoFrameDoesNotKeepOutWhatFollows) {
  Reception station;
  station.Radio.RadioMode = 6;
  std::string chatter;
  for (int i = 0; i < 30; ++i)
    chatter += "*** this is a line of some modem " + WholeNumber(i) + "\r\n";
  station.Hear(chatter.substr(0, 990));
  station.Hear(chatter.substr(990) + ManyScsFrames(20));
  Passes(station, 5);
  EXPECT_EQ(station.Heard(), 20);
}

TEST(Collector, OnlyAThousandCharactersWithoutALineEndAreThrownAway) {
  Reception station;
  station.Radio.RadioMode = 5;
  station.Hear(ManyScsFrames(3) + std::string(1100, 'x') + "\r\n" + ManyScsFrames(12));
  Passes(station, 5);
  EXPECT_EQ(station.Heard(), 12);  // three of the twelve tell what was told before
  EXPECT_TRUE(station.Received.ModemText.empty());
}

TEST(Collector, AModemThatNeverEndsItsTextFillsNoMemory) {
  Reception station;
  station.Radio.RadioMode = 5;
  for (int i = 0; i < 40; ++i) {
    station.Modem.Reads = {std::string(60000, 'x'), std::string(60000, 'y')};
    station.Pass.Run();
    ASSERT_LE(station.Received.ModemText.size(), kLongestReceiveBuffer);
    ASSERT_LE(station.Received.ScsRxBuffer.size(), 1000u);
  }
}

TEST(Collector, ScsTextIsTakenWhenItStopsGrowing) {
  Reception station;
  station.Modem.Reads = {kScs.substr(0, 10), kScs.substr(10)};
  EXPECT_EQ(CollectIn(station, 5), "N0CALL>APRS <UI>:\r\n!tst\r\n");
  EXPECT_DOUBLE_EQ(station.Time.MonotonicSeconds(), 0.02);
}

TEST(Collector, ScsTextThatKeepsGrowingWaitsForTheNextPass) {
  Reception station;
  station.Modem.Reads = {kScs, "a", "b", "c", "d", "e"};
  EXPECT_EQ(CollectIn(station, 5), "");
  EXPECT_EQ(station.Received.ScsRxBuffer, kScs + "abcde");
  EXPECT_EQ(CollectIn(station, 5), "N0CALL>APRS <UI>:\r\n!tst\r\n");
}

TEST(Collector, UnfinishedScsFrameIsKeptForTheNextPass) {
  Reception station;
  station.Internet.IGateConnected = GateLink::Up;
  station.Modem.Reads = {kScs + kScs.substr(0, 20)};
  CollectIn(station, 6);
  EXPECT_EQ(station.Actions.Gated.size(), 1u);
  station.Modem.Reads = {"", kScs.substr(20)};
  EXPECT_EQ(CollectIn(station, 6), "N0CALL>APRS <UI>:\r\n!tst\r\n");
  ASSERT_EQ(station.Actions.Gated.size(), 2u);
  EXPECT_EQ(station.Actions.Gated[1].find("N0CALL"), station.Actions.Gated[1].rfind("N0CALL"));
}

TEST(Collector, TheGateGetsFramesOfScsModemsWithTheirLineEnds) {
  for (const int mode : {5, 6}) {
    Reception station;
    station.Internet.IGateConnected = GateLink::Up;
    station.Modem.Reads = {kScs + kScs, "", kScs};
    CollectIn(station, mode);
    EXPECT_EQ(station.Actions.Gated, std::vector<std::string>{kScs + kScs}) << mode;
    EXPECT_EQ(station.Actions.GatedDialect, mode == 5 ? "SCS TNC" : "SCS PTC");
    // What comes next begins with that end once more.
    CollectIn(station, mode);
    ASSERT_EQ(station.Actions.Gated.size(), 2u) << mode;
    EXPECT_EQ(station.Actions.Gated[1], "\r\n" + kScs) << mode;
  }
}

TEST(Collector, OverlongScsTextIsThrownAway) {
  Reception station;
  station.Modem.Reads = {std::string(1001, 'x')};
  EXPECT_EQ(CollectIn(station, 5), "");
  EXPECT_EQ(station.Received.ScsRxBuffer, "");
  station.Modem.Reads = {std::string(1000, 'x')};
  CollectIn(station, 5);
  EXPECT_EQ(station.Received.ScsRxBuffer.size(), 1000u);
}

TEST(Collector, OtherModesCollectNothing) {
  Reception station;
  station.Engine.Texts = {kAgw};
  station.Modem.Reads = {kNormal};
  for (int mode : {2, 4, 7, -1})
    EXPECT_EQ(CollectIn(station, mode), "");
  EXPECT_EQ(station.Radio.LastDataSeconds, -1.0);
}

TEST(Collector, DataOfTheLinkRenewsItsTime) {
  Reception station;
  station.Time.Wait(5.0);
  station.Modem.Reads = {"x"};
  CollectIn(station, 1);
  EXPECT_EQ(station.Radio.LastDataSeconds, 5.0);
}

}  // namespace
}  // namespace zepril
