// What the modems are sent, to the byte and the tenth of a second.
#include "links/setup_sequences.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "links/modem_lines.h"
#include "platform/code_page.h"
#include "tests/links/open_modem_script.h"

namespace zepril {
namespace {

// "<1B>%R<0D>": control bytes and those above 126 as hexadecimal numbers.
std::string Readable(const std::string& bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    if (code >= 32 && code < 127) {
      text += byte;
    } else {
      text += {'<', kDigits[code / 16], kDigits[code % 16], '>'};
    }
  }
  return text;
}

std::string Seconds(double seconds) {
  std::ostringstream text;
  text << seconds;
  return text.str();
}

// A step a line.
std::vector<std::string> Transcript(const ModemScript& script) {
  std::vector<std::string> lines;
  for (const ModemStep& step : script.Steps()) {
    switch (step.Act) {
      case ModemAct::Open:
        lines.push_back("open " + step.Text + " " + std::to_string(step.Baud));
        break;
      case ModemAct::Close:
        lines.emplace_back("close");
        break;
      case ModemAct::Send:
        lines.push_back("send " + Readable(step.Text));
        break;
      case ModemAct::Wait:
        lines.push_back("wait " + Seconds(step.Seconds));
        break;
      case ModemAct::WaitPumping:
        lines.push_back("pump " + Seconds(step.Seconds));
        break;
      case ModemAct::ReadAway:
        lines.emplace_back("read");
        break;
      case ModemAct::AwaitSent:
        lines.emplace_back("sent");
        break;
      case ModemAct::Drain:
        lines.emplace_back("drain");
        break;
      case ModemAct::AwaitPrompt:
        lines.emplace_back("prompt");
        break;
    }
  }
  return lines;
}

using Lines = std::vector<std::string>;

void Append(Lines& lines, const Lines& more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

// "send X" and "wait S" of each.
Lines EachWith(const Lines& texts, const std::string& before, const std::string& after,
               const std::string& wait) {
  Lines lines;
  for (const std::string& text : texts)
    Append(lines, {"send " + before + text + after, "wait " + wait});
  return lines;
}

Lines Sent(const ModemScript& script) {
  Lines lines;
  for (const ModemStep& step : script.Steps()) {
    if (step.Act == ModemAct::Send) lines.push_back(Readable(step.Text));
  }
  return lines;
}

bool Holds(const Lines& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

class SetupSequencesTest : public ::testing::Test {
 protected:
  SetupSequencesTest() {
    identity.MyCall = "QX7KB";
    identity.MySsid = "10";
    identity.MyCallFull = "QX7KB-10";
    radio.TncPort = 2;
    radio.ScsPort = 3;
    radio.BaudMode = "300R";
    transmission.TxDestination = "ZEPR";
    transmission.TxPath = "WIDE1-1";
  }
  ModemSections Sections(RadioMode mode) {
    radio.RadioMode = static_cast<int>(mode);
    return {identity, radio, transmission};
  }

  IdentityState identity;
  RadioState radio;
  TransmissionState transmission;
};

// ---- PK-232 ---------------------------------------------------------------------------------

TEST_F(SetupSequencesTest, ThePk232IsSetUpStepByStep) {
  Lines expected{"wait 5", "open 2 1200", "wait 1"};
  for (int stars = 0; stars < 10; ++stars)
    Append(expected, {"send *", "wait 0.5"});
  Append(expected, {"wait 1", "sent", "close"});
  for (const char* baud : {"9600", "4800", "2400", "1200"}) {
    Append(expected, {std::string("open 2 ") + baud,
                      "send <C0><FF><C0>",
                      "wait 0.2",
                      "send <0D>",
                      "wait 0.2",
                      "send KISS OFF",
                      "wait 0.2",
                      "send <0D>",
                      "wait 0.2",
                      "send <01>OHON<17>",
                      "wait 0.2",
                      "send <0D>",
                      "wait 0.2",
                      "send TB 1200<0D>",
                      "wait 0.2",
                      "send RESTART<0D>",
                      "wait 0.2",
                      "wait 1",
                      "sent",
                      "close"});
  }
  Append(expected, {"open 2 1200", "wait 1", "send PA<0D>", "wait 0.2", "send <0D>", "wait 1",
                    "sent", "close", "open 2 1200"});
  Append(expected, EachWith({"ECHO OFF", "ACRDISP 0", "ALFDISP ON", "CONOK OFF", "PASSALL OFF",
                             "PA", "HB 300", "VHF OFF", "8B ON", "AW 8", "MFILTER $0", "MONITOR 5",
                             "MFROM ALL", "MYCALL QX7KB-10", "UNPROTO ZEPR VIA WIDE1-1",
                             "DIGIPEAT OFF", "DFROM NONE", "MYALIAS NONE"},
                            "", "<0D>", "0.2"));
  Append(expected, {"send <0D>", "wait 1", "drain", "prompt", "close"});
  EXPECT_EQ(Transcript(TncSetupScript(Sections(RadioMode::Pk232))), expected);
}

TEST_F(SetupSequencesTest, ThePk232sSetUpHas63WritesAndLasts30Seconds) {
  const ModemScript script = TncSetupScript(Sections(RadioMode::Pk232));
  EXPECT_EQ(Sent(script).size(), 63U);
  EXPECT_NEAR(script.Seconds(), 30.2, 1e-9);
}

TEST_F(SetupSequencesTest, ThePk232FollowsSpeedPathAndDigipeater) {
  radio.BaudMode = "1200";
  radio.TncBaud = "9600";
  radio.DigiOn = Digipeater::On;
  transmission.TxPath = "";
  const Lines sent = Sent(TncSetupScript(Sections(RadioMode::Pk232)));
  EXPECT_EQ(std::count(sent.begin(), sent.end(), "TB 9600<0D>"), 4);
  for (const char* line : {"HB 1200<0D>", "VHF ON<0D>", "UNPROTO ZEPR<0D>", "DIGIPEAT ON<0D>",
                           "DFROM ALL<0D>", "MYALIAS WIDE1-1<0D>"}) {
    EXPECT_TRUE(Holds(sent, line)) << line;
  }
  EXPECT_EQ(sent.size(), 63U);
}

TEST_F(SetupSequencesTest, ThePk232IsOpenedForTheRun) {
  Lines expected{"close", "open 2 1200", "send ECHO ON<0D>", "wait 0.2"};
  for (int reads = 0; reads < 11; ++reads)
    Append(expected, {"read", "wait 0.1"});
  Append(expected, {"send K<0D>", "wait 0.2"});
  EXPECT_EQ(Transcript(OpenModemScript(Sections(RadioMode::Pk232))), expected);
}

TEST_F(SetupSequencesTest, ThePk232TakesAConfirmedTxSetup) {
  EXPECT_EQ(
      Transcript(ApplyTxSetupScript(Sections(RadioMode::Pk232))),
      (Lines{"send <03>", "pump 0.5", "send MYCALL QX7KB-10<0D>", "pump 0.2",
             "send UNPROTO ZEPR VIA WIDE1-1<0D>", "pump 0.2", "send DIGIPEAT OFF<0D>", "wait 0.2",
             "send DFROM NONE<0D>", "wait 0.2", "send MYALIAS NONE<0D>", "wait 0.2", "send <0D>",
             "pump 1", "sent", "read", "prompt", "send K<0D>", "pump 0.2"}));
  transmission.TxPath = "  ";
  EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::Pk232))), "UNPROTO ZEPR<0D>"));
}

