// The tables of texts, and their way into the controls.
#include "core/main_window_captions.h"

#include <array>
#include <initializer_list>
#include <span>

namespace zepril {
namespace {

struct ToolTipRow {
  Control& Subject;
  const char* English;
};

// A tool tip's text as it is shown, or blank.
using TipPick = const char* (*)(const char*);

void SetToolTips(std::span<const ToolTipRow> rows, TipPick pick) {
  for (const ToolTipRow& row : rows)
    row.Subject.ToolTip = pick(row.English);
}

void SetMapToolTips(MainWindowControls& c, TipPick pick) {
  const ToolTipRow rows[] = {
      {c.Map.Command72, "Background map: normal-dark-bright / Rclick: Show palette (16-inks)"},
      {c.Palette.Command42, "No ink chosen"},
      {c.Palette.Command43, "Reset and close palette"},
      {c.Map.Option1, "Recenters map to USER QTH / Rclick: USER QTH SETUP"},
      {c.Map.Option2, "Recenters map to MONI 1 QTH"},
      {c.Map.Command1, "Zooming out to the next scale level"},
      {c.Map.Command2, "Zooming in to the next scale level"},
      {c.Map.Command7, "Zooming out factor 2"},
      {c.Map.Command8, "Zooming in factor 2"},
      {c.Map.Command9, "Zoom factor 1"},
      {c.Map.Command12, "Centers map to the record shown / Rclick: Next scale level"},
      {c.Map.Picture1, "POI, TRK, PIC, STN, SUN"},
      {c.Map.Check4, "Coordinate grids of the systems that the read-outs show"},
      {c.Map.Check9, "Distance circles with Fopt / Rclick: Input of ionospherical data"},
      {c.Map.Check12, "Show where pictures were taken"},
      {c.Map.Check14,
       "Show GPS tracking data from selected file / Rclick: Scrolling file selection"},
      {c.Map.Command73, "POIs: 0 / points / points + text"},
      {c.Map.Command59, "Save map window to file"},
      {c.Readouts.Label1,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label2,
       "Shows map center coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label3,
       "Shows cursor coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label4,
       "Shows cursor coordinates / Lclick switches different coordinate systems"},
      {c.Readouts.Label7,
       "Shows MONI 1 coordinates / Lclick switches different coordinate systems / Rclick: Records"},
      {c.Readouts.Label8,
       "Shows MONI 1 coordinates / Lclick switches different coordinate systems / Rclick: Records"},
      {c.Readouts.Label11, "Distance, direction, speed and path of MONI 1"},
      {c.Scales.Command5, "Show tile frames of all scales"},
      {c.Scales.Command6, "Hide all tile frames"},
      {c.Scales.Command37, "Scan the map folders again"},
  };
  SetToolTips(rows, pick);
  for (ComboBox& folder : c.Scales.Folder)
    folder.ToolTip = pick("Select the map folder of this scale");
  for (CheckBox& box : c.Scales.FrameBox) {
    box.ToolTip = pick("Show tile frames / filled: a tile lies under the map center");
  }
}

void SetOverlayToolTips(MainWindowControls& c, TipPick pick) {
  const ToolTipRow rows[] = {
      {c.Tracks.Combo1, "TRK file name"},
      {c.Tracks.Frame10, "Center map to end of TRK"},
      {c.Tracks.Command68, "Select previous TRK file"},
      {c.Tracks.Command69, "Select next TRK file"},
      {c.Places.Combo2, "POI file name / Rclick: Create new file"},
      {c.Places.PoiNew, "New POI at the map center"},
      {c.Places.Text4, "Name of the POI / a text between { and } is a link"},
      {c.Places.PoiOk, "Apply to the POI file"},
      {c.Places.PoiClose, "Close, nothing is changed"},
      {c.Places.Command64, "Move the POI to the map center"},
      {c.Places.Command67, "Open the link of the POI"},
      {c.Iono.Frame18, "Input of ionospherical data"},
      {c.Iono.Text11, "Sunspot number (1-180 are used)"},
      {c.Iono.Text12, "Planetary K index (0-9)"},
      {c.Iono.FoptDetailed,
       "Circles show MUF of two models and their reduced mean instead of Fopt"},
      {c.Iono.IonoOk, "Use and save these values"},
      {c.Iono.IonoClose, "Close, nothing is changed"},
      {c.Picture.Frame8, "Picture / Lclick: center the map where it was taken"},
      {c.Picture.Command29, "Previous picture"},
      {c.Picture.Command30, "Next picture"},
      {c.Picture.Command70, "Open the picture outside"},
      {c.Picture.Command71, "Close the picture"},
  };
  SetToolTips(rows, pick);
}

void SetStationToolTips(MainWindowControls& c, TipPick pick) {
  const ToolTipRow rows[] = {
      {c.Moni1.Combo9, "Call of the station that is followed / Enter: follow"},
      {c.Moni1.Label6, "Count of MONI 1 records"},
      {c.Moni1.Label17, "Size of the MONI 1 history"},
      {c.Moni1.Label9, "Date and time of the last MONI 1 record"},
      {c.Moni1.Label10, "Text of the last MONI 1 record"},
      {c.Moni1.Command17, "Track style of MONI 1"},
      {c.Moni1.Check1, "Distance alarm for MONI 1"},
      {c.MoniAll.Command13,
       "Labels: 0 / marks / + call / + text / symbols + call / symbols + text / WX / Rclick: Back"},
      {c.MoniAll.Label16, "Label level"},
      {c.MoniAll.Check10, "Show network stations"},
      {c.MoniAll.Check11, "Show fixed stations"},
      {c.MoniAll.Check13, "Show moving stations / third state: only if moved"},
      {c.MoniAll.Check19, "Show special stations"},
      {c.MoniAll.Check25, "Show weather stations"},
      {c.MoniAll.Check24, "Show directly heard stations only"},
      {c.MoniAll.Check3, "Distance alarm for all stations"},
      {c.MoniAll.Label5, "Size of the MONI ALL list"},
      {c.MoniAll.Text15, "Call to find on the map"},
      {c.MoniAll.Command14, "Highlight this call on the map"},
      {c.MoniAll.Command3, "List of heard stations"},
      {c.MoniAll.HeardOrder[0], "Order by call / again: turned round"},
      {c.MoniAll.HeardOrder[1], "Order by age / again: turned round"},
      {c.MoniAll.HeardOrder[2], "Order by distance from USER QTH / again: turned round"},
      {c.MoniAll.HeardOrder[3], "Order by direction from USER QTH / again: turned round"},
      {c.Raw.Command57, "Raw packets"},
      {c.Raw.Text14, "Text to search in the raw packets"},
      {c.Raw.Command38, "Search upwards"},
      {c.Record.Frame1, "Station record"},
      {c.Record.Command11, "Follow this station (MONI 1)"},
      {c.Record.Command18, "Previous record / cut older positions"},
      {c.Record.Command19, "Next record / cut newer positions"},
      {c.Record.Command23, "Close"},
      {c.Record.Command36, "Highlight this station"},
      {c.Qth.QthOk, "Take what was typed, else the map center, as USER QTH"},
      {c.Qth.TextQthNorth,
       "North in km, or degrees (52.5041 13.4051), or a locator / Enter: center the map there"},
      {c.Qth.TextQthEast,
       "East in km, or degrees (52.5041 13.4051), or a locator / Enter: center the map there"},
      {c.Qth.Command22, "Close, nothing is changed (Esc)"},
  };
  SetToolTips(rows, pick);
}

void SetTxSetupToolTips(MainWindowControls& c, TipPick pick) {
  TxSetupControls& t = c.TxSetup;
  const ToolTipRow rows[] = {
      {t.TxSsid, "SSID of the own call on the air (1-15 or empty)"},
      {t.TxDestinationField, "Destination of all frames / empty: ZEPR"},
      {t.TxPathField, "Digipeaters, with a comma between them"},
      {t.PathClear, "Clear the path"},
      {t.TxInterval, "Minutes between two reports (1-60) or MANUAL"},
      {t.TxIntervalDown, "One minute less / hold: repeats"},
      {t.TxIntervalUp, "One minute more / hold: repeats"},
      {t.SymbolDown, "Previous symbol / hold: repeats"},
      {t.SymbolUp, "Next symbol / hold: repeats"},
      {t.SymbolName, "Row of the symbol table"},
      {t.TxOverlayField, "Character that stands in for # in numbered symbols"},
      {t.TxTimestampBox, "Reports carry the time, once GPS has set the clock"},
      {t.DigiBox, "Digipeater"},
      {t.TxLevel, "Level of the modem's signal in mV (30-3000)"},
      {t.CrossField, "Second mode of HF-DUAL and of the cross-mode digipeater"},
      {t.CrossDown, "Step the second mode"},
      {t.CrossUp, "Step the second mode"},
      {t.TxOk, "Program the radio, save, the first report follows"},
      {t.TxAbort, "Close, nothing is changed"},
      {c.Gate.Check15, "Hand received packets to the internet"},
      {c.Transmit.Check2, "Listen on RPR 300 and FSK 300 in turn"},
  };
  SetToolTips(rows, pick);
  for (Button& quick : t.PathQuick)
    quick.ToolTip = pick("Append to the path");
  for (TextBox& line : t.InfoField)
    line.ToolTip = pick("Text of a report / {C:\\WX.TXT}: the longest line of that file");
  for (CheckBox& active : t.fr4ta)
    active.ToolTip = pick("This line takes its turn in the reports");
  for (OptionButton& speed : t.Speeds)
    speed.ToolTip = pick("Radio speed");
}

void SetTransmitToolTips(MainWindowControls& c, TipPick pick) {
  ObjectSetupControls& o = c.ObjectSetup;
  const ToolTipRow rows[] = {
      {c.Transmit.Check6,
       "TX in this interval of minutes / TX !: one report at once / Rclick: TX SETUP"},
      {c.Transmit.TxOutcome, "What became of the last frame"},
      {c.Transmit.NextBeacon, "Time to the next report of the own position"},
      {c.Transmit.Check18, "Own object, while TX is on / Rclick: OBJECT SETUP"},
      {o.ObjectNameField, "Name of the object on the air, up to nine characters"},
      {o.ObjectTextField, "Text of the object"},
      {o.ObjectOverlayField, "Character that stands in for # in numbered symbols"},
      {o.ObjectSymbolDown, "Previous symbol / hold: repeats"},
      {o.ObjectSymbolUp, "Next symbol / hold: repeats"},
      {o.ObjectSymbolName, "Row of the symbol table"},
      {o.ObjectOk, "The object is at the map center"},
      {o.Command31, "No object any more / other stations are not told"},
      {o.Command32, "Close, nothing is changed"},
      {c.Terminal.Command65, "Terminal of the serial modem (PK 232, SCS TNC, SCS PTC)"},
      {c.Terminal.Text19,
       "Every key goes to the modem, Tab, Esc and Ctrl too / Alt+C closes / Shift+Tab leaves"},
      {c.Terminal.Text20, "What the modem prints"},
      {c.Terminal.Command66, "Close the terminal (Alt+C), the program goes on"},
      {c.Status.FileNotice, "Lclick closes / a text can be selected and copied"},
      {c.Status.LinkNotice, "Lclick closes / a text can be selected and copied"},
      {c.Record.Label20, "Station record / Lclick: retransmit its position"},
  };
  SetToolTips(rows, pick);
}

void HidePanels(MainWindowControls& c) {
  for (Control* panel : std::initializer_list<Control*>{
           &c.Record.Frame1,      &c.Picture.Frame8,      &c.Chat.Frame3,
           &c.Chat.Frame7,        &c.Status.Text10,       &c.Status.Frame12,
           &c.Status.Frame14,     &c.Qth.Frame2,          &c.Palette.PalettePanel,
           &c.MoniAll.HeardPanel, &c.Map.PictureBase,     &c.Raw.RawList,
           &c.Status.FileNotice,  &c.Status.LinkNotice,   &c.Places.PoiPanel,
           &c.Iono.Frame18,       &c.Sun.SunPanel,        &c.Progress.ProgressPanel,
           &c.TxSetup.Frame4,     &c.ObjectSetup.Frame11, &c.Terminal.Frame19,
           &c.Terminal.Label49}) {
    panel->Visible = false;
  }
}

// What a later capability brings has its place in the logic already, and none on the window yet.
void HideWhatIsNotThereYet(MainWindowControls& c) {
  for (Control* control : std::initializer_list<Control*>{
           &c.Moni1.Check22, &c.Moni1.Check27, &c.MoniAll.Check23, &c.Record.Command10,
           &c.Record.Command41, &c.Record.Command40, &c.Chat.Check7, &c.Chat.Check8,
           &c.Chat.Check16, &c.Chat.Text2, &c.Chat.Text3, &c.Status.IonoLabel}) {
    control->Visible = false;
  }
}

void SetTxSetupCaptions(TxSetupControls& t) {
  t.Frame4.Caption = "TX SETUP / APRS PARAMETERS";
  for (std::size_t at = 0; at < t.PathMemory.size(); ++at)
    t.PathMemory[at].Caption = {'M', static_cast<char>('1' + at)};
  for (std::size_t at = 0; at < t.InfoMemory.size(); ++at)
    t.InfoMemory[at].Caption = {'M', static_cast<char>('1' + at)};
  t.TxTimestampBox.Caption = "TX TIMESTAMP (GPS)";
  t.DigiBox.Caption = "DIGI";
  constexpr std::array<const char*, 5> kSpeeds{"RPR 300", "300", "1200", "9600", "19200"};
  for (std::size_t at = 0; at < t.Speeds.size(); ++at)
    t.Speeds[at].Caption = kSpeeds[at];
}

// Buttons that step to both sides; held, some step on.
void SetSteppers(MainWindowControls& c) {
  constexpr int kStepMs = 200;
  TxSetupControls& t = c.TxSetup;
  ObjectSetupControls& o = c.ObjectSetup;
  for (Button* down : {&t.TxIntervalDown, &t.SymbolDown, &o.ObjectSymbolDown, &t.CrossDown})
    down->Caption = "<";
  for (Button* up : {&t.TxIntervalUp, &t.SymbolUp, &o.ObjectSymbolUp, &t.CrossUp})
    up->Caption = ">";
  for (Button* held : {&t.TxIntervalDown, &t.TxIntervalUp, &t.SymbolDown, &t.SymbolUp,
                       &o.ObjectSymbolDown, &o.ObjectSymbolUp}) {
    held->RepeatMs = kStepMs;
  }
}

}  // namespace

void SetInitialControls(MainWindowControls& c) {
  HidePanels(c);
  HideWhatIsNotThereYet(c);
  c.Map.Command1.Caption = "<";
  c.Map.Command2.Caption = ">";
  c.Map.Command7.Caption = "-";
  c.Map.Command9.Caption = "1";
  c.Map.Command8.Caption = "+";
  c.Map.Command12.Caption = "MAP";
  c.Map.Option1.Caption = "OWN";
  c.Map.Option2.Caption = "MONI 1";
  c.Map.Command72.Caption = "DIM";
  c.Map.Check4.Caption = "GRID";
  c.Map.Check9.Caption = "CIRCLES";
  c.Map.Check12.Caption = "PIC";
  c.Map.Check14.Caption = "TRK";
  c.Map.Command73.Caption = "POI 0";
  c.Map.Command59.Caption = "SAVE";
  c.Moni1.Command17.Caption = "TRACK 0";
  c.Moni1.Check1.Caption = "ALARM";
  c.MoniAll.Command13.Caption = "LABELS";
  c.MoniAll.Label16.Caption = "3";
  c.MoniAll.Check10.Caption = "NET";
  c.MoniAll.Check11.Caption = "FIX";
  c.MoniAll.Check13.Caption = "MOV";
  c.MoniAll.Check19.Caption = "OTHER";
  c.MoniAll.Check25.Caption = "WX";
  c.MoniAll.Check24.Caption = "DIRECT";
  c.MoniAll.Check3.Caption = "ALARM";
  c.MoniAll.Command14.Caption = "FIND";
  c.MoniAll.Command3.Caption = "STATIONS ...";
  c.Raw.Command57.Caption = "RAW";
  c.Raw.Command38.Caption = "SEARCH";
  c.Record.Command11.Caption = "MONI 1";
  c.Record.Command36.Caption = "FIND";
  c.Record.Command23.Caption = "CLOSE";
  c.Scales.Command5.Caption = "ALL";
  c.Scales.Command6.Caption = "NONE";
  c.Scales.Command37.Caption = "SCAN";
  c.Palette.Command42.Caption = "NO INK";
  c.Palette.Command43.Caption = "CLOSE";
  c.Qth.QthOk.Caption = "OK";
  c.Tracks.Command68.Caption = "<";
  c.Tracks.Command69.Caption = ">";
  c.Tracks.Frame10.Caption = "TO END";
  c.Places.PoiNew.Caption = "NEW POI";
  c.Places.PoiPanel.Caption = "POI";
  c.Places.PoiOk.Caption = "OK";
  c.Places.PoiClose.Caption = "CLOSE";
  c.Picture.Command29.Caption = "<";
  c.Picture.Command30.Caption = ">";
  c.Picture.Command70.Caption = "OPEN OUTSIDE";
  c.Picture.Command71.Caption = "CLOSE";
  c.Iono.Frame18.Caption = "Input of ionospherical data";
  c.Iono.FoptDetailed.Caption = "THREE VALUES";
  c.Iono.IonoOk.Caption = "OK";
  c.Iono.IonoClose.Caption = "CLOSE";
  c.Transmit.Check6.Caption = "TX";
  c.Transmit.Check18.Caption = "OBJECT";
  c.Gate.Check15.Caption = "IGATE";
  c.Transmit.Check2.Caption = "HF-DUAL";
  c.ObjectSetup.ObjectOk.Caption = "OK";
  c.Terminal.Command65.Caption = "TERMINAL";
  c.Terminal.Command66.Caption = "CLOSE";
  SetTxSetupCaptions(c.TxSetup);
  SetSteppers(c);
  SetMainWindowLabels(c, 11);
}

void SetMainWindowLabels(MainWindowControls& c, int language) {
  c.Qth.Frame2.Caption = "USER QTH SETUP: CENTER THE MAP TO YOUR QTH!";
  c.Qth.Command22.Caption = "CANCEL";
  c.Qth.QthRests.Caption = kReceptionRests;
  c.Places.Label14.Caption = "DELETE POINT: CLEAR TEXT  /  CREATE POINT: TYPE TEXT";
  c.Places.Command64.Caption = " POS->CENTER";
  c.Places.Command67.Caption = "OPEN LINK";
  c.ObjectSetup.Frame11.Caption = "OBJECT SETUP: CENTER THE MAP TO THE OBJECT!";
  c.ObjectSetup.Command31.Caption = "DELETE OBJECT";
  c.ObjectSetup.Command32.Caption = "CANCEL";
  for (CheckBox& active : c.TxSetup.fr4ta)
    active.Caption = "ACTIVE";
  c.Terminal.Label47.Caption =
      "THIS TERMINAL WINDOW ALLOWS TO COMMUNICATE DIRECTLY WITH/VIA THE TNC. AS LONG AS IT IS HELD "
      "OPEN, ALL NORMAL PROGRAM FUNCTIONS ARE STOPPED.";
  // Tool tips are shown with a ten in the number and stay blank without.
  const bool tool_tips = language / 10 == 1;
  const auto shown = [](const char* text) { return text; };
  const auto blank = [](const char*) { return ""; };
  SetMapToolTips(c, tool_tips ? +shown : +blank);
  SetOverlayToolTips(c, tool_tips ? +shown : +blank);
  SetStationToolTips(c, tool_tips ? +shown : +blank);
  SetTxSetupToolTips(c, tool_tips ? +shown : +blank);
  SetTransmitToolTips(c, tool_tips ? +shown : +blank);
}

}  // namespace zepril
