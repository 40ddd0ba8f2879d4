// The words on the windows that belong to no control: what stands above a group, beside a field, on
// a tab, and what a screen reader says of them.
#pragma once

#include "core/texts/text.h"

namespace zepril {

// On every panel that holds the main cycle.
inline constexpr Text kReceptionRests{"Nothing is received while this is open."};

namespace window_texts {

// Tabs of the drawer, and groups of the columns.
inline constexpr Text kStations{"STATIONS"};
inline constexpr Text kPosition{"POSITION"};
inline constexpr Text kRaw{"RAW"};
inline constexpr Text kTerminal{"TERMINAL"};
inline constexpr Text kMessages{"CHAT"};
inline constexpr Text kScales{"SCALES"};
inline constexpr Text kFiles{"FILES"};
inline constexpr Text kOutside{"OUTSIDE"};
inline constexpr Text kMoni1{"MONI 1"};
inline constexpr Text kMoniAll{"MONI ALL"};
inline constexpr Text kTransmit{"TRANSMIT"};
inline constexpr Text kInternet{"INTERNET"};
inline constexpr Text kHeardStations{"HEARD STATIONS"};

// Read-outs, the bar above the map, the rows of the scales.
inline constexpr Text kMapCentre{"map center"};
inline constexpr Text kCursor{"cursor"};
inline constexpr Text kScale{"scale"};
inline constexpr Text kZoom{"zoom"};
inline constexpr Text kTilesHere{"tiles here"};
inline constexpr Text kFrames{"frames"};
inline constexpr Text kScaleLegend{"filled: tiles at the center, ticked: tile frames"};

// The lamp of the radio link, as it is said.
inline constexpr Text kLampNone{"radio link: none"};
inline constexpr Text kLampData{"radio link: data"};
inline constexpr Text kLampSilent{"radio link: silent"};
inline constexpr Text kLampLost{"radio link: lost"};
inline constexpr Text kLampPaused{"radio link: paused"};

// TX SETUP and OBJECT SETUP.
inline constexpr Text kAprsSymbol{"APRS SYMBOL"};
inline constexpr Text kPath{" VIA = PATH    (CALL1,...)   EASY SETUP    BUTTONS-->"};
inline constexpr Text kInfoLines{"INFO LINES (ALTERNATING)"};
inline constexpr Text kInfoMemories{"M1 to M6:  Lclick RECALL,  Rclick SAVE"};
inline constexpr Text kTxTimer{"TX TIMER IN MINUTES OR MANUAL TX"};
inline constexpr Text kRadio{"RADIO"};
inline constexpr Text kSecondMode{"CROSSMODE DIGI TX / HF-DUAL 2. MODE:"};
inline constexpr Text kSymbol{"SYMBOL"};

// The start window.
inline constexpr Text kStartTitle{"ZEP RIL  START   V 8.08"};
inline constexpr Text kProgram{"ZEP RIL"};
inline constexpr Text kProgramIs{"APRS station program"};
inline constexpr Text kStation{"STATION"};
inline constexpr Text kMaps{"MAPS"};
inline constexpr Text kGps{"GPS"};
inline constexpr Text kIonosphere{"IONOSPHERE"};
inline constexpr Text kPk232Is{"serial modem PK-232, HF and VHF"};
inline constexpr Text kAgwLocalIs{"packet engine on this computer, port 8000"};
inline constexpr Text kAgwRemoteIs{"packet engine on another computer, TCP/IP"};
inline constexpr Text kNoRadioIs{"no radio interface"};
inline constexpr Text kScsTncIs{"serial modem SCS TNC, Robust Packet Radio"};
inline constexpr Text kScsPtcIs{"serial controller SCS PTC"};
inline constexpr Text kMapsBeingDrawn{"The sample maps are being drawn, once ..."};
inline constexpr Text kMapsDrawn{"sample maps drawn"};

// Where there is no window yet: on the terminal that the program was started from.
inline constexpr Text kNoDisplay{"zepril: no display: set DISPLAY, or QT_QPA_PLATFORM=offscreen\n"};
inline constexpr Text kNoFonts{
    "zepril: its fonts are missing, a fixed font of the system stands in\n"};

}  // namespace window_texts
}  // namespace zepril