// ---- SCS TNC --------------------------------------------------------------------------------

TEST_F(SetupSequencesTest, TheScsTncIsSetUpStepByStep) {
  transmission.TxPath = "WIDE1-1,WIDE2-1";
  Lines expected{"open 3 38400", "wait 1", "send <1B>%R<0D>", "wait 0.5"};
  Append(expected,
         EachWith({"E0",        "Z1",          "A1",       "S0",  "Y0",     "CZEPR WIDE1-1,WIDE2-1",
                   "IQX7KB-10", "%AMQX7KB-10", "K0",       "MU",  "P255",   "T25",
                   "U0",        "W0",          "X1",       "%A0", "%BR300", "%X 300",
                   "%F 2000",   "%T 0",        "%AG NONE", "R0",  "%AD0",   "%AU0"},
                  "<1B>", "<0D>", "0.1"));
  Append(expected, {"wait 1", "drain", "close"});
  const ModemScript script = TncSetupScript(Sections(RadioMode::ScsTnc));
  EXPECT_EQ(Transcript(script), expected);
  EXPECT_EQ(Sent(script).size(), 25U);
}

TEST_F(SetupSequencesTest, TheScsTncFollowsItsOptions) {
  radio.DigiOn = Digipeater::On;
  radio.HfDualOn = 1;
  radio.TxAfc = 2;
  transmission.TxPath = "";
  const Lines sent = Sent(TncSetupScript(Sections(RadioMode::ScsTnc)));
  // Kept: the blank behind the destination stays.
  for (const char* line :
       {"<1B>CZEPR <0D>", "<1B>R1<0D>", "<1B>%AD3<0D>", "<1B>%AU1<0D>", "<1B>%T 2<0D>"}) {
    EXPECT_TRUE(Holds(sent, line)) << line;
  }
}

