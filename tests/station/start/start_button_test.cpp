// START: what it needs, in which order it works and what it shows meanwhile.
#include "station/start/start_button.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using StartButtonTest = StartPanelWorld;

TEST_F(StartButtonTest, StartNeedsACallOfThreeCharacters) {
  const auto panel = MakePanel();
  panel->Controls.Text8.Text = " QX ";
  dialogs.Expect("ZEP RIL  START", "SET USER CALL !");
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 0);
  EXPECT_FALSE(panel->Controls.Fault.Caption.empty());
  EXPECT_TRUE(panel->Controls.Text8.FocusWanted);
  panel->Controls.Text8.Text = "qx7kb";
  panel->Controls.Text8.Change();
  EXPECT_TRUE(panel->Controls.Fault.Caption.empty());
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
  EXPECT_TRUE(Has("USER=QX7KB"));
  EXPECT_EQ(panel->Controls.Command1.Caption, "...");
}

TEST_F(StartButtonTest, ASecondPressIsIgnored) {
  const auto panel = MakePanel();
  panel->Controls.Text8.Text = "QX7KB";
  panel->Controls.Command1.Click();
  panel->Controls.Command1.Click();
  EXPECT_EQ(starts, 1);
}

TEST_F(StartButtonTest, NothingIsSentWithoutASerialModem) {
  for (const char* mode : {"0", "3", "4"}) {
    const auto panel = PanelOf(std::string("MODEM=") + mode + "\r\n");
    panel->Controls.Command1.Click();
    EXPECT_EQ(panel->Controls.Command1.Caption, "...");
    EXPECT_FALSE(panel->Controls.SetupBar.Visible);
  }
  EXPECT_TRUE(modem.Notes.empty());
  EXPECT_EQ(waited, 0.0);
  EXPECT_EQ(starts, 3);
}

TEST_F(StartButtonTest, TheSetUpRunsBehindTheStoredFile) {
  const auto panel = PanelOf("MODEM=5\r\nSCOMP=6\r\n");
  Type(*panel, "8");
  bool stored = false;
  OnWait = [&] { stored = Has("SCOMP=8"); };
  panel->Controls.Command1.Click();
  EXPECT_TRUE(stored);
  EXPECT_EQ(modem.Notes.front(), "open 8 38400");
}

TEST_F(StartButtonTest, VectorsOfOutingsAreTakenOverWithEveryInterfaceBehindTheSetUp) {
  const std::string vectors = "C:\\Z\\U33\\VEC\\XX20240514.VEC";
  const std::string track = "C:\\Z\\U33\\TRK\\20240514.TRK";
  const std::string point = "\xFE 5378.123  412.345 20240514 1230\r\n";
  for (const char* mode : {"0", "1", "3", "4", "5", "6"}) {
    const auto panel = PanelOf(std::string("MODEM=") + mode + "\r\n");
    files.MakeFolder("C:\\Z\\U33\\VEC");
    files.Write(vectors, point);
    files.Remove(track);
    OnWait = [&] { EXPECT_TRUE(files.Exists(vectors)); };
    panel->Controls.Command1.Click();
    EXPECT_EQ(files.ReadAll(track, 100), point) << mode;
    EXPECT_FALSE(files.Exists(vectors)) << mode;
  }
}

TEST_F(StartButtonTest, AnEndThatIsAskedForBreaksTheTakingOverOff) {
  const std::string vectors = "C:\\Z\\U33\\VEC\\XX20240514.VEC";
  const auto panel = PanelOf("MODEM=4\r\n");
  files.MakeFolder("C:\\Z\\U33\\VEC");
  files.Write(vectors, "\xFE 5378.123  412.345 20240514 1230\r\n");
  clock.EndIsAsked = true;
  panel->Controls.Command1.Click();
  EXPECT_TRUE(files.Exists(vectors));
  EXPECT_FALSE(files.Exists("C:\\Z\\U33\\TRK\\20240514.TRK"));
}

TEST_F(StartButtonTest, TheWindowTellsHowFarTheSetUpIs) {
  const struct {
    const char* Mode;
    const char* Caption;
  } rows[] = {{"1", "40 s ..."}, {"5", "12 s ..."}, {"6", "25 s ..."}};
  for (const auto& row : rows) {
    const auto panel =
        PanelOf(std::string("MODEM=") + row.Mode + "\r\nCOM=3\r\nTBAUD=38400\r\nSCOMP=3\r\n");
    const StartPanelControls& c = panel->Controls;
    std::vector<int> steps;
    Lines texts;
    OnWait = [&] {
      EXPECT_EQ(c.Command1.Caption, row.Caption);
      EXPECT_TRUE(panel->Starting());
      EXPECT_TRUE(c.SetupBar.Visible && c.SetupText.Visible);
      EXPECT_FALSE(c.Command1.Enabled || c.Text1.Enabled || c.Text3.Enabled || c.Text4.Enabled ||
                   c.Text5.Enabled || c.Text8.Enabled || c.Option2.Enabled || c.Text15.Enabled ||
                   c.Text16.Enabled || c.Check8.Enabled);
      steps.push_back(c.SetupBar.FilledPx);
      texts.push_back(c.SetupText.Caption);
      panel->Controls.Command1.Click();  // ignored
    };
    panel->Controls.Command1.Click();
    OnWait = nullptr;
    ASSERT_FALSE(steps.empty());
    EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
    EXPECT_EQ(steps.front(), 0);
    EXPECT_GT(steps.back(), 800);
    EXPECT_LE(steps.back(), c.SetupBar.FullWidthPx);
    EXPECT_TRUE(texts.front().ends_with(" s left   modem on port 3, 38400 Bd")) << texts.front();
    EXPECT_TRUE(texts.back().starts_with("1 s left ")) << texts.back();
    EXPECT_TRUE(panel->Starting());
  }
  EXPECT_EQ(starts, 3);
}

// What the operator asked for in between, such as the end, is heard before the main window opens.
TEST_F(StartButtonTest, TheOperatorIsHeardBeforeInAndBehindTheSetUp) {
  const auto panel = PanelOf("MODEM=5\r\n");
  std::vector<std::size_t> notes;
  clock.Schedule(0.0, [&] {
    notes.push_back(modem.Notes.size());
    // Nothing can be changed any more.
    EXPECT_FALSE(panel->Controls.Option2.Enabled || panel->Controls.Text3.Enabled);
  });
  // Twelve seconds of set-up, in which a close is heard within half a second.
  double heard_at = 0.0;
  double longest_deaf = 0.0;
  int hand_overs = 0;
  OnWait = [&] {
    const double now = clock.MonotonicSeconds();
    if (clock.HandOvers > hand_overs) heard_at = now;
    hand_overs = clock.HandOvers;
    longest_deaf = std::max(longest_deaf, now - heard_at);
  };
  int before_the_end = 0;
  panel->Started = nullptr;
  panel->Started = [&] { before_the_end = clock.HandOvers - hand_overs; };
  panel->Controls.Command1.Click();
  EXPECT_EQ(notes, std::vector<std::size_t>{0});
  EXPECT_LE(longest_deaf, 0.5);
  EXPECT_GE(hand_overs, 20);
  EXPECT_EQ(before_the_end, 1);
}

}  // namespace
}  // namespace zepril
