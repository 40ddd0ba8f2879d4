#include "reception/collector.h"

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
  station.Internet.IGateConnected = 1;
  station.Engine.Texts = {kAgw, "1234567890"};
  CollectIn(station, 0);
  EXPECT_EQ(station.Actions.Gated, std::vector<std::string>{kAgw});
}

TEST(Collector, RemoteEngineIsNeverGated) {
  Reception station;
  station.Internet.IGateConnected = 1;
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
  station.Internet.IGateConnected = 1;
  station.Modem.Reads = {"torn line\r\n" + kNormal};
  EXPECT_EQ(CollectIn(station, 1), kNormal);
  EXPECT_EQ(station.Actions.Gated, std::vector<std::string>{kNormal});
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
  station.Internet.IGateConnected = 1;
  station.Modem.Reads = {kScs + kScs.substr(0, 20)};
  CollectIn(station, 6);
  EXPECT_EQ(station.Actions.Gated.size(), 1u);
  station.Modem.Reads = {"", kScs.substr(20)};
  EXPECT_EQ(CollectIn(station, 6), "N0CALL>APRS <UI>:\r\n!tst\r\n");
  ASSERT_EQ(station.Actions.Gated.size(), 2u);
  EXPECT_EQ(station.Actions.Gated[1].find("N0CALL"), station.Actions.Gated[1].rfind("N0CALL"));
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
