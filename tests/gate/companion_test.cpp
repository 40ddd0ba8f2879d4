// When the digipeater program is started, watched and asked to close.
#include "gate/companion.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/doubles/memory_files.h"
#include "tests/doubles/played_programs.h"
#include "tests/doubles/virtual_clock.h"

namespace zepril {
namespace {

using Paths = std::vector<std::string>;

class CompanionTest : public ::testing::Test {
 protected:
  CompanionTest() {
    identity.ProgramFolder = "C:\\ZEPRIL";
    radio.RadioMode = static_cast<int>(RadioMode::AgwLocal);
    clock.OnWait = [this](double seconds, bool pumping) { waits.emplace_back(seconds, pumping); };
  }
  std::string Usual() const { return files.NativePath("C:\\ZEPRIL\\AGWUIDIGI.EXE"); }

  IdentityState identity;
  RadioState radio;
  InternetState internet;
  MemoryFiles files;
  VirtualClock clock;
  PlayedPrograms programs;
  std::vector<std::pair<double, bool>> waits;
  Companion companion{{identity, radio, internet}, {programs, files, clock}};
};

TEST_F(CompanionTest, TheStartStartsItAndGivesItFourSeconds) {
  companion.Begin();
  EXPECT_TRUE(programs.Started.empty());
  radio.DigiOn = Digipeater::On;
  companion.Begin();
  EXPECT_EQ(programs.Started, Paths{Usual()});
  EXPECT_EQ(waits, (std::vector<std::pair<double, bool>>{{4.0, true}}));
}

TEST_F(CompanionTest, OneThatIsNotInstalledIsNotWaitedFor) {
  radio.DigiOn = Digipeater::On;
  programs.IsInstalled = false;
  companion.Begin();
  EXPECT_TRUE(waits.empty());
  companion.Watch();
  EXPECT_EQ(radio.DigiOn, Digipeater::Off);
}

TEST_F(CompanionTest, OneThatRunsIsNotStartedOnceMore) {
  radio.DigiOn = Digipeater::On;
  programs.Process = PlayedPrograms::kProcess;
  companion.Begin();
  companion.Follow();
  EXPECT_TRUE(programs.Started.empty());
}

TEST_F(CompanionTest, FollowsTheOptionOfTxSetup) {
  radio.DigiOn = Digipeater::On;
  companion.Follow();
  EXPECT_EQ(programs.Started, Paths{Usual()});
  EXPECT_TRUE(waits.empty());
  radio.DigiOn = Digipeater::Off;
  companion.Follow();
  EXPECT_EQ(programs.Closed, Paths{Usual()});
  EXPECT_EQ(waits, (std::vector<std::pair<double, bool>>{{0.5, false}}));
  // None runs any more: nothing to close, nothing to wait for.
  companion.Follow();
  EXPECT_EQ(programs.Closed.size(), 1U);
  EXPECT_EQ(waits.size(), 1U);
}

TEST_F(CompanionTest, ATickTakesTheOptionFromTheProgram) {
  programs.Process = PlayedPrograms::kProcess;
  companion.Watch();
  EXPECT_EQ(radio.DigiOn, Digipeater::On);
  EXPECT_EQ(internet.UiDigiWindow, PlayedPrograms::kProcess);
  programs.Process = 0;
  companion.Watch();
  EXPECT_EQ(radio.DigiOn, Digipeater::Off);
  EXPECT_EQ(internet.UiDigiWindow, 0);
}

TEST_F(CompanionTest, TheEndClosesItLikeSwitchingOff) {
  companion.End();
  EXPECT_TRUE(programs.Closed.empty());
  programs.Process = PlayedPrograms::kProcess;
  companion.End();
  EXPECT_EQ(programs.Closed, Paths{Usual()});
  EXPECT_EQ(waits, (std::vector<std::pair<double, bool>>{{0.5, false}}));
}

TEST_F(CompanionTest, TheOperatorMayNameAnotherProgram) {
  companion.Program = "C:\\DIGI\\mydigi";
  radio.DigiOn = Digipeater::On;
  companion.Begin();
  EXPECT_EQ(programs.Started, Paths{files.NativePath("C:\\DIGI\\mydigi")});
}

TEST_F(CompanionTest, WithOtherInterfacesItIsLeftAlone) {
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::AgwRemote, RadioMode::None,
                               RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    radio.RadioMode = static_cast<int>(mode);
    radio.DigiOn = Digipeater::On;
    companion.Begin();
    companion.Follow();
    companion.Watch();
    EXPECT_EQ(radio.DigiOn, Digipeater::On);
    radio.DigiOn = Digipeater::Off;
    programs.Process = PlayedPrograms::kProcess;
    companion.Follow();
    companion.Watch();
    companion.End();
    EXPECT_EQ(radio.DigiOn, Digipeater::Off);
    programs.Process = 0;
  }
  EXPECT_TRUE(programs.Started.empty());
  EXPECT_TRUE(programs.Closed.empty());
}

}  // namespace
}  // namespace zepril
