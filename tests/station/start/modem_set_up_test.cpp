// What each serial modem is told at START, also one that was left in converse.
#include "station/start/modem_set_up.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/station/start/start_panel_world.h"

namespace zepril {
namespace {

using ModemSetUpTest = StartPanelWorld;

TEST_F(ModemSetUpTest, ThePk232IsSetUpFromTheFile) {
  const auto panel = PanelOf(
      "MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\nHBAUD=1200\r\nTXID=10\r\nTXTO=ZEPR\r\n"
      "TXPA=WIDE1-1\r\nDIGI=1\r\n");
  panel->Controls.Command1.Click();
  const Lines sent = Sent();
  ASSERT_EQ(sent.size(), 63U);
  const Lines parameters(sent.begin() + 44, sent.end());
  EXPECT_EQ(parameters,
            (Lines{"ECHO OFF\r", "ACRDISP 0\r", "ALFDISP ON\r", "CONOK OFF\r", "PASSALL OFF\r",
                   "PA\r", "HB 1200\r", "VHF ON\r", "8B ON\r", "AW 8\r", "MFILTER $0\r",
                   "MONITOR 5\r", "MFROM ALL\r", "MYCALL QX7KB-10\r", "UNPROTO ZEPR VIA WIDE1-1\r",
                   "DIGIPEAT ON\r", "DFROM ALL\r", "MYALIAS WIDE1-1\r", "\r"}));
  EXPECT_NEAR(waited, 30.2, 1e-6);
  EXPECT_EQ(CountOf("open 2 1200"), 4);
  EXPECT_EQ(CountOf("open 2 9600"), 1);
  EXPECT_EQ(modem.Notes.back(), "close");
  EXPECT_EQ(starts, 1);
}

TEST_F(ModemSetUpTest, TheScsTncIsSetUpFromTheFile) {
  const auto panel = PanelOf(
      "MODEM=5\r\nSCOMP=6\r\nSBAUD=57600\r\nHBAUD=300R\r\nXBAUD=300\r\nTXID=10\r\n"
      "TXTO=APZEP\r\nTXPA=WIDE1-1,WIDE2-1\r\nTXAF=450\r\nTXAFC=1\r\nDIGI=1\r\n");
  panel->Controls.Command1.Click();
  Lines commands;
  for (const std::string& text : Sent()) {
    ASSERT_TRUE(text.starts_with('\x1B') && text.ends_with('\r')) << text;
    commands.push_back(text.substr(1, text.size() - 2));
  }
  EXPECT_EQ(commands, (Lines{"%R",
                             "E0",
                             "Z1",
                             "A1",
                             "S0",
                             "Y0",
                             "CAPZEP WIDE1-1,WIDE2-1",
                             "IQX7KB-10",
                             "%AMQX7KB-10",
                             "K0",
                             "MU",
                             "P255",
                             "T25",
                             "U0",
                             "W0",
                             "X1",
                             "%A0",
                             "%BR300",
                             "%X 450",
                             "%F 2000",
                             "%T 1",
                             "%AGH",
                             "R1",
                             "%AD3",
                             "%AU0"}));
  EXPECT_EQ(modem.Notes.front(), "open 6 57600");
  EXPECT_EQ(modem.Notes.back(), "close");
  EXPECT_NEAR(waited, 1.0 + 0.5 + 24 * 0.1 + 1.0, 1e-6);
}

TEST_F(ModemSetUpTest, TheScsPtcIsSetUpFromTheFile) {
  const auto panel = PanelOf("MODEM=6\r\nSCOMP=6\r\nTXPA=WIDE1-1,WIDE2-1\r\nHBAUD=9600\r\n");
  panel->Controls.Command1.Click();
  const Lines sent = Sent();
  ASSERT_EQ(sent.size(), 24U);
  EXPECT_EQ(sent[1], "TERM 0\r\n");
  EXPECT_EQ(sent[9], "\x1BSETCHN  2\r\n");
  EXPECT_EQ(sent[16], "\x1BUNPROTO ZEPR WIDE1-1 WIDE2-1\r\n");
  EXPECT_EQ(sent[18],
            "\x1B"
            "B 9600\r\n");
  EXPECT_EQ(modem.Notes.front(), "open 6 38400");
  EXPECT_EQ(modem.Notes.back(), "close");
}

TEST_F(ModemSetUpTest, OfAPortThatIsNotThereOnlyTheWaitsRemain) {
  modem.Absent = true;
  const auto panel = PanelOf("MODEM=1\r\nCOM=9\r\n");
  std::string marked;
  OnWait = [&] { marked = panel->Controls.PortFault.Caption; };
  panel->Controls.Command1.Click();
  EXPECT_TRUE(Sent().empty());
  EXPECT_NEAR(waited, 30.2, 1e-6);
  EXPECT_EQ(marked, "no such port");
  EXPECT_EQ(starts, 1);
}

class LeftModemTest : public StartPanelWorld {
 protected:
  // What is done with the port at START when `left` stands in the file.
  Lines NotesOfStart(const std::string& settings, const std::string& left) {
    const auto panel = PanelOf(settings);
    if (!left.empty()) files.Write("C:\\Z\\MODEM.RUN", left);
    modem.Notes.clear();
    panel->Controls.Command1.Click();
    set_up = panel->ModemIsSetUp();
    return modem.Notes;
  }
  std::string Left() { return files.ReadAll("C:\\Z\\MODEM.RUN", 1 << 16).value_or("(none)"); }
  bool set_up = false;
};

TEST_F(LeftModemTest, IsLedOutOfConverseAtItsSpeedAndThenToldTheSame) {
  struct Case {
    const char* Settings;
    const char* Run;
    Lines WayOut;
  };
  for (const Case& one :
       {Case{"MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "1 9600 usb-2\r\n", {"open 2 9600", "\x03"}},
        Case{
            "MODEM=5\r\nSCOMP=3\r\nSBAUD=38400\r\n", "5 19200 usb-3\r\n", {"open 3 19200", "\x18"}},
        Case{"MODEM=6\r\nSCOMP=3\r\nSBAUD=38400\r\n",
             "6 38400 usb-3\r\n",
             {"open 3 38400", "\x1BQ\r"}}}) {
    const Lines clean = NotesOfStart(one.Settings, "");
    ASSERT_FALSE(clean.empty());
    Lines expected = one.WayOut;
    expected.emplace_back("close");
    expected.insert(expected.end(), clean.begin(), clean.end());
    EXPECT_EQ(NotesOfStart(one.Settings, one.Run), expected);
    EXPECT_TRUE(set_up);
    EXPECT_EQ(Left(), "(none)");
  }
}

TEST_F(LeftModemTest, EachStartChoosesItsDeviceAnew) {
  NotesOfStart("MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "");
  EXPECT_EQ(modem.Forgotten, 1);
}

TEST_F(LeftModemTest, AnotherInterfaceOrDeviceIsToldNothingElse) {
  const std::string settings = "MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n";
  const Lines clean = NotesOfStart(settings, "");
  for (const char* other : {"6 9600 usb-2\r\n", "1 9600 usb-3\r\n", "rubbish\r\n"}) {
    EXPECT_EQ(NotesOfStart(settings, other), clean);
    EXPECT_EQ(Left(), other);
  }
}

TEST_F(LeftModemTest, OneThatIsAwayIsStillRemembered) {
  modem.Absent = true;
  NotesOfStart("MODEM=1\r\nCOM=2\r\nTBAUD=1200\r\n", "1 9600 usb-2\r\n");
  EXPECT_FALSE(set_up);
  EXPECT_EQ(Left(), "1 9600 usb-2\r\n");
}

}  // namespace
}  // namespace zepril
