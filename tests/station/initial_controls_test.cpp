// The main window's own texts, letter for letter.
#include "station/initial_controls.h"

#include <gtest/gtest.h>

#include <vector>

#include "core/controls/main_window_controls.h"
#include "core/texts/form1_texts.h"

namespace zepril {
namespace {

TEST(InitialControls, PanelsCarryTheirTexts) {
  MainWindowControls c;
  SetInitialControls(c);
  EXPECT_EQ(c.Qth.Frame2.Caption, "USER QTH SETUP: CENTER THE MAP TO YOUR QTH!");
  EXPECT_EQ(c.Qth.Command22.Caption, "CANCEL");
  EXPECT_EQ(c.Places.Label14.Caption, "DELETE POINT: CLEAR TEXT  /  CREATE POINT: TYPE TEXT");
  // The blank in front is part of it.
  EXPECT_EQ(c.Places.Command64.Caption, " POS->CENTER");
  EXPECT_EQ(c.Places.Command67.Caption, "OPEN LINK");
  EXPECT_EQ(c.Iono.Frame18.Caption, "Input of ionospherical data");
  EXPECT_EQ(c.ObjectSetup.Frame11.Caption, "OBJECT SETUP: CENTER THE MAP TO THE OBJECT!");
  EXPECT_EQ(c.ObjectSetup.Command31.Caption, "DELETE OBJECT");
  EXPECT_EQ(c.ObjectSetup.Command32.Caption, "CANCEL");
  for (const CheckBox& active : c.TxSetup.fr4ta)
    EXPECT_EQ(active.Caption, "ACTIVE");
  EXPECT_EQ(c.Terminal.Label47.Caption,
            "THIS TERMINAL WINDOW ALLOWS TO COMMUNICATE DIRECTLY WITH/VIA THE TNC. AS LONG AS IT "
            "IS HELD OPEN, ALL NORMAL PROGRAM FUNCTIONS ARE STOPPED.");
}

TEST(InitialControls, TxSetupNamesItsButtonsAndSpeeds) {
  MainWindowControls c;
  SetInitialControls(c);
  TxSetupControls& t = c.TxSetup;
  EXPECT_EQ(t.PathMemory[0].Caption, "M1");
  EXPECT_EQ(t.PathMemory[3].Caption, "M4");
  EXPECT_EQ(t.InfoMemory[5].Caption, "M6");
  EXPECT_EQ(t.TxTimestampBox.Caption, "TX TIMESTAMP (GPS)");
  EXPECT_EQ(t.DigiBox.Caption, "DIGI");
  EXPECT_EQ(c.Gate.Check15.Caption, "IGATE");
  EXPECT_EQ(c.Transmit.Check2.Caption, "HF-DUAL");
  EXPECT_EQ(c.ObjectSetup.ObjectOk.Caption, "OK");
  for (const Button* down :
       {&t.TxIntervalDown, &t.SymbolDown, &t.CrossDown, &c.ObjectSetup.ObjectSymbolDown})
    EXPECT_EQ(down->Caption, "<");
  for (const Button* up : {&t.TxIntervalUp, &t.SymbolUp, &t.CrossUp, &c.ObjectSetup.ObjectSymbolUp})
    EXPECT_EQ(up->Caption, ">");
  const char* speeds[] = {"RPR 300", "300", "1200", "9600", "19200"};
  for (std::size_t at = 0; at < t.Speeds.size(); ++at)
    EXPECT_EQ(t.Speeds[at].Caption, speeds[at]);
}

TEST(InitialControls, MinutesAndSymbolsStepFiveTimesASecondWhileHeld) {
  MainWindowControls c;
  SetInitialControls(c);
  for (const Button* held :
       {&c.TxSetup.TxIntervalDown, &c.TxSetup.TxIntervalUp, &c.TxSetup.SymbolDown,
        &c.TxSetup.SymbolUp, &c.ObjectSetup.ObjectSymbolDown, &c.ObjectSetup.ObjectSymbolUp}) {
    EXPECT_EQ(held->RepeatMs, 200);
  }
  EXPECT_EQ(c.TxSetup.CrossUp.RepeatMs, 0);
  EXPECT_EQ(c.TxSetup.TxOk.RepeatMs, 0);
}

TEST(InitialControls, TheTransmittersPanelsWaitUntilTheyAreAskedFor) {
  MainWindowControls c;
  SetInitialControls(c);
  for (const Control* panel : std::initializer_list<const Control*>{
           &c.TxSetup.Frame4, &c.ObjectSetup.Frame11, &c.Terminal.Frame19, &c.Terminal.Label49,
           &c.Status.LinkNotice, &c.Status.FileNotice}) {
    EXPECT_FALSE(panel->Visible);
  }
  for (const CheckBox* box :
       {&c.Transmit.Check6, &c.Transmit.Check18, &c.Transmit.Check2, &c.Gate.Check15}) {
    EXPECT_TRUE(box->Visible);
  }
  for (const Control* chat : std::initializer_list<const Control*>{
           &c.Chat.Check7, &c.Chat.Text2, &c.Chat.Text3, &c.Record.Command10})
    EXPECT_TRUE(chat->Visible);
}

TEST(InitialControls, TheMemoriesToolTipsAreLeftToTheirTexts) {
  MainWindowControls c;
  SetInitialControls(c);
  c.TxSetup.InfoMemory[1].ToolTip = "145.500 MHZ";
  c.TxSetup.PathMemory[2].ToolTip = "WIDE1-1";
  SetMainWindowLabels(c, 11);
  SetMainWindowLabels(c, 1);
  EXPECT_EQ(c.TxSetup.InfoMemory[1].ToolTip, "145.500 MHZ");
  EXPECT_EQ(c.TxSetup.PathMemory[2].ToolTip, "WIDE1-1");
}

TEST(InitialControls, EveryControlOfTheSetUpPanelsExplainsItself) {
  MainWindowControls c;
  SetInitialControls(c);
  TxSetupControls& t = c.TxSetup;
  ObjectSetupControls& o = c.ObjectSetup;
  std::vector<const Control*> all = {&t.TxSsid,           &t.TxDestinationField,
                                     &t.TxPathField,      &t.PathClear,
                                     &t.TxInterval,       &t.TxIntervalDown,
                                     &t.TxIntervalUp,     &t.SymbolDown,
                                     &t.SymbolUp,         &t.SymbolName,
                                     &t.TxOverlayField,   &t.TxTimestampBox,
                                     &t.DigiBox,          &t.TxLevel,
                                     &t.CrossField,       &t.CrossDown,
                                     &t.CrossUp,          &t.TxOk,
                                     &t.TxAbort,          &c.Gate.Check15,
                                     &c.Transmit.Check2,  &o.ObjectNameField,
                                     &o.ObjectTextField,  &o.ObjectOverlayField,
                                     &o.ObjectSymbolDown, &o.ObjectSymbolUp,
                                     &o.ObjectSymbolName, &o.ObjectOk,
                                     &o.Command31,        &o.Command32,
                                     &c.Transmit.Check6,  &c.Transmit.Check18,
                                     &c.Record.Label20,   &c.Transmit.NextBeacon};
  for (const TextBox& line : t.InfoField)
    all.push_back(&line);
  for (const CheckBox& active : t.fr4ta)
    all.push_back(&active);
  for (const OptionButton& speed : t.Speeds)
    all.push_back(&speed);
  for (const Button& quick : t.PathQuick)
    all.push_back(&quick);
  for (const Control* control : all)
    EXPECT_NE(control->ToolTip, "");
  SetMainWindowLabels(c, 21);
  for (const Control* control : all)
    EXPECT_EQ(control->ToolTip, "");
}

// Its field takes all other keys for the modem.
TEST(InitialControls, TheWayOutOfTheTerminalIsTold) {
  MainWindowControls c;
  SetInitialControls(c);
  for (const Control* control : {static_cast<const Control*>(&c.Terminal.Text19),
                                 static_cast<const Control*>(&c.Terminal.Command66)}) {
    EXPECT_NE(control->ToolTip.find("Alt+C"), std::string::npos) << control->ToolTip;
  }
}

TEST(InitialControls, ARightClickIsToldInTheToolTip) {
  MainWindowControls c;
  SetInitialControls(c);
  EXPECT_TRUE(c.Transmit.Check6.ToolTip.ends_with("/ Rclick: TX SETUP"));
  EXPECT_TRUE(c.Transmit.Check18.ToolTip.ends_with("/ Rclick: OBJECT SETUP"));
  SetMainWindowLabels(c, 1);
  EXPECT_EQ(c.Transmit.Check6.ToolTip, "");
  EXPECT_EQ(c.TxSetup.TxPathField.ToolTip, "");
  EXPECT_EQ(c.TxSetup.PathQuick[0].ToolTip, "");
}

struct TipRow {
  const Control& Subject;
  const char* Text;
};

TEST(InitialControls, ToolTipsOfTheMapAreShownWithATenInTheLanguage) {
  MainWindowControls c;
  SetInitialControls(c);
  const TipRow rows[] = {
      {c.Map.Command72, "Background map: normal-dark-bright / Rclick: Show palette (16-inks)"},
      {c.Palette.Command43, "Reset and close palette"},
      {c.Map.Option1, "Recenters map to USER QTH / Rclick: USER QTH SETUP"},
      {c.Map.Option2, "Recenters map to MONI 1 QTH"},
      {c.Map.Command1, "Zooming out to the next scale level"},
      {c.Map.Command2, "Zooming in to the next scale level"},
      {c.Map.Command7, "Zooming out factor 2"},
      {c.Map.Command8, "Zooming in factor 2"},
      {c.Map.Check14,
       "Show GPS tracking data from selected file / Rclick: Scrolling file selection"},
      {c.Tracks.Frame10, "Center map to end of TRK"},
      {c.Tracks.Command68, "Select previous TRK file"},
      {c.Map.Command73, "POIs: 0 / points / points + text"},
      {c.Places.Combo2, "POI file name / Rclick: Create new file"},
      {c.Readouts.Label1,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label2,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Map.Picture1, "POI, TRK, PIC, STN, SUN"}};
  for (const TipRow& row : rows)
    EXPECT_EQ(row.Subject.ToolTip, row.Text);
  SetMainWindowLabels(c, 1);
  for (const TipRow& row : rows)
    EXPECT_EQ(row.Subject.ToolTip, "") << row.Text;
}

}  // namespace
}  // namespace zepril