TEST_F(SetupSequencesTest, OnlyTheCrossedPairsOfTheScsTncTakeTurns) {
  const struct {
    const char* Speed;
    const char* Second;
    const char* Line;
  } rows[] = {{"300R", "300", "<1B>%AGH<0D>"},      {"300", "R300", "<1B>%AGH<0D>"},
              {"300", "300", "<1B>%AG 300<0D>"},    {"300R", "R300", "<1B>%AG R300<0D>"},
              {"1200", "9600", "<1B>%AG 9600<0D>"}, {"1200", "NONE", "<1B>%AG NONE<0D>"}};
  for (const auto& row : rows) {
    radio.BaudMode = row.Speed;
    radio.CrossMode = row.Second;
    EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::ScsTnc))), row.Line)) << row.Line;
    EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsTnc))), row.Line)) << row.Line;
  }
}

TEST_F(SetupSequencesTest, EachSpeedHasItsCommand) {
  const struct {
    const char* Speed;
    const char* Tnc;
    const char* Ptc;
  } rows[] = {{"300R", "%BR300", "B R300"},
              {"300", "%B300", "B 300"},
              {"1200", "%B1200", "B 1200"},
              {"9600", "%B9600", "B 9600"},
              {"19200", "%B19200", "B 19200"}};
  for (const auto& row : rows) {
    radio.BaudMode = row.Speed;
    EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::ScsTnc))),
                      std::string("<1B>") + row.Tnc + "<0D>"));
    EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::ScsPtc))),
                      std::string("<1B>") + row.Ptc + "<0D><0A>"));
    EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsPtc))),
                      std::string("<1B>") + row.Ptc + "<0D>"));
  }
}

TEST_F(SetupSequencesTest, TheScsTncIsOpenedForTheRunInSilence) {
  Lines expected{"close", "open 3 38400"};
  for (int reads = 0; reads < 11; ++reads)
    Append(expected, {"read", "wait 0.1"});
  EXPECT_EQ(Transcript(OpenModemScript(Sections(RadioMode::ScsTnc))), expected);
}

TEST_F(SetupSequencesTest, TheScsTncTakesAConfirmedTxSetupInAnOrderOfItsOwn) {
  radio.BaudMode = "300";
  radio.CrossMode = "R300";
  radio.DigiOn = Digipeater::On;
  radio.HfDualOn = 1;
  Lines expected = EachWith({"%B300", "IQX7KB-10", "%AMQX7KB-10", "CZEPR WIDE1-1", "%X 300", "%AGH",
                             "R1", "%AD3", "%AU1", "%F 2000"},
                            "<1B>", "<0D>", "0.1");
  Append(expected, {"wait 1", "drain"});
  EXPECT_EQ(Transcript(ApplyTxSetupScript(Sections(RadioMode::ScsTnc))), expected);
}

// ---- SCS PTC --------------------------------------------------------------------------------

