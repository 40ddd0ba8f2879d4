// Batch decoding gives the same records in every dialect and in passes of any size.
#include "tool/decode_station.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tool/tnc2.h"

namespace zepril {
namespace {

DecodeSettings SettingsFor(int mode) {
  DecodeSettings settings;
  settings.RadioMode = mode;
  settings.Now = {2024, 1, 15, 12, 34, 0};
  settings.MyCallFull = "QX7KB";
  return settings;
}

// The record of a packet, right-trimmed, or why there is none.
std::string RecordOrReason(const std::string& packet) {
  DecodeStation station(SettingsFor(1));
  std::string normal;
  if (!Tnc2ToNormal(packet, normal)) return "- no packet";
  station.Receive(normal);
  station.Drain();
  if (!station.LongLog().empty()) {
    return "= " + std::string(TrimRight(Left(station.LongLog(), 120)));
  }
  if (station.Counts().Recoveries > 0) return "- recovery";
  for (int i = 0; i < kDropReasons; ++i) {
    if (station.Counts().Drops[static_cast<std::size_t>(i)] > 0) {
      return "- " + std::string(DropText(static_cast<DropReason>(i)));
    }
  }
  return "- nothing";
}

TEST(DecodeStation, ReviewedPacketsGiveTheirRecords) {
  std::ifstream table(std::string(ZEPRIL_SOURCE_DIR) + "/tests/data/decoded_packets.txt",
                      std::ios::binary);
  std::string line;
  std::string packet;
  int rows = 0;
  while (std::getline(table, line)) {
    if (line.starts_with("> ")) packet = line.substr(2);
    if (!line.starts_with("= ") && !line.starts_with("- ")) continue;
    EXPECT_EQ(RecordOrReason(packet), line) << packet;
    ++rows;
  }
  EXPECT_GE(rows, 29);
}

// The records of `text` arriving in pieces of `piece` bytes.
std::string LogOf(int mode, const std::string& text, std::size_t piece) {
  DecodeStation station(SettingsFor(mode));
  for (std::size_t at = 0; at < text.size(); at += piece)
    station.Receive(text.substr(at, piece));
  station.Drain();
  return station.LongLog();
}

struct Traffic {
  int Mode;
  std::string Text;
};

// Twelve positions as each dialect writes them.
std::vector<Traffic> AllDialects() {
  std::string agw;
  std::string normal;
  std::string scs;
  std::string ptc;
  for (int i = 0; i < 12; ++i) {
    const std::string information = "!52" + ZeroPadded(i, 2) + ".00N/01324.00E>Test";
    agw +=
        "1:Fm N0CALL To APRS Via WIDE1-1* <UI pid=F0 Len=30 >[12:00:00]\r" + information + "\r\r";
    normal += "N0CALL>WIDE1-1*>APRS <UI>:\r\n" + information + "\r\n";
    const std::string fm =
        "fm N0CALL to APRS via WIDE1-1* ctl UI pid F0\r\n" + information + "\r\n";
    scs += fm;
    ptc += "1:" + fm;
  }
  return {{0, agw}, {1, normal}, {3, agw}, {5, scs}, {6, ptc}};
}

TEST(DecodeStation, EveryDialectGivesTheSameRecords) {
  std::string expected;
  for (const Traffic& traffic : AllDialects()) {
    // In pieces that a serial modem may deliver at once.
    const std::string log = LogOf(traffic.Mode, traffic.Text, 500);
    EXPECT_EQ(log.size(), 12u * 122u) << traffic.Mode;
    if (expected.empty()) expected = log;
    EXPECT_EQ(log, expected) << traffic.Mode;
  }
}

TEST(DecodeStation, PiecesOfAnySizeGiveTheSameRecords) {
  for (const Traffic& traffic : AllDialects()) {
    if (traffic.Mode == 1) continue;  // this modem's short reads count as nothing
    const std::string expected = LogOf(traffic.Mode, traffic.Text, 500);
    for (std::size_t piece : {1u, 2u, 7u, 33u, 100u, 499u}) {
      EXPECT_EQ(LogOf(traffic.Mode, traffic.Text, piece), expected) << traffic.Mode << " " << piece;
    }
  }
}

TEST(DecodeStation, LimitOfTheListDoesNotCutTheLog) {
  DecodeSettings settings = SettingsFor(1);
  settings.MoniAllLimit = 50;
  DecodeStation station(settings);
  std::string normal;
  for (int i = 0; i < 300; ++i) {
    Tnc2ToNormal("N0CALL>APRS:!52" + ZeroPadded(i % 60, 2) + "." + ZeroPadded(i / 60, 2) +
                     "N/01324.00E>Test",
                 normal);
    station.Receive(normal);
  }
  EXPECT_EQ(station.Counts().Stored, 300);
  EXPECT_EQ(station.LongLog().size(), 300u * 122u);
}

}  // namespace
}  // namespace zepril
