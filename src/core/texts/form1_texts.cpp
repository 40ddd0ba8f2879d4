// The table of the main window: a row a control.
#include "core/texts/form1_texts.h"

#include "core/controls/main_window_controls.h"
#include "core/texts/control_rows.h"
#include "core/texts/window_texts.h"

namespace zepril {
// Found by the table through its form.
static auto Groups(MainWindowControls& c) {
  return std::tie(c.Map, c.Readouts, c.Scales, c.Palette, c.Tracks, c.Gps, c.Places, c.Picture,
                  c.Iono, c.Inet, c.Sun, c.Progress, c.Moni1, c.MoniAll, c.Raw, c.Record, c.Qth,
                  c.Transmit, c.Chat, c.Gate, c.TxSetup, c.ObjectSetup, c.Terminal, c.Status);
}

namespace {

// Name, control, caption, tool tip, called, while empty, key.
// clang-format off
constexpr ControlRow<MainWindowControls> kTable[] = {
    // The controls of the map and of the bar above it.
    {"Picture1", On<&MapControls::Picture1>(), {}, {"POI, TRK, PIC, STN, SUN"}, {"map"}},
    {"PictureBase", On<&MapControls::PictureBase>()},
    {"Command1", On<&MapControls::Command1>(), Own("<"), {"Zooming out to the next scale level"},
     {}, {}, {"Page Up"}},
    {"Command2", On<&MapControls::Command2>(), Own(">"), {"Zooming in to the next scale level"}, {},
     {}, {"Page Down"}},
    {"Command7", On<&MapControls::Command7>(), Own("-"), {"Zooming out factor 2"}, {}, {}, {"-"}},
    {"Command8", On<&MapControls::Command8>(), Own("+"), {"Zooming in factor 2"}, {}, {}, {"+"}},
    {"Command9", On<&MapControls::Command9>(), Own("1"), {"Zoom factor 1"}},
    {"Command12", On<&MapControls::Command12>(), Own("MAP"),
     {"Centers map to the record shown / Rclick: Next scale level"}, {}, {}, {"Home"}},
    {"Option1", On<&MapControls::Option1>(), Own("OWN"),
     {"Recenters map to USER QTH / Rclick: USER QTH SETUP"}},
    {"Option2", On<&MapControls::Option2>(), Own("MONI 1"), {"Recenters map to MONI 1 QTH"}},
    {"Check4", On<&MapControls::Check4>(), Own("GRID"),
     {"Coordinate grids of the systems that the read-outs show"}, {}, {}, {"G"}},
    {"Check9", On<&MapControls::Check9>(), Own("CIRCLES"),
     {"Distance circles with Fopt / Rclick: Input of ionospherical data"}, {}, {}, {"C"}},
    {"Check12", On<&MapControls::Check12>(), Own("PIC"), {"Show where pictures were taken"}, {}, {},
     {"I"}},
    {"Check14", On<&MapControls::Check14>(), Own("TRK"),
     {"Show GPS tracking data from selected file / Rclick: Scrolling file selection"}, {}, {},
     {"T"}},
    {"Command72", On<&MapControls::Command72>(), Own("DIM"),
     {"Background map: normal-dark-bright / Rclick: Show palette (16-inks)"}, {}, {}, {"D"}},
    {"Command73", On<&MapControls::Command73>(), Own("POI 0"), {"POIs: 0 / points / points + text"},
     {}, {}, {"P"}},
    {"Command59", On<&MapControls::Command59>(), Own("SAVE"), {"Save map window to file"}, {}, {},
     {"Ctrl+S"}},
    {"ScaleText", On<&MapControls::ScaleText>()},

    // The controls of the three read-outs and of the station line.
    {"Label1", On<&ReadoutControls::Label1>(), {},
     {"Shows map center coordinates / Lclick switches different coordinate systems"}},
    {"Label2", On<&ReadoutControls::Label2>(), {},
     {"Shows map center coordinates / Lclick switches different coordinate systems"}},
    {"Label3", On<&ReadoutControls::Label3>(), {},
     {"Shows cursor coordinates / Lclick switches different coordinate systems"}},
    {"Label4", On<&ReadoutControls::Label4>(), {},
     {"Shows cursor coordinates / Lclick switches different coordinate systems"}},
    {"Label7", On<&ReadoutControls::Label7>(), {},
     {"Shows MONI 1 coordinates / Lclick switches different coordinate systems / Rclick: "
      "Records"}},
    {"Label8", On<&ReadoutControls::Label8>(), {},
     {"Shows MONI 1 coordinates / Lclick switches different coordinate systems / Rclick: "
      "Records"}},
    {"Label11", On<&ReadoutControls::Label11>(), {},
     {"Distance, direction, speed and path of MONI 1"}},

    // The controls of the six scale rows, coarse to fine: M5000 to M0002.
    {"ScalePanel", On<&ScaleControls::ScalePanel>()},
    {"Combo3", At<&ScaleControls::Folder, 0>(), {}, {"Select the map folder of this scale"},
     {"map folder M5000"}, {"no M5000"}},
    {"Combo4", At<&ScaleControls::Folder, 1>(), {}, {"Select the map folder of this scale"},
     {"map folder M1000"}, {"no M1000"}},
    {"Combo5", At<&ScaleControls::Folder, 2>(), {}, {"Select the map folder of this scale"},
     {"map folder M0200"}, {"no M0200"}},
    {"Combo6", At<&ScaleControls::Folder, 3>(), {}, {"Select the map folder of this scale"},
     {"map folder M0050"}, {"no M0050"}},
    {"Combo7", At<&ScaleControls::Folder, 4>(), {}, {"Select the map folder of this scale"},
     {"map folder M0010"}, {"no M0010"}},
    {"Combo8", At<&ScaleControls::Folder, 5>(), {}, {"Select the map folder of this scale"},
     {"map folder M0002"}, {"no M0002"}},
    {"Combo3Frames", At<&ScaleControls::FrameBox, 0>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M5000"}},
    {"Combo4Frames", At<&ScaleControls::FrameBox, 1>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M1000"}},
    {"Combo5Frames", At<&ScaleControls::FrameBox, 2>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M0200"}},
    {"Combo6Frames", At<&ScaleControls::FrameBox, 3>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M0050"}},
    {"Combo7Frames", At<&ScaleControls::FrameBox, 4>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M0010"}},
    {"Combo8Frames", At<&ScaleControls::FrameBox, 5>(), {},
     {"Show tile frames / filled: a tile lies under the map center"}, {"tile frames M0002"}},
    {"Command5", On<&ScaleControls::Command5>(), Own("ALL"), {"Show tile frames of all scales"}},
    {"Command6", On<&ScaleControls::Command6>(), Own("NONE"), {"Hide all tile frames"}},
    {"Command37", On<&ScaleControls::Command37>(), Own("SCAN"), {"Scan the map folders again"}},

    // The controls of the panel with the sixteen inks of a tile.
    {"PalettePanel", On<&PaletteControls::PalettePanel>()},
    {"Optionink", All<&PaletteControls::Optionink, 0>(), {}, {}, {"ink %1"}},
    {"Command42", On<&PaletteControls::Command42>(), Own("NO INK"), {"No ink chosen"}},
    {"Command43", On<&PaletteControls::Command43>(), Own("CLOSE"), {"Reset and close palette"}, {},
     {}, {"Esc"}},

    // The controls of the track files.
    {"Combo1", On<&TrackControls::Combo1>(), {}, {"TRK file name"}, {"TRK file"}, {"TRK file"}},
    {"Command68", On<&TrackControls::Command68>(), Own("<"), {"Select previous TRK file"}},
    {"Command69", On<&TrackControls::Command69>(), Own(">"), {"Select next TRK file"}},
    {"Frame10", On<&TrackControls::Frame10>(), Own("TO END"), {"Center map to end of TRK"}},

    // The line of the GPS over the map.
    {"GpsInfo", On<&GpsControls::GpsInfo>()},
    {"GpsNote", On<&GpsControls::GpsNote>(), {}, {"Lclick closes / it comes back when it changes"},
     {}, {"notice"}},

    // The controls of the place files, and of the panel in which a place is added, renamed or
    // removed.
    {"Combo2", On<&PlaceControls::Combo2>(), {}, {"POI file name / Rclick: Create new file"},
     {"POI file"}, {"POI file"}},
    {"PoiNew", On<&PlaceControls::PoiNew>(), Own("NEW POI"), {"New POI at the map center"}, {}, {},
     {"N"}},
    {"PoiPanel", On<&PlaceControls::PoiPanel>(), Own("POI")},
    {"Label14", On<&PlaceControls::Label14>(),
     {{"DELETE POINT: CLEAR TEXT  /  CREATE POINT: TYPE TEXT"}}},
    {"Text4", On<&PlaceControls::Text4>(), {},
     {"Name of the POI / a text between { and } is a link"}, {"name of the POI"}},
    {"PoiOk", On<&PlaceControls::PoiOk>(), Own("OK"), {"Apply to the POI file"}},
    {"PoiClose", On<&PlaceControls::PoiClose>(), Own("CLOSE"), {"Close, nothing is changed"}, {},
     {}, {"Esc"}},
    {"Command64", On<&PlaceControls::Command64>(), {{" POS->CENTER"}},
     {"Move the POI to the map center"}},
    {"Command67", On<&PlaceControls::Command67>(), {{"OPEN LINK"}}, {"Open the link of the POI"}},

    // The controls of the geo-referenced picture that fills the map window.
    {"Frame8", On<&PicturePanelControls::Frame8>(), {},
     {"Picture / Lclick: center the map where it was taken"}},
    {"Picture", On<&PicturePanelControls::Picture>(), {}, {}, {"picture"}},
    {"PictureName", On<&PicturePanelControls::PictureName>()},
    {"Command29", On<&PicturePanelControls::Command29>(), Own("<"), {"Previous picture"}},
    {"Command30", On<&PicturePanelControls::Command30>(), Own(">"), {"Next picture"}},
    {"Command70", On<&PicturePanelControls::Command70>(), Own("OPEN OUTSIDE"),
     {"Open the picture outside"}},
    {"Command71", On<&PicturePanelControls::Command71>(), Own("CLOSE"), {"Close the picture"}, {},
     {}, {"Esc"}},

    // The controls of "Input of ionospherical data".
    {"Frame18", On<&IonoControls::Frame18>(), Own("Input of ionospherical data"),
     {"Input of ionospherical data"}},
    {"Text11", On<&IonoControls::Text11>(), {}, {"Sunspot number (1-180 are used)"},
     {"SUNSPOT(R)"}},
    {"Text12", On<&IonoControls::Text12>(), {}, {"Planetary K index (0-9)"}, {"K"}},
    {"FoptDetailed", On<&IonoControls::FoptDetailed>(), Own("THREE VALUES"),
     {"Circles show MUF of two models and their reduced mean instead of Fopt"}},
    {"IonoOk", On<&IonoControls::IonoOk>(), Own("OK"), {"Use and save these values"}},
    {"IonoClose", On<&IonoControls::IonoClose>(), Own("CLOSE"), {"Close, nothing is changed"}, {},
     {}, {"Esc"}},

    // The controls of the panel of the sun's path over a point of the map, shown while the right
    // button is held there.
    {"SunPanel", On<&SunControls::SunPanel>()},
    {"SunTitle", On<&SunControls::SunTitle>()},
    {"SunPlot", On<&SunControls::SunPlot>()},
    {"SunName", All<&SunControls::SunNames, kUnnumbered>()},
    {"SunValue", All<&SunControls::SunValues, kUnnumbered>()},

    // The controls that tell what long work is done and how far it is.
    {"ProgressPanel", On<&ProgressControls::ProgressPanel>()},
    {"ProgressText", On<&ProgressControls::ProgressText>()},
    {"ProgressBar", On<&ProgressControls::ProgressBar>(), {}, {}, {"progress"}},

    // The controls of MONI 1, the followed station.
    {"Combo9", On<&Moni1Controls::Combo9>(), {},
     {"Call of the station that is followed / Enter: follow"}, {"MONI 1 call"}},
    {"Label6", On<&Moni1Controls::Label6>(), {}, {"Count of MONI 1 records"}},
    {"Label17", On<&Moni1Controls::Label17>(), {}, {"Size of the MONI 1 history"},
     {"size of the MONI 1 history"}},
    {"Label9", On<&Moni1Controls::Label9>(), {}, {"Date and time of the last MONI 1 record"}},
    {"Label10", On<&Moni1Controls::Label10>(), {}, {"Text of the last MONI 1 record"}},
    {"Command17", On<&Moni1Controls::Command17>(), Own("TRACK 0"), {"Track style of MONI 1"}},
    {"Check1", On<&Moni1Controls::Check1>(), Own("ALARM"), {"Distance alarm for MONI 1"}},
    {"Check22", On<&Moni1Controls::Check22>(), Own("i  1"),
     {"MONI 1 internet support for 15 minutes, source 1 or 2 / Rclick: The other source"}},
    {"Check27", On<&Moni1Controls::Check27>(), Own("SCAN"),
     {"Internet support for each station of the list in turn"}},

    // What internet support says of itself.
    {"InetMoni1State", On<&InetControls::Moni1State>(), {},
     {"What MONI 1 internet support is doing, and what came last"}},
    {"InetMoniAllState", On<&InetControls::MoniAllState>(), {},
     {"What MONI ALL internet support is doing, and what came last"}},

    // The controls of MONI ALL, every station heard.
    {"Command13", On<&MoniAllControls::Command13>(), Own("LABELS"),
     {"Labels: 0 / marks / + call / + text / symbols + call / symbols + text / WX / Rclick: "
      "Back"},
     {}, {}, {"L"}},
    {"Label16", On<&MoniAllControls::Label16>(), Own("3"), {"Label level"}},
    {"Check10", On<&MoniAllControls::Check10>(), Own("NET"), {"Show network stations"}},
    {"Check11", On<&MoniAllControls::Check11>(), Own("FIX"), {"Show fixed stations"}},
    {"Check13", On<&MoniAllControls::Check13>(), Own("MOV"),
     {"Show moving stations / third state: only if moved"}},
    {"Check19", On<&MoniAllControls::Check19>(), Own("OTHER"), {"Show special stations"}},
    {"Check25", On<&MoniAllControls::Check25>(), Own("WX"), {"Show weather stations"}},
    {"Check24", On<&MoniAllControls::Check24>(), Own("DIRECT"),
     {"Show directly heard stations only"}},
    {"Check3", On<&MoniAllControls::Check3>(), Own("ALARM"), {"Distance alarm for all stations"}},
    {"Check23", On<&MoniAllControls::Check23>(), Own("AREA"),
     {"MONI ALL internet support for 15 minutes, all stations around the map centre"}},
    {"Label5", On<&MoniAllControls::Label5>(), {}, {"Size of the MONI ALL list"},
     {"size of the MONI ALL list"}},
    {"Text15", On<&MoniAllControls::Text15>(), {}, {"Call to find on the map"}, {"call to find"},
     {"call to find"}, {"Ctrl+F"}},
    {"Command14", On<&MoniAllControls::Command14>(), Own("FIND"),
     {"Highlight this call on the map"}},
    {"Command3", On<&MoniAllControls::Command3>(), Own("STATIONS ..."), {"List of heard stations"},
     {}, {}, {"Ctrl+L"}},
    {"HeardList", On<&MoniAllControls::HeardList>(), {}, {}, {"heard stations"}},
    {"HeardOrder0", At<&MoniAllControls::HeardOrder, 0>(), {},
     {"Order by call / again: turned round"}},
    {"HeardOrder1", At<&MoniAllControls::HeardOrder, 1>(), {},
     {"Order by age / again: turned round"}},
    {"HeardOrder2", At<&MoniAllControls::HeardOrder, 2>(), {},
     {"Order by distance from USER QTH / again: turned round"}},
    {"HeardOrder3", At<&MoniAllControls::HeardOrder, 3>(), {},
     {"Order by direction from USER QTH / again: turned round"}},
    {"HeardPanel", On<&MoniAllControls::HeardPanel>()},

    // The controls of the list of raw packets.
    {"Command57", On<&RawListControls::Command57>(), Own("RAW"), {"Raw packets"}, {}, {},
     {"Ctrl+R"}},
    {"RawList", On<&RawListControls::RawList>(), {}, {}, {"raw packets"}},
    {"Text14", On<&RawListControls::Text14>(), {}, {"Text to search in the raw packets"},
     {"text to search"}, {"text to search"}},
    {"Command38", On<&RawListControls::Command38>(), Own("SEARCH"), {"Search upwards"}},

    // The controls of the panel of a station's record.
    {"Frame1", On<&RecordPanelControls::Frame1>(), {}, {"Station record"}},
    {"Label19", On<&RecordPanelControls::Label19>()},
    {"Label20", On<&RecordPanelControls::Label20>(), {},
     {"Station record / Lclick: retransmit its position"}, {}, {"station record"}},
    {"Command18", On<&RecordPanelControls::Command18>(), {},
     {"Previous record / cut older positions"}, {}, {"previous record"}},
    {"Command19", On<&RecordPanelControls::Command19>(), {}, {"Next record / cut newer positions"},
     {}, {"next record"}},
    {"Command10", On<&RecordPanelControls::Command10>(), Own("PING"),
     {"Ask this station for the path of its signals / only while TX is on"}},
    {"Command41", On<&RecordPanelControls::Command41>(), Own("CHAT"),
     {"Write to this station / only while TX is on"}},
    {"Command11", On<&RecordPanelControls::Command11>(), Own("MONI 1"),
     {"Follow this station (MONI 1)"}},
    {"Command40", On<&RecordPanelControls::Command40>()},
    {"Command36", On<&RecordPanelControls::Command36>(), Own("FIND"), {"Highlight this station"}},
    {"Command23", On<&RecordPanelControls::Command23>(), Own("CLOSE"), {"Close"}, {}, {}, {"Esc"}},

    // The controls of USER QTH SETUP.
    {"Frame2", On<&QthSetupControls::Frame2>(), {{"USER QTH SETUP: CENTER THE MAP TO YOUR QTH!"}}},
    {"TextQthNorth", On<&QthSetupControls::TextQthNorth>(), {},
     {"North in km, or degrees (52.5041 13.4051), or a locator / Enter: center the map there"},
     {"North km"}},
    {"TextQthEast", On<&QthSetupControls::TextQthEast>(), {},
     {"East in km, or degrees (52.5041 13.4051), or a locator / Enter: center the map there"},
     {"East km"}},
    {"QthNote", On<&QthSetupControls::QthNote>()},
    {"QthRests", On<&QthSetupControls::QthRests>(), {kReceptionRests}},
    {"QthOk", On<&QthSetupControls::QthOk>(), Own("OK"),
     {"Take what was typed, else the map center, as USER QTH"}},
    {"Command22", On<&QthSetupControls::Command22>(), {{"CANCEL"}},
     {"Close, nothing is changed (Esc)"}, {}, {}, {"Esc"}},

    // The switches of what the station sends by itself, and what tells how that goes.
    {"Check6", On<&TransmitControls::Check6>(), Own("TX"),
     {"TX in this interval of minutes / TX !: one report at once / Rclick: TX SETUP"}, {}, {},
     {"Ctrl+T: TX SETUP"}},
    {"TxOutcome", On<&TransmitControls::TxOutcome>(), {}, {"What became of the last frame"}},
    {"NextBeacon", On<&TransmitControls::NextBeacon>(), {},
     {"Time to the next report of the own position"}, {"time to the next report"}},
    {"Check18", On<&TransmitControls::Check18>(), Own("OBJECT"),
     {"Own object, while TX is on / Rclick: OBJECT SETUP"}},
    {"Check2", On<&TransmitControls::Check2>(), Own("HF-DUAL"),
     {"Listen on RPR 300 and FSK 300 in turn"}},

    // The controls of the chat: switches, fields of the message line, panels.
    {"Text1_", All<&ChatControls::Text1, 0>(), {}, {}, {"chat line %1"}},
    {"Check7", On<&ChatControls::Check7>(), Own("CHAT")},
    {"Check8", On<&ChatControls::Check8>(), {{"FROM/TO ME ONLY"}},
     {"Show messages from/to me only"}},
    {"Check16", On<&ChatControls::Check16>(), {},
     {"A message for me is answered with the text that stands here without an addressee"}},
    {"Text2", On<&ChatControls::Text2>(), {},
     {"Addressee / none, with AUTO-A on: Enter takes the text as the automatic answer"},
     {"addressee"}, {"to"}},
    {"Text3", On<&ChatControls::Text3>(), {}, {"Message / Enter: send, up to five times"},
     {"message"}, {"message"}, {"Ctrl+M"}},
    {"Command16", On<&ChatControls::Command16>(), Own("CLEAR"), {"Clear addressee and message"}},
    {"Command24", On<&ChatControls::Command24>(), Own("LOG"),
     {"Chat log, open for 30 seconds / once more: close"}},
    {"Command25", On<&ChatControls::Command25>(), Own("CLEAR LOG"),
     {"Begin the chat log anew with the lines that are shown"}},
    {"ChatNote", On<&ChatControls::ChatNote>(), {}, {}, {"why nothing is sent"}},
    {"Frame3", On<&ChatControls::Frame3>()},
    {"Frame7", On<&ChatControls::Frame7>()},
    {"Text5", On<&ChatControls::Text5>(), {}, {"Chat log, newest last"}, {"chat log"}},
    {"Command28", On<&ChatControls::Command28>(), Own("CLOSE"), {"Close the chat log"}},

    // The controls of the gate between radio and internet.
    {"Check15", On<&GateControls::Check15>(), Own("IGATE"),
     {"Hand received packets to the internet"}},
    {"GateWords", On<&GateControls::GateWords>()},

    // The controls of TX SETUP: what the station is on the air.
    {"Frame4", On<&TxSetupControls::Frame4>(), Own("TX SETUP / APRS PARAMETERS")},
    {"TxSsid", On<&TxSetupControls::TxSsid>(), {},
     {"SSID of the own call on the air (1-15 or empty)"}, {"SSID"}},
    {"TxDestinationField", On<&TxSetupControls::TxDestinationField>(), {},
     {"Destination of all frames / empty: ZEPR"}, {"TO"}},
    {"TxPathField", On<&TxSetupControls::TxPathField>(), {},
     {"Digipeaters, with a comma between them"}, {"path"}},
    {"PathMemory", All<&TxSetupControls::PathMemory, 1>(), Own("M%1"), {}, {"path memory %1"}},
    {"PathQuick", All<&TxSetupControls::PathQuick, 1>(), {}, {"Append to the path"}},
    {"PathClear", On<&TxSetupControls::PathClear>(), {}, {"Clear the path"}},
    {"InfoField", All<&TxSetupControls::InfoField, 1>(), {},
     {"Text of a report / {C:\\WX.TXT}: the longest line of that file"}, {"info line %1"}},
    {"fr4ta", All<&TxSetupControls::fr4ta, 1>(), {{"ACTIVE"}},
     {"This line takes its turn in the reports"}, {"info line %1 active"}},
    {"InfoMemory", All<&TxSetupControls::InfoMemory, 1>(), Own("M%1"), {}, {"info line memory %1"}},
    {"TxInterval", On<&TxSetupControls::TxInterval>(), {},
     {"Minutes between two reports (1-60) or MANUAL"}, {"minutes"}},
    {"TxIntervalUp", On<&TxSetupControls::TxIntervalUp>(), Own(">"),
     {"One minute more / hold: repeats"}},
    {"TxIntervalDown", On<&TxSetupControls::TxIntervalDown>(), Own("<"),
     {"One minute less / hold: repeats"}},
    {"SymbolDown", On<&TxSetupControls::SymbolDown>(), Own("<"),
     {"Previous symbol / hold: repeats"}},
    {"SymbolUp", On<&TxSetupControls::SymbolUp>(), Own(">"), {"Next symbol / hold: repeats"}},
    {"SymbolName", On<&TxSetupControls::SymbolName>(), {}, {"Row of the symbol table"}},
    {"SymbolPicture", On<&TxSetupControls::SymbolPicture>()},
    {"TxOverlayField", On<&TxSetupControls::TxOverlayField>(), {},
     {"Character that stands in for # in numbered symbols"}, {"OVERLAY"}},
    {"TxTimestampBox", On<&TxSetupControls::TxTimestampBox>(), Own("TX TIMESTAMP (GPS)"),
     {"Reports carry the time, once GPS has set the clock"}},
    {"DigiBox", On<&TxSetupControls::DigiBox>(), Own("DIGI"), {"Digipeater"}},
    {"TxLevelLabel", On<&TxSetupControls::TxLevelLabel>()},
    {"TxLevel", On<&TxSetupControls::TxLevel>(), {},
     {"Level of the modem's signal in mV (30-3000)"}, {"mV"}},
    {"Option3", At<&TxSetupControls::Speeds, 0>(), Own("RPR 300"), {"Radio speed"}},
    {"Option4", At<&TxSetupControls::Speeds, 1>(), Own("300"), {"Radio speed"}},
    {"Option5", At<&TxSetupControls::Speeds, 2>(), Own("1200"), {"Radio speed"}},
    {"Option6", At<&TxSetupControls::Speeds, 3>(), Own("9600"), {"Radio speed"}},
    {"Option7", At<&TxSetupControls::Speeds, 4>(), Own("19200"), {"Radio speed"}},
    {"CrossField", On<&TxSetupControls::CrossField>(), {},
     {"Second mode of HF-DUAL and of the cross-mode digipeater"}},
    {"CrossDown", On<&TxSetupControls::CrossDown>(), Own("<"), {"Step the second mode"}},
    {"CrossUp", On<&TxSetupControls::CrossUp>(), Own(">"), {"Step the second mode"}},
    {"CallNotice", On<&TxSetupControls::CallNotice>()},
    {"TxOk", On<&TxSetupControls::TxOk>(), {},
     {"Program the radio, save, the first report follows"}},
    {"TxAbort", On<&TxSetupControls::TxAbort>(), {}, {"Close, nothing is changed"}, {}, {},
     {"Esc"}},

    // The controls of OBJECT SETUP.
    {"Frame11", On<&ObjectSetupControls::Frame11>(),
     {{"OBJECT SETUP: CENTER THE MAP TO THE OBJECT!"}}},
    {"ObjectNameField", On<&ObjectSetupControls::ObjectNameField>(), {},
     {"Name of the object on the air, up to nine characters"}, {"NAME"}},
    {"ObjectTextField", On<&ObjectSetupControls::ObjectTextField>(), {}, {"Text of the object"},
     {"TEXT"}},
    {"ObjectOverlayField", On<&ObjectSetupControls::ObjectOverlayField>(), {},
     {"Character that stands in for # in numbered symbols"}, {"OVERLAY"}},
    {"ObjectSymbolDown", On<&ObjectSetupControls::ObjectSymbolDown>(), Own("<"),
     {"Previous symbol / hold: repeats"}},
    {"ObjectSymbolUp", On<&ObjectSetupControls::ObjectSymbolUp>(), Own(">"),
     {"Next symbol / hold: repeats"}},
    {"ObjectSymbolName", On<&ObjectSetupControls::ObjectSymbolName>(), {},
     {"Row of the symbol table"}},
    {"ObjectSymbolPicture", On<&ObjectSetupControls::ObjectSymbolPicture>()},
    {"ObjectOk", On<&ObjectSetupControls::ObjectOk>(), Own("OK"),
     {"The object is at the map center"}},
    {"Command31", On<&ObjectSetupControls::Command31>(), {{"DELETE OBJECT"}},
     {"No object any more / other stations are not told"}},
    {"Command32", On<&ObjectSetupControls::Command32>(), {{"CANCEL"}},
     {"Close, nothing is changed"}, {}, {}, {"Esc"}},

    // The controls of the terminal of a serial modem.
    {"Command65", On<&TerminalControls::Command65>(), Own("TERMINAL"),
     {"Terminal of the serial modem (PK 232, SCS TNC, SCS PTC)"}},
    {"Frame19", On<&TerminalControls::Frame19>()},
    {"Text19", On<&TerminalControls::Text19>(), {},
     {"Every key goes to the modem, Tab, Esc and Ctrl too / Alt+C closes / Shift+Tab leaves"},
     {"what goes to the modem"}},
    {"Text20", On<&TerminalControls::Text20>(), {}, {"What the modem prints"},
     {"what the modem prints"}},
    {"Label47", On<&TerminalControls::Label47>(),
     {{"THIS TERMINAL WINDOW ALLOWS TO COMMUNICATE DIRECTLY WITH/VIA THE TNC. AS LONG AS IT "
       "IS HELD OPEN, ALL NORMAL PROGRAM FUNCTIONS ARE STOPPED."}}},
    {"Command66", On<&TerminalControls::Command66>(), Own("CLOSE"),
     {"Close the terminal (Alt+C), the program goes on"}, {}, {}, {"Alt+C"}},
    {"Label49", On<&TerminalControls::Label49>(), {}, {}, {}, {"notice"}},

    // The controls of the status line, banner, notices and alarms.
    {"Label15", On<&StatusControls::Label15>()},
    {"Text10", On<&StatusControls::Text10>()},
    {"IonoLabel", On<&StatusControls::IonoLabel>()},
    {"FileNotice", On<&StatusControls::FileNotice>(), {},
     {"Lclick closes / a text can be selected and copied"}, {}, {"notice"}},
    {"LinkNotice", On<&StatusControls::LinkNotice>(), {},
     {"Lclick closes / a text can be selected and copied"}, {}, {"notice"}},
    {"Frame12", On<&StatusControls::Frame12>()},
    {"Label25", On<&StatusControls::Label25>()},
    {"Frame14", On<&StatusControls::Frame14>()},
};
// clang-format on

}  // namespace

void NameMainWindow(MainWindowControls& controls) {
  NameControls(controls, kTable);
}

void SetMainWindowLabels(MainWindowControls& controls, int language) {
  SayControls(controls, kTable, language / 10 == 1);
}

}  // namespace zepril