TEST_F(SetupSequencesTest, TheScsPtcIsSetUpStepByStep) {
  identity.MyCall = " QX7KB ";
  transmission.TxPath = "WIDE1-1,WIDE2-1";
  Lines expected{"wait 5", "open 3 38400", "wait 1", "send <0D><0A>", "wait 3"};
  Append(expected, EachWith({"TERM 0", "MYCALL QX7KB-10", "PAC"}, "", "<0D><0A>", "0.3"));
  Append(expected, EachWith({"MYCALL QX7KB-10",
                             "APRS 0",
                             "PORT 1",
                             "PRBOX 0",
                             "USERS 0",
                             "SETCHN  2",
                             "MYCALL WIDE1-1",
                             "SETCHN  3",
                             "MYCALL RELAY",
                             "SETCHN  4",
                             "MYCALL ECHO",
                             "SETCHN 1",
                             "UNPROTO ZEPR WIDE1-1 WIDE2-1",
                             "MONITOR 1",
                             "B R300",
                             "TXL A 300",
                             "TXL F 300",
                             "TXDELAY 1:300",
                             "DIGI OFF",
                             "MFI 128"},
                            "<1B>", "<0D><0A>", "0.3"));
  Append(expected, {"wait 0.5", "drain", "close"});
  EXPECT_EQ(Transcript(TncSetupScript(Sections(RadioMode::ScsPtc))), expected);
}

TEST_F(SetupSequencesTest, TheScsPtcIsOpenedForTheRun) {
  Lines expected{"close", "open 3 38400"};
  for (int reads = 0; reads < 11; ++reads)
    Append(expected, {"read", "wait 0.1"});
  Append(expected, {"send K<0D>", "wait 0.2"});
  EXPECT_EQ(Transcript(OpenModemScript(Sections(RadioMode::ScsPtc))), expected);
}

TEST_F(SetupSequencesTest, TheScsPtcTakesAConfirmedTxSetupWithPlainLineEnds) {
  radio.DigiOn = Digipeater::On;
  transmission.TxPath = "WIDE1-1,WIDE2-1";
  EXPECT_EQ(Transcript(ApplyTxSetupScript(Sections(RadioMode::ScsPtc))),
            (Lines{"send <1B>B R300<0D>", "wait 0.1", "send <1B>TXL A 300<0D>", "wait 0.5",
                   "send <1B>TXL F 300<0D>", "wait 0.1", "send <1B>DIGI ON<0D>", "wait 0.1",
                   "send <1B>UNPROTO ZEPR WIDE1-1 WIDE2-1<0D>", "wait 0.2", "wait 1", "drain"}));
}

// ---- All ------------------------------------------------------------------------------------

TEST_F(SetupSequencesTest, OtherModesAreSentNothing) {
  for (RadioMode mode : {RadioMode::AgwLocal, RadioMode::AgwRemote, RadioMode::None}) {
    EXPECT_TRUE(TncSetupScript(Sections(mode)).Steps().empty());
    EXPECT_TRUE(ApplyTxSetupScript(Sections(mode)).Steps().empty());
    EXPECT_EQ(Transcript(LeaveModemScript(radio)), (Lines{"pump 0.2"}));
  }
}

TEST_F(SetupSequencesTest, EachModemIsLeftInItsWay) {
  Sections(RadioMode::Pk232);
  EXPECT_EQ(Transcript(LeaveModemScript(radio)), (Lines{"send <03>", "pump 0.2", "pump 0.2"}));
  Sections(RadioMode::ScsTnc);
  EXPECT_EQ(Transcript(LeaveModemScript(radio)),
            (Lines{"send <1B>%ZL<0D>", "pump 0.2", "pump 0.2"}));
  Sections(RadioMode::ScsPtc);
  EXPECT_EQ(Transcript(LeaveModemScript(radio)),
            (Lines{"send <1B>Q<0D>", "wait 0.5", "send <1B>RESET<0D>", "wait 0.5", "pump 0.2"}));
}

TEST_F(SetupSequencesTest, AModemThatWasFoundAgainLeavesConverseInItsWay) {
  Sections(RadioMode::Pk232);
  EXPECT_EQ(Transcript(LeaveConverseScript(radio)), (Lines{"send <03>", "wait 0.5"}));
  Sections(RadioMode::ScsTnc);
  EXPECT_EQ(Transcript(LeaveConverseScript(radio)), (Lines{"send <18>", "wait 0.2"}));
  Sections(RadioMode::ScsPtc);
  EXPECT_EQ(Transcript(LeaveConverseScript(radio)), (Lines{"send <1B>Q<0D>", "wait 0.5"}));
}

