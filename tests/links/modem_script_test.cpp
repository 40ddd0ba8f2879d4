// A conversation with a modem carried out: its times, its end, lines that misbehave.
#include "links/modem_script.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/fake_serial.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

class RunModemScriptTest : public ::testing::Test {
 protected:
  VirtualClock clock;
  FakeSerial port;
};

TEST_F(RunModemScriptTest, TheBytesGoOutAtTheirTimes) {
  std::vector<std::pair<double, std::string>> seen;
  std::size_t told = 0;
  clock.OnWait = [&](double, bool) {
    if (port.Written.size() == told) return;
    seen.emplace_back(clock.MonotonicSeconds(), port.Written.substr(told));
    told = port.Written.size();
  };
  ModemScript script;
  script.Open("2", 1200).Wait(1.0).Send("A", 0.2).SendPumping("B", 0.5).Send("C", 0.1).Close();
  RunModemScript(script, port, clock);
  ASSERT_EQ(seen.size(), 3U);
  EXPECT_NEAR(seen[0].first, 1.0, 1e-9);
  EXPECT_EQ(seen[0].second, "A");
  EXPECT_NEAR(seen[1].first, 1.2, 1e-9);
  EXPECT_NEAR(seen[2].first, 1.7, 1e-9);
  EXPECT_NEAR(clock.MonotonicSeconds(), 1.8, 1e-9);
  EXPECT_FALSE(port.IsOpen());
  EXPECT_EQ(port.Baud, 1200);
}

TEST_F(RunModemScriptTest, AnOpenPortIsNotOpenedAnew) {
  port.Open("2", 1200);
  RunModemScript(ModemScript().Open("3", 9600), port, clock);
  EXPECT_EQ(port.Device, "2");
  EXPECT_EQ(port.Baud, 1200);
}

TEST_F(RunModemScriptTest, ReadingAwayIsOneRead) {
  port.Open("2", 1200);
  port.Reads = {"a", "b"};
  RunModemScript(ModemScript().ReadAway(), port, clock);
  EXPECT_EQ(port.Reads, (std::vector<std::string>{"b"}));
}

TEST_F(RunModemScriptTest, AnAbsentModemCostsOnlyTheTimeOfTheWaits) {
  port.Absent = true;
  ModemScript script;
  script.Open("2", 1200).Send("A", 0.5).AwaitSent().Drain().AwaitPrompt().Close();
  RunModemScript(script, port, clock);
  EXPECT_EQ(port.Written, "");
  EXPECT_NEAR(clock.MonotonicSeconds(), 1.5, 1e-9);
}

TEST_F(RunModemScriptTest, ItReadsAsLongAsTheModemPrompts) {
  port.Open("2", 1200);
  port.Reads = {"cmd:", "x cmd: y", "", "left"};
  RunModemScript(ModemScript().AwaitPrompt(), port, clock);
  EXPECT_NEAR(clock.MonotonicSeconds(), 3.0, 1e-9);
  EXPECT_EQ(port.Reads, (std::vector<std::string>{"left"}));
  // Half a prompt is none.
  port.Reads = {"cmd", "left"};
  RunModemScript(ModemScript().AwaitPrompt(), port, clock);
  EXPECT_EQ(port.Reads, (std::vector<std::string>{"left"}));
}

TEST_F(RunModemScriptTest, AModemThatPromptsForEverIsLeftAlone) {
  port.Open("2", 1200);
  port.Reads.assign(10000, "cmd:");
  RunModemScript(ModemScript().AwaitPrompt(), port, clock);
  EXPECT_NEAR(clock.MonotonicSeconds(), kMostPrompts, 1e-9);
}

TEST_F(RunModemScriptTest, DrainingReadsEverythingAndEndsWithGarbageWithoutEnd) {
  port.Open("2", 1200);
  port.Reads = {"a", "b", "c"};
  RunModemScript(ModemScript().Drain(), port, clock);
  EXPECT_TRUE(port.Reads.empty());
  port.Reads.assign(5000, "garbage");
  RunModemScript(ModemScript().Drain(), port, clock);
  EXPECT_EQ(port.Reads.size(), 5000U - kMostReads);
}

TEST_F(RunModemScriptTest, NothingIsReadAwayBeforeAllIsSent) {
  port.Open("2", 1200);
  port.Waiting = 7;
  clock.Schedule(0.5, [this] {
    port.Waiting = 0;
    port.Reads = {"the answer to it"};
  });
  RunModemScript(ModemScript().Drain(), port, clock);
  EXPECT_NEAR(clock.MonotonicSeconds(), 0.5, 0.02);
  EXPECT_TRUE(port.Reads.empty());
}

TEST_F(RunModemScriptTest, AModemThatTakesNothingIsWaitedForTenSeconds) {
  port.Open("2", 1200);
  port.Waiting = 7;
  RunModemScript(ModemScript().AwaitSent(), port, clock);
  EXPECT_NEAR(clock.MonotonicSeconds(), kLongestDrainSeconds, 0.02);
  // As soon as it has taken everything the script goes on.
  const double before = clock.MonotonicSeconds();
  clock.Schedule(0.5, [this] { port.Waiting = 0; });
  RunModemScript(ModemScript().AwaitSent(), port, clock);
  EXPECT_NEAR(clock.MonotonicSeconds() - before, 0.5, 0.02);
}

TEST_F(RunModemScriptTest, ProgressGoesFromNothingToAll) {
  std::vector<double> shares;
  ModemScript script;
  script.Wait(1.0).Wait(3.0);
  RunModemScript(script, port, clock, [&](double share) { shares.push_back(share); });
  EXPECT_EQ(shares, (std::vector<double>{0.0, 0.25, 1.0}));
}

}  // namespace
}  // namespace zepril
