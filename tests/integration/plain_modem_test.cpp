// The whole program with modems that are not its own models: plain scripts on pseudo-terminals that
// come from the shop with another call, lose their power, and write down what would go on the air.
#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "core/text_fields.h"
#include "tests/integration/child_process_support.h"
#include "tests/integration/modem_station_support.h"

namespace zepril {
namespace {

using Lines = std::vector<std::string>;

const char* KindOf(RadioMode mode) {
  if (mode == RadioMode::Pk232) return "pk232";
  return mode == RadioMode::ScsTnc ? "tnc" : "ptc";
}

class PlainModem {
 public:
  PlainModem(RadioMode mode, const std::string& link, const std::string& log)
      : log_(log),
        nothing_(::open("/dev/null", O_RDONLY)),
        child_({"python3", PLAIN_MODEM, KindOf(mode), link, log}, nothing_, log + ".err") {}
  ~PlainModem() { ::close(nothing_); }
  PlainModem(const PlainModem&) = delete;
  PlainModem& operator=(const PlainModem&) = delete;

  // The lines of its log that begin so.
  Lines Logged(const std::string& begin) const {
    Lines lines;
    std::ifstream file(log_);
    for (std::string line; std::getline(file, line);) {
      if (line.starts_with(begin)) lines.push_back(line);
    }
    return lines;
  }
  int Count(const std::string& begin) const { return static_cast<int>(Logged(begin).size()); }
  void LosePower() { child_.Signal(SIGUSR1); }
  // The adapter keeps its own, and the device stays.
  void LosePowerBehindItsAdapter() { child_.Signal(SIGUSR2); }

 private:
  std::string log_;
  int nothing_;
  ChildProcess child_;
};

class PlainModemTest : public ::testing::TestWithParam<RadioMode> {
 protected:
  void SetUp() override {
    if (!IsInstalled("python3")) GTEST_SKIP() << "no Python here";
  }
  RadioMode Mode() const { return GetParam(); }
  void PlugIn(const std::string& link) {
    modem = std::make_unique<PlainModem>(Mode(), link, station.folder.Sub("modem.log"));
    ASSERT_TRUE(station.Comes([this] { return modem->Count("POWER") == 1; }));
  }
  bool Stands() const { return station.program->Lamp().State != LampState::Lost; }
  // TX is on, and a report falls due.
  void LetItReport() {
    station.Switch(station.Controls().Transmit.Check6, 1);
    station.State().Transmission.LastBeaconTime = 0;
    const int before = modem->Count("AIR");
    EXPECT_TRUE(station.RunUntil([&] { return modem->Count("AIR") > before; }));
  }
  // All that went on the air are reports under the own call.
  void ExpectOnlyOwnReports() {
    for (const std::string& line : modem->Logged("AIR"))
      EXPECT_EQ(line, "AIR QX7KB-10 =4830.15N/00805.20E> Test");
    EXPECT_EQ(modem->Logged("GARBLED"), Lines{});
  }

  ModemStation station{GetParam(), {}, 20.0};
  std::unique_ptr<PlainModem> modem;
};

INSTANTIATE_TEST_SUITE_P(EveryModem, PlainModemTest,
                         ::testing::Values(RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc),
                         NameOfModem);

TEST_P(PlainModemTest, OneThatLosesItsPowerSendsUnderItsCallAtItsSpeedAgain) {
  PlugIn(station.Link());
  ASSERT_TRUE(station.PressStart());
  ASSERT_TRUE(station.Start());
  LetItReport();
  modem->LosePower();
  ASSERT_TRUE(station.Comes([this] { return !Stands(); }));
  ASSERT_TRUE(station.Comes([this] { return modem->Count("POWER") == 2; }));
  ASSERT_TRUE(station.RunUntil([this] { return Stands(); })) << station.port.Trouble();
  LetItReport();
  ExpectOnlyOwnReports();
}

TEST_P(PlainModemTest, OneThatLosesItsPowerBehindItsAdapterSendsUnderItsCallAgain) {
  PlugIn(station.Link());
  ASSERT_TRUE(station.PressStart());
  ASSERT_TRUE(station.Start());
  LetItReport();
  modem->LosePowerBehindItsAdapter();
  ASSERT_TRUE(station.Comes([this] { return modem->Count("POWER") == 2; }));
  station.Run(kTickSeconds);
  // The report that is due does not leave; the next one does.
  station.State().Transmission.LastBeaconTime = 0;
  ASSERT_TRUE(station.RunUntil([this] { return !Stands(); }));
  ASSERT_TRUE(station.RunUntil([this] { return Stands(); })) << station.port.Trouble();
  LetItReport();
  ExpectOnlyOwnReports();
}

TEST_P(PlainModemTest, OneThatIsPluggedInAfterStartSendsUnderItsCallOnly) {
  ASSERT_TRUE(station.PressStart());
  PlugIn(station.Link());
  ASSERT_TRUE(station.Start());
  EXPECT_FALSE(Stands());
  ASSERT_TRUE(station.RunUntil([this] { return Stands(); })) << station.port.Trouble();
  LetItReport();
  ExpectOnlyOwnReports();
}

TEST_P(PlainModemTest, AfterACrashNothingOfTheNextStartGoesOnTheAir) {
  PlugIn(station.Link());
  ASSERT_TRUE(station.PressStart());
  ASSERT_TRUE(station.Start());
  LetItReport();
  // In the middle of a line.
  station.port.Write("=4830.15N/008");
  station.loop.Wait(0.1);
  station.Crash();
  const int before = modem->Count("AIR");
  ASSERT_TRUE(station.PressStart());
  ASSERT_TRUE(station.Start());
  station.Run(kTickSeconds);
  EXPECT_EQ(modem->Count("AIR"), before);
  LetItReport();
  ExpectOnlyOwnReports();
}

TEST_P(PlainModemTest, AnotherAdapterHearsNotAByte) {
  station.PlayAdapters();
  PlugIn(station.Adapter("usb-a"));
  const PlainModem other(Mode(), station.Adapter("usb-b"), station.folder.Sub("other.log"));
  ASSERT_TRUE(station.Comes([&] { return other.Count("POWER") == 1; }));
  ASSERT_TRUE(station.PressStart());
  ASSERT_TRUE(station.Start());
  LetItReport();
  modem.reset();
  std::filesystem::remove(station.Adapter("usb-a"));
  ASSERT_TRUE(station.Comes([this] { return !Stands(); }));
  station.Run(5 * kReopenSeconds);
  EXPECT_FALSE(Stands());
  EXPECT_EQ(other.Count("GOT"), 0);
  EXPECT_EQ(other.Count("AIR"), 0);
}

}  // namespace
}  // namespace zepril