TEST_F(SetupSequencesTest, TheSecondModeIsSwitchedWithATenthOfASecond) {
  Sections(RadioMode::ScsTnc);
  EXPECT_EQ(Transcript(SecondModeScript(radio, true)), (Lines{"send <1B>%AU1<0D>", "wait 0.1"}));
  EXPECT_EQ(Transcript(SecondModeScript(radio, false)), (Lines{"send <1B>%AU0<0D>", "wait 0.1"}));
}

TEST_F(SetupSequencesTest, ACallIsExtendedByAnySsidButOnlyOnce) {
  EXPECT_EQ(CallText("QX7KB", "10"), "QX7KB-10");
  EXPECT_EQ(CallText("QX7KB", "16"), "QX7KB-16");
  EXPECT_EQ(CallText("QX7KB-5", "10"), "QX7KB-5");
  EXPECT_EQ(CallText("QX7KB", ""), "QX7KB");
  identity.MyCall = "QX7KB-5";
  identity.MyCallFull = "QX7KB-5-10";
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::Pk232))), "MYCALL QX7KB-5<0D>"));
  EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::Pk232))), "MYCALL QX7KB-5<0D>"));
  EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsTnc))), "<1B>IQX7KB-5<0D>"));
  identity.MyCall = "QX7KB";
  identity.MySsid = "";
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::Pk232))), "MYCALL QX7KB<0D>"));
}

TEST_F(SetupSequencesTest, NoControlByteOfASettingReachesAModem) {
  const std::string odd = "A\x1B\x03\r\n\x18Z";
  identity.MyCall = identity.MyCallFull = odd;
  identity.MySsid = "\x1B";
  transmission.TxDestination = transmission.TxPath = odd;
  radio.BaudMode = "1200";
  radio.CrossMode = radio.TncBaud = radio.ScsBaud = odd;
  for (const RadioMode mode : {RadioMode::Pk232, RadioMode::ScsTnc, RadioMode::ScsPtc}) {
    const ModemSections sections = Sections(mode);
    for (const ModemScript& script : {TncSetupScript(sections), ApplyTxSetupScript(sections)}) {
      for (const ModemStep& step : script.Steps()) {
        if (step.Act != ModemAct::Send || step.Text.find('A') == std::string::npos) continue;
        std::string line = step.Text.substr(step.Text.starts_with('\x1B') ? 1 : 0);
        while (!line.empty() && (line.back() == '\r' || line.back() == '\n'))
          line.pop_back();
        EXPECT_TRUE(std::none_of(line.begin(), line.end(), IsControlCharacter))
            << Readable(step.Text);
      }
    }
  }
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::Pk232))), "TB A     Z<0D>"));
  EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsTnc))), "<1B>%AG A     Z<0D>"));
}

TEST_F(SetupSequencesTest, EmptyElementsOfThePathAreLeftOut) {
  transmission.TxPath = "A,B,";
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::Pk232))), "UNPROTO ZEPR VIA A,B<0D>"));
  EXPECT_TRUE(
      Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::Pk232))), "UNPROTO ZEPR VIA A,B<0D>"));
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::ScsTnc))), "<1B>CZEPR A,B<0D>"));
  EXPECT_TRUE(Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsTnc))), "<1B>CZEPR A,B<0D>"));
  EXPECT_TRUE(
      Holds(Sent(TncSetupScript(Sections(RadioMode::ScsPtc))), "<1B>UNPROTO ZEPR A B<0D><0A>"));
  EXPECT_TRUE(
      Holds(Sent(ApplyTxSetupScript(Sections(RadioMode::ScsPtc))), "<1B>UNPROTO ZEPR A B<0D>"));
  transmission.TxPath = ",,";
  EXPECT_TRUE(Holds(Sent(TncSetupScript(Sections(RadioMode::Pk232))), "UNPROTO ZEPR<0D>"));
}

}  // namespace
}  // namespace zepril
